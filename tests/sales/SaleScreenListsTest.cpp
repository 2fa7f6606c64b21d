#include <gtest/gtest.h>

#include "data/ShopFixture.h"
#include "sales/SaleScreenLists.h"

namespace sandogh::test {
namespace {

class SaleScreenListsTest : public ShopFixture {
protected:
    static QStringList names(const QList<SaleScreenLists::Item>& items) {
        QStringList list;
        for (const SaleScreenLists::Item& item : items) {
            list << QString::number(item.code) + u':' + item.name;
        }
        return list;
    }
};

TEST_P(SaleScreenListsTest, EachListHoldsItsRows) {
    exec(QStringLiteral("INSERT INTO DiscountType (Id, Name, IsImpactGift) VALUES (4, 'Gift', 1)"));
    exec(QStringLiteral("INSERT INTO Overhead (Id, Name) VALUES (2, 'Delivery')"));
    exec(
        QStringLiteral("INSERT INTO tblWarehouse (Code, Name, ISActive) VALUES (1, 'Main', 1), "
                       "(2, 'Closed', 0), (3, NULL, 1)"));
    exec(QStringLiteral("INSERT INTO ReturnCause (Id, Name) VALUES (7, 'Broken')"));
    exec(
        QStringLiteral("INSERT INTO tblPaymentType (Code, Name) VALUES (3, 'Cheque'), (1, 'Cash'), "
                       "(2, NULL)"));
    exec(
        QStringLiteral("INSERT INTO Users (ID, Name, UserName, Active) VALUES (5, 'S', 'sara', 1), "
                       "(6, 'O', 'old', 0), (8, 'N', NULL, 1)"));

    SaleScreenLists lookups(db());
    const SaleScreenLists::Lists lists = lookups.readAll();

    EXPECT_TRUE(lists.ok);
    EXPECT_EQ(names(lists.discountKinds), QStringList{QStringLiteral("4:Gift")});
    EXPECT_EQ(names(lists.overheadKinds), QStringList{QStringLiteral("2:Delivery")});
    // Active warehouses only; a missing name reads as empty text.
    QStringList warehouses = names(lists.warehouses);
    warehouses.sort();
    EXPECT_EQ(warehouses, (QStringList{QStringLiteral("1:Main"), QStringLiteral("3:")}));
    EXPECT_EQ(names(lists.returnCauses), QStringList{QStringLiteral("7:Broken")});
    // Payment kinds in code order.
    EXPECT_EQ(
        names(lists.paymentKinds),
        (QStringList{QStringLiteral("1:Cash"), QStringLiteral("2:"), QStringLiteral("3:Cheque")}));
    QStringList sellers = names(lists.sellers);
    sellers.sort();
    EXPECT_EQ(sellers, (QStringList{QStringLiteral("5:sara"), QStringLiteral("8:")}));

    // The single lists read the same rows.
    EXPECT_EQ(names(lookups.paymentKinds()), names(lists.paymentKinds));
    EXPECT_EQ(names(lookups.warehouses()).size(), 2);
    EXPECT_EQ(names(lookups.sellers()).size(), 2);
    EXPECT_EQ(names(lookups.discountKinds()), names(lists.discountKinds));
    EXPECT_EQ(names(lookups.overheadKinds()), names(lists.overheadKinds));
    EXPECT_EQ(names(lookups.returnCauses()), names(lists.returnCauses));
}

TEST_P(SaleScreenListsTest, AMissingTableLeavesItsListEmptyAndTheOthersFilled) {
    exec(QStringLiteral("INSERT INTO Overhead (Id, Name) VALUES (2, 'Delivery')"));
    exec(QStringLiteral("DROP TABLE ReturnCause"));

    const SaleScreenLists::Lists lists = SaleScreenLists(db()).readAll();

    EXPECT_FALSE(lists.ok);
    EXPECT_TRUE(lists.returnCauses.isEmpty());
    EXPECT_EQ(names(lists.overheadKinds), QStringList{QStringLiteral("2:Delivery")});
}

SANDOGH_INSTANTIATE_BACKENDS(SaleScreenListsTest);

}  // namespace
}  // namespace sandogh::test
