// A report laid out as a table with its chart, and written as CSV and PDF.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "ReportShop.h"
#include "reports/ReportBuilder.h"
#include "reports/ReportCsv.h"
#include "reports/ReportPdf.h"

namespace sandogh::test {
namespace {

class ReportOutputTest : public ReportShop {
protected:
    std::optional<ReportTable> build(ReportKind kind) {
        ReportFilter f;
        f.from = QStringLiteral("1404/01/01");
        f.to = QStringLiteral("1404/01/05");
        Session s = session();
        return ReportBuilder::build(s, kind, f, QStringLiteral("1404/01/10"));
    }
};

TEST_P(ReportOutputTest, ChartsFollowTheTable) {
    struct Case {
        ReportKind kind;
        ReportTable::ChartKind chart;
        QStringList labels;
        QList<double> values;
    };
    const Case cases[] = {
        {ReportKind::SalesByMonth,
         ReportTable::ChartKind::Line,
         {QStringLiteral("1404/01")},
         {380}},
        {ReportKind::BestByAmount,
         ReportTable::ChartKind::Bars,
         {QStringLiteral("Article A"), QStringLiteral("Article B")},
         {300, 80}},
        {ReportKind::WorstByQuantity,
         ReportTable::ChartKind::Bars,
         {QStringLiteral("Article B"), QStringLiteral("Article A")},
         {1, 2}},
    };
    for (const Case& c : cases) {
        const auto t = build(c.kind);
        ASSERT_TRUE(t);
        EXPECT_EQ(t->chart, c.chart);
        EXPECT_EQ(t->chartLabels, c.labels);
        EXPECT_EQ(t->chartValues, c.values);
    }
    const auto days = build(ReportKind::SalesByDay);
    ASSERT_TRUE(days);
    EXPECT_EQ(days->rows.size(), 5);
    EXPECT_EQ(days->chart, ReportTable::ChartKind::Bars);
}

TEST_P(ReportOutputTest, CsvKeepsNumbersAndPdfIsWritten) {
    const auto t = build(ReportKind::Payments);
    ASSERT_TRUE(t);
    const QByteArray bytes = ReportCsv::text(*t);
    EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF"));
    // Reading UTF-8 drops the byte order mark.
    EXPECT_EQ(QString::fromUtf8(bytes),
              QStringLiteral("نوع دریافت,مبلغ\r\nنقد,-80\r\nپوز 7001,300\r\nکارت هدیه,100\r\n"
                             "چک,30\r\nجمع دریافتی,350\r\nبه حساب مشتری (نسیه),30\r\n"));
    EXPECT_EQ(t->cellText(0, 1), QStringLiteral("-80"));

    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("payments.pdf"));
    ASSERT_TRUE(ReportPdf::write(*t, pdf));
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.read(5) == "%PDF-");
    EXPECT_FALSE(ReportPdf::write(*t, dir.filePath(QStringLiteral("missing/x.pdf"))));
    EXPECT_FALSE(ReportCsv::write(*t, dir.filePath(QStringLiteral("missing/x.csv"))));
}

TEST(ReportTableText, AmountsWithSeparatorsAndQuotedCsvText) {
    ReportTable t;
    t.columns = {{QStringLiteral("name")}, {QStringLiteral("amount"), true}};
    t.rows = {{QStringLiteral("a, \"b\""), 1234567.4}, {QStringLiteral("c"), -1500.0}};
    EXPECT_EQ(t.cellText(0, 1), QStringLiteral("1,234,567"));
    EXPECT_EQ(t.cellText(1, 1), QStringLiteral("-1,500"));
    EXPECT_EQ(QString::fromUtf8(ReportCsv::text(t)),
              QStringLiteral("name,amount\r\n\"a, \"\"b\"\"\",1234567.4\r\nc,-1500\r\n"));
}

SANDOGH_INSTANTIATE_BACKENDS(ReportOutputTest);

}  // namespace
}  // namespace sandogh::test
