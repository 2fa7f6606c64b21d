#include "app/ShopDatabaseSetup.h"

#include "data/ConnectionFile.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

ShopDatabaseSetup::Result ShopDatabaseSetup::run(const QString& programDir,
                                                 const QString& fiscalYear,
                                                 MessageService& messages, ErrorLog& log) {
    Result result;
    ConnectionFile file(programDir, &log);
    if (!file.LoadPrimary(fiscalYear.trimmed())) {
        result.error = file.lastError().description;
        return result;
    }
    if (!ConnectionSettings::parse(file.connectionString(), programDir, result.settings,
                                   &result.error)) {
        return result;
    }
    switch (DatabaseProvisioner::ensureExists(result.settings, &result.error)) {
        case DatabaseProvisioner::Outcome::Failed:
            result.error = QStringLiteral("cannot create the database: ") + result.error;
            return result;
        case DatabaseProvisioner::Outcome::Created:
            result.created = true;
            break;
        case DatabaseProvisioner::Outcome::Existed:
            break;
    }

    DatabaseOptions options;
    options.otherDatabases = Migrator::otherDatabasesOf(shopMigrations());
    result.database = std::make_unique<Database>(result.settings, &messages, &log, options);
    result.migration = Migrator(*result.database).apply(shopMigrations());
    if (!result.migration.ok) {
        result.error = result.migration.message;
        result.database.reset();
        return result;
    }
    result.ok = true;
    return result;
}

}  // namespace sandogh
