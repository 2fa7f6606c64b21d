#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// One line of an internal sale invoice as it travels to the branch.
struct TransferLine {
    QString barcode;
    double qty = 0;
    double fee = 0;
    double price = 0;

    bool operator==(const TransferLine&) const = default;
};

// One internal sale invoice of the sending shop: its key there (Code), number, date and
// totals, and its lines.
struct TransferInvoice {
    qint64 code = 0;
    QString docNo;
    QString docDate;
    double docSum = 0;
    double discount = 0;
    QString note;
    QList<TransferLine> lines;

    bool operator==(const TransferInvoice&) const = default;
};

// What one RptFactors.txt carries: the sending shop, the branch it is meant for and the
// invoices.
struct TransferBatch {
    QString shopId;
    int branchId = 0;
    QList<TransferInvoice> invoices;

    bool operator==(const TransferBatch&) const = default;
};

}  // namespace sandogh
