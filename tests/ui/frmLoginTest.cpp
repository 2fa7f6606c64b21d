// The login screen offscreen: today and the shop's name on load, a first administrator
// for an empty shop, a refused login warned about, Enter moving and submitting, an
// accepted one handed on with its user.

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "app/LoginService.h"
#include "app/ShopInfo.h"
#include "ui/app/frmLogin.h"

namespace sandogh {
namespace {

class frmLoginTest : public ::testing::Test {
protected:
    std::unique_ptr<frmLogin> openScreen() {
        auto screen = std::make_unique<frmLogin>(app.context);
        screen->Form_Load();
        screen->show();
        screen->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
        return screen;
    }

    // Types into the named box as a keyboard would.
    static void type(const frmLogin& screen, const char* box, const QString& text) {
        QLineEdit* edit = test::child<QLineEdit>(screen, box);
        edit->clear();
        test::typeText(edit, text);
    }

    test::ScreenTestContext app;
};

TEST_F(frmLoginTest, TheLoadShowsTodayAndTheShop) {
    ASSERT_TRUE(app.openShop(true));
    auto screen = openScreen();
    EXPECT_EQ(test::child<QLabel>(*screen, "lblDate")->text(),
              QStringLiteral("امروز : جمعه 1404/01/01"));
    EXPECT_EQ(test::child<QLabel>(*screen, "lblCompany")->text(), DemoShop::shopName());
    EXPECT_TRUE(app.messages.messages().isEmpty());
    EXPECT_EQ(screen->layoutDirection(), Qt::RightToLeft);
}

TEST_F(frmLoginTest, AnEmptyShopIsGivenAnAdministratorAndToldSo) {
    ASSERT_TRUE(app.openShop(false));
    auto screen = openScreen();
    EXPECT_EQ(test::child<QLabel>(*screen, "lblCompany")->text(), ShopInfo::defaultShopName());
    ASSERT_EQ(app.messages.messages().size(), 1);
    EXPECT_EQ(app.messages.messages().first().style, MessageStyle::Information);
    EXPECT_TRUE(app.messages.messages().first().text.contains(
        QString::fromLatin1(LoginService::kInitialAdministratorPassword)));
    EXPECT_EQ(test::child<QLineEdit>(*screen, "txtUserName")->text(), QStringLiteral("admin"));

    QSignalSpy loggedIn(screen.get(), &frmLogin::loggedIn);
    type(*screen, "txtPassword", QString::fromLatin1(LoginService::kInitialAdministratorPassword));
    test::click(*screen, "cmdOK");
    ASSERT_EQ(loggedIn.count(), 1);
    EXPECT_EQ(loggedIn.first().first().value<UserAccount>().level, PermissionLevel::Administrator);
}

TEST_F(frmLoginTest, ARefusedLoginIsWarnedAboutAndMayBeTriedAgain) {
    ASSERT_TRUE(app.openShop(true));
    auto screen = openScreen();
    QSignalSpy loggedIn(screen.get(), &frmLogin::loggedIn);
    // Which logins are refused is the login service's (tested under app).
    const char* const attempts[][2] = {{"admin", "4321"}, {"nobody", "1234"}};
    int warnings = 0;
    for (const auto& attempt : attempts) {
        type(*screen, "txtUserName", QString::fromLatin1(attempt[0]));
        type(*screen, "txtPassword", QString::fromLatin1(attempt[1]));
        test::click(*screen, "cmdOK");
        ++warnings;
        ASSERT_EQ(app.messages.messages().size(), warnings) << attempt[0];
        EXPECT_EQ(app.messages.messages().last().text, frmLogin::wrongLoginMessage());
        EXPECT_EQ(app.messages.messages().last().style, MessageStyle::Warning);
        EXPECT_TRUE(test::child<QLineEdit>(*screen, "txtPassword")->text().isEmpty());
    }
    EXPECT_EQ(loggedIn.count(), 0);
    // Enter moves from the user name to the password, and there logs in.
    type(*screen, "txtUserName", QStringLiteral("admin"));
    QTest::keyClick(test::child<QLineEdit>(*screen, "txtUserName"), Qt::Key_Return);
    EXPECT_TRUE(test::child<QLineEdit>(*screen, "txtPassword")->hasFocus());
    EXPECT_EQ(loggedIn.count(), 0);
    type(*screen, "txtPassword", QStringLiteral("1234"));
    QTest::keyClick(test::child<QLineEdit>(*screen, "txtPassword"), Qt::Key_Return);
    EXPECT_EQ(loggedIn.count(), 1);
}

}  // namespace
}  // namespace sandogh
