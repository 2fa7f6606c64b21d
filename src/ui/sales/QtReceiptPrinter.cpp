#include "ui/sales/QtReceiptPrinter.h"

#include <QPrinter>
#include <QPrinterInfo>

#include "sales/ReceiptData.h"
#include "sales/ReceiptPainter.h"

namespace sandogh {

bool QtReceiptPrinter::printReceipt(const ReceiptData& receipt, const QString& printerName, bool a4,
                                    double widthMm) {
    const QPrinterInfo info = printerName.trimmed().isEmpty()
                                  ? QPrinterInfo::defaultPrinter()
                                  : QPrinterInfo::printerInfo(printerName.trimmed());
    if (info.isNull()) {
        return false;
    }
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setResolution(ReceiptPainter::kDotsPerInch);
    printer.setDocName(QStringLiteral("Receipt ") + receipt.docNo);
    return ReceiptPainter::printPages(printer, receipt, a4, widthMm);
}

}  // namespace sandogh
