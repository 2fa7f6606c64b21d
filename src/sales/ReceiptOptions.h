#pragma once

#include <QString>

#include <optional>

#include "data/repositories/DocumentFamily.h"

namespace sandogh {

// How one receipt is printed: the switches of the sale screen and what only the caller
// knows (the amount the customer handed over is not kept with the sale).
struct ReceiptOptions {
    bool giftDiscount = false;  // the discount was a loyalty gift (btnBuyFactor)
    bool giftPrint = false;     // chkGiftPrint: the gift layout for a gift discount
    bool a4 = false;            // chkA4Prn: a page printer instead of the receipt printer
    QString title;              // a line above the receipt, e.g. the reprint title
    // What the customer handed over; the change is this less the amount received.
    // Unknown on a reprint: then no change line is printed.
    std::optional<double> handedOver;
    // Whether `code` is a key of the ordinary or of the internal headers.
    DocumentFamily family = DocumentFamily::Ordinary;
};

}  // namespace sandogh
