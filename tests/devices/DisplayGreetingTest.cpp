#include <gtest/gtest.h>

#include <QDir>

#include "data/Database.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "devices/DisplayGreeting.h"
#include "devices/ScaleProgram.h"
#include "support/BackendTest.h"
#include "support/LaunchRecorder.h"

using sandogh::ConnectionSettings;
using sandogh::Database;
using sandogh::DisplayGreeting;
using sandogh::Migrator;
using sandogh::ScaleProgram;
using sandogh::Session;
using sandogh::test::LaunchRecorder;

namespace {

class Greeting : public sandogh::test::BackendTest {
protected:
    void SetUp() override {
        BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        const Migrator::Result r = Migrator(db()).apply(sandogh::shopMigrations());
        ASSERT_TRUE(r.ok) << r.message.toStdString();
    }
    void insert(const QVariant& text) {
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Display (Display) VALUES (:text)"),
                           {{QStringLiteral(":text"), text}}));
    }
};

TEST_P(Greeting, WithoutARowItIsWelcome) {
    EXPECT_EQ(DisplayGreeting::read(db()), QStringLiteral("Welcome"));
}

TEST_P(Greeting, IsTheTextOfTheRow) {
    insert(QStringLiteral("Thank you"));
    EXPECT_EQ(DisplayGreeting::read(db()), QStringLiteral("Thank you"));
}

SANDOGH_INSTANTIATE_BACKENDS(Greeting);

TEST(GreetingOffline, UnreachableDatabaseKeepsWelcomeAndShowsTheMessage) {
    ConnectionSettings settings;
    ASSERT_TRUE(ConnectionSettings::parse(
        QStringLiteral("Provider=PostgreSQL;Data Source=127.0.0.1,1;Initial Catalog=shop;"
                       "User ID=nobody;Password=;Persist Security Info=True;"),
        QDir::tempPath(), settings, nullptr));
    sandogh::test::RecordingMessageService messages;
    Database database(settings, &messages);
    EXPECT_EQ(DisplayGreeting::read(database), QStringLiteral("Welcome"));
    EXPECT_EQ(messages.countOf(Database::connectionFailureMessage()), 1);
}

struct FolderCase {
    const char* folder;
    const char* program;
};

class ArkaScale : public ::testing::TestWithParam<FolderCase> {};

TEST_P(ArkaScale, StartsFromTheCompanionFolder) {
    LaunchRecorder launcher;
    ScaleProgram scale(QString::fromLatin1(GetParam().folder), launcher);
    EXPECT_TRUE(scale.mnuScale_Click());
    ASSERT_EQ(launcher.calls.size(), 1);
    EXPECT_EQ(launcher.calls[0].program, QString::fromLatin1(GetParam().program));
    EXPECT_TRUE(launcher.calls[0].arguments.isEmpty());
    EXPECT_FALSE(launcher.calls[0].hidden);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, ArkaScale,
    ::testing::Values(FolderCase{"/opt/shop", "/opt/shop/KotrimoAcc/ArkaScale.exe"},
                      FolderCase{"/opt/shop/", "/opt/shop/KotrimoAcc/ArkaScale.exe"}));

}  // namespace
