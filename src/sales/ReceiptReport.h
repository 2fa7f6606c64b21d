#pragma once

namespace sandogh {

// The report layouts of the companion program that print a sale receipt.
enum class ReceiptReport {
    RptFish,   // the plain receipt
    RptFish2,  // a sale with a discount kind or an overhead kind
    RptFish3,  // a gift discount printed with the gift layout (chkGiftPrint)
};

}  // namespace sandogh
