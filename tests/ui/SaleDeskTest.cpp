// The sale screen as the program opens it: from the main window's menu on the demo shop,
// with this desk's drawer, card terminal (over a pseudo-terminal), companion program and
// customer display behind it.

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>

#include "PtyPair.h"
#include "SaleScreenTest.h"
#include "ScreenTestContext.h"
#include "WaitUntil.h"
#include "app/Permissions.h"
#include "data/Session.h"
#include "devices/PecRequest.h"
#include "devices/PecTerminal.h"
#include "sales/SaleSession.h"
#include "settings/SettingKeys.h"
#include "ui/app/frmMain.h"
#include "ui/sales/SaleDesk.h"
#include "ui/sales/SaleDetailPanel.h"
#include "ui/sales/SaleTotalsPanel.h"
#include "ui/sales/frmSale.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {
namespace {

using test::child;

const QString kBarcode = QStringLiteral("9990001112223");

class SaleDeskTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openDesk());
        Session s = app.context.database().session();
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue, "
                                  "ISActive, AQIS, Type, GType) VALUES (:b, :n, :c, 0, 0, 1, "
                                  "0, 0, 0)"),
                   {{QStringLiteral(":b"), kBarcode},
                    {QStringLiteral(":n"), QStringLiteral("چای")},
                    {QStringLiteral(":c"), 125000}}))
            << s.lastError().text().toStdString();
    }

    void setOption(const SettingKey& key, const QString& value) {
        app.context.machineSettings().write(key, value);
    }

    // The sale screen opened through the menu of a cashier's main window, the focus in its
    // barcode box.
    frmSale* openSale() {
        if (window == nullptr) {
            window = app.openMain(PermissionLevel::Cashier);
        }
        window->command(QStringLiteral("mnuSale"))->trigger();
        QMdiSubWindow* active = window->mdiArea()->activeSubWindow();
        auto* screen = active == nullptr ? nullptr : qobject_cast<frmSale*>(active->widget());
        EXPECT_NE(screen, nullptr);
        if (screen != nullptr) {
            child<QLineEdit>(*screen, "txtBarcode")->setFocus();
        }
        return screen;
    }

    static void scan(frmSale& screen, const QString& text) {
        QTest::keyClicks(child<QLineEdit>(screen, "txtBarcode"), text);
        QTest::keyClick(child<QLineEdit>(screen, "txtBarcode"), Qt::Key_Return);
    }

    QList<frmSale*> saleScreens() const {
        QList<frmSale*> screens;
        for (QMdiSubWindow* child : window->mdiArea()->subWindowList()) {
            if (auto* screen = qobject_cast<frmSale*>(child->widget()); screen != nullptr) {
                screens << screen;
            }
        }
        return screens;
    }

    test::ScreenTestContext app;
    std::unique_ptr<frmMain> window;
};

TEST_F(SaleDeskTest, TheMenuOpensOneSaleScreenAndF3Another) {
    setOption(settingkeys::SalesNewForm, QStringLiteral("1"));
    frmSale* first = openSale();
    ASSERT_NE(first, nullptr);
    EXPECT_NE(SaleDesk::of(*first), nullptr);
    // The menu again brings the open one forward.
    EXPECT_EQ(openSale(), first);
    EXPECT_EQ(saleScreens().size(), 1);

    QTest::keyClick(child<QLineEdit>(*first, "txtBarcode"), Qt::Key_F3);
    EXPECT_EQ(saleScreens().size(), 2);
    QTest::keyClick(child<QLineEdit>(*first, "txtBarcode"), Qt::Key_F3);
    EXPECT_EQ(saleScreens().size(), 3);

    // A rung-up line goes to the screen's own sale, not to the others.
    scan(*first, kBarcode);
    EXPECT_EQ(first->session().lines().size(), 1);
    qsizetype lines = 0;
    for (frmSale* screen : saleScreens()) {
        lines += screen->session().lines().size();
    }
    EXPECT_EQ(lines, 1);
}

class SaleDeskPecTest : public SaleDeskTest {
protected:
    void SetUp() override {
        SaleDeskTest::SetUp();
        ASSERT_TRUE(pty.ok());
        setOption(settingkeys::PecPort, QStringLiteral("4"));
        setOption(settingkeys::PecDevice, pty.slavePath());
    }

    test::PtyPair pty;
};

TEST_F(SaleDeskPecTest, F5SendsThePayableAndTheScreenGoesOnUntilTheAnswer) {
    frmSale* screen = openSale();
    ASSERT_NE(screen, nullptr);
    child<QLineEdit>(*screen, "txtNo")->setText(QStringLiteral("57"));
    scan(*screen, kBarcode);

    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_F5);
    const QByteArray expected = PecRequest::build(QStringLiteral("125,000"), QStringLiteral("57"));
    EXPECT_EQ(pty.readMaster(expected.size()), expected);
    PecTerminal& terminal = SaleDesk::of(*screen)->pecTerminal();
    EXPECT_TRUE(terminal.waiting());

    // Waiting for the customer's card does not hold the cashier up.
    scan(*screen, kBarcode);
    EXPECT_DOUBLE_EQ(screen->session().lines().front().quantity, 2);

    QStringList codes;
    QObject::connect(&terminal, &PecTerminal::answered,
                     [&codes](const QString& code) { codes << code; });
    pty.writeMaster("0012RS00200");
    ASSERT_TRUE(test::waitUntil([&] { return !codes.isEmpty(); }));
    EXPECT_EQ(codes, QStringList{QStringLiteral("00")});
    EXPECT_EQ(app.count(QStringLiteral("SELECT COUNT(*) FROM tblPOS")), 1);
    EXPECT_FALSE(terminal.waiting());
}

struct SaveCase {
    const char* name;
    bool print;
    int launches;  // the receipt goes to the companion program
};

class SaleDeskSaveTest : public SaleDeskTest, public ::testing::WithParamInterface<SaveCase> {};

TEST_P(SaleDeskSaveTest, ASaleTypedAndSavedLandsInTheShopAndTheScreenStartsAnew) {
    const SaveCase& c = GetParam();
    QDir(app.programFolder()).mkpath(QStringLiteral("Program"));
    QFile exe(app.path(QStringLiteral("Program/KotrimoAcc.exe")));
    ASSERT_TRUE(exe.open(QIODevice::WriteOnly));
    frmSale* screen = openSale();
    ASSERT_NE(screen, nullptr);
    const QString number = child<QLineEdit>(*screen, "txtNo")->text();
    ASSERT_FALSE(number.isEmpty());

    scan(*screen, kBarcode);
    scan(*screen, QStringLiteral("3"));
    // The first payment kind is chosen for every sale.
    ASSERT_GT(child<QComboBox>(*screen->detailPanel(), "cmbPayType")->count(), 1);
    EXPECT_EQ(child<QComboBox>(*screen->detailPanel(), "cmbPayType")->currentIndex(), 1);
    child<QCheckBox>(*screen, "chkPrint")->setChecked(c.print);
    app.messages.clear();
    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_F6);

    // Saved as typed (three teas) under the number shown; the lines are the saver's.
    EXPECT_EQ(app.count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE TransType = 2 AND "
                                       "DocNo = :no AND StationID = 1 AND DocSum = 375000"),
                        {{QStringLiteral(":no"), number}}),
              1)
        << app.messages.count();
    EXPECT_EQ(app.launcher.calls.size(), c.launches);

    // Ready for the next customer: a new number, nothing rung up, the last invoice shown.
    EXPECT_TRUE(screen->session().isEmpty());
    EXPECT_EQ(child<QLineEdit>(*screen, "txtNo")->text(), QString::number(number.toLongLong() + 1));
    EXPECT_TRUE(child<QLabel>(*screen, "lblPrevFactor")->text().endsWith(number));
    EXPECT_TRUE(child<QLabel>(*screen, "lblPrevPrice")->text().endsWith(QStringLiteral("375,000")));
    EXPECT_TRUE(child<AmountEdit>(*screen->totalsPanel(), "txtSumReceived")->text().isEmpty() ||
                child<AmountEdit>(*screen->totalsPanel(), "txtSumReceived")->value() == 0);
    EXPECT_TRUE(child<QPushButton>(*screen, "cmdSave")->isEnabled());
}

INSTANTIATE_TEST_SUITE_P(Receipt, SaleDeskSaveTest,
                         ::testing::Values(SaveCase{"NoReceipt", false, 0},
                                           SaveCase{"Receipt", true, 1}),
                         test::CaseName());

TEST_F(SaleDeskTest, TheChangeStaysInSightUntilTheNextScanAndAReturnShowsItsNumber) {
    frmSale* screen = openSale();
    ASSERT_NE(screen, nullptr);
    scan(*screen, kBarcode);
    QTest::keyClicks(child<AmountEdit>(*screen->totalsPanel(), "txtReceivedPrice"),
                     QStringLiteral("200000"));
    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_F6);
    ASSERT_TRUE(screen->session().isEmpty()) << app.messages.count();
    EXPECT_TRUE(
        child<QLabel>(*screen, "lblLastReceived")->text().endsWith(QStringLiteral("200,000")))
        << child<QLabel>(*screen, "lblLastReceived")->text().toStdString();
    EXPECT_TRUE(child<QLabel>(*screen, "lblLastChange")->text().endsWith(QStringLiteral("75,000")))
        << child<QLabel>(*screen, "lblLastChange")->text().toStdString();
    EXPECT_TRUE(child<QLabel>(*screen, "lblPrevPrice")->text().endsWith(QStringLiteral("125,000")));

    scan(*screen, kBarcode);
    EXPECT_TRUE(child<QLabel>(*screen, "lblLastReceived")->text().isEmpty());
    EXPECT_TRUE(child<QLabel>(*screen, "lblLastChange")->text().isEmpty());

    // Returns are numbered in their own run.
    Session s = app.context.database().session();
    const qint64 nextReturn = s.scalarInt64(
        QStringLiteral("SELECT COALESCE(MAX(CAST(DocNo AS BIGINT)), 0) + 1 FROM Whs_QTYDocH "
                       "WHERE TransType = 3 AND DocType IS NULL"));
    const QString saleNumber = child<QLineEdit>(*screen, "txtNo")->text();
    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(child<QLineEdit>(*screen, "txtNo")->text(), QString::number(nextReturn));
    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(child<QLineEdit>(*screen, "txtNo")->text(), saleNumber);
}

TEST_F(SaleDeskTest, ARefusedSaveKeepsTheSale) {
    frmSale* screen = openSale();
    ASSERT_NE(screen, nullptr);
    const QString number = child<QLineEdit>(*screen, "txtNo")->text();
    scan(*screen, kBarcode);
    // No payment kind chosen: refused with the saver's message (a refused save writes
    // nothing: tested under sales).
    child<QComboBox>(*screen->detailPanel(), "cmbPayType")->setCurrentIndex(0);
    app.messages.clear();
    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_F6);
    EXPECT_GE(app.messages.count(), 1);
    EXPECT_EQ(screen->session().lines().size(), 1);
    EXPECT_EQ(child<QLineEdit>(*screen, "txtNo")->text(), number);
    EXPECT_TRUE(child<QPushButton>(*screen, "cmdSave")->isEnabled());
}

TEST_F(SaleDeskTest, TheLoyaltyButtonGivesTheEarnedGiftsAndSavingCountsThem) {
    setOption(settingkeys::LoyaltyBuyFactor, QStringLiteral("100000"));
    setOption(settingkeys::LoyaltyAmountRebate, QStringLiteral("10000"));
    Session s = app.context.database().session();
    const qint64 customer = s.scalarInt64(
        QStringLiteral("SELECT MIN(Counter) FROM Types WHERE TypeNo = 10 AND Active = 1"));
    ASSERT_GT(customer, 0);
    // 250,000 bought earlier and one gift taken already: one more gift is due.
    ASSERT_TRUE(s.exec(QStringLiteral("UPDATE Types SET DiscountTakenTotal = 1 WHERE Counter = :c"),
                       {{QStringLiteral(":c"), customer}}));
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, CompanyID, "
                                      "DocDate, DocSum) VALUES (900, '900', 2, :c, '1405/01/01', "
                                      "250000)"),
                       {{QStringLiteral(":c"), customer}}));

    frmSale* screen = openSale();
    ASSERT_NE(screen, nullptr);
    scan(*screen, kBarcode);
    ASSERT_TRUE(screen->session().selectCustomer(int(customer)));
    SaleTotalsPanel* totals = screen->totalsPanel();
    // The loyalty gift kind: the fifth of the shop's list.
    ASSERT_TRUE(totals->chooseDiscountKind(5));
    QTest::mouseClick(child<QPushButton>(*screen, "btnBuyFactor"), Qt::LeftButton);
    EXPECT_EQ(child<AmountEdit>(*totals, "txtDiscount")->value(), 10000);

    app.messages.clear();
    QTest::keyClick(child<QLineEdit>(*screen, "txtBarcode"), Qt::Key_F6);
    EXPECT_TRUE(screen->session().isEmpty()) << app.messages.count();
    EXPECT_EQ(
        s.scalarInt64(QStringLiteral("SELECT DiscountTakenTotal FROM Types WHERE Counter = :c"),
                      {{QStringLiteral(":c"), customer}}),
        2);

    // Refused (a plain kind: the refusals are the gift's, tested under sales), the button
    // clears the discount typed before.
    ASSERT_TRUE(totals->chooseDiscountKind(1));
    child<AmountEdit>(*totals, "txtDiscount")->setValue(5000);
    app.messages.clear();
    QTest::mouseClick(child<QPushButton>(*screen, "btnBuyFactor"), Qt::LeftButton);
    EXPECT_EQ(child<AmountEdit>(*totals, "txtDiscount")->value(), 0);
    EXPECT_GE(app.messages.count(), 1);
}

}  // namespace
}  // namespace sandogh
