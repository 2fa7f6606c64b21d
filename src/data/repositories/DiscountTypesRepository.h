#pragma once

namespace sandogh {

class Session;

// The statements on the discount types (DiscountType).
class DiscountTypesRepository {
public:
    // DiscountType.IsImpactGift of the type: a discount of this type may carry loyalty gifts.
    static bool countsAsGift(Session& session, int discountTypeId);
};

}  // namespace sandogh
