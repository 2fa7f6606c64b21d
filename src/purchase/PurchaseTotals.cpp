#include "purchase/PurchaseTotals.h"

#include "common/AmountText.h"

namespace sandogh {

PurchaseTotals PurchaseTotals::of(const QList<PurchaseLine>& lines) {
    PurchaseTotals t;
    for (const PurchaseLine& line : lines) {
        ++t.lineCount;
        t.sum += line.price;
        t.tax += line.taxAmount();
    }
    return t;
}

QString PurchaseTotals::format(double amount) {
    return QString::fromStdString(AmountText::formatDecimals(amount));
}

}  // namespace sandogh
