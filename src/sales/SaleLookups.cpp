#include "sales/SaleLookups.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/schema/ShopSchema.h"

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

}  // namespace

std::optional<qint64> SaleLookups::activeCount(Session& session, const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT COUNT(ID) FROM Goods WHERE ISActive = 1 "
                                       "AND EAN_Code = :barcode"));
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return std::nullopt;
    }
    return hasRow ? q.int64(0) : 0;
}

std::optional<QString> SaleLookups::firstActiveBySpecCode(Session& session,
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

SaleLookups::Flag SaleLookups::asksQuantity(Session& session, const QString& barcode) {
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

std::optional<std::optional<double>> SaleLookups::lockedQuantity(Session& session,
                                                                 const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT SUM(Qty) AS Qty FROM ItemLock WHERE IsLock = 1 "
                                       "AND Ean_Code = :barcode GROUP BY Ean_Code"));
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return std::nullopt;
    }
    return hasRow ? std::optional<double>(q.number(0)) : std::optional<double>();
}

std::optional<double> SaleLookups::priceChangeCost(Session& session, const QString& saleDate,
                                                   const QString& barcode) {
    const Dialect& d = session.dialect();
    SqlQuery q(session,
               QStringLiteral("SELECT ") + d.top(1) +
                   QStringLiteral("COALESCE(DiscountD.NewCost, 0) FROM DiscountD "
                                  "INNER JOIN DiscountH ON DiscountD.Code = DiscountH.Code "
                                  "WHERE :saleDate BETWEEN DiscountH.FDate AND DiscountH.SDate "
                                  "AND DiscountD.Ean_Code = :barcode "
                                  "ORDER BY DiscountD.Code DESC") +
                   d.limit(1));
    q.bind(QStringLiteral(":saleDate"), saleDate);
    bool hasRow = false;
    if (!firstRow(q, barcode, hasRow)) {
        return std::nullopt;
    }
    return hasRow ? q.number(0) : 0.0;
}

std::optional<SaleLookups::GoodsRow> SaleLookups::goodsRow(Session& session, const QString& barcode,
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

std::optional<QList<double>> SaleLookups::prices(Session& session, const QString& barcode) {
    QList<double> found;
    const auto add = [&found](double price) {
        if (price != 0 && !found.contains(price)) {
            found << price;
        }
    };
    SqlQuery master(session, QStringLiteral("SELECT COALESCE(Cost, 0), COALESCE(Cost2, 0) "
                                            "FROM Goods WHERE EAN_Code = :barcode"));
    bool hasRow = false;
    if (!firstRow(master, barcode, hasRow)) {
        return std::nullopt;
    }
    if (hasRow) {
        add(master.number(0));
        add(master.number(1));
    }
    SqlQuery related(session, QStringLiteral("SELECT COALESCE(Price, 0) FROM tblRelatedCode "
                                             "WHERE Ean_Code = :barcode"));
    related.bind(kBarcode, barcode);
    if (!related.exec()) {
        return std::nullopt;
    }
    while (related.next()) {
        add(related.number(0));
    }
    return found;
}

std::optional<QList<SaleLookups::TicketLine>> SaleLookups::mizanTicketLines(Session& session,
                                                                            const QString& key) {
    const QString table = session.dialect().table(QStringLiteral("MizanNetDetail"),
                                                  QString::fromLatin1(kMizanNetDatabase));
    SqlQuery q(session, QStringLiteral("SELECT PluNo, CASE Weight WHEN 0 THEN Qty ELSE Weight "
                                       "END AS QTY FROM ") +
                            table + QStringLiteral(" WHERE TotalBarcode = :key"));
    q.bind(QStringLiteral(":key"), key);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<TicketLine> lines;
    while (q.next()) {
        lines.append({QString::number(q.int64(0)), q.number(1)});
    }
    return lines;
}

std::optional<SaleLookups::TicketGoods> SaleLookups::goodsByBarcode(Session& session,
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

std::optional<QList<SaleLookups::TicketLine>> SaleLookups::onlineSalesLines(Session& session,
                                                                            const QString& date,
                                                                            int receipt,
                                                                            int scale) {
    const Dialect& d = session.dialect();
    const QString table =
        d.table(QStringLiteral("Sales"), QString::fromLatin1(kOnlineSalesDatabase));
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(ItemCode, 0) AS ItemCode, "
                                       "COALESCE(Amount, 0) AS Amount FROM ") +
                            table + QStringLiteral(" WHERE ") + d.quote(QStringLiteral("Date")) +
                            QStringLiteral(" = :date AND Receipt = :receipt AND ScaleNo = :scale"));
    q.bind(QStringLiteral(":date"), date);
    q.bind(QStringLiteral(":receipt"), receipt);
    q.bind(QStringLiteral(":scale"), scale);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<TicketLine> lines;
    while (q.next()) {
        lines.append({QString::number(q.int64(0)), q.number(1)});
    }
    return lines;
}

std::optional<SaleLookups::TicketGoods> SaleLookups::goodsBySpecCode(Session& session,
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

}  // namespace sandogh
