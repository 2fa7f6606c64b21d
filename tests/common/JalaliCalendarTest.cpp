#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/JalaliCalendar.h"

namespace sandogh {
namespace {

using namespace std::chrono;

DaySerial serialOf(year_month_day g) {
    return PlatformDate::fromDate(g);
}

TEST(PlatformDateTest, AnchorsOfTheNumbering) {
    EXPECT_EQ(serialOf(1899y / December / 30), 0);
    EXPECT_EQ(serialOf(1899y / December / 31), 1);
    EXPECT_EQ(serialOf(1901y / March / 20), 445);
    EXPECT_EQ(serialOf(1970y / January / 1), PlatformDate::kUnixEpochSerial);
    EXPECT_EQ(serialOf(1899y / December / 29), -1);
    for (const DaySerial s : {-1000, -1, 0, 445, 45000, 120000}) {
        EXPECT_EQ(PlatformDate::fromDate(PlatformDate::toDate(s)), s);
    }
}

TEST(PlatformDateTest, WeekdayCountsFromSaturday) {
    EXPECT_EQ(PlatformDate::weekdayFromSaturday(0), 0);                             // Saturday
    EXPECT_EQ(PlatformDate::weekdayFromSaturday(serialOf(2025y / March / 21)), 6);  // Friday
    EXPECT_EQ(PlatformDate::weekdayFromSaturday(-1), 6);
    EXPECT_EQ(PlatformDate::weekdayFromSaturday(-7), 0);
}

struct ToTextCase {
    year_month_day gregorian;
    const char* jalali;
};

class ToJalaliTextTest : public testing::TestWithParam<ToTextCase> {};

TEST_P(ToJalaliTextTest, ConvertsTheDay) {
    EXPECT_EQ(JalaliCalendar::toJalaliText(serialOf(GetParam().gregorian)), GetParam().jalali);
}

INSTANTIATE_TEST_SUITE_P(
    Days, ToJalaliTextTest,
    testing::Values(
        ToTextCase{2025y / March / 21, "1404/01/01"},
        ToTextCase{2025y / March / 20, "1403/12/30"},  // 1403 is leap
        ToTextCase{2024y / March / 19, "1402/12/29"}, ToTextCase{2024y / March / 20, "1403/01/01"},
        ToTextCase{1998y / March / 20, "1376/12/29"}, ToTextCase{1998y / March / 21, "1377/01/01"},
        // The kept correction: the last day of 1377 is counted from the start of 1376.
        ToTextCase{1999y / March / 20, "1376/12/394"}, ToTextCase{1999y / March / 19, "1377/12/28"},
        ToTextCase{1999y / March / 21, "1378/01/01"},
        // 20 March of 1378's neighbours is a plain day again.
        ToTextCase{2000y / March / 20, "1379/01/01"}, ToTextCase{1997y / March / 20, "1375/12/30"},
        ToTextCase{2025y / September / 22, "1404/06/31"},
        ToTextCase{2025y / September / 23, "1404/07/01"},
        ToTextCase{2026y / March / 20, "1404/12/29"}, ToTextCase{1901y / March / 21, "1280/01/01"},
        ToTextCase{1979y / February / 11, "1357/11/22"},
        // Outside the table the day count runs on and is not rejected.
        ToTextCase{1901y / March / 20, "1280/01/00"}, ToTextCase{1901y / March / 10, "1280/01/-10"},
        ToTextCase{1899y / December / 30, "1280/01/-445"}));

TEST(JalaliCalendarTest, DaysAfterTheLastYearRunOnInMonth12) {
    const DaySerial lastEntry = JalaliCalendar::yearStart(JalaliCalendar::kLastYear);
    // 1580 is a common year: day 365 is 1580/12/29, and later days keep counting.
    EXPECT_FALSE(JalaliCalendar::isLeapYear(1580));
    EXPECT_EQ(JalaliCalendar::toJalaliText(lastEntry + 365), "1580/12/29");
    EXPECT_EQ(JalaliCalendar::toJalaliText(lastEntry + 366), "1580/12/30");
    EXPECT_EQ(JalaliCalendar::toJalaliText(lastEntry + 400), "1580/12/64");
}

TEST(JalaliCalendarTest, LeapYearsOfTheRule) {
    for (const int y : {1395, 1399, 1403, 1408, 1375, 1379, 1370, 1280, 1284}) {
        EXPECT_TRUE(JalaliCalendar::isLeapYear(y)) << y;
    }
    for (const int y : {1396, 1404, 1400, 1407, 1402, 1378, 1281, 1580}) {
        EXPECT_FALSE(JalaliCalendar::isLeapYear(y)) << y;
    }
}

TEST(JalaliCalendarTest, EightLeapYearsInEveryThirtyThreeAndTablesAgree) {
    for (int y = JalaliCalendar::kFirstYear; y + 33 <= JalaliCalendar::kLastYear; ++y) {
        int leaps = 0;
        for (int k = 0; k < 33; ++k) {
            leaps += JalaliCalendar::isLeapYear(y + k) ? 1 : 0;
        }
        ASSERT_EQ(leaps, 8) << "33 years from " << y;
    }
    for (int y = JalaliCalendar::kFirstYear; y < JalaliCalendar::kLastYear; ++y) {
        const int length = JalaliCalendar::yearStart(y + 1) - JalaliCalendar::yearStart(y);
        ASSERT_EQ(length, JalaliCalendar::isLeapYear(y) ? 366 : 365) << y;
    }
}

TEST(JalaliCalendarTest, YearAndMonthChecks) {
    struct Case {
        int typed;
        bool valid;
        int after;
    };
    const Case cases[] = {{99, true, 1399},   {0, true, 1300},     {1, true, 1301},
                          {100, false, 100},  {1279, false, 1279}, {1280, true, 1280},
                          {1580, true, 1580}, {1581, false, 1581}, {-5, true, 1295},
                          {1404, true, 1404}, {-20, true, 1280},   {-21, false, 1279}};
    for (const Case& c : cases) {
        int year = c.typed;
        EXPECT_EQ(JalaliCalendar::isValidYear(year), c.valid) << c.typed;
        EXPECT_EQ(year, c.after) << c.typed;
    }
    for (int m = -1; m <= 14; ++m) {
        EXPECT_EQ(JalaliCalendar::isValidMonth(m), m >= 1 && m <= 12) << m;
    }
}

// Every day of the table, text -> platform date -> text; only the days that the
// 20 March correction moves do not come back.
TEST(JalaliCalendarTest, RoundTripsEveryDayOfTheTable) {
    const std::vector<std::string> moved = {"1377/12/29"};
    std::vector<std::string> notBack;
    DaySerial expected = JalaliCalendar::yearStart(JalaliCalendar::kFirstYear);
    for (int y = JalaliCalendar::kFirstYear; y <= JalaliCalendar::kLastYear; ++y) {
        for (int m = 1; m <= 12; ++m) {
            for (int d = 1; d <= JalaliCalendar::daysInMonth(y, m); ++d) {
                ++expected;
                const std::string text = JalaliCalendar::formatDateText({y, m, d});
                const std::optional<DaySerial> serial = JalaliCalendar::toSerial(text);
                ASSERT_TRUE(serial.has_value()) << text;
                ASSERT_EQ(*serial, expected) << text;
                const std::optional<JalaliDate> exact = JalaliCalendar::toJalaliDate(*serial);
                ASSERT_TRUE(exact.has_value()) << text;
                ASSERT_EQ(JalaliCalendar::formatDateText(*exact), text);
                if (JalaliCalendar::toJalaliText(*serial) != text) {
                    notBack.push_back(text);
                }
            }
        }
    }
    EXPECT_EQ(notBack, moved);
    EXPECT_FALSE(JalaliCalendar::toJalaliDate(JalaliCalendar::yearStart(1280)).has_value());
    EXPECT_FALSE(JalaliCalendar::toJalaliDate(expected + 1).has_value());
}

}  // namespace
}  // namespace sandogh
