#include <gtest/gtest.h>

#include "PtyPair.h"
#include "WaitUntil.h"
#include "devices/SerialLine.h"

namespace sandogh::test {
namespace {

TEST(SerialLine, ComNumbersFollowThePlatformNamingUnlessAPathIsGiven) {
    const struct {
        int number;
        const char* device;
    } cases[] = {{1, "/dev/ttyS0"}, {2, "/dev/ttyS1"}, {16, "/dev/ttyS15"}, {0, ""}, {-1, ""}};
    for (const auto& c : cases) {
        EXPECT_EQ(SerialLine::deviceForComPort(c.number), QString::fromLatin1(c.device))
            << c.number;
    }
    SerialLine line(SerialPortConfig::MSComm1());
    EXPECT_EQ(line.deviceName(), QStringLiteral("/dev/ttyS0"));
    line.setDevicePath(QStringLiteral("/dev/ttyUSB0"));
    EXPECT_EQ(line.deviceName(), QStringLiteral("/dev/ttyUSB0"));
}

TEST(SerialLine, EachPortHasItsBuiltInDefaults) {
    const struct {
        const char* name;
        SerialPortConfig config;
        int commPort;
        const char* settings;
    } cases[] = {
        {"MSComm1", SerialPortConfig::MSComm1(), 1, "9600,n,8,1"},
        {"MSComm2", SerialPortConfig::MSComm2(), 2, "9600,n,8,1"},
        {"MSCommCustomerDisplay", SerialPortConfig::port(), 3, "2400,n,8,1"},
        {"MSCommPec", SerialPortConfig::MSCommPec(), 1, "9600,n,8,1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        SerialLine line(c.config);
        EXPECT_EQ(line.commPort(), c.commPort);
        EXPECT_EQ(line.settings(), QString::fromLatin1(c.settings));
        EXPECT_EQ(line.inBufferSize(), 1024);
        EXPECT_EQ(line.outBufferSize(), 512);
        EXPECT_EQ(line.inputLen(), 0);
        EXPECT_EQ(line.rThreshold(), 0);
        EXPECT_FALSE(line.rtsEnable());
        EXPECT_FALSE(line.isOpen());
    }
}

// MSComm1 on a pseudo-terminal, not yet opened.
class SerialLineOnPty : public ::testing::Test {
protected:
    SerialPortConfig config() const {
        SerialPortConfig c = SerialPortConfig::MSComm1();
        c.devicePath = pty.slavePath();
        return c;
    }
    void SetUp() override { ASSERT_TRUE(pty.ok()); }

    PtyPair pty;
    SerialLine line{config()};
};

TEST_F(SerialLineOnPty, WritesReachTheFarEndUnchanged) {
    ASSERT_TRUE(line.open()) << line.errorString().toStdString();
    // Bytes a terminal would translate: CR, LF, NUL, ESC and high bytes.
    const QByteArray bytes("\x1b\x51\x41\r\n\x00\x0c\xdd\xff", 9);
    ASSERT_TRUE(line.write(bytes));
    EXPECT_EQ(pty.readMaster(bytes.size()), bytes);
}

// The receive event waits for the threshold; InputLen limits what one read takes.
TEST_F(SerialLineOnPty, ReceivedBytesAreAnnouncedAtTheThresholdAndReadUpToInputLen) {
    line.setRThreshold(3);
    ASSERT_TRUE(line.open());
    int received = 0;
    QObject::connect(&line, &SerialLine::received, [&] { ++received; });
    pty.writeMaster("ab");
    ASSERT_TRUE(waitUntil([&] { return line.bytesAvailable() == 2; }));
    EXPECT_EQ(received, 0);
    pty.writeMaster("cde");
    ASSERT_TRUE(waitUntil([&] { return received > 0 && line.bytesAvailable() == 5; }));
    line.setInputLen(2);
    EXPECT_EQ(line.read(), QByteArray("ab"));
    line.setInputLen(0);
    EXPECT_EQ(line.read(), QByteArray("cde"));
    EXPECT_EQ(line.read(), QByteArray());
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
}  // namespace sandogh::test
