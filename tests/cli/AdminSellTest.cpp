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
