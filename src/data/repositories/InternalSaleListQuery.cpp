#include "data/repositories/InternalSaleListQuery.h"

#include "common/TextHelpers.h"
#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

// The number as the index of the internal headers orders it.
const QString kNumber = QStringLiteral("CAST(H.DocNo AS BIGINT)");

QString searchKeyOf(const QString& text) {
    return QString::fromStdString(TextHelpers::searchKey(text.trimmed().toStdString()));
}

}  // namespace

QString InternalSaleListQuery::statement(Session& session, const SaleListQuery::Filter& filter,
                                         bool descending, bool atStart, int rows) {
    const Dialect& d = session.dialect();
    QString sql = QStringLiteral("SELECT ") + d.top(rows) +
                  QStringLiteral(
                      "H.DocNo, H.DocDate, COALESCE(B.Name, ''), H.DocSum, H.Code, "
                      "COALESCE(H.CompanyID, 0), ") +
                  kNumber +
                  QStringLiteral(
                      " FROM Whs_QTYDocHInternal H LEFT OUTER JOIN tblCenterBranches B ON "
                      "H.CompanyID = B.ID WHERE H.TransType = :transType");
    if (!filter.docNo.trimmed().isEmpty()) {
        sql += QStringLiteral(" AND H.DocNo = :docNo");
    }
    if (!filter.docDate.trimmed().isEmpty()) {
        sql += filter.docDate.trimmed() == QLatin1String(SqlQuery::kEmptyDate)
                   ? QStringLiteral(
                         " AND (H.DocDate IS NULL OR H.DocDate = '' OR "
                         "H.DocDate = :docDate)")
                   : QStringLiteral(" AND H.DocDate = :docDate");
    }
    if (!filter.customer.trimmed().isEmpty()) {
        sql += QStringLiteral(" AND H.CompanyID IN (SELECT C.ID FROM tblCenterBranches C WHERE ") +
               SaleListQuery::searchKeySql(QStringLiteral("COALESCE(C.Name, '')"),
                                           searchKeyOf(filter.customer)) +
               QStringLiteral(" LIKE :branch)");
    }
    return sql + SaleListQuery::keysetTail(session, kNumber, descending, atStart, rows);
}

QList<SaleListQuery::Row> InternalSaleListQuery::page(Session& session,
                                                      const SaleListQuery::Filter& filter,
                                                      bool descending,
                                                      const SaleListQuery::Position& after,
                                                      int rows) {
    QList<SaleListQuery::Row> result;
    if (rows <= 0) {
        return result;
    }
    SqlQuery q(session, statement(session, filter, descending, after.atStart, rows));
    q.bind(QStringLiteral(":transType"), filter.transType);
    if (!filter.docNo.trimmed().isEmpty()) {
        q.bind(QStringLiteral(":docNo"), filter.docNo.trimmed());
    }
    if (!filter.docDate.trimmed().isEmpty()) {
        q.bind(QStringLiteral(":docDate"), filter.docDate.trimmed());
    }
    if (!filter.customer.trimmed().isEmpty()) {
        q.bind(QStringLiteral(":branch"),
               QLatin1Char('%') + searchKeyOf(filter.customer) + QLatin1Char('%'));
    }
    SaleListQuery::bindAfter(q, session, after);
    if (!q.exec()) {
        return result;
    }
    while (q.next()) {
        SaleListQuery::Row r;
        r.docNo = q.text(0);
        r.docDate = q.date(1);
        r.customerName = q.text(2).trimmed();
        r.docSum = q.number(3);
        r.code = q.int64(4);
        r.customerId = q.integer(5);
        r.number = q.int64(6);
        result << r;
    }
    return result;
}

}  // namespace sandogh
