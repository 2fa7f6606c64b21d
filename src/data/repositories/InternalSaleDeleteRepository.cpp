#include "data/repositories/InternalSaleDeleteRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

std::optional<qint64> InternalSaleDeleteRepository::find(Session& session, int transType,
                                                         const QString& docNo, bool& failed) {
    failed = false;
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(Code, 0) FROM Whs_QTYDocHInternal WHERE "
                                       "DocNo = :docNo AND TransType = :transType"));
    q.bind(QStringLiteral(":docNo"), docNo).bind(QStringLiteral(":transType"), transType);
    if (!q.exec()) {
        failed = true;
        return std::nullopt;
    }
    if (!q.next() || q.int64(0) == 0) {
        return std::nullopt;
    }
    return q.int64(0);
}

std::optional<QStringList> InternalSaleDeleteRepository::barcodes(Session& session, qint64 code) {
    SqlQuery q(session, QStringLiteral("SELECT DISTINCT EAN_Code FROM Whs_QTYDocDInternal WHERE "
                                       "Code = :code AND EAN_Code IS NOT NULL"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec()) {
        return std::nullopt;
    }
    QStringList list;
    while (q.next()) {
        list << q.text(0);
    }
    return list;
}

}  // namespace sandogh
