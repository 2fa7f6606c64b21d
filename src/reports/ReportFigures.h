#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// The figures of the shop's reports, as ShopReports computes them.
namespace reportfigures {

// Sales and returns of one day or month; net = sales less returns.
struct Period {
    QString label;  // "1404/01/05" or "1404/01"
    qint64 salesCount = 0;
    double salesAmount = 0;
    double salesReceived = 0;
    qint64 returnsCount = 0;
    double returnsAmount = 0;
    double returnsReceived = 0;

    double netAmount() const { return salesAmount - returnsAmount; }
    double netReceived() const { return salesReceived - returnsReceived; }
};

// One article over the range: sales less returns, at the landed cost of its purchases.
struct Article {
    QString barcode;
    QString name;
    double quantity = 0;
    double amount = 0;
    double unitCost = 0;  // average landed unit cost of its purchases up to the range's end
    double cost() const { return quantity * unitCost; }
    double profit() const { return amount - cost(); }
};

struct StockLine {
    QString barcode;
    QString name;
    double quantity = 0;
    double unitCost = 0;
    double value() const { return quantity * unitCost; }
};

// Money of the range by kind of payment, sales less returns.
struct Payments {
    double cash = 0;
    QList<QPair<QString, double>> terminals;  // PosId, amount
    double customerAccount = 0;               // left owing on the party's own account
    double giftCard = 0;
    double cheque = 0;
    double received = 0;  // sum of ReceivedPrice: what the kinds but the account add up to
};

struct Desk {
    int stationId = 0;
    QString stationName;
    int shiftCode = 0;
    QString shiftName;
    qint64 salesCount = 0;
    qint64 returnsCount = 0;
    double salesAmount = 0;
    double cash = 0;  // received on sales less paid back on returns
};

}  // namespace reportfigures

}  // namespace sandogh
