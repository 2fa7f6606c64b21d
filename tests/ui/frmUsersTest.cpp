// The users screen and the way through the login: a cashier typed in is saved, the screen
// shows why the last administrator stays, a login opens the main window, switching user with
// a sale open asks the sale's question and goes back to the login only on yes, and an
// administrator may choose another year at the login.

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "app/LoginService.h"
#include "app/NewFiscalYear.h"
#include "app/UsersService.h"
#include "data/Session.h"
#include "sales/SaleTexts.h"
#include "ui/admin/frmPermissions.h"
#include "ui/admin/frmUsers.h"
#include "ui/app/MainMenuCommands.h"
#include "ui/app/StartUpFlow.h"
#include "ui/app/frmLogin.h"
#include "ui/app/frmMain.h"
#include "ui/sales/frmSale.h"

namespace sandogh {
namespace {

using test::child;
using test::click;

class frmUsersTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(app.openShop(true)); }

    // Types the user and the password into the flow's login screen and presses OK.
    static void logIn(StartUpFlow& flow, const QString& user, const QString& password) {
        for (const auto& [box, text] :
             {std::pair{"txtUserName", user}, std::pair{"txtPassword", password}}) {
            child<QLineEdit>(*flow.login(), box)->clear();
            test::typeText(child<QLineEdit>(*flow.login(), box), text);
        }
        click(*flow.login(), "cmdOK");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    test::ScreenTestContext app;
};

TEST_F(frmUsersTest, ACashierTypedInIsSaved) {
    frmUsers screen(app.context.database(), app.messages);
    screen.show();
    const qsizetype before = screen.users().size();
    click(screen, "cmdNew");
    test::typeText(child<QLineEdit>(screen, "txtName"), QStringLiteral("نرگس"));
    test::typeText(child<QLineEdit>(screen, "txtUserName"), QStringLiteral("narges"));
    test::typeText(child<QLineEdit>(screen, "txtPassword"), QStringLiteral("2024"));
    auto* level = child<QComboBox>(screen, "cmbLevel");
    EXPECT_EQ(level->currentData().toInt(), static_cast<int>(PermissionLevel::Cashier));
    click(screen, "cmdSave");
    EXPECT_TRUE(app.messages.messages().isEmpty());
    ASSERT_EQ(screen.users().size(), before + 1);
    EXPECT_EQ(child<QTableWidget>(screen, "grdUsers")->rowCount(), before + 1);

    // The login with what was typed is the login service's (tested under app).
    EXPECT_EQ(LoginService(app.context.database()).login(QStringLiteral("narges"), "2024").outcome,
              LoginService::Outcome::Accepted);
}

TEST_F(frmUsersTest, TheOnlyAdministratorCannotBeSwitchedOff) {
    frmUsers screen(app.context.database(), app.messages);
    const QList<UserRow> users = screen.users();
    const auto admin = std::find_if(users.cbegin(), users.cend(), [](const UserRow& u) {
        return u.level == static_cast<int>(PermissionLevel::Administrator);
    });
    ASSERT_NE(admin, users.cend());
    ASSERT_TRUE(screen.selectUser(admin->id));
    child<QCheckBox>(screen, "chkActive")->setChecked(false);
    click(screen, "cmdSave");
    ASSERT_EQ(app.messages.messages().size(), 1);
    EXPECT_EQ(app.messages.messages().first().text, UsersService::lastAdministratorMessage());
    // The screen still shows the change, ready to be put right.
    EXPECT_FALSE(child<QCheckBox>(screen, "chkActive")->isChecked());
}

TEST_F(frmUsersTest, ThePermissionsScreenKeepsARolesList) {
    frmPermissions screen(app.context.database(), app.messages,
                          MainMenuCommands::permissionCaptions());
    screen.choose(1);  // the cashier's role
    EXPECT_TRUE(screen.isAllowed(Permission::Sale));
    EXPECT_FALSE(screen.isAllowed(Permission::Goods));
    screen.setAllowed(Permission::Goods, true);
    screen.setAllowed(Permission::SwitchUser, false);  // fixed: stays
    click(screen, "cmdSave");
    const LoginService::Result login =
        LoginService(app.context.database()).login(QStringLiteral("cashier"), "1111");
    ASSERT_TRUE(login.accepted());
    EXPECT_TRUE(login.user.permissions().allows(Permission::Goods));
    EXPECT_TRUE(login.user.permissions().allows(Permission::SwitchUser));
}

TEST_F(frmUsersTest, ALoginOpensTheMainWindowAndSwitchingUserWithASaleOpenAsksFirst) {
    {
        Session s = app.context.database().session();
        ASSERT_TRUE(s.exec(QStringLiteral(
            "INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue, ISActive, AQIS, Type, "
            "GType) VALUES ('9990001112223', 'tea', 1000, 0, 0, 1, 0, 0, 0)")));
    }
    StartUpFlow flow(app.context);
    QSignalSpy finished(&flow, &StartUpFlow::finished);
    flow.showLogin();
    logIn(flow, QStringLiteral("cashier"), QStringLiteral("1111"));
    EXPECT_EQ(flow.login(), nullptr);  // the login screen is gone
    frmMain* main = flow.mainWindow();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(app.context.user().userName, QStringLiteral("cashier"));
    EXPECT_FALSE(main->command(QStringLiteral("mnuSetUp"))->isVisible());

    main->command(QStringLiteral("mnuSale"))->trigger();
    auto* sale = qobject_cast<frmSale*>(main->mdiArea()->activeSubWindow()->widget());
    ASSERT_NE(sale, nullptr);
    child<QLineEdit>(*sale, "txtBarcode")->setFocus();
    QTest::keyClicks(child<QLineEdit>(*sale, "txtBarcode"), QStringLiteral("9990001112223"));
    QTest::keyClick(child<QLineEdit>(*sale, "txtBarcode"), Qt::Key_Return);
    app.messages.clear();

    // No: the sale and the user stay.
    app.messages.queueAnswer(false);
    main->command(QStringLiteral("mnuSwitchUser"))->trigger();
    ASSERT_EQ(app.messages.messages().size(), 1);
    EXPECT_EQ(app.messages.messages().first().text, SaleTexts::unsavedSale());
    EXPECT_EQ(flow.mainWindow(), main);
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(main->mdiArea()->subWindowList().size(), 1);

    // Yes: back to the login, the program goes on.
    app.messages.queueAnswer(true);
    main->command(QStringLiteral("mnuSwitchUser"))->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(flow.mainWindow(), nullptr);
    ASSERT_NE(flow.login(), nullptr);
    EXPECT_TRUE(flow.login()->isVisible());
    EXPECT_EQ(finished.count(), 0);
    EXPECT_FALSE(app.context.user().isValid());

    logIn(flow, QStringLiteral("admin"), QStringLiteral("1234"));
    ASSERT_NE(flow.mainWindow(), nullptr);
    EXPECT_EQ(app.context.user().userName, QStringLiteral("admin"));
    EXPECT_TRUE(flow.mainWindow()->command(QStringLiteral("mnuUsers"))->isVisible());

    // Leaving the main window ends the program, once.
    flow.mainWindow()->command(QStringLiteral("mnuExit"))->trigger();
    ASSERT_EQ(finished.count(), 1);
    EXPECT_EQ(finished.first().first().toInt(), 0);
}

TEST_F(frmUsersTest, AnAdministratorChoosesAnotherYearAtTheLogin) {
    ASSERT_TRUE(NewFiscalYear::open(app.context.database(), QStringLiteral("Shop1405"),
                                    QStringLiteral("1405/01/01"))
                    .ok);
    StartUpFlow flow(app.context);
    flow.showLogin();
    auto* year = child<QComboBox>(*flow.login(), "cmbYear");
    ASSERT_TRUE(year->isVisible());
    ASSERT_GE(year->findText(QStringLiteral("Shop1405")), 0);
    year->setCurrentIndex(year->findText(QStringLiteral("Shop1405")));

    // A cashier may not; the login screen stays.
    logIn(flow, QStringLiteral("cashier"), QStringLiteral("1111"));
    ASSERT_FALSE(app.messages.messages().isEmpty());
    EXPECT_EQ(app.messages.messages().last().text, frmLogin::yearForAdministratorsMessage());
    EXPECT_EQ(flow.mainWindow(), nullptr);

    logIn(flow, QStringLiteral("admin"), QStringLiteral("1234"));
    ASSERT_NE(flow.mainWindow(), nullptr);
    EXPECT_EQ(app.settings.read(QStringLiteral("Year"), QStringLiteral("Year")),
              QStringLiteral("Shop1405"));
    EXPECT_EQ(app.context.connectionSettings().catalog, QStringLiteral("Shop1405"));
    EXPECT_EQ(app.context.user().userName, QStringLiteral("admin"));
}

}  // namespace
}  // namespace sandogh
