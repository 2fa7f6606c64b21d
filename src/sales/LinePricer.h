#pragma once

#include <QString>
#include <optional>

#include "sales/SaleLine.h"

namespace sandogh {

class Session;

// Prices the lines a session rings up in place of the sale's own pricing (SalePricing):
// the internal sale prices to its branches this way.
class LinePricer {
public:
    virtual ~LinePricer() = default;
    // The priced line for quantity (not yet merged); nothing when a look-up failed.
    virtual std::optional<SaleLine> priceLine(Session& session, const QString& barcode,
                                              double quantity) = 0;
};

}  // namespace sandogh
