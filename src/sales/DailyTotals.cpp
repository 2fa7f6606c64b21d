#include "sales/DailyTotals.h"

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "sales/SaleTexts.h"

namespace sandogh {

namespace {

const QString kDayOfStation = QStringLiteral(
    "SELECT COALESCE(SUM(COALESCE(DocSum, 0)), 0), COALESCE(SUM(COALESCE(ReceivedPrice, 0)), 0) "
    "FROM Whs_QtyDocH WHERE DocDate = :today AND COALESCE(StationID, 0) = :station "
    "AND (TransType = :transType)");

bool readDay(Session& session, int stationId, const QString& date, int transType, double& sum,
             double& received) {
    SqlQuery q(session, kDayOfStation);
    q.bind(QStringLiteral(":today"), date);
    q.bind(QStringLiteral(":station"), stationId);
    q.bind(QStringLiteral(":transType"), transType);
    if (!q.exec()) {
        return false;
    }
    if (q.next()) {
        sum = q.number(0);
        received = q.number(1);
    }
    return true;
}

}  // namespace

DailyTotals::DailyTotals(Database& database) : m_database(database) {}

DailyTotals::Figures DailyTotals::read(int stationId, const QString& jalaliDate) {
    Figures f;
    Session session = m_database.session(QStringLiteral("frmSale"), QStringLiteral("DailySale"));
    f.ok = readDay(session, stationId, jalaliDate, 2, f.salesSum, f.salesReceived) &&
           readDay(session, stationId, jalaliDate, 3, f.returnsSum, f.returnsReceived);
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
