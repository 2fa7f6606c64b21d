// The customer search in its four ways, moving in the results, and the customer summary.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/CustomerSearch.h"
#include "sales/CustomerSummary.h"
#include "sales/SaleTexts.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

class CustomerSearchTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        insert("tblCustomerGroup (Code, Name, Color, DiscountPercent)", {1, "Gold", 255, 5});
        customer(101, 10, "C-1", "Reza", "Karimi", "021-4455", "", "0912111", 1);
        customer(102, 11, "C-2", "Sara", "Ahmadi", "", "031-4455", "0935222", 0);
        customer(103, 10, "C-3", "Reza", "Moradi", "", "", "0912333", 0);
        customer(104, 61, "U-1", "Reza", "Karimi", "", "", "0912444", 0);  // not a customer
    }
    void customer(int counter, int typeNo, const char* code, const char* name, const char* family,
                  const char* tel, const char* tel3, const char* mobile, int group) {
        insert(
            "Types (Counter, TypeNo, Code, Name, Value1, Value2, Value3, Value5, CstGrpCode, "
            "Account)",
            {counter, typeNo, code, name, family, tel, tel3, mobile,
             group == 0 ? QVariant() : QVariant(group), 9000 + counter});
    }
    QList<int> found(CustomerSearch::Mode mode, const char* text) {
        CustomerSearch search(db());
        search.search(mode, QString::fromLatin1(text));
        QList<int> counters;
        for (const SaleCustomer& c : search.results()) {
            counters << c.counter;
        }
        std::sort(counters.begin(), counters.end());
        return counters;
    }
};

TEST_P(CustomerSearchTest, FindsByEachWay) {
    using Mode = CustomerSearch::Mode;
    EXPECT_EQ(found(Mode::Telephone, "4455"), (QList<int>{101, 102}));  // Value2 or Value3
    EXPECT_EQ(found(Mode::Mobile, "0912"), (QList<int>{101, 103}));
    EXPECT_EQ(found(Mode::NameFamily, "Reza K"), (QList<int>{101}));
    EXPECT_EQ(found(Mode::NameFamily, "Reza"), (QList<int>{101, 103}));
    EXPECT_EQ(found(Mode::Code, "C-2"), (QList<int>{102}));
    EXPECT_EQ(found(Mode::Code, "C"), QList<int>{});
}

TEST_P(CustomerSearchTest, ACustomerComesWithItsGroup) {
    CustomerSearch search(db());
    ASSERT_EQ(search.search(CustomerSearch::Mode::Code, QStringLiteral("C-1")), 1);
    const SaleCustomer c = search.current();
    EXPECT_EQ(c.counter, 101);
    EXPECT_EQ(c.displayName(), QStringLiteral("Reza Karimi"));
    EXPECT_EQ(c.account, 9101);
    EXPECT_DOUBLE_EQ(c.discountPercent, 5);
    EXPECT_EQ(c.color, 255);
    EXPECT_EQ(c.groupName, QStringLiteral("Gold"));
    EXPECT_EQ(search.byCounter(102).groupName, QString());
    EXPECT_FALSE(search.byCounter(104).isValid());
}

TEST_P(CustomerSearchTest, TheArrowKeysMoveInTheResults) {
    CustomerSearch search(db());
    ASSERT_EQ(search.search(CustomerSearch::Mode::Mobile, QStringLiteral("09")), 3);
    EXPECT_EQ(search.currentIndex(), 0);
    EXPECT_FALSE(search.previous());
    EXPECT_TRUE(search.next());
    EXPECT_TRUE(search.next());
    EXPECT_FALSE(search.next());
    EXPECT_EQ(search.currentIndex(), 2);
    EXPECT_TRUE(search.previous());
    EXPECT_EQ(search.current().counter, search.results().at(1).counter);
    EXPECT_EQ(search.search(CustomerSearch::Mode::Mobile, QStringLiteral("777")), 0);
    EXPECT_EQ(search.currentIndex(), -1);
    EXPECT_FALSE(search.current().isValid());
}

TEST_P(CustomerSearchTest, TheSaleKeepsTheChosenCustomer) {
    EXPECT_TRUE(sale().selectCustomer(101));
    EXPECT_EQ(sale().CompanyId(), 101);
    EXPECT_EQ(sale().CompanyName(), QStringLiteral("Reza Karimi"));
    EXPECT_DOUBLE_EQ(sale().customer().discountPercent, 5);
    EXPECT_FALSE(sale().selectCustomer(104));
    EXPECT_EQ(sale().CompanyId(), 101);
}

TEST_P(CustomerSearchTest, TheSummaryCountsPurchasesAndTheBalance) {
    addDocument(1, 2, QStringLiteral("1"), {}, 0, 0, QStringLiteral("1404/01/01"), 0, 50000, 30000);
    addDocument(2, 2, QStringLiteral("2"), {}, 0, 0, QStringLiteral("1404/01/01"), 0, 20000, 20000);
    addDocument(3, 3, QStringLiteral("1"), {}, 0, 0, QStringLiteral("1404/01/01"), 0, 5000, 0);
    exec(QStringLiteral("UPDATE Whs_QTYDocH SET CompanyID = 101"));
    const CustomerSummary::Figures f =
        CustomerSummary(db()).figures(101, QStringLiteral("Reza Karimi"));
    EXPECT_EQ(f.purchaseCount, 2);
    EXPECT_DOUBLE_EQ(f.balance, 70000 - 50000 - 5000);
    EXPECT_DOUBLE_EQ(f.netSales, 70000 - 5000);
    EXPECT_EQ(CustomerSummary::lines(f),
              (QStringList{SaleTexts::customerName() + QStringLiteral("Reza Karimi"),
                           SaleTexts::customerPurchaseCount() + QStringLiteral("2"),
                           SaleTexts::customerBalance() + QStringLiteral("15,000"),
                           SaleTexts::customerNetSales() + QStringLiteral("65,000")}));
}

SANDOGH_INSTANTIATE_BACKENDS(CustomerSearchTest);

}  // namespace
}  // namespace sandogh::test
