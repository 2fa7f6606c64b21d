#include "app/StartUp.h"

#include "app/AppContext.h"
#include "data/ConnectionFile.h"
#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/ErrorLog.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("MainModule");
const QString kRoutine = QStringLiteral("LoadPrimary");

}  // namespace

bool StartUp::fail(const QString& number, const QString& description) {
    m_failure = description;
    if (!number.isEmpty()) {
        m_context.errorLog().LogError({number, description, QStringLiteral("Sandogh.StartUp")},
                                      kModule, kRoutine);
    }
    return false;
}

bool StartUp::run() {
    m_failure.clear();
    m_context.setCurrentDatabaseName(m_context.machineSettings().fiscalYearDatabase().trimmed());

    ConnectionFile file(m_context.programFolder(), &m_context.errorLog());
    if (!file.LoadPrimary(m_context.currentDatabaseName())) {
        // LoadPrimary has logged the failure itself.
        return fail({}, file.lastError().description);
    }

    ConnectionSettings settings;
    QString error;
    if (!ConnectionSettings::parse(file.connectionString(), m_context.programFolder(), settings,
                                   &error)) {
        return fail(QStringLiteral("5"), error);
    }

    DatabaseOptions options;
    // The scale vendors' databases are reached through three-part names.
    options.otherDatabases = Migrator::otherDatabasesOf(shopMigrations());
    auto database =
        std::make_unique<Database>(settings, &m_context.messages(), &m_context.errorLog(), options);
    m_context.setDatabase(std::move(database), settings);
    return true;
}

}  // namespace sandogh
