#pragma once

class QChart;

namespace sandogh {

class ReportTable;

// The chart of a report for the screen: bars (per day, the top ten, desks, payment kinds)
// or a line (per month), the labels (Jalali dates, names) on the category axis and the
// amounts with separators on the value axis. Nothing for a report without a chart.
class ReportChart {
public:
    // A new chart the caller owns, or nullptr.
    static QChart* make(const ReportTable& table);
};

}  // namespace sandogh
