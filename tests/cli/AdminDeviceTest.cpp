// sandogh-admin device: the bytes of a frame printed instead of sent, the card terminal's
// answer over a pseudo-terminal, the ports of this machine, and the words refused.

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "AdminProcess.h"
#include "PtyPair.h"

namespace sandogh {
namespace {

// Every device command reads the machine settings of a temporary folder.
class AdminDevice : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        qputenv("SANDOGH_SETTINGS", dir.path().toLocal8Bit());
    }
    void TearDown() override { qunsetenv("SANDOGH_SETTINGS"); }

    void settings(const QByteArray& ini) {
        QFile f(dir.filePath(QStringLiteral("Retail.ini")));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(ini);
    }

    QTemporaryDir dir;
};

struct HexCase {
    QStringList args;
    QByteArray hex;
};

class AdminDeviceHex : public AdminDevice, public testing::WithParamInterface<HexCase> {};

TEST_P(AdminDeviceHex, PrintsTheBytesInsteadOfSending) {
    const AdminProcess::Result r = AdminProcess::run(QStringList{"device"} + GetParam().args);
    ASSERT_TRUE(r.started) << r.err.toStdString();
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, GetParam().hex + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Frames, AdminDeviceHex,
    testing::Values(
        HexCase{{"display", "--kind", "3", "--total", "1,250,000", "--hex"},
                "1B 51 41 31 32 35 30 30 30 30 0D"},
        HexCase{{"display", "--kind", "1", "--total", "12,500", "--hex"}, "0C 31 32 35 30 30"},
        HexCase{{"pec", "--amount", "1,250,000", "--invoice", "57", "--hex"},
                "30 30 38 36 52 51 30 38 31 50 52 30 30 30 41 4D 30 30 37 31 32 35 30 30 30 30 "
                "43 55 30 30 33 33 36 34 52 31 30 31 35 DD C7 98 CA E6 D1 20 DD D1 E6 D4 3A 20 "
                "35 37 52 32 30 30 30 54 31 30 30 30 54 32 30 30 30 53 56 30 30 30 53 47 30 30 "
                "30 41 44 30 30 30 50 44 30 30 31 31"}));

class AdminDeviceUsage : public AdminDevice, public testing::WithParamInterface<QStringList> {};

TEST_P(AdminDeviceUsage, IsRefused) {
    const AdminProcess::Result r = AdminProcess::run(QStringList{"device"} + GetParam());
    ASSERT_TRUE(r.started);
    EXPECT_EQ(r.exitCode, 2);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.contains("usage: sandogh-admin device"));
}

INSTANTIATE_TEST_SUITE_P(
    Words, AdminDeviceUsage,
    testing::Values(QStringList{}, QStringList{"scale"}, QStringList{"display", "--total", "1"},
                    QStringList{"display", "--kind", "x", "--total", "1"},
                    QStringList{"pec", "--amount", "1"}, QStringList{"pec", "--invoice", "1"},
                    QStringList{"pec", "--amount", "1", "--invoice", "1", "--timeout", "0"},
                    QStringList{"drawer", "--now"}));

struct PecCase {
    QByteArray answer;
    QString line;
};

class AdminDevicePec : public AdminDevice, public testing::WithParamInterface<PecCase> {};

TEST_P(AdminDevicePec, PrintsTheTerminalsAnswer) {
    test::PtyPair pty;
    ASSERT_TRUE(pty.ok());
    QProcess admin;
    admin.start(AdminProcess::binaryPath(), {"device", "pec", "--amount", "1,250,000", "--invoice",
                                             "57", "--port", pty.slavePath(), "--timeout", "30"});
    ASSERT_TRUE(admin.waitForStarted(10000));
    const QByteArray request = pty.readMaster(90, 10000);
    EXPECT_TRUE(request.startsWith("0086RQ081PR000AM0071250000"));
    pty.writeMaster(GetParam().answer);
    ASSERT_TRUE(admin.waitForFinished(30000));
    EXPECT_EQ(admin.exitCode(), 0) << admin.readAllStandardError().toStdString();
    const QString out = QString::fromUtf8(admin.readAllStandardOutput());
    EXPECT_TRUE(out.endsWith(GetParam().line + QLatin1Char('\n'))) << out.toStdString();
}

// The answers' texts are the terminal's (tested under devices); the command prints them.
INSTANTIATE_TEST_SUITE_P(
    Codes, AdminDevicePec,
    testing::Values(PecCase{"0013RS00200PD0011", QStringLiteral("code 00: approved")},
                    PecCase{"RS00205", QStringLiteral("code 05: (no message)")}));

TEST_F(AdminDevice, PortsShowWhatEachPortMapsTo) {
    test::PtyPair pty;
    ASSERT_TRUE(pty.ok());
    settings("[PortNo]\nNo=0\nPec=5\n[ISActivePoolDisplay]\nPort=7\n[Devices]\nMSCommPec=" +
             pty.slavePath().toLocal8Bit() +
             "\nMSCommCustomerDisplay=/dev/sandogh-no-such-port\n[IsActivePort]\nEnable=1\n");
    const AdminProcess::Result r = AdminProcess::run({"device", "ports"});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    const QStringList lines = r.outText().split(QLatin1Char('\n'));
    ASSERT_GE(lines.size(), 5);
    EXPECT_EQ(lines[0], QStringLiteral("general ports (IsActivePort.Enable): on"));
    EXPECT_EQ(lines[1], QStringLiteral("MSComm1\tCOM0\tno port"));
    EXPECT_TRUE(lines[3].startsWith(
        QStringLiteral("MSCommCustomerDisplay\tCOM7\t/dev/sandogh-no-such-port\tdoes not open")));
    EXPECT_EQ(lines[4],
              QStringLiteral("MSCommPec\tCOM5\t") + pty.slavePath() + QStringLiteral("\topens"));
}

}  // namespace
}  // namespace sandogh
