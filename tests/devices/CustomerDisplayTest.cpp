#include <gtest/gtest.h>

#include "PtyPair.h"
#include "WaitUntil.h"
#include "devices/CustomerDisplay.h"

using sandogh::CustomerDisplay;
using sandogh::DisplayConfig;
using sandogh::GeneralPorts;
using sandogh::GeneralPortsConfig;
using sandogh::test::PtyPair;
using sandogh::test::waitUntil;

namespace {

// MSComm1 and MSCommCustomerDisplay each on a pseudo-terminal.
class DisplayOnPty : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(general.ok() && price.ok()); }

    GeneralPortsConfig portsConfig(bool active) const {
        GeneralPortsConfig c;
        c.portsActive = active;
        c.portNo = 1;
        c.port1Device = general.slavePath();
        return c;
    }
    DisplayConfig displayConfig(int kind, bool enabled = true) const {
        DisplayConfig c;
        c.enabled = enabled;
        c.kind = kind;
        c.port = 3;
        c.devicePath = price.slavePath();
        return c;
    }

    PtyPair general;  // far end of MSComm1
    PtyPair price;    // far end of MSCommCustomerDisplay
};

TEST_F(DisplayOnPty, TwoLineDisplayGetsBothCentredLines) {
    GeneralPorts ports(portsConfig(true));
    ports.OpenPort();
    CustomerDisplay display(displayConfig(2), ports);
    display.ShowOnCustomerDisplay(QStringLiteral("12,500"));
    const QByteArray got = general.readMaster(44);
    EXPECT_EQ(got, QByteArray("\r\n\r\n"
                              "    Price:12,500    "
                              "      Welcome       "));
}

TEST_F(DisplayOnPty, TwoLineDisplayUsesTheShopGreeting) {
    GeneralPorts ports(portsConfig(true));
    ports.OpenPort();
    CustomerDisplay display(displayConfig(0), ports);
    display.setGreeting(QStringLiteral("Thank you"));
    display.ShowOnCustomerDisplay(QStringLiteral("1,250,000"));
    EXPECT_EQ(general.readMaster(44), QByteArray("\r\n\r\n"
                                                 "  Price:1,250,000   "
                                                 "     Thank you      "));
}

class SingleLineOnPty : public DisplayOnPty, public ::testing::WithParamInterface<int> {};

TEST_P(SingleLineOnPty, ClearsThenShowsTheAmount) {
    GeneralPorts ports(portsConfig(true));
    ports.OpenPort();
    DisplayConfig c = displayConfig(1);
    c.delay = GetParam();
    CustomerDisplay display(c, ports);
    EXPECT_EQ(display.singleLinePauseMs(), GetParam() * CustomerDisplay::kMsPerDelayUnit);
    display.ShowOnCustomerDisplay(QStringLiteral("1,250,000"));
    EXPECT_EQ(general.readMaster(8), QByteArray("\x0c"
                                                "1250000"));
}

INSTANTIATE_TEST_SUITE_P(Delays, SingleLineOnPty, ::testing::Values(0, 1, 5));

TEST_F(DisplayOnPty, SingleLineUpdateDuringThePauseReplacesTheAmount) {
    GeneralPorts ports(portsConfig(true));
    ports.OpenPort();
    DisplayConfig c = displayConfig(1);
    c.delay = 5;
    CustomerDisplay display(c, ports);
    display.ShowOnCustomerDisplay(QStringLiteral("1,000"));
    display.ShowOnCustomerDisplay(QStringLiteral("2,500"));
    EXPECT_EQ(general.readMaster(6), QByteArray("\x0c\x0c"
                                                "2500"));
    EXPECT_EQ(general.readAllFor(150), QByteArray());  // the first amount never follows
}

TEST_F(DisplayOnPty, PriceDisplaySendsEscQAAndDigits) {
    GeneralPorts ports(portsConfig(true));
    CustomerDisplay display(displayConfig(3), ports);
    display.openPort();
    ASSERT_TRUE(display.port().isOpen());
    display.ShowOnCustomerDisplay(QStringLiteral("1,250,000"));
    EXPECT_EQ(price.readMaster(11).toHex(' ').toUpper(),
              QByteArray("1B 51 41 31 32 35 30 30 30 30 0D"));
    display.ShowOnCustomerDisplay(QString());
    EXPECT_EQ(price.readMaster(5).toHex(' ').toUpper(), QByteArray("1B 51 41 30 0D"));
    EXPECT_EQ(general.readAllFor(50), QByteArray());
}

struct LoadCase {
    int kind;
    bool enabled;
    bool opens;
};

class SaleScreenLoad : public DisplayOnPty, public ::testing::WithParamInterface<LoadCase> {};

TEST_P(SaleScreenLoad, OpensOnlyAnActivePriceDisplay) {
    GeneralPorts ports(portsConfig(true));
    CustomerDisplay display(displayConfig(GetParam().kind, GetParam().enabled), ports);
    display.saleScreenLoaded();
    EXPECT_EQ(display.port().isOpen(), GetParam().opens);
}

INSTANTIATE_TEST_SUITE_P(Kinds, SaleScreenLoad,
                         ::testing::Values(LoadCase{3, true, true}, LoadCase{3, false, false},
                                           LoadCase{1, true, false}, LoadCase{2, true, false}));

TEST_F(DisplayOnPty, PriceDisplayWithThePortClosedSendsNothing) {
    GeneralPorts ports(portsConfig(true));
    CustomerDisplay display(displayConfig(3), ports);
    display.ShowOnCustomerDisplay(QStringLiteral("12,500"));
    EXPECT_EQ(price.readAllFor(100), QByteArray());
}

struct SilentCase {
    const char* name;
    int kind;
    bool enabled;
    bool portsActive;
};

class SilentDisplay : public DisplayOnPty, public ::testing::WithParamInterface<SilentCase> {};

TEST_P(SilentDisplay, SendsNothing) {
    const SilentCase& c = GetParam();
    GeneralPorts ports(portsConfig(c.portsActive));
    ASSERT_TRUE(ports.MSComm1().open());  // open even so: the switches decide
    CustomerDisplay display(displayConfig(c.kind, c.enabled), ports);
    display.openPort();
    display.ShowOnCustomerDisplay(QStringLiteral("12,500"));
    EXPECT_EQ(general.readAllFor(100), QByteArray()) << c.name;
    EXPECT_EQ(price.readAllFor(10), QByteArray()) << c.name;
}

INSTANTIATE_TEST_SUITE_P(Switches, SilentDisplay,
                         ::testing::Values(SilentCase{"single-line, ports off", 1, true, false},
                                           SilentCase{"two-line, ports off", 2, true, false},
                                           SilentCase{"display off, single", 1, false, true},
                                           SilentCase{"display off, two-line", 2, false, true},
                                           SilentCase{"display off, price", 3, false, true}));

TEST_F(DisplayOnPty, LeavingTheSaleScreenResetsAndCloses) {
    GeneralPorts ports(portsConfig(true));
    CustomerDisplay display(displayConfig(3), ports);
    display.openPort();
    display.leaveSaleScreen();
    EXPECT_FALSE(display.port().isOpen());
    EXPECT_EQ(price.readMaster(4).toHex(' ').toUpper(), QByteArray("1B 73 31 0D"));
    display.leaveSaleScreen();  // closed already: nothing more
    EXPECT_EQ(price.readAllFor(50), QByteArray());
}

}  // namespace
