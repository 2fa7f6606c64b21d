#include "sales/SaleEditVoucher.h"

#include <cmath>

namespace sandogh {

namespace {

// Amounts are kept to four decimals (NUMERIC(19,4)): closer than this they are equal.
constexpr double kSameAmount = 0.00005;

bool same(double a, double b) {
    return std::abs(a - b) < kSameAmount;
}

struct Paid {
    int account = 0;
    double amount = 0;
};

void add(QList<Paid>& paid, int account, double amount) {
    if (same(amount, 0)) {
        return;
    }
    for (Paid& p : paid) {
        if (p.account == account) {
            p.amount += amount;
            return;
        }
    }
    paid.append({account, amount});
}

}  // namespace

QString SaleEditVoucher::splitReceivedText() {
    return QStringLiteral(
        "اين فاکتور با چند نوع پرداخت يا کارت هديه پرداخت شده است؛ مبلغ دريافتي آن را نمي توان "
        "تغيير داد");
}

QString SaleEditVoucher::mismatchText() {
    return QStringLiteral(
        "سند حسابداري اين فاکتور با مبالغ آن همخواني ندارد؛ ابتدا سند را اصلاح نمائيد");
}

SaleEditVoucher::Outcome SaleEditVoucher::rebuild(const Saved& saved, SaleMode mode, double payable,
                                                  double received,
                                                  const SaleVoucher::Accounts& accounts,
                                                  const QString& comment,
                                                  QList<procedures::VoucherLine>& rows) {
    const bool isReturn = mode == SaleMode::Return;
    // The paying side as saved, by account in the order written, and the income account.
    QList<Paid> paid;
    int income = isReturn ? accounts.salesReturn : accounts.salesIncome;
    int incomeRows = 0;
    for (const procedures::VoucherLine& row : saved.rows) {
        add(paid, row.accountingGroupId, isReturn ? row.credit : row.debt);
        if (!same(isReturn ? row.debt : row.credit, 0)) {
            income = row.accountingGroupId;
            ++incomeRows;
        }
    }
    if (incomeRows > 1) {
        income = isReturn ? accounts.salesReturn : accounts.salesIncome;
    }
    // Take out what was left owing; the rest is what came in.
    const int owingAccount = accounts.customer != 0 ? accounts.customer : accounts.cashBox;
    const double owed = saved.payable - saved.received;
    if (!same(owed, 0)) {
        bool found = false;
        for (Paid& p : paid) {
            if (p.account == owingAccount && (owed < 0 || p.amount + kSameAmount >= owed)) {
                p.amount -= owed;
                found = true;
            }
        }
        if (!found) {
            return Outcome::Mismatch;
        }
    }
    QList<Paid> came;
    for (const Paid& p : paid) {
        add(came, p.account, p.amount);
    }
    if (!same(received, saved.received)) {
        if (came.size() > 1 || saved.giftCard > received + kSameAmount) {
            return Outcome::SplitReceived;
        }
        if (came.isEmpty()) {
            add(came, accounts.cashBox, received);
        } else {
            came.first().amount = received;
        }
    }
    add(came, owingAccount, payable - received);

    rows.clear();
    for (const Paid& p : came) {
        if (same(p.amount, 0)) {
            continue;
        }
        procedures::VoucherLine row;
        row.accountingGroupId = p.account;
        (isReturn ? row.credit : row.debt) = p.amount;
        row.comment = comment;
        rows << row;
    }
    if (!same(payable, 0)) {
        procedures::VoucherLine row;
        row.accountingGroupId = income;
        (isReturn ? row.debt : row.credit) = payable;
        row.comment = comment;
        rows << row;
    }
    return Outcome::Kept;
}

}  // namespace sandogh
