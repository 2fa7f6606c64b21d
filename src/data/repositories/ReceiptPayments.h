#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/Session.h"

namespace sandogh {

// How a saved sale was paid, as its receipt shows it: the rows of the sale's voucher on
// the paying side (debits of a sale, credits of a return: the cash box, each bank
// account behind a card terminal, the customer's account), by account name in the order
// they were written, and what gift cards paid of it (tblGiftCardItem of the sale).
class ReceiptPayments {
public:
    struct Part {
        QString account;  // tblAccountingGroup.Name
        double amount = 0;
    };
    struct Split {
        QList<Part> parts;
        double giftCard = 0;
    };

    // nullopt when a statement failed (reported by the data layer).
    static std::optional<Split> read(Session& session, qint64 saleCode, bool isReturn);
};

}  // namespace sandogh
