#include "data/repositories/InternalReceiptRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

std::optional<InternalReceiptRepository::Header> InternalReceiptRepository::header(Session& session,
                                                                                   qint64 code,
                                                                                   bool& failed) {
    SqlQuery q(session,
               QStringLiteral("SELECT H.Code, COALESCE(H.DocNo, ''), H.DocDate, "
                              "COALESCE(H.DocTime, ''), COALESCE(H.TransType, 0), "
                              "COALESCE(H.CompanyID, 0), COALESCE(B.Name, ''), "
                              "COALESCE(H.DocSum, 0), COALESCE(H.Discount, 0), "
                              "COALESCE(H.Sarbar, 0), COALESCE(H.ReceivedPrice, 0) "
                              "FROM Whs_QTYDocHInternal H LEFT OUTER JOIN tblCenterBranches B "
                              "ON H.CompanyID = B.ID WHERE H.Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    failed = !q.exec();
    if (failed || !q.next()) {
        return std::nullopt;
    }
    Header h;
    h.code = q.int64(0);
    h.docNo = q.text(1).trimmed();
    h.docDate = q.date(2);
    h.docTime = q.text(3).trimmed();
    h.transType = q.integer(4);
    h.branchId = q.integer(5);
    h.branchName = q.text(6).trimmed();
    h.docSum = q.number(7);
    h.discount = q.number(8);
    h.overhead = q.number(9);
    h.received = q.number(10);
    return h;
}

std::optional<QList<InternalReceiptRepository::Line>> InternalReceiptRepository::lines(
    Session& session, qint64 code) {
    SqlQuery q(session, QStringLiteral("SELECT D.EAN_Code, COALESCE(G.Name, ''), "
                                       "COALESCE(D.Qty, 0), COALESCE(D.Fee, 0), "
                                       "COALESCE(D.Price, 0) FROM Whs_QTYDocDInternal D "
                                       "LEFT OUTER JOIN Goods G ON G.EAN_Code = D.EAN_Code "
                                       "WHERE D.Code = :code ORDER BY D.ID"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<Line> list;
    while (q.next()) {
        list.append(
            Line{q.text(0).trimmed(), q.text(1).trimmed(), q.number(2), q.number(3), q.number(4)});
    }
    return list;
}

}  // namespace sandogh
