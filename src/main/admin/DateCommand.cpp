#include <QDate>
#include <QRegularExpression>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "common/JalaliCalendar.h"
#include "data/JalaliDay.h"

namespace sandogh {

// sandogh-admin date [YYYY-MM-DD]: the Jalali date text and weekday of a
// Gregorian day, today without an argument.
int runDate(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok()) {
        call.err << "sandogh-admin date: " << args.error() << '\n';
        return ExitUsage;
    }
    if (args.positional().size() > 1) {
        call.err << "sandogh-admin date: expected at most one date (YYYY-MM-DD), got "
                 << args.positional().size() << " arguments\n";
        return ExitUsage;
    }
    QDate date = QDate::currentDate();
    if (!args.positional().isEmpty()) {
        const QString text = args.positional().first();
        static const QRegularExpression shape(QStringLiteral("^\\d{4}-\\d{2}-\\d{2}$"));
        date = QDate::fromString(text, Qt::ISODate);
        if (!shape.match(text).hasMatch() || !date.isValid()) {
            call.err << "sandogh-admin date: \"" << text
                     << "\" is not a Gregorian day written YYYY-MM-DD\n";
            return ExitUsage;
        }
    }
    const QString jalali = JalaliDay::dateText(date);
    if (jalali.isEmpty()) {
        call.err << "sandogh-admin date: " << date.toString(Qt::ISODate)
                 << " lies outside the Jalali years " << JalaliCalendar::kFirstYear << " to "
                 << JalaliCalendar::kLastYear << '\n';
        return ExitUsage;
    }
    call.out << jalali << '\t' << JalaliDay::weekdayName(date) << '\n';
    return ExitOk;
}

}  // namespace sandogh
