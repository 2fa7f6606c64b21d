#pragma once

#include <QString>

namespace sandogh {

// Where a receipt goes when no companion program is there to print it.
enum class ReceiptOutput {
    Printer,  // the named (or default) printer, laid out by the program
    Pdf,      // a PDF file
    EscPos,   // raw ESC/POS bytes to a receipt printer device
};

// The setting texts: "printer", "pdf", "escpos"; any other text reads as Printer.
inline ReceiptOutput receiptOutputFromText(const QString& text) {
    const QString name = text.trimmed();
    if (name.compare(QStringLiteral("pdf"), Qt::CaseInsensitive) == 0) {
        return ReceiptOutput::Pdf;
    }
    if (name.compare(QStringLiteral("escpos"), Qt::CaseInsensitive) == 0) {
        return ReceiptOutput::EscPos;
    }
    return ReceiptOutput::Printer;
}

inline QString receiptOutputText(ReceiptOutput output) {
    switch (output) {
        case ReceiptOutput::Pdf:
            return QStringLiteral("pdf");
        case ReceiptOutput::EscPos:
            return QStringLiteral("escpos");
        case ReceiptOutput::Printer:
            break;
    }
    return QStringLiteral("printer");
}

}  // namespace sandogh
