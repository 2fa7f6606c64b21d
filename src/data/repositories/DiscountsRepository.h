#pragma once

#include <QString>

namespace sandogh {

class Session;

// The statements on the price breaks (DiscountFactor); the discount kinds are DiscountTypes'.
class DiscountsRepository {
public:
    // The highest active price break in date (StartDate <= day <= EndDate) whose FactorAmount
    // is not above the amount: its DiscountPercent; 0 without one or on failure.
    static double priceBreakPercent(Session& session, double amount, const QString& day);
};

}  // namespace sandogh
