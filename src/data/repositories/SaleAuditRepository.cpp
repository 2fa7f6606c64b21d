#include "data/repositories/SaleAuditRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/procedures/ReturningInsert.h"

namespace sandogh {

qint64 SaleAuditRepository::insert(Session& session, const Record& r) {
    return procedures::ReturningInsert::insert(session, QStringLiteral("tblSaleAudit"),
                                               {
                                                   {QStringLiteral("Action"), r.action},
                                                   {QStringLiteral("DocCode"), r.docCode},
                                                   {QStringLiteral("TransType"), r.transType},
                                                   {QStringLiteral("DocNo"), r.docNo},
                                                   {QStringLiteral("DocDate"), r.docDate},
                                                   {QStringLiteral("UserID"), r.userId},
                                                   {QStringLiteral("StationID"), r.stationId},
                                                   {QStringLiteral("AuditDate"), r.auditDate},
                                                   {QStringLiteral("AuditTime"), r.auditTime},
                                                   {QStringLiteral("Document"), r.document},
                                               },
                                               QStringLiteral("ID"));
}

QList<SaleAuditRepository::Record> SaleAuditRepository::list(Session& session,
                                                             const QString& fromDate,
                                                             const QString& toDate, int userId) {
    QList<Record> records;
    QString sql = QStringLiteral(
        "SELECT A.ID, A.Action, A.DocCode, A.TransType, A.DocNo, A.DocDate, A.UserID, "
        "A.StationID, A.AuditDate, A.AuditTime, A.Document, COALESCE(U.UserName, '') FROM "
        "tblSaleAudit A LEFT OUTER JOIN Users U ON U.ID = A.UserID WHERE 1 = 1");
    SqlBinds binds;
    if (!fromDate.trimmed().isEmpty()) {
        sql += QStringLiteral(" AND A.AuditDate >= :fromDate");
        binds.append({QStringLiteral(":fromDate"), fromDate.trimmed()});
    }
    if (!toDate.trimmed().isEmpty()) {
        sql += QStringLiteral(" AND A.AuditDate <= :toDate");
        binds.append({QStringLiteral(":toDate"), toDate.trimmed()});
    }
    if (userId != 0) {
        sql += QStringLiteral(" AND A.UserID = :userId");
        binds.append({QStringLiteral(":userId"), userId});
    }
    sql += QStringLiteral(" ORDER BY A.ID DESC");
    SqlQuery q(session, sql);
    for (const auto& [name, value] : binds) {
        q.bindValue(name, value);
    }
    if (!q.exec()) {
        return records;
    }
    while (q.next()) {
        Record r;
        r.id = q.int64(0);
        r.action = q.integer(1);
        r.docCode = q.int64(2);
        r.transType = q.integer(3);
        r.docNo = q.text(4);
        r.docDate = q.date(5);
        r.userId = q.integer(6);
        r.stationId = q.integer(7);
        r.auditDate = q.text(8);
        r.auditTime = q.text(9);
        r.document = q.text(10);
        r.userName = q.text(11);
        records << r;
    }
    return records;
}

}  // namespace sandogh
