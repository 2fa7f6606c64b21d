#include <gtest/gtest.h>

#include "devices/DisplayFrames.h"

using sandogh::DisplayFrames;

namespace {

TEST(DisplayFrames, LinesAreCentredOnTwentyColumns) {
    const struct {
        const char* line;
        int before;
        const char* text;
        int after;
    } cases[] = {
        {"Price:12,500", 4, "Price:12,500", 4},
        // Odd length: one blank appended first, then six on each side.
        {"Welcome", 6, "Welcome ", 6},
        {"", 10, "", 10},
        {"A", 9, "A ", 9},
        {"12345678901234567890", 0, "12345678901234567890", 0},
        {"1234567890123456789", 0, "1234567890123456789 ", 0},
        // Longer than the display: sent as it is.
        {"Price:123,456,789,012", 0, "Price:123,456,789,012", 0},
    };
    for (const auto& c : cases) {
        const QString expected = QString(c.before, QLatin1Char(' ')) + QString::fromLatin1(c.text) +
                                 QString(c.after, QLatin1Char(' '));
        EXPECT_EQ(DisplayFrames::centre(QString::fromLatin1(c.line)), expected) << c.line;
    }
}

TEST(DisplayFrames, TwoLineFrameIsTwoLineEndsAndBothTrimmedLinesCentred) {
    EXPECT_EQ(DisplayFrames::twoLineDisplay(QStringLiteral(" 12,500 "), QStringLiteral(" Hi ")),
              QByteArray("\r\n\r\n"
                         "    Price:12,500    "
                         "         Hi         "));
}

TEST(DisplayFrames, PriceDisplayGetsEscQAAndPlainDigits) {
    const struct {
        const char* amount;
        const char* bytes;
    } cases[] = {
        {"1,250,000", "1B 51 41 31 32 35 30 30 30 30 0D"},
        {"", "1B 51 41 30 0D"},
        {"abc", "1B 51 41 30 0D"},
        {"0", "1B 51 41 30 0D"},
        {"12.5", "1B 51 41 31 32 2E 35 0D"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(DisplayFrames::priceDisplay(QString::fromLatin1(c.amount)).toHex(' ').toUpper(),
                  QByteArray(c.bytes))
            << c.amount;
    }
}

TEST(DisplayFrames, LineDisplayDropsTheSeparators) {
    const struct {
        const char* amount;
        const char* bytes;
    } cases[] = {
        {"1,250,000", "1250000"}, {"12,500.5", "12500.5"}, {"", ""}, {" 1,000 ", " 1000 "}};
    for (const auto& c : cases) {
        EXPECT_EQ(DisplayFrames::lineDisplayAmount(QString::fromLatin1(c.amount)),
                  QByteArray(c.bytes))
            << c.amount;
    }
}

}  // namespace
