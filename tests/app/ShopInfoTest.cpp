// The shop's texts from their single-row tables, with their defaults.

#include <gtest/gtest.h>

#include "app/ShopInfo.h"
#include "data/ShopFixture.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

class ShopInfoTest : public test::ShopBackendTest {};

TEST_P(ShopInfoTest, TextsFallBackOnlyWhereTheTablesHoldNone) {
    ShopInfo shop(db());
    EXPECT_EQ(shop.shopName(), ShopInfo::defaultShopName());  // no row

    exec(QStringLiteral("INSERT INTO Company (Company_Tel) VALUES (:tel)"),
         {{QStringLiteral(":tel"), QStringLiteral("021")}});
    EXPECT_EQ(shop.shopName(), ShopInfo::defaultShopName());  // a NULL name

    exec(QStringLiteral("UPDATE Company SET Company_Name = :name"),
         {{QStringLiteral(":name"), QStringLiteral("   ")}});
    EXPECT_EQ(shop.shopName(), ShopInfo::defaultShopName());  // a blank name

    exec(QStringLiteral("UPDATE Company SET Company_Name = :name"),
         {{QStringLiteral(":name"), QStringLiteral(" فروشگاه شهر ")}});
    EXPECT_EQ(shop.shopName(), QStringLiteral("فروشگاه شهر"));

    EXPECT_EQ(shop.displayGreeting(), QStringLiteral("Welcome"));

    exec(QStringLiteral("INSERT INTO Display (Display) VALUES (NULL)"));
    EXPECT_EQ(shop.displayGreeting(), QString());

    exec(QStringLiteral("UPDATE Display SET Display = :text"),
         {{QStringLiteral(":text"), QStringLiteral("Good day")}});
    EXPECT_EQ(shop.displayGreeting(), QStringLiteral("Good day"));

    exec(QStringLiteral("INSERT INTO Stations (Station_Name) VALUES (:name)"),
         {{QStringLiteral(":name"), QStringLiteral("صندوق ۱ ")}});
    const qint64 id = count(QStringLiteral("SELECT MAX(ID) FROM Stations"));
    EXPECT_EQ(shop.stationName(static_cast<int>(id)), QStringLiteral("صندوق ۱"));
    EXPECT_EQ(shop.stationName(static_cast<int>(id) + 1), QString());
}

SANDOGH_INSTANTIATE_BACKENDS(ShopInfoTest);

}  // namespace
}  // namespace sandogh
