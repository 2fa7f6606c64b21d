// The connection pool: routines reuse open connections, every thread has its own,
// a connection the server dropped is re-opened, and a server that cannot be reached
// shows the connection message once per routine.

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "TestTables.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "support/BackendTest.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

class PoolTest : public test::BackendTest {};

TEST_P(PoolTest, EachThreadUsesItsOwnConnectionsAndClosesThemAtItsEnd) {
    {
        Session s = db().session();
        ASSERT_TRUE(test::createTables(s, {test::probeTable()}));
    }
    constexpr int kThreads = 4;
    constexpr int kRoutines = 20;
    std::vector<std::thread> threads;
    std::atomic<int> failures{0};
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < kRoutines; ++i) {
                Session s = db().session();
                const bool ok =
                    s.exec(QStringLiteral("INSERT INTO Goods (Code, Name) VALUES (:code, :name)"),
                           {{QStringLiteral("code"), t * 1000 + i},
                            {QStringLiteral("name"), QStringLiteral("t")}});
                failures += ok ? 0 : 1;
            }
        });
    }
    for (auto& th : threads) {
        th.join();
    }
    EXPECT_EQ(failures.load(), 0);
    EXPECT_EQ(db().physicalConnects(), 1 + kThreads);
    EXPECT_EQ(db().pooledConnections(), 1);  // the ended threads closed theirs
    Session s = db().session();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods")), kThreads * kRoutines);
}

TEST(SqlitePool, ConnectionsEnforceForeignKeysAndWaitForWriters) {
    bool skip = false;
    auto testDb = test::createOrReport(Backend::SQLite, &skip);
    ASSERT_NE(testDb, nullptr);
    Session s = testDb->database().session();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("PRAGMA foreign_keys")), 1);
    EXPECT_EQ(s.scalarText(QStringLiteral("PRAGMA journal_mode")), QStringLiteral("wal"));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("PRAGMA synchronous")), 2);  // FULL

    ASSERT_TRUE(test::createTables(s, {test::probeTable()}));
    // Another desk holds the file in a write transaction for a moment: this desk's write
    // waits for it (the busy handler) instead of failing.
    std::promise<void> holding;
    std::thread other([&] {
        Session held = testDb->database().session();
        Transaction tx(held);
        holding.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        EXPECT_TRUE(tx.commit());
    });
    holding.get_future().wait();
    EXPECT_TRUE(s.exec(QStringLiteral("INSERT INTO Goods (Code, Name) VALUES (1, 'waited')")));
    other.join();
}

SANDOGH_INSTANTIATE_BACKENDS(PoolTest);

// The server ends a cash desk's connection (a restart, an administrator).
class DroppedConnectionTest : public test::BackendTest {
protected:
    qint64 backendPid(Session& s) {
        return s.scalarInt64(QStringLiteral("SELECT pg_backend_pid()"));
    }

    void terminate(qint64 pid) {
        auto admin = testDatabase().openAnother();
        Session s = admin->session();
        ASSERT_TRUE(
            s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM pg_stat_activity WHERE pid = "
                                         ":pid"),
                          {{QStringLiteral("pid"), pid}}) == 1);
        ASSERT_TRUE(s.scalar(QStringLiteral("SELECT pg_terminate_backend(:pid)"),
                             {{QStringLiteral("pid"), pid}})
                        .toBool());
        // Wait until the server has really ended it.
        for (int i = 0; i < 3000; ++i) {
            if (s.scalarInt64(
                    QStringLiteral("SELECT COUNT(*) FROM pg_stat_activity WHERE pid = :pid"),
                    {{QStringLiteral("pid"), pid}}) == 0) {
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        FAIL() << "the server did not end backend " << pid;
    }
};

TEST_P(DroppedConnectionTest, AnIdleConnectionIsCheckedAndReopenedTransparently) {
    testDatabase().options().idleCheckMs = 0;  // check on every hand-out
    qint64 first = 0;
    {
        Session s = db().session();
        first = backendPid(s);
        ASSERT_GT(first, 0);
    }
    terminate(first);
    Session s = db().session();
    ASSERT_TRUE(s.isValid());
    const qint64 second = backendPid(s);
    EXPECT_GT(second, 0);
    EXPECT_NE(second, first);
    EXPECT_EQ(db().physicalConnects(), 2);
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(DroppedConnectionTest, ALossFoundByAStatementFailsThatRoutineOnlyOnce) {
    testDatabase().options().idleCheckMs = 24 * 3600 * 1000;  // never checked
    qint64 first = 0;
    {
        Session s = db().session();
        first = backendPid(s);
    }
    terminate(first);
    {
        Session s = db().session(QStringLiteral("mduProbe"), QStringLiteral("Load"));
        ASSERT_TRUE(s.isValid());
        EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT 41 + 1"), {}, -1), -1);
        EXPECT_TRUE(s.lastError().isConnectionLost()) << s.lastError().text().toStdString();
        EXPECT_FALSE(s.exec(QStringLiteral("SELECT 1")));
        EXPECT_TRUE(s.lastError().isConnectionLost());
        ASSERT_EQ(messages().count(), 1);
        EXPECT_EQ(messages().messages().first().text, Database::connectionFailureMessage());
        EXPECT_EQ(messages().messages().first().style, MessageStyle::CriticalPlain);
    }
    // The broken connection was not put back: the next routine works.
    Session s = db().session();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT 41 + 1")), 42);
    EXPECT_NE(backendPid(s), first);
    EXPECT_EQ(messages().count(), 1);
}

// A transaction begins on a connection that answers, even one the server has dropped
// unnoticed; a loss inside a transaction ends it without harm.
TEST_P(DroppedConnectionTest, TransactionsOutliveALostConnection) {
    testDatabase().options().idleCheckMs = 24 * 3600 * 1000;  // not checked on hand-out
    {
        Session s = db().session();
        ASSERT_TRUE(test::createTables(s, {test::probeTable()}));
        terminate(backendPid(s));
        Transaction tx(s);
        ASSERT_TRUE(tx.isActive()) << tx.error().text().toStdString();
        EXPECT_TRUE(s.exec(QStringLiteral("INSERT INTO Goods (Code) VALUES (1)")));
        EXPECT_TRUE(tx.commit());
        EXPECT_EQ(messages().count(), 0);
    }
    {
        Session s = db().session();
        Transaction tx(s);
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Goods (Code) VALUES (2)")));
        terminate(backendPid(s));
        EXPECT_FALSE(s.exec(QStringLiteral("INSERT INTO Goods (Code) VALUES (3)")));
        EXPECT_TRUE(s.lastError().isConnectionLost());
        EXPECT_FALSE(tx.commit());
    }
    Session s = db().session();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods"), {}, -1), 1);
}

SANDOGH_INSTANTIATE_POSTGRES_ONLY(DroppedConnectionTest);

// A database that cannot be reached at all: a server refusing, an SQLite file missing.
TEST(UnreachableDatabase, ShowsTheMessageOnceAndTheRoutineReturnsEmpty) {
    for (const char* connection :
         {"Provider=PostgreSQL;Data Source=127.0.0.1,1;Initial Catalog=shop;User ID=postgres;",
          "Provider=SQLite;Data Source=NoSuchFolder;Initial Catalog=Shop;"}) {
        SCOPED_TRACE(connection);
        QTemporaryDir dir;
        ConnectionSettings settings;
        ASSERT_TRUE(ConnectionSettings::parse(QString::fromLatin1(connection), dir.path(), settings,
                                              nullptr));
        test::RecordingMessageService messages;
        Database db(settings, &messages);
        Session s = db.session(QStringLiteral("frmSale"), QStringLiteral("LoadGoods"));
        EXPECT_FALSE(s.isValid());
        EXPECT_TRUE(s.lastError().isConnectionLost());
        ASSERT_EQ(messages.count(), 1);
        EXPECT_EQ(messages.messages().first().text,
                  QStringLiteral("خطا در برقراري ارتباط با سرور بانک اطلاعاتي"));
        EXPECT_EQ(messages.messages().first().title, QStringLiteral("اخطار!"));
        EXPECT_EQ(messages.messages().first().style, MessageStyle::CriticalPlain);

        // The rest of the routine runs on and yields its empty result without more messages.
        EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods"), {}, 0), 0);
        EXPECT_EQ(s.scalarText(QStringLiteral("SELECT Name FROM Goods")), QString());
        EXPECT_FALSE(s.exec(QStringLiteral("DELETE FROM Goods")));
        SqlQuery q(s, QStringLiteral("SELECT Name FROM Goods WHERE Code = :c"));
        q.bind(QStringLiteral("c"), 1);
        EXPECT_FALSE(q.exec());
        EXPECT_TRUE(q.error().isConnectionLost());
        EXPECT_FALSE(q.next());
        Transaction tx(s);
        EXPECT_FALSE(tx.isActive());
        EXPECT_EQ(messages.count(), 1);

        // The next routine tries again and tells again.
        Session again = db.session();
        EXPECT_FALSE(again.isValid());
        EXPECT_EQ(messages.count(), 2);
        EXPECT_EQ(db.pooledConnections(), 0);
    }
}

}  // namespace
}  // namespace sandogh
