#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// The rows the report queries read, before the reports layer shapes them.
namespace reportrows {

// One date and kind (2 sale, 3 sale return) of ordinary documents.
struct DayKind {
    QString date;
    int transType = 0;
    qint64 count = 0;
    double amount = 0;    // DocSum
    double received = 0;  // ReceivedPrice
};

// One article's sales less its returns over the range.
struct ArticleSales {
    QString barcode;
    QString name;
    double quantity = 0;
    double amount = 0;
};

// Quantity and landed value of an article's ordinary purchases up to a date.
struct PurchaseCost {
    QString barcode;
    double quantity = 0;
    double landedValue = 0;
};

// An article's quantity on hand and its name.
struct ArticleStock {
    QString barcode;
    QString name;
    double quantity = 0;
};

// One desk, shift and kind.
struct DeskShiftKind {
    int stationId = 0;
    QString stationName;
    int shiftCode = 0;
    QString shiftName;
    int transType = 0;
    qint64 count = 0;
    double amount = 0;
    double received = 0;
};

// One payment account's share of the vouchers of the range's sales, less returns.
struct AccountShare {
    int accountId = 0;
    QString posId;          // tblBanks.PosId; empty for an account that is no terminal
    bool customer = false;  // the account of the document's party
    double amount = 0;
};

}  // namespace reportrows

}  // namespace sandogh
