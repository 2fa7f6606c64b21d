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

namespace sandogh::test {
namespace {

// The drawer opened once with a configuration, against recording stand-ins.
class CashDrawerTest : public ::testing::Test {
protected:
    void open(const DrawerConfig& config) {
        printer.jobs.clear();
        launcher.calls.clear();
        CashDrawer(config, printer, launcher, messages).open();
    }

    RawPrintRecorder printer;
    LaunchRecorder launcher;
    RecordingMessageService messages;
};

TEST_F(CashDrawerTest, PrinterPortUsbChoosesTheKickThroughThePrinterOrTheProgram) {
    const struct {
        const char* usb;
        bool onPrinter;
    } cases[] = {{"True", true},   {"true", true}, {"TRUE", true},   {" True ", true},
                 {"False", false}, {"1", false},   {"Truee", false}, {"", false}};
    for (const auto& c : cases) {
        DrawerConfig config;
        config.printerPortUsb = QString::fromLatin1(c.usb);
        config.programFolder = QStringLiteral("/opt/shop");
        open(config);
        EXPECT_EQ(printer.jobs.size(), c.onPrinter ? 1 : 0) << c.usb;
        EXPECT_EQ(launcher.calls.size(), c.onPrinter ? 0 : 1) << c.usb;
    }
    EXPECT_EQ(messages.count(), 0);
    // The kick: one raw job of five bytes.
    open(DrawerConfig{});
    ASSERT_EQ(printer.jobs.size(), 1);
    EXPECT_EQ(printer.jobs[0].first, QStringLiteral("OPENCASH"));
    EXPECT_EQ(printer.jobs[0].second.toHex(' ').toUpper(), QByteArray("1B 70 00 19 1E"));
}

TEST_F(CashDrawerTest, UnknownPrinterIsReportedPlainly) {
    printer.hasPrinter = false;
    open(DrawerConfig{});
    ASSERT_EQ(messages.count(), 1);
    EXPECT_EQ(messages.messages()[0].text,
              QStringLiteral("The Printer Name you typed wasn't recognized."));
    EXPECT_EQ(messages.messages()[0].style, MessageStyle::CriticalPlain);
    EXPECT_TRUE(launcher.calls.isEmpty());
}

TEST_F(CashDrawerTest, TheDrawerProgramStartsHiddenWithParameterZero) {
    const struct {
        const char* folder;
        const char* configured;
        const char* program;
    } cases[] = {
        {"/opt/shop", "", "/opt/shop/Program/Tamvex.exe"},
        {"/opt/shop/", "", "/opt/shop/Program/Tamvex.exe"},
        {"/opt/shop", "bin/drawer", "/opt/shop/bin/drawer"},
        {"/opt/shop", "/usr/local/bin/kick", "/usr/local/bin/kick"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.program);
        DrawerConfig config;
        config.printerPortUsb = QStringLiteral("False");
        config.programFolder = QString::fromLatin1(c.folder);
        config.drawerProgram = QString::fromLatin1(c.configured);
        open(config);
        ASSERT_EQ(launcher.calls.size(), 1);
        EXPECT_EQ(launcher.calls[0].program, QString::fromLatin1(c.program));
        EXPECT_EQ(launcher.calls[0].arguments, QStringList{QStringLiteral("0")});
        EXPECT_EQ(launcher.calls[0].workingDirectory, QStringLiteral("/opt/shopTamvex.exe"));
        EXPECT_TRUE(launcher.calls[0].hidden);
        EXPECT_TRUE(printer.jobs.isEmpty());
    }
}

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
}  // namespace sandogh::test
