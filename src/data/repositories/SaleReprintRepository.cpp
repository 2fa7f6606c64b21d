#include "data/repositories/SaleReprintRepository.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

QString SaleReprintRepository::lastDocNo(Session& session, int transType, int stationId) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral("COALESCE(DocNo, '0') FROM Whs_QTYDocH WHERE "
                                           "TransType = :transType AND StationID = :station "
                                           "ORDER BY Code DESC") +
                            d.limit(1));
    q.bind(QStringLiteral(":transType"), transType).bind(QStringLiteral(":station"), stationId);
    if (q.exec() && q.next()) {
        return q.text(0);
    }
    return {};
}

QList<qint64> SaleReprintRepository::codes(Session& session, int transType, const QString& docNo,
                                           const QString& docDate, bool& failed) {
    QList<qint64> result;
    QString sql = QStringLiteral(
        "SELECT Code FROM Whs_QTYDocH WHERE DocNo = :docNo AND TransType = :transType");
    if (!docDate.isEmpty()) {
        sql += QStringLiteral(" AND DocDate = :docDate");
    }
    sql += QStringLiteral(" ORDER BY Code DESC");
    SqlQuery q(session, sql);
    q.bind(QStringLiteral(":docNo"), docNo).bind(QStringLiteral(":transType"), transType);
    if (!docDate.isEmpty()) {
        q.bind(QStringLiteral(":docDate"), docDate);
    }
    failed = !q.exec();
    while (!failed && q.next()) {
        result << q.int64(0);
    }
    return result;
}

}  // namespace sandogh
