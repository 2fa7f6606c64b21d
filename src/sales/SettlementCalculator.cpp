#include "sales/SettlementCalculator.h"

#include <algorithm>

#include <cmath>

#include "sales/SaleSettlement.h"
#include "sales/SettlementTexts.h"

namespace sandogh {

namespace {

constexpr double kPercentBase = 100.0;

}  // namespace

double SettlementCalculator::Amounts::shownChange() const {
    return std::fabs(change);
}

QString SettlementCalculator::Amounts::stateText() const {
    return SettlementCalculator::stateText(state);
}

double SettlementCalculator::payable(double total, double discount, double overhead) {
    return total - discount + overhead;
}

double SettlementCalculator::discountOfPercent(double total, double percent) {
    if (percent <= 0) {
        return 0;
    }
    return std::round(total * percent / kPercentBase);
}

double SettlementCalculator::change(double handedOver, double payable) {
    return handedOver - payable;
}

SettlementCalculator::ChangeState SettlementCalculator::stateOf(double handedOver, double payable) {
    if (handedOver < payable) {
        return ChangeState::ToReceive;
    }
    if (handedOver > payable) {
        return ChangeState::ToPay;
    }
    return ChangeState::Settled;
}

QString SettlementCalculator::stateText(ChangeState state) {
    switch (state) {
        case ChangeState::ToReceive:
            return SettlementTexts::toReceive();
        case ChangeState::ToPay:
            return SettlementTexts::toPay();
        case ChangeState::Settled:
            break;
    }
    return SettlementTexts::settled();
}

SettlementCalculator::Amounts SettlementCalculator::compute(double total, double discount,
                                                            double overhead, double handedOver) {
    Amounts a;
    a.total = total;
    a.discount = discount;
    a.overhead = overhead;
    a.payable = payable(total, discount, overhead);
    a.handedOver = handedOver;
    a.change = change(handedOver, a.payable);
    a.state = stateOf(handedOver, a.payable);
    return a;
}

void SettlementCalculator::fill(SaleSettlement& settlement, double total, double discount,
                                double discountPercent, double overhead, double handedOver) {
    settlement.discount = discount;
    settlement.discountPercent = discountPercent;
    settlement.overhead = overhead;
    settlement.payable = payable(total, discount, overhead);
    settlement.handedOver = handedOver;
}

double SettlementCalculator::giftCardShare(double balance, double payable) {
    return std::min(balance, payable);
}

bool SettlementCalculator::isLoyaltyGift(std::optional<double> given, double discount) {
    return given.has_value() && *given == discount && discount > 0;
}

}  // namespace sandogh
