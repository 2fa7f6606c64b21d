// The Jalali date box: its mask, what is typed into it, and the canonical date.

#include <gtest/gtest.h>

#include <QTest>

#include "TypeText.h"
#include "ui/widgets/JalaliDateEdit.h"

namespace sandogh {
namespace {

TEST(JalaliDateEdit, EmptyBoxShowsTheMaskAndNoDate) {
    JalaliDateEdit edit;
    EXPECT_EQ(edit.displayText(), QStringLiteral("____/__/__"));
    EXPECT_TRUE(edit.isBlank());
    EXPECT_TRUE(edit.isAcceptable());
    EXPECT_EQ(edit.dateText(), QString());
    EXPECT_FALSE(edit.property("invalid").toBool());
}

struct DateCase {
    const char* typed;  // UTF-8, typed key by key; "/" skips to the next part of the mask
    const char* date;   // canonical, or empty when not a real day
};

class JalaliDateEditTyping : public ::testing::TestWithParam<DateCase> {};

TEST_P(JalaliDateEditTyping, GivesTheCanonicalDateOrNothing) {
    const DateCase& c = GetParam();
    JalaliDateEdit edit;
    test::typeText(&edit, QString::fromUtf8(c.typed));
    const QString expected = QString::fromUtf8(c.date);
    EXPECT_EQ(edit.dateText(), expected) << edit.displayText().toStdString();
    EXPECT_EQ(edit.isAcceptable(), !expected.isEmpty());
    EXPECT_EQ(edit.property("invalid").toBool(), expected.isEmpty());
}

// Which days are real is the calendar's (tested under common); the box asks it.
INSTANTIATE_TEST_SUITE_P(Dates, JalaliDateEditTyping,
                         ::testing::Values(DateCase{"14040105", "1404/01/05"},
                                           DateCase{"۱۴۰۴۰۱۰۵", "1404/01/05"},  // Persian digits
                                           DateCase{"14041230", ""},            // 1404 is not leap
                                           DateCase{"1404", ""}));  // month and day missing

TEST(JalaliDateEdit, ShowsTheCanonicalDateWhenEditingEnds) {
    JalaliDateEdit edit;
    QTest::keyClicks(&edit, QStringLiteral("1404"));
    edit.setCursorPosition(5);
    QTest::keyClicks(&edit, QStringLiteral("1"));
    edit.setCursorPosition(8);
    QTest::keyClicks(&edit, QStringLiteral("5"));
    EXPECT_EQ(edit.dateText(), QStringLiteral("1404/01/05"));
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(edit.displayText(), QStringLiteral("1404/01/05"));
}

TEST(JalaliDateEdit, SetDateTextTakesTypedFormsAndRefusesOthers) {
    JalaliDateEdit edit;
    EXPECT_TRUE(edit.setDateText(QStringLiteral("1404/1/5")));
    EXPECT_EQ(edit.dateText(), QStringLiteral("1404/01/05"));
    EXPECT_EQ(edit.displayText(), QStringLiteral("1404/01/05"));
    EXPECT_TRUE(edit.setDateText(QStringLiteral("99/12/30")));  // a two-digit year is 13xx
    EXPECT_EQ(edit.dateText(), QStringLiteral("1399/12/30"));
    EXPECT_FALSE(edit.setDateText(QStringLiteral("1404/12/30")));
    EXPECT_TRUE(edit.isBlank());
    EXPECT_TRUE(edit.setDateText(QString()));
    EXPECT_EQ(edit.dateText(), QString());
}

}  // namespace
}  // namespace sandogh
