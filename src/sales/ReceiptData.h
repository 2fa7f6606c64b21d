#pragma once

#include <QList>
#include <QString>

#include <optional>

#include "data/repositories/ReceiptLine.h"

namespace sandogh {

// One way the sale was paid: an account of its voucher and the amount.
struct ReceiptPayment {
    QString account;
    double amount = 0;
};

// Everything a receipt shows, read from a saved sale (ReceiptReader). Amounts are rials.
struct ReceiptData {
    // The shop heading (Company).
    QString shopName;
    QString shopTel;
    QString shopAddress;
    QString title;  // e.g. the reprint title; empty on the sale itself

    // The header (Whs_QTYDocH).
    qint64 code = 0;
    QString docNo;
    QString docDate;
    QString docTime;
    int transType = 0;
    int customerId = 0;
    QString customerName;  // Name + ' ' + Value1 of the customer; empty without one
    QString payTypeName;   // tblPaymentType.Name
    int discountTypeId = 0;
    QString discountName;  // DiscountType.Name
    bool discountIsGift = false;
    int overheadId = 0;
    QString overheadName;  // Overhead.Name
    double docSum = 0;     // the lines' total
    double discount = 0;
    double overhead = 0;  // Sarbar
    double received = 0;  // ReceivedPrice: what the sale came to
    std::optional<double> change;
    // The split of the payment (cash, each card terminal's bank, the customer's account)
    // and what gift cards paid of it.
    QList<ReceiptPayment> payments;
    double giftCard = 0;

    QList<ReceiptLine> lines;

    QString totalInWords;  // DocSum in words and the currency word
    QString sentence;      // the sentence of the day, "Description : Author"

    double payable() const { return docSum - discount + overhead; }
};

}  // namespace sandogh
