#pragma once

#include <QString>

namespace sandogh {

struct ReceiptData;

// A page printer driven through the platform's printer driver (the receipt printer with
// its own driver, or an A4 printer). The widget layer supplies the Qt printer; without
// one, receipts go to PDF or ESC/POS only.
class ReceiptPagePrinter {
public:
    virtual ~ReceiptPagePrinter() = default;

    // Lays the receipt out on printerName (empty: the default printer), on a roll as
    // wide as widthMm or on A4. False when there is no such printer or it cannot start.
    virtual bool printReceipt(const ReceiptData& receipt, const QString& printerName, bool a4,
                              double widthMm) = 0;
};

}  // namespace sandogh
