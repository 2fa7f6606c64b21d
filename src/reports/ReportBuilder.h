#pragma once

#include <optional>

#include "data/repositories/ReportFilter.h"
#include "reports/ReportKind.h"
#include "reports/ReportTable.h"

namespace sandogh {

class Session;

// Runs one report on a session and lays it out as a table with its chart. The stock
// report reads the stock at the end of the range's last day (today: as kept now).
class ReportBuilder {
public:
    // Articles in the chart of the best and worst sellers.
    static constexpr int kChartArticles = 10;

    static std::optional<ReportTable> build(Session& session, ReportKind kind,
                                            const ReportFilter& filter, const QString& today);
};

}  // namespace sandogh
