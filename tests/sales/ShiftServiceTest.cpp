// The active shift and switching between shifts.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "sales/ShiftService.h"

namespace sandogh::test {
namespace {

class ShiftServiceTest : public SaleShopTest {
protected:
    // Shifts 1..3 with the given ones active.
    void addShifts(const QList<int>& activeCodes) {
        for (int code = 1; code <= 3; ++code) {
            insert(
                "tblShift (Code, Name, LastActiveShift)",
                {code, QStringLiteral("Shift %1").arg(code), activeCodes.contains(code) ? 1 : 0});
        }
    }
    QList<int> activeCodes() {
        Session s = db().session();
        SqlQuery q(
            s, QStringLiteral("SELECT Code FROM tblShift WHERE LastActiveShift = 1 ORDER BY Code"));
        EXPECT_TRUE(q.exec());
        QList<int> codes;
        while (q.next()) {
            codes << q.integer(0);
        }
        return codes;
    }
};

TEST_P(ShiftServiceTest, SwitchingLeavesExactlyTheChosenShiftActiveAndAnUnknownOneNothing) {
    struct Case {
        QList<int> activeBefore;
        int chosen;  // 9: no such shift
    };
    const QList<Case> cases = {
        {{1}, 2},        // an ordinary change
        {{2}, 2},        // to the shift that is already active
        {{}, 3},         // a shop where none was active
        {{1, 2, 3}, 2},  // several active, the chosen one among them
        {{1, 3}, 2},     // several active, the chosen one not
        {{1}, 9},       {{1, 3}, 9}, {{}, 9},
    };
    ShiftService shifts(db());
    for (const Case& c : cases) {
        exec(QStringLiteral("DELETE FROM tblShift"));
        addShifts(c.activeBefore);
        SCOPED_TRACE(testing::Message()
                     << "before " << c.activeBefore.size() << " active, chosen " << c.chosen);
        const bool known = c.chosen != 9;
        EXPECT_EQ(shifts.switchTo(c.chosen), known);
        EXPECT_EQ(activeCodes(), known ? QList<int>{c.chosen} : c.activeBefore);
        if (known) {
            const std::optional<Shift> now = shifts.active();
            ASSERT_TRUE(now.has_value());
            EXPECT_EQ(now->code, c.chosen);
            EXPECT_EQ(now->name, QStringLiteral("Shift %1").arg(c.chosen));
        }
    }
}

TEST_P(ShiftServiceTest, ListsEveryShiftAndNoActiveOneWhenNoneIs) {
    ShiftService shifts(db());
    EXPECT_TRUE(shifts.all().isEmpty());
    EXPECT_FALSE(shifts.active().has_value());
    addShifts({});
    const QList<Shift> all = shifts.all();
    ASSERT_EQ(all.size(), 3);
    QList<int> codes;
    for (const Shift& s : all) {
        codes << s.code;
    }
    std::sort(codes.begin(), codes.end());
    EXPECT_EQ(codes, (QList<int>{1, 2, 3}));
    EXPECT_FALSE(shifts.active().has_value());
}

TEST_P(ShiftServiceTest, InsideACallersTransactionTheSwitchFollowsItsOutcome) {
    addShifts({1});
    for (const bool commit : {false, true}) {
        Session session = db().session();
        Transaction tx(session);
        ASSERT_TRUE(tx.isActive());
        ASSERT_TRUE(ShiftService::switchTo(session, 2));
        // The caller's own reads see the new shift before its commit.
        ASSERT_TRUE(ShiftService::active(session).has_value());
        EXPECT_EQ(ShiftService::active(session)->code, 2);
        if (commit) {
            ASSERT_TRUE(tx.commit());
        } else {
            ASSERT_TRUE(tx.rollback());
        }
        session.release();
        EXPECT_EQ(activeCodes(), QList<int>{commit ? 2 : 1});
    }
}

TEST_P(ShiftServiceTest, AFailedStatementKeepsTheActiveShift) {
    addShifts({1});
    exec(QStringLiteral("ALTER TABLE tblShift RENAME TO tblShiftAway"));
    ShiftService shifts(db());
    EXPECT_FALSE(shifts.switchTo(2));
    EXPECT_FALSE(shifts.active().has_value());
    EXPECT_TRUE(shifts.all().isEmpty());
    exec(QStringLiteral("ALTER TABLE tblShiftAway RENAME TO tblShift"));
    EXPECT_EQ(activeCodes(), QList<int>{1});
}

// A failed clearing of the active shift fails the switch and leaves the active shift as it was.
TEST_P(ShiftServiceTest, AFailedClearingIsAFailedSwitch) {
    addShifts({1});
    if (backend() == Backend::PostgreSQL) {
        exec(
            QStringLiteral("CREATE FUNCTION refuse_clear() RETURNS trigger AS $$ BEGIN RAISE "
                           "EXCEPTION 'refused'; END $$ LANGUAGE plpgsql"));
        exec(
            QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE ON tblShift FOR EACH ROW WHEN "
                           "(NEW.LastActiveShift = 0) EXECUTE FUNCTION refuse_clear()"));
    } else {
        exec(
            QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE ON tblShift WHEN "
                           "NEW.LastActiveShift = 0 BEGIN SELECT RAISE(ABORT, 'refused'); END"));
    }
    EXPECT_FALSE(ShiftService(db()).switchTo(2));
    EXPECT_EQ(activeCodes(), QList<int>{1});
}

SANDOGH_INSTANTIATE_BACKENDS(ShiftServiceTest);

}  // namespace
}  // namespace sandogh::test
