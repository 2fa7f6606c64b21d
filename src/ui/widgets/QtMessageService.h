#pragma once

#include <memory>

#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "settings/MessageService.h"

namespace sandogh {

class PromptDialog;

// The message service of the program: Qt message boxes in Persian, read right to left.
//
// Each style of MessageStyle has one look:
//   CriticalPlain          critical icon, OK, left to right with no alignment of its own
//   Information            information icon, OK
//   Critical               critical icon, OK
//   Warning                warning icon, OK
//   QuestionYesNo          information icon, Yes/No, Yes the default
//   QuestionYesNoDefaultNo information icon, Yes/No, No the default
//   QuestionOkCancel       information icon, OK/Cancel, OK the default
//   QuestionCritical       critical icon, Yes/No, Yes the default
// All but CriticalPlain are laid out right to left with the text aligned to the right.
// Escape answers No or Cancel.
class QtMessageService final : public MessageService {
public:
    // Boxes are centred on parent, or on the active window when there is none.
    explicit QtMessageService(QWidget* parent = nullptr);

    void setParentWidget(QWidget* parent) { m_parent = parent; }

    bool show(const QString& text, MessageStyle style,
              const QString& title = warningTitle()) override;
    bool prompt(const QString& text, QString& answer, bool password = false) override;

    // The box show() runs, built but not shown, so that its look can be checked.
    static std::unique_ptr<QMessageBox> buildBox(const QString& text, MessageStyle style,
                                                 const QString& title = warningTitle(),
                                                 QWidget* parent = nullptr);
    // The dialog prompt() runs, built but not shown; answer is its starting text.
    static std::unique_ptr<PromptDialog> buildPrompt(const QString& text, const QString& answer,
                                                     bool password, QWidget* parent = nullptr);

    static bool isQuestion(MessageStyle style);
    // What show() returns when the box closed with this button: for questions true on
    // Yes or OK only; for the other styles always true.
    static bool answerFor(MessageStyle style, QMessageBox::StandardButton button);

private:
    QWidget* dialogParent() const;

    QPointer<QWidget> m_parent;
};

}  // namespace sandogh
