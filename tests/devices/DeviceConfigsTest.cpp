#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "devices/DeviceConfigs.h"
#include "settings/QSettingsStore.h"

namespace sandogh::test {
namespace {

// Settings kept in an INI file of a temporary folder, as a cash desk keeps them.
class DeviceConfigsFromSettings : public ::testing::Test {
protected:
    DeviceConfigsFromSettings()
        : store(QStringLiteral("Retail"), dir.filePath(QStringLiteral("Retail.ini")))
        , settings(store) {}

    void set(const char* section, const char* key, const char* value) {
        ASSERT_TRUE(store.write(QString::fromLatin1(section), QString::fromLatin1(key),
                                QString::fromLatin1(value)));
    }

    QTemporaryDir dir;
    QSettingsStore store;
    MachineSettings settings;
};

TEST_F(DeviceConfigsFromSettings, EmptySettingsGiveTheDefaults) {
    const auto ports = DeviceConfigs::generalPorts(settings);
    EXPECT_FALSE(ports.portsActive);
    EXPECT_EQ(ports.portNo, 0);
    EXPECT_EQ(ports.portNo2, 0);
    EXPECT_EQ(ports.barcodeReaderModel, QStringLiteral("1"));
    EXPECT_EQ(ports.callerIdModel, QStringLiteral("0"));
    const auto display = DeviceConfigs::display(settings);
    EXPECT_FALSE(display.enabled);
    EXPECT_EQ(display.kind, 0);
    EXPECT_EQ(display.port, 1);
    EXPECT_EQ(display.greeting, QStringLiteral("Welcome"));
    const auto drawer = DeviceConfigs::drawer(settings, QStringLiteral("/opt/shop"));
    EXPECT_EQ(drawer.printerPortUsb, QStringLiteral("True"));
    EXPECT_EQ(QDir::fromNativeSeparators(drawer.drawerProgram),
              QStringLiteral("/opt/shop/Program/Tamvex.exe"));
    EXPECT_EQ(DeviceConfigs::pec(settings).commPort, 0);
    EXPECT_TRUE(DeviceConfigs::weightService(settings).host.isEmpty());
    const auto scales = DeviceConfigs::scaleExport(settings);
    EXPECT_FALSE(scales.takin || scales.mizan || scales.sadr);
}

TEST_F(DeviceConfigsFromSettings, ScaleSwitchesAreFlagsAndPortNumbersNeedTheMasterSwitch) {
    set("Scale", "IsActiveTakin", "1");
    set("Scale", "IsActiveMizan", "0");
    set("Scale", "IsActiveSadr", "2");
    const auto scales = DeviceConfigs::scaleExport(settings);
    EXPECT_TRUE(scales.takin);
    EXPECT_FALSE(scales.mizan);
    EXPECT_TRUE(scales.sadr);

    set("PortNo", "No", "3");
    set("PortNo", "No2", "4");
    EXPECT_EQ(DeviceConfigs::generalPorts(settings).portNo, 0);
    EXPECT_EQ(DeviceConfigs::generalPorts(settings).portNo2, 0);
    set("IsActivePort", "Enable", "1");
    const auto ports = DeviceConfigs::generalPorts(settings);
    EXPECT_TRUE(ports.portsActive);
    EXPECT_EQ(ports.portNo, 3);
    EXPECT_EQ(ports.portNo2, 4);
}

}  // namespace
}  // namespace sandogh::test
