#include <gtest/gtest.h>

#include "PtyPair.h"
#include "devices/CustomerDisplay.h"

namespace sandogh::test {
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

TEST_F(DisplayOnPty, TwoLineDisplayGetsTheAmountAndTheGreetingCentred) {
    for (const int kind : {0, 2}) {
        SCOPED_TRACE(kind);
        GeneralPorts ports(portsConfig(true));
        ports.OpenPort();
        CustomerDisplay display(displayConfig(kind), ports);
        display.ShowOnCustomerDisplay(QStringLiteral("12,500"));
        EXPECT_EQ(general.readMaster(44), QByteArray("\r\n\r\n"
                                                     "    Price:12,500    "
                                                     "      Welcome       "));
        display.setGreeting(QStringLiteral("Thank you"));
        display.ShowOnCustomerDisplay(QStringLiteral("1,250,000"));
        EXPECT_EQ(general.readMaster(44), QByteArray("\r\n\r\n"
                                                     "  Price:1,250,000   "
                                                     "     Thank you      "));
    }
}

TEST_F(DisplayOnPty, SingleLineDisplayIsClearedThenShowsTheAmount) {
    for (const int delay : {0, 1, 5}) {
        GeneralPorts ports(portsConfig(true));
        ports.OpenPort();
        DisplayConfig c = displayConfig(1);
        c.delay = delay;
        CustomerDisplay display(c, ports);
        EXPECT_EQ(display.singleLinePauseMs(), delay * CustomerDisplay::kMsPerDelayUnit);
        display.ShowOnCustomerDisplay(QStringLiteral("1,250,000"));
        EXPECT_EQ(general.readMaster(8), QByteArray("\x0c"
                                                    "1250000"))
            << delay;
    }
}

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

TEST_F(DisplayOnPty, PriceDisplaySendsEscQAAndDigitsOnItsOwnPortOnceOpen) {
    GeneralPorts ports(portsConfig(true));
    CustomerDisplay display(displayConfig(3), ports);
    display.ShowOnCustomerDisplay(QStringLiteral("12,500"));  // the port is still closed
    EXPECT_EQ(price.readAllFor(100), QByteArray());
    display.openPort();
    ASSERT_TRUE(display.port().isOpen());
    display.ShowOnCustomerDisplay(QStringLiteral("1,250,000"));
    EXPECT_EQ(price.readMaster(11).toHex(' ').toUpper(),
              QByteArray("1B 51 41 31 32 35 30 30 30 30 0D"));
    EXPECT_EQ(general.readAllFor(50), QByteArray());
}

TEST_F(DisplayOnPty, TheSaleScreenOpensOnlyAnActivePriceDisplay) {
    const struct {
        int kind;
        bool enabled;
        bool opens;
    } cases[] = {{3, true, true}, {3, false, false}, {1, true, false}, {2, true, false}};
    for (const auto& c : cases) {
        GeneralPorts ports(portsConfig(true));
        CustomerDisplay display(displayConfig(c.kind, c.enabled), ports);
        display.saleScreenLoaded();
        EXPECT_EQ(display.port().isOpen(), c.opens) << c.kind << " " << c.enabled;
    }
}

TEST_F(DisplayOnPty, ADisplayOrPortsSwitchedOffSendNothing) {
    const struct {
        const char* name;
        int kind;
        bool enabled;
        bool portsActive;
    } cases[] = {{"single-line, ports off", 1, true, false},
                 {"two-line, ports off", 2, true, false},
                 {"display off, single", 1, false, true},
                 {"display off, two-line", 2, false, true},
                 {"display off, price", 3, false, true}};
    for (const auto& c : cases) {
        GeneralPorts ports(portsConfig(c.portsActive));
        ASSERT_TRUE(ports.MSComm1().open());  // open even so: the switches decide
        CustomerDisplay display(displayConfig(c.kind, c.enabled), ports);
        display.openPort();
        display.ShowOnCustomerDisplay(QStringLiteral("12,500"));
        EXPECT_EQ(general.readAllFor(100), QByteArray()) << c.name;
        EXPECT_EQ(price.readAllFor(10), QByteArray()) << c.name;
    }
}

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
}  // namespace sandogh::test
