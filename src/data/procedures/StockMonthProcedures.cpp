#include "data/procedures/StockMonthProcedures.h"

#include "data/SqlInList.h"
#include "data/SqlQuery.h"

namespace sandogh::procedures {

namespace {

const QStringList kFigures = {
    QStringLiteral("PurchaseQty"),       QStringLiteral("PurchaseValue"),
    QStringLiteral("PurchaseReturnQty"), QStringLiteral("SaleQty"),
    QStringLiteral("SaleAmount"),        QStringLiteral("ReturnQty"),
    QStringLiteral("ReturnAmount"),      QStringLiteral("SaleLines"),
    QStringLiteral("InternalIn"),        QStringLiteral("InternalOut"),
};

const QString kQty = QStringLiteral("COALESCE(D.Qty, 0)");
const QString kAmount = QStringLiteral("COALESCE(D.Price, 0)");
const QString kLanded = QStringLiteral(
    "COALESCE((D.MFee - (D.MFee * D.Discount / 100.0)) + "
    "((D.MFee - (D.MFee * D.Discount / 100.0)) * D.TaxValue / 100.0), 0)");
const QString kZero = QStringLiteral("0");

QString when(const QString& kinds, const QString& value) {
    return QStringLiteral("CASE WHEN H.TransType IN (%1) THEN %2 ELSE 0 END").arg(kinds, value);
}

// One row per line of the stock-moving kinds: its month, article and the figures of
// StockMonth in their order (named, so that the union's columns bear their names).
QString lines(const QString& detail, const QString& header, const QStringList& figures,
              const QString& condition) {
    QStringList named;
    for (int i = 0; i < kFigures.size(); ++i) {
        named << figures.at(i) + QStringLiteral(" AS ") + kFigures.at(i);
    }
    return QStringLiteral(
               "SELECT SUBSTRING(H.DocDate, 1, 7) AS YearMonth, D.EAN_Code AS "
               "Barcode, %1 FROM %2 D INNER JOIN %3 H ON H.Code = D.Code WHERE "
               "H.TransType IN (1, 2, 3, 4) AND H.DocDate IS NOT NULL AND "
               "D.EAN_Code IS NOT NULL")
               .arg(named.join(QStringLiteral(", ")), detail, header) +
           condition;
}

QString ordinaryLines(const QString& condition) {
    const QStringList figures{when(QStringLiteral("1"), kQty),
                              when(QStringLiteral("1"), kQty + QStringLiteral(" * ") + kLanded),
                              when(QStringLiteral("4"), kQty),
                              when(QStringLiteral("2"), kQty),
                              when(QStringLiteral("2"), kAmount),
                              when(QStringLiteral("3"), kQty),
                              when(QStringLiteral("3"), kAmount),
                              when(QStringLiteral("2, 3"), QStringLiteral("1")),
                              kZero,
                              kZero};
    return lines(QStringLiteral("Whs_QTYDocD"), QStringLiteral("Whs_QTYDocH"), figures,
                 QStringLiteral(" AND H.DocType IS NULL") + condition);
}

QString internalLines(const QString& condition) {
    const QStringList figures{kZero,
                              kZero,
                              kZero,
                              kZero,
                              kZero,
                              kZero,
                              kZero,
                              kZero,
                              when(QStringLiteral("1, 3"), kQty),
                              when(QStringLiteral("2, 4"), kQty)};
    return lines(QStringLiteral("Whs_QTYDocDInternal"), QStringLiteral("Whs_QTYDocHInternal"),
                 figures, condition);
}

QString columns() {
    return QStringLiteral("YearMonth, Barcode, ") + kFigures.join(QStringLiteral(", "));
}

// The lines summed per month and article, each sum after factor ("" or ":sign * ").
QString summed(const QString& rows, const QString& factor) {
    QStringList sums;
    for (const QString& f : kFigures) {
        sums << QStringLiteral("%1SUM(M.%2)").arg(factor, f);
    }
    return QStringLiteral("SELECT M.YearMonth, M.Barcode, ") + sums.join(QStringLiteral(", ")) +
           QStringLiteral(" FROM (") + rows +
           QStringLiteral(") M WHERE M.Barcode IS NOT NULL GROUP BY M.YearMonth, M.Barcode");
}

QString fill(const QString& condition) {
    return QStringLiteral("INSERT INTO StockMonth (%1) ").arg(columns()) +
           summed(
               ordinaryLines(condition) + QStringLiteral(" UNION ALL ") + internalLines(condition),
               QString());
}

// Adds the summed rows to those there are (the sums of a document taken out are negative).
// SQLite and PostgreSQL insert or add in one statement (ON CONFLICT; a row another
// transaction is adding is waited for, then added to); SQL Server merges under a key lock.
QString upsert(Backend backend, const QString& rows) {
    QStringList added;
    if (backend == Backend::SqlServer) {
        QStringList values;
        for (const QString& f : kFigures) {
            added << QStringLiteral("%1 = T.%1 + S.%1").arg(f);
            values << QStringLiteral("S.") + f;
        }
        return QStringLiteral(
                   "MERGE INTO StockMonth WITH (HOLDLOCK) AS T USING (%1) AS S (%2) "
                   "ON T.YearMonth = S.YearMonth AND T.Barcode = S.Barcode "
                   "WHEN MATCHED THEN UPDATE SET %3 WHEN NOT MATCHED THEN "
                   "INSERT (%2) VALUES (S.YearMonth, S.Barcode, %4);")
            .arg(rows, columns(), added.join(QStringLiteral(", ")),
                 values.join(QStringLiteral(", ")));
    }
    for (const QString& f : kFigures) {
        added << QStringLiteral("%1 = StockMonth.%1 + excluded.%1").arg(f);
    }
    return QStringLiteral(
               "INSERT INTO StockMonth (%1) %2 ON CONFLICT (Barcode, YearMonth) DO "
               "UPDATE SET %3")
        .arg(columns(), rows, added.join(QStringLiteral(", ")));
}

}  // namespace

QString stockMonthFillSql() {
    return fill(QString());
}

bool stockMonthRebuild(Session& session, const QStringList& barcodes) {
    if (barcodes.isEmpty()) {
        return session.exec(QStringLiteral("DELETE FROM StockMonth")) &&
               session.exec(stockMonthFillSql());
    }
    const SqlInList list = SqlInList::of(barcodes);
    return session.exec(
               QStringLiteral("DELETE FROM StockMonth WHERE Barcode IN (%1)").arg(list.names),
               list.binds) &&
           session.exec(fill(QStringLiteral(" AND D.EAN_Code IN (%1)").arg(list.names)),
                        list.binds);
}

bool stockMonthApply(Session& session, qint64 code, int sign, bool internal) {
    const QString condition = QStringLiteral(" AND D.Code = :code");
    const QString rows = summed(internal ? internalLines(condition) : ordinaryLines(condition),
                                QStringLiteral(":sign * "));
    return session.exec(upsert(session.backend(), rows),
                        {{QStringLiteral(":sign"), sign}, {QStringLiteral(":code"), code}});
}

}  // namespace sandogh::procedures
