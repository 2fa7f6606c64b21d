#pragma once

#include "sales/ReceiptPagePrinter.h"

namespace sandogh {

// Receipts on a printer with its own driver through Qt's printing: the named printer (or
// the default one), on roll paper as long as the receipt or on A4 pages.
class QtReceiptPrinter final : public ReceiptPagePrinter {
public:
    bool printReceipt(const ReceiptData& receipt, const QString& printerName, bool a4,
                      double widthMm) override;
};

}  // namespace sandogh
