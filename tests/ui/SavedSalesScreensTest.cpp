// The saved-sales screens on the demo shop: the list's choices and filters reach the grid,
// a delete from the list, and Ctrl+P on the sale screen opening frmDeleteFactor only for a
// user who may delete.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "app/Permissions.h"
#include "data/Session.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/repositories/SearchKeys.h"
#include "sales/SaleDelete.h"
#include "sales/SaleListModel.h"
#include "ui/app/frmMain.h"
#include "ui/sales/frmDeleteFactor.h"
#include "ui/sales/frmSale.h"
#include "ui/sales/frmSaleList.h"
#include "ui/sales/frmSaleUpdate.h"

namespace sandogh {
namespace {

using test::child;

using namespace procedures;

class SavedSalesScreensTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openDesk());
        Session s = app.context.database().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, "
                                          "Value1, NameKey, Active) VALUES (9001, 10, 'T-1', :n, "
                                          ":f, :key, 1)"),
                           {{QStringLiteral(":n"), QStringLiteral("مريم")},
                            {QStringLiteral(":f"), QStringLiteral("اكبري")},
                            {QStringLiteral(":key"),
                             SearchKeys::party(QStringLiteral("مريم"), QStringLiteral("اكبري"))}}));
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
    auto* choice = test::child<QComboBox>(list, "cmbChoice");
    ASSERT_EQ(choice->count(), 3);
    choice->setCurrentIndex(1);  // the first 500
    EXPECT_EQ(numbers(list), (QStringList{"1", "2", "3"}));

    // What the filters find is the list's (tested under sales); the boxes reach it.
    test::typeText(test::child<QLineEdit>(list, "txtCustomer"), QStringLiteral("اکبری"));
    test::click(list, "cmdSearch");
    EXPECT_EQ(numbers(list), (QStringList{"2", "3"}));
    auto* base = test::child<QLineEdit>(list, "txtBase");
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
    test::child<QTableView>(list, "Grid1")->setCurrentIndex(list.model().index(1, 0));  // number 2
    test::click(list, "cmdDelete");
    EXPECT_EQ(app.messages.countOf(SaleDelete::doneText()), 1);
    EXPECT_EQ(numbers(list), (QStringList{"3", "1"}));
    EXPECT_EQ(app.count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE Code = :c"),
                        {{QStringLiteral(":c"), codes[1]}}),
              0);
}

// The editor: the saved lines in the grid, a quantity typed into a cell recomputed, a line
// added by its barcode and another removed, and the save writing what the grid shows.
TEST_F(SavedSalesScreensTest, TheEditorSavesWhatIsTypedIntoItsGrid) {
    Session s = app.context.database().session();
    for (const auto& [barcode, cost] : {std::pair{"7001", 10000}, std::pair{"7002", 2500}}) {
        ASSERT_TRUE(s.exec(
            QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost, ISActive) "
                           "VALUES (:b, :b, :c, 1)"),
            {{QStringLiteral(":b"), QString::fromLatin1(barcode)}, {QStringLiteral(":c"), cost}}));
    }
    StockDocumentLine line;
    line.eanCode = QStringLiteral("7001");
    line.qty = 2;
    line.mFee = line.fee = 10000;
    line.price = 20000;
    ASSERT_GT(StockDocumentWriter::insertLine(s, codes[0], line), 0);

    frmSaleUpdate editor(app.context);
    ASSERT_TRUE(editor.frmSaleUdateSetup(codes[0]));
    EXPECT_EQ(editor.property("Code").toLongLong(), codes[0]);
    auto* grid = editor.findChild<QTableWidget*>(QStringLiteral("Grid1"));
    ASSERT_EQ(grid->rowCount(), 1);
    grid->item(0, frmSaleUpdate::ColQty)->setText(QStringLiteral("3"));
    EXPECT_EQ(grid->item(0, frmSaleUpdate::ColPrice)->text(), QStringLiteral("30,000"));
    EXPECT_EQ(editor.findChild<QLabel*>(QStringLiteral("lblSum"))->text(),
              QStringLiteral("30,000"));

    auto* barcode = editor.findChild<QLineEdit*>(QStringLiteral("txtBarcode"));
    QTest::keyClicks(barcode, QStringLiteral("7002"));
    QTest::keyClick(barcode, Qt::Key_Return);
    ASSERT_EQ(grid->rowCount(), 2);
    EXPECT_EQ(editor.Barcode(), QStringLiteral("7002"));
    grid->setCurrentCell(0, frmSaleUpdate::ColBarcode);
    QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("cmdDelRow")), Qt::LeftButton);
    ASSERT_EQ(grid->rowCount(), 1);
    auto* received = editor.findChild<QLineEdit*>(QStringLiteral("txtReceived"));
    received->setText(QStringLiteral("2500"));
    QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("cmdSave")), Qt::LeftButton);

    const SqlBinds code{{QStringLiteral(":c"), codes[0]}};
    EXPECT_EQ(
        s.scalarText(QStringLiteral("SELECT EAN_Code FROM Whs_QTYDocD WHERE Code = :c"), code),
        QStringLiteral("7002"));
    EXPECT_EQ(
        s.scalarNumber(QStringLiteral("SELECT DocSum FROM Whs_QTYDocH WHERE Code = :c"), code),
        2500);
    // Saved, the editor shows the document as it now stands.
    EXPECT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->item(0, frmSaleUpdate::ColBarcode)->text(), QStringLiteral("7002"));
}

TEST_F(SavedSalesScreensTest, CtrlPOnTheSaleScreenOpensTheDeleteScreenWhenAllowed) {
    for (const PermissionLevel level : {PermissionLevel::Cashier, PermissionLevel::Administrator}) {
        const auto window = app.openMain(level);
        window->command(QStringLiteral("mnuSale"))->trigger();
        auto* sale = qobject_cast<frmSale*>(window->mdiArea()->activeSubWindow()->widget());
        ASSERT_NE(sale, nullptr);
        child<QLineEdit>(*sale, "txtBarcode")->setFocus();
        QTest::keyClick(child<QLineEdit>(*sale, "txtBarcode"), Qt::Key_P, Qt::ControlModifier);
        QMdiSubWindow* active = window->mdiArea()->activeSubWindow();
        const bool opened =
            active != nullptr && qobject_cast<frmDeleteFactor*>(active->widget()) != nullptr;
        // Refused, the sale screen says so in its own words (frmSaleKeysTest).
        EXPECT_EQ(opened, level == PermissionLevel::Administrator);
    }
}

}  // namespace
}  // namespace sandogh
