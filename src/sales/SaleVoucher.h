#pragma once

#include <QList>
#include <QString>

#include "data/procedures/VoucherLine.h"
#include "sales/SaleMode.h"

namespace sandogh {

class Session;
struct SaleSettlement;

// The accounting voucher of a sale. A sale debits what came in, one row per payment kind
// used (the split rows, or the whole received amount in the chosen account, the cash
// box by default), the gift card's part in the same account as cash, and what is left
// owing in the customer's own account; it credits sales income with the amount payable.
// A return takes the same rows with debit and credit swapped against the sales return
// account. Accounts are found in tblAccountingGroup by their names; one that the chart
// lacks is written as account 0, so the voucher still balances and the accountant sees
// the rows to reassign.
class SaleVoucher {
public:
    struct Accounts {
        int cashBox = 0;      // "صندوق"
        int salesIncome = 0;  // "درآمد فروش کالا"
        int salesReturn = 0;  // "برگشت از فروش"
        int customer = 0;     // the customer's account (Types.AccountingGroupID)
    };

    // The accounts of a sale of a customer (0: none), read on the caller's session.
    static Accounts accounts(Session& session, int customerCounter);

    // "فاکتور فروش شماره " + number + " مورخ : " + date, or the return's.
    static QString note(SaleMode mode, const QString& docNo, const QString& date);

    // The rows, without DocumentHID; each carries comment. Rows of no amount are left out.
    static QList<procedures::VoucherLine> lines(const SaleSettlement& settlement, SaleMode mode,
                                                double payable, double received,
                                                const Accounts& accounts, const QString& comment);
};

}  // namespace sandogh
