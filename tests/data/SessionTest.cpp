// Statements on a session: bound values, reading rows, the Isnull conventions, failures
// logged, classified and told in their own words once (a refused foreign key, a busy
// database, a damaged file). Runs on every backend.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "TestTables.h"
#include "data/ErrorLog.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "support/BackendTest.h"
#include "support/FixedClock.h"
#include "support/QtPrinters.h"
#include "support/RecordingMessageService.h"

namespace sandogh {
namespace {

class SessionTest : public test::BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        errorLog = std::make_unique<ErrorLog>(logDir.path(), &messages(), clock,
                                              QStringLiteral("1404/01/01"), QStringLiteral("test"));
        testDatabase().useErrorLog(errorLog.get());
        Session s = db().session();
        ASSERT_TRUE(test::createTables(s, {test::probeTable()}));
        messages().clear();
    }

    bool insert(Session& s, int code, const QString& name) {
        SqlQuery q(s, QStringLiteral("INSERT INTO Goods (Code, Name) VALUES (:code, :name)"));
        q.bind(QStringLiteral(":code"), code).bind(QStringLiteral(":name"), name);
        return q.exec();
    }

    QString logText() {
        QFile f(errorLog->filePath());
        return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
    }

    QTemporaryDir logDir;
    test::FixedClock clock;
    std::unique_ptr<ErrorLog> errorLog;
};

TEST_P(SessionTest, ReadsFieldsByPositionAndNameWithIsnullDefaults) {
    Session s = db().session();
    SqlQuery empty(s, QStringLiteral("INSERT INTO Goods (Code, Name, Amount, Note, DocDate, Big, "
                                     "Flag) VALUES (:code, :name, :amount, :note, :date, :big, "
                                     ":flag)"));
    empty.bind(QStringLiteral("code"), 1)
        .bindNull(QStringLiteral("name"), ColumnType::Text)
        .bindNull(QStringLiteral("amount"), ColumnType::Money)
        .bindNull(QStringLiteral("note"), ColumnType::LongText)
        .bind(QStringLiteral("date"), QString())
        .bindNull(QStringLiteral("big"), ColumnType::BigInt)
        .bindNull(QStringLiteral("flag"), ColumnType::Bool);
    ASSERT_TRUE(empty.exec());
    empty.bind(QStringLiteral("code"), 2)
        .bind(QStringLiteral("name"), QStringLiteral("ماست"))
        .bind(QStringLiteral("amount"), 12.5)
        .bind(QStringLiteral("note"), "note")
        .bind(QStringLiteral("date"), QStringLiteral("1404/01/05"))
        .bind(QStringLiteral("big"), qint64(9007199254740993LL))
        .bind(QStringLiteral("flag"), true);
    ASSERT_TRUE(empty.exec());
    EXPECT_EQ(empty.rowsAffected(), 1);

    SqlQuery q(s, QStringLiteral("SELECT Code, Name, Amount, Note, DocDate, Big, Flag FROM Goods "
                                 "ORDER BY Code"));
    ASSERT_TRUE(q.exec());
    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.columnCount(), 7);
    EXPECT_EQ(q.integer(0), 1);
    EXPECT_TRUE(q.isNull(1));
    EXPECT_EQ(q.text(1), QString());
    EXPECT_EQ(q.text(QStringLiteral("NAME"), QStringLiteral("-")), QStringLiteral("-"));
    EXPECT_EQ(q.number(2), 0.0);
    EXPECT_EQ(q.number(QStringLiteral("amount"), 7.0), 7.0);
    EXPECT_EQ(q.date(QStringLiteral("DocDate")), QStringLiteral("____/__/__"));
    EXPECT_EQ(q.date(3), QStringLiteral("____/__/__"));
    EXPECT_EQ(q.int64(QStringLiteral("Big")), 0);
    EXPECT_EQ(q.integer(6, -1), -1);

    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.text(QStringLiteral("name")), QStringLiteral("ماست"));
    EXPECT_EQ(q.text(1), QStringLiteral("ماست"));
    EXPECT_DOUBLE_EQ(q.number(QStringLiteral("Amount")), 12.5);
    EXPECT_EQ(q.text(QStringLiteral("Note")), QStringLiteral("note"));
    EXPECT_EQ(q.date(QStringLiteral("docdate")), QStringLiteral("1404/01/05"));
    EXPECT_EQ(q.int64(QStringLiteral("BIG")), 9007199254740993LL);
    EXPECT_EQ(q.integer(QStringLiteral("Flag")), 1);
    EXPECT_EQ(q.columnIndex(QStringLiteral("NoSuchColumn")), -1);
    EXPECT_EQ(q.text(QStringLiteral("NoSuchColumn"), QStringLiteral("fb")), QStringLiteral("fb"));
    EXPECT_FALSE(q.next());
    EXPECT_EQ(q.text(0, QStringLiteral("after")), QStringLiteral("after"));
    // A bind named once serves every use of its placeholder.
    EXPECT_EQ(
        s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods WHERE Code = :c OR Code = :c + 1"),
                      {{QStringLiteral("c"), 1}}),
        2);
}

TEST_P(SessionTest, AFailedStatementIsLoggedUnderItsRoutine) {
    Session s = db().session(QStringLiteral("mduProbe"), QStringLiteral("LoadMissing"));
    SqlQuery q(s, QStringLiteral("SELECT Name FROM NoSuchTable WHERE Code = :c"));
    q.bind(QStringLiteral("c"), 1);
    EXPECT_FALSE(q.exec());
    EXPECT_EQ(q.error().kind, DbErrorKind::Other);
    EXPECT_FALSE(q.next());
    EXPECT_EQ(q.text(0, QStringLiteral("empty")), QStringLiteral("empty"));
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages().first().style, MessageStyle::Critical);
    EXPECT_TRUE(messages().messages().first().text.startsWith(QStringLiteral("ErrNumber : ")));
    const QString log = logText();
    EXPECT_TRUE(log.contains(QStringLiteral("RoutineName : LoadMissing\r\n")));
    EXPECT_TRUE(log.contains(QStringLiteral("Module : mduProbe  \r\n")));

    // The session goes on working after a failure.
    EXPECT_TRUE(insert(s, 1, QStringLiteral("after")));
    // A quiet failure is left to the caller.
    EXPECT_FALSE(s.exec(QStringLiteral("DELETE FROM NoSuchTable"), {}, FailureLogging::Quiet));
    EXPECT_EQ(messages().count(), 1);
    EXPECT_EQ(s.lastError().kind, DbErrorKind::Other);
}

TEST_P(SessionTest, KeyAndForeignKeyViolationsAreClassified) {
    Session s = db().session();
    ASSERT_TRUE(test::createTables(s, test::parentChildTables(), {test::childToParent()}));
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Parent (Id) VALUES (1)")));
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Child (Id, ParentId) VALUES (1, 1)")));
    ASSERT_TRUE(insert(s, 1, QStringLiteral("first")));

    struct Case {
        const char* what;
        QString sql;
        DbErrorKind kind;
    };
    const Case cases[] = {
        {"duplicate primary key", QStringLiteral("INSERT INTO Goods (Code) VALUES (1)"),
         DbErrorKind::KeyConflict},
        {"missing parent", QStringLiteral("INSERT INTO Child (Id, ParentId) VALUES (2, 99)"),
         DbErrorKind::ForeignKey},
        {"parent still referenced", QStringLiteral("DELETE FROM Parent WHERE Id = 1"),
         DbErrorKind::ForeignKey},
        {"no such column", QStringLiteral("UPDATE Goods SET NoSuchColumn = 1"), DbErrorKind::Other},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(s.exec(c.sql, {}, FailureLogging::QuietKeyConflicts)) << c.what;
        EXPECT_EQ(s.lastError().kind, c.kind)
            << c.what << ": " << s.lastError().text().toStdString();
    }
    // Only the failures that are not key conflicts were told and logged, each once; a
    // refused foreign key in its own words.
    EXPECT_EQ(messages().count(), 3);
    EXPECT_EQ(messages().countOf(DbError::messageFor(DbErrorKind::ForeignKey)), 2);
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), 0);
    EXPECT_EQ(logText().count(QStringLiteral("ErrNumber : ")), 3);
}

TEST_P(SessionTest, ABusyDatabaseIsToldAsBusy) {
    if (backend() != Backend::SQLite) {
        GTEST_SKIP() << "a lock wait on PostgreSQL has no time-out here";
    }
    Session holder = db().session();
    Transaction held(holder);
    ASSERT_TRUE(held.isActive());
    ASSERT_TRUE(insert(holder, 1, QStringLiteral("held")));

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

TEST_P(SessionTest, ADamagedFileIsRefusedBeforeAnythingIsWritten) {
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

SANDOGH_INSTANTIATE_BACKENDS(SessionTest);

}  // namespace
}  // namespace sandogh
