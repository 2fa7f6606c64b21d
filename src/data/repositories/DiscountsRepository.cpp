#include "data/repositories/DiscountsRepository.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

double DiscountsRepository::priceBreakPercent(Session& session, double amount, const QString& day) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(1) +
                            QStringLiteral(" DiscountPercent FROM DiscountFactor WHERE IsActive = "
                                           ":active AND StartDate <= :startDay AND EndDate >= "
                                           ":endDay AND FactorAmount <= :amount ORDER BY "
                                           "FactorAmount DESC") +
                            d.limit(1));
    q.bind(QStringLiteral(":active"), 1)
        .bind(QStringLiteral(":startDay"), day)
        .bind(QStringLiteral(":endDay"), day)
        .bind(QStringLiteral(":amount"), amount);
    if (!q.exec() || !q.next()) {
        return 0;
    }
    return q.number(0);
}

}  // namespace sandogh
