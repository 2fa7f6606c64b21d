// The internal sale screen on the demo shop: a barcode typed with Enter reaches the grid
// and the total, saving without a branch shows its refusal, a saved sale clears the screen
// and shows the desk's previous invoice, and the editor brings a saved one back.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "data/Session.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "sales/InternalSaleSession.h"
#include "sales/InternalSaleTexts.h"
#include "sales/SaleSession.h"
#include "ui/sales/SaleGridView.h"
#include "ui/sales/frmSaleInter.h"

namespace sandogh {
namespace {

using test::child;

class frmSaleInterTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openDesk());
        Session s = app.context.database().session();
        ASSERT_GT(CenterBranchesRepository::add(s, QStringLiteral("شعبه ۱"),
                                                CenterBranchesRepository::kBranch),
                  0);
        barcode =
            s.scalarText(QStringLiteral("SELECT MIN(EAN_Code) FROM Goods WHERE Cost > 0 "
                                        "AND ISActive = 1 AND Type = 0"));
        ASSERT_FALSE(barcode.isEmpty());
        screen = std::make_unique<frmSaleInter>(app.context);
        child<QCheckBox>(*screen, "chkPrint")->setChecked(false);
        screen->show();
    }
    void scan(const QString& text) {
        test::typeText(child<QLineEdit>(*screen, "txtBarcode"), text);
        QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_Return);
    }

    test::ScreenTestContext app;
    QString barcode;
    std::unique_ptr<frmSaleInter> screen;
};

TEST_F(frmSaleInterTest, RingingUpAndSavingClearsTheScreenAndShowsThePreviousInvoice) {
    EXPECT_EQ(child<QComboBox>(*screen, "cboBranch")->count(), 1);
    EXPECT_EQ(child<QLineEdit>(*screen, "txtNo")->text(), QStringLiteral("1"));
    EXPECT_FALSE(child<QLineEdit>(*screen, "txtAtf")->isVisible());
    scan(barcode);
    scan(QStringLiteral("4"));
    ASSERT_EQ(child<SaleGridView>(*screen, "Grid1")->model()->rowCount(), 1);
    const double total = screen->session().entry().total();
    EXPECT_GT(total, 0);
    EXPECT_EQ(screen->session().entry().lines().first().quantity, 4);
    EXPECT_FALSE(child<QLineEdit>(*screen, "txtSum")->text().isEmpty());

    QTest::mouseClick(child<QPushButton>(*screen, "cmdSave"), Qt::LeftButton);
    EXPECT_EQ(app.messages.countOf(InternalSaleTexts::noBranch()), 1);
    EXPECT_EQ(child<SaleGridView>(*screen, "Grid1")->model()->rowCount(), 1);

    child<QComboBox>(*screen, "cboBranch")->setCurrentIndex(0);
    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_F6);
    EXPECT_EQ(child<SaleGridView>(*screen, "Grid1")->model()->rowCount(), 0);
    EXPECT_EQ(child<QLabel>(*screen, "lblPrevFactor")->text(), QStringLiteral("1"));
    EXPECT_EQ(child<QLineEdit>(*screen, "txtNo")->text(), QStringLiteral("2"));
    Session s = app.context.database().session();
    EXPECT_DOUBLE_EQ(
        s.scalarNumber(QStringLiteral("SELECT DocSum FROM Whs_QTYDocHInternal WHERE Code = 1")),
        total);
}

TEST_F(frmSaleInterTest, TheEditorShowsTheSavedDocumentAndClosesOnceSaved) {
    EXPECT_EQ(frmSaleInter::editor(app.context, 1), nullptr);
    child<QComboBox>(*screen, "cboBranch")->setCurrentIndex(0);
    scan(barcode);
    ASSERT_TRUE(screen->save());

    std::unique_ptr<frmSaleInter> editor(frmSaleInter::editor(app.context, 1));
    ASSERT_NE(editor, nullptr);
    editor->show();
    EXPECT_EQ(editor->objectName(), QStringLiteral("frmSaleInterUpdate"));
    EXPECT_EQ(child<QLineEdit>(*editor, "txtNo")->text(), QStringLiteral("1"));
    EXPECT_EQ(child<QComboBox>(*editor, "cboBranch")->currentIndex(), 0);
    ASSERT_EQ(child<SaleGridView>(*editor, "Grid1")->model()->rowCount(), 1);
    test::typeText(child<QLineEdit>(*editor, "txtBarcode"), barcode);
    QTest::keyClick(child<QLineEdit>(*editor, "txtBarcode"), Qt::Key_Return);
    EXPECT_EQ(editor->session().entry().lines().first().quantity, 2);
    EXPECT_TRUE(editor->save());
    EXPECT_FALSE(editor->isVisible());
    // Written again under its key (the lines are the internal sale's, tested under sales).
    EXPECT_EQ(app.count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal")), 1);
}

TEST_F(frmSaleInterTest, TheReturnSwitchShowsTheReturnedInvoiceBox) {
    child<QCheckBox>(*screen, "chkReturn")->setChecked(true);
    EXPECT_EQ(screen->session().entry().mode(), SaleMode::Return);
    EXPECT_TRUE(child<QLineEdit>(*screen, "txtAtf")->isVisible());
    EXPECT_EQ(child<QLabel>(*screen, "lblCaption")->text(),
              SaleSession::captionOf(SaleMode::Return));
    test::typeText(child<QLineEdit>(*screen, "txtAtf"), QStringLiteral("7"));
    EXPECT_EQ(screen->session().returnedInvoice(), QStringLiteral("7"));
}

}  // namespace
}  // namespace sandogh
