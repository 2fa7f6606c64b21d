#include "data/procedures/StockDocumentWriter.h"

#include "data/procedures/KeyConflictRetry.h"
#include "data/procedures/ReturningInsert.h"

namespace sandogh::procedures {

namespace {

const QString kHeaders = QStringLiteral("Whs_QTYDocH");
const QString kLines = QStringLiteral("Whs_QTYDocD");
const QString kInternalHeaders = QStringLiteral("Whs_QTYDocHInternal");
const QString kInternalLines = QStringLiteral("Whs_QTYDocDInternal");

template <typename T>
QVariant orNull(const std::optional<T>& value) {
    return value ? QVariant::fromValue(*value) : QVariant(QMetaType::fromType<T>());
}

ColumnValues headerValues(const StockDocumentHeader& h) {
    return {
        {QStringLiteral("DocNo"), h.docNo},
        {QStringLiteral("TransType"), h.transType},
        {QStringLiteral("CompanyID"), orNull(h.companyId)},
        {QStringLiteral("DocDate"), h.docDate},
        {QStringLiteral("UserID"), h.userId},
        {QStringLiteral("DocSum"), h.docSum},
        {QStringLiteral("Discount"), h.discount},
        {QStringLiteral("DocTime"), h.docTime},
        {QStringLiteral("Sarbar"), h.sarbar},
        {QStringLiteral("ReceivedPrice"), h.receivedPrice},
        {QStringLiteral("StationID"), orNull(h.stationId)},
        {QStringLiteral("Note"), h.note},
        {QStringLiteral("SalesType"), orNull(h.salesType)},
        {QStringLiteral("ShiftCode"), orNull(h.shiftCode)},
        {QStringLiteral("PayType"), orNull(h.payType)},
        {QStringLiteral("DocumentHID"), orNull(h.documentHId)},
        {QStringLiteral("WarehouseCode"), orNull(h.warehouseCode)},
        {QStringLiteral("DiscountTypeId"), orNull(h.discountTypeId)},
        {QStringLiteral("CarId"), orNull(h.carId)},
        {QStringLiteral("Transporter"), h.transporter},
        {QStringLiteral("KilometerEntry"), orNull(h.kilometerEntry)},
        {QStringLiteral("Base"), h.base},
        {QStringLiteral("ReturnCauseId"), orNull(h.returnCauseId)},
        {QStringLiteral("OverheadID"), orNull(h.overheadId)},
        {QStringLiteral("IsUpdatable"), orNull(h.isUpdatable)},
        {QStringLiteral("DocType"), orNull(h.docType)},
    };
}

ColumnValues internalHeaderValues(const StockDocumentHeader& h) {
    return {
        {QStringLiteral("DocNo"), h.docNo},
        {QStringLiteral("TransType"), h.transType},
        {QStringLiteral("CompanyID"), orNull(h.companyId)},
        {QStringLiteral("DocDate"), h.docDate},
        {QStringLiteral("UserID"), h.userId},
        {QStringLiteral("Atf"), h.atf},
        {QStringLiteral("Note"), h.note},
        {QStringLiteral("DocSum"), h.docSum},
        {QStringLiteral("Discount"), h.discount},
        {QStringLiteral("DocTime"), h.docTime},
        {QStringLiteral("StationID"), orNull(h.stationId)},
        {QStringLiteral("SalesType"), orNull(h.salesType)},
        {QStringLiteral("Sarbar"), h.sarbar},
        {QStringLiteral("ReceivedPrice"), h.receivedPrice},
        {QStringLiteral("PayType"), orNull(h.payType)},
        {QStringLiteral("IsUpdatable"), orNull(h.isUpdatable)},
        {QStringLiteral("Base"), h.base},
    };
}

ColumnValues lineValues(qint64 code, const StockDocumentLine& line) {
    return {
        {QStringLiteral("Code"), code},
        {QStringLiteral("EAN_Code"), line.eanCode},
        {QStringLiteral("Qty"), line.qty},
        {QStringLiteral("MFee"), line.mFee},
        {QStringLiteral("Discount"), line.discount},
        {QStringLiteral("Fee"), line.fee},
        {QStringLiteral("Price"), line.price},
        {QStringLiteral("TaxValue"), line.taxValue},
    };
}

bool deleteByCode(Session& session, const QString& lines, const QString& headers, qint64 code) {
    const SqlBinds binds{{QStringLiteral(":code"), code}};
    return session.exec(QStringLiteral("DELETE FROM %1 WHERE Code = :code").arg(lines), binds) &&
           session.exec(QStringLiteral("DELETE FROM %1 WHERE Code = :code").arg(headers), binds);
}

}  // namespace

qint64 StockDocumentWriter::insertHeaderOnce(Session& session, const StockDocumentHeader& header,
                                             DbError& error) {
    const ColumnValues values = headerValues(header);
    const QString sql = ReturningInsert::maxPlusOne(
        session.backend(), kHeaders, QStringLiteral("Code"), ReturningInsert::columnsOf(values));
    return ReturningInsert::run(session, sql, values, error);
}

qint64 StockDocumentWriter::insertHeader(Session& session, const StockDocumentHeader& header) {
    return ReturningInsert::allocate(session, kHeaders, QStringLiteral("Code"),
                                     headerValues(header));
}

qint64 StockDocumentWriter::insertLine(Session& session, qint64 code,
                                       const StockDocumentLine& line) {
    ColumnValues values = lineValues(code, line);
    values.append({QStringLiteral("UserID"), orNull(line.userId)});
    return ReturningInsert::insert(session, kLines, values, QStringLiteral("ID"));
}

qint64 StockDocumentWriter::insertInternalHeader(Session& session,
                                                 const StockDocumentHeader& header) {
    return ReturningInsert::allocate(session, kInternalHeaders, QStringLiteral("Code"),
                                     internalHeaderValues(header));
}

qint64 StockDocumentWriter::insertInternalLine(Session& session, qint64 code,
                                               const StockDocumentLine& line) {
    ColumnValues values = lineValues(code, line);
    values.append({QStringLiteral("QtyR"), line.qtyR});
    return ReturningInsert::insert(session, kInternalLines, values, QStringLiteral("ID"));
}

bool StockDocumentWriter::deleteDocument(Session& session, qint64 code) {
    return deleteByCode(session, kLines, kHeaders, code);
}

bool StockDocumentWriter::deleteInternalDocument(Session& session, qint64 code) {
    return deleteByCode(session, kInternalLines, kInternalHeaders, code);
}

}  // namespace sandogh::procedures
