#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/PersianWords.h"

namespace sandogh {
namespace {

// The words of the tables, written out again here so that a slip in the routine's
// own tables shows up.
const char* const kHundreds[] = {"",      "يكصد", "دويست", "سيصد",  "چهارصد",
                                 "پانصد", "ششصد", "هفتصد", "هشتصد", "نهصد"};
const char* const kTens[] = {"", "", "بيست", "سي", "چهل", "پنجاه", "شصت", "هفتاد", "هشتاد", "نود"};
const char* const kTeens[] = {"ده",     "يازده",  "دوازده", "سيزده", "چهارده",
                              "پانزده", "شانزده", "هفده",   "هجده",  "نوزده"};
const char* const kUnits[] = {"", "يك", "دو", "سه", "چهار", "پنج", "شش", "هفت", "هشت", "نه"};
const std::string kAnd = " و ";
const std::string kThousand = " هزار";
const std::string kMillion = " ميليون";
const std::string kBillion = " ميليارد";
const std::string kTrillion = " تريليون";
const std::string kVeryLarge = "بسيار بزرگ";

std::string joined(const std::vector<std::string>& parts) {
    std::string out;
    for (const std::string& p : parts) {
        if (p.empty()) {
            continue;
        }
        if (!out.empty()) {
            out += kAnd;
        }
        out += p;
    }
    return out;
}

// A group as the list of its spoken parts, joined by the joining word.
std::string composedGroup(int n) {
    const int h = n / 100;
    const int t = n / 10 % 10;
    const int u = n % 10;
    if (t == 1) {
        return joined({kHundreds[h], kTeens[u]});
    }
    return joined({kHundreds[h], kTens[t], kUnits[u]});
}

TEST(PersianWordsTest, EveryGroupMatchesItsParts) {
    for (int n = 0; n <= 999; ++n) {
        ASSERT_EQ(PersianWords::group(n), composedGroup(n)) << n;
    }
}

TEST(PersianWordsTest, GroupOutsideItsRangeIsAnError) {
    for (const int v : {-1, 1000, std::numeric_limits<int>::min()}) {
        EXPECT_THROW((void)PersianWords::group(v), std::out_of_range) << v;
    }
}

struct NumberCase {
    double value;
    std::string words;
};

// 999 in every group, from the trillions down.
std::string fifteenNines() {
    const std::string g = composedGroup(999);
    return g + kTrillion + kAnd + g + kBillion + kAnd + g + kMillion + kAnd + g + kThousand + kAnd +
           g;
}

class NumberWordsTest : public testing::TestWithParam<NumberCase> {};

TEST_P(NumberWordsTest, Spells) {
    EXPECT_EQ(PersianWords::number(GetParam().value), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumberWordsTest,
    testing::Values(NumberCase{0, ""},  // zero amounts print no words
                    NumberCase{1250000, "يك ميليون و دويست و پنجاه هزار"},
                    NumberCase{2005, "دو هزار و پنج"}, NumberCase{1e9, "يك ميليارد"},
                    NumberCase{100000, "يكصد هزار"}, NumberCase{100100, "يكصد هزار و يكصد"},
                    NumberCase{100, "يكصد"}, NumberCase{1000, "يك" + kThousand},
                    NumberCase{1e6, "يك" + kMillion}, NumberCase{1e12, "يك" + kTrillion},
                    NumberCase{1000001, "يك" + kMillion + kAnd + "يك"},
                    NumberCase{1e12 + 1e3, "يك" + kTrillion + kAnd + "يك" + kThousand},
                    NumberCase{999999999999999.0, fifteenNines()}, NumberCase{1e15, kVeryLarge},
                    NumberCase{1e300, kVeryLarge},
                    NumberCase{std::numeric_limits<double>::infinity(), kVeryLarge},
                    // Fractions are rounded half away from zero.
                    NumberCase{2.5, "سه"}, NumberCase{0.4, ""},
                    NumberCase{999999999999999.4, fifteenNines()}));

TEST(PersianWordsTest, DigitTextOfAnyLength) {
    EXPECT_EQ(PersianWords::numberText("0"), "");
    EXPECT_EQ(PersianWords::numberText("000"), "");
    EXPECT_EQ(PersianWords::numberText("0002005"), "دو هزار و پنج");
    EXPECT_EQ(PersianWords::numberText("999999999999999"), PersianWords::number(999999999999999.0));
    EXPECT_EQ(PersianWords::numberText("1000000000000000"), kVeryLarge);
    EXPECT_EQ(PersianWords::numberText("0000001000000000"), "يك ميليارد");
    EXPECT_EQ(PersianWords::numberText(std::string(40, '9')), kVeryLarge);
    for (const char* bad : {"", "-1", "+1", "1.5", "1,000", " 1", "12a", "۱۲"}) {
        EXPECT_THROW((void)PersianWords::numberText(bad), std::invalid_argument) << bad;
    }
}

TEST(PersianWordsTest, NegativeOrNotANumberIsAnError) {
    for (const double v : {-1.0, -1e20, std::nan(""), -std::numeric_limits<double>::infinity()}) {
        EXPECT_THROW((void)PersianWords::number(v), std::invalid_argument) << v;
    }
    EXPECT_EQ(PersianWords::number(-0.0), "");
}

}  // namespace
}  // namespace sandogh
