#include "sales/CustomerSummary.h"

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/repositories/PartyBalance.h"
#include "sales/SaleTexts.h"

namespace sandogh {

CustomerSummary::CustomerSummary(Database& database) : m_database(database) {}

CustomerSummary::Figures CustomerSummary::figures(int counter, const QString& name) {
    const PartyBalance::Totals t = PartyBalance(m_database).totals(counter);
    Figures f;
    f.name = name;
    f.purchaseCount = t.purchaseCount;
    f.balance = t.salesTotal - t.receivedTotal - t.returnsTotal;
    f.netSales = t.salesTotal - t.credit - t.returnsTotal;
    return f;
}

QStringList CustomerSummary::lines(const Figures& figures) {
    const auto amount = [](double value) {
        return QString::fromStdString(AmountText::formatWhole(value));
    };
    return {SaleTexts::customerName() + figures.name,
            SaleTexts::customerPurchaseCount() + QString::number(figures.purchaseCount),
            SaleTexts::customerBalance() + amount(figures.balance),
            SaleTexts::customerNetSales() + amount(figures.netSales)};
}

}  // namespace sandogh
