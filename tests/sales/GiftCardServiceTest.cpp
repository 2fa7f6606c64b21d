#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/GiftCardService.h"
#include "sales/SettlementTexts.h"

namespace sandogh::test {
namespace {

using Outcome = GiftCardResult::Outcome;

constexpr qint64 kCard = 4000123456;
const QString kToday = QStringLiteral("1404/01/01");

struct Charge {
    qint64 card = kCard;
    double amount = 0;
    QString created = QStringLiteral("1403/06/01");
    QString expires = QStringLiteral("1405/01/01");
    QString password{};
    int allowedMonth = 0;
    double discount = 0;
    int customer = 0;
};

class GiftCardServiceTest : public SaleShopTest {
protected:
    // A charge row of the shop's (or the central database's) card table; its ID.
    int charge(const Charge& c, const char* database = nullptr) {
        const QString cards = database ? table("GiftCard", database) : table("tblGiftCard");
        insert(cards + QStringLiteral(" (CardID, CustomerID, Amount, Discount, DateCreation, "
                                      "ExpireDate, Password, AllowedMonth)"),
               {c.card, c.customer, c.amount, c.discount, c.created, c.expires, c.password,
                c.allowedMonth});
        return int(count(QStringLiteral("SELECT MAX(ID) FROM ") + cards));
    }
    void spend(int cardKey, double amount, const QString& date, const char* database = nullptr) {
        insert((database ? table("GiftCardItem", database) : table("tblGiftCardItem")) +
                   QStringLiteral(" (GiftCardID, Amount, Date)"),
               {cardKey, amount, date});
    }
    void priceBreak(double from, double percent, bool active = true,
                    const QString& start = QStringLiteral("1403/01/01"),
                    const QString& end = QStringLiteral("1404/12/29")) {
        insert("DiscountFactor (IsActive, StartDate, EndDate, FactorAmount, DiscountPercent)",
               {active ? 1 : 0, start, end, from, percent});
    }
    GiftCardResult lookUp(qint64 card = kCard, double total = 100000) {
        GiftCardService cards(db(), messages());
        return cards.lookUp(card, total, kToday);
    }
};

TEST_P(GiftCardServiceTest, ChecksRefuseInTheirOrderWithTheirMessages) {
    const QString invalid = SettlementTexts::cardInvalid() + QStringLiteral("\r\n") +
                            SettlementTexts::rechargeAtManagement();
    const QString expired =
        SettlementTexts::cardExpired() + QStringLiteral("\r\n") + SettlementTexts::seeManagement();
    struct Case {
        const char* name;
        Charge card;
        double spent;
        Outcome outcome;
        QString message;
    };
    const Case cases[] = {
        {"unknown number", Charge{.card = 77, .amount = 50000}, 0, Outcome::NotFound, invalid},
        {"expired yesterday", Charge{.amount = 50000, .expires = QStringLiteral("1403/12/30")}, 0,
         Outcome::Expired, expired},
        {"expires today", Charge{.amount = 50000, .expires = kToday}, 0, Outcome::Accepted, {}},
        {"no expiry", Charge{.amount = 50000, .expires = QString()}, 0, Outcome::Accepted, {}},
        {"used up", Charge{.amount = 50000}, 50000, Outcome::NoCredit, invalid},
        {"expired and used up", Charge{.amount = 50000, .expires = QStringLiteral("1390/01/01")},
         50000, Outcome::Expired, expired},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        exec(QStringLiteral("DELETE FROM tblGiftCardItem"));
        exec(QStringLiteral("DELETE FROM tblGiftCard"));
        messages().clear();
        const int key = charge(c.card);
        if (c.spent > 0) {
            spend(key, c.spent, QStringLiteral("1403/10/10"));
        }
        const GiftCardResult r = lookUp();
        EXPECT_EQ(r.outcome, c.outcome);
        EXPECT_EQ(r.accepted, c.outcome == Outcome::Accepted);
        if (!c.message.isEmpty()) {
            EXPECT_EQ(lastMessage(), c.message);
        }
    }
}

TEST_P(GiftCardServiceTest, ACardAtItsMonthlyLimitIsRefusedDespiteItsBalance) {
    const int key = charge(Charge{.amount = 1000000, .allowedMonth = 2});
    // The count runs over the month of today in the fixed year: this year's movements do
    // not count, those of 1392/01 do.
    spend(key, 1000, QStringLiteral("1404/01/01"));
    spend(key, 1000, QStringLiteral("1404/01/01"));
    spend(key, 1000, QStringLiteral("1392/01/15"));
    EXPECT_EQ(lookUp().outcome, Outcome::Accepted);

    spend(key, 1000, QStringLiteral("1392/01/31"));
    messages().clear();
    const GiftCardResult r = lookUp();
    EXPECT_EQ(r.outcome, Outcome::MonthlyLimit);
    EXPECT_FALSE(r.accepted);
    EXPECT_GT(r.balance, 900000);
    EXPECT_EQ(lastMessage(), SettlementTexts::monthlyLimitReached());

    GiftCardService cards(db(), messages());
    EXPECT_EQ(cards.movementsInMonth(key, 1), 2);
    EXPECT_EQ(cards.movementsInMonth(key, 2), 0);
}

TEST_P(GiftCardServiceTest, BalanceIsAllChargesLessAllMovements) {
    const int first = charge(Charge{.amount = 300000, .created = QStringLiteral("1403/01/01")});
    const int second =
        charge(Charge{.amount = 200000, .created = QStringLiteral("1403/02/01"), .customer = 0});
    spend(first, 100000, QStringLiteral("1403/03/01"));
    spend(second, 50000, QStringLiteral("1403/03/02"));
    // Another card's movement is not this card's.
    const int other = charge(Charge{.card = 55, .amount = 90000});
    spend(other, 90000, QStringLiteral("1403/03/03"));

    const GiftCardResult r = lookUp();
    ASSERT_EQ(r.outcome, Outcome::Accepted);
    EXPECT_EQ(r.cardKey, second);
    EXPECT_DOUBLE_EQ(r.charged, 500000);
    EXPECT_DOUBLE_EQ(r.used, 150000);
    EXPECT_DOUBLE_EQ(r.balance, 350000);
    EXPECT_EQ(r.cardsDelivered, 2);
    EXPECT_EQ(r.summary.first(), SettlementTexts::summarySeparator());
    EXPECT_EQ(r.summary.last(), SettlementTexts::summarySeparator());
    EXPECT_TRUE(r.summary.contains(SettlementTexts::summaryUsable() + QStringLiteral("350,000")));
    // The summary is what the cashier sees when the card is taken.
    EXPECT_EQ(lastMessage(), r.summary.join(QStringLiteral("\r\n")));
}

TEST_P(GiftCardServiceTest, TheNewestRowByCreationDateDecidesTheExpiry) {
    // The older row by ID was created later; its expiry is the one in force.
    charge(Charge{.amount = 1000,
                  .created = QStringLiteral("1403/09/01"),
                  .expires = QStringLiteral("1405/01/01")});
    charge(Charge{.amount = 1000,
                  .created = QStringLiteral("1402/01/01"),
                  .expires = QStringLiteral("1403/01/01")});
    const GiftCardResult r = lookUp();
    EXPECT_EQ(r.outcome, Outcome::Accepted);
    EXPECT_EQ(r.expireDate, QStringLiteral("1405/01/01"));
}

TEST_P(GiftCardServiceTest, PasswordOfTheNewestRowIsAskedUntilRightOrTriesRunOut) {
    charge(Charge{.amount = 1000, .password = QStringLiteral("old")});
    charge(Charge{.amount = 1000, .password = QStringLiteral("1234")});
    const QString wrong =
        SettlementTexts::wrongPassword() + QStringLiteral("\r\n") + SettlementTexts::tryAgain();

    messages().queuePromptAnswer(QStringLiteral("old"));
    messages().queuePromptAnswer(QStringLiteral("1234"));
    EXPECT_EQ(lookUp().outcome, Outcome::Accepted);
    EXPECT_EQ(messages().countOf(wrong), 1);
    EXPECT_EQ(messages().messages().first().title, SettlementTexts::attention());
    EXPECT_EQ(messages().prompts().first(), SettlementTexts::askCardPassword());

    messages().clear();
    for (int i = 0; i < GiftCardService::kPasswordTries; ++i) {
        messages().queuePromptAnswer(QStringLiteral("0000"));
    }
    const GiftCardResult refused = lookUp();
    EXPECT_EQ(refused.outcome, Outcome::WrongPassword);
    EXPECT_FALSE(refused.accepted);
    EXPECT_EQ(messages().countOf(wrong), GiftCardService::kPasswordTries);

    messages().clear();
    messages().queuePromptAnswer(std::nullopt);
    EXPECT_EQ(lookUp().outcome, Outcome::NoPassword);
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(GiftCardServiceTest, TheHighestPriceBreakNotAboveTheTotalWins) {
    priceBreak(500000, 5);
    priceBreak(1000000, 10);
    priceBreak(600000, 40, false);                               // inactive
    priceBreak(700000, 30, true, QStringLiteral("1404/02/01"));  // not yet in force
    priceBreak(750000, 20, true, QStringLiteral("1403/01/01"), QStringLiteral("1403/12/30"));
    GiftCardService cards(db(), messages());
    EXPECT_DOUBLE_EQ(cards.priceBreakDiscount(800000, kToday), 5);
    EXPECT_DOUBLE_EQ(cards.priceBreakDiscount(1000000, kToday), 10);
    EXPECT_DOUBLE_EQ(cards.priceBreakDiscount(499999, kToday), 0);

    charge(Charge{.amount = 900000});
    EXPECT_DOUBLE_EQ(lookUp(kCard, 800000).discountPercent, 5);
    // The card's own discount, newest non-zero first, comes before any break.
    charge(Charge{.amount = 1, .discount = 12});
    charge(Charge{.amount = 1, .discount = 0});
    EXPECT_DOUBLE_EQ(lookUp(kCard, 800000).discountPercent, 12);
}

TEST_P(GiftCardServiceTest, ACentralDatabaseHoldsTheCardsAndTheirOwners) {
    const QString center = QStringLiteral("Center");
    const QByteArray name = center.toLatin1();
    addCentralDatabase(center);
    insert(table("CenterTypes", name.constData()) + QStringLiteral(" (Counter, Name, Value1)"),
           {31, QStringLiteral("Sara"), QStringLiteral("Karimi")});
    const int key = charge(Charge{.amount = 80000, .customer = 31}, name.constData());
    spend(key, 30000, QStringLiteral("1403/11/11"), name.constData());
    // The shop's own table knows nothing of the card.
    GiftCardService cards(db(), messages());
    EXPECT_EQ(cards.lookUp(kCard, 1000, kToday).outcome, Outcome::NotFound);

    cards.setCentralDatabase(center);
    const GiftCardResult r = cards.lookUp(kCard, 1000, kToday);
    ASSERT_EQ(r.outcome, Outcome::Accepted);
    EXPECT_DOUBLE_EQ(r.balance, 50000);
    EXPECT_EQ(r.ownerId, 31);
    EXPECT_EQ(r.owner, QStringLiteral("Sara Karimi"));
}

TEST_P(GiftCardServiceTest, AFailedReadIsToldWithItsTwoLines) {
    GiftCardService::showReadFailure(messages());
    EXPECT_EQ(lastMessage(), SettlementTexts::cardReadFailed() + QStringLiteral("\r\n") +
                                 SettlementTexts::makeSureOfCard());
}

SANDOGH_INSTANTIATE_BACKENDS(GiftCardServiceTest);

}  // namespace
}  // namespace sandogh::test
