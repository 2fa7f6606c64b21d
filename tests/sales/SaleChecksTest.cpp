// The checks the save runs on the lines, each only while its option is on.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/SaleChecks.h"
#include "sales/SaleSaveChecks.h"
#include "sales/SaleTexts.h"

namespace sandogh::test {
namespace {

const QString kTea = QStringLiteral("1111");
const QString kRice = QStringLiteral("2222");

class SaleChecksTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        addGoods({kTea, 10000, 0, QStringLiteral("Tea")});
        addGoods({kRice, 5000, 0, QStringLiteral("Rice")});
        addDocument(1, 1, QStringLiteral("1"), kTea, 5, 8000, QStringLiteral("1403/12/01"), 0, 0, 0,
                    1);
        addDocument(2, 1, QStringLiteral("2"), kRice, 4, 4000, QStringLiteral("1403/12/02"), 0, 0,
                    0, 2);
        addDocument(3, 1, QStringLiteral("3"), kRice, 2, 5200, QStringLiteral("1403/12/03"), 0, 0,
                    0, 2);
    }
    void ring(const QString& barcode, double qty) {
        sale().enterText(barcode);
        if (qty != 1) {
            sale().enterText(QString::number(qty));
        }
    }
    // The line checks of the save, the first refused row kept in failedRow.
    bool linesPass() {
        SaleSaveChecks checks(db(), settings(), messages());
        const bool ok = checks.lines(sale()) == SaleSaveCheck::None;
        failedRow = checks.failedRow();
        return ok;
    }
    int failedRow = -1;
};

TEST_P(SaleChecksTest, TheStockCheckStopsALineAboveTheChosenWarehousesQuantity) {
    setFlag("IsExistQty", "Enable", true);
    ring(kTea, 5);
    ring(kRice, 7);  // 6 on hand
    EXPECT_FALSE(linesPass());
    EXPECT_EQ(failedRow, 1);
    EXPECT_EQ(messages().countOf(SaleTexts::quantityNotAllowed()), 1);

    sale().changeQuantity(1, 6);
    EXPECT_TRUE(linesPass());
    EXPECT_EQ(failedRow, -1);
    // Only the chosen warehouse counts: the tea is in warehouse 1, the rice in 2.
    sale().setWarehouse(QStringLiteral("1"));
    EXPECT_FALSE(linesPass());
    EXPECT_EQ(failedRow, 1);
    sale().setWarehouse(QStringLiteral("2"));
    EXPECT_FALSE(linesPass());
    EXPECT_EQ(failedRow, 0);
}

TEST_P(SaleChecksTest, TheStockCheckSkipsFlaggedLinesReturnsAndAnOptionOff) {
    ring(kTea, 50);
    EXPECT_TRUE(linesPass());  // option off
    setFlag("IsExistQty", "Enable", true);
    sale().setMode(SaleMode::Return);
    EXPECT_TRUE(linesPass());
    sale().setMode(SaleMode::Sale);
    EXPECT_FALSE(linesPass());

    sale().newSale();
    sale().addLine(SaleLine{QStringLiteral("9999"), {}, 3, 100, 0, 0, 0, {}, 0, 1, -1});
    EXPECT_TRUE(linesPass());
}

TEST_P(SaleChecksTest, APriceBelowTheLastPurchaseBlocksSavingWhileItsOptionIsOn) {
    ring(kTea, 1);
    ring(kRice, 1);  // 5000 against the last purchase at 5200
    EXPECT_TRUE(linesPass());
    EXPECT_EQ(messages().count(), 0);
    setFlag("SaleSetting", "BuySalePriceChecking", true);
    EXPECT_FALSE(linesPass());
    EXPECT_EQ(failedRow, 1);
    EXPECT_EQ(messages().countOf(SaleTexts::belowPurchasePrice()), 1);

    SaleLine rice = sale().lines().at(1);
    rice.unitPrice = 5200;
    sale().removeLine(1);
    sale().addLine(rice);
    EXPECT_TRUE(linesPass());
}

TEST_P(SaleChecksTest, LockedGoodsAreCheckedOverAllTheirLines) {
    setOption("SaleOptions", "NoMerge", QStringLiteral("1"));
    ring(kTea, 1);
    ring(kTea, 1);
    addLock(kTea, 4);  // 5 on hand, 1 saleable, 2 on the lines
    setFlag("SaleSetting", "ItemLock", true);
    EXPECT_FALSE(linesPass());
    EXPECT_EQ(messages().countOf(SaleChecks::lockedMessage(4, 1)), 1);
    sale().removeLine(1);
    EXPECT_TRUE(linesPass());
}

SANDOGH_INSTANTIATE_BACKENDS(SaleChecksTest);

}  // namespace
}  // namespace sandogh::test
