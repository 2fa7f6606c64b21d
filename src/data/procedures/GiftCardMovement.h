#pragma once

#include <QString>

namespace sandogh::procedures {

// An amount spent from a gift card, tblGiftCardItem.
struct GiftCardMovement {
    int id = 0;  // @MaxID
    int giftCardId = 0;
    QString date;
    QString time;  // "HH:MM"
    double amount = 0;
    int userId = 0;
    int customerId = 0;
    qint64 docHCode = 0;  // the sale's Whs_QTYDocH.Code
};

}  // namespace sandogh::procedures
