// The parts of the sale screen around the grid: favourites, customer, day's totals, the
// pick lists, and leaving the screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "SaleScreenTest.h"
#include "sales/SaleSession.h"
#include "sales/SaleTexts.h"
#include "ui/sales/SaleCustomerPanel.h"
#include "ui/sales/SaleDetailPanel.h"
#include "ui/sales/SaleFavouritesPanel.h"
#include "ui/sales/SaleTotalsPanel.h"
#include "ui/sales/frmSale.h"

namespace sandogh::test {
namespace {

class frmSalePanelsTest : public SaleScreenTest {
protected:
    void addFavourites() {
        addGoods({QStringLiteral("7001"), 1500, 0, QStringLiteral("نان"), 0, true, 1});
        addGoods({QStringLiteral("7002"), 900, 0, QStringLiteral("شیر"), 0, true, 1});
        addGoods({QStringLiteral("7003"), 30000, 0, QStringLiteral("برنج"), 0, true, 3});
    }
    QTableWidget* favouritesGrid() {
        auto* grid = screen().findChild<QTableWidget*>(QStringLiteral("dgGoods"));
        EXPECT_NE(grid, nullptr);
        return grid;
    }
};

// Which goods a tab holds and in what order is the favourites' list (tested under sales);
// the panel shows the tabs that hold goods, and a double click rings the article up.
TEST_F(frmSalePanelsTest, FavouriteTabsShowTheirGoodsAndADoubleClickRingsUp) {
    openScreen();
    EXPECT_FALSE(screen().favouritesPanel()->isVisible());
    closeScreen();
    addFavourites();
    openScreen();

    SaleFavouritesPanel* panel = screen().favouritesPanel();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->tabs(), (QList<int>{1, 3}));
    QTableWidget* grid = favouritesGrid();
    ASSERT_EQ(grid->rowCount(), 2);
    EXPECT_EQ(grid->item(1, SaleFavouritesPanel::ColCost)->text(), QStringLiteral("1,500"));
    const QRect cell = grid->visualItemRect(grid->item(1, SaleFavouritesPanel::ColName));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    ASSERT_EQ(lineCount(), 1);
    EXPECT_EQ(screen().session().linesModel().line(0).barcode, QStringLiteral("7001"));
    EXPECT_DOUBLE_EQ(quantityOf(0), 2);
    EXPECT_TRUE(barcodeHasFocus());

    child<QTabBar>(*panel, "tabFavourites")->setCurrentIndex(1);
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->item(0, SaleFavouritesPanel::ColBarcode)->text(), QStringLiteral("7003"));
}

TEST_F(frmSalePanelsTest, CustomerSearchEnterSearchesArrowsMove) {
    addCustomer(11, QStringLiteral("101"), QStringLiteral("علی"), QStringLiteral("رضایی"));
    addCustomer(12, QStringLiteral("102"), QStringLiteral("علی"), QStringLiteral("کریمی"));
    addCustomer(13, QStringLiteral("103"), QStringLiteral("مریم"), QStringLiteral("احمدی"));
    openScreen();
    SaleCustomerPanel* panel = screen().customerPanel();
    press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(child<QLineEdit>(*panel, "txtAccountSearch")->hasFocus());
    child<QLineEdit>(*panel, "txtAccountSearch")->setText(QStringLiteral("علی"));

    QTest::keyClick(child<QLineEdit>(*panel, "txtAccountSearch"), Qt::Key_Return);

    ASSERT_EQ(child<QListWidget>(*panel, "lstCustomers")->count(), 2);
    EXPECT_EQ(screen().session().CompanyId(), 11);
    EXPECT_EQ(child<QLineEdit>(*panel, "txtCustomerName")->text(), QStringLiteral("علی رضایی"));
    EXPECT_EQ(child<QLineEdit>(*panel, "txtAccount")->text(), QStringLiteral("1011"));
    EXPECT_TRUE(
        child<QLabel>(*panel, "lblCredit")->text().startsWith(SaleTexts::customerBalance()));

    // The arrows move in the results found; they do not search the box's new text.
    child<QLineEdit>(*panel, "txtAccountSearch")->setText(QStringLiteral("مریم"));
    QTest::keyClick(child<QLineEdit>(*panel, "txtAccountSearch"), Qt::Key_Down);
    EXPECT_EQ(screen().session().CompanyId(), 12);
    EXPECT_EQ(child<QLineEdit>(*panel, "txtCustomerName")->text(), QStringLiteral("علی کریمی"));
    // Past the last result is the search's (tested under sales).
    QTest::keyClick(child<QLineEdit>(*panel, "txtAccountSearch"), Qt::Key_Up);
    EXPECT_EQ(screen().session().CompanyId(), 11);
    EXPECT_EQ(child<QListWidget>(*panel, "lstCustomers")->currentRow(), 0);

    QTest::keyClick(child<QLineEdit>(*panel, "txtAccountSearch"), Qt::Key_Return);
    EXPECT_EQ(screen().session().CompanyId(), 13);
}

TEST_F(frmSalePanelsTest, OnA768PixelScreenFavouritesAndCustomerResultsEachShowFiveRows) {
    addFavourites();
    openScreen();
    // What a maximized screen gets at 1366x768 below the title, menu and status bars.
    screen().resize(1366, 768 - 22 - 32 - 32);
    QApplication::processEvents();
    auto* side = screen().findChild<QTabWidget*>(QStringLiteral("tabSide"));
    ASSERT_NE(side, nullptr);
    QTableWidget* grid = favouritesGrid();
    EXPECT_EQ(side->currentWidget(), screen().favouritesPanel());
    EXPECT_GE(grid->viewport()->height(), 5 * grid->verticalHeader()->defaultSectionSize());

    // The customer key brings the customer page to the front and its five result rows.
    press(Qt::Key_S, Qt::ControlModifier);
    SaleCustomerPanel* panel = screen().customerPanel();
    ASSERT_TRUE(child<QLineEdit>(*panel, "txtAccountSearch")->hasFocus());
    EXPECT_TRUE(side->currentWidget()->isAncestorOf(panel));
    child<QListWidget>(*panel, "lstCustomers")->addItem(QStringLiteral("x"));
    EXPECT_GE(child<QListWidget>(*panel, "lstCustomers")->viewport()->height(),
              5 * child<QListWidget>(*panel, "lstCustomers")->sizeHintForRow(0));
    EXPECT_LE(panel->width(), side->width());
}

TEST_F(frmSalePanelsTest, DailyTotalsShownOnOpeningAndOnCtrlT) {
    setOption("Cash", "DisplayDailySale", QStringLiteral("1"));
    addGoods({QStringLiteral("7101"), 1000});
    addDocument(1, 2, QStringLiteral("7101"), 1, 150000, 140000);
    addDocument(2, 2, QStringLiteral("7101"), 1, 50000, 50000);
    openScreen();

    EXPECT_TRUE(child<QLabel>(screen(), "lblDailySale")->isVisible());
    EXPECT_EQ(child<QLabel>(screen(), "lblDailySale")->text(),
              QStringLiteral("فروش روزانه صندوق :200,000"));
    EXPECT_EQ(child<QLabel>(screen(), "lblDailyReceived")->text(),
              QStringLiteral("مبلغ روزانه صندوق :190,000"));

    addDocument(5, 2, QStringLiteral("7101"), 1, 10000, 10000);
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(child<QLabel>(screen(), "lblDailySale")->text(),
              QStringLiteral("فروش روزانه صندوق :210,000"));
}

struct LeaveCase {
    const char* name;
    bool withLines;
    bool answer;
    bool asked;
    bool stillOpen;
};

class frmSaleLeaveTest : public SaleScreenTest, public ::testing::WithParamInterface<LeaveCase> {};

TEST_P(frmSaleLeaveTest, CmdExit) {
    const LeaveCase& c = GetParam();
    addGoods({QStringLiteral("7201"), 1000});
    openScreen();
    if (c.withLines) {
        scan(QStringLiteral("7201"));
    }
    messages().queueAnswer(c.answer);

    QTest::mouseClick(child<QPushButton>(screen(), "cmdExit"), Qt::LeftButton);

    EXPECT_EQ(messages().countOf(SaleTexts::unsavedSale()), c.asked ? 1 : 0);
    EXPECT_EQ(screen().isVisible(), c.stillOpen);
    EXPECT_EQ(lineCount(), c.withLines ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Cases, frmSaleLeaveTest,
                         ::testing::Values(LeaveCase{"UnsavedNo", true, false, true, true},
                                           LeaveCase{"UnsavedYes", true, true, true, false},
                                           LeaveCase{"Empty", false, false, false, false}),
                         CaseName());

}  // namespace
}  // namespace sandogh::test
