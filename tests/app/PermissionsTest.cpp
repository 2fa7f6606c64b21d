// Which role may open what: the administrator everything, the cashier the cash desk's work.

#include <gtest/gtest.h>

#include "app/Permissions.h"

namespace sandogh {
namespace {

TEST(PermissionsTest, EachRoleOpensItsOwnScreens) {
    const QList<Permission> desk = {Permission::LeaveProgram, Permission::SwitchUser,
                                    Permission::Sale,         Permission::OpenDrawer,
                                    Permission::Shift,        Permission::CustomerSearch};
    const Permissions administrator(PermissionLevel::Administrator);
    const Permissions cashier(PermissionLevel::Cashier);
    for (const Permission p : allPermissions()) {
        SCOPED_TRACE(permissionName(p).toStdString());
        EXPECT_TRUE(administrator.allows(p));
        EXPECT_EQ(cashier.allows(p), desk.contains(p));
    }
}

TEST(PermissionsTest, OnlyLevelOneIsAnAdministrator) {
    const struct {
        int column;
        PermissionLevel level;
    } cases[] = {{1, PermissionLevel::Administrator},
                 {2, PermissionLevel::Cashier},
                 {0, PermissionLevel::Cashier},
                 {3, PermissionLevel::Cashier},
                 {-1, PermissionLevel::Cashier}};
    for (const auto& c : cases) {
        EXPECT_EQ(permissionLevelFromColumn(c.column), c.level) << c.column;
    }
}

}  // namespace
}  // namespace sandogh
