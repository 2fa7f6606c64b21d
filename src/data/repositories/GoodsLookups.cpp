#include "data/repositories/GoodsLookups.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kBarcode = QStringLiteral(":barcode");

// The first row of a statement with one ":barcode" value.
bool firstRow(SqlQuery& q, const QString& barcode, bool& hasRow) {
    q.bind(kBarcode, barcode);
    if (!q.exec()) {
        return false;
    }
    hasRow = q.next();
    return true;
}

QString orderColumn(GoodsLookups::FavouriteOrder order) {
    switch (order) {
        case GoodsLookups::FavouriteOrder::Barcode:
            return QStringLiteral("Ean_Code");
        case GoodsLookups::FavouriteOrder::Cost:
            return QStringLiteral("Cost");
        case GoodsLookups::FavouriteOrder::Name:
            break;
    }
    return QStringLiteral("Name");
}

}  // namespace

std::optional<qint64> GoodsLookups::activeCount(Session& session, const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT COUNT(ID) FROM Goods WHERE ISActive = 1 "
                                       "AND EAN_Code = :barcode"));
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return std::nullopt;
    }
    return hasRow ? q.int64(0) : 0;
}

std::optional<QString> GoodsLookups::firstActiveBySpecCode(Session& session,
                                                           const QString& specCode) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral("Ean_Code FROM Goods WHERE ISActive = 1 "
                                           "AND Spec_Code = :specCode") +
                            d.limit(1));
    q.bind(QStringLiteral(":specCode"), specCode);
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() ? q.text(0) : QString();
}

GoodsLookups::Flag GoodsLookups::asksQuantity(Session& session, const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(AQIS, 0), COALESCE(Name, '') FROM Goods "
                                       "WHERE EAN_Code = :barcode"));
    Flag flag;
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return flag;
    }
    flag.ok = true;
    if (hasRow) {
        flag.on = q.integer(0) != 0;
        flag.name = q.text(1).trimmed();
    }
    return flag;
}

std::optional<GoodsLookups::GoodsRow> GoodsLookups::goodsRow(Session& session,
                                                             const QString& barcode,
                                                             PriceColumn column) {
    static const QString kCost = QStringLiteral(
        "SELECT COALESCE(Name, ''), COALESCE(Cost, 0), COALESCE(TaxValue, 0), "
        "GType FROM Goods WHERE EAN_Code = :barcode");
    static const QString kCost2 = QStringLiteral(
        "SELECT COALESCE(Goods.Name, ''), COALESCE(Cost2, 0), COALESCE(TaxValue, 0), GType "
        "FROM Goods WHERE Goods.EAN_Code = :barcode");
    SqlQuery q(session, column == PriceColumn::Cost ? kCost : kCost2);
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return std::nullopt;
    }
    GoodsRow row;
    if (hasRow) {
        row.found = true;
        row.name = q.text(0).trimmed();
        row.price = q.number(1);
        row.taxPercent = q.number(2);
        row.kind = q.integer(3);
    }
    return row;
}

std::optional<QList<double>> GoodsLookups::masterPrices(Session& session, const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(Cost, 0), COALESCE(Cost2, 0) "
                                       "FROM Goods WHERE EAN_Code = :barcode"));
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return std::nullopt;
    }
    QList<double> prices;
    if (hasRow) {
        prices << q.number(0) << q.number(1);
    }
    return prices;
}

std::optional<GoodsLookups::TicketGoods> GoodsLookups::goodsByBarcode(Session& session,
                                                                      const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT Ean_Code, COALESCE(Goods.Name, '') AS Name, "
                                       "COALESCE(Cost, 0) AS Cost, COALESCE(TaxValue, 0) AS "
                                       "TaxValue, COALESCE(Type, 0) AS Type FROM Goods "
                                       "WHERE Ean_Code = :barcode"));
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return std::nullopt;
    }
    TicketGoods goods;
    if (hasRow) {
        goods.found = true;
        goods.barcode = q.text(0);
        goods.name = q.text(1).trimmed();
        goods.cost = q.number(2);
        goods.taxPercent = q.number(3);
        goods.type = q.integer(4);
    }
    return goods;
}

std::optional<GoodsLookups::TicketGoods> GoodsLookups::goodsBySpecCode(Session& session,
                                                                       const QString& specCode) {
    SqlQuery q(session, QStringLiteral("SELECT Ean_Code, COALESCE(Goods.Name, '') AS Name, "
                                       "COALESCE(Cost, 0) AS Cost, COALESCE(TaxValue, 0) AS "
                                       "TaxValue FROM Goods WHERE Spec_Code = :specCode"));
    q.bind(QStringLiteral(":specCode"), specCode);
    if (!q.exec()) {
        return std::nullopt;
    }
    TicketGoods goods;
    if (q.next()) {
        goods.found = true;
        goods.barcode = q.text(0);
        goods.name = q.text(1).trimmed();
        goods.cost = q.number(2);
        goods.taxPercent = q.number(3);
    }
    return goods;
}

QList<GoodsLookups::Favourite> GoodsLookups::favourites(Session& session, int tab,
                                                        FavouriteOrder order) {
    SqlQuery q(session, QStringLiteral("SELECT Ean_Code, Name, Cost, COALESCE(Pic, '') AS Pic "
                                       "FROM Goods WHERE ISActive = 1 AND ISFavorite = 1 "
                                       "AND FavoriteTab = :tab ORDER BY ") +
                            orderColumn(order));
    q.bind(QStringLiteral(":tab"), tab);
    QList<Favourite> items;
    if (!q.exec()) {
        return items;
    }
    while (q.next()) {
        items.append({q.text(0), q.text(1).trimmed(), q.number(2), q.text(3)});
    }
    return items;
}

}  // namespace sandogh
