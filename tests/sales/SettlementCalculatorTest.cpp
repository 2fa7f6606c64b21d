#include <gtest/gtest.h>

#include "sales/SaleSettlement.h"
#include "sales/SettlementCalculator.h"
#include "sales/SettlementTexts.h"

namespace sandogh {
namespace {

using State = SettlementCalculator::ChangeState;

struct Figures {
    const char* name;
    double total, discount, overhead, handedOver;
    double payable, shownChange;
    State state;
};

class SettlementCalculatorTest : public ::testing::TestWithParam<Figures> {};

TEST_P(SettlementCalculatorTest, PayableChangeAndState) {
    const Figures& f = GetParam();
    const SettlementCalculator::Amounts a =
        SettlementCalculator::compute(f.total, f.discount, f.overhead, f.handedOver);
    EXPECT_DOUBLE_EQ(a.payable, f.payable);
    EXPECT_DOUBLE_EQ(a.shownChange(), f.shownChange);
    EXPECT_GE(a.shownChange(), 0);
    EXPECT_EQ(a.state, f.state);
    EXPECT_DOUBLE_EQ(a.change, f.handedOver - f.payable);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SettlementCalculatorTest,
    ::testing::Values(
        // 10 percent of 100,000 off and 5,000 on: 95,000; 100,000 handed over.
        Figures{"PercentAndCharge", 100000, 10000, 5000, 100000, 95000, 5000, State::ToPay},
        Figures{"Exact", 95000, 0, 0, 95000, 95000, 0, State::Settled},
        Figures{"Short", 95000, 0, 0, 50000, 95000, 45000, State::ToReceive},
        Figures{"NothingHandedOver", 120000, 0, 0, 0, 120000, 120000, State::ToReceive},
        Figures{"OneRialShort", 1000, 0, 0, 999, 1000, 1, State::ToReceive},
        Figures{"OneRialOver", 1000, 0, 0, 1001, 1000, 1, State::ToPay},
        Figures{"DiscountAboveTotal", 1000, 2000, 0, 0, -1000, 1000, State::ToPay},
        Figures{"ChargeOnly", 0, 0, 3000, 3000, 3000, 0, State::Settled}),
    [](const ::testing::TestParamInfo<Figures>& p) { return std::string(p.param.name); });

TEST(SettlementCalculatorTexts, EachStateHasItsLabel) {
    EXPECT_EQ(SettlementCalculator::stateText(State::ToReceive), SettlementTexts::toReceive());
    EXPECT_EQ(SettlementCalculator::stateText(State::Settled), SettlementTexts::settled());
    EXPECT_EQ(SettlementCalculator::stateText(State::ToPay), SettlementTexts::toPay());
    EXPECT_EQ(SettlementCalculator::compute(100000, 10000, 5000, 100000).stateText(),
              QStringLiteral("مبلغ قابل پرداخت"));
}

TEST(SettlementCalculatorPercent, WholeRialsOfThePercent) {
    struct Case {
        double total, percent, discount;
    } const cases[] = {
        {100000, 10, 10000}, {100000, 0, 0},    {100000, -5, 0},       {12345, 10, 1235},
        {12345, 12.5, 1543}, {999, 33.33, 333}, {100000, 100, 100000}, {0, 50, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.total << " x " << c.percent);
        EXPECT_DOUBLE_EQ(SettlementCalculator::discountOfPercent(c.total, c.percent), c.discount);
    }
}

TEST(SettlementCalculatorFill, FillsTheAmountsAndKeepsTheRest) {
    SaleSettlement s;
    s.discountTypeId = 3;
    s.note = QStringLiteral("note");
    SettlementCalculator::fill(s, 100000, 10000, 10, 5000, 100000);
    EXPECT_DOUBLE_EQ(s.discount, 10000);
    EXPECT_DOUBLE_EQ(s.discountPercent, 10);
    EXPECT_DOUBLE_EQ(s.overhead, 5000);
    EXPECT_DOUBLE_EQ(s.payable, 95000);
    EXPECT_DOUBLE_EQ(s.handedOver, 100000);
    EXPECT_EQ(s.discountTypeId, 3);
    EXPECT_EQ(s.note, QStringLiteral("note"));
}

// The gift card pays its balance up to the payable amount; the discount is the loyalty
// gift only while it is still the amount the gift button gave.
TEST(SettlementCalculatorGifts, CardShareAndLoyaltyGift) {
    EXPECT_DOUBLE_EQ(SettlementCalculator::giftCardShare(30000, 95000), 30000);
    EXPECT_DOUBLE_EQ(SettlementCalculator::giftCardShare(95000, 95000), 95000);
    EXPECT_DOUBLE_EQ(SettlementCalculator::giftCardShare(200000, 95000), 95000);
    struct Case {
        std::optional<double> given;
        double discount;
        bool gift;
    } const cases[] = {
        {50000, 50000, true},
        {50000, 40000, false},
        {std::nullopt, 50000, false},
        {0, 0, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.given.value_or(-1) << " / " << c.discount);
        EXPECT_EQ(SettlementCalculator::isLoyaltyGift(c.given, c.discount), c.gift);
    }
}

}  // namespace
}  // namespace sandogh
