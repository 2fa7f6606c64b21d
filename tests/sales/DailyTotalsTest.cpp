// The day's totals of a cash desk and of the whole shop (the summary sent once a day), and
// the favourites grid.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/DailySummary.h"
#include "sales/DailyTotals.h"
#include "sales/FavouriteGoods.h"
#include "sales/SaleTexts.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

class DailyTotalsTest : public SaleShopTest {};

TEST_P(DailyTotalsTest, AreTheDaysSalesAndReturnsOfADeskAndOfTheShop) {
    const QString today = QStringLiteral("1404/01/01");
    // code, TransType, docNo, date, station, DocSum, ReceivedPrice
    addDocument(1, 2, QStringLiteral("1"), {}, 0, 0, today, 1, 120000, 100000);
    addDocument(2, 2, QStringLiteral("2"), {}, 0, 0, today, 1, 30500, 30500);
    addDocument(3, 3, QStringLiteral("1"), {}, 0, 0, today, 1, 9000, 8000);
    addDocument(4, 2, QStringLiteral("3"), {}, 0, 0, today, 2, 999, 999);  // another desk
    addDocument(5, 2, QStringLiteral("4"), {}, 0, 0, QStringLiteral("1403/12/29"), 1, 777, 777);
    addDocument(6, 2, QStringLiteral("5"), {}, 0, 0, QStringLiteral("1404/01/02"), 1, 555, 555);
    addDocument(7, 1, QStringLiteral("1"), {}, 0, 0, today, 1, 5555, 5555);  // a purchase
    addDocument(8, 4, QStringLiteral("1"), {}, 0, 0, today, 1, 4444, 4444);  // a purchase return
    addDocument(9, 2, QStringLiteral("6"), {}, 0, 0, today, 0, 3333, 3333);  // another origin
    exec(QStringLiteral("UPDATE Whs_QTYDocH SET DocType = 1 WHERE Code = 9"));
    addDocument(10, 2, QStringLiteral("7"), {}, 0, 0, today, 2, 2000, 0);  // nothing received
    exec(QStringLiteral("UPDATE Whs_QTYDocH SET ReceivedPrice = NULL WHERE Code = 10"));

    const DailyTotals::Figures f = DailyTotals(db()).read(1, today);
    EXPECT_TRUE(f.ok);
    EXPECT_DOUBLE_EQ(f.salesSum, 150500);
    EXPECT_DOUBLE_EQ(f.salesReceived, 130500);
    EXPECT_DOUBLE_EQ(f.returnsSum, 9000);
    EXPECT_DOUBLE_EQ(f.returnsReceived, 8000);
    EXPECT_EQ(DailyTotals::salesLabel(f), SaleTexts::dailySales() + QStringLiteral("150,500"));
    EXPECT_EQ(DailyTotals::receivedLabel(f),
              SaleTexts::dailyReceived() + QStringLiteral("130,500"));
    const DailyTotals::Figures other = DailyTotals(db()).read(2, today);
    EXPECT_DOUBLE_EQ(other.salesSum, 2999);
    EXPECT_DOUBLE_EQ(other.salesReceived, 999);
    EXPECT_DOUBLE_EQ(other.returnsSum, 0);
    EXPECT_DOUBLE_EQ(DailyTotals(db()).read(3, today).salesSum, 0);

    // The shop's day counts every desk, and the amounts received rather than DocSum.
    const DailySummary::Figures shop = DailySummary(db()).read(today);
    ASSERT_TRUE(shop.ok);
    EXPECT_EQ(shop.salesCount, 4);
    EXPECT_DOUBLE_EQ(shop.salesAmount, 131499);
    EXPECT_EQ(shop.returnsCount, 1);
    EXPECT_DOUBLE_EQ(shop.returnsAmount, 8000);
    EXPECT_EQ(DailySummary::text(shop),
              QStringLiteral("تعداد ف فروش: 4 مبلغ فروش: 131,499\r\nتعداد ف برگشتي: 1 مبلغ برگشتي: "
                             "8,000"));
}

TEST_P(DailyTotalsTest, TheSummaryFailsWithoutFiguresWhenTheDocumentsCannotBeRead) {
    exec(QStringLiteral("ALTER TABLE Whs_QTYDocH RENAME TO Whs_QTYDocHAway"));
    const DailySummary::Figures f = DailySummary(db()).read(QStringLiteral("1404/01/01"));
    EXPECT_FALSE(f.ok);
    exec(QStringLiteral("ALTER TABLE Whs_QTYDocHAway RENAME TO Whs_QTYDocH"));
}

TEST_P(DailyTotalsTest, TheSummaryGoesOutOnceADay) {
    EXPECT_TRUE(DailySummary::isDue(settings(), QStringLiteral("1404/01/01")));
    ASSERT_TRUE(DailySummary::markSent(settings(), QStringLiteral("1404/01/01")));
    EXPECT_FALSE(DailySummary::isDue(settings(), QStringLiteral("1404/01/01")));
    EXPECT_TRUE(DailySummary::isDue(settings(), QStringLiteral("1404/01/02")));
    EXPECT_EQ(settings().store().read(QStringLiteral("Shift"), QStringLiteral("LastDateSendSMS")),
              QStringLiteral("1404/01/01"));
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
