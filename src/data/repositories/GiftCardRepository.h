#pragma once

#include <QtGlobal>
#include <optional>

namespace sandogh {

class Session;

// The statements on the gift cards sold (tblGiftCard).
class GiftCardRepository {
public:
    struct Cards {
        qint64 count = 0;
        double total = 0;
    };

    // The gift cards bought for the customer; nothing when the statement failed.
    static std::optional<Cards> cardsOf(Session& session, int customer);
};

}  // namespace sandogh
