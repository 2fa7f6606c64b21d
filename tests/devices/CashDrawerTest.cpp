#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "WaitUntil.h"
#include "devices/CashDrawer.h"
#include "devices/DetachedProgramLauncher.h"
#include "support/LaunchRecorder.h"
#include "support/RawPrintRecorder.h"
#include "support/RecordingMessageService.h"

using sandogh::CashDrawer;
using sandogh::DetachedProgramLauncher;
using sandogh::DrawerConfig;
using sandogh::MessageStyle;
using sandogh::RawPrinter;
using sandogh::test::LaunchRecorder;
using sandogh::test::RecordingMessageService;
using sandogh::test::waitUntil;

namespace {

struct PathCase {
    const char* usb;
    bool onPrinter;
};

class DrawerPath : public ::testing::TestWithParam<PathCase> {};

TEST_P(DrawerPath, FollowsPrinterPortUsb) {
    DrawerConfig config;
    config.printerPortUsb = QString::fromLatin1(GetParam().usb);
    config.programFolder = QStringLiteral("/opt/shop");
    sandogh::test::RawPrintRecorder printer;
    LaunchRecorder launcher;
    RecordingMessageService messages;
    CashDrawer drawer(config, printer, launcher, messages);
    drawer.open();
    EXPECT_EQ(printer.jobs.size(), GetParam().onPrinter ? 1 : 0) << GetParam().usb;
    EXPECT_EQ(launcher.calls.size(), GetParam().onPrinter ? 0 : 1) << GetParam().usb;
    EXPECT_TRUE((messages.count() == 0));
}

INSTANTIATE_TEST_SUITE_P(Values, DrawerPath,
                         ::testing::Values(PathCase{"True", true}, PathCase{"true", true},
                                           PathCase{"TRUE", true}, PathCase{" True ", true},
                                           PathCase{"False", false}, PathCase{"1", false},
                                           PathCase{"Truee", false}, PathCase{"", false}));

TEST(CashDrawer, KickIsOneRawJobOfFiveBytes) {
    sandogh::test::RawPrintRecorder printer;
    LaunchRecorder launcher;
    RecordingMessageService messages;
    CashDrawer drawer(DrawerConfig{}, printer, launcher, messages);
    drawer.OpenCashDrawer();
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_EQ(printer.jobs[0].first, QStringLiteral("OPENCASH"));
    EXPECT_EQ(printer.jobs[0].second.toHex(' ').toUpper(), QByteArray("1B 70 00 19 1E"));
}

TEST(CashDrawer, UnknownPrinterIsReportedPlainly) {
    sandogh::test::RawPrintRecorder printer;
    printer.hasPrinter = false;
    LaunchRecorder launcher;
    RecordingMessageService messages;
    CashDrawer drawer(DrawerConfig{}, printer, launcher, messages);
    drawer.open();
    ASSERT_EQ(messages.count(), 1);
    EXPECT_EQ(messages.messages()[0].text,
              QStringLiteral("The Printer Name you typed wasn't recognized."));
    EXPECT_EQ(messages.messages()[0].style, MessageStyle::CriticalPlain);
    EXPECT_TRUE(launcher.calls.isEmpty());
}

struct ProgramCase {
    const char* folder;
    const char* configured;
    const char* program;
    const char* workingDir;
};

class DrawerProgram : public ::testing::TestWithParam<ProgramCase> {};

TEST_P(DrawerProgram, StartsHiddenWithParameterZero) {
    const ProgramCase& c = GetParam();
    DrawerConfig config;
    config.printerPortUsb = QStringLiteral("False");
    config.programFolder = QString::fromLatin1(c.folder);
    config.drawerProgram = QString::fromLatin1(c.configured);
    sandogh::test::RawPrintRecorder printer;
    LaunchRecorder launcher;
    RecordingMessageService messages;
    CashDrawer drawer(config, printer, launcher, messages);
    drawer.open();
    ASSERT_EQ(launcher.calls.size(), 1);
    EXPECT_EQ(launcher.calls[0].program, QString::fromLatin1(c.program));
    EXPECT_EQ(launcher.calls[0].arguments, QStringList{QStringLiteral("0")});
    EXPECT_EQ(launcher.calls[0].workingDirectory, QString::fromLatin1(c.workingDir));
    EXPECT_TRUE(launcher.calls[0].hidden);
    EXPECT_TRUE(printer.jobs.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Folders, DrawerProgram,
    ::testing::Values(
        ProgramCase{"/opt/shop", "", "/opt/shop/Program/Tamvex.exe", "/opt/shopTamvex.exe"},
        ProgramCase{"/opt/shop/", "", "/opt/shop/Program/Tamvex.exe", "/opt/shopTamvex.exe"},
        ProgramCase{"/opt/shop", "bin/drawer", "/opt/shop/bin/drawer", "/opt/shopTamvex.exe"},
        ProgramCase{"/opt/shop", "/usr/local/bin/kick", "/usr/local/bin/kick",
                    "/opt/shopTamvex.exe"}));

// The real launcher: the program runs detached and gets its argument.
TEST(DetachedProgramLauncher, StartsTheProgramWithItsArguments) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString out = dir.filePath(QStringLiteral("out.txt"));
    DetachedProgramLauncher launcher;
    ASSERT_TRUE(launcher.startDetached(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"),
         QStringLiteral("{ pwd; echo \"$1\"; } > \"$0.tmp\" && mv \"$0.tmp\" \"$0\""), out,
         QStringLiteral("0")},
        dir.path(), true));
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(out); }, 10000));
    QFile f(out);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromLocal8Bit(f.readAll()).split(QLatin1Char('\n'));
    ASSERT_GE(lines.size(), 2);
    EXPECT_EQ(QDir(lines[0]).canonicalPath(), QDir(dir.path()).canonicalPath());
    EXPECT_EQ(lines[1], QStringLiteral("0"));
}

}  // namespace
