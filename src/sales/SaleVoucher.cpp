#include "sales/SaleVoucher.h"

#include <QMap>

#include "data/repositories/SaleDocumentRepository.h"
#include "sales/SaleSaveTexts.h"
#include "sales/SaleSettlement.h"

namespace sandogh {

SaleVoucher::Accounts SaleVoucher::accounts(Session& session, int customerCounter) {
    using Repository = SaleDocumentRepository;
    Accounts a;
    a.cashBox = Repository::accountByName(session, SaleSaveTexts::cashBoxAccount());
    a.salesIncome = Repository::accountByName(session, SaleSaveTexts::salesIncomeAccount());
    a.salesReturn = Repository::accountByName(session, SaleSaveTexts::salesReturnAccount());
    if (customerCounter != 0) {
        a.customer = Repository::customerAccount(session, customerCounter);
    }
    return a;
}

QString SaleVoucher::note(SaleMode mode, const QString& docNo, const QString& date) {
    const QString kind = mode == SaleMode::Return ? SaleSaveTexts::returnVoucherNote()
                                                  : SaleSaveTexts::saleVoucherNote();
    return kind + docNo + SaleSaveTexts::voucherNoteDate() + date;
}

QList<procedures::VoucherLine> SaleVoucher::lines(const SaleSettlement& settlement, SaleMode mode,
                                                  double payable, double received,
                                                  const Accounts& accounts,
                                                  const QString& comment) {
    const int chosen =
        settlement.debitAccountId != 0 ? settlement.debitAccountId : accounts.cashBox;
    // Debit amounts by account, in the order the kinds were used.
    QList<int> order;
    QMap<int, double> debit;
    const auto add = [&](int account, double amount) {
        if (amount == 0) {
            return;
        }
        if (!debit.contains(account)) {
            order << account;
        }
        debit[account] += amount;
    };
    const double card = settlement.giftCardId != 0 ? settlement.giftCardAmount : 0;
    if (settlement.payments.isEmpty()) {
        add(chosen, received - card);
    } else {
        for (const SalePayment& p : settlement.payments) {
            add(p.accountingGroupId != 0 ? p.accountingGroupId : chosen, p.amount);
        }
    }
    add(chosen, card);
    add(accounts.customer != 0 ? accounts.customer : chosen, payable - received);

    QList<procedures::VoucherLine> rows;
    const bool isReturn = mode == SaleMode::Return;
    for (const int account : order) {
        procedures::VoucherLine row;
        row.accountingGroupId = account;
        (isReturn ? row.credit : row.debt) = debit.value(account);
        row.comment = comment;
        rows << row;
    }
    if (payable != 0) {
        procedures::VoucherLine row;
        row.accountingGroupId = isReturn ? accounts.salesReturn : accounts.salesIncome;
        (isReturn ? row.debt : row.credit) = payable;
        row.comment = comment;
        rows << row;
    }
    return rows;
}

}  // namespace sandogh
