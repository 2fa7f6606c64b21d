#pragma once

#include <functional>

#include <QPixmap>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace sandogh {

class MessageService;

// The splash screen the program starts with: the picture Program/Intro.png of the program
// folder in a frameless, see-through window above every other window, or, when the picture
// is missing or unreadable, the product name on a rounded panel.
//
// start() first runs the start-up step (reading the fiscal-year choice and the connection
// file). When the step fails, the message that the connection file is missing is shown and
// failed() is emitted; the program then ends. Otherwise the splash shows, one tick of the
// timer later it waits a further pause, then it closes and emits finished(), after which the
// login screen is opened.
class frmLogo : public QWidget {
    Q_OBJECT

public:
    using StartupStep = std::function<bool()>;

    static constexpr int kTickMs = 1000;
    static constexpr int kPauseMs = 2000;

    // The message service is not owned and must outlive the splash.
    frmLogo(const QString& programFolder, MessageService& messages, QWidget* parent = nullptr);

    // "<program folder>/Program/Intro.png".
    static QString imagePath(const QString& programFolder);
    // The one message for every failure of the start-up step.
    static QString missingConnectionFileMessage();
    // Drawn on the panel when there is no picture.
    static QString productName();

    // Run by start(); none means nothing to do.
    void setStartupStep(StartupStep step) { m_step = std::move(step); }
    bool hasImage() const { return !m_image.isNull(); }

    // Runs the step, then shows the splash and starts the timer.
    void start();

signals:
    void finished();
    void failed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void onTick();
    void onPauseOver();
    void placeOnScreen();

    MessageService& m_messages;
    StartupStep m_step;
    QPixmap m_image;
    QTimer tmrLogo;
    QTimer tmrPause;
};

}  // namespace sandogh
