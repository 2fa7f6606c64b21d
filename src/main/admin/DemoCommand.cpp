#include <QCoreApplication>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "ConsoleMessageService.h"
#include "app/DemoShop.h"
#include "app/ShopDatabaseSetup.h"
#include "data/Database.h"
#include "data/DatabaseStatistics.h"
#include "data/ErrorLog.h"
#include "data/JalaliDay.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"
#include "settings/QSettingsStore.h"
#include "settings/SettingKeys.h"

namespace sandogh {

namespace {

QString levelName(PermissionLevel level) {
    return level == PermissionLevel::Administrator ? QStringLiteral("administrator")
                                                   : QStringLiteral("cashier");
}

}  // namespace

// sandogh-admin demo [--dir PROGRAM_DIR]: a demo shop in the program folder. Writes a
// connection file for a SQLite shop when the folder has none, creates or upgrades the
// database as init-db does, and adds the demo shop's rows that are missing. Running it
// again adds nothing; the demo passwords are printed only when their users are made.
int runDemo(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok() || !args.positional().isEmpty()) {
        call.err << "sandogh-admin demo: "
                 << (args.ok() ? QStringLiteral("takes no arguments") : args.error()) << '\n';
        return ExitUsage;
    }

    QString error;
    switch (DemoShop::ensureProviderFile(call.programDir, &error)) {
        case DemoShop::ProviderFile::Failed:
            call.err << "sandogh-admin demo: cannot write Provider.txt in " << call.programDir
                     << ": " << error << '\n';
            return ExitFailed;
        case DemoShop::ProviderFile::Written:
            call.out << "wrote Provider.txt: a SQLite shop in Data/Shop.sqlite\n";
            break;
        case DemoShop::ProviderFile::Existed:
            call.out << "using the Provider.txt of " << call.programDir << '\n';
            break;
    }

    ConsoleMessageService messages(call.err);
    SystemClock clock;
    ErrorLog log(call.programDir, &messages, clock, JalaliDay::dateText(clock.now().date()),
                 QStringLiteral("sandogh-admin ") + QCoreApplication::applicationVersion());
    QSettingsStore store;
    ShopDatabaseSetup::Result setup = ShopDatabaseSetup::run(
        call.programDir, MachineSettings(store).fiscalYearDatabase(), messages, log);
    if (!setup.ok) {
        call.err << "sandogh-admin demo: " << setup.error << '\n';
        return ExitFailed;
    }
    call.out << (setup.created ? "created" : "opened") << " the database, schema version "
             << setup.migration.versionAfter << '\n';

    const DemoShop::Report report = DemoShop(*setup.database).seed();
    if (!report.ok) {
        call.err << "sandogh-admin demo: nothing was added: " << report.error << '\n';
        return ExitFailed;
    }
    if (report.totalAdded() > 0 && !DatabaseStatistics::refresh(*setup.database)) {
        return ExitFailed;
    }
    // The demo shop keeps its amounts in rials: its receipts end the amount in words so,
    // unless this desk has chosen already.
    const QString rialSection = QString::fromLatin1(settingkeys::FishIsRial.section);
    const QString rialKey = QString::fromLatin1(settingkeys::FishIsRial.key);
    if (store.read(rialSection, rialKey).trimmed().isEmpty()) {
        store.write(rialSection, rialKey, QStringLiteral("1"));
    }
    if (report.totalAdded() == 0) {
        call.out << "the demo shop is complete; nothing to add\n";
    }
    for (auto it = report.added.cbegin(); it != report.added.cend(); ++it) {
        call.out << "added " << it.value() << " rows to " << it.key() << '\n';
    }
    for (const DemoShop::DemoUser& user : report.createdUsers) {
        call.out << "user " << user.userName << " (" << levelName(user.level) << "), password "
                 << user.password << '\n';
    }
    if (!report.createdUsers.isEmpty()) {
        call.out << "to add a real cashier: log in as admin, System > Users (کاربران), New, "
                    "role Cashier, a password, Save; then change admin's password there too\n";
    }
    return ExitOk;
}

}  // namespace sandogh
