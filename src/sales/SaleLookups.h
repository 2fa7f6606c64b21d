#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/Session.h"
#include "data/repositories/GoodsLookups.h"
#include "data/scales/ScaleTickets.h"

namespace sandogh {

// The look-ups of ringing up on the caller's session, each through the data layer's
// repository of its table. A look-up that fails returns nothing (std::nullopt, or ok false); the
// data layer has then reported it: the connection message for a lost server, the error log's
// message otherwise.
class SaleLookups {
public:
    using PriceColumn = GoodsLookups::PriceColumn;
    using GoodsRow = GoodsLookups::GoodsRow;
    using TicketGoods = GoodsLookups::TicketGoods;
    using TicketLine = ScaleTickets::Line;
    using Flag = GoodsLookups::Flag;

    // Active goods with this barcode; nullopt when the look-up failed.
    static std::optional<qint64> activeCount(Session& session, const QString& barcode);
    // The first active article with this Spec_Code; empty text for none.
    static std::optional<QString> firstActiveBySpecCode(Session& session, const QString& specCode);
    // The quantity-asking flag AQIS (and the name, for the question).
    static Flag asksQuantity(Session& session, const QString& barcode);
    // The locked quantity (ItemLock, IsLock 1): nothing inside when the article has no
    // lock row; nullopt when the look-up failed.
    static std::optional<std::optional<double>> lockedQuantity(Session& session,
                                                               const QString& barcode);
    // NewCost of the newest price-change document (largest DiscountD.Code) whose date
    // range holds the sale date, compared as Jalali text; 0 when none is in force.
    static std::optional<double> priceChangeCost(Session& session, const QString& saleDate,
                                                 const QString& barcode);
    // Name, price, tax and kind of an article; found false when it is not in Goods.
    static std::optional<GoodsRow> goodsRow(Session& session, const QString& barcode,
                                            PriceColumn column);
    // The distinct prices the goods master holds for an article (Cost, Cost2 and its
    // related prices of tblRelatedCode), zeros left out, in that order.
    static std::optional<QList<double>> prices(Session& session, const QString& barcode);

    // The lines of a MizanNet ticket by its key.
    static std::optional<QList<TicketLine>> mizanTicketLines(Session& session, const QString& key);
    static std::optional<TicketGoods> goodsByBarcode(Session& session, const QString& barcode);
    // The lines of an OnlineSales ticket.
    static std::optional<QList<TicketLine>> onlineSalesLines(Session& session, const QString& date,
                                                             int receipt, int scale);
    static std::optional<TicketGoods> goodsBySpecCode(Session& session, const QString& specCode);
};

}  // namespace sandogh
