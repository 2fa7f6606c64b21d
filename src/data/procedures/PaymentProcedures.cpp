#include "data/procedures/PaymentProcedures.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/procedures/KeyConflictRetry.h"
#include "data/procedures/ReturningInsert.h"

namespace sandogh::procedures {

qint64 sp_POS_Insert(Session& session, const PosPayment& p) {
    return ReturningInsert::insert(session, QStringLiteral("tblPOS"),
                                   {
                                       {QStringLiteral("MerchantId"), p.merchantId},
                                       {QStringLiteral("TerminalId"), p.terminalId},
                                       {QStringLiteral("DocNo"), p.docNo},
                                       {QStringLiteral("DateTime"), p.dateTime},
                                       {QStringLiteral("TranType"), p.tranType},
                                       {QStringLiteral("PaymentAmount"), p.paymentAmount},
                                       {QStringLiteral("PRN"), p.prn},
                                       {QStringLiteral("Stan"), p.stan},
                                       {QStringLiteral("ErrorCode"), p.errorCode},
                                       {QStringLiteral("ErrorDiscription"), p.errorDiscription},
                                       {QStringLiteral("PosId"), p.posId},
                                   },
                                   QStringLiteral("ID"));
}

std::optional<GiftCardRow> sp_tblGiftCard_SelectRow(Session& session, qint64 cardId) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral("ID, CardID, CustomerID, Amount, Discount, "
                                           "DateCreation, DateToCustomer, ExpireDate, Password, "
                                           "AllowedMonth FROM tblGiftCard WHERE CardID = :cardId "
                                           "ORDER BY ID DESC") +
                            d.limit(1));
    q.bind(QStringLiteral(":cardId"), cardId);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    GiftCardRow row;
    row.id = q.integer(0);
    row.cardId = q.int64(1);
    row.customerId = q.integer(2);
    row.amount = q.number(3);
    row.discount = q.number(4);
    row.dateCreation = q.date(5);
    row.dateToCustomer = q.date(6);
    row.expireDate = q.date(7);
    row.password = q.text(8);
    row.allowedMonth = q.integer(9);
    return row;
}

qint64 sp_tblGiftCardItem_Insert(Session& session, const GiftCardMovement& m) {
    return ReturningInsert::insert(session, QStringLiteral("tblGiftCardItem"),
                                   {
                                       {QStringLiteral("GiftCardID"), m.giftCardId},
                                       {QStringLiteral("Date"), m.date},
                                       {QStringLiteral("Time"), m.time},
                                       {QStringLiteral("Amount"), m.amount},
                                       {QStringLiteral("UserID"), m.userId},
                                       {QStringLiteral("CustomerID"), m.customerId},
                                       {QStringLiteral("DocHCode"), m.docHCode},
                                   },
                                   QStringLiteral("Id"));
}

qint64 sp_Serial_Insert(Session& session, SerialRow& serial) {
    const ColumnValues values{
        {QStringLiteral("Ean_Code"), serial.eanCode},
        {QStringLiteral("Code"), serial.code},
        {QStringLiteral("ExpireDate"), serial.expireDate},
        {QStringLiteral("Note"), serial.note},
    };
    if (!serial.serialNo.isEmpty()) {
        ColumnValues withNumber{{QStringLiteral("SerialNo"), serial.serialNo}};
        withNumber << values;
        serial.id = ReturningInsert::insert(session, QStringLiteral("Serial"), withNumber,
                                            QStringLiteral("Id"));
        return serial.id;
    }
    // "Select Isnull(max(Convert(Bigint, SerialNo)), 0) + 1 from Serial", inside the insert.
    const QString head =
        QStringLiteral("INSERT INTO Serial (SerialNo, Ean_Code, Code, ExpireDate, Note)");
    const QString source = QStringLiteral(
        "SELECT CAST(COALESCE(MAX(CAST(SerialNo AS BIGINT)), 0) + 1 AS VARCHAR(50)), :Ean_Code, "
        ":Code, :ExpireDate, :Note FROM Serial");
    const QString sql =
        ReturningInsert::statement(session.backend(), head, source, QStringLiteral("Id"));
    serial.id = KeyConflictRetry::run(
        session, [&](DbError& error) { return ReturningInsert::run(session, sql, values, error); });
    if (serial.id > 0) {
        serial.serialNo =
            session.scalarText(QStringLiteral("SELECT SerialNo FROM Serial WHERE Id = :id"),
                               {{QStringLiteral(":id"), serial.id}});
    }
    return serial.id;
}

bool sp_Serial_DeleteRow(Session& session, qint64 id) {
    return session.exec(QStringLiteral("DELETE FROM Serial WHERE Id = :id"),
                        {{QStringLiteral(":id"), id}});
}

qint64 sp_tblAccountingGroup_Insert(Session& session, const AccountingGroupRow& account) {
    return ReturningInsert::insert(session, QStringLiteral("tblAccountingGroup"),
                                   {
                                       {QStringLiteral("Code"), account.code},
                                       {QStringLiteral("ParentCode"), account.parentCode},
                                       {QStringLiteral("Name"), account.name},
                                       {QStringLiteral("IsOpen"), account.isOpen ? 1 : 0},
                                   },
                                   QStringLiteral("ID"));
}

}  // namespace sandogh::procedures
