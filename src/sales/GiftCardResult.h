#pragma once

#include <QString>
#include <QStringList>

namespace sandogh {

// What the look-up of a gift card found: whether the sale may take it, the card, its
// remaining credit, the discount that goes with it and its owner.
struct GiftCardResult {
    // Why the card was taken or refused (the message has been shown).
    enum class Outcome {
        Accepted,
        EmptyNumber,    // no card number read
        NotFound,       // no charge row for the number
        NoPassword,     // the password prompt was cancelled
        WrongPassword,  // every try was wrong
        Expired,
        MonthlyLimit,  // used AllowedMonth times this month
        NoCredit,      // nothing left on the card
        Failed,        // a statement failed (reported by the data layer)
    };

    Outcome outcome = Outcome::Failed;
    bool accepted = false;
    int cardKey = 0;             // ID of the card's newest charge row
    qint64 cardNumber = 0;       // CardID, the number on the card (txtAccount)
    double charged = 0;          // all its charges
    double used = 0;             // all its movements
    double balance = 0;          // charged - used
    int cardsDelivered = 0;      // charge rows of the number
    double discountPercent = 0;  // the card's own discount, else the price break of the total
    int ownerId = 0;             // CustomerID (Types.Counter, or CenterTypes.Counter centrally)
    QString owner;               // name and family of the owner; empty when none
    QString expireDate;          // Jalali text, "____/__/__" when none
    // The summary as shown: separator lines around the card's figures.
    QStringList summary;
};

}  // namespace sandogh
