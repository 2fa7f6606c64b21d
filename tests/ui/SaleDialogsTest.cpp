// The small dialogs of the sale screen, alone and as the sale opens them.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include "DialogDriver.h"
#include "SaleScreenTest.h"
#include "sales/SaleLine.h"
#include "sales/SaleSession.h"
#include "ui/sales/frmAskQty.h"
#include "ui/sales/frmChangeQty.h"
#include "ui/sales/frmSale.h"
#include "ui/sales/frmSelectPrice.h"
#include "ui/sales/frmUserSelect.h"

namespace sandogh::test {
namespace {

void typeInto(QWidget* dialog, const char* box, const QString& text) {
    auto* edit = dialog->findChild<QLineEdit*>(QString::fromLatin1(box));
    ASSERT_NE(edit, nullptr);
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

struct QuantityCase {
    const char* typed;
    bool accepted;
    double quantity;
};

class frmAskQtyTest : public ::testing::TestWithParam<QuantityCase> {};

TEST_P(frmAskQtyTest, TakesOnlyAQuantityAboveZero) {
    frmAskQty dialog;
    dialog.prepare(QStringLiteral("6262001"), QStringLiteral("پنیر"));
    auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("txtQty"));
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), QStringLiteral("1"));
    EXPECT_TRUE(box->hasSelectedText());

    box->setText(QString::fromLatin1(GetParam().typed));

    const std::optional<double> qty = dialog.quantity();
    ASSERT_EQ(qty.has_value(), GetParam().accepted);
    if (qty) {
        EXPECT_DOUBLE_EQ(*qty, GetParam().quantity);
    }
}

INSTANTIATE_TEST_SUITE_P(Typed, frmAskQtyTest,
                         ::testing::Values(QuantityCase{"3", true, 3},
                                           QuantityCase{"1.250", true, 1.25},
                                           QuantityCase{"1,200", true, 1200},
                                           QuantityCase{"0", false, 0},
                                           QuantityCase{"", false, 0}));

TEST(frmSelectPriceTest, ListsThePricesAndReturnsTheChosenOne) {
    frmSelectPrice dialog;
    dialog.prepare(PriceChoice{QStringLiteral("6262002"), 0, 1, {12000, 11500, 9800}});
    auto* list = dialog.findChild<QListWidget*>(QStringLiteral("lstPrices"));
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->count(), 3);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("12,000"));
    EXPECT_EQ(list->item(2)->text(), QStringLiteral("9,800"));
    EXPECT_EQ(dialog.chosenPrice(), std::optional<double>(12000));

    list->setCurrentRow(2);
    EXPECT_EQ(dialog.chosenPrice(), std::optional<double>(9800));

    dialog.prepare(PriceChoice{QStringLiteral("6262003"), 0, 1, {}});
    EXPECT_FALSE(dialog.chosenPrice().has_value());
}

TEST(frmUserSelectTest, NoSellersNoQuestion) {
    frmUserSelect dialog;
    EXPECT_FALSE(dialog.chooseSeller().has_value());
    EXPECT_FALSE(dialog.isVisible());
}

class SaleDialogsOnScreenTest : public SaleScreenTest {};

TEST_F(SaleDialogsOnScreenTest, QuantityIsAskedForAnArticleThatAsks) {
    ShopGoods cheese{QStringLiteral("6262010"), 40000};
    cheese.asksQuantity = true;
    addGoods(cheese);
    openScreen();

    {
        DialogDriver typeThree(QStringLiteral("frmAskQty"),
                               [](QWidget* d) { typeInto(d, "txtQty", QStringLiteral("3")); });
        scan(QStringLiteral("6262010"));
    }
    ASSERT_EQ(lineCount(), 1);
    EXPECT_DOUBLE_EQ(quantityOf(0), 3);
    EXPECT_EQ(totalShown(), QStringLiteral("120,000"));

    {
        DialogDriver cancel(QStringLiteral("frmAskQty"),
                            [](QWidget* d) { QTest::keyClick(d, Qt::Key_Escape); });
        scan(QStringLiteral("6262010"));
    }
    EXPECT_DOUBLE_EQ(quantityOf(0), 3);
    EXPECT_TRUE(barcodeHasFocus());
}

TEST_F(SaleDialogsOnScreenTest, PriceIsChosenWhenTheArticleHasSeveral) {
    setOption("IsMorePrice", "Enable", QStringLiteral("1"));
    addGoods({QStringLiteral("6262011"), 12000, 0, QStringLiteral("قهوه"), 10500});
    openScreen();

    DialogDriver choose(QStringLiteral("frmSelectPrice"), [](QWidget* d) {
        auto* list = d->findChild<QListWidget*>(QStringLiteral("lstPrices"));
        ASSERT_NE(list, nullptr);
        ASSERT_EQ(list->count(), 2);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
    });
    scan(QStringLiteral("6262011"));

    ASSERT_EQ(lineCount(), 1);
    EXPECT_DOUBLE_EQ(unitPriceOf(0), 10500);
}

}  // namespace
}  // namespace sandogh::test
