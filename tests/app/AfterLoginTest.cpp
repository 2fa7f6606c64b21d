// What follows a login: the user in the context and the error log, "UserInfo" in the
// settings, the cash desk, and the companion programs that are there.

#include <gtest/gtest.h>

#include <QDir>

#include "app/AfterLogin.h"
#include "app/CompanionPrograms.h"
#include "data/ErrorLog.h"
#include "data/ShopFixture.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

class AfterLoginTest : public test::ShopBackendTest {};

TEST_P(AfterLoginTest, TheUserIsRememberedAndTheCashDeskLookedUp) {
    exec(QStringLiteral("INSERT INTO Stations (Station_Name) VALUES (:name)"),
         {{QStringLiteral(":name"), QStringLiteral("صندوق اول")}});
    const int stationId = static_cast<int>(count(QStringLiteral("SELECT MAX(ID) FROM Stations")));

    test::AppTestContext app;
    app.useDatabase(testDatabase());
    app.context.machineSettings().write(settingkeys::StationId, QString::number(stationId));

    UserAccount user;
    user.id = 7;
    user.userName = QStringLiteral("maryam");
    user.name = QStringLiteral("مریم");
    AfterLogin(app.context).run(user);

    EXPECT_EQ(app.context.user().id, 7);
    EXPECT_EQ(app.context.errorLog().userName(), QStringLiteral("maryam"));
    EXPECT_EQ(app.context.station().id, stationId);
    EXPECT_EQ(app.context.station().name, QStringLiteral("صندوق اول"));

    // Read back through a second store on the same file: the values reached the disk.
    QSettingsStore reread(QStringLiteral("Retail"), app.settings.location());
    EXPECT_EQ(reread.read(QStringLiteral("UserInfo"), QStringLiteral("UserID")),
              QStringLiteral("7"));
    EXPECT_EQ(reread.read(QStringLiteral("UserInfo"), QStringLiteral("UserName")),
              QStringLiteral("maryam"));
    EXPECT_EQ(reread.read(QStringLiteral("UserInfo"), QStringLiteral("Name")),
              QStringLiteral("مریم"));
}

SANDOGH_INSTANTIATE_BACKENDS(AfterLoginTest);

TEST(CompanionProgramsTest, OnlyTheCompanionsThatAreThereAreStarted) {
    const QString messenger = QString::fromLatin1(CompanionPrograms::kMessenger)
#ifdef _WIN32
                              + QStringLiteral(".exe")
#endif
        ;
    const struct {
        bool accounting;
        bool messengerThere;
        int started;
    } cases[] = {
        {false, false, 0},
        {true, false, 1},
        {false, true, 1},
        {true, true, 2},
    };
    for (const auto& c : cases) {
        test::AppTestContext app;
        if (c.accounting) {
            ASSERT_TRUE(app.writeFile(QStringLiteral("Program/KotrimoAcc.exe"), "MZ"));
        }
        if (c.messengerThere) {
            ASSERT_TRUE(app.writeFile(messenger, "#!/bin/sh\n"));
        }
        CompanionPrograms programs(app.context.machineSettings(), app.launcher,
                                   app.programFolder());
        const QStringList started = programs.startLoginPrograms();
        EXPECT_EQ(started.size(), c.started);
        EXPECT_EQ(app.launcher.programs(), started);
        if (c.accounting) {
            EXPECT_EQ(started.first(),
                      QDir::cleanPath(app.path(QStringLiteral("Program/KotrimoAcc.exe"))));
            EXPECT_EQ(app.launcher.calls.first().workingDirectory,
                      QDir::cleanPath(app.path(QStringLiteral("Program"))));
        }
    }
}

TEST(CompanionProgramsTest, TheScaleProgramStartsOnlyWhenThere) {
    test::AppTestContext app;
    CompanionPrograms programs(app.context.machineSettings(), app.launcher, app.programFolder());
    EXPECT_FALSE(programs.startScaleProgram());
    EXPECT_TRUE(app.launcher.calls.isEmpty());
    ASSERT_TRUE(app.writeFile(QStringLiteral("KotrimoAcc/ArkaScale.exe"), "MZ"));
    EXPECT_TRUE(programs.startScaleProgram());
    EXPECT_EQ(app.launcher.programs(),
              QStringList{QDir::cleanPath(app.path(QStringLiteral("KotrimoAcc/ArkaScale.exe")))});
}

}  // namespace
}  // namespace sandogh
