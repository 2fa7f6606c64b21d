// sandogh-admin sell: a sale rung up through the sale session on the database of the
// program folder, printed by --dry-run; refusals end with the message and exit code 1.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "AdminShopTest.h"
#include "data/Database.h"

namespace sandogh {
namespace {

const QString kQuantityFirst =
    QStringLiteral("لطفاً ابتدا بارکد مورد نظر خود را وارد کرده سپس تعداد آن را مشخص نماييد");

class AdminSellTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral(
            "INSERT INTO Goods (EAN_Code, Spec_Code, Name, Cost, Cost2, TaxValue) VALUES "
            "('6261234567890', '1717', 'Tea', 10000, 11000, 9), "
            "('1001', NULL, 'Bread', 2500, 2600, 0), ('2002', NULL, 'Free', 0, 0, 0)")));
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO ItemLock (Ean_Code, Qty, IsLock) "
                                  "VALUES ('1001', 4, 1)")));
    }
    AdminProcess::Result sell(const QStringList& words) {
        return runCommand(QStringLiteral("sell"), words);
    }
    void setting(const char* section, const char* key, const char* value) {
        QFile ini(QDir(settings.path()).filePath(QStringLiteral("Retail.ini")));
        ASSERT_TRUE(ini.open(QIODevice::Append));
        ini.write(QByteArray("[") + section + "]\n" + key + "=" + value + "\n");
    }
};

TEST_P(AdminSellTest, ADryRunPrintsTheLinesAndTheTotal) {
    const AdminProcess::Result r =
        sell({QStringLiteral("--dry-run"), QStringLiteral("6261234567890"), QStringLiteral("3"),
              QStringLiteral("1001"), QStringLiteral("10'01")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("6261234567890\t3\t10000\t9\t32700\n"
                                          "1001\t2\t2500\t0\t5000\n"
                                          "37700\n"));
}

TEST_P(AdminSellTest, TheSecondSalesTypeSellsAtCost2) {
    const AdminProcess::Result r = sell({QStringLiteral("--sales-type"), QStringLiteral("2"),
                                         QStringLiteral("--dry-run"), QStringLiteral("1717")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("6261234567890\t1\t11000\t9\t11990\n11990\n"));
}

TEST_P(AdminSellTest, TheSaleDateChoosesThePriceChangeDocument) {
    Session s = db().session();
    ASSERT_TRUE(
        s.exec(QStringLiteral("INSERT INTO DiscountH (Code, FDate, SDate) VALUES "
                              "(1, '1404/02/01', '1404/02/31')")));
    ASSERT_TRUE(
        s.exec(QStringLiteral("INSERT INTO DiscountD (Code, Ean_Code, NewCost) VALUES "
                              "(1, '1001', 2000)")));
    const AdminProcess::Result r = sell({QStringLiteral("--date"), QStringLiteral("1404/02/10"),
                                         QStringLiteral("--dry-run"), QStringLiteral("1001")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("1001\t1\t2000\t0\t2000\n2000\n"));
}

TEST_P(AdminSellTest, AQuantityBeforeAnyBarcodeIsRefused) {
    const AdminProcess::Result r = sell({QStringLiteral("--dry-run"), QStringLiteral("12")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(QString::fromUtf8(r.err).contains(kQuantityFirst)) << r.err.toStdString();
    EXPECT_TRUE(r.out.isEmpty());
}

TEST_P(AdminSellTest, LockedGoodsAreRefusedWithBothQuantities) {
    setting("SaleSetting", "ItemLock", "1");
    const AdminProcess::Result r = sell({QStringLiteral("--dry-run"), QStringLiteral("1001")});
    EXPECT_EQ(r.exitCode, 1);
    const QString err = QString::fromUtf8(r.err);
    EXPECT_TRUE(err.contains(QStringLiteral("تعداد کالاي قفل شده: 4"))) << r.err.toStdString();
    EXPECT_TRUE(err.contains(QStringLiteral(" تعداد قابل فروش: -4"))) << r.err.toStdString();
}

TEST_P(AdminSellTest, AnUnknownCustomerAnUnpricedArticleAndUnknownGoodsFail) {
    const AdminProcess::Result customer =
        sell({QStringLiteral("--customer"), QStringLiteral("99"), QStringLiteral("--dry-run"),
              QStringLiteral("1001")});
    EXPECT_EQ(customer.exitCode, 1);
    EXPECT_TRUE(
        QString::fromUtf8(customer.err).contains(QStringLiteral("مشتري به درستي انتخاب نشده است")));
    EXPECT_EQ(sell({QStringLiteral("--user"), QStringLiteral("nobody"), QStringLiteral("--dry-run"),
                    QStringLiteral("1001")})
                  .exitCode,
              1);
    // The price prompt has no one to answer it.
    EXPECT_EQ(sell({QStringLiteral("--dry-run"), QStringLiteral("2002")}).exitCode, 1);
    EXPECT_EQ(sell({QStringLiteral("--dry-run"), QStringLiteral("9999")}).exitCode, 1);
}

TEST_P(AdminSellTest, WithoutEntriesOrWithABadSalesTypeItIsAUsageError) {
    EXPECT_EQ(sell({}).exitCode, 2);
    EXPECT_EQ(sell({QStringLiteral("--dry-run")}).exitCode, 2);
    EXPECT_EQ(sell({QStringLiteral("--dry-run"), QStringLiteral("--sales-type"),
                    QStringLiteral("3"), QStringLiteral("1001")})
                  .exitCode,
              2);
}

SANDOGH_INSTANTIATE_BACKENDS(AdminSellTest);

}  // namespace
}  // namespace sandogh
