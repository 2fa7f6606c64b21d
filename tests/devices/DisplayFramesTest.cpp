#include <gtest/gtest.h>

#include "devices/DisplayFrames.h"

using sandogh::DisplayFrames;

namespace {

struct CentreCase {
    const char* line;
    int before;
    const char* text;
    int after;
};

class Centring : public ::testing::TestWithParam<CentreCase> {};

TEST_P(Centring, PadsToTwentyColumns) {
    const CentreCase& c = GetParam();
    const QString expected = QString(c.before, QLatin1Char(' ')) + QString::fromLatin1(c.text) +
                             QString(c.after, QLatin1Char(' '));
    EXPECT_EQ(DisplayFrames::centre(QString::fromLatin1(c.line)), expected) << c.line;
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Centring,
    ::testing::Values(CentreCase{"Price:12,500", 4, "Price:12,500", 4},
                      // Odd length: one blank appended first, then six on each side.
                      CentreCase{"Welcome", 6, "Welcome ", 6},
                      CentreCase{"Price:1,250,000", 2, "Price:1,250,000 ", 2},
                      CentreCase{"", 10, "", 10}, CentreCase{"A", 9, "A ", 9},
                      CentreCase{"12345678901234567890", 0, "12345678901234567890", 0},
                      CentreCase{"1234567890123456789", 0, "1234567890123456789 ", 0},
                      // Longer than the display: sent as it is.
                      CentreCase{"Price:123,456,789,012", 0, "Price:123,456,789,012", 0},
                      CentreCase{"A very long greeting text", 0, "A very long greeting text", 0}));

TEST(DisplayFrames, TwoLineFrameOfTheWorkedExample) {
    const QByteArray frame =
        DisplayFrames::twoLineDisplay(QStringLiteral("12,500"), QStringLiteral("Welcome"));
    EXPECT_EQ(frame, QByteArray("\r\n\r\n"
                                "    Price:12,500    "
                                "      Welcome       "));
    EXPECT_EQ(frame.size(), 44);
}

TEST(DisplayFrames, TwoLineFrameTrimsBothTexts) {
    EXPECT_EQ(DisplayFrames::twoLineDisplay(QStringLiteral(" 12,500 "), QStringLiteral(" Hi ")),
              QByteArray("\r\n\r\n"
                         "    Price:12,500    "
                         "         Hi         "));
}

struct PriceCase {
    const char* amount;
    const char* bytes;
};

class PriceDisplay : public ::testing::TestWithParam<PriceCase> {};

TEST_P(PriceDisplay, SendsPlainDigits) {
    EXPECT_EQ(
        DisplayFrames::priceDisplay(QString::fromLatin1(GetParam().amount)).toHex(' ').toUpper(),
        QByteArray(GetParam().bytes));
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, PriceDisplay,
    ::testing::Values(PriceCase{"1,250,000", "1B 51 41 31 32 35 30 30 30 30 0D"},
                      PriceCase{"12,500", "1B 51 41 31 32 35 30 30 0D"},
                      PriceCase{"", "1B 51 41 30 0D"}, PriceCase{"abc", "1B 51 41 30 0D"},
                      PriceCase{"0", "1B 51 41 30 0D"},
                      PriceCase{"12.5", "1B 51 41 31 32 2E 35 0D"}));

struct LineCase {
    const char* amount;
    const char* bytes;
};

class LineDisplay : public ::testing::TestWithParam<LineCase> {};

TEST_P(LineDisplay, DropsTheSeparators) {
    EXPECT_EQ(DisplayFrames::lineDisplayAmount(QString::fromLatin1(GetParam().amount)),
              QByteArray(GetParam().bytes));
}

INSTANTIATE_TEST_SUITE_P(Amounts, LineDisplay,
                         ::testing::Values(LineCase{"1,250,000", "1250000"},
                                           LineCase{"12,500.5", "12500.5"}, LineCase{"", ""},
                                           LineCase{" 1,000 ", " 1000 "}));

}  // namespace
