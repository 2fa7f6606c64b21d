// Logging in against Users on every backend: hashed and plain-text passwords, names
// compared trimmed and without regard to case, inactive users, and the administrator that
// an empty shop is given.

#include <gtest/gtest.h>

#include "app/LoginService.h"
#include "app/PasswordHasher.h"
#include "data/ShopFixture.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

using Outcome = LoginService::Outcome;

class LoginServiceTest : public test::ShopBackendTest {
protected:
    void addUser(const QString& userName, const QString& storedPassword, int level = 2,
                 int active = 1, const QString& name = QStringLiteral("کاربر")) {
        exec(QStringLiteral("INSERT INTO Users (Name, UserName, Password, PermissionLevel, Active) "
                            "VALUES (:name, :userName, :password, :level, :active)"),
             {{QStringLiteral(":name"), name},
              {QStringLiteral(":userName"), userName},
              {QStringLiteral(":password"), storedPassword},
              {QStringLiteral(":level"), level},
              {QStringLiteral(":active"), active}});
    }

    QString storedPassword(const QString& userName) {
        return text(QStringLiteral("SELECT Password FROM Users WHERE UserName = :u"),
                    {{QStringLiteral(":u"), userName}});
    }

    LoginService::Result login(const QString& userName, const QString& password) {
        return LoginService(db()).login(userName, password);
    }
};

// A refused login, hashed or plain-text password, leaves the user's row as it was.
TEST_P(LoginServiceTest, PasswordsDecideTheLoginAndARefusalChangesNothing) {
    addUser(QStringLiteral("sara"), PasswordHasher::hash(QStringLiteral("s3cret")), 2, 1,
            QStringLiteral("سارا"));
    addUser(QStringLiteral("old"), PasswordHasher::hash(QStringLiteral("gone")), 1, 0);
    addUser(QStringLiteral("ali"), QStringLiteral("abcd"));
    addUser(QStringLiteral("past"), QStringLiteral("pw"), 2, 0);
    const struct {
        const char* userName;
        const char* password;
        Outcome outcome;
    } cases[] = {
        {"sara", "s3cret", Outcome::Accepted},
        {"  SARA ", "s3cret", Outcome::Accepted},  // trimmed, without regard to case
        {"sara", "S3cret", Outcome::WrongPassword},
        {"sara", "", Outcome::WrongPassword},
        {"nobody", "s3cret", Outcome::UnknownUser},
        {"", "s3cret", Outcome::UnknownUser},
        {"old", "gone", Outcome::Inactive},
        {"old", "wrong", Outcome::WrongPassword},
        {"ali", "ABCD", Outcome::WrongPassword},
        {"ali", "abc", Outcome::WrongPassword},
        {"past", "pw", Outcome::Inactive},  // inactive: not rehashed
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.userName) + " / " + c.password);
        const QString stored = storedPassword(QString::fromLatin1(c.userName).trimmed());
        const LoginService::Result r =
            login(QString::fromLatin1(c.userName), QString::fromLatin1(c.password));
        EXPECT_EQ(r.outcome, c.outcome);
        EXPECT_EQ(r.accepted(), r.user.isValid());
        EXPECT_EQ(storedPassword(QString::fromLatin1(c.userName).trimmed()), stored);
    }
    const LoginService::Result sara = login(QStringLiteral("Sara"), QStringLiteral("s3cret"));
    EXPECT_EQ(sara.user.userName, QStringLiteral("sara"));
    EXPECT_EQ(sara.user.name, QStringLiteral("سارا"));
    EXPECT_EQ(sara.user.level, PermissionLevel::Cashier);
    EXPECT_FALSE(sara.passwordRehashed);
    EXPECT_TRUE(messages().messages().isEmpty());
}

TEST_P(LoginServiceTest, APlainTextPasswordIsAcceptedOnceAndReplacedByItsHash) {
    addUser(QStringLiteral("reza"), QStringLiteral("1234"), 1);

    const LoginService::Result first = login(QStringLiteral("reza"), QStringLiteral("1234"));
    ASSERT_TRUE(first.accepted());
    EXPECT_TRUE(first.passwordRehashed);
    EXPECT_EQ(first.user.level, PermissionLevel::Administrator);
    const QString stored = storedPassword(QStringLiteral("reza"));
    EXPECT_TRUE(PasswordHasher::verify(stored, QStringLiteral("1234"))) << stored.toStdString();

    const LoginService::Result again = login(QStringLiteral("reza"), QStringLiteral("1234"));
    EXPECT_TRUE(again.accepted());
    EXPECT_FALSE(again.passwordRehashed);
    EXPECT_EQ(storedPassword(QStringLiteral("reza")), stored);
    // The hash itself typed as the password is not the password.
    EXPECT_EQ(login(QStringLiteral("reza"), stored).outcome, Outcome::WrongPassword);
}

TEST_P(LoginServiceTest, AnEmptyShopGetsAnAdministratorThatCanLogIn) {
    LoginService service(db());
    const LoginService::AdministratorCheck check = service.ensureAdministrator();
    ASSERT_TRUE(check.ok);
    EXPECT_TRUE(check.created);
    EXPECT_EQ(check.userName, QStringLiteral("admin"));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Users WHERE PermissionLevel = 1 "
                                   "AND Active = 1")),
              1);
    EXPECT_TRUE(PasswordHasher::isHash(storedPassword(QStringLiteral("admin"))));
    EXPECT_TRUE(LoginService::administratorCreatedMessage(check).contains(check.password));

    const LoginService::Result r = service.login(check.userName, check.password);
    ASSERT_TRUE(r.accepted());
    EXPECT_EQ(r.user.level, PermissionLevel::Administrator);

    const LoginService::AdministratorCheck second = service.ensureAdministrator();
    EXPECT_TRUE(second.ok);
    EXPECT_FALSE(second.created);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Users")), 1);
}

SANDOGH_INSTANTIATE_BACKENDS(LoginServiceTest);

}  // namespace
}  // namespace sandogh
