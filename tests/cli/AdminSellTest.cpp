// sandogh-admin sell: a dry run prints the lines and the total; a saved sale prints its key,
// number and total; its options reach the document; bad words are usage errors.

#include <gtest/gtest.h>

#include "AdminShopTest.h"

namespace sandogh {
namespace {

class AdminSellTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        execAll({
            "INSERT INTO Goods (EAN_Code, Spec_Code, Name, Cost, Cost2, TaxValue) VALUES "
            "('6261234567890', '1717', 'Tea', 10000, 11000, 9), "
            "('1001', NULL, 'Bread', 2500, 2600, 0), ('3003', NULL, 'Oil', 100000, 0, 0)",
            "INSERT INTO Stations (ID, Station_Name) VALUES (1, 'Desk 1')",
            "INSERT INTO Users (Name, UserName, Active) VALUES ('Cashier', 'cashier', 1)",
            "INSERT INTO DiscountType (Id, Name, IsImpactGift) VALUES (1, 'Off', 0)",
            "INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'Cash'), (2, 'Card')",
        });
    }
    AdminProcess::Result sell(const QStringList& words) {
        return runCommand(QStringLiteral("sell"), words);
    }
    AdminProcess::Result save(const char* line) {
        return sell(words("--user cashier --station 1") + words(line));
    }
};

TEST_P(AdminSellTest, ADryRunPrintsTheLinesAndTheTotal) {
    const AdminProcess::Result r = sell(words("--dry-run 6261234567890 3 1001 10'01"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("6261234567890\t3\t10000\t9\t32700\n"
                                          "1001\t2\t2500\t0\t5000\n"
                                          "37700\n"));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 0);
}

TEST_P(AdminSellTest, SavingPrintsTheKeyNumberAndTotal) {
    AdminProcess::Result r = save("--discount 10000 --discount-type 1 3003");
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    const qint64 code = count(QStringLiteral("SELECT MAX(Code) FROM Whs_QTYDocH"));
    EXPECT_EQ(r.outText(), QStringLiteral("Code=%1 DocNo=1 DocSum=100000\n").arg(code));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE ReceivedPrice = 90000 "
                                   "AND Discount = 10000 AND PayType = 1 AND StationID = 1")),
              1);

    r = save("--received 2000 --pay-type 2 --repeat 2 1001");
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText().count(QStringLiteral("DocSum=2500\n")), 2);
    EXPECT_TRUE(r.outText().contains(QStringLiteral(" DocNo=3 ")));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE ReceivedPrice = 2000 "
                                   "AND PayType = 2")),
              2);
}

TEST_P(AdminSellTest, WithoutEntriesOrWithABadSalesTypeItIsAUsageError) {
    for (const char* line : {"", "--dry-run", "--dry-run --sales-type 3 1001"}) {
        EXPECT_EQ(sell(words(line)).exitCode, 2) << line;
    }
}

SANDOGH_INSTANTIATE_BACKENDS(AdminSellTest);

}  // namespace
}  // namespace sandogh
