#include "sales/InternalPricing.h"

namespace sandogh {

std::optional<SaleLine> InternalPricing::priceLine(Session& session, const QString& barcode,
                                                   double quantity) {
    const std::optional<InternalPrices::Row> row =
        InternalPrices::priced(session, barcode, mode, dateLimit);
    if (!row) {
        return std::nullopt;
    }
    SaleLine line;
    line.barcode = barcode;
    line.quantity = quantity;
    if (row->found) {
        line.name = row->name;
        line.unitPrice = row->price;
        line.taxPercent = row->taxPercent;
        line.goodsKind = row->kind;
    } else {
        line.goodsKind = SaleLine::kNotFoundKind;
        line.stockFlag = -1;
    }
    m_lastStock = row->stock;
    line.recompute();
    return line;
}

}  // namespace sandogh
