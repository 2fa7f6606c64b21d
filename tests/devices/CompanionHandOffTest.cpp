#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "devices/CompanionHandOff.h"
#include "support/LaunchRecorder.h"

namespace {

using sandogh::CompanionHandOff;
using sandogh::test::LaunchRecorder;

TEST(CompanionHandOff, SendsTheCommandAsTheOneArgumentFromTheProgramsFolder) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("KotrimoAcc")));
    const QString program = dir.filePath(QStringLiteral("KotrimoAcc/KotrimoAcc.exe"));
    QFile file(program);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();

    LaunchRecorder launcher;
    CompanionHandOff companion(launcher, program);
    ASSERT_TRUE(companion.isPresent());
    const QString command = QStringLiteral("mnuPosMellat,125000");
    EXPECT_TRUE(companion.send(command));
    ASSERT_EQ(launcher.calls.size(), 1);
    EXPECT_EQ(launcher.calls.first().program, program);
    EXPECT_EQ(launcher.calls.first().arguments, QStringList{command});
    EXPECT_EQ(QDir(launcher.calls.first().workingDirectory),
              QDir(dir.filePath(QStringLiteral("KotrimoAcc"))));
    EXPECT_EQ(companion.lastCommand(), command);
}

TEST(CompanionHandOff, AMissingProgramOrAFolderIsNotStarted) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    LaunchRecorder launcher;
    for (const QString& path : {QString(), dir.filePath(QStringLiteral("none.exe")), dir.path()}) {
        CompanionHandOff companion(launcher, path);
        EXPECT_FALSE(companion.isPresent()) << path.toStdString();
        EXPECT_FALSE(companion.send(QStringLiteral("mnuRptFish,1,"))) << path.toStdString();
    }
    EXPECT_TRUE(launcher.calls.isEmpty());
}

}  // namespace
