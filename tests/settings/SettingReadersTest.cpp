#include <limits>

#include <gtest/gtest.h>

#include <QString>

#include "settings/SettingReaders.h"

namespace sandogh {
namespace {

struct ReadCase {
    const char* text;
    bool on;
    double value;
};

// The reading rule of every flag and number setting.
const ReadCase readCases[] = {
    {"2", true, 2},
    {"1", true, 1},
    {"0", false, 0},
    {"", false, 0},
    {"abc", false, 0},
    {"2abc", true, 2},
    {" 3", true, 3},
    {"\t 4", true, 4},
    {"3 ", true, 3},
    {"-1", false, -1},
    {"-0", false, 0},
    {"+5", true, 5},
    {"1.5", true, 1.5},
    {"0.4", true, 0.4},
    {".5", true, 0.5},
    {"5.", true, 5},
    {"1.2.3", true, 1.2},
    {"-", false, 0},
    {".", false, 0},
    {"-.", false, 0},
    {"- 3", false, 0},
    {"1,000", true, 1},
    {"12 34", true, 12},
    {"True", false, 0},
    {"007", true, 7},
    {"\xdb\xb2", false, 0},  // EXTENDED ARABIC-INDIC DIGIT TWO: not a digit of the rule
    {"99999999999", true, 99999999999.0},
};

class SettingReadersRead : public ::testing::TestWithParam<ReadCase> {};

TEST_P(SettingReadersRead, FlagAndNumber) {
    const ReadCase& c = GetParam();
    const QString text = QString::fromUtf8(c.text);
    EXPECT_EQ(SettingReaders::flagOn(text), c.on) << '"' << c.text << '"';
    EXPECT_DOUBLE_EQ(SettingReaders::numericValue(text), c.value) << '"' << c.text << '"';
}

INSTANTIATE_TEST_SUITE_P(Texts, SettingReadersRead, ::testing::ValuesIn(readCases));

TEST(SettingReaders, HugeNumbersDoNotOverflowToGarbage) {
    const QString huge = QString(400, u'9');
    EXPECT_TRUE(SettingReaders::flagOn(huge));
    EXPECT_EQ(SettingReaders::numericValue(huge), std::numeric_limits<double>::max());
    EXPECT_EQ(SettingReaders::numericValue(u'-' + huge), -std::numeric_limits<double>::max());
}

TEST(SettingReaders, WholeNumbersRoundHalvesToEven) {
    const struct {
        double value;
        int whole;
    } cases[] = {
        {0, 0},
        {0.4, 0},
        {0.5, 0},
        {1.5, 2},
        {2.5, 2},
        {2.6, 3},
        {-1.5, -2},
        {-2.5, -2},
        {1e12, std::numeric_limits<int>::max()},
        {-1e12, std::numeric_limits<int>::min()},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(SettingReaders::toInteger(c.value), c.whole) << c.value;
    }
}

TEST(SettingReaders, BlankTextTakesTheDefault) {
    const struct {
        const char* kept;
        const char* fallback;
        const char* result;
    } cases[] = {
        {"", "1", "1"},  {"   ", "1", "1"},   {"\t", "True", "True"},
        {"0", "1", "0"}, {" 4 ", "1", " 4 "}, {"", "", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(
            SettingReaders::orDefault(QString::fromLatin1(c.kept), QString::fromLatin1(c.fallback)),
            QString::fromLatin1(c.result))
            << '"' << c.kept << '"';
    }
}

}  // namespace
}  // namespace sandogh
