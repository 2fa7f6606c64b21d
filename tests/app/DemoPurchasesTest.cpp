// The demo shop's purchases: suppliers with accounts and a purchase history whose lines the
// stock follows, added once.

#include <gtest/gtest.h>

#include "app/DemoShop.h"
#include "data/ShopFixture.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

class DemoPurchasesTest : public test::ShopBackendTest {};

TEST_P(DemoPurchasesTest, SuppliersHaveAccountsAndTheShopHasBoughtOnce) {
    const DemoShop::Report first = DemoShop(db()).seed();
    ASSERT_TRUE(first.ok) << first.error.toStdString();
    EXPECT_GT(count(QStringLiteral("SELECT COUNT(*) FROM Types WHERE TypeNo = 11")), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Types T LEFT JOIN tblAccountingGroup A "
                                   "ON A.ID = T.AccountingGroupID WHERE T.TypeNo = 11 AND "
                                   "A.ID IS NULL")),
              0);
    const qint64 purchases =
        count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE TransType = 1"));
    EXPECT_GT(purchases, 0);
    EXPECT_EQ(first.added.value(QStringLiteral("Whs_QTYDocH")), purchases);
    // Every purchase has its voucher, and stock is what the lines brought in.
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH H INNER JOIN tblDocumentH V "
                                   "ON V.ID = H.DocumentHID")),
              purchases);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Stock S WHERE S.Stock <> (SELECT "
                                   "COALESCE(SUM(D.Qty), 0) FROM Whs_QTYDocD D WHERE "
                                   "D.EAN_Code = S.Barcode)")),
              0);

    const DemoShop::Report second = DemoShop(db()).seed();
    ASSERT_TRUE(second.ok) << second.error.toStdString();
    EXPECT_EQ(second.totalAdded(), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), purchases);
}

SANDOGH_INSTANTIATE_BACKENDS(DemoPurchasesTest);

}  // namespace
}  // namespace sandogh
