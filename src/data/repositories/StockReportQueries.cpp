#include "data/repositories/StockReportQueries.h"

#include "data/SqlQuery.h"

namespace sandogh {

namespace {

using namespace reportrows;

// In for purchases and sale returns, out for sales and purchase returns.
const QString kSignedQty = QStringLiteral(
    "SUM(CASE WHEN H.TransType = 1 OR H.TransType = 3 THEN COALESCE(D.Qty, 0) "
    "ELSE -COALESCE(D.Qty, 0) END)");

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
    return moved(session, asOf, QStringLiteral(">"));
}

std::optional<QList<ArticleStock>> StockReportQueries::movedUpTo(Session& session,
                                                                 const QString& asOf) {
    return moved(session, asOf, QStringLiteral("<="));
}

std::optional<QList<ArticleStock>> StockReportQueries::moved(Session& session, const QString& asOf,
                                                             const QString& comparison) {
    QList<ArticleStock> rows;
    const QString tables[][2] = {
        {QStringLiteral("Whs_QTYDocH"), QStringLiteral("Whs_QTYDocD")},
        {QStringLiteral("Whs_QTYDocHInternal"), QStringLiteral("Whs_QTYDocDInternal")},
    };
    for (int t = 0; t < 2; ++t) {
        // Ordinary documents only among the first pair; internal ones have no DocType.
        const QString ordinary = t == 0 ? QStringLiteral(" AND H.DocType IS NULL") : QString();
        SqlQuery q(session, QStringLiteral("SELECT D.EAN_Code, ") + kSignedQty +
                                QStringLiteral(" FROM %1 H INNER JOIN %2 D ON D.Code = H.Code "
                                               "WHERE H.TransType IN (1, 2, 3, 4) AND "
                                               "H.DocDate %3 :asOf")
                                    .arg(tables[t][0], tables[t][1], comparison) +
                                ordinary + QStringLiteral(" GROUP BY D.EAN_Code"));
        q.bind(QStringLiteral(":asOf"), asOf);
        if (!q.exec()) {
            return std::nullopt;
        }
        while (q.next()) {
            rows.append({q.text(0), QString(), q.number(1)});
        }
    }
    return rows;
}

std::optional<QList<PurchaseCost>> StockReportQueries::purchaseCosts(Session& session,
                                                                     const QString& asOf) {
    SqlQuery q(session, QStringLiteral(
                            "SELECT D.EAN_Code, SUM(COALESCE(D.Qty, 0)), SUM(COALESCE(D.Qty, 0) * "
                            "COALESCE((D.MFee - (D.MFee * D.Discount / 100.0)) + "
                            "((D.MFee - (D.MFee * D.Discount / 100.0)) * D.TaxValue / 100.0), 0)) "
                            "FROM Whs_QTYDocH H INNER JOIN Whs_QTYDocD D ON D.Code = H.Code "
                            "WHERE H.TransType = 1 AND H.DocType IS NULL AND H.DocDate <= :asOf "
                            "GROUP BY D.EAN_Code"));
    q.bind(QStringLiteral(":asOf"), asOf);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<PurchaseCost> rows;
    while (q.next()) {
        rows.append({q.text(0), q.number(1), q.number(2)});
    }
    return rows;
}

}  // namespace sandogh
