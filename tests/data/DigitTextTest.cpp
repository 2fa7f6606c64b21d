// Whole numbers as digit text: the leading number of a text and its successor, at any
// length.

#include <gtest/gtest.h>

#include "data/repositories/DigitText.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

TEST(DigitText, LeadingNumberAndPlusOne) {
    const struct {
        const char* text;
        const char* leading;
        const char* next;
    } cases[] = {{"", "0", "1"},
                 {"000", "0", "1"},
                 {"8", "8", "9"},
                 {"199", "199", "200"},
                 {"6260000000009", "6260000000009", "6260000000010"},
                 {"9223372036854775807", "9223372036854775807", "9223372036854775808"},
                 {"99999999999999999999", "99999999999999999999", "100000000000000000000"},
                 {"  0042 ", "42", "43"},
                 {"12-3", "12", "13"},
                 {"abc", "0", "1"},
                 {"-5", "0", "1"},
                 {"۱۲", "0", "1"}};
    for (const auto& c : cases) {
        const QString text = QString::fromUtf8(c.text);
        EXPECT_EQ(DigitText::leadingNumber(text), QString::fromLatin1(c.leading)) << c.text;
        EXPECT_EQ(DigitText::plusOne(text), QString::fromLatin1(c.next)) << c.text;
    }
}

}  // namespace
}  // namespace sandogh
