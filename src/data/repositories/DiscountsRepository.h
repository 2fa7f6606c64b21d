#pragma once

#include <QString>

namespace sandogh {

class Session;

// The statements on the discount types (DiscountType) and the price breaks (DiscountFactor).
class DiscountsRepository {
public:
    // DiscountType.IsImpactGift of the type: a discount of this type may carry loyalty gifts.
    static bool countsAsGift(Session& session, int discountTypeId);
    // The highest active price break in date (StartDate <= day <= EndDate) whose FactorAmount
    // is not above the amount: its DiscountPercent; 0 without one or on failure.
    static double priceBreakPercent(Session& session, double amount, const QString& day);
};

}  // namespace sandogh
