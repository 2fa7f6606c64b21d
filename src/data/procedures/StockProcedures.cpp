#include "data/procedures/StockProcedures.h"

#include <optional>

#include "data/SqlInList.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/StockMonthProcedures.h"

namespace sandogh::procedures {

namespace {

// Barcodes per statement of a scoped repair: far below every backend's limit of bound
// values, and a document rarely has more lines.
constexpr qsizetype kBarcodesPerStatement = 200;

const QString kAddMissingRows = QStringLiteral(
    "INSERT INTO Stock (Barcode, Import, Export, Stock, Branch) "
    "SELECT G.EAN_Code, 0, 0, 0, 1 FROM Goods G "
    "WHERE NOT EXISTS (SELECT 1 FROM Stock S WHERE S.Barcode = G.EAN_Code)");

const QString kRecomputeMovements = QStringLiteral(
    "UPDATE Stock SET "
    "Import = COALESCE((SELECT SUM(D.Qty) FROM Whs_QTYDocD D INNER JOIN Whs_QTYDocH H "
    "ON H.Code = D.Code WHERE D.EAN_Code = Stock.Barcode AND H.DocType IS NULL "
    "AND (H.TransType = 1 OR H.TransType = 3)), 0) "
    "+ COALESCE((SELECT SUM(D.Qty) FROM Whs_QTYDocDInternal D INNER JOIN Whs_QTYDocHInternal H "
    "ON H.Code = D.Code WHERE D.EAN_Code = Stock.Barcode "
    "AND (H.TransType = 1 OR H.TransType = 3)), 0), "
    "Export = COALESCE((SELECT SUM(D.Qty) FROM Whs_QTYDocD D INNER JOIN Whs_QTYDocH H "
    "ON H.Code = D.Code WHERE D.EAN_Code = Stock.Barcode AND H.DocType IS NULL "
    "AND (H.TransType = 2 OR H.TransType = 4)), 0) "
    "+ COALESCE((SELECT SUM(D.Qty) FROM Whs_QTYDocDInternal D INNER JOIN Whs_QTYDocHInternal H "
    "ON H.Code = D.Code WHERE D.EAN_Code = Stock.Barcode "
    "AND (H.TransType = 2 OR H.TransType = 4)), 0)");

// Import and Export are final by now (SQL reads the old row on the right of SET).
const QString kRecomputeStock = QStringLiteral("UPDATE Stock SET Stock = Import - Export");

// Quantities of one document's lines per article, into the article's Stock row. SET reads
// the row as it was on every right-hand side, so Stock moves by in - out.
const QString kApplyDocument = QStringLiteral(
    "UPDATE Stock SET "
    "Import = Import + :sign * COALESCE((SELECT SUM(D.Qty) FROM %1 D INNER JOIN %2 H "
    "ON H.Code = D.Code WHERE D.Code = :code AND D.EAN_Code = Stock.Barcode%3 "
    "AND (H.TransType = 1 OR H.TransType = 3)), 0), "
    "Export = Export + :sign * COALESCE((SELECT SUM(D.Qty) FROM %1 D INNER JOIN %2 H "
    "ON H.Code = D.Code WHERE D.Code = :code AND D.EAN_Code = Stock.Barcode%3 "
    "AND (H.TransType = 2 OR H.TransType = 4)), 0), "
    "Stock = Stock + :sign * COALESCE((SELECT SUM(CASE WHEN H.TransType = 1 OR H.TransType = 3 "
    "THEN D.Qty WHEN H.TransType = 2 OR H.TransType = 4 THEN -D.Qty ELSE 0 END) FROM %1 D "
    "INNER JOIN %2 H ON H.Code = D.Code WHERE D.Code = :code AND D.EAN_Code = Stock.Barcode%3), "
    "0) "
    "WHERE Barcode IN (SELECT D.EAN_Code FROM %1 D WHERE D.Code = :code)");
const QString kOrdinaryOnly = QStringLiteral(" AND H.DocType IS NULL");

const QString kMissingRows = QStringLiteral(
    "SELECT G.EAN_Code FROM Goods G WHERE NOT EXISTS "
    "(SELECT 1 FROM Stock S WHERE S.Barcode = G.EAN_Code)");

// The signed quantity of an article's lines: in for 1 and 3, out for 2 and 4.
const QString kOrdinaryBalance = QStringLiteral(
    "SELECT COALESCE(SUM(CASE WHEN H.TransType = 1 OR H.TransType = 3 THEN D.Qty "
    "WHEN H.TransType = 2 OR H.TransType = 4 THEN -D.Qty ELSE 0 END), 0) "
    "FROM Whs_QTYDocD D INNER JOIN Whs_QTYDocH H ON H.Code = D.Code "
    "WHERE D.EAN_Code = :barcode AND H.DocType IS NULL");
const QString kWarehouseBalance =
    kOrdinaryBalance + QStringLiteral(" AND H.WarehouseCode = :warehouse");
const QString kInternalBalance = QStringLiteral(
    "SELECT COALESCE(SUM(CASE WHEN H.TransType = 1 OR H.TransType = 3 THEN D.Qty "
    "WHEN H.TransType = 2 OR H.TransType = 4 THEN -D.Qty ELSE 0 END), 0) "
    "FROM Whs_QTYDocDInternal D INNER JOIN Whs_QTYDocHInternal H ON H.Code = D.Code "
    "WHERE D.EAN_Code = :barcode");

// " AND|WHERE <column> IN (:b0, :b1, ...)" with the values bound to the same names.
struct Scope {
    QString condition;
    SqlBinds binds;
};

Scope scopeOf(const QString& joiner, const QString& column, const QStringList& barcodes) {
    if (barcodes.isEmpty()) {
        return {};
    }
    const SqlInList list = SqlInList::of(barcodes);
    return {QStringLiteral(" %1 %2 IN (%3)").arg(joiner, column, list.names), list.binds};
}

bool repair(Session& session, const QStringList& barcodes) {
    const Scope goods = scopeOf(QStringLiteral("AND"), QStringLiteral("G.EAN_Code"), barcodes);
    const Scope stock = scopeOf(QStringLiteral("WHERE"), QStringLiteral("Barcode"), barcodes);
    return session.exec(kAddMissingRows + goods.condition, goods.binds) &&
           session.exec(kRecomputeMovements + stock.condition, stock.binds) &&
           session.exec(kRecomputeStock + stock.condition, stock.binds) &&
           stockMonthRebuild(session, barcodes);
}

}  // namespace

bool sp_StockRepair(Session& session, const QStringList& barcodes) {
    if (!session) {
        return false;
    }
    std::optional<Transaction> own;
    if (!session.inTransaction()) {
        own.emplace(session);
        if (!own->isActive()) {
            return false;
        }
    }
    if (barcodes.isEmpty()) {
        if (!repair(session, {})) {
            return false;
        }
    } else {
        QStringList unique;
        for (const QString& barcode : barcodes) {
            if (!unique.contains(barcode)) {
                unique << barcode;
            }
        }
        for (qsizetype from = 0; from < unique.size(); from += kBarcodesPerStatement) {
            if (!repair(session, unique.mid(from, kBarcodesPerStatement))) {
                return false;
            }
        }
    }
    return !own || own->commit();
}

bool stockApplyDocument(Session& session, qint64 code, int sign) {
    return session.exec(kApplyDocument.arg(QStringLiteral("Whs_QTYDocD"),
                                           QStringLiteral("Whs_QTYDocH"), kOrdinaryOnly),
                        {{QStringLiteral(":sign"), sign}, {QStringLiteral(":code"), code}}) &&
           stockMonthApply(session, code, sign, false);
}

bool stockApplyInternalDocument(Session& session, qint64 code, int sign) {
    return session.exec(kApplyDocument.arg(QStringLiteral("Whs_QTYDocDInternal"),
                                           QStringLiteral("Whs_QTYDocHInternal"), QString()),
                        {{QStringLiteral(":sign"), sign}, {QStringLiteral(":code"), code}}) &&
           stockMonthApply(session, code, sign, true);
}

qint64 stockRowCount(Session& session, const QString& barcode) {
    if (barcode.isEmpty()) {
        return session.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Stock"), {}, -1);
    }
    return session.scalarInt64(
        QStringLiteral("SELECT COUNT(*) FROM Stock WHERE Barcode = :barcode"),
        {{QStringLiteral(":barcode"), barcode}}, -1);
}

std::optional<QStringList> stockRowsMissing(Session& session, const QStringList& barcodes) {
    QStringList missing;
    for (qsizetype from = 0; from < barcodes.size(); from += kBarcodesPerStatement) {
        const Scope scope = scopeOf(QStringLiteral("AND"), QStringLiteral("G.EAN_Code"),
                                    barcodes.mid(from, kBarcodesPerStatement));
        SqlQuery q(session, kMissingRows + scope.condition);
        for (const auto& [name, value] : scope.binds) {
            q.bindValue(name, value);
        }
        if (!q.exec()) {
            return std::nullopt;
        }
        while (q.next()) {
            if (!missing.contains(q.text(0))) {
                missing << q.text(0);
            }
        }
    }
    return missing;
}

double SP_ComputeWarehouseQtyByEanCode(Session& session, const QString& barcode,
                                       const QString& warehouseCode) {
    const QString warehouse = warehouseCode.trimmed();
    bool numeric = false;
    const int code = warehouse.toInt(&numeric);
    if (!warehouse.isEmpty() && (!numeric || code != 0)) {
        if (!numeric) {
            return 0;  // no warehouse has such a code
        }
        return session.scalarNumber(kWarehouseBalance, {{QStringLiteral(":barcode"), barcode},
                                                        {QStringLiteral(":warehouse"), code}});
    }
    const SqlBinds binds{{QStringLiteral(":barcode"), barcode}};
    return session.scalarNumber(kOrdinaryBalance, binds) +
           session.scalarNumber(kInternalBalance, binds);
}

}  // namespace sandogh::procedures
