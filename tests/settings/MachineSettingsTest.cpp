#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "SettingProbes.h"
#include "settings/BranchTransferSettings.h"
#include "settings/MachineSettings.h"
#include "settings/QSettingsStore.h"
#include "settings/SettingReaders.h"
#include "settings/SettingsCatalogue.h"

namespace sandogh {
namespace {

namespace k = settingkeys;
using testing::expectedDefault;
using testing::SettingProbe;
using testing::settingProbes;

QString latin(const char* text) {
    return QString::fromLatin1(text);
}

bool sameKey(const SettingKey& a, const SettingKey& b) {
    return latin(a.application).compare(latin(b.application), Qt::CaseInsensitive) == 0 &&
           latin(a.section).compare(latin(b.section), Qt::CaseInsensitive) == 0 &&
           latin(a.key).compare(latin(b.key), Qt::CaseInsensitive) == 0;
}

class MachineSettingsTest : public ::testing::Test {
protected:
    QTemporaryDir dir_;
    QSettingsStore store_{QStringLiteral("Retail"), dir_.filePath(QStringLiteral("Retail.ini"))};
    MachineSettings settings_{store_};

    void keep(const char* section, const char* key, const QString& text) {
        ASSERT_TRUE(store_.write(latin(section), latin(key), text));
    }
};

TEST_F(MachineSettingsTest, EveryCatalogueKeyHasOneAccessor) {
    for (const SettingDescriptor& row : SettingsCatalogue::all()) {
        if (row.application() != QStringLiteral("Retail")) {
            continue;
        }
        int accessors = 0;
        for (const SettingProbe& probe : settingProbes()) {
            accessors += sameKey(*probe.key, row.key) ? 1 : 0;
        }
        EXPECT_EQ(accessors, 1) << row.key.section << '/' << row.key.key;
    }
    for (const SettingProbe& probe : settingProbes()) {
        EXPECT_NE(SettingsCatalogue::find(latin(probe.key->application), latin(probe.key->section),
                                          latin(probe.key->key)),
                  nullptr)
            << probe.accessor;
    }
}

TEST_F(MachineSettingsTest, MissingKeysReadAsTheirCatalogueDefault) {
    for (const SettingProbe& probe : settingProbes()) {
        EXPECT_EQ(probe.read(settings_), expectedDefault(probe)) << probe.accessor;
    }
}

// The text written to a key and what its accessor should then show: never the default, so
// that an accessor reading the wrong key is caught.
struct Distinct {
    QString written;
    QString shown;
};

Distinct distinctValue(const SettingProbe& probe) {
    const SettingKey& key = *probe.key;
    if (&key == &k::PrinterPortUsb) {
        return {QStringLiteral("false"), QStringLiteral("off")};
    }
    if (&key == &k::ReceiptOutputKind) {
        return {QStringLiteral(" PDF "), QStringLiteral("pdf")};
    }
    if (&key == &k::SaleGoodsColumnOrder) {
        return {QStringLiteral("3,1,2, 0 "), QStringLiteral("3,1,2, 0 ")};  // kept untrimmed
    }
    switch (key.form) {
        case SettingForm::Flag:
            return SettingReaders::flagOn(latin(key.defaultText))
                       ? Distinct{QStringLiteral("0"), QStringLiteral("off")}
                       : Distinct{QStringLiteral("2"), QStringLiteral("on")};
        case SettingForm::Number:
            return {QStringLiteral(" 7"), QStringLiteral("7")};
        case SettingForm::Text:
            break;
    }
    const QString value = QStringLiteral("value-") + latin(key.key);
    return {QStringLiteral("  ") + value + QStringLiteral(" "), value};
}

TEST_F(MachineSettingsTest, EachAccessorReadsItsOwnKeyAndNoOther) {
    const auto& probes = settingProbes();
    for (const SettingProbe& probe : probes) {
        const Distinct value = distinctValue(probe);
        ASSERT_NE(value.shown, expectedDefault(probe)) << probe.accessor;
        ASSERT_TRUE(settings_.write(*probe.key, value.written)) << probe.accessor;
        EXPECT_EQ(probe.read(settings_), value.shown) << probe.accessor;
        for (const SettingProbe& other : probes) {
            if (&other != &probe) {
                EXPECT_EQ(other.read(settings_), expectedDefault(other))
                    << other.accessor << " changed by writing " << probe.accessor;
            }
        }
        ASSERT_TRUE(settings_.reset(*probe.key));
        EXPECT_EQ(probe.read(settings_), expectedDefault(probe)) << probe.accessor;
    }
}

TEST_F(MachineSettingsTest, AllKeysKeptTogetherReadBackTogether) {
    // Keys sharing a section ("PortNo" holds ports and messaging switches) must not clash.
    // Written the way the settings screen saves: in one batch.
    settings_.store().beginBatch();
    for (const SettingProbe& probe : settingProbes()) {
        ASSERT_TRUE(settings_.write(*probe.key, distinctValue(probe).written)) << probe.accessor;
    }
    ASSERT_TRUE(settings_.store().endBatch());
    QSettingsStore reopened(QStringLiteral("Retail"), store_.location());
    const MachineSettings again(reopened);
    for (const SettingProbe& probe : settingProbes()) {
        EXPECT_EQ(probe.read(again), distinctValue(probe).shown) << probe.accessor;
    }
}

TEST_F(MachineSettingsTest, DrawerOnThePrinterWhenUsbIsTrueInAnyCase) {
    const struct {
        const char* kept;
        bool onPrinter;
    } cases[] = {
        {"True", true}, {"true", true}, {"TRUE", true},   {" True ", true},
        {"", true},     {"   ", true},  {"False", false}, {"false", false},
        {"1", false},   {"Yes", false}, {"Truee", false}, {"0", false},
    };
    for (const auto& c : cases) {
        keep("PrinterPort", "USB", latin(c.kept));
        EXPECT_EQ(settings_.printerPortUsb(), c.onPrinter) << '"' << c.kept << '"';
    }
    ASSERT_TRUE(settings_.setPrinterPortUsb(false));
    EXPECT_FALSE(settings_.printerPortUsb());
    ASSERT_TRUE(settings_.setPrinterPortUsb(true));
    EXPECT_TRUE(settings_.printerPortUsb());
}

TEST_F(MachineSettingsTest, DisplayPortIsOneUnlessSomethingIsKept) {
    const struct {
        const char* section;  // either spelling of the section
        const char* kept;
        int port;
    } cases[] = {
        {"ISActivePoolDisplay", "", 1},    {"ISActivePoolDisplay", "0", 0},
        {"IsActivePoolDisplay", "4", 4},   {"isactivepooldisplay", " 5 ", 5},
        {"ISActivePoolDisplay", "abc", 0}, {"IsActivePoolDisplay", "2.5", 2},
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(store_.remove(QStringLiteral("ISActivePoolDisplay"), QStringLiteral("Port")));
        keep(c.section, "Port", latin(c.kept));
        EXPECT_EQ(settings_.displayPort(), c.port) << c.section << " \"" << c.kept << '"';
    }
}

TEST_F(MachineSettingsTest, PortNumbersOfTwoCashDesksStayApart) {
    QSettingsStore otherStore(QStringLiteral("Retail"), dir_.filePath(QStringLiteral("desk2.ini")));
    MachineSettings other(otherStore);
    ASSERT_TRUE(settings_.setNumber(k::PortNo, 1));
    ASSERT_TRUE(settings_.setNumber(k::DisplayLine, 3));
    ASSERT_TRUE(other.setNumber(k::PortNo, 4));
    ASSERT_TRUE(other.setNumber(k::DisplayLine, 1));
    EXPECT_EQ(settings_.portNo(), 1);
    EXPECT_EQ(settings_.displayLine(), 3);
    EXPECT_EQ(other.portNo(), 4);
    EXPECT_EQ(other.displayLine(), 1);
}

TEST_F(MachineSettingsTest, LoginAndYearAreWrittenAndReadBack) {
    ASSERT_TRUE(settings_.setFiscalYearDatabase(QStringLiteral("  Shop1404 ")));
    EXPECT_EQ(settings_.fiscalYearDatabase(), QStringLiteral("Shop1404"));
    EXPECT_EQ(store_.read(QStringLiteral("year"), QStringLiteral("YEAR")),
              QStringLiteral("  Shop1404 "));

    ASSERT_TRUE(settings_.setUserInfo(12, QStringLiteral("admin"), QStringLiteral("مرکز")));
    EXPECT_EQ(settings_.userId(), 12);
    EXPECT_EQ(settings_.userName(), QStringLiteral("admin"));
    EXPECT_EQ(settings_.userDisplayName(), QStringLiteral("مرکز"));
    EXPECT_EQ(store_.read(QStringLiteral("UserInfo"), QStringLiteral("UserID")),
              QStringLiteral("12"));

    ASSERT_TRUE(settings_.setUserProfile(3));
    EXPECT_EQ(settings_.userProfile(), 3);
    ASSERT_TRUE(settings_.setLastDateSendSms(QStringLiteral("1404/01/05")));
    EXPECT_EQ(settings_.lastDateSendSms(), QStringLiteral("1404/01/05"));
    ASSERT_TRUE(settings_.setSaleGoodsColumnOrder(QStringLiteral("2,0,1,3")));
    EXPECT_EQ(store_.read(QStringLiteral("Tools"), QStringLiteral("frmSaledgGoodsColOrder")),
              QStringLiteral("2,0,1,3"));
}

TEST_F(MachineSettingsTest, ProgramPathsAreTakenFromTheProgramFolder) {
    const QString folder = dir_.filePath(QStringLiteral("app"));
    const struct {
        const char* kept;
        QString path;
    } cases[] = {
        {"", folder + QStringLiteral("/Program/KotrimoAcc.exe")},
        {"Program\\Other.exe", folder + QStringLiteral("/Program/Other.exe")},
        {"../KotrimoAcc/KotrimoAcc.exe",
         dir_.filePath(QStringLiteral("KotrimoAcc/KotrimoAcc.exe"))},
        {"/opt/kotrimo/acc", QStringLiteral("/opt/kotrimo/acc")},
    };
    for (const auto& c : cases) {
        keep("Programs", "Companion", latin(c.kept));
        EXPECT_EQ(settings_.companionProgramPath(folder), QDir::cleanPath(c.path)) << c.kept;
    }
    EXPECT_EQ(settings_.drawerProgramPath(folder), folder + QStringLiteral("/Program/Tamvex.exe"));
}

TEST_F(MachineSettingsTest, ReceiptOutputNamesAnyCase) {
    const struct {
        const char* kept;
        ReceiptOutput output;
    } cases[] = {
        {"", ReceiptOutput::Printer},      {"printer", ReceiptOutput::Printer},
        {"PDF", ReceiptOutput::Pdf},       {" escpos ", ReceiptOutput::EscPos},
        {"EscPos", ReceiptOutput::EscPos}, {"fax", ReceiptOutput::Printer},
    };
    for (const auto& c : cases) {
        keep("Receipt", "Output", latin(c.kept));
        EXPECT_EQ(settings_.receiptOutput(), c.output) << c.kept;
    }
    for (ReceiptOutput output :
         {ReceiptOutput::Pdf, ReceiptOutput::EscPos, ReceiptOutput::Printer}) {
        ASSERT_TRUE(settings_.setReceiptOutput(output));
        EXPECT_EQ(settings_.receiptOutput(), output);
    }
}

TEST_F(MachineSettingsTest, KeysOfAnotherApplicationAreNeitherReadNorWritten) {
    keep("FC", "ShowPrice", QStringLiteral("2"));
    EXPECT_EQ(settings_.integer(k::TransferShowPrice), 1);
    EXPECT_FALSE(settings_.write(k::TransferShowPrice, QStringLiteral("2")));
    EXPECT_FALSE(settings_.reset(k::TransferShowPrice));

    QSettingsStore transferStore(QStringLiteral("Factortransfer"),
                                 dir_.filePath(QStringLiteral("Factortransfer.ini")));
    ASSERT_TRUE(
        transferStore.write(QStringLiteral("PortNo"), QStringLiteral("No"), QStringLiteral("5")));
    MachineSettings wrongStore(transferStore);
    EXPECT_EQ(wrongStore.portNo(), 0);
    EXPECT_FALSE(wrongStore.setNumber(k::PortNo, 3));
}

TEST_F(MachineSettingsTest, BranchTransferKeepsShowPriceUnderItsOwnApplication) {
    QSettingsStore transferStore(QStringLiteral("Factortransfer"),
                                 dir_.filePath(QStringLiteral("Factortransfer.ini")));
    BranchTransferSettings transfer(transferStore);
    EXPECT_EQ(transfer.showPrice(), 1);
    ASSERT_TRUE(transfer.setShowPrice(2));
    EXPECT_EQ(transfer.showPrice(), 2);
    EXPECT_EQ(transferStore.read(QStringLiteral("fc"), QStringLiteral("showprice")),
              QStringLiteral("2"));
    EXPECT_EQ(store_.read(QStringLiteral("FC"), QStringLiteral("ShowPrice")), QString());

    BranchTransferSettings onRetail(store_);
    keep("FC", "ShowPrice", QStringLiteral("2"));
    EXPECT_EQ(onRetail.showPrice(), 1);
    EXPECT_FALSE(onRetail.setShowPrice(2));
}

}  // namespace
}  // namespace sandogh
