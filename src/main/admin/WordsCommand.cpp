#include <QRegularExpression>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "common/PersianWords.h"
#include "common/TextHelpers.h"

namespace sandogh {

// sandogh-admin words NUMBER: a whole non-negative number in Persian words; an
// empty line for 0, the "very large" text past fifteen digits. Persian and
// Arabic digits are read as digits.
int runWords(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok()) {
        call.err << "sandogh-admin words: " << args.error() << '\n';
        return ExitUsage;
    }
    if (args.positional().size() != 1) {
        call.err << "sandogh-admin words: expected exactly one whole number, got "
                 << args.positional().size() << " arguments\n";
        return ExitUsage;
    }
    const QString typed = args.positional().first();
    const QString digits = QString::fromStdString(TextHelpers::toAsciiDigits(typed.toStdString()));
    static const QRegularExpression wholeNumber(QStringLiteral("^[0-9]+$"));
    if (!wholeNumber.match(digits).hasMatch()) {
        call.err << "sandogh-admin words: \"" << typed
                 << "\" is not a whole non-negative number (digits only)\n";
        return ExitUsage;
    }
    call.out << QString::fromStdString(PersianWords::numberText(digits.toStdString())) << '\n';
    return ExitOk;
}

}  // namespace sandogh
