#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/DatabaseOptions.h"
#include "support/RecordingMessageService.h"

namespace sandogh::test {

// A fresh, empty shop database of one backend for one test, removed at its end.
//   SQLite:     <program folder>/Data/Shop.sqlite in a temporary program folder.
//   PostgreSQL: a newly created, uniquely named database on the server named by
//               SANDOGH_TEST_PG_HOST / SANDOGH_TEST_PG_PORT / SANDOGH_TEST_PG_USER
//               (and SANDOGH_TEST_PG_PASSWORD when set), dropped at the end.
class TestDatabase {
public:
    // Null with the reason when the database cannot be made (PostgreSQL not configured:
    // see postgresConfigured()).
    static std::unique_ptr<TestDatabase> create(Backend backend, QString* reason);
    ~TestDatabase();
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    static bool postgresConfigured();
    // SANDOGH_REQUIRE_PG=1: a PostgreSQL test that cannot run fails instead of skipping.
    static bool postgresRequired();
    // The test server itself (database "postgres").
    static ConnectionSettings postgresServer();

    Backend backend() const { return m_settings.backend; }
    const ConnectionSettings& settings() const { return m_settings; }
    // A temporary program folder (for Provider.txt, ErrorLog.txt).
    QString programDir() const { return m_programDir.path(); }
    // The six lines of a Provider.txt that name this database.
    QString providerText() const;

    // The Database of the test, opened on first use with messages(), options() and the
    // error log given to useErrorLog() (none: failures go to the debug output).
    Database& database();
    void useErrorLog(ErrorLog* errorLog) { m_errorLog = errorLog; }
    DatabaseOptions& options() { return m_options; }
    RecordingMessageService& messages() { return m_messages; }
    // Another Database object on the same database: another cash desk.
    std::unique_ptr<Database> openAnother(MessageService* messages = nullptr,
                                          DatabaseOptions options = {});

private:
    TestDatabase() = default;

    QTemporaryDir m_programDir;
    ConnectionSettings m_settings;
    DatabaseOptions m_options;
    RecordingMessageService m_messages;
    std::unique_ptr<Database> m_database;
    ErrorLog* m_errorLog = nullptr;
    bool m_dropOnServer = false;
};

}  // namespace sandogh::test
