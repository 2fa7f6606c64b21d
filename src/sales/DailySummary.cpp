#include "sales/DailySummary.h"

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/Session.h"
#include "data/repositories/DocumentTotalsRepository.h"
#include "settings/MachineSettings.h"

namespace sandogh {

namespace {

constexpr int kSaleTransType = 2;
constexpr int kReturnTransType = 3;

bool readDay(Session& session, int transType, const QString& date, qint64& count, double& amount) {
    const auto sums = DocumentTotalsRepository::ofShop(session, transType, date);
    if (!sums) {
        return false;
    }
    amount = sums->received;
    count = sums->count;
    return true;
}

// Amounts read as the screens show them ("##,###"), so the message matches the desk's
// own totals; counts are plain digits.
QString amount(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

}  // namespace

DailySummary::DailySummary(Database& database) : m_database(database) {}

DailySummary::Figures DailySummary::read(const QString& jalaliDate) {
    Session session = m_database.session(QStringLiteral("frmMain"), QStringLiteral("DailySale"));
    return read(session, jalaliDate);
}

DailySummary::Figures DailySummary::read(Session& session, const QString& jalaliDate) {
    Figures f;
    f.ok = readDay(session, kSaleTransType, jalaliDate, f.salesCount, f.salesAmount) &&
           readDay(session, kReturnTransType, jalaliDate, f.returnsCount, f.returnsAmount);
    return f;
}

QString DailySummary::text(const Figures& figures) {
    return QStringLiteral("تعداد ف فروش: ") + QString::number(figures.salesCount) +
           QStringLiteral(" مبلغ فروش: ") + amount(figures.salesAmount) + QStringLiteral("\r\n") +
           QStringLiteral("تعداد ف برگشتي: ") + QString::number(figures.returnsCount) +
           QStringLiteral(" مبلغ برگشتي: ") + amount(figures.returnsAmount);
}

bool DailySummary::isDue(const MachineSettings& settings, const QString& today) {
    return settings.lastDateSendSms() != today;
}

bool DailySummary::markSent(MachineSettings& settings, const QString& today) {
    return settings.setLastDateSendSms(today);
}

}  // namespace sandogh
