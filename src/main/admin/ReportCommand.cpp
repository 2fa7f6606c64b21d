#include <QDate>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "common/JalaliCalendar.h"
#include "data/JalaliDay.h"
#include "sales/DailySummary.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin report daily [YYYY/MM/DD] [--dir D]\n"
    "Prints the day's summary of sales and returns (counts, and the amounts received and\n"
    "paid back) as it is sent at the end of the day; today when no date is given.\n";

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin report: " << problem << '\n' << kUsage;
    return ExitUsage;
}

}  // namespace

// sandogh-admin report daily: the day's summary of the shop database of the program folder.
int runReport(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    const QStringList words = args.positional();
    if (words.isEmpty() || words.first() != QLatin1String("daily") || words.size() > 2) {
        return usage(call, QStringLiteral("expected: daily [YYYY/MM/DD]"));
    }
    QString day = JalaliDay::dateText(QDate::currentDate());
    if (words.size() == 2) {
        const std::optional<std::string> normal =
            JalaliCalendar::normalizeDateText(words.at(1).toStdString());
        if (!normal) {
            return usage(call, QStringLiteral("the date is a Jalali date YYYY/MM/DD"));
        }
        day = QString::fromStdString(*normal);
    }

    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("report"))) {
        return ExitFailed;
    }
    const DailySummary::Figures figures = DailySummary(shop.database()).read(day);
    if (!figures.ok) {
        return ExitFailed;
    }
    call.out << day << '\n'
             << DailySummary::text(figures).replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
             << '\n';
    return ExitOk;
}

}  // namespace sandogh
