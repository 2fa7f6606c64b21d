#include <QCoreApplication>
#include <QDate>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "ConsoleMessageService.h"
#include "data/ConnectionFile.h"
#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/DatabaseStatistics.h"
#include "data/ErrorLog.h"
#include "data/JalaliDay.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"
#include "settings/QSettingsStore.h"

namespace sandogh {

namespace {

QString todayJalali() {
    return JalaliDay::dateText(QDate::currentDate());
}

// The fiscal year chosen on this machine: "Year"/"Year" of the settings, trimmed.
QString fiscalYearDatabase() {
    QSettingsStore store;
    return MachineSettings(store).fiscalYearDatabase().trimmed();
}

QString describe(const ConnectionSettings& s) {
    switch (s.backend) {
        case Backend::SQLite:
            return QStringLiteral("SQLite file ") + s.sqliteFile();
        case Backend::PostgreSQL:
            return QStringLiteral("PostgreSQL database %1 on %2%3")
                .arg(s.catalog, s.host, s.port > 0 ? QStringLiteral(":%1").arg(s.port) : QString());
        case Backend::SqlServer:
            return QStringLiteral("SQL Server database %1 on %2").arg(s.catalog, s.host);
    }
    return {};
}

}  // namespace

// sandogh-admin init-db [--dir PROGRAM_DIR]: creates the shop database that the
// connection file of the program folder names (with the fiscal year of this machine)
// when it does not exist yet, and brings it to the last migration step.
int runInitDb(AdminCall& call) {
    const AdminArgs args(call.args, {}, {});
    if (!args.ok() || !args.positional().isEmpty()) {
        call.err << "sandogh-admin init-db: "
                 << (args.ok() ? QStringLiteral("takes no arguments") : args.error()) << '\n';
        return ExitUsage;
    }
    ConsoleMessageService messages(call.err);
    SystemClock clock;
    ErrorLog log(call.programDir, &messages, clock, todayJalali(),
                 QStringLiteral("sandogh-admin ") + QCoreApplication::applicationVersion());

    ConnectionFile file(call.programDir, &log);
    if (!file.LoadPrimary(fiscalYearDatabase())) {
        call.err << ConnectionFile::missingMessage() << '\n';
        return ExitFailed;
    }
    ConnectionSettings settings;
    QString error;
    if (!ConnectionSettings::parse(file.connectionString(), call.programDir, settings, &error)) {
        call.err << "sandogh-admin init-db: " << error << '\n';
        return ExitFailed;
    }
    call.out << "database: " << describe(settings) << '\n';

    switch (DatabaseProvisioner::ensureExists(settings, &error)) {
        case DatabaseProvisioner::Outcome::Failed:
            call.err << "sandogh-admin init-db: cannot create the database: " << error << '\n';
            return ExitFailed;
        case DatabaseProvisioner::Outcome::Created:
            call.out << "created the database\n";
            break;
        case DatabaseProvisioner::Outcome::Existed:
            call.out << "the database exists\n";
            break;
    }
    call.out.flush();

    DatabaseOptions options;
    options.otherDatabases = Migrator::otherDatabasesOf(shopMigrations());
    Database database(settings, &messages, &log, options);
    const Migrator::Result result = Migrator(database).apply(shopMigrations());
    if (!result.ok) {
        call.err << "sandogh-admin init-db: " << result.message << '\n';
        return ExitFailed;
    }
    if (!DatabaseStatistics::refresh(database)) {
        return ExitFailed;
    }
    call.out << "schema version " << result.versionBefore << " -> " << result.versionAfter
             << (result.applied.isEmpty()
                     ? QStringLiteral(" (up to date)")
                     : QStringLiteral(" (%1 steps applied)").arg(result.applied.size()))
             << '\n';
    return ExitOk;
}

}  // namespace sandogh
