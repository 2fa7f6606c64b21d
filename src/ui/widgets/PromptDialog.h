#pragma once

#include <QDialog>
#include <QString>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace sandogh {

// Asks for one line of text: a price, a quantity, a card password. Right to left,
// titled "اخطار!", with OK and Cancel; Enter accepts and Escape cancels.
class PromptDialog : public QDialog {
    Q_OBJECT

public:
    // In password mode the typed characters are hidden.
    explicit PromptDialog(const QString& text, bool password = false, QWidget* parent = nullptr);

    QString answer() const;
    void setAnswer(const QString& answer);
    bool isPassword() const;

private:
    QLabel* lblPrompt;
    QLineEdit* txtAnswer;
    QDialogButtonBox* buttons;
};

}  // namespace sandogh
