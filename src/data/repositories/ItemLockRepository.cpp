#include "data/repositories/ItemLockRepository.h"

#include "data/SqlQuery.h"

namespace sandogh {

std::optional<std::optional<double>> ItemLockRepository::lockedQuantity(Session& session,
                                                                        const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT SUM(Qty) AS Qty FROM ItemLock WHERE IsLock = 1 "
                                       "AND Ean_Code = :barcode GROUP BY Ean_Code"));
    q.bind(QStringLiteral(":barcode"), barcode);
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() ? std::optional<double>(q.number(0)) : std::optional<double>();
}

}  // namespace sandogh
