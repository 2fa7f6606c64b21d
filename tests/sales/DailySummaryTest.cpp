// The day's summary of sales and returns and its once-a-day sending.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/DailySummary.h"

namespace sandogh::test {
namespace {

class DailySummaryTest : public SaleShopTest {
protected:
    static QString summary(int sales, const char* salesAmount, int returns,
                           const char* returnsAmount) {
        return QStringLiteral("%1%2%3%4\r\n%5%6%7%8")
            .arg(QStringLiteral("تعداد ف فروش: "), QString::number(sales),
                 QStringLiteral(" مبلغ فروش: "), QString::fromLatin1(salesAmount),
                 QStringLiteral("تعداد ف برگشتي: "), QString::number(returns),
                 QStringLiteral(" مبلغ برگشتي: "), QString::fromLatin1(returnsAmount));
    }
};

TEST_P(DailySummaryTest, CountsAndReceivedAmountsOfTheDaysSalesAndReturns) {
    const QString day = QStringLiteral("1404/01/01");
    // code, TransType, date, DocSum, ReceivedPrice
    addDocument(1, 2, QStringLiteral("1"), {}, 0, 0, day, 1, 120000, 100000);
    addDocument(2, 2, QStringLiteral("2"), {}, 0, 0, day, 2, 30500, 30500);  // another desk
    addDocument(3, 3, QStringLiteral("1"), {}, 0, 0, day, 1, 9000, 8000);
    addDocument(4, 2, QStringLiteral("3"), {}, 0, 0, QStringLiteral("1403/12/29"), 1, 777, 777);
    addDocument(5, 2, QStringLiteral("4"), {}, 0, 0, QStringLiteral("1404/01/02"), 1, 555, 555);
    addDocument(6, 1, QStringLiteral("1"), {}, 0, 0, day, 1, 5555, 5555);  // a purchase
    addDocument(7, 4, QStringLiteral("1"), {}, 0, 0, day, 1, 4444, 4444);  // a purchase return
    addDocument(8, 2, QStringLiteral("5"), {}, 0, 0, day, 1, 3333, 3333);  // an internal kind
    exec(QStringLiteral("UPDATE Whs_QTYDocH SET DocType = :t WHERE Code = :c"),
         {{QStringLiteral(":t"), 1}, {QStringLiteral(":c"), 8}});
    addDocument(9, 2, QStringLiteral("6"), {}, 0, 0, day, 1, 2000, 0);  // nothing received
    exec(QStringLiteral("UPDATE Whs_QTYDocH SET ReceivedPrice = NULL WHERE Code = :c"),
         {{QStringLiteral(":c"), 9}});

    const DailySummary::Figures f = DailySummary(db()).read(day);
    ASSERT_TRUE(f.ok);
    EXPECT_EQ(f.salesCount, 3);
    EXPECT_DOUBLE_EQ(f.salesAmount, 130500);  // ReceivedPrice, not the 152,500 of DocSum
    EXPECT_EQ(f.returnsCount, 1);
    EXPECT_DOUBLE_EQ(f.returnsAmount, 8000);
    EXPECT_EQ(DailySummary::text(f), summary(3, "130,500", 1, "8,000"));
}

TEST_P(DailySummaryTest, FailsWithoutFiguresWhenTheDocumentsCannotBeRead) {
    exec(QStringLiteral("ALTER TABLE Whs_QTYDocH RENAME TO Whs_QTYDocHAway"));
    const DailySummary::Figures f = DailySummary(db()).read(QStringLiteral("1404/01/01"));
    EXPECT_FALSE(f.ok);
    exec(QStringLiteral("ALTER TABLE Whs_QTYDocHAway RENAME TO Whs_QTYDocH"));
}

TEST_P(DailySummaryTest, GoesOutOnceADay) {
    EXPECT_TRUE(DailySummary::isDue(settings(), QStringLiteral("1404/01/01")));
    ASSERT_TRUE(DailySummary::markSent(settings(), QStringLiteral("1404/01/01")));
    EXPECT_FALSE(DailySummary::isDue(settings(), QStringLiteral("1404/01/01")));
    EXPECT_TRUE(DailySummary::isDue(settings(), QStringLiteral("1404/01/02")));
    EXPECT_EQ(settings().store().read(QStringLiteral("Shift"), QStringLiteral("LastDateSendSMS")),
              QStringLiteral("1404/01/01"));
}

SANDOGH_INSTANTIATE_BACKENDS(DailySummaryTest);

}  // namespace
}  // namespace sandogh::test
