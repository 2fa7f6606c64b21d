#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

#include "common/AmountText.h"

namespace sandogh {
namespace {

struct FormatCase {
    double value;
    const char* whole;     // "##,###"
    const char* decimals;  // "##,###.###"
};

class AmountFormatTest : public testing::TestWithParam<FormatCase> {};

TEST_P(AmountFormatTest, Formats) {
    const FormatCase& c = GetParam();
    EXPECT_EQ(AmountText::formatWhole(c.value), c.whole);
    EXPECT_EQ(AmountText::formatDecimals(c.value), c.decimals);
}

INSTANTIATE_TEST_SUITE_P(
    Values, AmountFormatTest,
    testing::Values(FormatCase{0, "0", "0"}, FormatCase{-0.0, "0", "0"}, FormatCase{1, "1", "1"},
                    FormatCase{999, "999", "999"}, FormatCase{1000, "1,000", "1,000"},
                    FormatCase{12500, "12,500", "12,500"}, FormatCase{999999, "999,999", "999,999"},
                    FormatCase{1000000, "1,000,000", "1,000,000"},
                    FormatCase{1234567.5, "1,234,568", "1,234,567.5"},
                    FormatCase{-1500, "-1,500", "-1,500"},
                    FormatCase{-1234.5678, "-1,235", "-1,234.568"},
                    // half away from zero, on the decimal digits as written
                    FormatCase{0.5, "1", "0.5"}, FormatCase{-0.5, "-1", "-0.5"},
                    FormatCase{2.5, "3", "2.5"}, FormatCase{1.0005, "1", "1.001"},
                    FormatCase{1.0004, "1", "1"}, FormatCase{0.0005, "0", "0.001"},
                    FormatCase{-0.0004, "0", "0"}, FormatCase{0.4, "0", "0.4"},
                    FormatCase{0.1 + 0.2, "0", "0.3"}, FormatCase{999.9996, "1,000", "1,000"},
                    FormatCase{9999999.9999, "10,000,000", "10,000,000"},
                    FormatCase{0.12345, "0", "0.123"}, FormatCase{1e-300, "0", "0"},
                    FormatCase{123456789012345.0, "123,456,789,012,345", "123,456,789,012,345"},
                    FormatCase{1e20, "100,000,000,000,000,000,000",
                               "100,000,000,000,000,000,000"}));

TEST(AmountTextTest, FormatWithOtherDecimalCounts) {
    EXPECT_EQ(AmountText::format(3.14159, 2), "3.14");
    EXPECT_EQ(AmountText::format(3.145, 2), "3.15");
    EXPECT_EQ(AmountText::format(0.1, 15), "0.1");
    EXPECT_EQ(AmountText::format(1.5, 0), "2");
    for (const int bad : {-1, 16}) {
        EXPECT_THROW((void)AmountText::format(1, bad), std::out_of_range) << bad;
    }
    for (const double bad : {std::numeric_limits<double>::infinity(), std::nan("")}) {
        EXPECT_THROW((void)AmountText::format(bad, 0), std::invalid_argument);
        EXPECT_EQ(AmountText::formatWhole(bad), AmountText::unreadable());
        EXPECT_EQ(AmountText::formatDecimals(-bad), AmountText::unreadable());
        EXPECT_FALSE(AmountText::isUsable(bad));
    }
}

struct ParseCase {
    const char* text;
    double value;
    bool strict;  // the whole text is one number
};

class AmountParseTest : public testing::TestWithParam<ParseCase> {};

TEST_P(AmountParseTest, ReadsTheLeadingNumber) {
    const ParseCase& c = GetParam();
    EXPECT_DOUBLE_EQ(AmountText::parse(c.text), c.value);
    const std::optional<double> strict = AmountText::parseStrict(c.text);
    EXPECT_EQ(strict.has_value(), c.strict);
    if (strict) {
        EXPECT_DOUBLE_EQ(*strict, c.value);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, AmountParseTest,
    testing::Values(
        ParseCase{"1,234,568", 1234568, true}, ParseCase{"12,500", 12500, true},
        ParseCase{"-1,500", -1500, true}, ParseCase{"+7", 7, true},
        ParseCase{"1,234.5", 1234.5, true}, ParseCase{".5", 0.5, true},
        ParseCase{"-.25", -0.25, true}, ParseCase{"5.", 5, true}, ParseCase{"1,,2", 12, true},
        ParseCase{",", 0, false}, ParseCase{"  1 2 3 ", 123, true},
        ParseCase{"1\t000\n", 1000, true}, ParseCase{"1e3", 1000, true},
        ParseCase{"2D2", 200, true}, ParseCase{"1.5E-1", 0.15, true}, ParseCase{"1e", 1, false},
        ParseCase{"1e+", 1, false}, ParseCase{"12abc", 12, false}, ParseCase{"12.5.3", 12.5, false},
        ParseCase{"3-4", 3, false}, ParseCase{"", 0, false}, ParseCase{"   ", 0, false},
        ParseCase{"abc", 0, false}, ParseCase{"-", 0, false}, ParseCase{"--1", 0, false},
        ParseCase{".", 0, false}, ParseCase{"ريال 500", 0, false}, ParseCase{"&H10", 0, false},
        ParseCase{"۱۲٬۵۰۰", 12500, true},  // Persian digits, Arabic separator
        ParseCase{"١٢٣٫٥", 123.5, true},   // Arabic-Indic digits and decimal sign
        ParseCase{"۱,۲۳۴.۵", 1234.5, true}, ParseCase{"1e-400", 0, true},
        ParseCase{"1e400", 0, false}, ParseCase{"-1e400x", 0, false},
        // Not numbers, or beyond what the amount columns and devices carry.
        ParseCase{"nan", 0, false}, ParseCase{"inf", 0, false}, ParseCase{"-Infinity", 0, false},
        ParseCase{"999999999999999", 999999999999999, true}, ParseCase{"1e15", 1e15, false},
        ParseCase{"-1,000,000,000,000,000", -1e15, false},
        ParseCase{"9223372036854775808", 9223372036854775808.0, false}));

TEST(AmountTextTest, FormattedTextsReadBack) {
    for (const double v : {0.0, 1.0, -1.0, 12500.0, 1234567.0, -987654321.0, 123456789012345.0}) {
        EXPECT_DOUBLE_EQ(AmountText::parse(AmountText::formatWhole(v)), v) << v;
    }
    for (const double v : {0.125, 1234.5, -0.001, 98765.432}) {
        EXPECT_DOUBLE_EQ(AmountText::parse(AmountText::formatDecimals(v)), v) << v;
    }
}

TEST(AmountTextTest, StripSeparators) {
    EXPECT_EQ(AmountText::stripSeparators("1,234,567"), "1234567");
    EXPECT_EQ(AmountText::stripSeparators(",,"), "");
    EXPECT_EQ(AmountText::stripSeparators("۱٬۰۰۰"), "۱۰۰۰");
    EXPECT_EQ(AmountText::stripSeparators("a, b"), "a b");
}

}  // namespace
}  // namespace sandogh
