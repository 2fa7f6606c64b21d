#include <gtest/gtest.h>
#include <unicode/ucal.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <set>
#include <string>

#include "common/JalaliCalendar.h"

namespace sandogh {
namespace {

using namespace std::chrono;

struct CalendarCloser {
    void operator()(UCalendar* c) const { ucal_close(c); }
};
using CalendarPtr = std::unique_ptr<UCalendar, CalendarCloser>;

constexpr double kMillisPerDay = 86400000.0;

std::string icuJalaliText(UCalendar* cal, DaySerial serial, UErrorCode& status) {
    ucal_setMillis(cal, (serial - PlatformDate::kUnixEpochSerial) * kMillisPerDay, &status);
    const int y = ucal_get(cal, UCAL_EXTENDED_YEAR, &status);
    const int m = ucal_get(cal, UCAL_MONTH, &status) + 1;
    const int d = ucal_get(cal, UCAL_DATE, &status);
    return JalaliCalendar::formatDateText({y, m, d});
}

std::string isoText(DaySerial serial) {
    const year_month_day g = PlatformDate::toDate(serial);
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%04d-%02u-%02u", static_cast<int>(g.year()),
                  static_cast<unsigned>(g.month()), static_cast<unsigned>(g.day()));
    return buffer;
}

// Every day of the Jalali years 1300 to 1479 against ICU's Persian calendar. The
// only day where the shop's conversion differs on purpose is the 20 March that
// the kept correction moves; the leap rule agrees with ICU's over the whole range,
// and the exact conversion has no exception at all.
TEST(JalaliIcuCrossCheckTest, AgreesWithIcuExceptTheCorrectedDay) {
    const std::set<std::string> expectedDifferences = {
        "1999-03-20 ICU 1377/12/29 shop 1376/12/394",
    };

    UErrorCode status = U_ZERO_ERROR;
    const UChar utc[] = {'U', 'T', 'C', 0};
    const CalendarPtr cal(ucal_open(utc, -1, "en@calendar=persian", UCAL_DEFAULT, &status));
    ASSERT_TRUE(U_SUCCESS(status)) << u_errorName(status);

    std::set<std::string> differences;
    const DaySerial first = JalaliCalendar::yearStart(1300) + 1;
    const DaySerial last = JalaliCalendar::yearStart(1480);
    for (DaySerial s = first; s <= last; ++s) {
        const std::string icu = icuJalaliText(cal.get(), s, status);
        ASSERT_TRUE(U_SUCCESS(status)) << u_errorName(status);
        const std::string shop = JalaliCalendar::toJalaliText(s);
        if (icu != shop) {
            differences.insert(isoText(s) + " ICU " + icu + " shop " + shop);
        }
        const std::optional<JalaliDate> exact = JalaliCalendar::toJalaliDate(s);
        ASSERT_TRUE(exact.has_value()) << isoText(s);
        ASSERT_EQ(JalaliCalendar::formatDateText(*exact), icu) << isoText(s);
    }
    EXPECT_EQ(differences, expectedDifferences);
    EXPECT_EQ(icuJalaliText(cal.get(), first, status), "1300/01/01");
    EXPECT_EQ(isoText(first), "1921-03-21");
}

}  // namespace
}  // namespace sandogh
