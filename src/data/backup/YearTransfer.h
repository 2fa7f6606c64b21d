#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "data/Session.h"

namespace sandogh {

// The statements that carry a shop from one fiscal year's database into the next (both
// migrated to the same schema): whole master tables with their keys, each article's
// closing stock, and each customer's balance at the close.
class YearTransfer {
public:
    struct ClosingStock {
        QString barcode;
        double quantity = 0;
        double lastPurchaseFee = 0;  // the newest purchase line's Fee; 0 when never bought
    };
    struct PartyOpening {
        int counter = 0;  // Types.Counter
        double balance = 0;
    };

    // The tables carried whole, in an order that fills parents before children.
    static const QStringList& carriedTables();

    // Copies every row of table from one database to the other, identity values kept; on
    // PostgreSQL the identity then continues after the largest copied value.
    static bool copyTable(Session& from, Session& to, const QString& table, QString* error);

    // Each article's stock at the close of the year (after sp_StockRepair), by barcode.
    static QList<ClosingStock> closingStock(Session& from, QString* error);
    // What each customer (TypeNo 10) owes at the close: sales and opening credit less what
    // was received and returned.
    static QList<PartyOpening> customerBalances(Session& from, QString* error);
    // Makes the balances the customers' opening credit in the new year.
    static bool setOpeningCredit(Session& to, const QList<PartyOpening>& balances, QString* error);
};

}  // namespace sandogh
