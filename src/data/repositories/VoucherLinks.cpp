#include "data/repositories/VoucherLinks.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("VoucherLinks");

}  // namespace

VoucherLinks::VoucherLinks(Database& database) : m_database(database) {}

int VoucherLinks::releaseOrphans() {
    Session s = m_database.session(kModule, QStringLiteral("releaseOrphans"));
    SqlQuery q(s, QStringLiteral("UPDATE Whs_QTYDocH SET DocumentHID = NULL "
                                 "WHERE DocumentHID NOT IN (SELECT ID FROM tblDocumentH)"));
    if (!q.exec()) {
        return -1;
    }
    return q.rowsAffected();
}

QList<VoucherLinks::WaitingDocument> VoucherLinks::waiting() {
    Session s = m_database.session(kModule, QStringLiteral("waiting"));
    SqlQuery q(s, QStringLiteral("SELECT Code, DocNo, TransType, CompanyID, DocDate, DocSum, "
                                 "DocTime FROM Whs_QTYDocH WHERE DocumentHID IS NULL "
                                 "AND DocType IS NULL AND (TransType = 1 OR TransType = 4)"));
    QList<WaitingDocument> documents;
    if (!q.exec()) {
        return documents;
    }
    while (q.next()) {
        WaitingDocument w;
        w.code = q.int64(0);
        w.docNo = q.text(1);
        w.transType = q.integer(2);
        w.companyId = q.integer(3);
        w.docDate = q.date(4);
        w.docSum = q.number(5);
        w.docTime = q.text(6);
        documents << w;
    }
    return documents;
}

}  // namespace sandogh
