#pragma once

#include <QList>
#include <QString>

namespace sandogh {

class Session;

// The statements on the chart of accounts (tblAccountingGroup) and the banks' terminals
// (tblBanks) that the payment split reads.
class AccountsRepository {
public:
    struct Account {
        int id = 0;  // tblAccountingGroup.ID
        int code = 0;
        int parentCode = 0;
        QString name;
    };

    // The open accounts under the parent code and the account with the own code, by Code;
    // empty when the statement failed.
    static QList<Account> openAccounts(Session& session, int parentCode, int ownCode);
    // tblBanks.PosId of the account, trimmed; empty without one.
    static QString posIdOf(Session& session, int accountingGroupId);
};

}  // namespace sandogh
