#pragma once

#include <optional>

#include "sales/Seller.h"

namespace sandogh {

// The seller choice frmUserSelect, shown for each new line while the seller option
// (UseUserIDInSale) is on. Nothing: the line keeps the logged-in user.
class SellerChooser {
public:
    virtual ~SellerChooser() = default;
    virtual std::optional<Seller> chooseSeller() = 0;
};

}  // namespace sandogh
