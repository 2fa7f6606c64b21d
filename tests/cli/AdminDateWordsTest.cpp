// sandogh-admin date and words: one line of output for good words, exit 2 and a message
// naming the bad word otherwise. The calendar and the spelling are tested under common.

#include <gtest/gtest.h>

#include <QDate>

#include "AdminProcess.h"

namespace sandogh {
namespace {

struct OutputCase {
    QStringList args;
    QString expected;  // the whole of stdout
};

class AdminOutputTest : public testing::TestWithParam<OutputCase> {};

TEST_P(AdminOutputTest, PrintsOneLine) {
    const AdminProcess::Result r = AdminProcess::run(GetParam().args);
    ASSERT_TRUE(r.started) << r.err.toStdString() << " "
                           << AdminProcess::binaryPath().toStdString();
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), GetParam().expected);
    EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Commands, AdminOutputTest,
    testing::Values(OutputCase{{"date", "2025-03-21"}, QStringLiteral("1404/01/01\tجمعه\n")},
                    OutputCase{{"date", "--dir", "/tmp", "1901-03-21"},
                               QStringLiteral("1280/01/01\tپنج شنبه\n")},
                    OutputCase{{"words", "0"}, QStringLiteral("\n")},
                    OutputCase{{"words", "000100100"}, QStringLiteral("يكصد هزار و يكصد\n")},
                    OutputCase{{"words", "\u06F2\u06F0\u06F0\u06F5"},
                               QStringLiteral("دو هزار و پنج\n")},
                    OutputCase{{"words", "99999999999999999999"}, QStringLiteral("بسيار بزرگ\n")}));

TEST(AdminDateTest, TodayWithoutAnArgument) {
    const QString before = QDate::currentDate().toString(Qt::ISODate);
    const AdminProcess::Result today = AdminProcess::run({"date"});
    const QString after = QDate::currentDate().toString(Qt::ISODate);
    ASSERT_EQ(today.exitCode, 0) << today.err.toStdString();
    // The day may turn while the program runs; either side is right then.
    const QString expectedBefore = AdminProcess::run({"date", before}).outText();
    const QString expectedAfter = AdminProcess::run({"date", after}).outText();
    EXPECT_TRUE(today.outText() == expectedBefore || today.outText() == expectedAfter)
        << today.outText().toStdString();
    EXPECT_TRUE(today.outText().contains(QLatin1Char('\t')));
}

class AdminBadArgumentsTest : public testing::TestWithParam<QStringList> {};

TEST_P(AdminBadArgumentsTest, ExitTwoWithAMessage) {
    const AdminProcess::Result r = AdminProcess::run(GetParam());
    ASSERT_TRUE(r.started);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
    EXPECT_FALSE(r.err.trimmed().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, AdminBadArgumentsTest,
    testing::Values(QStringList{"date", "2025-02-30"}, QStringList{"date", "2025-3-1"},
                    QStringList{"date", "1404/01/01"}, QStringList{"date", "2025-03-21", "extra"},
                    QStringList{"date", "--today"}, QStringList{"date", "1800-01-01"},
                    QStringList{"date", "2300-01-01"}, QStringList{"date", ""},
                    QStringList{"words"}, QStringList{"words", "-5"}, QStringList{"words", "1.5"},
                    QStringList{"words", "1,000"}, QStringList{"words", ""},
                    QStringList{"words", "12", "34"}, QStringList{"words", "--number", "5"},
                    QStringList{"words", " 12"}, QStringList{"no-such-command"}, QStringList{}));

TEST(AdminBadArgumentsMessageTest, NamesTheBadWord) {
    const AdminProcess::Result r = AdminProcess::run({"words", "12x"});
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.err.contains("\"12x\"")) << r.err.toStdString();
    const AdminProcess::Result d = AdminProcess::run({"date", "2025-13-01"});
    EXPECT_EQ(d.exitCode, 2);
    EXPECT_TRUE(d.err.contains("\"2025-13-01\"")) << d.err.toStdString();
}

}  // namespace
}  // namespace sandogh
