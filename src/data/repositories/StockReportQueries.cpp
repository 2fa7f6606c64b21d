#include "data/repositories/StockReportQueries.h"

#include <QHash>

#include "data/SqlQuery.h"
#include "data/repositories/ReportMonths.h"

namespace sandogh {

namespace {

using namespace reportrows;

// In for purchases and sale returns, out for sales and purchase returns.
const QString kSignedQty = QStringLiteral(
    "SUM(CASE WHEN H.TransType = 1 OR H.TransType = 3 THEN COALESCE(D.Qty, 0) "
    "ELSE -COALESCE(D.Qty, 0) END)");

bool collect(SqlQuery& q, const SqlBinds& binds, QList<ArticleStock>& rows) {
    for (const auto& [name, value] : binds) {
        q.bindValue(name, value);
    }
    if (!q.exec()) {
        return false;
    }
    while (q.next()) {
        rows.append({q.text(0), QString(), q.number(1)});
    }
    return true;
}

}  // namespace

std::optional<QList<ArticleStock>> StockReportQueries::onHand(Session& session,
                                                              std::optional<int> goodsGroup) {
    QString sql = QStringLiteral(
        "SELECT S.Barcode, G.Name, COALESCE(S.Stock, 0) FROM Stock S "
        "LEFT JOIN Goods G ON G.EAN_Code = S.Barcode");
    if (goodsGroup) {
        sql += QStringLiteral(" WHERE G.Spec_Group = :goodsGroup");
    }
    SqlQuery q(session, sql);
    if (goodsGroup) {
        q.bind(QStringLiteral(":goodsGroup"), *goodsGroup);
    }
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<ArticleStock> rows;
    while (q.next()) {
        rows.append({q.text(0), q.text(1), q.number(2)});
    }
    return rows;
}

std::optional<QList<ArticleStock>> StockReportQueries::movedAfter(Session& session,
                                                                  const QString& asOf) {
    return moved(session, asOf, true);
}

std::optional<QList<ArticleStock>> StockReportQueries::movedUpTo(Session& session,
                                                                 const QString& asOf) {
    return moved(session, asOf, false);
}

std::optional<QList<ArticleStock>> StockReportQueries::moved(Session& session, const QString& asOf,
                                                             bool after) {
    QList<ArticleStock> rows;
    // The months before asOf's month (with it when asOf is its last day) or after it from
    // StockMonth; the rest of that month from the lines.
    const auto month = ReportMonths::monthOf(asOf);
    const bool monthEnd = month && asOf == month->last;
    QString days;
    SqlBinds binds{{QStringLiteral(":asOf"), asOf}};
    if (!month) {
        days = after ? QStringLiteral("H.DocDate > :asOf") : QStringLiteral("H.DocDate <= :asOf");
    } else if (!monthEnd) {
        days = after ? QStringLiteral("H.DocDate > :asOf AND H.DocDate <= :last")
                     : QStringLiteral("H.DocDate >= :first AND H.DocDate <= :asOf");
        binds.append({after ? QStringLiteral(":last") : QStringLiteral(":first"),
                      after ? month->last : month->first});
    }
    const QString tables[][2] = {
        {QStringLiteral("Whs_QTYDocH"), QStringLiteral("Whs_QTYDocD")},
        {QStringLiteral("Whs_QTYDocHInternal"), QStringLiteral("Whs_QTYDocDInternal")},
    };
    for (int t = 0; t < 2 && !days.isEmpty(); ++t) {
        // Ordinary documents only among the first pair; internal ones have no DocType.
        const QString ordinary = t == 0 ? QStringLiteral(" AND H.DocType IS NULL") : QString();
        SqlQuery q(session, QStringLiteral("SELECT D.EAN_Code, ") + kSignedQty +
                                QStringLiteral(" FROM %1 H INNER JOIN %2 D ON D.Code = H.Code "
                                               "WHERE H.TransType IN (1, 2, 3, 4) AND ")
                                    .arg(tables[t][0], tables[t][1]) +
                                days + ordinary + QStringLiteral(" GROUP BY D.EAN_Code"));
        if (!collect(q, binds, rows)) {
            return std::nullopt;
        }
    }
    if (month) {
        const QString months = after      ? QStringLiteral(">")
                               : monthEnd ? QStringLiteral("<=")
                                          : QStringLiteral("<");
        SqlQuery q(session, QStringLiteral("SELECT Barcode, SUM(PurchaseQty + ReturnQty + "
                                           "InternalIn - SaleQty - PurchaseReturnQty - "
                                           "InternalOut) FROM StockMonth WHERE YearMonth %1 "
                                           ":month GROUP BY Barcode")
                                .arg(months));
        if (!collect(q, {{QStringLiteral(":month"), month->month}}, rows)) {
            return std::nullopt;
        }
    }
    return rows;
}

std::optional<QList<PurchaseCost>> StockReportQueries::purchaseCosts(Session& session,
                                                                     const QString& asOf) {
    // As moved(): the months before asOf's from StockMonth, the rest from the lines.
    const auto month = ReportMonths::monthOf(asOf);
    const bool monthEnd = month && asOf == month->last;
    QHash<QString, PurchaseCost> byBarcode;
    QStringList order;
    const auto add = [&](SqlQuery& q) {
        while (q.next()) {
            const QString barcode = q.text(0);
            auto it = byBarcode.find(barcode);
            if (it == byBarcode.end()) {
                order << barcode;
                it = byBarcode.insert(barcode, PurchaseCost{barcode, 0, 0});
            }
            it->quantity += q.number(1);
            it->landedValue += q.number(2);
        }
    };
    if (!monthEnd) {
        SqlQuery q(session,
                   QStringLiteral("SELECT D.EAN_Code, SUM(COALESCE(D.Qty, 0)), SUM(COALESCE(D.Qty, "
                                  "0) * COALESCE((D.MFee - (D.MFee * D.Discount / 100.0)) + "
                                  "((D.MFee - (D.MFee * D.Discount / 100.0)) * D.TaxValue / "
                                  "100.0), 0)) FROM Whs_QTYDocH H INNER JOIN Whs_QTYDocD D ON "
                                  "D.Code = H.Code WHERE H.TransType = 1 AND H.DocType IS NULL "
                                  "AND H.DocDate <= :asOf") +
                       (month ? QStringLiteral(" AND H.DocDate >= :first") : QString()) +
                       QStringLiteral(" GROUP BY D.EAN_Code"));
        q.bind(QStringLiteral(":asOf"), asOf);
        if (month) {
            q.bind(QStringLiteral(":first"), month->first);
        }
        if (!q.exec()) {
            return std::nullopt;
        }
        add(q);
    }
    if (month) {
        SqlQuery q(session, QStringLiteral("SELECT Barcode, SUM(PurchaseQty), SUM(PurchaseValue) "
                                           "FROM StockMonth WHERE YearMonth %1 :month AND "
                                           "(PurchaseQty <> 0 OR PurchaseValue <> 0) GROUP BY "
                                           "Barcode")
                                .arg(monthEnd ? QStringLiteral("<=") : QStringLiteral("<")));
        q.bind(QStringLiteral(":month"), month->month);
        if (!q.exec()) {
            return std::nullopt;
        }
        add(q);
    }
    QList<PurchaseCost> rows;
    rows.reserve(order.size());
    for (const QString& barcode : std::as_const(order)) {
        rows.append(byBarcode.value(barcode));
    }
    return rows;
}

}  // namespace sandogh
