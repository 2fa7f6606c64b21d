// Failures the program can name are told in their own words, once, and recorded in
// ErrorLog.txt: a refused foreign key, a busy database, a damaged file.

#include <gtest/gtest.h>

#include <QFile>
#include <QSqlError>
#include <QTemporaryDir>

#include "TestTables.h"
#include "data/Database.h"
#include "data/ErrorLog.h"
#include "data/Transaction.h"
#include "data/schema/Migrator.h"
#include "support/BackendTest.h"
#include "support/FixedClock.h"
#include "support/QtPrinters.h"
#include "support/RecordingMessageService.h"

namespace sandogh {
namespace {

using test::column;

class DbFaultMessagesTest : public test::BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(logDir.isValid());
        errorLog = std::make_unique<ErrorLog>(logDir.path(), &messages(), clock,
                                              QStringLiteral("1404/01/01"), QStringLiteral("test"));
        testDatabase().useErrorLog(errorLog.get());
        MigrationStep step;
        step.version = 1;
        step.description = QStringLiteral("parent and child");
        step.tables = {
            {QStringLiteral("Parent"),
             {column("Id", ColumnType::Int, 0, false)},
             {QStringLiteral("Id")},
             {}},
            {QStringLiteral("Child"), {column("ParentId", ColumnType::Int, 0, false)}, {}, {}},
        };
        step.foreignKeys = {{QStringLiteral("FK_Child_Parent"),
                             QStringLiteral("Child"),
                             {QStringLiteral("ParentId")},
                             QStringLiteral("Parent"),
                             {QStringLiteral("Id")}}};
        ASSERT_TRUE(Migrator(db()).apply({step}).ok);
        messages().clear();
    }
    QByteArray logText() {
        QFile f(errorLog->filePath());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    QTemporaryDir logDir;
    test::FixedClock clock;
    std::unique_ptr<ErrorLog> errorLog;
};

TEST_P(DbFaultMessagesTest, ARefusedForeignKeyIsToldOnceAndLogged) {
    Session s = db().session();
    EXPECT_FALSE(s.exec(QStringLiteral("INSERT INTO Child (ParentId) VALUES (42)")));
    EXPECT_EQ(s.lastError().kind, DbErrorKind::ForeignKey);
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages().first().text, DbError::messageFor(DbErrorKind::ForeignKey));
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), 0);
    EXPECT_EQ(logText().count("ErrNumber : "), 1);
}

TEST_P(DbFaultMessagesTest, ABusyDatabaseIsToldAsBusy) {
    if (backend() != Backend::SQLite) {
        GTEST_SKIP() << "a lock wait on PostgreSQL has no time-out here";
    }
    Session holder = db().session();
    Transaction held(holder);
    ASSERT_TRUE(held.isActive());
    ASSERT_TRUE(holder.exec(QStringLiteral("INSERT INTO Parent (Id) VALUES (1)")));

    DatabaseOptions impatient;
    impatient.sqliteBusyTimeoutMs = 50;
    test::RecordingMessageService otherMessages;
    const std::unique_ptr<Database> other = testDatabase().openAnother(&otherMessages, impatient);
    Session s = other->session();
    Transaction tx(s);
    EXPECT_FALSE(tx.isActive());
    EXPECT_EQ(tx.error().kind, DbErrorKind::Busy);
    EXPECT_EQ(otherMessages.countOf(DbError::messageFor(DbErrorKind::Busy)), 1);
    EXPECT_EQ(otherMessages.count(), 1);
}

TEST_P(DbFaultMessagesTest, ADamagedFileIsRefusedBeforeAnythingIsWritten) {
    if (backend() != Backend::SQLite) {
        GTEST_SKIP() << "a file of its own";
    }
    QTemporaryDir folder;
    ConnectionSettings settings = db().settings();
    settings.sqliteFolder = folder.path();
    {
        QFile f(settings.sqliteFile());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(4096, '\x11'));
    }
    test::RecordingMessageService shown;
    Database damaged(settings, &shown, errorLog.get());
    Session s = damaged.session();
    EXPECT_FALSE(s);
    EXPECT_EQ(s.lastError().kind, DbErrorKind::Damaged);
    EXPECT_EQ(messages().countOf(DbError::messageFor(DbErrorKind::Damaged)), 1);
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), 0);
    EXPECT_FALSE(QFile::exists(settings.sqliteFile() + QStringLiteral("-wal")));
    QFile f(settings.sqliteFile());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), QByteArray(4096, '\x11'));
}

SANDOGH_INSTANTIATE_BACKENDS(DbFaultMessagesTest);

}  // namespace
}  // namespace sandogh
