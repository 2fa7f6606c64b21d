#include "ui/widgets/PromptDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "settings/MessageService.h"
#include "ui/widgets/ButtonCaptions.h"

namespace sandogh {

PromptDialog::PromptDialog(const QString& text, bool password, QWidget* parent)
    : QDialog(parent)
    , lblPrompt(new QLabel(text, this))
    , txtAnswer(new QLineEdit(this))
    , buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setWindowTitle(warningTitle());
    setLayoutDirection(Qt::RightToLeft);
    setModal(true);

    lblPrompt->setObjectName(QStringLiteral("lblPrompt"));
    lblPrompt->setTextFormat(Qt::PlainText);
    lblPrompt->setWordWrap(true);
    lblPrompt->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);

    txtAnswer->setObjectName(QStringLiteral("txtAnswer"));
    txtAnswer->setMinimumWidth(260);
    if (password) {
        txtAnswer->setEchoMode(QLineEdit::Password);
        // A card password never goes to the clipboard or the input method's memory.
        txtAnswer->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData |
                                       Qt::ImhNoPredictiveText);
    }
    lblPrompt->setBuddy(txtAnswer);

    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->button(QDialogButtonBox::Ok)->setText(ButtonCaptions::ok());
    buttons->button(QDialogButtonBox::Cancel)->setText(ButtonCaptions::cancel());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblPrompt);
    layout->addWidget(txtAnswer);
    layout->addWidget(buttons);
    txtAnswer->setFocus();
}

QString PromptDialog::answer() const {
    return txtAnswer->text();
}

void PromptDialog::setAnswer(const QString& answer) {
    txtAnswer->setText(answer);
    txtAnswer->selectAll();
}

bool PromptDialog::isPassword() const {
    return txtAnswer->echoMode() == QLineEdit::Password;
}

}  // namespace sandogh
