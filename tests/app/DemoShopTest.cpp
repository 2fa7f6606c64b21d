// The demo shop: everything a first look at the program needs, its purchase history
// included, added once; a second seeding adds nothing, and the demo users can log in.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

#include "app/DemoGoods.h"
#include "app/DemoShop.h"
#include "app/LoginService.h"
#include "data/ShopFixture.h"
#include "sales/SaleVoucher.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

const char* const kTables[] = {
    "Company",          "Users",     "Stations",       "tblWarehouse", "UserWarehouse",
    "BarcodeWarehouse", "tblShift",  "tblPaymentType", "DiscountType", "Overhead",
    "ReturnCause",      "Types",     "Goods",          "Stock",        "tblCustomerGroup",
    "Display",          "Sentences", "Whs_QTYDocH"};

class DemoShopTest : public test::ShopBackendTest {
protected:
    QMap<QString, qint64> rowCounts() {
        QMap<QString, qint64> counts;
        for (const char* table : kTables) {
            counts.insert(table, rows(QString::fromLatin1(table)));
        }
        return counts;
    }
};

TEST_P(DemoShopTest, SeedingTwiceAddsEverythingOnce) {
    const DemoShop::Report first = DemoShop(db()).seed();
    ASSERT_TRUE(first.ok) << first.error.toStdString();
    EXPECT_EQ(first.createdUsers.size(), DemoShop::users().size());
    const QMap<QString, qint64> after = rowCounts();
    for (const char* table : kTables) {
        EXPECT_GT(after.value(table), 0) << table;
        EXPECT_EQ(first.added.value(table), after.value(table)) << table;
    }

    const DemoShop::Report second = DemoShop(db()).seed();
    ASSERT_TRUE(second.ok) << second.error.toStdString();
    EXPECT_EQ(second.totalAdded(), 0);
    EXPECT_TRUE(second.createdUsers.isEmpty());
    EXPECT_EQ(rowCounts(), after);
}

TEST_P(DemoShopTest, TheShopIsReadyForTheCashDesk) {
    ASSERT_TRUE(DemoShop(db()).seed().ok);
    const qint64 goods = count(QStringLiteral("SELECT COUNT(*) FROM Goods"));
    EXPECT_GE(goods, 200);
    EXPECT_EQ(goods, static_cast<qint64>(DemoGoods::articles().size()));
    const qint64 purchases =
        count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE TransType = 1"));
    EXPECT_GT(purchases, 0);
    // Some are sold by weight, and those are marked so twice over.
    const qint64 weighed = count(QStringLiteral("SELECT COUNT(*) FROM Goods WHERE GType = 1"));
    EXPECT_GT(weighed, 0);
    EXPECT_LT(weighed, goods);
    EXPECT_GT(count(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = 11")), 0);
    EXPECT_GT(count(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = 10 AND "
                                   "CstGrpCode IN (SELECT Code FROM tblCustomerGroup)")),
              0);
    const struct {
        const char* sql;
        qint64 rows;
    } counts[] = {
        // Suppliers with their accounts; purchases, each with its voucher; stock is what the
        // lines brought in.
        {"SELECT COUNT(*) FROM Types T LEFT JOIN tblAccountingGroup A ON A.ID = "
         "T.AccountingGroupID WHERE T.TypeNo = 11 AND A.ID IS NULL",
         0},
        {"SELECT COUNT(*) FROM Whs_QTYDocH H INNER JOIN tblDocumentH V ON V.ID = H.DocumentHID",
         purchases},
        {"SELECT COUNT(*) FROM Stock S WHERE S.Stock <> (SELECT COALESCE(SUM(D.Qty), 0) FROM "
         "Whs_QTYDocD D WHERE D.EAN_Code = S.Barcode)",
         0},
        // Every article has its stock row, a unit of the unit list, a cost and a known tax.
        {"SELECT COUNT(*) FROM Goods G INNER JOIN Stock S ON S.Barcode = G.EAN_Code", goods},
        {"SELECT COUNT(*) FROM Goods G INNER JOIN Types T ON T.Counter = G.Unit WHERE T.TypeNo = "
         "61",
         goods},
        {"SELECT COUNT(*) FROM Goods WHERE GType = 1 AND Type = 1", weighed},
        {"SELECT COUNT(*) FROM Goods WHERE TaxValue <> 0 AND TaxValue <> 9", 0},
        {"SELECT COUNT(*) FROM Goods WHERE Cost <= 0", 0},
        {"SELECT COUNT(*) FROM tblShift WHERE LastActiveShift = 1", 1},
        {"SELECT COUNT(*) FROM DiscountType WHERE Id = 1", 1},
        // The payment split offers the cash box and the banks, each bank with its terminal.
        {"SELECT COUNT(*) FROM tblAccountingGroup WHERE IsOpen = 1 AND (ParentCode = 9 OR Code = "
         "12)",
         3},
        {"SELECT COUNT(*) FROM tblBanks B INNER JOIN tblAccountingGroup A ON A.ID = "
         "B.AccountingGroupId WHERE A.ParentCode = 9 AND B.PosId > 0",
         2},
    };
    for (const auto& c : counts) {
        EXPECT_EQ(count(QString::fromLatin1(c.sql)), c.rows) << c.sql;
    }
    EXPECT_EQ(text(QStringLiteral("SELECT Company_Name FROM Company")), DemoShop::shopName());
    EXPECT_EQ(text(QStringLiteral("SELECT Display FROM Display")),
              QString::fromLatin1(DemoShop::kGreeting));

    // The sale's voucher finds its three accounts.
    Session s = db().session();
    const SaleVoucher::Accounts accounts = SaleVoucher::accounts(s, 0);
    EXPECT_GT(accounts.cashBox, 0);
    EXPECT_GT(accounts.salesIncome, 0);
    EXPECT_GT(accounts.salesReturn, 0);

    for (const DemoShop::DemoUser& user : DemoShop::users()) {
        const LoginService::Result r = LoginService(db()).login(user.userName, user.password);
        ASSERT_TRUE(r.accepted()) << user.userName.toStdString();
        EXPECT_EQ(r.user.level, user.level);
        EXPECT_FALSE(r.passwordRehashed);
    }
}

SANDOGH_INSTANTIATE_BACKENDS(DemoShopTest);

TEST(DemoGoodsTest, BarcodesAreUniqueEan13WithTheirCheckDigit) {
    // Check digits of published EAN-13 codes.
    EXPECT_EQ(DemoGoods::ean13CheckDigit(QStringLiteral("400638133393")), 1);
    EXPECT_EQ(DemoGoods::ean13CheckDigit(QStringLiteral("590123412345")), 7);
    EXPECT_EQ(DemoGoods::ean13CheckDigit(QStringLiteral("978020137962")), 4);

    const QList<DemoGoods::Article> articles = DemoGoods::articles();
    QSet<QString> barcodes;
    QSet<QString> codes;
    QSet<QString> names;
    static const QRegularExpression thirteenDigits(QStringLiteral("^[0-9]{13}$"));
    for (const DemoGoods::Article& a : articles) {
        EXPECT_TRUE(thirteenDigits.match(a.barcode).hasMatch()) << a.barcode.toStdString();
        EXPECT_EQ(a.barcode.right(1).toInt(), DemoGoods::ean13CheckDigit(a.barcode.left(12)));
        EXPECT_EQ(a.unit == DemoGoods::Unit::Kilogram, a.weighed) << a.name.toStdString();
        barcodes.insert(a.barcode);
        codes.insert(a.specCode);
        names.insert(a.name);
    }
    EXPECT_EQ(barcodes.size(), articles.size());
    EXPECT_EQ(codes.size(), articles.size());
    EXPECT_EQ(names.size(), articles.size());
}

}  // namespace
}  // namespace sandogh
