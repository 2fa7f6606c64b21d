// sandogh-admin report (the daily summary and the range reports) and stock-repair on the shop
// database of the program folder.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>

#include "AdminShopTest.h"
#include "common/JalaliCalendar.h"
#include "common/PlatformDate.h"
#include "data/Database.h"

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
    void exec(const QString& sql) {
        Session s = db().session();
        ASSERT_TRUE(s.exec(sql)) << sql.toStdString();
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

    QTemporaryDir settings;
};

TEST_P(AdminReportTest, DailyPrintsTheSummaryOfTheDayAsked) {
    addHeader(1, 2, QStringLiteral("1404/01/05"), 125000);
    addHeader(2, 2, QStringLiteral("1404/01/05"), 5000);
    addHeader(3, 3, QStringLiteral("1404/01/05"), 7000);
    addHeader(4, 2, QStringLiteral("1404/01/06"), 999);
    const AdminProcess::Result r =
        admin({QStringLiteral("report"), QStringLiteral("daily"), QStringLiteral("1404/1/5")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    const QStringList lines = r.outText().split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3) << r.outText().toStdString();
    EXPECT_EQ(lines[0], QStringLiteral("1404/01/05"));
    EXPECT_TRUE(lines[1].contains(QStringLiteral(" 2 ")));
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral(" 130,000")));
    EXPECT_TRUE(lines[2].contains(QStringLiteral(" 1 ")));
    EXPECT_TRUE(lines[2].endsWith(QStringLiteral(" 7,000")));
}

TEST_P(AdminReportTest, DailyWithoutADateIsTodayAndBadWordsAreUsageErrors) {
    const AdminProcess::Result today = admin({QStringLiteral("report"), QStringLiteral("daily")});
    ASSERT_EQ(today.exitCode, 0) << today.err.toStdString();
    EXPECT_TRUE(today.outText().startsWith(todayJalali()));
    EXPECT_TRUE(today.outText().trimmed().endsWith(QStringLiteral(" 0")));

    for (const QStringList& bad :
         {QStringList{QStringLiteral("report")},
          QStringList{QStringLiteral("report"), QStringLiteral("weekly")},
          QStringList{QStringLiteral("report"), QStringLiteral("daily"),
                      QStringLiteral("1404/13/01")},
          QStringList{QStringLiteral("report"), QStringLiteral("daily"),
                      QStringLiteral("1404/01/01"), QStringLiteral("x")}}) {
        const AdminProcess::Result r = admin(bad);
        EXPECT_EQ(r.exitCode, 2) << bad.join(u' ').toStdString();
        EXPECT_TRUE(r.err.contains("usage:"));
    }
}

TEST_P(AdminReportTest, StockRepairRecomputesTheArticlesAskedOrAll) {
    exec(QStringLiteral(
        "INSERT INTO Goods (EAN_Code, Name) VALUES ('111', 'Tea'), ('222', 'Rice')"));
    exec(
        QStringLiteral("INSERT INTO Stock (Barcode, Import, Export, Stock, Branch) "
                       "VALUES ('111', 0, 0, 99, 1)"));
    addHeader(1, 1, QStringLiteral("1404/01/05"), 0);
    addHeader(2, 2, QStringLiteral("1404/01/05"), 0);
    exec(
        QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty) VALUES (1, '111', 10), "
                       "(2, '111', 3), (1, '222', 5)"));
    const auto stockOf = [this](const char* barcode) {
        Session s = db().session();
        return s.scalarNumber(QStringLiteral("SELECT Stock FROM Stock WHERE Barcode = :b"),
                              {{QStringLiteral(":b"), QString::fromLatin1(barcode)}}, -1);
    };

    // Scoped: the article named is repaired, the other keeps having no row, an unknown
    // barcode is named and not counted.
    const AdminProcess::Result scoped =
        admin({QStringLiteral("stock-repair"), QStringLiteral("111"), QStringLiteral("999")});
    ASSERT_EQ(scoped.exitCode, 0) << scoped.err.toStdString();
    EXPECT_EQ(scoped.outText().trimmed(), QStringLiteral("1"));
    EXPECT_TRUE(scoped.err.contains("999"));
    EXPECT_DOUBLE_EQ(stockOf("111"), 7);
    EXPECT_DOUBLE_EQ(stockOf("222"), -1);

    // Full: every article gets its row.
    const AdminProcess::Result all = admin({QStringLiteral("stock-repair")});
    ASSERT_EQ(all.exitCode, 0) << all.err.toStdString();
    EXPECT_EQ(all.outText().trimmed(), QStringLiteral("2"));
    EXPECT_DOUBLE_EQ(stockOf("111"), 7);
    EXPECT_DOUBLE_EQ(stockOf("222"), 5);

    const AdminProcess::Result bad = admin({QStringLiteral("stock-repair"), QStringLiteral("--x")});
    EXPECT_EQ(bad.exitCode, 2);
}

TEST_P(AdminReportTest, RangeReportsPrintEveryDayOrWriteAFile) {
    addHeader(1, 2, QStringLiteral("1404/01/05"), 125000);
    addHeader(2, 3, QStringLiteral("1404/01/07"), 7000);
    const AdminProcess::Result r =
        admin({QStringLiteral("report"), QStringLiteral("sales"), QStringLiteral("--from"),
               QStringLiteral("1404/1/5"), QStringLiteral("--to"), QStringLiteral("1404/01/07")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    const QStringList lines = r.outText().split(u'\n', Qt::SkipEmptyParts);
    // Title, range, column titles and one line per day, the empty day included.
    ASSERT_EQ(lines.size(), 6) << r.outText().toStdString();
    EXPECT_TRUE(lines[3].startsWith(QStringLiteral("1404/01/05\t1\t126,000\t125,000\t0")));
    EXPECT_TRUE(lines[4].startsWith(QStringLiteral("1404/01/06\t0\t0\t0\t0")));
    EXPECT_TRUE(lines[5].endsWith(QStringLiteral("\t-8,000")));

    const QString csv = QDir(dir()).filePath(QStringLiteral("desks.csv"));
    const AdminProcess::Result file =
        admin({QStringLiteral("report"), QStringLiteral("desks"), QStringLiteral("--from"),
               QStringLiteral("1404/01/01"), QStringLiteral("--to"), QStringLiteral("1404/01/31"),
               QStringLiteral("--csv"), csv});
    ASSERT_EQ(file.exitCode, 0) << file.err.toStdString();
    QFile written(csv);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll().count("\r\n"), 2);  // the column titles and the one desk

    for (const QStringList& bad :
         {QStringList{QStringLiteral("report"), QStringLiteral("sales"), QStringLiteral("--from"),
                      QStringLiteral("1404/02/31x")},
          QStringList{QStringLiteral("report"), QStringLiteral("stock"), QStringLiteral("--csv"),
                      QStringLiteral("a"), QStringLiteral("--pdf"), QStringLiteral("b")},
          QStringList{QStringLiteral("report"), QStringLiteral("top"), QStringLiteral("--from"),
                      QStringLiteral("1404/02/01"), QStringLiteral("--to"),
                      QStringLiteral("1404/01/01")},
          QStringList{QStringLiteral("report"), QStringLiteral("desks"),
                      QStringLiteral("--station"), QStringLiteral("one")}}) {
        const AdminProcess::Result u = admin(bad);
        EXPECT_EQ(u.exitCode, 2) << bad.join(u' ').toStdString();
        EXPECT_TRUE(u.err.contains("usage:"));
    }
}

SANDOGH_INSTANTIATE_BACKENDS(AdminReportTest);

}  // namespace
}  // namespace sandogh
