#pragma once

#include <optional>

#include "data/Session.h"

namespace sandogh {

// The discount kinds (DiscountType: Id, Name, IsImpactGift), read on the caller's session.
//
// IsImpactGift 1 or NULL: a sale with the kind counts towards the customer's gift total;
// 0 leaves it out. The loyalty gift kind is the fifth kind of the list the sale screen
// shows (by Id); its discount comes only from the gift button.
class DiscountTypes {
public:
    // The place of the loyalty gift kind in the list, counted from 0.
    static constexpr int kLoyaltyGiftPlace = 4;

    // Whether a sale with this kind counts towards the gift total: true for 1 and NULL,
    // false for 0 and for a kind that does not exist; nullopt when the look-up failed.
    static std::optional<bool> countsAsGift(Session& session, int id);
    // The Id of the loyalty gift kind: 0 when the list has fewer than five kinds;
    // nullopt when the look-up failed.
    static std::optional<int> loyaltyGiftKind(Session& session);
};

}  // namespace sandogh
