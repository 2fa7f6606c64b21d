#include "support/TestDatabase.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>
#include <QtGlobal>

#include "data/DatabaseProvisioner.h"

namespace sandogh::test {

namespace {

QAtomicInt g_nextDatabase{0};

QString env(const char* name) {
    return qEnvironmentVariable(name).trimmed();
}

QString postgresProvider(const QString& catalog) {
    QString dataSource = env("SANDOGH_TEST_PG_HOST");
    if (!env("SANDOGH_TEST_PG_PORT").isEmpty()) {
        dataSource += QLatin1Char(',') + env("SANDOGH_TEST_PG_PORT");
    }
    return QStringLiteral(
               "Provider=PostgreSQL;\nData Source=%1;\nInitial Catalog=%2;\n"
               "User ID=%3;\nPassword=%4;\nPersist Security Info=True;\n")
        .arg(dataSource, catalog, env("SANDOGH_TEST_PG_USER"), env("SANDOGH_TEST_PG_PASSWORD"));
}

QString sqliteProvider() {
    return QStringLiteral(
        "Provider=SQLite;\nData Source=Data;\nInitial Catalog=Shop;\nUser ID=;\nPassword=;\n"
        "Persist Security Info=False;\n");
}

bool parseProvider(const QString& text, const QString& programDir, ConnectionSettings& settings,
                   QString* reason) {
    QString joined = text;
    joined.remove(QLatin1Char('\n'));
    return ConnectionSettings::parse(joined, programDir, settings, reason);
}

}  // namespace

bool TestDatabase::postgresConfigured() {
    return !env("SANDOGH_TEST_PG_HOST").isEmpty();
}

bool TestDatabase::postgresRequired() {
    return env("SANDOGH_REQUIRE_PG") == QLatin1String("1");
}

ConnectionSettings TestDatabase::postgresServer() {
    ConnectionSettings s;
    parseProvider(postgresProvider(QStringLiteral("postgres")), QDir::tempPath(), s, nullptr);
    return s;
}

std::unique_ptr<TestDatabase> TestDatabase::create(Backend backend, QString* reason) {
    std::unique_ptr<TestDatabase> db(new TestDatabase);
    if (!db->m_programDir.isValid()) {
        *reason = QStringLiteral("cannot make a temporary folder");
        return nullptr;
    }
    QString provider;
    switch (backend) {
        case Backend::SQLite:
            provider = sqliteProvider();
            break;
        case Backend::PostgreSQL:
            if (!postgresConfigured()) {
                *reason = QStringLiteral(
                    "PostgreSQL is not configured: set SANDOGH_TEST_PG_HOST, SANDOGH_TEST_PG_PORT "
                    "and SANDOGH_TEST_PG_USER (scripts/test starts a server and does)");
                return nullptr;
            }
            provider = postgresProvider(QStringLiteral("sandogh_test_%1_%2_%3")
                                            .arg(QCoreApplication::applicationPid())
                                            .arg(g_nextDatabase.fetchAndAddRelaxed(1))
                                            .arg(QRandomGenerator::global()->generate() % 100000));
            break;
        case Backend::SqlServer:
            *reason = QStringLiteral("no SQL Server test server");
            return nullptr;
    }
    if (!parseProvider(provider, db->programDir(), db->m_settings, reason)) {
        return nullptr;
    }
    QString error;
    if (DatabaseProvisioner::ensureExists(db->m_settings, &error) !=
        DatabaseProvisioner::Outcome::Created) {
        *reason = QStringLiteral("cannot create the test database %1: %2")
                      .arg(db->m_settings.catalog, error);
        return nullptr;
    }
    db->m_dropOnServer = backend != Backend::SQLite;
    return db;
}

TestDatabase::~TestDatabase() {
    m_database.reset();
    if (m_dropOnServer) {
        QString error;
        if (!DatabaseProvisioner::drop(m_settings, &error)) {
            qWarning("TestDatabase: cannot drop %s: %s", qPrintable(m_settings.catalog),
                     qPrintable(error));
        }
    }
}

QString TestDatabase::providerText() const {
    return m_settings.backend == Backend::SQLite ? sqliteProvider()
                                                 : postgresProvider(m_settings.catalog);
}

Database& TestDatabase::database() {
    if (!m_database) {
        m_database = std::make_unique<Database>(m_settings, &m_messages, m_errorLog, m_options);
    }
    return *m_database;
}

std::unique_ptr<Database> TestDatabase::openAnother(MessageService* messages,
                                                    DatabaseOptions options) {
    return std::make_unique<Database>(m_settings, messages != nullptr ? messages : &m_messages,
                                      nullptr, std::move(options));
}

}  // namespace sandogh::test
