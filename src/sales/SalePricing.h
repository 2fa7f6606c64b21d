#pragma once

#include <QString>
#include <optional>

#include "sales/SaleLine.h"
#include "sales/Seller.h"

namespace sandogh {

class MessageService;
class PriceChooser;
class SellerChooser;
class Session;
struct SaleOptions;

// The unit price, tax, name, kind and seller of a new line, chosen in order:
//  1. the multiple-price chooser, when its option is on and the article has more than
//     one price;
//  2. the seller chooser, when the seller option is on;
//  3. in the first sales type, the newest price-change document in force on the sale
//     date (its NewCost in place of the master price);
//  4. otherwise Cost in the first sales type, Cost2 in the other (which never looks at
//     price-change documents);
//  5. a price of 0 is asked for ("قيمت را وارد نمائيد"); a cancelled prompt adds nothing.
// An article that is not in Goods gets price 0, tax 0, kind 1 and a negative stock flag.
class SalePricing {
public:
    struct Context {
        int salesType = 1;
        QString saleDate;
        int companyId = 0;
        Seller user;  // the line's seller unless the seller chooser picks another
    };

    SalePricing(MessageService& messages, PriceChooser* priceChooser, SellerChooser* sellerChooser);

    // The priced line for quantity (not yet merged); nothing when a look-up failed or the
    // price prompt was cancelled.
    std::optional<SaleLine> priceLine(Session& session, const SaleOptions& options,
                                      const Context& context, const QString& barcode,
                                      double quantity);

private:
    bool askPrice(double& price);

    MessageService& m_messages;
    PriceChooser* m_priceChooser;
    SellerChooser* m_sellerChooser;
};

}  // namespace sandogh
