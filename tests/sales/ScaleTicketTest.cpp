// The keys under which the scales keep their tickets.

#include <gtest/gtest.h>

#include "sales/ScaleTicket.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

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
}  // namespace sandogh
