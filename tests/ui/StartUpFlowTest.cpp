// The way through the screens: a connection file that cannot be read ends the program
// with its message; a login opens the main window for that user and remembers the user;
// leaving the main window ends the program.

#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "ui/app/StartUpFlow.h"
#include "ui/app/frmLogin.h"
#include "ui/app/frmLogo.h"
#include "ui/app/frmMain.h"

namespace sandogh {
namespace {

TEST(StartUpFlowTest, WithoutAConnectionFileTheProgramEndsWithTheMessage) {
    test::ScreenTestContext app;
    StartUpFlow flow(app.context);
    QSignalSpy finished(&flow, &StartUpFlow::finished);
    flow.start();
    ASSERT_EQ(finished.count(), 1);
    EXPECT_EQ(finished.first().first().toInt(), 1);
    ASSERT_FALSE(app.messages.messages().isEmpty());
    EXPECT_EQ(app.messages.messages().last().text, frmLogo::missingConnectionFileMessage());
    EXPECT_EQ(app.messages.messages().last().style, MessageStyle::Information);
    EXPECT_EQ(flow.login(), nullptr);
    EXPECT_FALSE(app.context.hasDatabase());
}

TEST(StartUpFlowTest, ALoginOpensTheMainWindowForThatUser) {
    test::ScreenTestContext app;
    ASSERT_TRUE(app.openShop(true));
    StartUpFlow flow(app.context);
    QSignalSpy finished(&flow, &StartUpFlow::finished);
    flow.showLogin();
    frmLogin* login = flow.login();
    ASSERT_NE(login, nullptr);
    ASSERT_TRUE(login->isVisible());

    test::typeText(login->findChild<QLineEdit*>(QStringLiteral("txtUserName")),
                   QStringLiteral("cashier"));
    test::typeText(login->findChild<QLineEdit*>(QStringLiteral("txtPassword")),
                   QStringLiteral("1111"));
    QTest::mouseClick(login->findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_EQ(flow.login(), nullptr);  // the login screen is gone
    frmMain* main = flow.mainWindow();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(app.context.user().userName, QStringLiteral("cashier"));
    EXPECT_EQ(app.settings.read(QStringLiteral("UserInfo"), QStringLiteral("UserName")),
              QStringLiteral("cashier"));
    EXPECT_EQ(app.context.station().name, QStringLiteral("صندوق ۱"));
    EXPECT_FALSE(main->command(QStringLiteral("mnuSetUp"))->isVisible());
    EXPECT_TRUE(main->command(QStringLiteral("mnuOpenCash"))->isVisible());

    main->command(QStringLiteral("mnuExit"))->trigger();
    ASSERT_EQ(finished.count(), 1);
    EXPECT_EQ(finished.first().first().toInt(), 0);
}

TEST(StartUpFlowTest, CancellingTheLoginEndsTheProgram) {
    test::ScreenTestContext app;
    ASSERT_TRUE(app.openShop(true));
    StartUpFlow flow(app.context);
    QSignalSpy finished(&flow, &StartUpFlow::finished);
    flow.showLogin();
    QTest::mouseClick(flow.login()->findChild<QPushButton*>(QStringLiteral("cmdCancel")),
                      Qt::LeftButton);
    ASSERT_EQ(finished.count(), 1);
    EXPECT_EQ(finished.first().first().toInt(), 0);
    EXPECT_EQ(flow.mainWindow(), nullptr);
}

}  // namespace
}  // namespace sandogh
