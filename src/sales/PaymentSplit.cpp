#include "sales/PaymentSplit.h"

#include <cmath>

#include "common/AmountText.h"
#include "sales/SettlementTexts.h"

namespace sandogh {

namespace {

// Amounts are whole rials; anything below half a rial is a rounding remainder.
constexpr double kRialTolerance = 0.5;

QString amount(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

}  // namespace

QList<SalePayment::Kind> PaymentSplit::kinds() {
    return {SalePayment::Cash, SalePayment::BankTerminal, SalePayment::Cheque};
}

QString PaymentSplit::kindName(SalePayment::Kind kind) {
    switch (kind) {
        case SalePayment::Cash:
            return SettlementTexts::kindCash();
        case SalePayment::BankTerminal:
            return SettlementTexts::kindBankTerminal();
        case SalePayment::Cheque:
            return SettlementTexts::kindCheque();
    }
    return {};
}

double PaymentSplit::total(const QList<SalePayment>& payments) {
    double sum = 0;
    for (const SalePayment& p : payments) {
        sum += p.amount;
    }
    return sum;
}

bool PaymentSplit::addsUp(const QList<SalePayment>& payments, double payable) {
    return !payments.isEmpty() && std::fabs(total(payments) - payable) < kRialTolerance;
}

double PaymentSplit::remaining(const QList<SalePayment>& payments, double payable) {
    return payable - total(payments);
}

QString PaymentSplit::mismatchMessage(double rows, double payable) {
    return SettlementTexts::splitMismatch() + QStringLiteral("\r\n") +
           SettlementTexts::splitRows() + amount(rows) + QStringLiteral("\r\n") +
           SettlementTexts::splitPayable() + amount(payable);
}

QString PaymentSplit::incompleteRowMessage() {
    return SettlementTexts::splitIncompleteRow();
}

}  // namespace sandogh
