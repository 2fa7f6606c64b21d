// The unit price of a new line: price-change documents, the two sales types, the price
// prompt, the price and seller choosers, and locked goods.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/SaleChecks.h"
#include "sales/SaleTexts.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

const QString kTea = QStringLiteral("6261234567890");

class SalePricing : public SaleShopTest {
protected:
    void SetUpShop() override { addGoods({kTea, 10000, 9, QStringLiteral(" Tea "), 12000}); }
    double priceOfTea() {
        sale().newSale();
        sale().enterText(kTea);
        return sale().lines().isEmpty() ? -1 : sale().lines().at(0).unitPrice;
    }
};

TEST_P(SalePricing, TheFirstSalesTypeReadsCostWithNameTaxAndKind) {
    sale().enterText(kTea);
    ASSERT_EQ(sale().lines().size(), 1);
    const SaleLine& l = sale().lines().at(0);
    EXPECT_EQ(l.name, QStringLiteral("Tea"));
    EXPECT_DOUBLE_EQ(l.unitPrice, 10000);
    EXPECT_DOUBLE_EQ(l.taxPercent, 9);
    EXPECT_EQ(l.seller, QStringLiteral("cashier"));
    EXPECT_EQ(l.sellerId, 7);
    EXPECT_EQ(l.stockFlag, 0);
}

TEST_P(SalePricing, APriceChangeDocumentThatEndedYesterdayIsIgnored) {
    // The clock stands at 1404/01/01.
    addPriceChange(1, QStringLiteral("1403/12/01"), QStringLiteral("1403/12/29"), kTea, 8000);
    EXPECT_DOUBLE_EQ(priceOfTea(), 10000);
}

TEST_P(SalePricing, OfTwoPriceChangeDocumentsInForceTheLargerCodeWins) {
    addPriceChange(5, QStringLiteral("1403/12/01"), QStringLiteral("1404/01/10"), kTea, 9000);
    addPriceChange(3, QStringLiteral("1404/01/01"), QStringLiteral("1404/01/01"), kTea, 8500);
    EXPECT_DOUBLE_EQ(priceOfTea(), 9000);
    EXPECT_DOUBLE_EQ(sale().lines().at(0).taxPercent, 9);
    EXPECT_DOUBLE_EQ(sale().total(), 9810);
}

TEST_P(SalePricing, ThePriceChangeFollowsTheSaleDate) {
    addPriceChange(2, QStringLiteral("1404/02/01"), QStringLiteral("1404/02/31"), kTea, 7000);
    EXPECT_DOUBLE_EQ(priceOfTea(), 10000);
    sale().setSaleDate(QStringLiteral("1404/02/15"));
    EXPECT_DOUBLE_EQ(priceOfTea(), 7000);
}

TEST_P(SalePricing, TheSecondSalesTypeReadsCost2AndIgnoresPriceChanges) {
    addPriceChange(1, QStringLiteral("1404/01/01"), QStringLiteral("1404/12/29"), kTea, 8000);
    ASSERT_TRUE(sale().setSalesType(SaleSession::kSecondSalesType));
    sale().enterText(kTea);
    ASSERT_EQ(sale().lines().size(), 1);
    EXPECT_DOUBLE_EQ(sale().lines().at(0).unitPrice, 12000);
}

TEST_P(SalePricing, TheSalesTypeChangesOnlyWhileTheGridIsEmpty) {
    sale().enterText(kTea);
    EXPECT_FALSE(sale().setSalesType(SaleSession::kSecondSalesType));
    EXPECT_EQ(sale().salesType(), SaleSession::kFirstSalesType);
    EXPECT_EQ(messages().countOf(SaleTexts::salesTypeOnlyWhileEmpty()), 1);
    sale().removeLine(0);
    EXPECT_TRUE(sale().setSalesType(SaleSession::kSecondSalesType));
}

TEST_P(SalePricing, GoodsPickedBeforeASalesTypeAreRefused) {
    ASSERT_TRUE(sale().setSalesType(SaleSession::kNoSalesType));
    const EntryOutcome o = sale().enterText(kTea);
    EXPECT_TRUE(o.refused);
    EXPECT_TRUE(sale().isEmpty());
    EXPECT_EQ(messages().countOf(SaleTexts::salesTypeFirst()), 1);
}

TEST_P(SalePricing, APriceOfZeroIsAskedForAndACancelAddsNothing) {
    addGoods({QStringLiteral("4440001"), 0, 0, QStringLiteral("Loose")});
    messages().queuePromptAnswer(std::nullopt);
    EXPECT_FALSE(sale().enterText(QStringLiteral("4440001")).linesChanged);
    EXPECT_TRUE(sale().isEmpty());
    EXPECT_EQ(messages().prompts(), QStringList{SaleTexts::enterPrice()});

    messages().queuePromptAnswer(QStringLiteral("abc"));  // not a price: asked again
    messages().queuePromptAnswer(QStringLiteral("4,500"));
    EXPECT_TRUE(sale().enterText(QStringLiteral("4440001")).linesChanged);
    ASSERT_EQ(sale().lines().size(), 1);
    EXPECT_DOUBLE_EQ(sale().lines().at(0).unitPrice, 4500);
    EXPECT_EQ(messages().prompts().size(), 3);
}

TEST_P(SalePricing, AnArticleNotInTheGoodsListIsPricedByHandAndSkipsTheStockCheck) {
    messages().queuePromptAnswer(QStringLiteral("300"));
    EXPECT_TRUE(sale().addGoods(QStringLiteral("NOPE-1")));
    ASSERT_EQ(sale().lines().size(), 1);
    const SaleLine& l = sale().lines().at(0);
    EXPECT_DOUBLE_EQ(l.unitPrice, 300);
    EXPECT_DOUBLE_EQ(l.taxPercent, 0);
    EXPECT_EQ(l.goodsKind, SaleLine::kNotFoundKind);
    EXPECT_LT(l.stockFlag, 0);
}

TEST_P(SalePricing, ALockedArticleIsRefusedBeyondItsSaleableQuantity) {
    setFlag("SaleSetting", "ItemLock", true);
    addDocument(1, 1, QStringLiteral("1"), kTea, 10, 8000);  // 10 bought
    addLock(kTea, 5);
    addLock(kTea, 3);
    addLock(kTea, 100, false);  // released: not counted
    sale().enterText(kTea);
    sale().enterText(QStringLiteral("2"));
    EXPECT_DOUBLE_EQ(sale().lines().at(0).quantity, 2);
    EXPECT_EQ(messages().count(), 0);

    const EntryOutcome o = sale().enterText(kTea);  // a third would exceed 10 - 8
    EXPECT_TRUE(o.refused);
    EXPECT_DOUBLE_EQ(sale().lines().at(0).quantity, 2);
    EXPECT_EQ(messages().countOf(SaleChecks::lockedMessage(8, 2)), 1);
    EXPECT_TRUE(SaleChecks::lockedMessage(8, 2).contains(
        SaleTexts::lockedQuantity() + QStringLiteral("8") + SaleTexts::saleableQuantity() +
        QStringLiteral("2")));
}

SANDOGH_INSTANTIATE_BACKENDS(SalePricing);

}  // namespace
}  // namespace sandogh::test
