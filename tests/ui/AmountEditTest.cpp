// The amount box: separators while typing, the cursor across them, and what it refuses.

#include <gtest/gtest.h>

#include <QTest>

#include "TypeText.h"
#include "ui/widgets/AmountEdit.h"
#include "ui/widgets/AmountValidator.h"

namespace sandogh {
namespace {

struct TypingCase {
    const char* typed;  // UTF-8, typed key by key into an empty box
    const char* shown;
    double value;
    int decimals = 0;
};

class AmountEditTyping : public ::testing::TestWithParam<TypingCase> {};

TEST_P(AmountEditTyping, ShowsSeparatorsWhileTyping) {
    const TypingCase& c = GetParam();
    AmountEdit edit;
    edit.setDecimals(c.decimals);
    test::typeText(&edit, QString::fromUtf8(c.typed));
    EXPECT_EQ(edit.text(), QString::fromUtf8(c.shown));
    EXPECT_EQ(edit.value(), c.value);
    EXPECT_EQ(edit.cursorPosition(), edit.text().size());
}

INSTANTIATE_TEST_SUITE_P(
    Amounts, AmountEditTyping,
    ::testing::Values(TypingCase{"1250000", "1,250,000", 1250000}, TypingCase{"999", "999", 999},
                      TypingCase{"1000", "1,000", 1000},
                      TypingCase{"۱۲۵۰۰", "12,500", 12500},  // Persian digits
                      TypingCase{"٣٤٥٦", "3,456", 3456},     // Arabic-Indic digits
                      TypingCase{"12a3x", "123", 123},       // letters refused
                      TypingCase{"1-2", "12", 12},           // no sign inside
                      TypingCase{"-5", "5", 5},              // no negatives by default
                      TypingCase{"1.5", "15", 15},           // no point for rials
                      TypingCase{"0075", "75", 75},          // leading zeros dropped
                      TypingCase{"1,2,3,4", "1,234", 1234},  // typed separators ignored
                      TypingCase{"1234.567", "1,234.567", 1234.567, 3},
                      TypingCase{"0.25", "0.25", 0.25, 3},
                      TypingCase{"1.2345", "1.234", 1.234, 3},  // fourth decimal refused
                      TypingCase{"1.2.3", "1.23", 1.23, 3}));   // one point only

struct EditCase {
    const char* name;
    const char* typed;
    int cursor;
    Qt::Key key;
    const char* shown;
    int cursorAfter;
};

class AmountEditEditing : public ::testing::TestWithParam<EditCase> {};

TEST_P(AmountEditEditing, KeepsTheCursorBesideTheDigitAcrossTheSeparators) {
    const EditCase& c = GetParam();
    AmountEdit edit;
    QTest::keyClicks(&edit, QString::fromLatin1(c.typed));
    edit.setCursorPosition(c.cursor);
    QTest::keyClick(&edit, c.key);
    EXPECT_EQ(edit.text(), QString::fromLatin1(c.shown));
    EXPECT_EQ(edit.cursorPosition(), c.cursorAfter);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, AmountEditEditing,
    ::testing::Values(
        EditCase{"DigitInTheMiddle", "125000", 1, Qt::Key_9, "1,925,000", 3},
        EditCase{"BackspaceBehindASeparator", "1250000", 2, Qt::Key_Backspace, "250,000", 0},
        EditCase{"DeleteBeforeASeparator", "1250000", 1, Qt::Key_Delete, "150,000", 1}),
    [](const ::testing::TestParamInfo<EditCase>& p) { return std::string(p.param.name); });

TEST(AmountEdit, NegativeAmountsOnlyWhenAllowed) {
    AmountEdit edit;
    edit.setValue(-1500);
    EXPECT_EQ(edit.value(), 0);
    edit.setNegativeAllowed(true);
    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("-1500"));
    EXPECT_EQ(edit.text(), QStringLiteral("-1,500"));
    EXPECT_EQ(edit.value(), -1500);
}

TEST(AmountValidator, RefusesMoreWholeDigitsThanADoubleHolds) {
    const QString fifteen(AmountValidator::kMaxWholeDigits, u'9');
    EXPECT_TRUE(AmountValidator::reformat(fifteen, 0, 0, false).has_value());
    EXPECT_FALSE(AmountValidator::reformat(fifteen + u'9', 0, 0, false).has_value());
}

TEST(AmountValidator, PastedTextWithBlanksAndArabicSeparators) {
    // "۱٬۲۵۰ ۰۰۰" with the Arabic thousands separator and a blank
    const auto formatted = AmountValidator::reformat(QString::fromUtf8("۱٬۲۵۰ ۰۰۰"), 9, 0, false);
    ASSERT_TRUE(formatted.has_value());
    EXPECT_EQ(formatted->text, QStringLiteral("1,250,000"));
    EXPECT_EQ(formatted->cursor, 9);
}

}  // namespace
}  // namespace sandogh
