#include <QDate>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "AdminShop.h"
#include "app/NewFiscalYear.h"
#include "data/JalaliDay.h"

namespace sandogh {

namespace {

const char* const kUsage =
    "usage: sandogh-admin new-year [--dir D] --name NAME\n"
    "Opens the next fiscal year as the database NAME beside the present one: the catalogue,\n"
    "parties with their balances, users, desks, shifts and the parameter table are carried,\n"
    "each article's closing stock becomes the new year's opening stock. The present year is\n"
    "left as it was; choose the new one at the login (administrators) or with the setting\n"
    "Year/Year.\n";

}  // namespace

// sandogh-admin new-year: NewFiscalYear::open on the shop of the program folder.
int runNewYear(AdminCall& call) {
    const AdminArgs args(call.args, {QStringLiteral("name")}, {});
    if (!args.ok() || !args.has(QStringLiteral("name")) || !args.positional().isEmpty()) {
        call.err << "sandogh-admin new-year: "
                 << (args.ok() ? QStringLiteral("name the new year with --name") : args.error())
                 << '\n'
                 << kUsage;
        return ExitUsage;
    }
    AdminShop shop(call.programDir, call.err);
    if (!shop.open(QStringLiteral("new-year"))) {
        return ExitFailed;
    }
    const NewFiscalYear::Result result =
        NewFiscalYear::open(shop.database(), args.value(QStringLiteral("name")).trimmed(),
                            JalaliDay::dateText(QDate::currentDate()));
    if (!result.ok) {
        call.err << "sandogh-admin new-year: " << result.error << '\n';
        return ExitFailed;
    }
    call.out << "opened " << result.database << ": " << result.articles << " articles in stock, "
             << result.customers << " customers carried\n";
    return ExitOk;
}

}  // namespace sandogh
