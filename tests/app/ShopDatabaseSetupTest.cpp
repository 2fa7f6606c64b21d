// Making a program folder's shop database ready: created on the first run, only opened
// on the next, always at the last migration step.

#include <gtest/gtest.h>

#include <QFile>

#include "app/DemoShop.h"
#include "app/ShopDatabaseSetup.h"
#include "data/ErrorLog.h"
#include "data/schema/ShopSchema.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

TEST(ShopDatabaseSetupTest, CreatesOnceThenOnlyOpensAndAYearHasItsOwn) {
    test::AppTestContext app;
    ASSERT_EQ(DemoShop::ensureProviderFile(app.programFolder(), nullptr),
              DemoShop::ProviderFile::Written);
    EXPECT_EQ(DemoShop::ensureProviderFile(app.programFolder(), nullptr),
              DemoShop::ProviderFile::Existed);

    ShopDatabaseSetup::Result first =
        ShopDatabaseSetup::run(app.programFolder(), {}, app.messages, app.context.errorLog());
    ASSERT_TRUE(first.ok) << first.error.toStdString();
    EXPECT_TRUE(first.created);
    EXPECT_EQ(first.migration.versionAfter, shopMigrations().last().version);
    EXPECT_TRUE(QFile::exists(app.path(QStringLiteral("Data/Shop.sqlite"))));
    ASSERT_NE(first.database, nullptr);
    first.database.reset();

    const ShopDatabaseSetup::Result second =
        ShopDatabaseSetup::run(app.programFolder(), {}, app.messages, app.context.errorLog());
    ASSERT_TRUE(second.ok) << second.error.toStdString();
    EXPECT_FALSE(second.created);
    EXPECT_TRUE(second.migration.applied.isEmpty());

    // A fiscal year names a database of its own.
    const ShopDatabaseSetup::Result year = ShopDatabaseSetup::run(
        app.programFolder(), QStringLiteral(" Shop1404 "), app.messages, app.context.errorLog());
    ASSERT_TRUE(year.ok) << year.error.toStdString();
    EXPECT_TRUE(year.created);
    EXPECT_TRUE(QFile::exists(app.path(QStringLiteral("Data/Shop1404.sqlite"))));
}

TEST(ShopDatabaseSetupTest, NoConnectionFileIsAFailure) {
    test::AppTestContext app;
    const ShopDatabaseSetup::Result r =
        ShopDatabaseSetup::run(app.programFolder(), {}, app.messages, app.context.errorLog());
    EXPECT_FALSE(r.ok);
    EXPECT_FALSE(r.error.isEmpty());
    EXPECT_EQ(r.database, nullptr);
}

}  // namespace
}  // namespace sandogh
