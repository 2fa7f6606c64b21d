#include <gtest/gtest.h>

#include "PtyPair.h"
#include "devices/GeneralPorts.h"

namespace sandogh::test {
namespace {

using Branch = GeneralPorts::StartupBranch;

TEST(GeneralPorts, StartupTakesTheFirstBranchThatApplies) {
    const struct {
        const char* name;
        bool portsActive;
        bool callerId;
        const char* callerModel;
        const char* readerModel;
        int displayLine;
        Branch branch;
        const char* comm1Settings;
        int comm1Threshold;
        const char* comm2Settings;
    } cases[] = {
        {"caller id", true, true, "0", "1", 1, Branch::CallerId, "9600,n,8,1", 0, "57600,n,8,1"},
        {"caller id TK104U", true, true, "TK104U", "1", 0, Branch::CallerId, "9600,n,8,1", 0,
         "115200,n,8,1"},
        {"caller id other model", true, true, "TK104", "0", 0, Branch::CallerId, "9600,n,8,1", 0,
         "57600,n,8,1"},
        {"barcode reader", true, false, "0", "1", 1, Branch::BarcodeReader, "9600,n,8,1", 3,
         "9600,n,8,1"},
        {"line display", true, false, "0", "2", 1, Branch::LineDisplay, "2400,n,8,1", 0,
         "9600,n,8,1"},
        {"two-line display", true, false, "0", "2", 2, Branch::None, "9600,n,8,1", 0, "9600,n,8,1"},
        {"ports off", false, true, "TK104U", "1", 1, Branch::None, "9600,n,8,1", 0, "9600,n,8,1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        GeneralPortsConfig config;
        config.portsActive = c.portsActive;
        config.callerIdActive = c.callerId;
        config.callerIdModel = QString::fromLatin1(c.callerModel);
        config.barcodeReaderModel = QString::fromLatin1(c.readerModel);
        config.displayLine = c.displayLine;
        GeneralPorts ports(config);
        EXPECT_EQ(ports.configureAtStartup(), c.branch);
        EXPECT_EQ(ports.MSComm1().settings(), QString::fromLatin1(c.comm1Settings));
        EXPECT_EQ(ports.MSComm1().rThreshold(), c.comm1Threshold);
        EXPECT_EQ(ports.MSComm2().settings(), QString::fromLatin1(c.comm2Settings));
    }
}

TEST(GeneralPorts, TheStatusBarShowsTheSecondPortNumber) {
    const struct {
        bool active;
        int comm2;
        const char* text;
    } cases[] = {{true, 2, " COM:2"}, {true, 12, " COM:12"}, {true, 0, ""}, {false, 2, ""}};
    for (const auto& c : cases) {
        GeneralPortsConfig config;
        config.portsActive = c.active;
        GeneralPorts ports(config);
        ports.MSComm2().setCommPort(c.comm2);
        EXPECT_EQ(ports.statusText(), QString::fromLatin1(c.text)) << c.comm2;
    }
}

// Two pseudo-terminals behind the two general ports.
class GeneralPortsOnPty : public ::testing::Test {
protected:
    GeneralPortsConfig config(int no, int no2, bool active = true) const {
        GeneralPortsConfig c;
        c.portsActive = active;
        c.portNo = no;
        c.portNo2 = no2;
        c.port1Device = first.slavePath();
        c.port2Device = second.slavePath();
        return c;
    }
    void SetUp() override { ASSERT_TRUE(first.ok() && second.ok()); }

    PtyPair first;
    PtyPair second;
};

TEST_F(GeneralPortsOnPty, OpenPortOpensWhatIsConfiguredUnderItsNumbers) {
    const struct {
        const char* name;
        bool active;
        int no;
        int no2;
        bool comm1Open;
        bool comm2Open;
    } cases[] = {{"both", true, 5, 7, true, true},
                 {"first only", true, 1, 0, true, false},
                 {"second only", true, 0, 2, false, true},
                 {"none", true, 0, 0, false, false},
                 {"master switch off", false, 1, 2, false, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        GeneralPorts ports(config(c.no, c.no2, c.active));
        ports.OpenPort();
        EXPECT_EQ(ports.MSComm1().isOpen(), c.comm1Open);
        EXPECT_EQ(ports.MSComm2().isOpen(), c.comm2Open);
        if (c.comm1Open && c.comm2Open) {
            EXPECT_EQ(ports.MSComm1().commPort(), 5);
            EXPECT_EQ(ports.MSComm2().commPort(), 7);
        }
    }
}

TEST_F(GeneralPortsOnPty, AFailingFirstPortEndsOpenPortSilently) {
    GeneralPortsConfig c = config(1, 2);
    c.port1Device = QStringLiteral("/dev/sandogh-no-such-port");
    GeneralPorts ports(c);
    ports.OpenPort();
    EXPECT_FALSE(ports.MSComm1().isOpen());
    EXPECT_FALSE(ports.MSComm2().isOpen());
}

TEST_F(GeneralPortsOnPty, ClosePortSendsThreeLineEndsThroughEachPortUnlessSwitchedOff) {
    GeneralPorts off(config(1, 2, false));
    ASSERT_TRUE(off.MSComm1().open());  // opened by someone else, say the display
    off.ClosePort();
    EXPECT_TRUE(off.MSComm1().isOpen());
    EXPECT_EQ(first.readAllFor(100), QByteArray());
    off.MSComm1().close();

    GeneralPorts ports(config(1, 2));
    ports.OpenPort();
    ASSERT_TRUE(ports.MSComm1().isOpen() && ports.MSComm2().isOpen());
    ports.ClosePort();
    EXPECT_FALSE(ports.MSComm1().isOpen());
    EXPECT_FALSE(ports.MSComm2().isOpen());
    const QByteArray feed("\x0d\x0a\x0d\x0a\x0d\x0a");
    EXPECT_EQ(first.readAllFor(200), feed);
    EXPECT_EQ(second.readAllFor(200), feed);
}

}  // namespace
}  // namespace sandogh::test
