#pragma once

#include <QString>
#include <optional>

namespace sandogh {

// Dates as the reports read them: the whole Jalali months of a range from the movements per
// month (StockMonth), the days around them from the document lines. Dates are canonical
// texts ("1403/07/01"); a month is its first seven characters ("1403/07").
class ReportMonths {
public:
    // A range of days, from..to inclusive.
    struct Days {
        QString from;
        QString to;
    };
    // A range cut at its whole months: head, then the months firstMonth..lastMonth, then
    // tail. Without a whole month (or when a date is no date) the range is head alone.
    struct Range {
        std::optional<Days> head;
        QString firstMonth;
        QString lastMonth;
        std::optional<Days> tail;
        bool hasMonths() const { return !firstMonth.isEmpty(); }
    };
    static Range split(const QString& from, const QString& to);

    // The month of a day and its first and last days; nothing when date is no date.
    struct Month {
        QString month;
        QString first;
        QString last;
    };
    static std::optional<Month> monthOf(const QString& date);
};

}  // namespace sandogh
