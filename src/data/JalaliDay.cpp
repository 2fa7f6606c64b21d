#include "data/JalaliDay.h"

#include <chrono>

#include "common/JalaliCalendar.h"

namespace sandogh {

namespace {

DaySerial serialOf(const QDate& date) {
    using namespace std::chrono;
    return PlatformDate::fromDate(year_month_day{year{date.year()},
                                                 month{static_cast<unsigned>(date.month())},
                                                 day{static_cast<unsigned>(date.day())}});
}

}  // namespace

QString JalaliDay::dateText(const QDate& day) {
    if (!day.isValid()) {
        return {};
    }
    const DaySerial serial = serialOf(day);
    if (!JalaliCalendar::toJalaliDate(serial)) {
        return {};
    }
    return QString::fromStdString(JalaliCalendar::toJalaliText(serial));
}

QString JalaliDay::weekdayName(const QDate& day) {
    if (!day.isValid()) {
        return {};
    }
    const std::string_view name = JalaliCalendar::weekdayName(serialOf(day));
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace sandogh
