// The way into the program: a connection file that cannot be read ends it with its
// message, and so does cancelling the login. A login is in frmUsersTest.

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "ScreenTestContext.h"
#include "ui/app/StartUpFlow.h"
#include "ui/app/frmLogin.h"
#include "ui/app/frmLogo.h"

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
