// Saving beside other cash desks: the number on the screen is a proposal and the save
// writes the next free one (from 1 each day when the numbers are daily); a save sends
// the same few statements whatever its length.

#include <gtest/gtest.h>

#include "SavedSalesTest.h"
#include "data/RoundTrips.h"

namespace sandogh::test {
namespace {

class SaleSaverDesksTest : public SavedSalesTest {
protected:
    void SetUpShop() override {
        SavedSalesTest::SetUpShop();
        for (int i = 0; i < 20; ++i) {
            addGoods({QStringLiteral("50%1").arg(i), 1000, 0, QStringLiteral("Article")});
        }
    }
    SaleSettlement settlement(const QString& docNo = {}) {
        SaleSettlement s;
        s.payType = 1;
        s.docNo = docNo;
        return s;
    }
    void ringUp(int lines) {
        sale().newSale();
        for (int i = 0; i < lines; ++i) {
            ASSERT_TRUE(sale().addGoods(QStringLiteral("50%1").arg(i)));
        }
    }
};

TEST_P(SaleSaverDesksTest, TheNumberWrittenIsTakenAtTheSaveNotFromTheScreen) {
    ringUp(1);
    const QString proposal = saver->nextDocNo(sale());
    ASSERT_EQ(proposal, QStringLiteral("1"));
    // Another desk saves first with the same proposal on its screen.
    SaleSettlement first = settlement(proposal);
    ASSERT_TRUE(SaleSaver(db(), settings(), messages(), clock()).save(sale(), first).saved);
    EXPECT_EQ(first.docNo, QStringLiteral("1"));

    SaleSettlement mine = settlement(proposal);
    const SaleSaveResult r = saver->save(sale(), mine);
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(r.docNo, QStringLiteral("2"));
    EXPECT_EQ(mine.docNo, QStringLiteral("2"));
    EXPECT_EQ(saver->previousInvoice(1).docNo, QStringLiteral("2"));
    EXPECT_EQ(text(QStringLiteral("SELECT Serial FROM tblDocumentH WHERE ID = :id"),
                   {{QStringLiteral(":id"), r.voucherId}}),
              QStringLiteral("2"));

    // A typed number is written as typed, and refused once the day has it.
    SaleSettlement typed = settlement(QStringLiteral("2"));
    typed.docNoTyped = true;
    EXPECT_FALSE(saver->save(sale(), typed).saved);
    EXPECT_EQ(messages().countOf(SaleSaveTexts::docNoTaken()), 1);
    typed.docNo = QStringLiteral("40");
    EXPECT_EQ(saver->save(sale(), typed).docNo, QStringLiteral("40"));

    // With daily numbers the next day starts again at 1.
    setFlag("Tools", "IsResetFactorNo", true);
    clock().set(QDateTime(QDate(2025, 3, 22), QTime(10, 0)));
    SaleSettlement nextDay = settlement();
    EXPECT_EQ(saver->save(sale(), nextDay).docNo, QStringLiteral("1"));
}

TEST_P(SaleSaverDesksTest, ASaveSendsAsManyStatementsForTwentyLinesAsForOne) {
    const auto statementsOfSave = [&](int lines) {
        ringUp(lines);
        SaleSettlement warm = settlement();
        EXPECT_TRUE(saver->save(sale(), warm).saved);  // prepares its statements
        SaleSettlement each = settlement();
        const quint64 before = RoundTrips::count();
        EXPECT_TRUE(saver->save(sale(), each).saved);
        return RoundTrips::count() - before;
    };
    const quint64 one = statementsOfSave(1);
    const quint64 twenty = statementsOfSave(20);
    EXPECT_EQ(twenty, one);
    EXPECT_LE(twenty, 20u);
    RecordProperty("statements_per_save", static_cast<int>(twenty));
    std::printf("statements of one save: %llu\n", static_cast<unsigned long long>(twenty));
    EXPECT_EQ(messages().count(), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(SaleSaverDesksTest);

}  // namespace
}  // namespace sandogh::test
