// The shop's reports against the hand-built shop of ReportShop, on every backend.

#include <gtest/gtest.h>

#include <tuple>

#include "ReportShop.h"
#include "reports/ShopReports.h"

namespace sandogh::test {
namespace {

using namespace reportfigures;

class ShopReportsTest : public ReportShop {
protected:
    static ReportFilter range(const char* from, const char* to) {
        ReportFilter f;
        f.from = QString::fromLatin1(from);
        f.to = QString::fromLatin1(to);
        return f;
    }
    static const Article* find(const QList<Article>& articles, const char* barcode) {
        for (const Article& a : articles) {
            if (a.barcode == QLatin1String(barcode)) {
                return &a;
            }
        }
        return nullptr;
    }
};

TEST_P(ShopReportsTest, EveryDayOfTheRangeIsARowAndReturnsLowerTheSales) {
    Session s = session();
    const auto days = ShopReports(s).days(range("1404/01/01", "1404/01/04"));
    ASSERT_TRUE(days);
    ASSERT_EQ(days->size(), 4);
    struct Want {
        const char* date;
        qint64 sales;
        double amount;
        double received;
        qint64 returns;
        double netAmount;
    };
    const Want want[] = {{"1404/01/01", 0, 0, 0, 0, 0},
                         {"1404/01/02", 2, 530, 500, 0, 530},
                         {"1404/01/03", 0, 0, 0, 0, 0},
                         {"1404/01/04", 0, 0, 0, 1, -150}};
    for (int i = 0; i < 4; ++i) {
        const Period& p = days->at(i);
        EXPECT_EQ(p.label, QLatin1String(want[i].date));
        EXPECT_EQ(p.salesCount, want[i].sales) << want[i].date;
        EXPECT_DOUBLE_EQ(p.salesAmount, want[i].amount) << want[i].date;
        EXPECT_DOUBLE_EQ(p.salesReceived, want[i].received) << want[i].date;
        EXPECT_EQ(p.returnsCount, want[i].returns) << want[i].date;
        EXPECT_DOUBLE_EQ(p.netAmount(), want[i].netAmount) << want[i].date;
    }
    const QList<Period> months = ShopReports::months(*days);
    ASSERT_EQ(months.size(), 1);
    EXPECT_EQ(months.first().label, QStringLiteral("1404/01"));
    EXPECT_DOUBLE_EQ(months.first().netAmount(), 380);
    EXPECT_DOUBLE_EQ(months.first().netReceived(), 350);
}

TEST_P(ShopReportsTest, FiltersByDeskShiftAndUser) {
    Session s = session();
    ReportFilter f = range("1404/01/01", "1404/01/31");
    f.stationId = 2;
    auto days = ShopReports(s).days(f);
    ASSERT_TRUE(days);
    EXPECT_EQ(days->size(), 31);
    EXPECT_DOUBLE_EQ(ShopReports::months(*days).first().netAmount(), 80);
    f.stationId.reset();
    f.shiftCode = 2;
    days = ShopReports(s).days(f);
    ASSERT_TRUE(days);
    EXPECT_DOUBLE_EQ(ShopReports::months(*days).first().salesAmount, 0);
    f.shiftCode.reset();
    f.userId = 0;  // the fixture's documents are saved by user 0
    days = ShopReports(s).days(f);
    ASSERT_TRUE(days);
    EXPECT_DOUBLE_EQ(ShopReports::months(*days).first().netAmount(), 380);
}

TEST_P(ShopReportsTest, ProfitIsSalesLessReturnsAtTheLandedCostOfPurchases) {
    Session s = session();
    const auto articles = ShopReports(s).articles(range("1404/01/01", "1404/01/05"));
    ASSERT_TRUE(articles);
    ASSERT_EQ(articles->size(), 2);
    const Article* a = find(*articles, "A");
    ASSERT_NE(a, nullptr);
    EXPECT_DOUBLE_EQ(a->quantity, 2);
    EXPECT_DOUBLE_EQ(a->amount, 300);
    EXPECT_NEAR(a->unitCost, 98.1, 1e-9);  // the purchase of the 6th is after the range
    EXPECT_NEAR(a->profit(), 103.8, 1e-9);
    const Article* b = find(*articles, "B");
    ASSERT_NE(b, nullptr);
    EXPECT_NEAR(b->profit(), 30, 1e-9);

    ReportFilter group = range("1404/01/01", "1404/01/05");
    group.goodsGroup = 2;
    const auto ofGroup = ShopReports(s).articles(group);
    ASSERT_TRUE(ofGroup);
    ASSERT_EQ(ofGroup->size(), 1);
    EXPECT_EQ(ofGroup->first().barcode, QStringLiteral("B"));
}

TEST_P(ShopReportsTest, StockAsOfAPastDateIgnoresLaterDocuments) {
    Session s = session();
    struct Case {
        const char* asOf;
        const char* today;
        double a;
        double b;
        double value;
    };
    // Today the later purchase counts, at the average landed cost of both purchases.
    const double todayCostA = (10 * 98.1 + 5 * 200) / 15.0;
    // 1404/01/04 is read up from the first documents when today is far, and back from the
    // stock now when today is the next day (the purchase of 1404/01/06 is then taken off).
    for (const Case& c : {Case{"1404/01/04", "1404/01/10", 8, 3, 8 * 98.1 + 150},
                          Case{"1404/01/01", "1404/01/10", 10, 4, 10 * 98.1 + 200},
                          Case{"1404/01/10", "1404/01/10", 13, 3, 13 * todayCostA + 150},
                          Case{"1404/01/04", "1404/01/30", 8, 3, 8 * 98.1 + 150},
                          Case{"1404/01/04", "1404/01/05", 8, 3, 8 * 98.1 + 150}}) {
        SCOPED_TRACE(std::string(c.asOf) + " today " + c.today);
        const auto lines =
            ShopReports(s).stock(QString::fromLatin1(c.asOf), QString::fromLatin1(c.today), {});
        ASSERT_TRUE(lines);
        ASSERT_EQ(lines->size(), 2);
        EXPECT_DOUBLE_EQ(lines->at(0).quantity, c.a);
        EXPECT_DOUBLE_EQ(lines->at(1).quantity, c.b);
        EXPECT_NEAR(lines->at(0).value() + lines->at(1).value(), c.value, 1e-6);
    }
}

TEST_P(ShopReportsTest, WholeMonthsReadFromTheirSumsAgreeWithTheLines) {
    // A purchase and a sale in 1403/12: the ranges below hold it and 1404/01 whole.
    document(1, QStringLiteral("1403/12/10"), {Line{QStringLiteral("A"), 2, 0, 0, 50, 0, 0}}, 100,
             0);
    document(2, QStringLiteral("1403/12/20"), {Line{QStringLiteral("A"), 1, 150, 150}}, 150, 150);
    Session s = session();
    ASSERT_TRUE(procedures::sp_StockRepair(s, {}));
    for (const char* from : {"1403/12/01", "1403/12/15"}) {
        ReportFilter f = range(from, "1404/01/31");
        const auto months = ShopReports(s).articles(f);
        f.userId = 0;  // a user is no part of the months' sums: every line is read
        const auto lines = ShopReports(s).articles(f);
        ASSERT_TRUE(months && lines);
        ASSERT_EQ(months->size(), lines->size());
        for (const Article& l : *lines) {
            const Article* m = find(*months, l.barcode.toLatin1().constData());
            ASSERT_NE(m, nullptr);
            EXPECT_DOUBLE_EQ(m->quantity, l.quantity) << from;
            EXPECT_DOUBLE_EQ(m->amount, l.amount) << from;
            EXPECT_NEAR(m->unitCost, l.unitCost, 1e-9) << from;
        }
    }
    const auto both = ShopReports(s).articles(range("1403/12/01", "1404/01/31"));
    ASSERT_TRUE(both);
    EXPECT_DOUBLE_EQ(find(*both, "A")->quantity, 1 + 3 - 1);
    EXPECT_NEAR(find(*both, "A")->unitCost, (2 * 50 + 10 * 98.1 + 5 * 200) / 17.0, 1e-9);
    // At the end of 1403/12 (back from now) and on 1404/01/04 (up from the months before).
    for (const auto& [asOf, a, b] :
         {std::tuple{"1403/12/30", 1.0, 0.0}, {"1404/01/04", 9.0, 3.0}}) {
        const auto stock =
            ShopReports(s).stock(QString::fromLatin1(asOf), QStringLiteral("1404/02/10"), {});
        ASSERT_TRUE(stock);
        EXPECT_DOUBLE_EQ(stock->at(0).quantity, a) << asOf;
        EXPECT_DOUBLE_EQ(stock->at(1).quantity, b) << asOf;
    }
}

TEST_P(ShopReportsTest, PaymentsByKindAddUpToTheReceivedTotal) {
    Session s = session();
    const auto p = ShopReports(s).payments(range("1404/01/01", "1404/01/05"));
    ASSERT_TRUE(p);
    EXPECT_DOUBLE_EQ(p->received, 350);
    EXPECT_DOUBLE_EQ(p->cash, -80);  // 50 + 20 taken, 150 paid back
    ASSERT_EQ(p->terminals.size(), 1);
    EXPECT_EQ(p->terminals.first().first, QStringLiteral("7001"));
    EXPECT_DOUBLE_EQ(p->terminals.first().second, 300);
    EXPECT_DOUBLE_EQ(p->giftCard, 100);
    EXPECT_DOUBLE_EQ(p->cheque, 30);
    EXPECT_DOUBLE_EQ(p->customerAccount, 30);
    EXPECT_DOUBLE_EQ(p->cash + p->terminals.first().second + p->giftCard + p->cheque, p->received);
}

TEST_P(ShopReportsTest, CashOfEachDeskAndShift) {
    Session s = session();
    const auto desks = ShopReports(s).desks(range("1404/01/01", "1404/01/05"));
    ASSERT_TRUE(desks);
    ASSERT_EQ(desks->size(), 2);
    EXPECT_EQ(desks->at(0).stationName, QStringLiteral("Desk 1"));
    EXPECT_EQ(desks->at(0).shiftName, QStringLiteral("Morning"));
    EXPECT_EQ(desks->at(0).salesCount, 1);
    EXPECT_EQ(desks->at(0).returnsCount, 1);
    EXPECT_DOUBLE_EQ(desks->at(0).cash, 300);
    EXPECT_DOUBLE_EQ(desks->at(1).cash, 50);
}

TEST(ShopReportsDates, RangeOverTheYearEndAndBadRanges) {
    const QStringList dates =
        ShopReports::datesOf(QStringLiteral("1403/12/29"), QStringLiteral("1404/01/02"));
    EXPECT_EQ(dates, (QStringList{QStringLiteral("1403/12/29"), QStringLiteral("1403/12/30"),
                                  QStringLiteral("1404/01/01"), QStringLiteral("1404/01/02")}));
    EXPECT_TRUE(
        ShopReports::datesOf(QStringLiteral("1404/01/02"), QStringLiteral("1404/01/01")).isEmpty());
    EXPECT_TRUE(
        ShopReports::datesOf(QStringLiteral("1404/13/01"), QStringLiteral("1404/01/01")).isEmpty());
}

SANDOGH_INSTANTIATE_BACKENDS(ShopReportsTest);

}  // namespace
}  // namespace sandogh::test
