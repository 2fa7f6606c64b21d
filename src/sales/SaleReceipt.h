#pragma once

#include <QImage>
#include <QString>

#include "sales/ReceiptOptions.h"

namespace sandogh {

class Database;
class MachineSettings;
class MessageService;
class ProgramLauncher;
class RawPrinter;
class ReceiptPagePrinter;
struct ReceiptData;

// Prints the receipt of a saved sale. When the companion accounting program is there it
// gets the receipt command (ReceiptCommand) and prints it with its report layouts;
// otherwise the receipt is laid out here (Persian shaped, right to left) and goes where
// this machine's receipt output says: the page printer, a PDF file, or an ESC/POS raster
// image to the receipt printer's raw queue or device.
//
//   SaleReceipt receipt(database, settings, messages, launcher, programFolder, &raw, &pages);
//   if (settlement.printReceipt) receipt.print(code, {.giftDiscount = ..., .giftPrint = ...});
//
// A failed read of the sale shows the connection message and prints nothing; the saved
// sale stands either way.
class SaleReceipt {
public:
    // rawPrinter and pagePrinter may be null: that output is then unavailable.
    SaleReceipt(Database& database, const MachineSettings& settings, MessageService& messages,
                ProgramLauncher& launcher, QString programFolder, RawPrinter* rawPrinter,
                ReceiptPagePrinter* pagePrinter);

    // Prints the receipt of the Whs_QTYDocH row Code = code (of Whs_QTYDocHInternal with the
    // internal family in options). False when nothing was printed.
    bool print(qint64 code, const ReceiptOptions& options = {});
    // Prints a receipt laid out by the caller (a document of another table) the same way.
    bool print(const ReceiptData& receipt, const ReceiptOptions& options = {});

    // The receipt command of a saved sale (what the companion program gets); empty when the
    // sale cannot be read (the message has been shown).
    QString command(qint64 code, const ReceiptOptions& options = {});

    // Writes the receipt of a saved sale as a PDF file; false when the sale cannot be read
    // or the file cannot be written.
    bool writePdf(qint64 code, const QString& path, const ReceiptOptions& options = {});

    // The receipt as the ESC/POS printer prints it: 1-bit, dots wide (0: the setting).
    // A null image when the sale cannot be read.
    QImage rasterImage(qint64 code, int dots = 0, const ReceiptOptions& options = {});

    // The file the last receipt with the PDF output went to.
    QString lastPdfPath() const { return m_lastPdfPath; }

    // The folder receipts go to with the PDF output: the setting, else "Receipts" in the
    // program folder.
    QString pdfFolder() const;

private:
    bool output(const ReceiptData& receipt, const ReceiptOptions& options);
    bool sendEscPos(const ReceiptData& receipt);
    int dotsWidth() const;

    Database& m_database;
    const MachineSettings& m_settings;
    MessageService& m_messages;
    ProgramLauncher& m_launcher;
    QString m_programFolder;
    RawPrinter* m_rawPrinter;
    ReceiptPagePrinter* m_pagePrinter;
    QString m_lastPdfPath;
};

}  // namespace sandogh
