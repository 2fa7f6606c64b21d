// sandogh-admin report (the daily summary and the range reports) and stock-repair: their
// words and what they print or write. The figures themselves are tested under sales,
// reports and data.

#include <gtest/gtest.h>

#include <chrono>

#include "AdminShopTest.h"
#include "common/JalaliCalendar.h"
#include "common/PlatformDate.h"

namespace sandogh {
namespace {

QString todayJalali() {
    using namespace std::chrono;
    const QDate today = QDate::currentDate();
    return QString::fromStdString(
        JalaliCalendar::toJalaliText(PlatformDate::fromDate(year_month_day{
            year{today.year()}, month{unsigned(today.month())}, day{unsigned(today.day())}})));
}

class AdminReportTest : public AdminShopTest {
protected:
    AdminProcess::Result admin(QStringList words) {
        words << QStringLiteral("--dir") << dir();
        return AdminProcess::run(words);
    }
    // A header of the sale screen: TransType, date, ReceivedPrice.
    void addHeader(int code, int transType, const QString& date, double received) {
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, "
                                          "DocDate, DocSum, ReceivedPrice) VALUES (:c, :n, :t, "
                                          ":d, :sum, :r)"),
                           {{QStringLiteral(":c"), code},
                            {QStringLiteral(":n"), QString::number(code)},
                            {QStringLiteral(":t"), transType},
                            {QStringLiteral(":d"), date},
                            {QStringLiteral(":sum"), received + 1000},
                            {QStringLiteral(":r"), received}}));
    }
    void expectUsageErrors(std::initializer_list<const char*> lines) {
        for (const char* bad : lines) {
            const AdminProcess::Result r = admin(words(bad));
            EXPECT_EQ(r.exitCode, 2) << bad;
            EXPECT_TRUE(r.err.contains("usage:")) << bad;
        }
    }
};

TEST_P(AdminReportTest, DailyPrintsTheSummaryOfTheDayAskedOrOfToday) {
    addHeader(1, 2, QStringLiteral("1404/01/05"), 125000);
    addHeader(2, 2, QStringLiteral("1404/01/05"), 5000);
    addHeader(3, 3, QStringLiteral("1404/01/05"), 7000);
    const AdminProcess::Result r = admin(words("report daily 1404/1/5"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    const QStringList lines = r.outText().split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3) << r.outText().toStdString();
    EXPECT_EQ(lines[0], QStringLiteral("1404/01/05"));
    EXPECT_TRUE(lines[1].contains(QStringLiteral(" 2 ")));
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral(" 130,000")));
    EXPECT_TRUE(lines[2].endsWith(QStringLiteral(" 7,000")));

    const AdminProcess::Result today = admin(words("report daily"));
    ASSERT_EQ(today.exitCode, 0) << today.err.toStdString();
    EXPECT_TRUE(today.outText().startsWith(todayJalali()));
    EXPECT_TRUE(today.outText().trimmed().endsWith(QStringLiteral(" 0")));

    expectUsageErrors(
        {"report", "report weekly", "report daily 1404/13/01", "report daily 1404/01/01 x"});
}

TEST_P(AdminReportTest, StockRepairPrintsHowManyArticlesItRepaired) {
    execAll({"INSERT INTO Goods (EAN_Code, Name) VALUES ('111', 'Tea'), ('222', 'Rice')",
             "INSERT INTO Stock (Barcode, Import, Export, Stock, Branch) VALUES ('111', 0, 0, "
             "99, 1)"});
    addHeader(1, 1, QStringLiteral("1404/01/05"), 0);
    execAll({"INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty) VALUES (1, '111', 7), (1, '222', 5)"});

    // Scoped: the article named is repaired; an unknown barcode is named and not counted.
    // What a repair writes is the procedure's (tested under data).
    const AdminProcess::Result scoped = admin(words("stock-repair 111 999"));
    ASSERT_EQ(scoped.exitCode, 0) << scoped.err.toStdString();
    EXPECT_EQ(scoped.outText().trimmed(), QStringLiteral("1"));
    EXPECT_TRUE(scoped.err.contains("999"));

    const AdminProcess::Result all = admin(words("stock-repair"));
    ASSERT_EQ(all.exitCode, 0) << all.err.toStdString();
    EXPECT_EQ(all.outText().trimmed(), QStringLiteral("2"));
    expectUsageErrors({"stock-repair --x"});
}

TEST_P(AdminReportTest, RangeReportsPrintEveryDayOrWriteAFile) {
    addHeader(1, 2, QStringLiteral("1404/01/05"), 125000);
    addHeader(2, 3, QStringLiteral("1404/01/07"), 7000);
    const AdminProcess::Result r = admin(words("report sales --from 1404/1/5 --to 1404/01/07"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    const QStringList lines = r.outText().split(u'\n', Qt::SkipEmptyParts);
    // Title, range, column titles and one line per day, the empty day included.
    ASSERT_EQ(lines.size(), 6) << r.outText().toStdString();
    EXPECT_TRUE(lines[3].startsWith(QStringLiteral("1404/01/05\t1\t126,000\t125,000\t0")));
    EXPECT_TRUE(lines[4].startsWith(QStringLiteral("1404/01/06\t0\t0\t0\t0")));
    EXPECT_TRUE(lines[5].endsWith(QStringLiteral("\t-8,000")));

    const QString csv = QDir(dir()).filePath(QStringLiteral("desks.csv"));
    const AdminProcess::Result file =
        admin(words("report desks --from 1404/01/01 --to 1404/01/31 --csv") << csv);
    ASSERT_EQ(file.exitCode, 0) << file.err.toStdString();
    QFile written(csv);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll().count("\r\n"), 2);  // the column titles and the one desk

    expectUsageErrors({"report sales --from 1404/02/31x", "report stock --csv a --pdf b",
                       "report top --from 1404/02/01 --to 1404/01/01",
                       "report desks --station one"});
}

SANDOGH_INSTANTIATE_BACKENDS(AdminReportTest);

}  // namespace
}  // namespace sandogh
