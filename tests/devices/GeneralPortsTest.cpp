#include <gtest/gtest.h>

#include "PtyPair.h"
#include "WaitUntil.h"
#include "devices/GeneralPorts.h"

using sandogh::GeneralPorts;
using sandogh::GeneralPortsConfig;
using sandogh::test::PtyPair;
using sandogh::test::waitUntil;
using Branch = sandogh::GeneralPorts::StartupBranch;

namespace {

struct StartupCase {
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
};

class StartupConfiguration : public ::testing::TestWithParam<StartupCase> {};

TEST_P(StartupConfiguration, TakesTheFirstBranchThatApplies) {
    const StartupCase& c = GetParam();
    GeneralPortsConfig config;
    config.portsActive = c.portsActive;
    config.callerIdActive = c.callerId;
    config.callerIdModel = QString::fromLatin1(c.callerModel);
    config.barcodeReaderModel = QString::fromLatin1(c.readerModel);
    config.displayLine = c.displayLine;
    GeneralPorts ports(config);
    EXPECT_EQ(ports.configureAtStartup(), c.branch) << c.name;
    EXPECT_EQ(ports.MSComm1().settings(), QString::fromLatin1(c.comm1Settings)) << c.name;
    EXPECT_EQ(ports.MSComm1().rThreshold(), c.comm1Threshold) << c.name;
    EXPECT_EQ(ports.MSComm2().settings(), QString::fromLatin1(c.comm2Settings)) << c.name;
}

INSTANTIATE_TEST_SUITE_P(
    Branches, StartupConfiguration,
    ::testing::Values(StartupCase{"caller id", true, true, "0", "1", 1, Branch::CallerId,
                                  "9600,n,8,1", 0, "57600,n,8,1"},
                      StartupCase{"caller id TK104U", true, true, "TK104U", "1", 0,
                                  Branch::CallerId, "9600,n,8,1", 0, "115200,n,8,1"},
                      StartupCase{"caller id other model", true, true, "TK104", "0", 0,
                                  Branch::CallerId, "9600,n,8,1", 0, "57600,n,8,1"},
                      StartupCase{"barcode reader", true, false, "0", "1", 1, Branch::BarcodeReader,
                                  "9600,n,8,1", 3, "9600,n,8,1"},
                      StartupCase{"line display", true, false, "0", "2", 1, Branch::LineDisplay,
                                  "2400,n,8,1", 0, "9600,n,8,1"},
                      StartupCase{"two-line display", true, false, "0", "2", 2, Branch::None,
                                  "9600,n,8,1", 0, "9600,n,8,1"},
                      StartupCase{"ports off", false, true, "TK104U", "1", 1, Branch::None,
                                  "9600,n,8,1", 0, "9600,n,8,1"}));

struct StatusCase {
    bool active;
    int comm2;
    const char* text;
};

class StatusBar : public ::testing::TestWithParam<StatusCase> {};

TEST_P(StatusBar, ShowsTheSecondPortNumber) {
    GeneralPortsConfig config;
    config.portsActive = GetParam().active;
    GeneralPorts ports(config);
    ports.MSComm2().setCommPort(GetParam().comm2);
    EXPECT_EQ(ports.statusText(), QString::fromLatin1(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Numbers, StatusBar,
                         ::testing::Values(StatusCase{true, 2, " COM:2"},
                                           StatusCase{true, 1, " COM:1"},
                                           StatusCase{true, 12, " COM:12"}, StatusCase{true, 0, ""},
                                           StatusCase{false, 2, ""}));

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

struct OpenCase {
    const char* name;
    bool active;
    int no;
    int no2;
    bool comm1Open;
    bool comm2Open;
};

class OpenPortCases : public GeneralPortsOnPty, public ::testing::WithParamInterface<OpenCase> {};

TEST_P(OpenPortCases, OpensWhatIsConfigured) {
    const OpenCase& c = GetParam();
    GeneralPorts ports(config(c.no, c.no2, c.active));
    ports.OpenPort();
    EXPECT_EQ(ports.MSComm1().isOpen(), c.comm1Open) << c.name;
    EXPECT_EQ(ports.MSComm2().isOpen(), c.comm2Open) << c.name;
}

INSTANTIATE_TEST_SUITE_P(Switches, OpenPortCases,
                         ::testing::Values(OpenCase{"both", true, 1, 2, true, true},
                                           OpenCase{"first only", true, 1, 0, true, false},
                                           OpenCase{"second only", true, 0, 2, false, true},
                                           OpenCase{"none", true, 0, 0, false, false},
                                           OpenCase{"master switch off", false, 1, 2, false,
                                                    false}));

TEST_F(GeneralPortsOnPty, OpenPortTakesTheConfiguredNumbers) {
    GeneralPorts ports(config(5, 7));
    ports.OpenPort();
    EXPECT_EQ(ports.MSComm1().commPort(), 5);
    EXPECT_EQ(ports.MSComm2().commPort(), 7);
}

TEST_F(GeneralPortsOnPty, AFailingFirstPortEndsOpenPortSilently) {
    GeneralPortsConfig c = config(1, 2);
    c.port1Device = QStringLiteral("/dev/sandogh-no-such-port");
    GeneralPorts ports(c);
    ports.OpenPort();
    EXPECT_FALSE(ports.MSComm1().isOpen());
    EXPECT_FALSE(ports.MSComm2().isOpen());
}

TEST_F(GeneralPortsOnPty, ClosePortSendsThreeLineEndsThroughEachPort) {
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

TEST_F(GeneralPortsOnPty, ClosePortWithTheSwitchOffLeavesPortsAlone) {
    GeneralPorts off(config(1, 2, false));
    ASSERT_TRUE(off.MSComm1().open());  // opened by someone else, say the display
    off.ClosePort();
    EXPECT_TRUE(off.MSComm1().isOpen());
    EXPECT_EQ(first.readAllFor(100), QByteArray());
}

}  // namespace
