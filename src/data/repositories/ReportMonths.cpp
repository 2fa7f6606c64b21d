#include "data/repositories/ReportMonths.h"

#include <stdexcept>

#include "common/JalaliCalendar.h"

namespace sandogh {

namespace {

QString addDays(const QString& date, int days) {
    return QString::fromStdString(JalaliCalendar::addDays(date.toStdString(), days));
}

}  // namespace

std::optional<ReportMonths::Month> ReportMonths::monthOf(const QString& date) {
    if (!JalaliCalendar::isValidDateText(date.toStdString())) {
        return std::nullopt;
    }
    const QString month = date.left(7);
    return Month{month, month + QStringLiteral("/01"),
                 QString::fromStdString(JalaliCalendar::monthEnd(date.toStdString()))};
}

ReportMonths::Range ReportMonths::split(const QString& from, const QString& to) {
    Range whole;
    whole.head = Days{from, to};
    const auto first = monthOf(from);
    const auto last = monthOf(to);
    if (!first || !last || to < from) {
        return whole;
    }
    try {
        // The first day of the first whole month and the last day of the last one.
        const QString start = from == first->first ? from : addDays(first->last, 1);
        const QString end = to == last->last ? to : addDays(last->first, -1);
        if (end < start) {
            return whole;
        }
        Range cut;
        cut.firstMonth = start.left(7);
        cut.lastMonth = end.left(7);
        if (from < start) {
            cut.head = Days{from, addDays(start, -1)};
        }
        if (end < to) {
            cut.tail = Days{addDays(end, 1), to};
        }
        return cut;
    } catch (const std::exception&) {
        return whole;  // a range at the end of the calendar's tables
    }
}

}  // namespace sandogh
