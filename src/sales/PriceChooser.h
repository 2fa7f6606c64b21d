#pragma once

#include <optional>

#include "sales/PriceChoice.h"

namespace sandogh {

// The multiple-price chooser frmSelectPrice: offered when the multiple-price option is
// on and the article has more than one price. Returns the picked price, or nothing.
class PriceChooser {
public:
    virtual ~PriceChooser() = default;
    virtual std::optional<double> choosePrice(const PriceChoice& choice) = 0;
};

}  // namespace sandogh
