// Scoped transactions: nothing of a failed unit stays, an abandoned one is rolled back,
// a refused commit is reported and leaves the session usable. Runs on every backend.

#include <gtest/gtest.h>

#include <vector>

#include "TestTables.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "support/BackendTest.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

class TransactionTest : public test::BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        ASSERT_TRUE(test::createTables(s, {test::probeTable()}));
    }

    static bool insert(Session& s, int code) {
        return s.exec(
            QStringLiteral("INSERT INTO Goods (Code, Name) VALUES (:code, :name)"),
            {{QStringLiteral("code"), code}, {QStringLiteral("name"), QString::number(code)}},
            FailureLogging::QuietKeyConflicts);
    }

    // Rows as another cash desk sees them.
    qint64 committedRows() {
        auto other = testDatabase().openAnother();
        Session s = other->session();
        return s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods"), {}, -1);
    }
};

TEST_P(TransactionTest, AFailureMidwayLeavesNothing) {
    const struct {
        const char* name;
        QList<int> codes;
        bool explicitRollback;
    } cases[] = {
        {"third row repeats the first, scope left", {1, 2, 1, 3}, false},
        {"third row repeats the first, rolled back", {1, 2, 1, 3}, true},
        {"last row fails", {7, 8, 9, 9}, false},
        {"first row fails on a committed key", {100, 4}, false},
    };
    {
        Session s = db().session();
        ASSERT_TRUE(insert(s, 100));
    }
    for (const auto& c : cases) {
        Session s = db().session();
        {
            Transaction tx(s);
            ASSERT_TRUE(tx.isActive()) << c.name;
            bool failed = false;
            for (int code : c.codes) {
                if (!insert(s, code)) {
                    failed = true;
                    EXPECT_TRUE(s.lastError().isKeyConflict()) << c.name;
                    break;
                }
            }
            EXPECT_TRUE(failed) << c.name;
            if (c.explicitRollback) {
                EXPECT_TRUE(tx.rollback()) << c.name;
                EXPECT_FALSE(tx.isActive());
            }
        }
        EXPECT_FALSE(s.inTransaction()) << c.name;
        EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods")), 1) << c.name;
        // The session is fit for the next unit.
        Transaction next(s);
        ASSERT_TRUE(next.isActive()) << c.name;
        EXPECT_TRUE(next.rollback());
    }
    EXPECT_EQ(committedRows(), 1);
}

// A unit handed on (moved) is the new owner's alone: the one it came from neither commits
// nor rolls it back when it goes. Others see its rows once it commits, not before.
TEST_P(TransactionTest, AMovedUnitBelongsToItsNewOwner) {
    Session s = db().session();
    Transaction kept(s);
    ASSERT_TRUE(kept.commit());   // an ended unit, to take the next one over
    EXPECT_FALSE(kept.commit());  // nothing left to commit
    {
        Transaction first(s);
        ASSERT_TRUE(first.isActive());
        EXPECT_TRUE(s.inTransaction());
        ASSERT_TRUE(insert(s, 1));
        kept = std::move(first);
        EXPECT_FALSE(first.isActive());
        EXPECT_FALSE(first.commit());
    }
    ASSERT_TRUE(kept.isActive());
    ASSERT_TRUE(insert(s, 2));
    EXPECT_EQ(committedRows(), 0);  // not yet
    EXPECT_TRUE(kept.commit());
    EXPECT_FALSE(kept.isActive());
    EXPECT_FALSE(s.inTransaction());
    EXPECT_EQ(committedRows(), 2);
}

TEST_P(TransactionTest, ARefusedCommitIsReportedAndLeavesNothing) {
    Session s = db().session();
    ASSERT_TRUE(test::createTables(s, test::parentChildTables(), {test::childToParent()}));
    if (backend() == Backend::PostgreSQL) {
        // A foreign key checked at commit time.
        ASSERT_TRUE(
            s.exec(QStringLiteral("ALTER TABLE Child ALTER CONSTRAINT FK_Child_Parent "
                                  "DEFERRABLE INITIALLY DEFERRED")));
    }
    messages().clear();
    {
        Transaction tx(s, FailureLogging::Quiet);
        if (backend() == Backend::SQLite) {
            ASSERT_TRUE(s.exec(QStringLiteral("PRAGMA defer_foreign_keys = ON")));
        }
        ASSERT_TRUE(insert(s, 1));
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Child (Id, ParentId) VALUES (1, 42)")));
        EXPECT_FALSE(tx.commit());
        EXPECT_EQ(tx.error().kind, DbErrorKind::ForeignKey) << tx.error().text().toStdString();
        EXPECT_FALSE(tx.isActive());
    }
    EXPECT_FALSE(s.inTransaction());
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Goods")), 0);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Child")), 0);
    EXPECT_EQ(messages().count(), 0);
    Transaction next(s);
    ASSERT_TRUE(next.isActive());
    ASSERT_TRUE(insert(s, 2));
    EXPECT_TRUE(next.commit());
    EXPECT_EQ(committedRows(), 1);
}

TEST_P(TransactionTest, ASessionReleasedInsideATransactionRollsItBack) {
    Session s = db().session();
    Transaction tx(s);
    ASSERT_TRUE(insert(s, 1));
    s.release();
    EXPECT_FALSE(s.isValid());
    EXPECT_FALSE(tx.commit());
    EXPECT_EQ(committedRows(), 0);
    // The connection went back clean: the next routine starts outside any transaction.
    Session again = db().session();
    ASSERT_TRUE(insert(again, 2));
    EXPECT_EQ(committedRows(), 1);
}

SANDOGH_INSTANTIATE_BACKENDS(TransactionTest);

}  // namespace
}  // namespace sandogh
