#include "data/repositories/SalesReportQueries.h"

#include "data/SqlQuery.h"
#include "data/repositories/ReportConditions.h"
#include "data/repositories/ReportMonths.h"

namespace sandogh {

namespace {

using namespace reportrows;

// Ordinary sales and sale returns under alias H.
const QString kSaleKinds = QStringLiteral(" WHERE H.TransType IN (2, 3) AND H.DocType IS NULL");

// A figure of a sale counts up and of a return down.
QString signedBy(const QString& column) {
    return QStringLiteral(
               "CASE WHEN H.TransType = 2 THEN COALESCE(%1, 0) ELSE -COALESCE(%1, 0) END")
        .arg(column);
}

bool run(SqlQuery& q, const SqlBinds& binds) {
    for (const auto& [name, value] : binds) {
        q.bindValue(name, value);
    }
    return q.exec();
}

}  // namespace

std::optional<QList<DayKind>> SalesReportQueries::days(Session& session,
                                                       const ReportFilter& filter) {
    SqlBinds binds;
    SqlQuery q(session,
               QStringLiteral("SELECT H.DocDate, H.TransType, COUNT(H.Code), "
                              "SUM(COALESCE(H.DocSum, 0)), SUM(COALESCE(H.ReceivedPrice, 0)) "
                              "FROM Whs_QTYDocH H") +
                   kSaleKinds + ReportConditions::headers(filter, binds) +
                   QStringLiteral(" GROUP BY H.DocDate, H.TransType"));
    if (!run(q, binds)) {
        return std::nullopt;
    }
    QList<DayKind> rows;
    while (q.next()) {
        rows.append({q.text(0), q.integer(1), q.int64(2), q.number(3), q.number(4)});
    }
    return rows;
}

std::optional<QList<ArticleSales>> SalesReportQueries::articles(Session& session,
                                                                const ReportFilter& filter) {
    SqlBinds binds;
    const QString lineSums =
        QStringLiteral("SELECT D.EAN_Code AS EAN_Code, SUM(") + signedBy(QStringLiteral("D.Qty")) +
        QStringLiteral(") AS Qty, SUM(") + signedBy(QStringLiteral("D.Price")) +
        QStringLiteral(
            ") AS Amount FROM Whs_QTYDocH H INNER JOIN Whs_QTYDocD D ON D.Code = "
            "H.Code") +
        kSaleKinds;
    const QString perArticle = QStringLiteral(" GROUP BY D.EAN_Code");
    QStringList parts;
    if (filter.stationId || filter.shiftCode || filter.userId) {
        // The months know no desk, shift or user: every line of the range is read.
        parts << lineSums + ReportConditions::headers(filter, binds) + perArticle;
    } else {
        // Whole months from their sums per article, the days around them from the lines.
        const ReportMonths::Range range = ReportMonths::split(filter.from, filter.to);
        const auto days = [&](const ReportMonths::Days& d, const QString& name) {
            binds.append({QStringLiteral(":%1From").arg(name), d.from});
            binds.append({QStringLiteral(":%1To").arg(name), d.to});
            return lineSums +
                   QStringLiteral(" AND H.DocDate >= :%1From AND H.DocDate <= :%1To").arg(name) +
                   perArticle;
        };
        if (range.head) {
            parts << days(*range.head, QStringLiteral("head"));
        }
        if (range.hasMonths()) {
            parts << QStringLiteral(
                "SELECT Barcode AS EAN_Code, SUM(SaleQty - ReturnQty) AS Qty, "
                "SUM(SaleAmount - ReturnAmount) AS Amount FROM StockMonth WHERE YearMonth >= "
                ":firstMonth AND YearMonth <= :lastMonth AND SaleLines <> 0 GROUP BY Barcode");
            binds.append({QStringLiteral(":firstMonth"), range.firstMonth});
            binds.append({QStringLiteral(":lastMonth"), range.lastMonth});
        }
        if (range.tail) {
            parts << days(*range.tail, QStringLiteral("tail"));
        }
    }
    const QString sums =
        parts.size() == 1
            ? parts.first()
            : QStringLiteral(
                  "SELECT U.EAN_Code, SUM(U.Qty) AS Qty, SUM(U.Amount) AS Amount FROM (") +
                  parts.join(QStringLiteral(" UNION ALL ")) +
                  QStringLiteral(") U GROUP BY U.EAN_Code");
    // The lines are summed per article first and the names joined to the sums, so each
    // article's name is looked up once rather than once per line. In barcode order, so that
    // articles of equal figures keep one order in the sorted reports.
    SqlQuery q(session, QStringLiteral("SELECT A.EAN_Code, G.Name, A.Qty, A.Amount FROM (") + sums +
                            QStringLiteral(") A LEFT JOIN Goods G ON G.EAN_Code = A.EAN_Code") +
                            ReportConditions::goodsGroupWhere(filter, binds) +
                            QStringLiteral(" ORDER BY A.EAN_Code"));
    if (!run(q, binds)) {
        return std::nullopt;
    }
    QList<ArticleSales> rows;
    while (q.next()) {
        rows.append({q.text(0), q.text(1), q.number(2), q.number(3)});
    }
    return rows;
}

std::optional<QList<DeskShiftKind>> SalesReportQueries::desks(Session& session,
                                                              const ReportFilter& filter) {
    SqlBinds binds;
    SqlQuery q(session,
               QStringLiteral("SELECT COALESCE(H.StationID, 0), MAX(S.Station_Name), "
                              "COALESCE(H.ShiftCode, 0), MAX(SH.Name), H.TransType, "
                              "COUNT(H.Code), SUM(COALESCE(H.DocSum, 0)), "
                              "SUM(COALESCE(H.ReceivedPrice, 0)) FROM Whs_QTYDocH H "
                              "LEFT JOIN Stations S ON S.ID = H.StationID "
                              "LEFT JOIN tblShift SH ON SH.Code = H.ShiftCode") +
                   kSaleKinds + ReportConditions::headers(filter, binds) +
                   QStringLiteral(" GROUP BY COALESCE(H.StationID, 0), COALESCE(H.ShiftCode, "
                                  "0), H.TransType"));
    if (!run(q, binds)) {
        return std::nullopt;
    }
    QList<DeskShiftKind> rows;
    while (q.next()) {
        rows.append({q.integer(0), q.text(1), q.integer(2), q.text(3), q.integer(4), q.int64(5),
                     q.number(6), q.number(7)});
    }
    return rows;
}

std::optional<QList<AccountShare>> SalesReportQueries::accountShares(Session& session,
                                                                     const ReportFilter& filter) {
    SqlBinds binds;
    const QString isCustomer =
        QStringLiteral("CASE WHEN DD.AccountingGroupID = T.AccountingGroupID THEN 1 ELSE 0 END");
    SqlQuery q(session,
               QStringLiteral("SELECT DD.AccountingGroupID, MAX(B.PosId), ") + isCustomer +
                   QStringLiteral(", SUM(CASE WHEN H.TransType = 2 THEN COALESCE(DD.Debt, 0) "
                                  "ELSE -COALESCE(DD.Credit, 0) END) FROM Whs_QTYDocH H "
                                  "INNER JOIN tblDocumentD DD ON DD.DocumentHID = H.DocumentHID "
                                  "LEFT JOIN tblBanks B ON B.AccountingGroupId = "
                                  "DD.AccountingGroupID LEFT JOIN Types T ON T.Counter = "
                                  "H.CompanyID") +
                   kSaleKinds + ReportConditions::headers(filter, binds) +
                   QStringLiteral(" GROUP BY DD.AccountingGroupID, ") + isCustomer);
    if (!run(q, binds)) {
        return std::nullopt;
    }
    QList<AccountShare> rows;
    while (q.next()) {
        const QString pos = q.isNull(1) ? QString() : QString::number(q.int64(1));
        rows.append({q.integer(0), pos, q.integer(2) == 1, q.number(3)});
    }
    return rows;
}

std::optional<double> SalesReportQueries::giftCards(Session& session, const ReportFilter& filter) {
    SqlBinds binds;
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(SUM(") +
                            signedBy(QStringLiteral("GI.Amount")) +
                            QStringLiteral("), 0) FROM Whs_QTYDocH H INNER JOIN tblGiftCardItem "
                                           "GI ON GI.DocHCode = H.Code") +
                            kSaleKinds + ReportConditions::headers(filter, binds));
    if (!run(q, binds)) {
        return std::nullopt;
    }
    return q.next() ? q.number(0) : 0.0;
}

std::optional<double> SalesReportQueries::cheques(Session& session, const ReportFilter& filter) {
    SqlBinds binds;
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(SUM(") +
                            signedBy(QStringLiteral("C.Price")) +
                            QStringLiteral("), 0) FROM Whs_QTYDocH H INNER JOIN "
                                           "tblChequeAndTravel C ON C.DocumentHID = "
                                           "H.DocumentHID") +
                            kSaleKinds + ReportConditions::headers(filter, binds) +
                            QStringLiteral(" AND ((H.TransType = 2 AND C.TransType = 0) OR "
                                           "(H.TransType = 3 AND C.TransType = 1))"));
    if (!run(q, binds)) {
        return std::nullopt;
    }
    return q.next() ? q.number(0) : 0.0;
}

}  // namespace sandogh
