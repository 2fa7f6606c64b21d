#include "data/repositories/InternalPrices.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kGoods = QStringLiteral(
    "SELECT COALESCE(G.Name, ''), COALESCE(G.Cost, 0), COALESCE(G.TaxValue, 0), G.GType, "
    "COALESCE(S.Stock, 0) FROM Goods G LEFT JOIN Stock S ON S.Barcode = G.EAN_Code "
    "WHERE G.EAN_Code = :barcode");

QString lastInternalFee(const Dialect& d, bool limited) {
    return QStringLiteral("SELECT ") + d.top(1) +
           QStringLiteral(
               "D.Fee FROM Whs_QTYDocDInternal D INNER JOIN Whs_QTYDocHInternal H "
               "ON H.Code = D.Code INNER JOIN Goods G ON G.EAN_Code = D.EAN_Code "
               "WHERE D.EAN_Code = :barcode") +
           (limited ? QStringLiteral(" AND H.DocDate <= :date") : QString()) +
           QStringLiteral(" ORDER BY D.ID DESC") + d.limit(1);
}

QString lastPurchaseFee(const Dialect& d) {
    return QStringLiteral("SELECT ") + d.top(1) +
           QStringLiteral(
               "D.Fee FROM Whs_QTYDocD D INNER JOIN Whs_QTYDocH H ON H.Code = D.Code "
               "WHERE H.TransType = 1 AND H.DocType IS NULL AND D.EAN_Code = :barcode "
               "ORDER BY D.ID DESC") +
           d.limit(1);
}

// The Fee of the first row, 0 without one; nothing when the statement failed.
std::optional<double> firstFee(SqlQuery& q) {
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() ? q.number(0) : 0.0;
}

}  // namespace

InternalPrices::Mode InternalPrices::modeOf(int number) {
    switch (number) {
        case static_cast<int>(Mode::Master):
            return Mode::Master;
        case static_cast<int>(Mode::LastPurchase):
            return Mode::LastPurchase;
        default:
            return Mode::LastInternal;
    }
}

std::optional<InternalPrices::Row> InternalPrices::priced(Session& session, const QString& barcode,
                                                          Mode mode, const QString& dateLimit) {
    SqlQuery goods(session, kGoods);
    goods.bind(QStringLiteral(":barcode"), barcode);
    if (!goods.exec()) {
        return std::nullopt;
    }
    Row row;
    if (goods.next()) {
        row.found = true;
        row.name = goods.text(0).trimmed();
        row.price = goods.number(1);
        row.taxPercent = goods.number(2);
        row.kind = goods.integer(3);
        row.stock = goods.number(4);
    }
    if (!row.found || mode == Mode::Master) {
        return row;
    }
    const bool limited = !dateLimit.trimmed().isEmpty();
    SqlQuery fee(session, mode == Mode::LastInternal ? lastInternalFee(session.dialect(), limited)
                                                     : lastPurchaseFee(session.dialect()));
    fee.bind(QStringLiteral(":barcode"), barcode);
    if (mode == Mode::LastInternal && limited) {
        fee.bind(QStringLiteral(":date"), dateLimit.trimmed());
    }
    const std::optional<double> found = firstFee(fee);
    if (!found) {
        return std::nullopt;
    }
    // The newest internal price stands unless there is none; a price of 0 counts as none.
    if (mode == Mode::LastPurchase || *found != 0) {
        row.price = *found;
    }
    return row;
}

}  // namespace sandogh
