#include "AdminShop.h"

#include <QCoreApplication>
#include <QDate>

#include "data/ConnectionFile.h"
#include "data/ConnectionSettings.h"
#include "data/JalaliDay.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

AdminShop::AdminShop(const QString& programDir, QTextStream& err)
    : m_programDir(programDir), m_err(err), m_messages(err), m_settings(m_store) {}

bool AdminShop::open(const QString& commandName) {
    m_log = std::make_unique<ErrorLog>(
        m_programDir, &m_messages, m_clock, JalaliDay::dateText(QDate::currentDate()),
        QStringLiteral("sandogh-admin ") + QCoreApplication::applicationVersion());
    ConnectionFile file(m_programDir, m_log.get());
    if (!file.LoadPrimary(m_settings.fiscalYearDatabase().trimmed())) {
        m_err << ConnectionFile::missingMessage() << '\n';
        return false;
    }
    ConnectionSettings connection;
    QString error;
    if (!ConnectionSettings::parse(file.connectionString(), m_programDir, connection, &error)) {
        m_err << "sandogh-admin " << commandName << ": " << error << '\n';
        return false;
    }
    DatabaseOptions options;
    options.otherDatabases = Migrator::otherDatabasesOf(shopMigrations());
    m_database = std::make_unique<Database>(connection, &m_messages, m_log.get(), options);
    return true;
}

}  // namespace sandogh
