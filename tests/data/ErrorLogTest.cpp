// ErrorLog.txt: nine-line records, each one quoted value, appended byte for byte.

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <thread>
#include <vector>

#include "data/ErrorLog.h"
#include "support/FixedClock.h"
#include "support/RecordingMessageService.h"

namespace sandogh {
namespace {

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

class ErrorLogTest : public ::testing::Test {
protected:
    QTemporaryDir dir;
    test::RecordingMessageService messages;
    test::FixedClock clock{QDateTime(QDate(2025, 3, 21), QTime(9, 7, 45))};
    ErrorLog log{dir.path(), &messages, clock, QStringLiteral("1404/01/01"),
                 QStringLiteral("1.2.3")};
};

// Each record is appended as one quoted value (Persian intact), and its first three lines
// are shown as a critical message.
TEST_F(ErrorLogTest, TwoRecordsAreTwoQuotedValuesExactlyAndEachIsShown) {
    log.LogError(
        {QStringLiteral("53"), QStringLiteral("File not found"), QStringLiteral("Sandogh")},
        QStringLiteral("MainModule"), QStringLiteral("LoadPrimary"));
    log.setUserName(QStringLiteral("ali"));
    clock.set(QDateTime(QDate(2025, 4, 2), QTime(17, 30, 5)));
    log.LogError({QStringLiteral("23505"), QStringLiteral("کلید تکراری"), QStringLiteral("QPSQL")},
                 QStringLiteral("frmSale"), QStringLiteral("SaveSale"));

    const QByteArray expected =
        "\"ErrNumber : 53\r\n"
        "ErrDescription : File not found\r\n"
        "ErrSource : Sandogh\r\n"
        "RoutineName : LoadPrimary\r\n"
        "Module : MainModule  \r\n"
        "UserName : \r\n"
        "ErrTime : 1404/01/01  09:07:21\r\n"
        "Exe 1.2.3\r\n"
        "*----------------------------------------------*\r\n"
        "\"\r\n"
        "\"ErrNumber : 23505\r\n"
        "ErrDescription : کلید تکراری\r\n"
        "ErrSource : QPSQL\r\n"
        "RoutineName : SaveSale\r\n"
        "Module : frmSale  \r\n"
        "UserName : ali\r\n"
        "ErrTime : 1404/01/01  17:30:02\r\n"
        "Exe 1.2.3\r\n"
        "*----------------------------------------------*\r\n"
        "\"\r\n";
    EXPECT_EQ(readAll(log.filePath()), expected);
    ASSERT_EQ(messages.count(), 2);
    const auto shown = messages.messages().last();
    EXPECT_EQ(shown.text,
              QStringLiteral(
                  "ErrNumber : 23505\r\nErrDescription : کلید تکراری\r\nErrSource : QPSQL\r\n"));
    EXPECT_EQ(shown.style, MessageStyle::Critical);
    EXPECT_EQ(shown.title, warningTitle());
}

// ErrTime's third field is the day of the month, whatever the date and time.
TEST(ErrorLogTime, TheThirdFieldIsTheDayOfTheMonth) {
    const struct {
        QDateTime now;
        const char* field;  // hour:minute:day-of-month
    } cases[] = {{QDateTime(QDate(2025, 3, 5), QTime(23, 59, 58)), "23:59:05"},
                 {QDateTime(QDate(2025, 12, 31), QTime(0, 0, 0)), "00:00:31"},
                 {QDateTime(QDate(2024, 2, 29), QTime(12, 1, 59)), "12:01:29"}};
    for (const auto& c : cases) {
        test::FixedClock clock(c.now);
        ErrorLog log(QString(), nullptr, clock, QStringLiteral("1404/01/01"), QString());
        EXPECT_TRUE(
            log.formatRecord({}, {}, {})
                .contains(
                    QStringLiteral("ErrTime : 1404/01/01  %1\r\n").arg(QLatin1String(c.field))))
            << c.field;
    }
}

TEST(ErrorLogFailure, AppendToAMissingFolderFails) {
    QTemporaryDir dir;
    test::FixedClock clock;
    ErrorLog log(QDir(dir.path()).filePath(QStringLiteral("no/such/folder")), nullptr, clock, {},
                 {});
    EXPECT_FALSE(log.AppendErrorLog(QStringLiteral("x")));
}

TEST_F(ErrorLogTest, RecordsFromManyThreadsStayWhole) {
    constexpr int kThreads = 8;
    constexpr int kEach = 25;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([this, t] {
            for (int i = 0; i < kEach; ++i) {
                log.LogError(
                    {QString::number(t), QStringLiteral("e%1").arg(i), QStringLiteral("s")},
                    QStringLiteral("m"), QStringLiteral("r"));
            }
        });
    }
    for (auto& th : threads) {
        th.join();
    }
    const QString all = QString::fromUtf8(readAll(log.filePath()));
    const QStringList records =
        all.split(QStringLiteral("*----------------------------------------------*\r\n\"\r\n"),
                  Qt::SkipEmptyParts);
    ASSERT_EQ(records.size(), kThreads * kEach);
    for (const QString& r : records) {
        EXPECT_TRUE(r.startsWith(QStringLiteral("\"ErrNumber : ")));
        EXPECT_EQ(r.count(QStringLiteral("\r\n")), 8);
    }
    EXPECT_EQ(messages.count(), kThreads * kEach);
}

}  // namespace
}  // namespace sandogh
