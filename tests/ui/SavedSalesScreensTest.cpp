// The saved-sales screens on the demo shop: the list's choices and filters reach the grid,
// a delete from the list, and Ctrl+P on the sale screen opening frmDeleteFactor only for a
// user who may delete.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
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
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "sales/SaleDelete.h"
#include "sales/SaleListModel.h"
#include "ui/app/frmMain.h"
#include "ui/sales/frmDeleteFactor.h"
#include "ui/sales/frmSale.h"
#include "ui/sales/frmSaleList.h"

namespace sandogh {
namespace {

using namespace procedures;

class SavedSalesScreensTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openShop(true));
        UserAccount user;
        user.id = 1;
        app.context.setUser(user);
        app.context.setStation({1, QStringLiteral("صندوق ۱")});
        Session s = app.context.database().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, "
                                          "Value1, Active) VALUES (9001, 10, 'T-1', :n, :f, 1)"),
                           {{QStringLiteral(":n"), QStringLiteral("مريم")},
                            {QStringLiteral(":f"), QStringLiteral("اكبري")}}));
        // Three sales: the third of the customer with a Base, the second of the customer.
        for (int i = 1; i <= 3; ++i) {
            Transaction tx(s);
            StockDocumentHeader h;
            h.docNo = QString::number(i);
            h.transType = kSale;
            h.docDate = QStringLiteral("1404/01/01");
            h.docSum = 1000 * i;
            if (i >= 2) {
                h.companyId = 9001;
            }
            h.base = i == 3 ? QStringLiteral("B-9") : QString();
            const qint64 code = StockDocumentWriter::insertHeader(s, h);
            ASSERT_GT(code, 0);
            codes << code;
            ASSERT_TRUE(tx.commit());
        }
    }

    static QStringList numbers(frmSaleList& list) {
        QStringList n;
        for (int i = 0; i < list.model().rowCount(); ++i) {
            n << list.model().row(i).docNo;
        }
        return n;
    }

    test::ScreenTestContext app;
    QList<qint64> codes;
};

TEST_F(SavedSalesScreensTest, TheChoiceAndTheFiltersTypedReachTheGrid) {
    frmSaleList list(app.context, 2);
    EXPECT_EQ(list.property("TransType").toInt(), 2);
    EXPECT_EQ(numbers(list), (QStringList{"3", "2", "1"}));
    auto* choice = list.findChild<QComboBox*>(QStringLiteral("cmbChoice"));
    ASSERT_EQ(choice->count(), 3);
    choice->setCurrentIndex(1);  // the first 500
    EXPECT_EQ(numbers(list), (QStringList{"1", "2", "3"}));
    choice->setCurrentIndex(2);  // all
    EXPECT_EQ(numbers(list), (QStringList{"3", "2", "1"}));

    test::typeText(list.findChild<QLineEdit*>(QStringLiteral("txtCustomer")),
                   QStringLiteral("اکبری"));
    QTest::mouseClick(list.findChild<QPushButton*>(QStringLiteral("cmdSearch")), Qt::LeftButton);
    EXPECT_EQ(numbers(list), (QStringList{"3", "2"}));
    auto* base = list.findChild<QLineEdit*>(QStringLiteral("txtBase"));
    QTest::keyClicks(base, QStringLiteral("B-"));
    QTest::keyClick(base, Qt::Key_Return);
    EXPECT_EQ(numbers(list), (QStringList{"3"}));
    EXPECT_EQ(list.model().data(list.model().index(0, SaleListModel::CustomerName)).toString(),
              QStringLiteral("مريم اكبري"));
    list.setTransType(3);
    EXPECT_TRUE(numbers(list).isEmpty());
}

TEST_F(SavedSalesScreensTest, TheSelectedDocumentIsDeletedFromTheList) {
    frmSaleList list(app.context, 2);
    auto* grid = list.findChild<QTableView*>(QStringLiteral("Grid1"));
    grid->setCurrentIndex(list.model().index(1, 0));  // number 2
    QTest::mouseClick(list.findChild<QPushButton*>(QStringLiteral("cmdDelete")), Qt::LeftButton);
    EXPECT_EQ(app.messages.countOf(SaleDelete::doneText()), 1);
    EXPECT_EQ(numbers(list), (QStringList{"3", "1"}));
    Session s = app.context.database().session();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE Code = :c"),
                            {{QStringLiteral(":c"), codes[1]}}),
              0);
}

TEST_F(SavedSalesScreensTest, CtrlPOnTheSaleScreenOpensTheDeleteScreenWhenAllowed) {
    for (const PermissionLevel level : {PermissionLevel::Cashier, PermissionLevel::Administrator}) {
        frmMain window(app.context);
        window.Form_Load();
        window.applyPermissions(Permissions(level));
        window.show();
        QApplication::setActiveWindow(&window);
        window.command(QStringLiteral("mnuSale"))->trigger();
        auto* sale = qobject_cast<frmSale*>(window.mdiArea()->activeSubWindow()->widget());
        ASSERT_NE(sale, nullptr);
        sale->txtBarcode->setFocus();
        QTest::keyClick(sale->txtBarcode, Qt::Key_P, Qt::ControlModifier);
        QMdiSubWindow* active = window.mdiArea()->activeSubWindow();
        const bool opened =
            active != nullptr && qobject_cast<frmDeleteFactor*>(active->widget()) != nullptr;
        EXPECT_EQ(opened, level == PermissionLevel::Administrator);
    }
}

}  // namespace
}  // namespace sandogh
