#pragma once

#include <QList>
#include <QString>

#include "sales/SaleLine.h"

namespace sandogh {

class MessageService;
class Session;

// The checks on the lines of a sale: locked goods (when a line is added and before
// saving), the stock check and the price floor (before saving). Each shows its message
// when it refuses. The caller decides whether the check's option is on.
class SaleChecks {
public:
    struct Result {
        bool ok = true;
        int row = -1;  // the first refused line
    };

    explicit SaleChecks(MessageService& messages);

    // Locked goods: an article with locked rows (ItemLock, IsLock 1) may be sold up to its
    // saleable quantity, the warehouse quantity less the locked one. quantity is what the
    // lines would then hold of it. Refuses (with both quantities) beyond that, and when a
    // look-up failed.
    bool allowsLocked(Session& session, const QString& barcode, double quantity,
                      const QString& warehouse);
    Result lockedGoods(Session& session, const QList<SaleLine>& lines, const QString& warehouse);

    // Stock: a line whose stock flag is not negative may not hold more than the warehouse
    // quantity of its article (SP_ComputeWarehouseQtyByEanCode).
    Result stock(Session& session, const QList<SaleLine>& lines, const QString& warehouse);

    // Price floor: no unit price below the article's last purchase price
    // (sp_tblWhs_QTYDocD_GetLastBuyPrice).
    Result priceFloor(Session& session, const QList<SaleLine>& lines);

    // The refusal text of a locked article.
    static QString lockedMessage(double locked, double saleable);

private:
    MessageService& m_messages;
};

}  // namespace sandogh
