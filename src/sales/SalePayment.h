#pragma once

#include <QString>

namespace sandogh {

// One row of the payment split (frmSalePayment): a kind, the account it is posted to and
// the amount. Each kind used becomes one debit row of the sale's voucher.
struct SalePayment {
    enum Kind : int {
        Cash = 1,          // نقدي
        BankTerminal = 2,  // پوز بانکي
        Cheque = 3,        // چک
    };

    Kind kind = Cash;
    int accountingGroupId = 0;  // tblAccountingGroup.ID
    QString posId;              // tblBanks.PosId of a bank account; empty otherwise
    double amount = 0;
};

}  // namespace sandogh
