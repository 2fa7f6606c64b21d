// Whole numbers as digit text: the leading number of a text and its successor, at any
// length.

#include <gtest/gtest.h>

#include "data/repositories/DigitText.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

struct Case {
    const char* text;
    const char* leading;
    const char* next;
};

class DigitTextTest : public ::testing::TestWithParam<Case> {};

TEST_P(DigitTextTest, LeadingNumberAndPlusOne) {
    const QString text = QString::fromUtf8(GetParam().text);
    EXPECT_EQ(DigitText::leadingNumber(text), QString::fromLatin1(GetParam().leading));
    EXPECT_EQ(DigitText::plusOne(text), QString::fromLatin1(GetParam().next));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, DigitTextTest,
    ::testing::Values(Case{"", "0", "1"}, Case{"0", "0", "1"}, Case{"000", "0", "1"},
                      Case{"8", "8", "9"}, Case{"9", "9", "10"}, Case{"199", "199", "200"},
                      Case{"6260000000009", "6260000000009", "6260000000010"},
                      Case{"9223372036854775807", "9223372036854775807", "9223372036854775808"},
                      Case{"99999999999999999999", "99999999999999999999", "100000000000000000000"},
                      Case{"  0042 ", "42", "43"}, Case{"12abc", "12", "13"},
                      Case{"12-3", "12", "13"}, Case{"abc", "0", "1"}, Case{"-5", "0", "1"},
                      Case{"۱۲", "0", "1"}));

}  // namespace
}  // namespace sandogh
