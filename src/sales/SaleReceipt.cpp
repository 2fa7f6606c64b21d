#include "sales/SaleReceipt.h"

#include <QDir>
#include <QFile>

#include "data/Database.h"
#include "devices/CompanionHandOff.h"
#include "devices/EscPosRaster.h"
#include "devices/RawPrinter.h"
#include "sales/ReceiptCommand.h"
#include "sales/ReceiptData.h"
#include "sales/ReceiptPagePrinter.h"
#include "sales/ReceiptPainter.h"
#include "sales/ReceiptReader.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kNotPrinted = QStringLiteral("چاپ فیش انجام نشد.");
const QString kNoPrinter = QStringLiteral("چاپگری برای چاپ فیش در دسترس نیست.");

// Printed width of the receipt roll on a page printer, in millimetres (80 mm paper).
constexpr double kRollPrintMm = 72;

}  // namespace

SaleReceipt::SaleReceipt(Database& database, const MachineSettings& settings,
                         MessageService& messages, ProgramLauncher& launcher, QString programFolder,
                         RawPrinter* rawPrinter, ReceiptPagePrinter* pagePrinter)
    : m_database(database)
    , m_settings(settings)
    , m_messages(messages)
    , m_launcher(launcher)
    , m_programFolder(std::move(programFolder))
    , m_rawPrinter(rawPrinter)
    , m_pagePrinter(pagePrinter) {}

namespace {

// The receipt of a sale with the caller's additions; false when it cannot be read (the
// message has been shown).
bool readReceipt(Database& database, MessageService& messages, bool isRial, qint64 code,
                 const ReceiptOptions& options, ReceiptData& receipt) {
    ReceiptReader reader(database, messages);
    const ReceiptReader::Status status = options.family == DocumentFamily::Internal
                                             ? reader.readInternal(code, isRial, receipt)
                                             : reader.read(code, isRial, receipt);
    switch (status) {
        case ReceiptReader::Status::Ok:
            break;
        case ReceiptReader::Status::NotFound:
            messages.show(ReceiptReader::notFoundText(), MessageStyle::Critical);
            return false;
        case ReceiptReader::Status::Failed:
            return false;
    }
    receipt.title = options.title;
    if (options.handedOver) {
        receipt.change = *options.handedOver - receipt.received;
    }
    return true;
}

}  // namespace

bool SaleReceipt::print(qint64 code, const ReceiptOptions& options) {
    ReceiptData receipt;
    if (!readReceipt(m_database, m_messages, m_settings.fishIsRial(), code, options, receipt)) {
        return false;
    }
    return print(receipt, options);
}

bool SaleReceipt::print(const ReceiptData& receipt, const ReceiptOptions& options) {
    CompanionHandOff companion(m_launcher, m_settings.companionProgramPath(m_programFolder));
    if (companion.isPresent()) {
        const ReceiptReport report =
            ReceiptCommand::chooseReport(receipt, options.giftDiscount, options.giftPrint);
        return companion.send(ReceiptCommand::build(receipt, report, m_settings.receiptMode()));
    }
    return output(receipt, options);
}

QString SaleReceipt::command(qint64 code, const ReceiptOptions& options) {
    ReceiptData receipt;
    if (!readReceipt(m_database, m_messages, m_settings.fishIsRial(), code, options, receipt)) {
        return {};
    }
    const ReceiptReport report =
        ReceiptCommand::chooseReport(receipt, options.giftDiscount, options.giftPrint);
    return ReceiptCommand::build(receipt, report, m_settings.receiptMode());
}

bool SaleReceipt::writePdf(qint64 code, const QString& path, const ReceiptOptions& options) {
    ReceiptData receipt;
    if (!readReceipt(m_database, m_messages, m_settings.fishIsRial(), code, options, receipt)) {
        return false;
    }
    return ReceiptPainter::writePdf(receipt, path, options.a4);
}

QImage SaleReceipt::rasterImage(qint64 code, int dots, const ReceiptOptions& options) {
    ReceiptData receipt;
    if (!readReceipt(m_database, m_messages, m_settings.fishIsRial(), code, options, receipt)) {
        return {};
    }
    const int width = dots > 0 ? dots : dotsWidth();
    return EscPosRaster::toMono(ReceiptPainter::image(receipt, width), width);
}

int SaleReceipt::dotsWidth() const {
    const int dots = m_settings.receiptDotsWidth();
    return dots > 0 ? dots : EscPosRaster::kWideDots;
}

QString SaleReceipt::pdfFolder() const {
    const QString folder = m_settings.receiptPdfFolder().trimmed();
    if (!folder.isEmpty()) {
        return QDir(m_programFolder).absoluteFilePath(folder);
    }
    return QDir(m_programFolder).absoluteFilePath(QStringLiteral("Receipts"));
}

bool SaleReceipt::output(const ReceiptData& receipt, const ReceiptOptions& options) {
    bool done = false;
    ReceiptOutput kind = m_settings.receiptOutput();
    if (options.a4 && kind == ReceiptOutput::EscPos) {
        // A page printer was asked for: the receipt printer's raster output cannot be that.
        kind = ReceiptOutput::Printer;
    }
    switch (kind) {
        case ReceiptOutput::Pdf: {
            const QString folder = pdfFolder();
            const QString path =
                QDir(folder).absoluteFilePath(QStringLiteral("Receipt-%1.pdf").arg(receipt.code));
            done = QDir().mkpath(folder) && ReceiptPainter::writePdf(receipt, path, options.a4);
            if (done) {
                m_lastPdfPath = path;
            }
            break;
        }
        case ReceiptOutput::EscPos:
            done = sendEscPos(receipt);
            break;
        case ReceiptOutput::Printer:
            if (m_pagePrinter == nullptr) {
                m_messages.show(kNoPrinter, MessageStyle::Critical);
                return false;
            }
            done = m_pagePrinter->printReceipt(
                receipt, options.a4 ? QString() : m_settings.receiptPrinterName(), options.a4,
                kRollPrintMm);
            break;
    }
    if (!done) {
        m_messages.show(kNotPrinted, MessageStyle::Critical);
    }
    return done;
}

bool SaleReceipt::sendEscPos(const ReceiptData& receipt) {
    const int dots =
        m_settings.receiptDotsWidth() > 0 ? m_settings.receiptDotsWidth() : EscPosRaster::kWideDots;
    const QByteArray bytes = EscPosRaster::job(ReceiptPainter::image(receipt, dots), dots);
    const QString device = m_settings.receiptEscPosDevice().trimmed();
    if (!device.isEmpty()) {
        QFile file(device);
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
               file.write(bytes) == bytes.size();
    }
    if (m_rawPrinter == nullptr) {
        return false;
    }
    return m_rawPrinter->printRaw(QStringLiteral("Receipt ") + receipt.docNo, bytes);
}

}  // namespace sandogh
