#include <gtest/gtest.h>

#include "PtyPair.h"
#include "WaitUntil.h"
#include "devices/SerialLine.h"

using sandogh::SerialLine;
using sandogh::SerialPortConfig;
using sandogh::test::PtyPair;
using sandogh::test::waitUntil;

namespace {

struct ComCase {
    int number;
    const char* device;
};

class ComNumberMapping : public ::testing::TestWithParam<ComCase> {};

TEST_P(ComNumberMapping, FollowsThePlatformNaming) {
    EXPECT_EQ(SerialLine::deviceForComPort(GetParam().number),
              QString::fromLatin1(GetParam().device));
}

INSTANTIATE_TEST_SUITE_P(Numbers, ComNumberMapping,
                         ::testing::Values(ComCase{1, "/dev/ttyS0"}, ComCase{2, "/dev/ttyS1"},
                                           ComCase{3, "/dev/ttyS2"}, ComCase{16, "/dev/ttyS15"},
                                           ComCase{0, ""}, ComCase{-1, ""}));

struct DefaultCase {
    const char* name;
    SerialPortConfig config;
    int commPort;
    const char* settings;
};

class PortDefaults : public ::testing::TestWithParam<DefaultCase> {};

TEST_P(PortDefaults, AreTheBuiltInOnes) {
    const DefaultCase& c = GetParam();
    SerialLine line(c.config);
    EXPECT_EQ(line.commPort(), c.commPort) << c.name;
    EXPECT_EQ(line.settings(), QString::fromLatin1(c.settings)) << c.name;
    EXPECT_EQ(line.inBufferSize(), 1024) << c.name;
    EXPECT_EQ(line.outBufferSize(), 512) << c.name;
    EXPECT_EQ(line.inputLen(), 0) << c.name;
    EXPECT_EQ(line.rThreshold(), 0) << c.name;
    EXPECT_FALSE(line.rtsEnable()) << c.name;
    EXPECT_FALSE(line.isOpen()) << c.name;
}

INSTANTIATE_TEST_SUITE_P(
    FourPorts, PortDefaults,
    ::testing::Values(DefaultCase{"MSComm1", SerialPortConfig::MSComm1(), 1, "9600,n,8,1"},
                      DefaultCase{"MSComm2", SerialPortConfig::MSComm2(), 2, "9600,n,8,1"},
                      DefaultCase{"MSCommCustomerDisplay", SerialPortConfig::port(), 3,
                                  "2400,n,8,1"},
                      DefaultCase{"MSCommPec", SerialPortConfig::MSCommPec(), 1, "9600,n,8,1"}));

SerialPortConfig onPty(const PtyPair& pty) {
    SerialPortConfig c = SerialPortConfig::MSComm1();
    c.devicePath = pty.slavePath();
    return c;
}

TEST(SerialLine, DevicePathReplacesTheComNumber) {
    SerialPortConfig c = SerialPortConfig::MSComm1();
    SerialLine line(c);
    EXPECT_EQ(line.deviceName(), QStringLiteral("/dev/ttyS0"));
    line.setDevicePath(QStringLiteral("/dev/ttyUSB0"));
    EXPECT_EQ(line.deviceName(), QStringLiteral("/dev/ttyUSB0"));
}

TEST(SerialLine, WritesReachTheFarEndUnchanged) {
    PtyPair pty;
    ASSERT_TRUE(pty.ok());
    SerialLine line(onPty(pty));
    ASSERT_TRUE(line.open()) << line.errorString().toStdString();
    // Bytes a terminal would translate: CR, LF, NUL, ESC and high bytes.
    const QByteArray bytes("\x1b\x51\x41\r\n\x00\x0c\xdd\xff", 9);
    ASSERT_TRUE(line.write(bytes));
    EXPECT_EQ(pty.readMaster(bytes.size()), bytes);
}

TEST(SerialLine, InputLenLimitsARead) {
    PtyPair pty;
    ASSERT_TRUE(pty.ok());
    SerialLine line(onPty(pty));
    ASSERT_TRUE(line.open());
    pty.writeMaster("12345");
    ASSERT_TRUE(waitUntil([&] { return line.bytesAvailable() == 5; }));
    line.setInputLen(2);
    EXPECT_EQ(line.read(), QByteArray("12"));
    line.setInputLen(0);
    EXPECT_EQ(line.read(), QByteArray("345"));
    EXPECT_EQ(line.read(), QByteArray());
}

TEST(SerialLine, ReceiveEventWaitsForTheThreshold) {
    PtyPair pty;
    ASSERT_TRUE(pty.ok());
    SerialLine line(onPty(pty));
    line.setRThreshold(3);
    ASSERT_TRUE(line.open());
    int received = 0;
    QObject::connect(&line, &SerialLine::received, [&] { ++received; });
    pty.writeMaster("ab");
    ASSERT_TRUE(waitUntil([&] { return line.bytesAvailable() == 2; }));
    EXPECT_EQ(received, 0);
    pty.writeMaster("c");
    ASSERT_TRUE(waitUntil([&] { return received > 0; }));
    EXPECT_EQ(line.read(), QByteArray("abc"));
}

TEST(SerialLine, MissingDeviceStaysClosed) {
    SerialPortConfig c = SerialPortConfig::MSComm1();
    c.devicePath = QStringLiteral("/dev/sandogh-no-such-port");
    SerialLine line(c);
    EXPECT_FALSE(line.open());
    EXPECT_FALSE(line.isOpen());
    EXPECT_FALSE(line.errorString().isEmpty());
    EXPECT_FALSE(line.write("x"));
    EXPECT_EQ(line.read(), QByteArray());
    line.close();  // harmless
}

}  // namespace
