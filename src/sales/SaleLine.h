#pragma once

#include <QString>

namespace sandogh {

// One line of the sale being rung up: a row of the grid Grid1. Values are kept as
// numbers; the grid only formats them.
struct SaleLine {
    // GType of an article that is not in the goods list.
    static constexpr int kNotFoundKind = 1;

    QString barcode{};        // column 2: EAN_Code
    QString name{};           // column 3: goods name, trimmed
    double quantity = 0;      // column 4: count, or kilograms for weighed goods
    double unitPrice = 0;     // column 5: Fee, in rials
    double taxPercent = 0;    // column 6: TaxValue, a whole percent
    double total = 0;         // column 7: see lineTotal()
    double lineDiscount = 0;  // column 8 (hidden): the line discount a loaded document brings
    QString seller{};         // column 9: the seller's user name
    int sellerId = 0;         // the seller's user ID (UserID of the saved line)
    int goodsKind = 0;        // column 10 (hidden): GType
    // Column 11 (hidden): the stock check skips a line whose flag is negative, which an
    // article that is not in the goods list gets (there is no stock to count).
    int stockFlag = 0;

    // p × q × t / 100 + p × q in double precision, with no rounding step.
    static double lineTotal(double unitPrice, double quantity, double taxPercent) {
        return unitPrice * quantity * taxPercent / 100 + unitPrice * quantity;
    }
    void recompute() { total = lineTotal(unitPrice, quantity, taxPercent); }
};

}  // namespace sandogh
