#include "sales/DailyTotals.h"

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/repositories/DocumentTotalsRepository.h"
#include "sales/SaleTexts.h"

namespace sandogh {

namespace {

constexpr int kSaleTransType = 2;
constexpr int kReturnTransType = 3;

bool readDay(Session& session, int stationId, const QString& date, int transType, double& sum,
             double& received) {
    const auto sums = DocumentTotalsRepository::ofStation(session, stationId, date, transType);
    if (!sums) {
        return false;
    }
    sum = sums->docSum;
    received = sums->received;
    return true;
}

}  // namespace

DailyTotals::DailyTotals(Database& database) : m_database(database) {}

DailyTotals::Figures DailyTotals::read(int stationId, const QString& jalaliDate) {
    Figures f;
    Session session = m_database.session(QStringLiteral("frmSale"), QStringLiteral("DailySale"));
    f.ok =
        readDay(session, stationId, jalaliDate, kSaleTransType, f.salesSum, f.salesReceived) &&
        readDay(session, stationId, jalaliDate, kReturnTransType, f.returnsSum, f.returnsReceived);
    return f;
}

QString DailyTotals::salesLabel(const Figures& figures) {
    return SaleTexts::dailySales() +
           QString::fromStdString(AmountText::formatWhole(figures.salesSum));
}

QString DailyTotals::receivedLabel(const Figures& figures) {
    return SaleTexts::dailyReceived() +
           QString::fromStdString(AmountText::formatWhole(figures.salesReceived));
}

}  // namespace sandogh
