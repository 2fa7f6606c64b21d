// Purchase prices of an article: last, quantity-weighted average and plain average, the
// profit of a sale line and the last purchase terms; ordinary purchases only.

#include "ShopFixture.h"
#include "data/procedures/StockDocumentProcedures.h"
#include "data/repositories/PurchasePrices.h"

namespace sandogh {
namespace {

using namespace procedures;

const QString kMilk = QStringLiteral("6261234567890");

class PurchasePricesTest : public test::ShopFixture {
protected:
    PurchasePrices prices() { return PurchasePrices(db()); }
};

TEST_P(PurchasePricesTest, PricesComeFromOrdinaryPurchasesOnly) {
    addGoods(kMilk, 50000);
    addDocument(kPurchase, QStringLiteral("1"), {{kMilk, 10, 30000, 300000}});
    addDocument(kPurchase, QStringLiteral("2"), {{kMilk, 5, 36000, 180000}});
    // None of these counts: a sale, a purchase return, and a purchase paper with a DocType.
    addDocument(kSale, QStringLiteral("1"), {{kMilk, 1, 50000, 50000}});
    addDocument(kPurchaseReturn, QStringLiteral("1"), {{kMilk, 2, 99000, 198000}});
    addDocument(kPurchase, QStringLiteral("3"), {{kMilk, 100, 1000, 100000}},
                QStringLiteral("1404/01/06"), 1);
    PurchasePrices p = prices();
    EXPECT_DOUBLE_EQ(p.lastPurchasePrice(kMilk), 36000);
    EXPECT_DOUBLE_EQ(p.averagePurchasePrice(kMilk), 480000.0 / 15.0);
    EXPECT_DOUBLE_EQ(p.averageFee(kMilk), 33000);
    Session s = session();
    EXPECT_DOUBLE_EQ(procedures::sp_tblWhs_QTYDocD_GetLastBuyPrice(s, kMilk), 36000);
    // An article never bought has no prices, and no profit whatever its sale price.
    const QString never = QStringLiteral("6260000000001");
    addGoods(never, 50000);
    EXPECT_EQ(p.lastPurchasePrice(never), 0);
    EXPECT_EQ(p.averagePurchasePrice(never), 0);
    EXPECT_EQ(p.averageFee(never), 0);
    EXPECT_EQ(p.lineProfit(never), 0);
    const PurchasePrices::Terms t = p.lastPurchaseTerms(never);
    EXPECT_EQ(t.mFee, 0);
    EXPECT_EQ(t.discount, 0);
    EXPECT_EQ(t.taxValue, 0);
    EXPECT_EQ(messages().count(), 0);
}

// A zero total quantity divides by one; whole amounts are not divided as integers.
TEST_P(PurchasePricesTest, AveragesDivideAsDecimalsAndNeverByZero) {
    const QString tea = QStringLiteral("T");
    addDocument(kPurchase, QStringLiteral("1"), {{kMilk, 3, 100, 300}, {tea, 3, 333, 1000}});
    addDocument(kPurchase, QStringLiteral("2"), {{kMilk, -3, 100, 250}, {tea, 1, 334, 334}});
    EXPECT_DOUBLE_EQ(prices().averagePurchasePrice(kMilk), 550);
    EXPECT_DOUBLE_EQ(prices().averagePurchasePrice(tea), 333.5);
    EXPECT_DOUBLE_EQ(prices().averageFee(tea), 333.5);
}

TEST_P(PurchasePricesTest, TheNewestDocumentGivesTheLastPrice) {
    addGoods(kMilk);
    const qint64 older = addDocument(kPurchase, QStringLiteral("1"), {{kMilk, 1, 100, 100}});
    addDocument(kPurchase, QStringLiteral("2"), {{kMilk, 1, 200, 200}, {kMilk, 1, 210, 210}});
    EXPECT_DOUBLE_EQ(prices().lastPurchasePrice(kMilk), 210);
    // A line added later to the older document is newer by ID but not by document.
    Session s = session();
    procedures::StockDocumentLine late;
    late.eanCode = kMilk;
    late.qty = 1;
    late.fee = 150;
    late.mFee = 160;
    ASSERT_GT(procedures::StockDocumentWriter::insertLine(s, older, late), 0);
    EXPECT_DOUBLE_EQ(prices().lastPurchasePrice(kMilk), 210);
    EXPECT_DOUBLE_EQ(prices().lastPurchaseTerms(kMilk).mFee, 160);
}

TEST_P(PurchasePricesTest, LineProfitIsTheSalePriceLessTheLatestNetPurchasePrice) {
    struct Case {
        double cost;
        double mFee;
        double discount;
        double profit;
    };
    const Case cases[] = {
        {50000, 40000, 10, 14000},  // 40000 less 10% is 36000
        {50000, 40000, 0, 10000},
        {30000, 40000, 0, -10000},
        {1000, 1005, 10, 1000 - (1005 - 100.5)},
        {0, 500, 0, -500},
    };
    int n = 0;
    for (const Case& c : cases) {
        const QString barcode = QStringLiteral("P%1").arg(++n);
        addGoods(barcode, c.cost);
        Line line{barcode, 1, 0, 0, c.mFee, c.discount, 9};
        addDocument(kPurchase, QString::number(n), {line});
        EXPECT_DOUBLE_EQ(prices().lineProfit(barcode), c.profit) << n;
        const PurchasePrices::Terms t = prices().lastPurchaseTerms(barcode);
        EXPECT_DOUBLE_EQ(t.mFee, c.mFee);
        EXPECT_DOUBLE_EQ(t.discount, c.discount);
        EXPECT_DOUBLE_EQ(t.taxValue, 9);
    }
}

SANDOGH_INSTANTIATE_BACKENDS(PurchasePricesTest);

}  // namespace
}  // namespace sandogh
