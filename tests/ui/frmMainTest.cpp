// The main window offscreen: menus by the user's permissions, the drawer, the status bar
// with the second general port, one child window per screen, and leaving the program.

#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "ScreenTestContext.h"
#include "app/Permissions.h"
#include "devices/CashDrawer.h"
#include "settings/SettingKeys.h"
#include "ui/app/MainMenuCommands.h"
#include "ui/app/frmMain.h"

namespace sandogh {
namespace {

class frmMainTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(app.openShop(true));
        UserAccount user;
        user.id = 1;
        user.userName = QStringLiteral("cashier");
        user.name = QStringLiteral("صندوق‌دار");
        app.context.setUser(user);
        app.context.setStation({1, QStringLiteral("صندوق ۱")});
    }

    std::unique_ptr<frmMain> openWindow(PermissionLevel level) {
        auto window = std::make_unique<frmMain>(app.context);
        window->Form_Load();
        window->applyPermissions(Permissions(level));
        window->show();
        return window;
    }

    static QAction* action(const frmMain& window, const char* name) {
        QAction* found = window.findChild<QAction*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    static QLabel* panel(const frmMain& window, const char* name) {
        QLabel* found = window.findChild<QLabel*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    test::ScreenTestContext app;
};

TEST_F(frmMainTest, EachRoleSeesOnlyItsCommands) {
    const struct {
        const char* command;
        bool cashier;
    } cases[] = {
        {"mnuSetUp", false},     {"mnuScale", false},       {"mnuGoodsList", false},
        {"mnuCustomers", false}, {"mnuSuppliers", false},   {"mnuCustomerGroups", false},
        {"mnuUnits", false},     {"mnuGoodsLevels", false}, {"mnuAccountLevels", false},
        {"mnuOpenCash", true},   {"mnuExit", true},         {"mnuShift", true},
    };
    auto cashier = openWindow(PermissionLevel::Cashier);
    auto administrator = openWindow(PermissionLevel::Administrator);
    for (const auto& c : cases) {
        EXPECT_EQ(action(*cashier, c.command)->isVisible(), c.cashier) << c.command;
        EXPECT_EQ(action(*cashier, c.command)->isEnabled(), c.cashier) << c.command;
        EXPECT_TRUE(action(*administrator, c.command)->isVisible()) << c.command;
    }
    EXPECT_TRUE(cashier->findChild<QPushButton*>(QStringLiteral("cmdCashDraw"))->isVisible());

    // The cashier's menu bar: the system menu (exit) and the sales menu (drawer).
    QStringList cashierMenus;
    for (QAction* menu : cashier->menuBar()->actions()) {
        if (menu->isVisible()) {
            cashierMenus << menu->text();
        }
    }
    EXPECT_EQ(cashierMenus, (QStringList{MainMenuCommands::menuCaption(MainMenu::System),
                                         MainMenuCommands::menuCaption(MainMenu::Sales)}));
    // A menu shows exactly when one of its commands does.
    for (QAction* menu : administrator->menuBar()->actions()) {
        bool any = false;
        for (const QAction* command : menu->menu()->actions()) {
            any = any || command->isVisible();
        }
        EXPECT_EQ(menu->isVisible(), any) << menu->text().toStdString();
    }
}

TEST_F(frmMainTest, TheDrawerButtonKicksTheDrawerThroughThePrinter) {
    auto window = openWindow(PermissionLevel::Cashier);
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("cmdCashDraw")),
                      Qt::LeftButton);
    ASSERT_EQ(app.printer.jobs.size(), 1);
    EXPECT_EQ(app.printer.jobs.first().first, QString::fromLatin1(CashDrawer::kJobName));
    EXPECT_EQ(app.printer.jobs.first().second, CashDrawer::kickBytes());

    // Where the drawer does not hang on the printer, its program is started instead.
    app.context.machineSettings().write(settingkeys::PrinterPortUsb, QStringLiteral("False"));
    action(*window, "mnuOpenCash")->trigger();
    EXPECT_EQ(app.printer.jobs.size(), 1);
    ASSERT_EQ(app.launcher.calls.size(), 1);
    EXPECT_TRUE(app.launcher.calls.first().program.endsWith(QLatin1String("Tamvex.exe")));
}

TEST_F(frmMainTest, TheStatusBarShowsUserCashDeskDayAndVersion) {
    auto window = openWindow(PermissionLevel::Cashier);
    EXPECT_TRUE(panel(*window, "stbUser")->text().contains(QStringLiteral("صندوق‌دار")));
    EXPECT_TRUE(panel(*window, "stbStation")->text().contains(QStringLiteral("صندوق ۱")));
    EXPECT_TRUE(panel(*window, "stbDate")->text().contains(QStringLiteral("1404/01/01")));
    EXPECT_EQ(panel(*window, "stbVersion")->text(), QStringLiteral("Sandogh test"));
    // The general ports are off: no port number.
    EXPECT_TRUE(panel(*window, "stbPort")->text().isEmpty());
    EXPECT_EQ(app.context.displayGreeting(), QString::fromLatin1(DemoShop::kGreeting));
}

TEST_F(frmMainTest, AScreenOpensOnceAsAChildWindow) {
    auto window = openWindow(PermissionLevel::Administrator);
    action(*window, "mnuSetUp")->trigger();
    action(*window, "mnuSetUp")->trigger();
    const QList<QMdiSubWindow*> children = window->mdiArea()->subWindowList();
    ASSERT_EQ(children.size(), 1);
    EXPECT_EQ(children.first()->widget()->objectName(), QStringLiteral("frmSetUp"));

    // Closed, it opens anew.
    children.first()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window->mdiArea()->subWindowList().isEmpty());
    action(*window, "mnuSetUp")->trigger();
    ASSERT_EQ(window->mdiArea()->subWindowList().size(), 1);

    // A screen that closes itself takes its frame along; minimised, it stays.
    window->mdiArea()->subWindowList().first()->showMinimized();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(window->mdiArea()->subWindowList().size(), 1);
    window->mdiArea()->subWindowList().first()->showNormal();
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("cmdExit")), Qt::LeftButton);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window->mdiArea()->subWindowList().isEmpty());
}

TEST_F(frmMainTest, LeavingClosesTheChildWindowsAndEndsOnce) {
    auto window = openWindow(PermissionLevel::Administrator);
    QSignalSpy exited(window.get(), &frmMain::exited);
    action(*window, "mnuSetUp")->trigger();
    action(*window, "mnuExit")->trigger();
    EXPECT_EQ(exited.count(), 1);
    EXPECT_TRUE(window->mdiArea()->subWindowList().isEmpty());
    EXPECT_FALSE(window->isVisible());
    window->close();
    EXPECT_EQ(exited.count(), 1);
}

}  // namespace
}  // namespace sandogh
