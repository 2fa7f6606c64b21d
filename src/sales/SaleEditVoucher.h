#pragma once

#include <QList>
#include <QString>

#include "data/procedures/VoucherLine.h"
#include "sales/SaleMode.h"
#include "sales/SaleVoucher.h"

namespace sandogh {

// The voucher of a saved sale after an edit. What came in stays on the accounts it was paid
// into (each kind of a split payment, the gift card's part): the edit only moves what is
// left owing, in the customer's account (the cash box without one), and the income row to
// the new amount payable. An edit that changes the amount received keeps it only when one
// account took it all and a gift card paid no more than the new amount; otherwise the split
// could not be kept and the edit is refused.
class SaleEditVoucher {
public:
    enum class Outcome {
        Kept,           // rows holds the new voucher
        SplitReceived,  // the received amount changed on a split or gift-card payment
        Mismatch,       // the saved voucher does not hold the owing part its header implies
    };

    // The sale as saved: its voucher rows, the amount payable and received of its header,
    // and what gift cards paid of it.
    struct Saved {
        QList<procedures::VoucherLine> rows;
        double payable = 0;
        double received = 0;
        double giftCard = 0;
    };

    static Outcome rebuild(const Saved& saved, SaleMode mode, double payable, double received,
                           const SaleVoucher::Accounts& accounts, const QString& comment,
                           QList<procedures::VoucherLine>& rows);

    // The refusals' messages.
    static QString splitReceivedText();
    static QString mismatchText();
};

}  // namespace sandogh
