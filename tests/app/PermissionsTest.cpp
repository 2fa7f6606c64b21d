// Which role may open what: the administrator everything, the cashier the cash desk's work.

#include <gtest/gtest.h>

#include "app/Permissions.h"

namespace sandogh {
namespace {

TEST(PermissionsTest, EachRoleOpensItsOwnScreens) {
    const struct {
        Permission permission;
        bool cashier;
    } cases[] = {
        {Permission::LeaveProgram, true},   {Permission::Sale, true},
        {Permission::OpenDrawer, true},     {Permission::Shift, true},
        {Permission::CustomerSearch, true}, {Permission::SetUp, false},
        {Permission::ScaleProgram, false},  {Permission::Parameters, false},
        {Permission::CodeLevels, false},    {Permission::Goods, false},
        {Permission::Customers, false},     {Permission::Purchases, false},
        {Permission::Reports, false},       {Permission::Users, false},
    };
    const Permissions administrator(PermissionLevel::Administrator);
    const Permissions cashier(PermissionLevel::Cashier);
    for (const auto& c : cases) {
        EXPECT_TRUE(administrator.allows(c.permission)) << static_cast<int>(c.permission);
        EXPECT_EQ(cashier.allows(c.permission), c.cashier) << static_cast<int>(c.permission);
    }
}

TEST(PermissionsTest, OnlyLevelOneIsAnAdministrator) {
    const struct {
        int column;
        PermissionLevel level;
    } cases[] = {
        {1, PermissionLevel::Administrator}, {2, PermissionLevel::Cashier},
        {0, PermissionLevel::Cashier},       {3, PermissionLevel::Cashier},
        {-1, PermissionLevel::Cashier},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(permissionLevelFromColumn(c.column), c.level) << c.column;
    }
}

}  // namespace
}  // namespace sandogh
