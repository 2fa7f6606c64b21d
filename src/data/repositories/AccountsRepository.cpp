#include "data/repositories/AccountsRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

QList<AccountsRepository::Account> AccountsRepository::openAccounts(Session& session,
                                                                    int parentCode, int ownCode) {
    SqlQuery q(session, QStringLiteral("SELECT ID, Code, ParentCode, Name FROM tblAccountingGroup "
                                       "WHERE IsOpen = :open AND (ParentCode = :banks OR Code = "
                                       ":cashBox) ORDER BY Code"));
    q.bind(QStringLiteral(":open"), 1)
        .bind(QStringLiteral(":banks"), parentCode)
        .bind(QStringLiteral(":cashBox"), ownCode);
    QList<Account> accounts;
    if (!q.exec()) {
        return accounts;
    }
    while (q.next()) {
        accounts.append({q.integer(0), q.integer(1), q.integer(2), q.text(3).trimmed()});
    }
    return accounts;
}

QString AccountsRepository::posIdOf(Session& session, int accountingGroupId) {
    SqlQuery q(session,
               QStringLiteral("SELECT PosId FROM tblBanks WHERE AccountingGroupId = :account"));
    q.bind(QStringLiteral(":account"), accountingGroupId);
    if (!q.exec() || !q.next() || q.isNull(0)) {
        return {};
    }
    return q.text(0).trimmed();
}

}  // namespace sandogh
