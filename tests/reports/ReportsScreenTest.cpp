// The reports screen offscreen: its controls reach the reports, the worker thread's result
// reaches the table and the chart, exports, and the hand-off of the desks report.

#include <gtest/gtest.h>

#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QFile>
#include <QLineSeries>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include "ReportShop.h"
#include "reports/ReportKind.h"
#include "support/LaunchRecorder.h"
#include "ui/reports/frmReports.h"
#include "ui/widgets/JalaliDateEdit.h"

namespace sandogh::test {
namespace {

class ReportsScreenTest : public ReportShop {
protected:
    std::unique_ptr<frmReports> open(const QString& companion = {}) {
        auto screen = std::make_unique<frmReports>(db(), messages(), nullptr, launcher, companion,
                                                   QStringLiteral("1404/01/10"));
        screen->findChild<JalaliDateEdit*>(QStringLiteral("txtFrom"))
            ->setDateText(QStringLiteral("1404/01/01"));
        screen->findChild<JalaliDateEdit*>(QStringLiteral("txtTo"))
            ->setDateText(QStringLiteral("1404/01/05"));
        return screen;
    }
    void choose(frmReports& screen, ReportKind kind) {
        auto* combo = screen.findChild<QComboBox*>(QStringLiteral("cmbReport"));
        combo->setCurrentIndex(combo->findData(int(kind)));
    }
    // Clicks cmdShow and waits for the worker's answer while the screen keeps running.
    void show(frmReports& screen) {
        QSignalSpy done(&screen, &frmReports::reportDone);
        QTest::mouseClick(screen.findChild<QPushButton*>(QStringLiteral("cmdShow")),
                          Qt::LeftButton);
        EXPECT_TRUE(
            screen.findChild<QProgressBar*>(QStringLiteral("prgRun"))->isVisibleTo(&screen));
        EXPECT_FALSE(screen.findChild<QPushButton*>(QStringLiteral("cmdShow"))->isEnabled());
        EXPECT_FALSE(screen.cmdShow_Click());  // one report at a time
        ASSERT_TRUE(done.wait(60000));
        EXPECT_FALSE(
            screen.findChild<QProgressBar*>(QStringLiteral("prgRun"))->isVisibleTo(&screen));
    }
    LaunchRecorder launcher;
};

TEST_P(ReportsScreenTest, DaysAsBarsAndMonthsAsALineWithTheTableBeside) {
    auto screen = open();
    choose(*screen, ReportKind::SalesByDay);
    show(*screen);
    auto* grid = screen->findChild<QTableView*>(QStringLiteral("grdReport"));
    ASSERT_EQ(grid->model()->rowCount(), 5);
    EXPECT_EQ(grid->model()->index(1, 0).data().toString(), QStringLiteral("1404/01/02"));
    EXPECT_EQ(grid->model()->index(1, 2).data().toString(), QStringLiteral("530"));
    EXPECT_EQ(grid->model()->index(2, 1).data().toString(), QStringLiteral("0"));
    QChart* chart = screen->findChild<QChartView*>(QStringLiteral("chtReport"))->chart();
    ASSERT_EQ(chart->series().size(), 1);
    auto* bars = qobject_cast<QBarSeries*>(chart->series().first());
    ASSERT_NE(bars, nullptr);
    EXPECT_EQ(bars->barSets().first()->count(), 5);

    choose(*screen, ReportKind::SalesByMonth);
    show(*screen);
    chart = screen->findChild<QChartView*>(QStringLiteral("chtReport"))->chart();
    auto* line = qobject_cast<QLineSeries*>(chart->series().first());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->count(), 1);
    EXPECT_DOUBLE_EQ(line->at(0).y(), 380);
}

TEST_P(ReportsScreenTest, ExportsTheReportShownAndRefusesABadRange) {
    auto screen = open();
    QTemporaryDir dir;
    EXPECT_FALSE(screen->exportCsv(dir.filePath(QStringLiteral("none.csv"))));  // nothing shown
    choose(*screen, ReportKind::Payments);
    show(*screen);
    ASSERT_TRUE(screen->exportCsv(dir.filePath(QStringLiteral("p.csv"))));
    ASSERT_TRUE(screen->exportPdf(dir.filePath(QStringLiteral("p.pdf"))));
    QFile csv(dir.filePath(QStringLiteral("p.csv")));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_TRUE(csv.readAll().contains("350"));

    messages().clear();
    screen->findChild<JalaliDateEdit*>(QStringLiteral("txtTo"))
        ->setDateText(QStringLiteral("1403/12/01"));
    EXPECT_FALSE(screen->cmdShow_Click());
    EXPECT_EQ(messages().count(), 1);
}

TEST_P(ReportsScreenTest, CashByStationGoesToTheCompanionWhenThereIsOne) {
    QTemporaryDir dir;
    const QString companion = dir.filePath(QStringLiteral("KotrimoAcc.exe"));
    QFile program(companion);
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.close();
    auto withCompanion = open(companion);
    withCompanion->cmdCashByStation_Click();
    ASSERT_EQ(launcher.calls.size(), 1);
    EXPECT_EQ(launcher.calls.first().arguments,
              QStringList{QStringLiteral("mnuRptCashByStation, ")});

    auto alone = open();
    QSignalSpy done(alone.get(), &frmReports::reportDone);
    alone->cmdCashByStation_Click();
    ASSERT_TRUE(done.wait(60000));
    ASSERT_TRUE(alone->shown());
    EXPECT_EQ(alone->shown()->rows.size(), 2);  // the two desks of the shop
    EXPECT_EQ(launcher.calls.size(), 1);
}

SANDOGH_INSTANTIATE_BACKENDS(ReportsScreenTest);

}  // namespace
}  // namespace sandogh::test
