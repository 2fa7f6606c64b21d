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
    void SetUp() override { ASSERT_TRUE(app.openDesk()); }

    std::unique_ptr<frmMain> openWindow(PermissionLevel level) { return app.openMain(level); }
    static QAction* action(const frmMain& window, const char* name) {
        return test::child<QAction>(window, name);
    }
    static QString panel(const frmMain& window, const char* name) {
        return test::child<QLabel>(window, name)->text();
    }

    test::ScreenTestContext app;
};

// Which role may do what is tested under app; the window shows each command by its
// permission, and a menu exactly when one of its commands shows.
TEST_F(frmMainTest, EachRoleSeesOnlyItsCommands) {
    auto cashier = openWindow(PermissionLevel::Cashier);
    auto administrator = openWindow(PermissionLevel::Administrator);
    for (const MainMenuCommand& command : MainMenuCommands::all()) {
        const bool allowed = Permissions::cashierPermissions().contains(command.permission);
        EXPECT_EQ(cashier->command(command.name)->isVisible(), allowed)
            << command.name.toStdString();
        EXPECT_EQ(cashier->command(command.name)->isEnabled(), allowed)
            << command.name.toStdString();
        EXPECT_TRUE(administrator->command(command.name)->isVisible())
            << command.name.toStdString();
    }
    EXPECT_TRUE(test::child<QPushButton>(*cashier, "cmdCashDraw")->isVisible());
    // A command reached other than through its menu is refused all the same.
    EXPECT_FALSE(cashier->runCommand(QStringLiteral("mnuUsers")));
    EXPECT_TRUE(cashier->mdiArea()->subWindowList().isEmpty());

    // The cashier's menu bar: the system menu (exit) and the sales menu (drawer).
    QStringList cashierMenus;
    for (QAction* menu : cashier->menuBar()->actions()) {
        if (menu->isVisible()) {
            cashierMenus << menu->text();
        }
    }
    EXPECT_EQ(cashierMenus, (QStringList{MainMenuCommands::menuCaption(MainMenu::System),
                                         MainMenuCommands::menuCaption(MainMenu::Sales)}));
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
    test::click(*window, "cmdCashDraw");
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
    EXPECT_TRUE(panel(*window, "stbUser").contains(QStringLiteral("صندوق‌دار")));
    EXPECT_TRUE(panel(*window, "stbStation").contains(QStringLiteral("صندوق ۱")));
    EXPECT_TRUE(panel(*window, "stbDate").contains(QStringLiteral("1404/01/01")));
    EXPECT_EQ(panel(*window, "stbVersion"), QStringLiteral("Sandogh test"));
    // The general ports are off: no port number.
    EXPECT_TRUE(panel(*window, "stbPort").isEmpty());
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
    test::click(*window, "cmdExit");
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
