#include <gtest/gtest.h>

#include <string>

#include "common/TextHelpers.h"

namespace sandogh {
namespace {

// The letters by code point, so that the test cannot mix them up by eye.
const std::string kArabicYeh = "\u064A";
const std::string kAlefMaksura = "\u0649";
const std::string kArabicKaf = "\u0643";
const std::string kPersianYeh = "\u06CC";
const std::string kPersianKeheh = "\u06A9";

TEST(TextHelpersTest, StripQuotes) {
    struct Case {
        const char* in;
        const char* out;
    };
    const Case cases[] = {{"", ""},           {"'", ""},
                          {"'''", ""},        {"12'34", "1234"},
                          {"'6260'", "6260"}, {"no quote", "no quote"},
                          {"a\"b", "a\"b"},   {"x'; drop", "x; drop"}};
    for (const Case& c : cases) {
        EXPECT_EQ(TextHelpers::stripQuotes(c.in), c.out) << c.in;
    }
}

TEST(TextHelpersTest, LetterFormsBothWays) {
    // The unit word "one" of the stored tables, in Arabic forms.
    const std::string one = "يك";
    ASSERT_EQ(one, kArabicYeh + kArabicKaf);
    EXPECT_EQ(TextHelpers::toPersianLetters(one), kPersianYeh + kPersianKeheh);
    EXPECT_EQ(TextHelpers::toArabicLetters(kPersianYeh + kPersianKeheh), one);
    EXPECT_EQ(TextHelpers::toPersianLetters(kAlefMaksura), kPersianYeh);

    const std::string mixed = "A" + kArabicYeh + " 1 " + kPersianKeheh + kArabicKaf + "z";
    EXPECT_EQ(TextHelpers::toPersianLetters(mixed),
              "A" + kPersianYeh + " 1 " + kPersianKeheh + kPersianKeheh + "z");
    EXPECT_EQ(TextHelpers::toArabicLetters(mixed),
              "A" + kArabicYeh + " 1 " + kArabicKaf + kArabicKaf + "z");
    // Other letters, ASCII and stray bytes pass untouched.
    const std::string other = "شنبه abc \xD9 \xDB";
    EXPECT_EQ(TextHelpers::toPersianLetters(other), other);
    EXPECT_EQ(TextHelpers::toArabicLetters(other), other);
    EXPECT_EQ(TextHelpers::toPersianLetters(""), "");
    // A trailing lone lead byte is kept as it is.
    EXPECT_EQ(TextHelpers::toArabicLetters("x\xDB"), "x\xDB");
}

TEST(TextHelpersTest, DigitsBothWays) {
    const std::string persian = "\u06F0\u06F1\u06F2\u06F3\u06F4\u06F5\u06F6\u06F7\u06F8\u06F9";
    const std::string arabic = "\u0660\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668\u0669";
    EXPECT_EQ(TextHelpers::toAsciiDigits(persian), "0123456789");
    EXPECT_EQ(TextHelpers::toAsciiDigits(arabic), "0123456789");
    EXPECT_EQ(TextHelpers::toPersianDigits("0123456789"), persian);
    EXPECT_EQ(TextHelpers::toAsciiDigits(TextHelpers::toPersianDigits("1404/01/05")), "1404/01/05");
    EXPECT_EQ(TextHelpers::toAsciiDigits("a" + persian.substr(2, 2) + "-x"), "a1-x");
    // Neighbours of the digit blocks are not digits.
    const std::string notDigits = "\u06EF\u06FA\u065F\u066A";
    EXPECT_EQ(TextHelpers::toAsciiDigits(notDigits), notDigits);
    EXPECT_EQ(TextHelpers::toPersianDigits("يك x"), "يك x");
}

TEST(TextHelpersTest, SearchKeyFoldsWhatPeopleTypeDifferently) {
    const std::string zwnj = "\u200C";
    struct Case {
        std::string in;
        std::string out;
    };
    const Case cases[] = {
        {"", ""},
        {"\u0686\u0627" + kArabicYeh, "\u0686\u0627" + kPersianYeh},  // the tea word, Arabic yeh
        {kArabicKaf + kAlefMaksura, kPersianKeheh + kPersianYeh},
        {"\u0645\u06CC" + zwnj + "\u0634\u0648\u062F", "\u0645\u06CC\u0634\u0648\u062F"},
        {zwnj + zwnj, ""},
        {"\u06F6\u06F2\u06F6\u06F0", "6260"},  // Persian digits
        {"\u0666\u0662\u0666\u0660", "6260"},  // Arabic-Indic digits
        {"A-12 " + zwnj + "z", "A-12 z"},
        {"\xE2\x80", "\xE2\x80"},  // a cut sequence is kept
    };
    for (const Case& c : cases) {
        EXPECT_EQ(TextHelpers::searchKey(c.in), c.out) << c.in;
    }
}

}  // namespace
}  // namespace sandogh
