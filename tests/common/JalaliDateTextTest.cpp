#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "common/JalaliCalendar.h"

namespace sandogh {
namespace {

struct TextCase {
    const char* text;
    bool valid;
};

class DateTextCheckTest : public testing::TestWithParam<TextCase> {};

TEST_P(DateTextCheckTest, AcceptsOnlyCanonicalRealDays) {
    const TextCase& c = GetParam();
    EXPECT_EQ(JalaliCalendar::isValidDateText(c.text), c.valid);
    EXPECT_EQ(JalaliCalendar::toSerial(std::string_view(c.text)).has_value(), c.valid);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, DateTextCheckTest,
    testing::Values(
        TextCase{"1404/01/05", true}, TextCase{"1404/06/31", true}, TextCase{"1404/07/30", true},
        TextCase{"1403/12/30", true}, TextCase{"1404/12/29", true}, TextCase{"1280/01/01", true},
        TextCase{"1580/12/29", true},
        // impossible days and months
        TextCase{"1404/07/31", false}, TextCase{"1403/12/31", false}, TextCase{"1404/12/30", false},
        TextCase{"1404/13/01", false}, TextCase{"1404/00/10", false}, TextCase{"1404/01/00", false},
        TextCase{"1404/01/32", false}, TextCase{"1279/12/29", false}, TextCase{"1581/01/01", false},
        // not the stored form
        TextCase{"1404/1/5", false}, TextCase{"1404/01/5", false}, TextCase{"01404/01/05", false},
        TextCase{"99/01/05", false}, TextCase{"1404-01-05", false}, TextCase{"1404/01/05/", false},
        TextCase{"1404/01/05 ", false}, TextCase{" 1404/01/05", false},
        TextCase{"1404/+1/05", false}, TextCase{"1404/-1/05", false}, TextCase{"____/__/__", false},
        TextCase{"", false}, TextCase{"/", false}, TextCase{"//", false},
        TextCase{"abcd/ef/gh", false}, TextCase{"14040/01/05", false},
        TextCase{"1404//05", false}));

struct NormalizeCase {
    const char* typed;
    const char* canonical;  // nullptr: rejected
};

class NormalizeDateTextTest : public testing::TestWithParam<NormalizeCase> {};

TEST_P(NormalizeDateTextTest, GivesTheStoredForm) {
    const NormalizeCase& c = GetParam();
    const std::optional<std::string> got = JalaliCalendar::normalizeDateText(c.typed);
    if (c.canonical == nullptr) {
        EXPECT_FALSE(got.has_value()) << *got;
    } else {
        ASSERT_TRUE(got.has_value());
        EXPECT_EQ(*got, c.canonical);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Typed, NormalizeDateTextTest,
    testing::Values(NormalizeCase{"1404/01/05", "1404/01/05"},
                    NormalizeCase{"1404/1/5", "1404/01/05"},
                    NormalizeCase{" 1404/1/05\t", "1404/01/05"},
                    NormalizeCase{"99/12/30", "1399/12/30"},  // 1399 is leap
                    NormalizeCase{"04/7/1", "1304/07/01"},
                    NormalizeCase{"۱۴۰۴/۰۱/۰۵", "1404/01/05"},  // Persian digits
                    NormalizeCase{"١٤٠٣/١٢/٣٠", "1403/12/30"},  // Arabic-Indic digits
                    NormalizeCase{"1404/07/31", nullptr}, NormalizeCase{"98/12/30", nullptr},
                    NormalizeCase{"4/01/01", nullptr}, NormalizeCase{"404/01/01", nullptr},
                    NormalizeCase{"1404/001/01", nullptr}, NormalizeCase{"1404/13/1", nullptr},
                    NormalizeCase{"1404/1", nullptr}, NormalizeCase{"", nullptr},
                    NormalizeCase{"____/__/__", nullptr}, NormalizeCase{"1404/ 1/05", nullptr},
                    NormalizeCase{"1404/x1/05", nullptr}));

struct AddDaysCase {
    const char* from;
    int days;
    const char* to;
};

class AddDaysTest : public testing::TestWithParam<AddDaysCase> {};

TEST_P(AddDaysTest, MovesAlongTheTables) {
    const AddDaysCase& c = GetParam();
    EXPECT_EQ(JalaliCalendar::addDays(c.from, c.days), c.to);
    // The way back agrees.
    EXPECT_EQ(JalaliCalendar::addDays(c.to, -c.days), c.from);
}

INSTANTIATE_TEST_SUITE_P(
    Moves, AddDaysTest,
    testing::Values(
        AddDaysCase{"1404/01/05", 0, "1404/01/05"}, AddDaysCase{"1404/01/31", 1, "1404/02/01"},
        AddDaysCase{"1404/06/31", 1, "1404/07/01"}, AddDaysCase{"1404/12/29", 1, "1405/01/01"},
        AddDaysCase{"1403/12/29", 1, "1403/12/30"}, AddDaysCase{"1403/12/30", 1, "1404/01/01"},
        AddDaysCase{"1403/01/01", 366, "1404/01/01"}, AddDaysCase{"1404/01/01", 365, "1405/01/01"},
        // Arithmetic passes the corrected day as the real day it is.
        AddDaysCase{"1377/12/28", 1, "1377/12/29"},
        // 21 March 1921 to 21 March 2021: 100 years with 25 leap days.
        AddDaysCase{"1300/01/01", 36525, "1400/01/01"}));

TEST(JalaliDateArithmeticTest, LeavingTheTableIsAnError) {
    EXPECT_EQ(JalaliCalendar::addDays("1580/12/29", 0), "1580/12/29");
    EXPECT_THROW((void)JalaliCalendar::addDays("1580/12/29", 1), std::out_of_range);
    EXPECT_THROW((void)JalaliCalendar::addDays("1280/01/01", -1), std::out_of_range);
    EXPECT_THROW((void)JalaliCalendar::addDays("1404/01/01", 2000000000), std::out_of_range);
    EXPECT_THROW((void)JalaliCalendar::addDays("1404/01/01", -2000000000), std::out_of_range);
    for (const char* bad : {"", "____/__/__", "1404/1/5", "1404/07/31", "hello"}) {
        EXPECT_THROW((void)JalaliCalendar::addDays(bad, 1), std::invalid_argument) << bad;
        EXPECT_THROW((void)JalaliCalendar::monthEnd(bad), std::invalid_argument) << bad;
    }
}

TEST(JalaliDateArithmeticTest, ImpossibleDaysHaveNoSerial) {
    for (const JalaliDate d :
         {JalaliDate{1404, 7, 31}, JalaliDate{1404, 12, 30}, JalaliDate{1581, 1, 1},
          JalaliDate{1404, 0, 1}, JalaliDate{1404, 1, 0}, JalaliDate{99, 1, 1}}) {
        EXPECT_FALSE(JalaliCalendar::isValidDate(d));
        EXPECT_THROW((void)JalaliCalendar::toSerial(d), std::out_of_range);
    }
}

}  // namespace
}  // namespace sandogh
