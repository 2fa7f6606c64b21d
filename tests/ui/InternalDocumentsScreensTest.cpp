// The internal documents' screens on the demo shop: what they add to the ordinary ones
// (the branch in the list and its filter, a delete without a date, the date asked on a
// reprint) reaches the logic, and the main window opens them.

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "app/Permissions.h"
#include "data/Session.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "sales/SaleDelete.h"
#include "sales/SaleListModel.h"
#include "ui/app/frmMain.h"
#include "ui/sales/frmDeleteFactorInternal.h"
#include "ui/sales/frmRePrintInter.h"
#include "ui/sales/frmSaleInterList.h"

namespace sandogh {
namespace {

class InternalDocumentsScreensTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openDesk());
        Session s = app.context.database().session();
        const int north = CenterBranchesRepository::add(s, QStringLiteral("شعبه شمال"),
                                                        CenterBranchesRepository::kBranch);
        const int south = CenterBranchesRepository::add(s, QStringLiteral("شعبه جنوب"),
                                                        CenterBranchesRepository::kBranch);
        ASSERT_GT(south, 0);
        // Internal sales 1 (north), 2 (south) and 2 again on the next day (north).
        const QList<std::tuple<int, QString, int, QString>> rows{
            {1, QStringLiteral("1"), north, QStringLiteral("1404/01/01")},
            {2, QStringLiteral("2"), south, QStringLiteral("1404/01/01")},
            {3, QStringLiteral("2"), north, QStringLiteral("1404/01/02")}};
        for (const auto& [code, no, branch, date] : rows) {
            ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Whs_QTYDocHInternal (Code, DocNo, "
                                              "TransType, CompanyID, DocDate, StationID) VALUES "
                                              "(:c, :n, 2, :b, :d, 1)"),
                               {{QStringLiteral(":c"), code},
                                {QStringLiteral(":n"), no},
                                {QStringLiteral(":b"), branch},
                                {QStringLiteral(":d"), date}}));
        }
    }

    static QStringList numbers(frmSaleList& list) {
        QStringList n;
        for (int i = 0; i < list.model().rowCount(); ++i) {
            n << list.model().row(i).docNo + QLatin1Char(' ') + list.model().row(i).customerName;
        }
        return n;
    }
    qint64 headers() {
        return app.count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal"));
    }

    test::ScreenTestContext app;
};

TEST_F(InternalDocumentsScreensTest, TheListShowsBranchesFiltersOnThemAndDeletesTheSelected) {
    frmSaleInterList list(app.context, 2);
    EXPECT_EQ(list.objectName(), QStringLiteral("frmSaleInterList"));
    EXPECT_EQ(numbers(list),
              (QStringList{QStringLiteral("2 شعبه شمال"), QStringLiteral("2 شعبه جنوب"),
                           QStringLiteral("1 شعبه شمال")}));
    EXPECT_TRUE(test::child<QLineEdit>(list, "txtBase")->isHidden());
    EXPECT_FALSE(test::child<QPushButton>(list, "cmdEdit")->isHidden());

    test::typeText(test::child<QLineEdit>(list, "txtCustomer"), QStringLiteral("شمال"));
    test::click(list, "cmdSearch");
    EXPECT_EQ(numbers(list),
              (QStringList{QStringLiteral("2 شعبه شمال"), QStringLiteral("1 شعبه شمال")}));

    test::child<QTableView>(list, "Grid1")->setCurrentIndex(list.model().index(1, 0));  // number 1
    test::click(list, "cmdDelete");
    EXPECT_EQ(app.messages.countOf(SaleDelete::internalDoneText()), 1);
    EXPECT_EQ(numbers(list), (QStringList{QStringLiteral("2 شعبه شمال")}));
    EXPECT_EQ(headers(), 2);
}

TEST_F(InternalDocumentsScreensTest, TheDeleteScreenTakesKindAndNumberWithoutADate) {
    frmDeleteFactorInternal screen(app.context);
    auto* kind = test::child<QComboBox>(screen, "cmbType");
    ASSERT_EQ(kind->count(), 2);
    EXPECT_EQ(kind->currentData().toInt(), 2);
    EXPECT_TRUE(test::child<QLineEdit>(screen, "txtDate")->isHidden());
    auto* number = test::child<QLineEdit>(screen, "txtNo");
    test::typeText(number, QStringLiteral("9"));
    test::click(screen, "cmdDelete");
    EXPECT_EQ(app.messages.countOf(SaleDelete::notFoundText()), 1);
    number->setText(QStringLiteral("1"));
    test::click(screen, "cmdDelete");
    EXPECT_EQ(app.messages.countOf(SaleDelete::internalDoneText()), 1);
    EXPECT_EQ(headers(), 2);
    EXPECT_TRUE(number->text().isEmpty());
}

TEST_F(InternalDocumentsScreensTest, TheReprintProposesTheLastNumberAndAsksTheDateWhenShared) {
    frmRePrintInter screen(app.context);
    auto* date = test::child<QLineEdit>(screen, "txtDate");
    EXPECT_EQ(test::child<QLineEdit>(screen, "txtNo")->text(), QStringLiteral("2"));
    EXPECT_TRUE(date->isHidden());
    EXPECT_FALSE(screen.cmdPrint_Click());
    EXPECT_FALSE(date->isHidden());
}

// Who may see the command is the main window's (frmMainTest); it opens the screen.
TEST_F(InternalDocumentsScreensTest, TheMainWindowOpensTheDeleteScreen) {
    const auto window = app.openMain(PermissionLevel::Administrator);
    window->command(QStringLiteral("mnuDeleteFactorInternal"))->trigger();
    QMdiSubWindow* active = window->mdiArea()->activeSubWindow();
    ASSERT_NE(active, nullptr);
    EXPECT_NE(qobject_cast<frmDeleteFactorInternal*>(active->widget()), nullptr);
}

}  // namespace
}  // namespace sandogh
