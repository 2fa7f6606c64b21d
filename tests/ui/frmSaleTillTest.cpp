// What the cashier meets at the till beyond ringing up: the goods search, digits as a
// Persian keyboard layout sends them, and an entry that matches nothing.

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include "DialogDriver.h"
#include "SaleScreenTest.h"
#include "TypeText.h"
#include "sales/SaleSession.h"
#include "sales/SaleTexts.h"
#include "ui/sales/frmGoodsSearch.h"
#include "ui/sales/frmSale.h"

namespace sandogh::test {
namespace {

class frmSaleTillTest : public SaleScreenTest {
protected:
    void SetUp() override {
        SaleScreenTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        addGoods({QStringLiteral("6260001"), 48000, 0, QStringLiteral("چای سبز ممتاز گلستان")});
        addGoods({QStringLiteral("6260002"), 52000, 0, QStringLiteral("چای سیاه شکسته")});
        addGoods({QStringLiteral("6260003"), 99000, 0, QStringLiteral("برنج هاشمی")});
    }

    // Opens the search with the key, types into it and acts on it; the names it listed.
    QStringList searchWith(const std::function<void()> open, const QString& typed,
                           const std::function<void(frmGoodsSearch*)>& act) {
        QStringList listed;
        DialogDriver driver(QStringLiteral("frmGoodsSearch"), [&](QWidget* dialog) {
            auto* search = qobject_cast<frmGoodsSearch*>(dialog);
            typeText(child<QLineEdit>(*search, "txtSearch"), typed);
            for (int r = 0; r < child<QTableWidget>(*search, "grdGoods")->rowCount(); ++r) {
                listed << child<QTableWidget>(*search, "grdGoods")->item(r, 1)->text();
            }
            act(search);
        });
        open();
        return listed;
    }
};

// What a search finds is the goods search's (tested under data); the screen opens it with
// Ctrl+L or its button, Enter adds the chosen article, the arrows choose, Escape adds nothing.
TEST_F(frmSaleTillTest, TheGoodsSearchOpensByKeyOrButtonAndEnterAddsTheChosenArticle) {
    openScreen();
    QStringList listed =
        searchWith([this] { press(Qt::Key_L, Qt::ControlModifier); }, QStringLiteral("ممتاز"),
                   [](frmGoodsSearch* s) {
                       QTest::keyClick(child<QLineEdit>(*s, "txtSearch"), Qt::Key_Return);
                   });
    EXPECT_EQ(listed, QStringList{QStringLiteral("چای سبز ممتاز گلستان")});
    ASSERT_EQ(lineCount(), 1);
    EXPECT_TRUE(barcodeHasFocus());

    listed = searchWith(
        [this] {
            QTest::mouseClick(child<QPushButton>(screen(), "btnBarcodeSearch"), Qt::LeftButton);
        },
        QStringLiteral("چای"),
        [](frmGoodsSearch* s) {
            QTest::keyClick(child<QLineEdit>(*s, "txtSearch"), Qt::Key_Down);
            QTest::keyClick(child<QLineEdit>(*s, "txtSearch"), Qt::Key_Enter);
        });
    EXPECT_EQ(listed.size(), 2);
    ASSERT_EQ(lineCount(), 2);
    EXPECT_EQ(screen().session().linesModel().line(1).barcode, QStringLiteral("6260002"));

    searchWith([this] { press(Qt::Key_L, Qt::ControlModifier); }, QStringLiteral("برنج"),
               [](frmGoodsSearch* s) {
                   QTest::keyClick(child<QLineEdit>(*s, "txtSearch"), Qt::Key_Escape);
               });
    EXPECT_EQ(lineCount(), 2);
    EXPECT_TRUE(barcodeHasFocus());
}

TEST_F(frmSaleTillTest, PersianDigitsFromTheScannerFindTheBarcode) {
    openScreen();
    // As a scanner on a Persian keyboard layout types them.
    for (const QString& typed : {QStringLiteral("۶۲۶۰۰۰۱"), QStringLiteral("٦٢٦٠٠٠٣")}) {
        typeText(child<QLineEdit>(screen(), "txtBarcode"), typed);
        QTest::keyClick(child<QLineEdit>(screen(), "txtBarcode"), Qt::Key_Return);
    }
    ASSERT_EQ(lineCount(), 2);
    EXPECT_EQ(screen().session().linesModel().line(0).barcode, QStringLiteral("6260001"));
    EXPECT_EQ(screen().session().linesModel().line(1).barcode, QStringLiteral("6260003"));
    EXPECT_TRUE(child<QLabel>(screen(), "lblBarcodeStatus")->text().isEmpty());
}

TEST_F(frmSaleTillTest, AnUnknownBarcodeIsToldInTheRedLineWithoutADialog) {
    openScreen();
    scan(QStringLiteral("6260001"));
    scan(QStringLiteral("9999999"));
    EXPECT_EQ(lineCount(), 1);
    EXPECT_EQ(messages().count(), 0);
    const QString status = child<QLabel>(screen(), "lblBarcodeStatus")->text();
    EXPECT_TRUE(status.startsWith(SaleTexts::goodsNotFound())) << status.toStdString();
    EXPECT_TRUE(status.endsWith(QStringLiteral("9999999"))) << status.toStdString();
    EXPECT_TRUE(child<QLineEdit>(screen(), "txtBarcode")->text().isEmpty());
    // The next scan goes on at once and clears the line.
    scan(QStringLiteral("6260003"));
    EXPECT_EQ(lineCount(), 2);
    EXPECT_TRUE(child<QLabel>(screen(), "lblBarcodeStatus")->text().isEmpty());
}

}  // namespace
}  // namespace sandogh::test
