// The totals panel of the sale screen typed into, and the payment split dialog driven
// through its named controls.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "DialogDriver.h"
#include "ScreenTestContext.h"
#include "TypeText.h"
#include "sales/SettlementTexts.h"
#include "support/RecordingMessageService.h"
#include "ui/sales/SaleTotalsPanel.h"
#include "ui/sales/frmSalePayment.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh::test {
namespace {

void typeAmount(AmountEdit* box, const QString& text) {
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    typeText(box, text);
}

struct PanelCase {
    const char* name;
    const char* total;
    const char* percent;   // typed and applied with DiscountButton; empty: none
    const char* discount;  // typed; empty: none
    const char* other;
    const char* received;
    const char* payable;
    const char* change;
    QString label;
};

class SaleTotalsPanelTest : public ::testing::TestWithParam<PanelCase> {};

TEST_P(SaleTotalsPanelTest, TypingRecomputesPayableChangeAndState) {
    const PanelCase& c = GetParam();
    SaleTotalsPanel panel;
    panel.setDiscountKinds({{1, QStringLiteral("عادی")}, {5, QStringLiteral("هدیه")}});
    panel.show();
    panel.showTotal(QString::fromLatin1(c.total));
    if (*c.percent != 0) {
        typeAmount(child<AmountEdit>(panel, "txtDiscountPercent"), QString::fromLatin1(c.percent));
        QTest::mouseClick(child<QPushButton>(panel, "DiscountButton"), Qt::LeftButton);
    }
    if (*c.discount != 0) {
        typeAmount(child<AmountEdit>(panel, "txtDiscount"), QString::fromUtf8(c.discount));
    }
    typeAmount(child<AmountEdit>(panel, "txtOther"), QString::fromLatin1(c.other));
    typeAmount(child<AmountEdit>(panel, "txtReceivedPrice"), QString::fromUtf8(c.received));

    EXPECT_EQ(child<AmountEdit>(panel, "txtSumReceived")->text(), QString::fromLatin1(c.payable));
    EXPECT_EQ(child<AmountEdit>(panel, "txtReturn")->text(), QString::fromLatin1(c.change));
    EXPECT_EQ(child<QLabel>(panel, "lblReturnCalculator")->text(), c.label);
}

INSTANTIATE_TEST_SUITE_P(
    Typed, SaleTotalsPanelTest,
    // The figures are the settlement calculator's (tested under sales); each box reaches it.
    ::testing::Values(PanelCase{"PercentChargeAndChange", "100,000", "10", "", "5000", "100000",
                                "95,000", "5,000", SettlementTexts::toPay()},
                      PanelCase{"TypedDiscountInPersianDigits", "100,000", "", "۱۰۰۰۰", "", "۹۰۰۰۰",
                                "90,000", "0", SettlementTexts::settled()}),
    [](const ::testing::TestParamInfo<PanelCase>& p) { return std::string(p.param.name); });

TEST(SaleTotalsPanelFlow, TheTotalChangingRecomputesAndANewSaleEmptiesEverything) {
    SaleTotalsPanel panel;
    panel.setDiscountKinds({{1, QStringLiteral("عادی")}, {5, QStringLiteral("هدیه")}});
    panel.setOverheadKinds({{2, QStringLiteral("حمل")}});
    panel.show();
    panel.showTotal(QStringLiteral("50,000"));
    typeAmount(child<AmountEdit>(panel, "txtReceivedPrice"), QStringLiteral("50000"));
    // Another line rung up: recomputed (the figures and states are the calculator's).
    panel.showTotal(QStringLiteral("70,000"));
    EXPECT_EQ(child<AmountEdit>(panel, "txtSumReceived")->text(), QStringLiteral("70,000"));

    typeAmount(child<AmountEdit>(panel, "txtDiscount"), QStringLiteral("7000"));
    child<QComboBox>(panel, "cmbDiscountType")
        ->setCurrentIndex(child<QComboBox>(panel, "cmbDiscountType")->findData(5));
    typeAmount(child<AmountEdit>(panel, "txtOther"), QStringLiteral("1000"));
    child<QComboBox>(panel, "cmbOverhead")
        ->setCurrentIndex(child<QComboBox>(panel, "cmbOverhead")->findData(2));
    const SaleSettlement s = panel.settlement();
    EXPECT_DOUBLE_EQ(s.discount, 7000);
    EXPECT_DOUBLE_EQ(s.overhead, 1000);
    EXPECT_DOUBLE_EQ(s.payable, 64000);
    EXPECT_DOUBLE_EQ(s.handedOver, 50000);
    EXPECT_EQ(s.discountTypeId, 5);
    EXPECT_EQ(s.overheadId, 2);

    panel.clearSettlement();
    panel.showTotal(QStringLiteral("0"));
    for (AmountEdit* box :
         {child<AmountEdit>(panel, "txtDiscount"), child<AmountEdit>(panel, "txtOther"),
          child<AmountEdit>(panel, "txtSumReceived"), child<AmountEdit>(panel, "txtReceivedPrice"),
          child<AmountEdit>(panel, "txtReturn")}) {
        EXPECT_TRUE(box->text().isEmpty()) << box->objectName().toStdString();
    }
    EXPECT_TRUE(child<QLabel>(panel, "lblReturnCalculator")->text().isEmpty());
    EXPECT_FALSE(panel.settlement().discountTypeId.has_value());
    EXPECT_FALSE(panel.settlement().overheadId.has_value());
}

QList<frmSalePayment::AccountChoice> paymentAccounts() {
    return {{{11, 12, 1, QStringLiteral("صندوق")}, QString()},
            {{21, 901, 9, QStringLiteral("ملت")}, QStringLiteral("31005566")},
            {{22, 902, 9, QStringLiteral("سامان")}, QString()}};
}

void chooseAccount(frmSalePayment& dialog, int id) {
    child<QComboBox>(dialog, "cmbAccount")
        ->setCurrentIndex(child<QComboBox>(dialog, "cmbAccount")->findData(id));
}

TEST(frmSalePaymentTest, RowsMustAddUpBeforeOk) {
    RecordingMessageService messages;
    frmSalePayment dialog(paymentAccounts(), messages);
    dialog.DocSum(95000);
    dialog.setCustomerName(QStringLiteral("رضا"));
    dialog.FillTextValue();
    dialog.show();
    EXPECT_EQ(child<AmountEdit>(dialog, "txtAmount")->text(), QStringLiteral("95,000"));
    EXPECT_EQ(child<QLabel>(dialog, "lblCompanyName")->text(), QStringLiteral("رضا"));
    ASSERT_EQ(child<QComboBox>(dialog, "cmbPaymentKind")->count(), 3);

    // A bank account shows its terminal.
    chooseAccount(dialog, 21);
    EXPECT_TRUE(child<QLabel>(dialog, "lblPosId")->text().contains(QStringLiteral("31005566")));
    chooseAccount(dialog, 22);
    EXPECT_TRUE(child<QLabel>(dialog, "lblPosId")->text().isEmpty());

    // 45,000 in cash, then OK refused: 50,000 left.
    chooseAccount(dialog, 11);
    typeAmount(child<AmountEdit>(dialog, "txtAmount"), QStringLiteral("45000"));
    QTest::mouseClick(child<QPushButton>(dialog, "btnAdd"), Qt::LeftButton);
    EXPECT_EQ(child<AmountEdit>(dialog, "txtAmount")->text(), QStringLiteral("50,000"));
    child<QDialogButtonBox>(dialog, "buttons")->button(QDialogButtonBox::Ok)->click();
    EXPECT_TRUE(dialog.isVisible());
    ASSERT_EQ(messages.messages().size(), 1);
    EXPECT_TRUE(messages.messages().first().text.startsWith(SettlementTexts::splitMismatch()));

    // The rest on the Mellat terminal: OK closes with both rows.
    child<QComboBox>(dialog, "cmbPaymentKind")->setCurrentIndex(1);
    chooseAccount(dialog, 21);
    QTest::mouseClick(child<QPushButton>(dialog, "btnAdd"), Qt::LeftButton);
    EXPECT_EQ(child<QTableWidget>(dialog, "grdPayments")->rowCount(), 2);
    EXPECT_EQ(child<QTableWidget>(dialog, "grdPayments")->item(1, 2)->text(),
              QStringLiteral("31005566"));
    child<QDialogButtonBox>(dialog, "buttons")->button(QDialogButtonBox::Ok)->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const QList<SalePayment> rows = dialog.payments();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].kind, SalePayment::Cash);
    EXPECT_EQ(rows[0].accountingGroupId, 11);
    EXPECT_DOUBLE_EQ(rows[0].amount, 45000);
    EXPECT_EQ(rows[1].kind, SalePayment::BankTerminal);
    EXPECT_EQ(rows[1].posId, QStringLiteral("31005566"));
    EXPECT_DOUBLE_EQ(rows[1].amount, 50000);
}

TEST(frmSalePaymentTest, RunsModallyAndCancelKeepsNothing) {
    RecordingMessageService messages;
    frmSalePayment dialog(paymentAccounts(), messages);
    dialog.DocSum(30000);
    dialog.FillTextValue();
    {
        DialogDriver driver(QStringLiteral("frmSalePayment"), [](QWidget* w) {
            auto* d = static_cast<frmSalePayment*>(w);
            QTest::mouseClick(child<QPushButton>(*d, "btnAdd"), Qt::LeftButton);
            child<QDialogButtonBox>(*d, "buttons")->button(QDialogButtonBox::Ok)->click();
        });
        EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    }
    EXPECT_DOUBLE_EQ(dialog.payments().first().amount, 30000);

    frmSalePayment second(paymentAccounts(), messages);
    second.DocSum(30000);
    {
        DialogDriver driver(QStringLiteral("frmSalePayment"),
                            [](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
        EXPECT_EQ(second.exec(), QDialog::Rejected);
    }
    EXPECT_TRUE(second.payments().isEmpty());
}

}  // namespace
}  // namespace sandogh::test
