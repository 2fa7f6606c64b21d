// The sale's kind of document, the keys it carries out itself or hands to SaleActions (and
// the keys that are none of the sale's), a new sale, and leaving with an unsaved sale.

#include <gtest/gtest.h>

#include "SaleDoubles.h"
#include "SaleShopTest.h"
#include "sales/SaleKeyDispatch.h"
#include "sales/SaleKeyMap.h"
#include "sales/SaleTexts.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

class SaleSessionTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        addGoods({QStringLiteral("1111"), 10000, 9, QStringLiteral("Tea")});
        addGoods({QStringLiteral("2222"), 5000, 0, QStringLiteral("Rice")});
        sale().setActions(&actions);
    }
    SaleKeyDispatch::Result key(int k, Qt::KeyboardModifiers m = Qt::NoModifier, int row = -1) {
        const std::optional<SaleKeyBinding> b = SaleKeyMap::lookup(k, m);
        EXPECT_TRUE(b.has_value());
        return b ? SaleKeyDispatch(sale(), settings()).execute(*b, row)
                 : SaleKeyDispatch::Result::Refused;
    }
    RecordingActions actions;
};

TEST_P(SaleSessionTest, KeysOfLaterStepsGoToTheActions) {
    setFlag("IsActivePoolDisplay", "Enable", true);
    RecordingDisplay display;
    sale().setDisplay(&display);
    sale().enterText(QStringLiteral("1111"));
    display.shown.clear();

    EXPECT_EQ(key(Qt::Key_F6), SaleKeyDispatch::Result::Done);
    EXPECT_EQ(actions.saves, 1);
    EXPECT_EQ(display.shown, QStringList{QStringLiteral("10,900")});  // once more before saving
    actions.saveAnswer = false;
    EXPECT_EQ(key(Qt::Key_Return, Qt::ControlModifier), SaleKeyDispatch::Result::Refused);
    EXPECT_EQ(key(Qt::Key_F5), SaleKeyDispatch::Result::Done);
    EXPECT_EQ(actions.pecPayments, 1);
    key(Qt::Key_F7);
    key(Qt::Key_F12);
    EXPECT_EQ(actions.handOffs,
              (QStringList{QStringLiteral("mnuPosMellat,"), QStringLiteral("mnuDamavandPsp,")}));
    EXPECT_TRUE(SaleKeyDispatch(sale(), settings()).openDrawer());
    EXPECT_EQ(actions.drawers, 1);
    EXPECT_TRUE(SaleKeyDispatch(sale(), settings()).choosePayment());
    EXPECT_EQ(actions.payments, 1);
    EXPECT_EQ(key(Qt::Key_L, Qt::ControlModifier), SaleKeyDispatch::Result::ForScreen);
}

TEST_P(SaleSessionTest, WithoutActionsTheirKeysAreRefused) {
    sale().setActions(nullptr);
    EXPECT_EQ(key(Qt::Key_F6), SaleKeyDispatch::Result::Refused);
    EXPECT_EQ(key(Qt::Key_F8), SaleKeyDispatch::Result::Refused);
    EXPECT_FALSE(SaleKeyDispatch(sale(), settings()).openDrawer());
    setFlag("IsKeyboardRFID", "Enable", true);
    EXPECT_FALSE(sale().enterText(QStringLiteral("0000000012")).clearBox);
}

TEST_P(SaleSessionTest, DeleteAndQuantityChangeRewriteTheLinesAndTotal) {
    sale().enterText(QStringLiteral("1111"));
    sale().enterText(QStringLiteral("2222"));
    EXPECT_TRUE(sale().changeQuantity(0, 3));
    EXPECT_EQ(sale().ChangedRowNo(), 0);
    EXPECT_DOUBLE_EQ(sale().ChangedRowQTY(), 3);
    EXPECT_DOUBLE_EQ(sale().total(), 32700 + 5000);
    EXPECT_FALSE(sale().changeQuantity(2, 1));
    EXPECT_FALSE(sale().changeQuantity(0, 0));
    EXPECT_EQ(key(Qt::Key_D, Qt::ControlModifier, 0), SaleKeyDispatch::Result::Done);
    EXPECT_EQ(key(Qt::Key_D, Qt::ControlModifier, 4), SaleKeyDispatch::Result::Refused);
    ASSERT_EQ(sale().lines().size(), 1);
    EXPECT_DOUBLE_EQ(sale().total(), 5000);
}

TEST_P(SaleSessionTest, TheDailyTotalsKeyWaitsForItsSetting) {
    EXPECT_EQ(key(Qt::Key_T, Qt::ControlModifier), SaleKeyDispatch::Result::Refused);
    setOption("Cash", "DisplayDailySale", QStringLiteral("1"));
    EXPECT_EQ(key(Qt::Key_T, Qt::ControlModifier), SaleKeyDispatch::Result::ForScreen);
}

TEST_P(SaleSessionTest, EscapeStartsANewSaleOfTheDefaultKind) {
    ASSERT_TRUE(sale().selectCustomer(0) == false);
    sale().setCustomer(SaleCustomer{5, QStringLiteral("C5"), QStringLiteral("Ali")});
    sale().setMode(SaleMode::Return);
    sale().enterText(QStringLiteral("1111"));
    EXPECT_EQ(key(Qt::Key_Escape), SaleKeyDispatch::Result::Done);
    EXPECT_TRUE(sale().isEmpty());
    EXPECT_EQ(sale().CompanyId(), 0);
    EXPECT_EQ(sale().Barcode(), QString());
    EXPECT_EQ(sale().mode(), SaleMode::Sale);
    EXPECT_EQ(sale().salesType(), SaleSession::kFirstSalesType);
}

TEST_P(SaleSessionTest, LeavingAnUnsavedSaleAsksFirst) {
    EXPECT_TRUE(sale().confirmLeave());
    EXPECT_EQ(messages().count(), 0);
    sale().enterText(QStringLiteral("1111"));
    messages().queueAnswer(false);
    EXPECT_FALSE(sale().confirmLeave());
    messages().queueAnswer(true);
    EXPECT_TRUE(sale().confirmLeave());
    EXPECT_EQ(messages().countOf(SaleTexts::unsavedSale()), 2);
}

TEST_P(SaleSessionTest, TheSaleDateIsTodayFromTheClockUnlessSet) {
    EXPECT_EQ(sale().saleDate(), QStringLiteral("1404/01/01"));
    clock().set(QDateTime(QDate(2025, 3, 25), QTime(8, 0)));
    EXPECT_EQ(sale().saleDate(), QStringLiteral("1404/01/05"));
    sale().setSaleDate(QStringLiteral("1403/12/20"));
    EXPECT_EQ(sale().saleDate(), QStringLiteral("1403/12/20"));
}

SANDOGH_INSTANTIATE_BACKENDS(SaleSessionTest);

TEST(SaleKeyMap, OtherModifiersAndPlainLettersAreNotTheSalesKeys) {
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_D, Qt::NoModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_F6, Qt::AltModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_Return, Qt::NoModifier));
}

}  // namespace
}  // namespace sandogh::test
