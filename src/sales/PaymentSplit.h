#pragma once

#include <QList>
#include <QString>

#include "sales/SalePayment.h"

namespace sandogh {

// The rules of the payment split: its kinds with their names, the sum of its rows and
// whether they add up to the amount payable.
class PaymentSplit {
public:
    // The kinds in the order offered: cash, bank terminal, cheque.
    static QList<SalePayment::Kind> kinds();
    static QString kindName(SalePayment::Kind kind);

    static double total(const QList<SalePayment>& payments);
    // Whether the rows add up to payable (to the rial); an empty split never does.
    static bool addsUp(const QList<SalePayment>& payments, double payable);
    // What is left to split (negative when the rows come to more).
    static double remaining(const QList<SalePayment>& payments, double payable);
    // The message of a split that does not add up, with both amounts.
    static QString mismatchMessage(double rows, double payable);
    // The message of a row without an account or with no amount.
    static QString incompleteRowMessage();
};

}  // namespace sandogh
