#pragma once

#include <QList>
#include <optional>

#include "data/repositories/ReportFilter.h"
#include "reports/ReportFigures.h"

namespace sandogh {

class Session;

// The shop's reports over a range of Jalali dates, on the caller's session (the reports
// screen runs them on a worker thread with a session of its own). Each gives
// std::nullopt when a look-up failed; the failure has been reported.
class ShopReports {
public:
    explicit ShopReports(Session& session);

    // Every day of the range, a day without documents as a row of zeros.
    std::optional<QList<reportfigures::Period>> days(const ReportFilter& filter);
    // The days summed per month, every month of the range.
    static QList<reportfigures::Period> months(const QList<reportfigures::Period>& days);
    // Every article sold or returned in the range, in no set order; with its landed unit
    // cost (and so its profit) when withCost.
    std::optional<QList<reportfigures::Article>> articles(const ReportFilter& filter,
                                                          bool withCost = true);
    // Articles on hand at the end of asOf (today: the quantities kept now), of one goods
    // group when given, valued at the landed cost of their purchases up to that day.
    std::optional<QList<reportfigures::StockLine>> stock(const QString& asOf, const QString& today,
                                                         std::optional<int> goodsGroup);
    std::optional<reportfigures::Payments> payments(const ReportFilter& filter);
    // Each cash desk and shift, ordered by desk and shift.
    std::optional<QList<reportfigures::Desk>> desks(const ReportFilter& filter);

    // Every date from..to inclusive; empty when either is no date or to is before from.
    static QStringList datesOf(const QString& from, const QString& to);

private:
    Session& m_session;
};

}  // namespace sandogh
