#include "sales/ReceiptCommand.h"

#include "sales/ReceiptData.h"

namespace sandogh {

namespace {

// The receipt mode whose receipts use the first receipt form of the companion program.
constexpr int kFirstFormMode = 1;

}  // namespace

QString ReceiptCommand::commandWord(int receiptMode) {
    return receiptMode == kFirstFormMode ? QStringLiteral("mnuRptFish,")
                                         : QStringLiteral("mnuRptFish4,");
}

ReceiptReport ReceiptCommand::chooseReport(bool discountKind, bool overheadKind, bool giftDiscount,
                                           bool giftPrint) {
    if (giftDiscount && giftPrint) {
        return ReceiptReport::RptFish3;
    }
    if (discountKind || overheadKind) {
        return ReceiptReport::RptFish2;
    }
    return ReceiptReport::RptFish;
}

ReceiptReport ReceiptCommand::chooseReport(const ReceiptData& receipt, bool giftDiscount,
                                           bool giftPrint) {
    return chooseReport(receipt.discountTypeId != 0, receipt.overheadId != 0, giftDiscount,
                        giftPrint);
}

QString ReceiptCommand::reportName(ReceiptReport report) {
    switch (report) {
        case ReceiptReport::RptFish2:
            return QStringLiteral("RptFish2");
        case ReceiptReport::RptFish3:
            return QStringLiteral("RptFish3");
        case ReceiptReport::RptFish:
            break;
    }
    return QStringLiteral("RptFish");
}

QString ReceiptCommand::reportFile(ReceiptReport report) {
    return reportName(report) + QStringLiteral(".rpt");
}

QString ReceiptCommand::field(const QString& text) {
    QString value = text;
    value.replace(QLatin1Char(','), QLatin1Char(';'));
    return value + QLatin1Char(',');
}

QString ReceiptCommand::amountField(double amount) {
    QString text = QString::number(amount, 'f', 3);
    while (text.endsWith(QLatin1Char('0'))) {
        text.chop(1);
    }
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    if (text == QLatin1String("-0")) {
        text = QStringLiteral("0");
    }
    return text + QLatin1Char(',');
}

QString ReceiptCommand::build(const ReceiptData& receipt, ReceiptReport report, int receiptMode) {
    QString command = commandWord(receiptMode);
    command += field(reportFile(report));
    command += field(receipt.shopName);
    command += field(receipt.shopTel);
    command += field(receipt.shopAddress);
    command += field(receipt.title);
    command += QString::number(receipt.code) + QLatin1Char(',');
    command += field(receipt.docNo);
    command += field(receipt.docDate);
    command += field(receipt.customerName);
    command += field(receipt.payTypeName);
    command += amountField(receipt.received);
    command += amountField(receipt.discount);
    command += field(receipt.discountName);
    command += amountField(receipt.overhead);
    command += field(receipt.overheadName);
    command += field(receipt.totalInWords);
    command += field(receipt.sentence);
    return command;
}

}  // namespace sandogh
