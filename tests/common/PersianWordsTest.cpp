#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

#include "common/PersianWords.h"

namespace sandogh {
namespace {

const std::string kAnd = " و ";
const std::string kThousand = " هزار";
const std::string kMillion = " ميليون";
const std::string kBillion = " ميليارد";
const std::string kTrillion = " تريليون";
const std::string kVeryLarge = "بسيار بزرگ";
const std::string kNineHundredNinetyNine = "نهصد و نود و نه";

// Every word of the groups at least once, in each way a group is put together.
TEST(PersianWordsTest, GroupsSpellEachWordInItsPlace) {
    const struct {
        int value;
        const char* words;
    } cases[] = {{0, ""},
                 {1, "يك"},
                 {10, "ده"},
                 {11, "يازده"},
                 {20, "بيست"},
                 {43, "چهل و سه"},
                 {54, "پنجاه و چهار"},
                 {65, "شصت و پنج"},
                 {76, "هفتاد و شش"},
                 {87, "هشتاد و هفت"},
                 {98, "نود و هشت"},
                 {100, "يكصد"},
                 {105, "يكصد و پنج"},
                 {112, "يكصد و دوازده"},
                 {209, "دويست و نه"},
                 {213, "دويست و سيزده"},
                 {314, "سيصد و چهارده"},
                 {415, "چهارصد و پانزده"},
                 {516, "پانصد و شانزده"},
                 {617, "ششصد و هفده"},
                 {718, "هفتصد و هجده"},
                 {819, "هشتصد و نوزده"},
                 {900, "نهصد"},
                 {932, "نهصد و سي و دو"},
                 {990, "نهصد و نود"},
                 {999, "نهصد و نود و نه"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(PersianWords::group(c.value), c.words);
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
    const std::string& g = kNineHundredNinetyNine;
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
