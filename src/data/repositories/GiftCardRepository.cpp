#include "data/repositories/GiftCardRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

std::optional<GiftCardRepository::Cards> GiftCardRepository::cardsOf(Session& session,
                                                                     int customer) {
    SqlQuery q(session, QStringLiteral("SELECT COUNT(ID) AS countId, SUM(Amount) AS Amount "
                                       "FROM tblGiftCard WHERE CustomerID = :customer"));
    q.bind(QStringLiteral(":customer"), customer);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return Cards{q.int64(0), q.number(1)};
}

}  // namespace sandogh
