#include "sales/PaymentAccounts.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSalePayment");
// The ledgers under the banks' group and the cash box's own code.
constexpr int kBanksParentCode = 9;
constexpr int kCashBoxCode = 12;

}  // namespace

PaymentAccounts::PaymentAccounts(Database& database) : m_database(database) {}

QList<PaymentAccounts::Account> PaymentAccounts::accounts() {
    Session session = m_database.session(kModule, QStringLiteral("Form_Load"));
    SqlQuery q(session, QStringLiteral("SELECT ID, Code, ParentCode, Name FROM tblAccountingGroup "
                                       "WHERE IsOpen = :open AND (ParentCode = :banks OR Code = "
                                       ":cashBox) ORDER BY Code"));
    q.bind(QStringLiteral(":open"), 1)
        .bind(QStringLiteral(":banks"), kBanksParentCode)
        .bind(QStringLiteral(":cashBox"), kCashBoxCode);
    QList<Account> accounts;
    if (!q.exec()) {
        return accounts;
    }
    while (q.next()) {
        accounts.append({q.integer(0), q.integer(1), q.integer(2), q.text(3).trimmed()});
    }
    return accounts;
}

QString PaymentAccounts::posIdOf(int accountingGroupId) {
    Session session = m_database.session(kModule, QStringLiteral("cmbAccount_Click"));
    SqlQuery q(session,
               QStringLiteral("SELECT PosId FROM tblBanks WHERE AccountingGroupId = :account"));
    q.bind(QStringLiteral(":account"), accountingGroupId);
    if (!q.exec() || !q.next() || q.isNull(0)) {
        return {};
    }
    return q.text(0).trimmed();
}

}  // namespace sandogh
