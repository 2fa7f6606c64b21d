#include "ui/widgets/QtMessageService.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

#include "ui/widgets/ButtonCaptions.h"
#include "ui/widgets/PromptDialog.h"

namespace sandogh {

namespace {

struct BoxLook {
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton;
    bool rightToLeft;
};

// Escape answers No or Cancel where there is one, and closes a notice.
QMessageBox::StandardButton escapeOf(QMessageBox::StandardButtons buttons) {
    if (buttons.testFlag(QMessageBox::No)) {
        return QMessageBox::No;
    }
    if (buttons.testFlag(QMessageBox::Cancel)) {
        return QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

BoxLook lookOf(MessageStyle style) {
    using B = QMessageBox;
    switch (style) {
        case MessageStyle::CriticalPlain:
            return {B::Critical, B::Ok, B::Ok, false};
        case MessageStyle::Information:
            return {B::Information, B::Ok, B::Ok, true};
        case MessageStyle::Critical:
            return {B::Critical, B::Ok, B::Ok, true};
        case MessageStyle::Warning:
            return {B::Warning, B::Ok, B::Ok, true};
        case MessageStyle::QuestionYesNo:
            return {B::Information, B::Yes | B::No, B::Yes, true};
        case MessageStyle::QuestionYesNoDefaultNo:
            return {B::Information, B::Yes | B::No, B::No, true};
        case MessageStyle::QuestionOkCancel:
            return {B::Information, B::Ok | B::Cancel, B::Ok, true};
        case MessageStyle::QuestionCritical:
            return {B::Critical, B::Yes | B::No, B::Yes, true};
    }
    return {B::Information, B::Ok, B::Ok, true};
}

void setCaption(QMessageBox& box, QMessageBox::StandardButton which, const QString& caption) {
    if (QAbstractButton* button = box.button(which)) {
        button->setText(caption);
    }
}

}  // namespace

QtMessageService::QtMessageService(QWidget* parent) : m_parent(parent) {}

bool QtMessageService::isQuestion(MessageStyle style) {
    switch (style) {
        case MessageStyle::QuestionYesNo:
        case MessageStyle::QuestionYesNoDefaultNo:
        case MessageStyle::QuestionOkCancel:
        case MessageStyle::QuestionCritical:
            return true;
        case MessageStyle::CriticalPlain:
        case MessageStyle::Information:
        case MessageStyle::Critical:
        case MessageStyle::Warning:
            break;
    }
    return false;
}

bool QtMessageService::answerFor(MessageStyle style, QMessageBox::StandardButton button) {
    if (!isQuestion(style)) {
        return true;
    }
    return button == QMessageBox::Yes || button == QMessageBox::Ok;
}

std::unique_ptr<QMessageBox> QtMessageService::buildBox(const QString& text, MessageStyle style,
                                                        const QString& title, QWidget* parent) {
    const BoxLook look = lookOf(style);
    auto box = std::make_unique<QMessageBox>(parent);
    box->setIcon(look.icon);
    box->setWindowTitle(title);
    // Messages carry error descriptions and typed values; nothing in them is markup.
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->setStandardButtons(look.buttons);
    box->setDefaultButton(look.defaultButton);
    box->setEscapeButton(escapeOf(look.buttons));
    setCaption(*box, QMessageBox::Yes, ButtonCaptions::yes());
    setCaption(*box, QMessageBox::No, ButtonCaptions::no());
    setCaption(*box, QMessageBox::Ok, ButtonCaptions::ok());
    setCaption(*box, QMessageBox::Cancel, ButtonCaptions::cancel());

    auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (look.rightToLeft) {
        box->setLayoutDirection(Qt::RightToLeft);
        if (label) {
            // Absolute, so that the right-to-left layout does not mirror it to the left.
            label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        }
    } else {
        // The plain style keeps the platform's own box, whatever the application's direction.
        box->setLayoutDirection(Qt::LeftToRight);
    }
    return box;
}

std::unique_ptr<PromptDialog> QtMessageService::buildPrompt(const QString& text,
                                                            const QString& answer, bool password,
                                                            QWidget* parent) {
    auto dialog = std::make_unique<PromptDialog>(text, password, parent);
    dialog->setAnswer(answer);
    return dialog;
}

QWidget* QtMessageService::dialogParent() const {
    if (m_parent) {
        return m_parent.data();
    }
    return QApplication::activeWindow();
}

bool QtMessageService::show(const QString& text, MessageStyle style, const QString& title) {
    const std::unique_ptr<QMessageBox> box = buildBox(text, style, title, dialogParent());
    const auto clicked = static_cast<QMessageBox::StandardButton>(box->exec());
    return answerFor(style, clicked);
}

bool QtMessageService::prompt(const QString& text, QString& answer, bool password) {
    const std::unique_ptr<PromptDialog> dialog =
        buildPrompt(text, answer, password, dialogParent());
    if (dialog->exec() != QDialog::Accepted) {
        return false;
    }
    answer = dialog->answer();
    return true;
}

}  // namespace sandogh
