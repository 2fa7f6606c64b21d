#pragma once

#include <chrono>
#include <cstdint>

namespace sandogh {

// A day in the platform's date numbering: day 0 is 30 December 1899, day 1 is
// 31 December 1899, day 445 is 20 March 1901. Dates kept as day numbers never
// carry a time of day.
using DaySerial = std::int32_t;

// Conversions between day numbers and the standard library's calendar types.
class PlatformDate {
public:
    // 1 January 1970 in the platform numbering.
    static constexpr DaySerial kUnixEpochSerial = 25569;

    static constexpr DaySerial fromSysDays(std::chrono::sys_days day) {
        return static_cast<DaySerial>(day.time_since_epoch().count()) + kUnixEpochSerial;
    }
    static constexpr DaySerial fromDate(std::chrono::year_month_day date) {
        return fromSysDays(std::chrono::sys_days{date});
    }
    static constexpr std::chrono::sys_days toSysDays(DaySerial serial) {
        return std::chrono::sys_days{std::chrono::days{serial - kUnixEpochSerial}};
    }
    static constexpr std::chrono::year_month_day toDate(DaySerial serial) {
        return std::chrono::year_month_day{toSysDays(serial)};
    }

    // Day of the week counted from Saturday: 0 Saturday, 1 Sunday, ..., 6 Friday.
    // Day 0 of the numbering was a Saturday.
    static constexpr int weekdayFromSaturday(DaySerial serial) {
        const int r = static_cast<int>(serial % 7);
        return r < 0 ? r + 7 : r;
    }
};

}  // namespace sandogh
