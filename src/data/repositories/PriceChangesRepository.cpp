#include "data/repositories/PriceChangesRepository.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

std::optional<double> PriceChangesRepository::costInForce(Session& session, const QString& day,
                                                          const QString& barcode) {
    const Dialect& d = session.dialect();
    SqlQuery q(session,
               QStringLiteral("SELECT ") + d.top(1) +
                   QStringLiteral("COALESCE(DiscountD.NewCost, 0) FROM DiscountD "
                                  "INNER JOIN DiscountH ON DiscountD.Code = DiscountH.Code "
                                  "WHERE :saleDate BETWEEN DiscountH.FDate AND DiscountH.SDate "
                                  "AND DiscountD.Ean_Code = :barcode "
                                  "ORDER BY DiscountD.Code DESC") +
                   d.limit(1));
    q.bind(QStringLiteral(":saleDate"), day);
    q.bind(QStringLiteral(":barcode"), barcode);
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() ? q.number(0) : 0.0;
}

}  // namespace sandogh
