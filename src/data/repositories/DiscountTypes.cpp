#include "data/repositories/DiscountTypes.h"

#include "data/Dialect.h"
#include "data/SqlQuery.h"

namespace sandogh {

std::optional<bool> DiscountTypes::countsAsGift(Session& session, int id) {
    SqlQuery q(session, QStringLiteral("SELECT COALESCE(IsImpactGift, 1) FROM DiscountType "
                                       "WHERE Id = :id"));
    q.bind(QStringLiteral(":id"), id);
    if (!q.exec()) {
        return std::nullopt;
    }
    return q.next() && q.integer(0) != 0;
}

std::optional<int> DiscountTypes::loyaltyGiftKind(Session& session) {
    const Dialect& d = session.dialect();
    SqlQuery q(session, QStringLiteral("SELECT ") + d.top(kLoyaltyGiftPlace + 1) +
                            QStringLiteral("Id FROM DiscountType ORDER BY Id") +
                            d.limit(kLoyaltyGiftPlace + 1));
    if (!q.exec()) {
        return std::nullopt;
    }
    int place = 0;
    while (q.next()) {
        if (place++ == kLoyaltyGiftPlace) {
            return q.integer(0);
        }
    }
    return 0;
}

}  // namespace sandogh
