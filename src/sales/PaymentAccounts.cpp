#include "sales/PaymentAccounts.h"

#include "data/Database.h"
#include "data/repositories/AccountsRepository.h"

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
    return AccountsRepository::openAccounts(session, kBanksParentCode, kCashBoxCode);
}

QString PaymentAccounts::posIdOf(int accountingGroupId) {
    Session session = m_database.session(kModule, QStringLiteral("cmbAccount_Click"));
    return AccountsRepository::posIdOf(session, accountingGroupId);
}

}  // namespace sandogh
