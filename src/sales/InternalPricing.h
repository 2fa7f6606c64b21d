#pragma once

#include "data/repositories/InternalPrices.h"
#include "sales/LinePricer.h"

namespace sandogh {

// The lines of an internal sale: the unit price by the screen's price mode (InternalPrices),
// the name, tax and kind of the goods, and the article's stock, kept for the screen. An
// article that is not in Goods gets price 0, kind 1 and a negative stock flag, as on the sale.
class InternalPricing final : public LinePricer {
public:
    InternalPrices::Mode mode = InternalPrices::Mode::LastInternal;
    QString dateLimit;  // with LastInternal: documents up to this date; empty for all

    std::optional<SaleLine> priceLine(Session& session, const QString& barcode,
                                      double quantity) override;
    // Stock.Stock of the article priced last.
    double lastStock() const { return m_lastStock; }

private:
    double m_lastStock = 0;
};

}  // namespace sandogh
