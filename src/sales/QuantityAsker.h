#pragma once

#include <QString>
#include <optional>

namespace sandogh {

// frmAskQty: asks the quantity of an article whose quantity-asking flag (AQIS) is set.
// Nothing when the cashier cancels; the line is then not added.
class QuantityAsker {
public:
    virtual ~QuantityAsker() = default;
    virtual std::optional<double> askQuantity(const QString& barcode, const QString& name) = 0;
};

}  // namespace sandogh
