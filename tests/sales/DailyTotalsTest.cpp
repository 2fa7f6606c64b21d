// The day's totals of a cash desk, and the favourites grid.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/DailyTotals.h"
#include "sales/FavouriteGoods.h"
#include "sales/SaleTexts.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

class DailyTotalsTest : public SaleShopTest {};

TEST_P(DailyTotalsTest, AreTheDaysSalesAndReturnsOfThisStation) {
    const QString today = QStringLiteral("1404/01/01");
    addDocument(1, 2, QStringLiteral("1"), {}, 0, 0, today, 1, 120000, 100000);
    addDocument(2, 2, QStringLiteral("2"), {}, 0, 0, today, 1, 30500, 30500);
    addDocument(3, 3, QStringLiteral("1"), {}, 0, 0, today, 1, 8000, 8000);
    addDocument(4, 2, QStringLiteral("3"), {}, 0, 0, today, 2, 999, 999);  // another desk
    addDocument(5, 2, QStringLiteral("4"), {}, 0, 0, QStringLiteral("1403/12/29"), 1, 777, 777);
    addDocument(6, 1, QStringLiteral("1"), {}, 0, 0, today, 1, 5555, 5555);  // a purchase

    const DailyTotals::Figures f = DailyTotals(db()).read(1, today);
    EXPECT_TRUE(f.ok);
    EXPECT_DOUBLE_EQ(f.salesSum, 150500);
    EXPECT_DOUBLE_EQ(f.salesReceived, 130500);
    EXPECT_DOUBLE_EQ(f.returnsSum, 8000);
    EXPECT_DOUBLE_EQ(f.returnsReceived, 8000);
    EXPECT_EQ(DailyTotals::salesLabel(f), SaleTexts::dailySales() + QStringLiteral("150,500"));
    EXPECT_EQ(DailyTotals::receivedLabel(f),
              SaleTexts::dailyReceived() + QStringLiteral("130,500"));

    const DailyTotals::Figures other = DailyTotals(db()).read(2, today);
    EXPECT_DOUBLE_EQ(other.salesSum, 999);
    EXPECT_DOUBLE_EQ(other.returnsSum, 0);
    EXPECT_DOUBLE_EQ(DailyTotals(db()).read(3, today).salesSum, 0);
}

TEST_P(DailyTotalsTest, FavouritesAreTheActiveGoodsOfATabInTheChosenOrder) {
    exec(
        QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost, Pic, ISActive, ISFavorite, "
                       "FavoriteTab) VALUES ('3', 'Bread', 300, 'b.png', 1, 1, 1), "
                       "('1', 'Milk', 900, NULL, 1, 1, 1), ('2', 'Apple', 500, NULL, 1, 1, 1), "
                       "('4', 'Old', 100, NULL, 0, 1, 1), ('5', 'Nuts', 100, NULL, 1, 1, 2), "
                       "('6', 'Salt', 100, NULL, 1, 0, 1)"));
    FavouriteGoods favourites(db(), settings());
    const auto barcodes = [](const QList<FavouriteGoods::Item>& items) {
        QStringList list;
        for (const auto& i : items) {
            list << i.barcode;
        }
        return list;
    };
    const QList<FavouriteGoods::Item> byName = favourites.list(1);
    EXPECT_EQ(barcodes(byName),
              (QStringList{QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));
    EXPECT_EQ(byName.at(1).picture, QStringLiteral("b.png"));
    EXPECT_EQ(barcodes(favourites.list(1, FavouriteGoods::Order::Cost)),
              (QStringList{QStringLiteral("3"), QStringLiteral("2"), QStringLiteral("1")}));
    EXPECT_EQ(barcodes(favourites.list(2, FavouriteGoods::Order::Barcode)),
              QStringList{QStringLiteral("5")});

    EXPECT_TRUE(favourites.saveColumnOrder(QStringLiteral("2,0,1")));
    EXPECT_EQ(favourites.columnOrder(), QStringLiteral("2,0,1"));
    EXPECT_EQ(
        settings().store().read(QStringLiteral("Tools"), QStringLiteral("frmSaledgGoodsColOrder")),
        QStringLiteral("2,0,1"));
}

SANDOGH_INSTANTIATE_BACKENDS(DailyTotalsTest);

}  // namespace
}  // namespace sandogh::test
