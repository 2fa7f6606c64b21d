#pragma once

#include <QString>

namespace sandogh::procedures {

// One charge row of a gift card, tblGiftCard; a card number may have several.
struct GiftCardRow {
    int id = 0;
    qint64 cardId = 0;
    int customerId = 0;
    double amount = 0;
    double discount = 0;
    QString dateCreation;  // dates read as "____/__/__" when empty
    QString dateToCustomer;
    QString expireDate;
    QString password;
    int allowedMonth = 0;
};

}  // namespace sandogh::procedures
