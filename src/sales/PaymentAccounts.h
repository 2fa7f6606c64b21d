#pragma once

#include <QList>
#include <QString>

#include "data/repositories/AccountsRepository.h"

namespace sandogh {

class Database;

// The accounts a payment may be posted to in frmSalePayment (the open ledgers under the
// banks, group 9, and the cash box, code 12) and the card terminal of a bank account.
class PaymentAccounts {
public:
    using Account = AccountsRepository::Account;

    explicit PaymentAccounts(Database& database);

    // Empty when the statement failed (reported by the data layer).
    QList<Account> accounts();
    // tblBanks.PosId of the account as text; empty when the account has no terminal.
    QString posIdOf(int accountingGroupId);

private:
    Database& m_database;
};

}  // namespace sandogh
