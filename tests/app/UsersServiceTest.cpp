// The owner's administration of users on every backend: a cashier made here logs in with
// the cashier's permissions, deactivated users are refused, the shop keeps an active
// administrator, and the permission lists of roles and users reach the login.

#include <gtest/gtest.h>

#include "app/LoginService.h"
#include "app/UsersService.h"
#include "data/ShopFixture.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

using Outcome = LoginService::Outcome;

class UsersServiceTest : public test::ShopBackendTest {
protected:
    void SetUp() override {
        test::ShopBackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(LoginService(db()).ensureAdministrator().created);
        admin = users().first();
    }

    UsersService users_() { return UsersService(db()); }
    QList<UserRow> users() { return UsersService(db()).users(); }

    UserRow cashier(const QString& userName) {
        UserRow row;
        row.name = QStringLiteral("سارا");
        row.userName = userName;
        row.level = static_cast<int>(PermissionLevel::Cashier);
        return row;
    }

    UserRow admin;
};

TEST_P(UsersServiceTest, ACashierMadeHereLogsInAsACashierUntilDeactivated) {
    UserRow sara = cashier(QStringLiteral("sara"));
    EXPECT_EQ(users_().save(sara, QStringLiteral("1234")), QString());
    ASSERT_GT(sara.id, 0);
    const UserRow listed = users().last();
    EXPECT_EQ(listed.id, sara.id);
    EXPECT_EQ(listed.name, sara.name);
    EXPECT_EQ(listed.userName, sara.userName);
    EXPECT_EQ(listed.level, sara.level);

    const LoginService::Result r = LoginService(db()).login(QStringLiteral("Sara"), "1234");
    ASSERT_EQ(r.outcome, Outcome::Accepted);
    EXPECT_EQ(r.user.id, sara.id);
    EXPECT_EQ(r.user.level, PermissionLevel::Cashier);

    // A reset password replaces the old one.
    EXPECT_EQ(users_().setPassword(sara.id, QStringLiteral("5678")), QString());
    EXPECT_EQ(LoginService(db()).login("sara", "1234").outcome, Outcome::WrongPassword);
    EXPECT_EQ(LoginService(db()).login("sara", "5678").outcome, Outcome::Accepted);

    // A deactivated user cannot log in until made active again.
    sara.active = false;
    ASSERT_EQ(users_().save(sara), QString());
    EXPECT_EQ(LoginService(db()).login("sara", "5678").outcome, Outcome::Inactive);
    sara.active = true;
    ASSERT_EQ(users_().save(sara), QString());
    EXPECT_EQ(LoginService(db()).login("sara", "5678").outcome, Outcome::Accepted);
}

TEST_P(UsersServiceTest, RefusedSavesWriteNothing) {
    UserRow sara = cashier(QStringLiteral("sara"));
    ASSERT_EQ(users_().save(sara, QStringLiteral("1")), QString());
    const struct {
        const char* what;
        UserRow row;
        QString password;
        QString message;
    } cases[] = {
        {"no name",
         [&] {
             UserRow r = cashier("x");
             r.name = " ";
             return r;
         }(),
         "1", UsersService::nameRequiredMessage()},
        {"no login name", cashier(" "), "1", UsersService::loginNameRequiredMessage()},
        {"new without password", cashier("new"), {}, UsersService::passwordRequiredMessage()},
        {"login name taken", cashier(" SARA "), "1", UsersService::loginNameTakenMessage()},
    };
    for (const auto& c : cases) {
        UserRow row = c.row;
        EXPECT_EQ(users_().save(row, c.password), c.message) << c.what;
        EXPECT_EQ(row.id, 0) << c.what;
    }
    EXPECT_EQ(users().size(), 2);
}

TEST_P(UsersServiceTest, TheLastActiveAdministratorStays) {
    for (bool demote : {false, true}) {
        UserRow row = admin;
        if (demote) {
            row.level = static_cast<int>(PermissionLevel::Cashier);
        } else {
            row.active = false;
        }
        EXPECT_EQ(users_().save(row), UsersService::lastAdministratorMessage()) << demote;
    }
    // With a second administrator the first may go; the second then stays.
    UserRow second = cashier(QStringLiteral("boss"));
    second.level = static_cast<int>(PermissionLevel::Administrator);
    ASSERT_EQ(users_().save(second, QStringLiteral("b")), QString());
    UserRow first = admin;
    first.active = false;
    EXPECT_EQ(users_().save(first), QString());
    second.level = static_cast<int>(PermissionLevel::Cashier);
    EXPECT_EQ(users_().save(second), UsersService::lastAdministratorMessage());
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Users WHERE PermissionLevel = 1 AND "
                                   "Active = 1")),
              1);
    EXPECT_EQ(LoginService(db()).login("admin", "admin").outcome, Outcome::Inactive);
}

TEST_P(UsersServiceTest, CashDesksAndWarehousesAreKeptAndLimitTheLogin) {
    exec(QStringLiteral("INSERT INTO Stations (Station_Name) VALUES ('one')"));
    exec(QStringLiteral("INSERT INTO Stations (Station_Name) VALUES ('two')"));
    exec(QStringLiteral("INSERT INTO tblWarehouse (Code, Name, ISActive) VALUES (7, 'w', 1)"));
    const QList<NamedCode> stations = users_().stations();
    ASSERT_EQ(stations.size(), 2);
    UserRow sara = cashier(QStringLiteral("sara"));
    sara.stations = {stations.at(1).code};
    sara.warehouses = {7};
    ASSERT_EQ(users_().save(sara, QStringLiteral("1")), QString());
    const UserRow kept = users().last();
    EXPECT_EQ(kept.stations, sara.stations);
    EXPECT_EQ(kept.warehouses, QList<int>{7});
    LoginService login(db());
    EXPECT_EQ(login.login("sara", "1", stations.at(0).code).outcome, Outcome::OtherStation);
    EXPECT_EQ(login.login("sara", "1", stations.at(1).code).outcome, Outcome::Accepted);
}

TEST_P(UsersServiceTest, RoleAndUserListsChangeWhatTheLoginAllows) {
    UserRow sara = cashier(QStringLiteral("sara"));
    UserRow reza = cashier(QStringLiteral("reza"));
    ASSERT_EQ(users_().save(sara, QStringLiteral("1")), QString());
    ASSERT_EQ(users_().save(reza, QStringLiteral("1")), QString());

    // Cashiers may see the goods; reza alone may not sell but may see reports.
    QHash<Permission, bool> role = users_().permissionList(PermissionLevel::Cashier);
    role[Permission::Goods] = true;
    ASSERT_TRUE(users_().setPermissionList(PermissionLevel::Cashier, 0, role));
    QHash<Permission, bool> own = users_().permissionList(PermissionLevel::Cashier, reza.id);
    EXPECT_TRUE(own.value(Permission::Goods));
    own[Permission::Sale] = false;
    own[Permission::Reports] = true;
    ASSERT_TRUE(users_().setPermissionList(PermissionLevel::Cashier, reza.id, own));
    // An administrator's users screen and anybody's exit are never taken away.
    QHash<Permission, bool> none;
    for (Permission p : allPermissions()) {
        none.insert(p, false);
    }
    ASSERT_TRUE(users_().setPermissionList(PermissionLevel::Administrator, 0, none));

    const Permissions s = LoginService(db()).login("sara", "1").user.permissions();
    const Permissions r = LoginService(db()).login("reza", "1").user.permissions();
    const Permissions a = LoginService(db()).login("admin", "admin").user.permissions();
    EXPECT_TRUE(s.allows(Permission::Goods) && s.allows(Permission::Sale));
    EXPECT_FALSE(s.allows(Permission::Reports));
    EXPECT_TRUE(r.allows(Permission::Goods) && r.allows(Permission::Reports));
    EXPECT_FALSE(r.allows(Permission::Sale));
    EXPECT_TRUE(a.allows(Permission::Users) && a.allows(Permission::LeaveProgram));
    EXPECT_FALSE(a.allows(Permission::Goods));
    // Only reza's differences from the role are kept.
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM UserPermission WHERE UserID = :u"),
                    {{QStringLiteral(":u"), reza.id}}),
              2);
}

SANDOGH_INSTANTIATE_BACKENDS(UsersServiceTest);

}  // namespace
}  // namespace sandogh
