#include <gtest/gtest.h>

#include <QDir>

#include "data/Database.h"
#include "data/ShopFixture.h"
#include "devices/DisplayGreeting.h"
#include "devices/ScaleProgram.h"
#include "support/LaunchRecorder.h"

namespace sandogh::test {
namespace {

class Greeting : public ShopFixture {};

TEST_P(Greeting, IsTheTextOfTheRowOrWelcomeWithoutOne) {
    EXPECT_EQ(DisplayGreeting::read(db()), QStringLiteral("Welcome"));
    ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Display (Display) VALUES (:text)"),
                     {{QStringLiteral(":text"), QStringLiteral("Thank you")}}));
    EXPECT_EQ(DisplayGreeting::read(db()), QStringLiteral("Thank you"));
}

SANDOGH_INSTANTIATE_BACKENDS(Greeting);

TEST(GreetingOffline, UnreachableDatabaseKeepsWelcomeAndShowsTheMessage) {
    ConnectionSettings settings;
    ASSERT_TRUE(ConnectionSettings::parse(
        QStringLiteral("Provider=PostgreSQL;Data Source=127.0.0.1,1;Initial Catalog=shop;"
                       "User ID=nobody;Password=;Persist Security Info=True;"),
        QDir::tempPath(), settings, nullptr));
    RecordingMessageService messages;
    Database database(settings, &messages);
    EXPECT_EQ(DisplayGreeting::read(database), QStringLiteral("Welcome"));
    EXPECT_EQ(messages.countOf(Database::connectionFailureMessage()), 1);
}

TEST(ArkaScale, StartsFromTheCompanionFolder) {
    for (const char* folder : {"/opt/shop", "/opt/shop/"}) {
        LaunchRecorder launcher;
        ScaleProgram scale(QString::fromLatin1(folder), launcher);
        EXPECT_TRUE(scale.mnuScale_Click());
        ASSERT_EQ(launcher.calls.size(), 1);
        EXPECT_EQ(launcher.calls[0].program, QStringLiteral("/opt/shop/KotrimoAcc/ArkaScale.exe"))
            << folder;
        EXPECT_TRUE(launcher.calls[0].arguments.isEmpty());
        EXPECT_FALSE(launcher.calls[0].hidden);
    }
}

}  // namespace
}  // namespace sandogh::test
