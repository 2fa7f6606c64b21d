#include "data/repositories/DiscountTypesRepository.h"

#include "data/Session.h"

namespace sandogh {

bool DiscountTypesRepository::countsAsGift(Session& session, int discountTypeId) {
    return session.scalarInt64(
               QStringLiteral("SELECT COALESCE(IsImpactGift,0) FROM DiscountType WHERE Id = :id"),
               {{QStringLiteral(":id"), discountTypeId}}) > 0;
}

}  // namespace sandogh
