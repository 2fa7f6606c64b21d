#pragma once

#include <QString>

namespace sandogh {

// The message box styles of the program. Every box is titled "اخطار!" unless
// the caller names another title; all but CriticalPlain are right-aligned and
// read right to left.
enum class MessageStyle {
    CriticalPlain,  // connection failure of a data routine
    Information,    // notices
    Critical,       // errors found on screens
    Warning,        // wrong login
    QuestionYesNo,  // questions, Yes is the default
    QuestionYesNoDefaultNo,
    QuestionOkCancel,  // questions that may be cancelled
    QuestionCritical,  // Yes/No about irreversible steps
};

// The title of nearly every message box.
inline const QString& warningTitle() {
    static const QString title = QStringLiteral("اخطار!");
    return title;
}

// The edge through which logic talks to the person at the screen: Qt message
// boxes in the program, printed lines in sandogh-admin, scripted answers in tests.
class MessageService {
public:
    virtual ~MessageService() = default;

    // Shows text; for the question styles returns true on Yes/OK, otherwise true.
    virtual bool show(const QString& text, MessageStyle style,
                      const QString& title = warningTitle()) = 0;

    // Asks for one line of text (a price, a quantity, a card password).
    // Returns false when the person cancels.
    virtual bool prompt(const QString& text, QString& answer, bool password = false) = 0;
};

}  // namespace sandogh
