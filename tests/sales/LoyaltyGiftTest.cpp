#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/CustomerCardSummary.h"
#include "sales/LoyaltyGift.h"
#include "sales/SettlementTexts.h"

namespace sandogh::test {
namespace {

constexpr int kCustomer = 41;
constexpr int kGiftKind = 5;
constexpr int kPlainKind = 1;

class LoyaltyGiftTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        insert("DiscountType (Id, Name, IsImpactGift)", {kPlainKind, "plain", 0});
        insert("DiscountType (Id, Name, IsImpactGift)", {kGiftKind, "gift", 1});
        setOption("Loyalty", "BuyFactor", QStringLiteral("1000000"));
        setOption("Loyalty", "AmountRebate", QStringLiteral("50000"));
    }
    void customer(int counter, double taken, const QString& lastDate, bool active = true,
                  int typeNo = 10) {
        insert("Types (Counter, TypeNo, Name, Active, DiscountTakenTotal, LastDiscountTakenDate)",
               {counter, typeNo, "Reza", active ? 1 : 0, taken, lastDate});
    }
    // A document of the customer's; one of another origin (a DocType) does not count.
    void document(qint64 code, int transType, double docSum, int company = kCustomer,
                  bool otherOrigin = false) {
        insert("Whs_QTYDocH (Code, DocNo, TransType, CompanyID, DocDate, DocSum, DocType)",
               {code, QString::number(code), transType, company, "1403/05/05", docSum,
                otherOrigin ? QVariant(1) : QVariant()});
    }
    LoyaltyGift gift() { return LoyaltyGift(db(), settings(), messages()); }
};

TEST_P(LoyaltyGiftTest, GiftsAreWholeStepsOfNetPurchasesLessThoseTaken) {
    customer(kCustomer, 1, QStringLiteral("1403/04/04"));
    document(1, 2, 2000000);
    document(2, 2, 1900000);
    document(3, 3, 400000);                    // a return
    document(4, 2, 9000000, kCustomer, true);  // another origin: not counted
    document(5, 2, 9000000, kCustomer + 1);    // another customer
    document(6, 1, 9000000);                   // a purchase from the customer
    LoyaltyGift g = gift();
    EXPECT_DOUBLE_EQ(g.purchases(kCustomer), 3500000);

    const LoyaltyGift::Offer o = g.offer(kCustomer, QStringLiteral("Reza"), kGiftKind);
    ASSERT_TRUE(o.given);
    EXPECT_EQ(o.gifts, 2);  // three whole steps, one taken
    EXPECT_DOUBLE_EQ(o.discount, 100000);
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(LoyaltyGiftTest, NoGiftLeftTellsTheCustomersFiguresAndGivesNothing) {
    customer(kCustomer, 3, QStringLiteral("1403/04/04"));
    document(1, 2, 3999999);
    const LoyaltyGift::Offer o = gift().offer(kCustomer, QStringLiteral("Reza"), kGiftKind);
    EXPECT_FALSE(o.given);
    EXPECT_DOUBLE_EQ(o.discount, 0);
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages().first().text,
              SettlementTexts::dearSubscriber() + QStringLiteral("Reza\r\n") +
                  SettlementTexts::notAllowedGift() + QStringLiteral("\r\n") +
                  SettlementTexts::giftsTaken() + QStringLiteral("3\r\n") +
                  SettlementTexts::giftDate() + QStringLiteral("1403/04/04"));
}

TEST_P(LoyaltyGiftTest, RefusalsBeforeAnyGift) {
    customer(kCustomer, 0, QString());
    document(1, 2, 5000000);
    struct Case {
        const char* name;
        const char* buyFactor;
        const char* rebate;
        int customer;
        std::optional<int> kind;
        QString message;
    } const cases[] = {
        {"no buy factor", "0", "50000", kCustomer, kGiftKind, SettlementTexts::fieldEmpty()},
        {"no rebate", "1000000", "", kCustomer, kGiftKind, SettlementTexts::fieldEmpty()},
        {"no customer", "1000000", "50000", 0, kGiftKind, SettlementTexts::fieldEmpty()},
        {"no kind", "1000000", "50000", kCustomer, std::nullopt, SettlementTexts::noGiftFactor()},
        {"plain kind", "1000000", "50000", kCustomer, kPlainKind, SettlementTexts::noGiftFactor()},
        {"unknown kind", "1000000", "50000", kCustomer, 99, SettlementTexts::noGiftFactor()},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        messages().clear();
        setOption("Loyalty", "BuyFactor", QString::fromLatin1(c.buyFactor));
        setOption("Loyalty", "AmountRebate", QString::fromLatin1(c.rebate));
        const LoyaltyGift::Offer o = gift().offer(c.customer, QStringLiteral("Reza"), c.kind);
        EXPECT_FALSE(o.given);
        EXPECT_DOUBLE_EQ(o.discount, 0);
        ASSERT_EQ(messages().count(), 1);
        EXPECT_EQ(messages().messages().first().text, c.message);
    }
    EXPECT_EQ(QStringLiteral("مقدار اين فيلد نمي تواند خالي باشد\r\nلطفآ مقدار را مشخص نمائيد"),
              SettlementTexts::fieldEmpty());
}

TEST_P(LoyaltyGiftTest, GiftsTakenAreReadOnlyForActiveParties) {
    customer(kCustomer, 2, QStringLiteral("1403/01/02"));
    customer(kCustomer + 1, 4, QStringLiteral("1403/01/03"), false);
    customer(kCustomer + 2, 6, QString(), true, 11);
    customer(kCustomer + 3, 8, QString(), true, 12);
    LoyaltyGift g = gift();
    EXPECT_TRUE(g.taken(kCustomer).found);
    EXPECT_DOUBLE_EQ(g.taken(kCustomer).gifts, 2);
    EXPECT_EQ(g.taken(kCustomer).lastDate, QStringLiteral("1403/01/02"));
    EXPECT_FALSE(g.taken(kCustomer + 1).found);
    EXPECT_DOUBLE_EQ(g.taken(kCustomer + 2).gifts, 6);
    EXPECT_FALSE(g.taken(kCustomer + 3).found);
    EXPECT_TRUE(g.countsAsGift(kGiftKind));
    EXPECT_FALSE(g.countsAsGift(kPlainKind));
    // NULL counts as 1; a kind that does not exist counts as none.
    insert("DiscountType (Id, Name)", {kGiftKind + 10, "unset"});
    EXPECT_TRUE(g.countsAsGift(kGiftKind + 10));
    EXPECT_FALSE(g.countsAsGift(kGiftKind + 11));
}

TEST(LoyaltyGiftCount, WholeGiftsOnly) {
    struct Case {
        double purchases, buyFactor, taken;
        int gifts;
    } const cases[] = {
        {3500000, 1000000, 1, 2},  {999999, 1000000, 0, 0}, {1000000, 1000000, 0, 1},
        {5000000, 1000000, 7, -2}, {5000000, 0, 0, 0},      {-200000, 1000000, 0, -1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(LoyaltyGift::giftCount(c.purchases, c.buyFactor, c.taken), c.gifts)
            << c.purchases << " / " << c.buyFactor << " - " << c.taken;
    }
    EXPECT_EQ(LoyaltyGift::giftsInDiscount(150000, 50000), 3);
    EXPECT_EQ(LoyaltyGift::giftsInDiscount(149999.9, 50000), 2);
    EXPECT_EQ(LoyaltyGift::giftsInDiscount(150000, 0), 0);
}

TEST_P(LoyaltyGiftTest, CustomerCardSummaryCountsCardsAndGifts) {
    customer(kCustomer, 2, QStringLiteral("1403/02/02"));
    for (double amount : {200000.0, 300000.0}) {
        insert("tblGiftCard (CardID, CustomerID, Amount)", {qint64(9000), kCustomer, amount});
    }
    CustomerCardSummary summary(db());
    const CustomerCardSummary::Figures f = summary.figures(kCustomer);
    EXPECT_TRUE(f.ok);
    EXPECT_EQ(CustomerCardSummary::lines(f),
              QStringList({SettlementTexts::cardsReceived() + QStringLiteral("2"),
                           SettlementTexts::cardsReceivedTotal() + QStringLiteral("500,000"),
                           SettlementTexts::giftsTaken() + QStringLiteral("2"),
                           SettlementTexts::lastGiftDate() + QStringLiteral("1403/02/02")}));
    const CustomerCardSummary::Figures none = summary.figures(kCustomer + 9);
    EXPECT_TRUE(none.ok);
    EXPECT_EQ(none.cards, 0);
    EXPECT_DOUBLE_EQ(none.cardsTotal, 0);
    EXPECT_TRUE(none.lastGift.isEmpty());
}

SANDOGH_INSTANTIATE_BACKENDS(LoyaltyGiftTest);

}  // namespace
}  // namespace sandogh::test
