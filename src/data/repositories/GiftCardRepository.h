#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

namespace sandogh {

class Session;

// The statements on the gift cards sold (tblGiftCard) and their movements (tblGiftCardItem).
class GiftCardRepository {
public:
    struct Cards {
        qint64 count = 0;
        double total = 0;
    };

    // The gift cards bought for the customer; nothing when the statement failed.
    static std::optional<Cards> cardsOf(Session& session, int customer);

    // The remaining credit of a card number (tblGiftCard.CardID): its charges less its
    // movements; nothing when a statement failed.
    static std::optional<double> credit(Session& session, qint64 cardNumber);

    // Every statement reads the shop's card tables (tblGiftCard, tblGiftCardItem, Types), or
    // a central database's (GiftCard, GiftCardItem, CenterTypes) when central names one.

    // The newest row's password of the card number, trimmed; empty when there is none.
    static QString password(Session& session, const QString& central, qint64 cardNumber);
    // Movements of the card key dated from first to last; -1 on failure.
    static qint64 movementsBetween(Session& session, const QString& central, int cardKey,
                                   const QString& first, const QString& last);

    // The newest charge row of a card number by its creation date.
    struct Newest {
        int key = 0;
        int customer = 0;
        QString expireDate;
        int allowedMonth = 0;
    };
    // False on failure; newest stays empty when the card number has no row.
    static bool newest(Session& session, const QString& central, qint64 cardNumber,
                       std::optional<Newest>& newest);

    struct Figures {
        double charged = 0;          // every charge of the card number
        int cardsDelivered = 0;      // its charge rows
        double used = 0;             // every movement of the number or of the key
        double discountPercent = 0;  // of the newest row with a discount, else 0
        QString owner;               // name and surname of the owner, when there is one
    };
    // False on failure.
    static bool figures(Session& session, const QString& central, qint64 cardNumber, int cardKey,
                        int ownerId, Figures& figures);
};

}  // namespace sandogh
