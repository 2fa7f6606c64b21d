// Weighed tickets read from the scale vendors' tables: MizanNet by the ticket key of
// today's date, OnlineSales by today's short Jalali date, receipt and scale; and the keys
// under which the scales keep their tickets.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "data/schema/ShopSchema.h"
#include "sales/ScaleTicket.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

class WeighedTicket : public SaleShopTest {
protected:
    void SetUpShop() override {
        setOption("ScaleTicket", "Prefix", QStringLiteral("2"));
        TestGoods cheese{QStringLiteral("501"), 400000, 9, QStringLiteral("Cheese")};
        cheese.type = 1;  // weighed: the scale sends grams
        cheese.specCode = QStringLiteral("31");
        addGoods(cheese);
        TestGoods eggs{QStringLiteral("502"), 30000, 0, QStringLiteral("Eggs")};
        eggs.specCode = QStringLiteral("32");
        addGoods(eggs);
    }
    void mizanLine(const QString& key, qint64 plu, double weight, double qty) {
        insert(table("MizanNetDetail", kMizanNetDatabase) +
                   QStringLiteral(" (TotalBarcode, PluNo, Weight, Qty)"),
               {key, plu, weight, qty});
    }
    void onlineLine(const QString& date, int receipt, int scale, qint64 item, double amount) {
        const QString dateColumn = db().dialect().quote(QStringLiteral("Date"));
        insert(table("Sales", kOnlineSalesDatabase) + QStringLiteral(" (%1, Receipt, ScaleNo, "
                                                                     "ItemCode, Amount)")
                                                          .arg(dateColumn),
               {date, receipt, scale, item, amount});
    }
    const SaleLine* lineOf(const QString& barcode) {
        const int row = sale().linesModel().findBarcode(barcode);
        return row < 0 ? nullptr : &sale().lines().at(row);
    }
};

TEST_P(WeighedTicket, AMizanTicketBringsItsLinesWithGramsAsKilograms) {
    setFlag("ScaleTicket", "Mizan", true);
    // Ticket 00123 of scale 3, printed on 21 March 2025 (the clock's day).
    const QString key = QStringLiteral("00000300000001232103250");
    mizanLine(key, 501, 750, 0);  // 750 g of cheese
    mizanLine(key, 502, 0, 12);   // 12 eggs: no weight, a count
    mizanLine(key, 999, 0, 1);    // not in the goods list: left out
    mizanLine(QStringLiteral("00000300000001232003250"), 502, 0, 5);  // yesterday's ticket

    const EntryOutcome o = sale().enterText(QStringLiteral("23001237"));
    EXPECT_EQ(o.kind, EntryKind::MizanTicket);
    EXPECT_TRUE(o.linesChanged);
    ASSERT_EQ(sale().lines().size(), 2);
    ASSERT_NE(lineOf(QStringLiteral("501")), nullptr);
    EXPECT_DOUBLE_EQ(lineOf(QStringLiteral("501"))->quantity, 0.75);
    EXPECT_DOUBLE_EQ(lineOf(QStringLiteral("501"))->total, 400000 * 0.75 * 1.09);
    EXPECT_DOUBLE_EQ(lineOf(QStringLiteral("502"))->quantity, 12);
}

TEST_P(WeighedTicket, AMizanTicketWithoutLinesAddsNothing) {
    setFlag("ScaleTicket", "Mizan", true);
    const EntryOutcome o = sale().enterText(QStringLiteral("23009997"));
    EXPECT_EQ(o.kind, EntryKind::MizanTicket);
    EXPECT_TRUE(o.notFound);
    EXPECT_TRUE(sale().isEmpty());
}

TEST_P(WeighedTicket, AnOnlineSalesTicketReadsTodaysReceiptOfItsScale) {
    setFlag("ScaleTicket", "OnlineSales", true);
    // The clock's day is 1404/01/01.
    onlineLine(QStringLiteral("04/01/01"), 42, 7, 31, 1.25);
    onlineLine(QStringLiteral("04/01/01"), 42, 7, 32, 6);
    onlineLine(QStringLiteral("04/01/01"), 42, 8, 32, 9);  // another scale
    onlineLine(QStringLiteral("03/12/29"), 42, 7, 32, 9);  // another day
    const EntryOutcome o = sale().enterText(QStringLiteral("PP01ABCDEFG0042007"));
    EXPECT_EQ(o.kind, EntryKind::OnlineSalesTicket);
    ASSERT_EQ(sale().lines().size(), 2);
    EXPECT_DOUBLE_EQ(lineOf(QStringLiteral("501"))->quantity, 1.25);
    EXPECT_DOUBLE_EQ(lineOf(QStringLiteral("502"))->quantity, 6);
}

SANDOGH_INSTANTIATE_BACKENDS(WeighedTicket);

struct MizanCase {
    const char* text;
    QDate today;
    const char* key;
};

class MizanKey : public ::testing::TestWithParam<MizanCase> {};

TEST_P(MizanKey, IsBuiltFromScaleTicketAndTodaysGregorianDate) {
    const MizanCase c = GetParam();
    EXPECT_EQ(ScaleTicket::mizanKey(QString::fromLatin1(c.text), c.today),
              QString::fromLatin1(c.key));
}

INSTANTIATE_TEST_SUITE_P(Dates, MizanKey,
                         ::testing::Values(MizanCase{"23001237", QDate(2025, 3, 21),
                                                     "000003000000012321032"
                                                     "50"},
                                           MizanCase{"29123459", QDate(2024, 1, 5),
                                                     "000009000001234505012"
                                                     "40"},
                                           MizanCase{"21000010", QDate(2000, 12, 31),
                                                     "00000100000000013112000"}));

TEST(ScaleTicket, AMizanTicketStartsWithThePrefixAndHasEightCharacters) {
    EXPECT_TRUE(ScaleTicket::isMizanTicket(QStringLiteral("23001237"), QStringLiteral("2")));
    EXPECT_FALSE(ScaleTicket::isMizanTicket(QStringLiteral("33001237"), QStringLiteral("2")));
    EXPECT_FALSE(ScaleTicket::isMizanTicket(QStringLiteral("2300123"), QStringLiteral("2")));
    EXPECT_FALSE(ScaleTicket::isMizanTicket(QStringLiteral("23001237"), QString()));
}

TEST(ScaleTicket, OnlineSalesReadsReceiptScaleAndTheShortDate) {
    //                                123456789012345678
    const QString text = QStringLiteral("PP01ABCDEFG0042007");
    EXPECT_EQ(ScaleTicket::onlineSalesReceipt(text), 42);
    EXPECT_EQ(ScaleTicket::onlineSalesScale(text), 7);
    EXPECT_EQ(ScaleTicket::onlineSalesDate(QStringLiteral("1404/01/05")),
              QStringLiteral("04/01/05"));
}

}  // namespace
}  // namespace sandogh::test
