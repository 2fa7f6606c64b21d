#include "data/procedures/StockDocumentProcedures.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"

namespace sandogh::procedures {

namespace {

std::optional<int> optionalInt(const SqlQuery& q, const QString& column) {
    return q.isNull(column) ? std::nullopt : std::optional<int>(q.integer(column));
}

}  // namespace

std::optional<StockDocumentHeader> sp_tblWhs_QTYDocH_SelectRow(Session& session, qint64 code) {
    SqlQuery q(session,
               QStringLiteral("SELECT Code, DocNo, TransType, CompanyID, DocDate, UserID, DocSum, "
                              "Discount, DocTime, Sarbar, ReceivedPrice, StationID, Note, "
                              "SalesType, ShiftCode, PayType, DocumentHID, WarehouseCode, "
                              "DiscountTypeId, CarId, Transporter, KilometerEntry, Base, "
                              "ReturnCauseId, OverheadID, IsUpdatable, DocType "
                              "FROM Whs_QTYDocH WHERE Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    StockDocumentHeader h;
    h.code = q.int64(QStringLiteral("Code"));
    h.docNo = q.text(QStringLiteral("DocNo"));
    h.transType = q.integer(QStringLiteral("TransType"));
    h.companyId = optionalInt(q, QStringLiteral("CompanyID"));
    h.docDate = q.date(QStringLiteral("DocDate"));
    h.userId = q.integer(QStringLiteral("UserID"));
    h.docSum = q.number(QStringLiteral("DocSum"));
    h.discount = q.number(QStringLiteral("Discount"));
    h.docTime = q.text(QStringLiteral("DocTime"));
    h.sarbar = q.number(QStringLiteral("Sarbar"));
    h.receivedPrice = q.number(QStringLiteral("ReceivedPrice"));
    h.stationId = optionalInt(q, QStringLiteral("StationID"));
    h.note = q.text(QStringLiteral("Note"));
    h.salesType = optionalInt(q, QStringLiteral("SalesType"));
    h.shiftCode = optionalInt(q, QStringLiteral("ShiftCode"));
    h.payType = optionalInt(q, QStringLiteral("PayType"));
    if (!q.isNull(QStringLiteral("DocumentHID"))) {
        h.documentHId = q.int64(QStringLiteral("DocumentHID"));
    }
    h.warehouseCode = optionalInt(q, QStringLiteral("WarehouseCode"));
    h.discountTypeId = optionalInt(q, QStringLiteral("DiscountTypeId"));
    h.carId = optionalInt(q, QStringLiteral("CarId"));
    h.transporter = q.text(QStringLiteral("Transporter"));
    if (!q.isNull(QStringLiteral("KilometerEntry"))) {
        h.kilometerEntry = q.number(QStringLiteral("KilometerEntry"));
    }
    h.base = q.text(QStringLiteral("Base"));
    h.returnCauseId = optionalInt(q, QStringLiteral("ReturnCauseId"));
    h.overheadId = optionalInt(q, QStringLiteral("OverheadID"));
    h.isUpdatable = optionalInt(q, QStringLiteral("IsUpdatable"));
    h.docType = optionalInt(q, QStringLiteral("DocType"));
    return h;
}

double sp_tblWhs_QTYDocD_GetLastBuyPrice(Session& session, const QString& barcode) {
    // D.Code is H.Code by the join: ordering by the line's column lets the index on
    // (EAN_Code, Code) hand the newest documents of the article first.
    const Dialect& d = session.dialect();
    return session.scalarNumber(
        QStringLiteral("SELECT ") + d.top(1) +
            QStringLiteral("COALESCE(D.Fee, 0) FROM Whs_QTYDocD D INNER JOIN Whs_QTYDocH H "
                           "ON H.Code = D.Code WHERE H.TransType = 1 AND H.DocType IS NULL "
                           "AND D.EAN_Code = :barcode ORDER BY D.Code DESC, D.ID DESC") +
            d.limit(1),
        {{QStringLiteral(":barcode"), barcode}});
}

}  // namespace sandogh::procedures
