#include "sales/SalePricing.h"

#include "common/AmountText.h"
#include "sales/PriceChooser.h"
#include "sales/SaleLookups.h"
#include "sales/SaleOptions.h"
#include "sales/SaleTexts.h"
#include "sales/SellerChooser.h"
#include "settings/MessageService.h"

namespace sandogh {

SalePricing::SalePricing(MessageService& messages, PriceChooser* priceChooser,
                         SellerChooser* sellerChooser)
    : m_messages(messages), m_priceChooser(priceChooser), m_sellerChooser(sellerChooser) {}

std::optional<SaleLine> SalePricing::priceLine(Session& session, const SaleOptions& options,
                                               const Context& context, const QString& barcode,
                                               double quantity) {
    const bool firstType = context.salesType == 1;

    // 1. The price chooser; its value is used for this line only.
    std::optional<double> chosen;
    if (options.multiplePrices && m_priceChooser != nullptr) {
        const std::optional<QList<double>> prices = SaleLookups::prices(session, barcode);
        if (!prices) {
            return std::nullopt;
        }
        if (prices->size() > 1) {
            chosen = m_priceChooser->choosePrice(
                PriceChoice{barcode, context.companyId, context.salesType, *prices});
        }
    }

    // 2. The seller.
    Seller seller = context.user;
    if (options.sellerChoice && m_sellerChooser != nullptr) {
        if (const std::optional<Seller> picked = m_sellerChooser->chooseSeller()) {
            seller = *picked;
        }
    }

    // 3 to 5. The price-change document, then the master price of the sales type.
    std::optional<double> price = chosen;
    if (!price && firstType) {
        const std::optional<double> newCost =
            SaleLookups::priceChangeCost(session, context.saleDate, barcode);
        if (!newCost) {
            return std::nullopt;
        }
        if (*newCost != 0) {
            price = *newCost;
        }
    }
    const std::optional<SaleLookups::GoodsRow> row = SaleLookups::goodsRow(
        session, barcode,
        firstType ? SaleLookups::PriceColumn::Cost : SaleLookups::PriceColumn::Cost2);
    if (!row) {
        return std::nullopt;
    }

    SaleLine line;
    line.barcode = barcode;
    line.quantity = quantity;
    line.seller = seller.name;
    line.sellerId = seller.id;
    if (row->found) {
        line.name = row->name;
        line.unitPrice = price.value_or(row->price);
        line.taxPercent = row->taxPercent;
        line.goodsKind = row->kind;
    } else {
        line.unitPrice = price.value_or(0);
        line.goodsKind = SaleLine::kNotFoundKind;
        line.stockFlag = -1;
    }
    if (line.unitPrice == 0 && !askPrice(line.unitPrice)) {
        return std::nullopt;
    }
    line.recompute();
    return line;
}

bool SalePricing::askPrice(double& price) {
    // Asked again until a price is typed or the prompt is cancelled.
    for (;;) {
        QString answer;
        if (!m_messages.prompt(SaleTexts::enterPrice(), answer)) {
            return false;
        }
        const std::optional<double> typed = AmountText::parseStrict(answer.toStdString());
        if (typed && *typed > 0) {
            price = *typed;
            return true;
        }
    }
}

}  // namespace sandogh
