#include "data/repositories/RelatedCodesRepository.h"

#include "data/SqlQuery.h"

namespace sandogh {

std::optional<QList<double>> RelatedCodesRepository::prices(Session& session,
                                                            const QString& barcode) {
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(Price, 0) FROM tblRelatedCode "
                                       "WHERE Ean_Code = :barcode"));
    q.bind(QStringLiteral(":barcode"), barcode);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<double> prices;
    while (q.next()) {
        prices << q.number(0);
    }
    return prices;
}

}  // namespace sandogh
