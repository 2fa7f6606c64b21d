// The keys of the sale screen: each reaches the screen before its controls and does what
// the key table says.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "DialogDriver.h"
#include "SaleScreenTest.h"
#include "sales/SaleSession.h"
#include "sales/SaleTexts.h"
#include "ui/sales/SaleDetailPanel.h"
#include "ui/sales/SaleGridView.h"
#include "ui/sales/frmSale.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh::test {
namespace {

class frmSaleKeysTest : public SaleScreenTest {
protected:
    // Two lines: A (10,000) and B (2,500).
    void ringUpTwoLines() {
        addGoods({QStringLiteral("6261001"), 10000, 0, QStringLiteral("الف")});
        addGoods({QStringLiteral("6261002"), 2500, 0, QStringLiteral("ب")});
        openScreen();
        scan(QStringLiteral("6261001"));
        scan(QStringLiteral("6261002"));
        ASSERT_EQ(lineCount(), 2);
    }
};

TEST_F(frmSaleKeysTest, CtrlDDeletesTheSelectedLine) {
    ringUpTwoLines();
    child<SaleGridView>(screen(), "Grid1")->selectLine(0);

    press(Qt::Key_D, Qt::ControlModifier);

    ASSERT_EQ(lineCount(), 1);
    EXPECT_EQ(screen().session().linesModel().line(0).barcode, QStringLiteral("6261002"));
    EXPECT_EQ(totalShown(), QStringLiteral("2,500"));
    EXPECT_TRUE(barcodeHasFocus());
}

TEST_F(frmSaleKeysTest, CtrlMSwitchesBetweenSaleAndReturn) {
    openScreen();
    auto* received = screen().findChild<QLabel*>(QStringLiteral("lblReceivedPrice"));
    ASSERT_NE(received, nullptr);
    EXPECT_EQ(child<QLabel>(screen(), "lblCaption")->text(), QStringLiteral("فاکتور فروش"));
    EXPECT_EQ(received->text(), QStringLiteral("مبلغ دريافت شده :"));

    press(Qt::Key_M, Qt::ControlModifier);

    EXPECT_EQ(screen().session().mode(), SaleMode::Return);
    EXPECT_EQ(child<QLabel>(screen(), "lblCaption")->text(), QStringLiteral("فاکتور مرجوعي فروش"));
    EXPECT_EQ(screen().windowTitle(), QStringLiteral("فاکتور مرجوعي فروش"));
    EXPECT_EQ(received->text(), QStringLiteral("مبلغ پرداخت شده :"));
    EXPECT_TRUE(child<QRadioButton>(screen(), "rdoType1")->isChecked());

    press(Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(child<QLabel>(screen(), "lblCaption")->text(), QStringLiteral("فاکتور فروش"));
    EXPECT_TRUE(child<QRadioButton>(screen(), "rdoType0")->isChecked());
}

TEST_F(frmSaleKeysTest, EscapeClosesTheDetailPanelFirstThenStartsANewSale) {
    ringUpTwoLines();
    QTest::mouseClick(child<QPushButton>(screen(), "btnDetail"), Qt::LeftButton);
    ASSERT_TRUE(child<SaleDetailPanel>(screen(), "frmDetail")->isVisible());
    child<QLineEdit>(screen(), "txtNote")->setFocus();

    press(Qt::Key_Escape);
    EXPECT_FALSE(child<SaleDetailPanel>(screen(), "frmDetail")->isVisible());
    EXPECT_EQ(lineCount(), 2);

    // A sale with lines is dropped once the cashier says so (the question is the session's).
    QTest::keyClicks(child<QLineEdit>(screen(), "txtBarcode"), QStringLiteral("62"));
    messages().queueAnswer(true);
    press(Qt::Key_Escape);
    EXPECT_EQ(messages().countOf(SaleTexts::unsavedSale()), 1);
    EXPECT_EQ(lineCount(), 0);
    EXPECT_EQ(totalShown(), QStringLiteral("0"));
    EXPECT_TRUE(child<QLineEdit>(screen(), "txtBarcode")->text().isEmpty());
    EXPECT_TRUE(barcodeHasFocus());
}

struct FocusCase {
    Qt::Key key;
    const char* box;
    bool selected;
    const char* from = nullptr;  // the box holding the focus first; null: the barcode box
};

class frmSaleFocusTest : public SaleScreenTest, public ::testing::WithParamInterface<FocusCase> {};

TEST_P(frmSaleFocusTest, CtrlKeyFocusesItsBox) {
    openScreen();
    QLineEdit* target = box(GetParam().box);
    ASSERT_NE(target, nullptr);
    target->setText(QStringLiteral("1,000"));
    target->deselect();
    if (GetParam().from != nullptr) {
        box(GetParam().from)->setFocus();
    }

    press(GetParam().key, Qt::ControlModifier);

    EXPECT_TRUE(target->hasFocus());
    EXPECT_EQ(target->hasSelectedText(), GetParam().selected);
    EXPECT_EQ(target->text(), QStringLiteral("1,000"));
}

INSTANTIATE_TEST_SUITE_P(Keys, frmSaleFocusTest,
                         ::testing::Values(FocusCase{Qt::Key_B, "txtSumReceived", false},
                                           FocusCase{Qt::Key_C, "txtReceivedPrice", false},
                                           FocusCase{Qt::Key_J, "txtDiscount", true},
                                           FocusCase{Qt::Key_Z, "txtOther", false},
                                           FocusCase{Qt::Key_S, "txtAccountSearch", true},
                                           // Inside a box the key is the screen's, not a copy.
                                           FocusCase{Qt::Key_C, "txtReceivedPrice", false,
                                                     "txtDiscount"}));

struct SaveCase {
    const char* name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool saveEnabled;
    bool print;
    int saves;
};

class frmSaleSaveKeyTest : public SaleScreenTest, public ::testing::WithParamInterface<SaveCase> {};

TEST_P(frmSaleSaveKeyTest, SavesOnlyWhenAllowed) {
    const SaveCase& c = GetParam();
    RecordingSaleActions actions;
    actions.saveResult = false;
    openScreen().setActions(&actions);
    child<QPushButton>(screen(), "cmdSave")->setEnabled(c.saveEnabled);
    child<QCheckBox>(screen(), "chkPrint")->setChecked(c.print);

    press(c.key, c.modifiers);

    EXPECT_EQ(actions.saves, c.saves);
    EXPECT_EQ(child<QPushButton>(screen(), "cmdSave")->isEnabled(), c.saveEnabled);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, frmSaleSaveKeyTest,
    ::testing::Values(SaveCase{"F6", Qt::Key_F6, Qt::NoModifier, true, false, 1},
                      SaveCase{"F6Disabled", Qt::Key_F6, Qt::NoModifier, false, false, 0},
                      SaveCase{"CtrlEnter", Qt::Key_Return, Qt::ControlModifier, true, false, 1},
                      SaveCase{"CtrlKeypadEnter", Qt::Key_Enter,
                               Qt::ControlModifier | Qt::KeypadModifier, true, false, 1},
                      SaveCase{"CtrlF6Printing", Qt::Key_F6, Qt::ControlModifier, true, true, 1},
                      SaveCase{"CtrlF6NotPrinting", Qt::Key_F6, Qt::ControlModifier, true, false,
                               0},
                      SaveCase{"CtrlF6Disabled", Qt::Key_F6, Qt::ControlModifier, false, true, 0}),
    CaseName());

struct RequestCase {
    const char* name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* signal;
    const char* enableSection;  // the desk's switch the request needs, or null
};

class frmSaleRequestTest : public SaleScreenTest,
                           public ::testing::WithParamInterface<RequestCase> {};

TEST_P(frmSaleRequestTest, AsksTheMainWindowForAnotherScreen) {
    const RequestCase& c = GetParam();
    if (c.enableSection != nullptr) {
        setOption(c.enableSection, "Enable", QStringLiteral("1"));
    }
    openScreen();
    QSignalSpy spy(&screen(), c.signal);

    press(c.key, c.modifiers);

    EXPECT_EQ(spy.count(), 1);
}

TEST_P(frmSaleRequestTest, RefusesWithItsMessageWhatTheUserMayNotOpen) {
    const RequestCase& c = GetParam();
    if (c.enableSection != nullptr) {
        setOption(c.enableSection, "Enable", QStringLiteral("1"));
    }
    openScreen();
    screen().setAccess([](Permission) { return false; });
    QSignalSpy spy(&screen(), c.signal);

    press(c.key, c.modifiers);

    EXPECT_EQ(spy.count(), 0);
    EXPECT_EQ(messages().countOf(SaleTexts::forbidden()), 1);
    EXPECT_TRUE(barcodeHasFocus());
}

const RequestCase kGoodDefinition{"F2", Qt::Key_F2, Qt::NoModifier,
                                  SIGNAL(goodDefinitionRequested()), "GoodDefinition"};
const RequestCase kNewSaleForm{"F3", Qt::Key_F3, Qt::NoModifier, SIGNAL(newSaleFormRequested()),
                               "SalesNewForm"};
const RequestCase kDeleteInvoice{"CtrlP", Qt::Key_P, Qt::ControlModifier,
                                 SIGNAL(deleteInvoiceRequested()), nullptr};

INSTANTIATE_TEST_SUITE_P(Keys, frmSaleRequestTest,
                         ::testing::Values(kGoodDefinition, kNewSaleForm, kDeleteInvoice),
                         CaseName());

TEST_F(frmSaleKeysTest, CtrlQChangesTheQuantityOfTheSelectedLine) {
    ringUpTwoLines();
    child<SaleGridView>(screen(), "Grid1")->selectLine(0);
    DialogDriver typeQuantity(QStringLiteral("frmChangeQty"), [](QWidget* dialog) {
        auto* qty = dialog->findChild<QLineEdit*>(QStringLiteral("txtQty"));
        ASSERT_NE(qty, nullptr);
        qty->selectAll();
        QTest::keyClicks(qty, QStringLiteral("2.5"));
        QTest::keyClick(qty, Qt::Key_Return);
    });

    press(Qt::Key_Q, Qt::ControlModifier);

    EXPECT_DOUBLE_EQ(quantityOf(0), 2.5);
    EXPECT_DOUBLE_EQ(quantityOf(1), 1);
    EXPECT_EQ(totalShown(), QStringLiteral("27,500"));
    EXPECT_EQ(screen().session().ChangedRowNo(), 0);
    EXPECT_TRUE(barcodeHasFocus());
}

}  // namespace
}  // namespace sandogh::test
