#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

namespace sandogh::test {

// Acts in the modal dialog a screen is about to open: once the dialog named name is the
// active modal widget, act runs on it (typing, Enter, Escape). The driver looks on every
// turn of the event loop and never waits on a clock; a dialog that never opened is
// reported when the driver goes out of scope.
class DialogDriver : public QObject {
public:
    DialogDriver(QString name, std::function<void(QWidget*)> act)
        : m_name(std::move(name)), m_act(std::move(act)) {
        m_look.setInterval(0);
        QObject::connect(&m_look, &QTimer::timeout, this, [this] { look(); });
        m_look.start();
    }
    ~DialogDriver() override {
        m_look.stop();
        EXPECT_TRUE(m_done) << "the dialog " << m_name.toStdString() << " did not open";
    }
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    bool done() const { return m_done; }

private:
    void look() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible() || dialog->objectName() != m_name) {
            return;
        }
        m_look.stop();
        m_done = true;
        m_act(dialog);
    }

    QString m_name;
    std::function<void(QWidget*)> m_act;
    QTimer m_look;
    bool m_done = false;
};

}  // namespace sandogh::test
