#include <gtest/gtest.h>

#include <QFile>
#include <cstdlib>

#include <cups/cups.h>

#include "CupsServer.h"
#include "WaitUntil.h"
#include "devices/CashDrawer.h"
#include "devices/SpoolerRawPrinter.h"
#include "support/LaunchRecorder.h"
#include "support/RecordingMessageService.h"

namespace sandogh::test {
namespace {

QByteArray contents(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A scheduler of our own with a raw queue that writes into a file.
class SpoolerOnLocalCups : public ::testing::Test {
protected:
    void SetUp() override {
        // The user's own choice of printer would override the scheduler's default.
        qunsetenv("LPDEST");
        qunsetenv("PRINTER");
        if (!server.start())
            GTEST_SKIP() << "local CUPS scheduler unavailable: " << server.reason().toStdString();
    }

    CupsServer server;
    LaunchRecorder launcher;
    RecordingMessageService messages;
};

TEST_F(SpoolerOnLocalCups, DrawerKickArrivesAtTheDefaultPrinter) {
    const QString out = server.addFileQueue(QStringLiteral("receipt"), true);
    ASSERT_FALSE(out.isEmpty());
    EXPECT_EQ(SpoolerRawPrinter::defaultPrinter(), QStringLiteral("receipt"));

    SpoolerRawPrinter printer;
    CashDrawer drawer(DrawerConfig{}, printer, launcher, messages);
    drawer.open();

    ASSERT_TRUE(waitUntil([&] { return contents(out).size() >= 5; }, 20000));
    EXPECT_EQ(contents(out).toHex(' ').toUpper(), QByteArray("1B 70 00 19 1E"));
    EXPECT_EQ(server.lastJobTitle(QStringLiteral("receipt")), QStringLiteral("OPENCASH"));
    EXPECT_TRUE((messages.count() == 0));
    EXPECT_TRUE(launcher.calls.isEmpty());
}

TEST_F(SpoolerOnLocalCups, ALongBinaryJobArrivesUnchangedUnderItsTitle) {
    const QString out = server.addFileQueue(QStringLiteral("receipt"), true);
    ASSERT_FALSE(out.isEmpty());
    QByteArray job;
    for (int i = 0; i < 40000; ++i) {
        job.append(static_cast<char>(i * 7 % 256));
    }
    ASSERT_TRUE(SpoolerRawPrinter().printRaw(QStringLiteral("Receipt 12"), job));
    ASSERT_TRUE(waitUntil([&] { return contents(out).size() >= job.size(); }, 20000));
    EXPECT_EQ(contents(out), job);
    EXPECT_EQ(server.lastJobTitle(QStringLiteral("receipt")), QStringLiteral("Receipt 12"));
}

TEST_F(SpoolerOnLocalCups, NoDefaultPrinterShowsTheMessage) {
    const QString out = server.addFileQueue(QStringLiteral("labels"), false);
    ASSERT_FALSE(out.isEmpty());
    EXPECT_TRUE(SpoolerRawPrinter::defaultPrinter().isEmpty());

    SpoolerRawPrinter printer;
    CashDrawer drawer(DrawerConfig{}, printer, launcher, messages);
    drawer.open();
    ASSERT_EQ(messages.count(), 1);
    EXPECT_EQ(messages.messages()[0].text,
              QStringLiteral("The Printer Name you typed wasn't recognized."));
    EXPECT_EQ(contents(out), QByteArray());
}

}  // namespace
}  // namespace sandogh::test
