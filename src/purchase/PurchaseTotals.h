#pragma once

#include <QList>
#include <QString>

#include "purchase/PurchaseLine.h"

namespace sandogh {

// The figures under the purchase grid, walked over the lines from the first to the last:
// their count, the sum of the line amounts (Price) and the tax total.
struct PurchaseTotals {
    int lineCount = 0;
    double sum = 0;
    double tax = 0;

    static PurchaseTotals of(const QList<PurchaseLine>& lines);
    // "##,###.###".
    static QString format(double amount);
};

}  // namespace sandogh
