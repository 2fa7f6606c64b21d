#include "data/repositories/SaleReprintRepository.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

QString SaleReprintRepository::lastDocNo(Session& session, int transType, int stationId,
                                         DocumentFamily family) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral("COALESCE(DocNo, '0') FROM %1 WHERE "
                                           "TransType = :transType AND StationID = :station "
                                           "ORDER BY Code DESC")
                                .arg(headerTableOf(family)) +
                            d.limit(1));
    q.bind(QStringLiteral(":transType"), transType).bind(QStringLiteral(":station"), stationId);
    if (q.exec() && q.next()) {
        return q.text(0);
    }
    return {};
}

QList<qint64> SaleReprintRepository::codes(Session& session, int transType, const QString& docNo,
                                           const QString& docDate, bool& failed,
                                           DocumentFamily family) {
    QList<qint64> result;
    QString sql =
        QStringLiteral("SELECT Code FROM %1 WHERE DocNo = :docNo AND TransType = :transType")
            .arg(headerTableOf(family));
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
