// Keys allocated as Max + 1 inside the INSERT: two cash desks that allocate at the
// same moment collide on the key, the loser sees a key conflict, and a retry takes
// the next key.

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>
#include <thread>
#include <vector>

#include "TestTables.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "support/BackendTest.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

const QString kAllocate = QStringLiteral(
    "INSERT INTO Goods (Code, Name) SELECT COALESCE(MAX(Code), 0) + 1, :name FROM Goods");

class KeyConflictTest : public test::BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        ASSERT_TRUE(test::createTables(s, {test::probeTable()}));
    }

    // The allocation as a saving routine writes it: retried while another desk took the key.
    static bool allocateWithRetry(Session& s, const QString& name, int& conflicts) {
        for (int attempt = 0; attempt < 50; ++attempt) {
            Transaction tx(s);
            if (!tx.isActive()) {
                return false;
            }
            if (s.exec(kAllocate, {{QStringLiteral("name"), name}},
                       FailureLogging::QuietKeyConflicts)) {
                if (tx.commit()) {
                    return true;
                }
            }
            if (!s.lastError().isKeyConflict()) {
                return false;
            }
            ++conflicts;
        }
        return false;
    }
};

TEST_P(KeyConflictTest, ConcurrentDesksAllEndWithDistinctKeys) {
    constexpr int kDesks = 4;
    constexpr int kEach = 25;
    std::vector<std::unique_ptr<Database>> desks;
    for (int d = 0; d < kDesks; ++d) {
        desks.push_back(testDatabase().openAnother());
    }
    std::atomic<int> failures{0};
    std::atomic<int> conflicts{0};
    std::vector<std::thread> threads;
    for (int d = 0; d < kDesks; ++d) {
        threads.emplace_back([&, d] {
            int mine = 0;
            for (int i = 0; i < kEach; ++i) {
                Session s = desks[d]->session();
                if (!allocateWithRetry(s, QStringLiteral("desk%1").arg(d), mine)) {
                    ++failures;
                }
            }
            conflicts += mine;
        });
    }
    for (auto& t : threads) {
        t.join();
    }
    EXPECT_EQ(failures.load(), 0);
    Session s = db().session();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods")), kDesks * kEach);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(DISTINCT Code) FROM Goods")),
              kDesks * kEach);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT MAX(Code) FROM Goods")), kDesks * kEach);
    if (backend() == Backend::SQLite) {
        // Writers queue behind BEGIN IMMEDIATE: no desk ever reads a stale maximum.
        EXPECT_EQ(conflicts.load(), 0);
    }
    EXPECT_EQ(messages().count(), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(KeyConflictTest);

// Two PostgreSQL sessions in two threads allocate at the same moment: both read the
// same maximum, the second waits on the first's key and fails when it commits.
class KeyRaceTest : public KeyConflictTest {};

TEST_P(KeyRaceTest, TheLoserGetsAKeyConflictThatARetryResolves) {
    std::binary_semaphore firstInserted(0);
    std::binary_semaphore secondReady(0);
    std::binary_semaphore firstMayCommit(0);
    std::atomic<qint64> secondPid{0};
    bool firstOk = false;
    DbError secondError;
    bool retryOk = false;

    std::thread first([&] {
        Session s = db().session(QStringLiteral("desk1"), QStringLiteral("SaveSale"));
        Transaction tx(s);
        firstOk = s.exec(kAllocate, {{QStringLiteral("name"), QStringLiteral("first")}});
        firstInserted.release();
        firstMayCommit.acquire();
        firstOk = firstOk && tx.commit();
    });
    std::thread second([&] {
        firstInserted.acquire();
        Session s = db().session(QStringLiteral("desk2"), QStringLiteral("SaveSale"));
        secondPid = s.scalarInt64(QStringLiteral("SELECT pg_backend_pid()"));
        secondReady.release();
        {
            Transaction tx(s);
            SqlQuery insert(s, kAllocate);
            insert.bind(QStringLiteral("name"), QStringLiteral("second"))
                .setLogging(FailureLogging::QuietKeyConflicts);
            if (!insert.exec()) {
                secondError = insert.error();
            }
        }
        int conflicts = 0;
        retryOk = allocateWithRetry(s, QStringLiteral("second"), conflicts);
    });

    // Let the first desk commit only once the second is waiting for its key.
    secondReady.acquire();
    {
        Session watcher = db().session();
        bool waiting = false;
        for (int i = 0; i < 6000 && !waiting; ++i) {
            waiting = watcher.scalarInt64(
                          QStringLiteral(
                              "SELECT COUNT(*) FROM pg_locks WHERE pid = :pid AND NOT granted"),
                          {{QStringLiteral("pid"), secondPid.load()}}) > 0;
            if (!waiting) {
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        }
        EXPECT_TRUE(waiting) << "the second desk never waited for the first one's key";
    }
    firstMayCommit.release();
    first.join();
    second.join();

    EXPECT_TRUE(firstOk);
    EXPECT_EQ(secondError.kind, DbErrorKind::KeyConflict) << secondError.text().toStdString();
    EXPECT_EQ(secondError.nativeCode, QStringLiteral("23505"));
    EXPECT_TRUE(retryOk);
    Session s = db().session();
    EXPECT_EQ(s.scalarText(QStringLiteral("SELECT Name FROM Goods WHERE Code = 1")),
              QStringLiteral("first"));
    EXPECT_EQ(s.scalarText(QStringLiteral("SELECT Name FROM Goods WHERE Code = 2")),
              QStringLiteral("second"));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods")), 2);
    EXPECT_EQ(messages().count(), 0);
}

SANDOGH_INSTANTIATE_POSTGRES_ONLY(KeyRaceTest);

}  // namespace
}  // namespace sandogh
