#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "settings/BranchTransferSettings.h"
#include "settings/MachineSettings.h"
#include "settings/QSettingsStore.h"
#include "settings/SettingReaders.h"
#include "settings/SettingsCatalogue.h"

namespace sandogh {
namespace {

namespace k = settingkeys;

QString latin(const char* text) {
    return QString::fromLatin1(text);
}

class MachineSettingsTest : public ::testing::Test {
protected:
    QTemporaryDir dir_;
    QSettingsStore m_store{QStringLiteral("Retail"), dir_.filePath(QStringLiteral("Retail.ini"))};
    MachineSettings m_settings{m_store};

    void keep(const char* section, const char* key, const QString& text) {
        ASSERT_TRUE(m_store.write(latin(section), latin(key), text));
    }
};

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
        EXPECT_EQ(m_settings.printerPortUsb(), c.onPrinter) << '"' << c.kept << '"';
    }
    ASSERT_TRUE(m_settings.setPrinterPortUsb(false));
    EXPECT_FALSE(m_settings.printerPortUsb());
    ASSERT_TRUE(m_settings.setPrinterPortUsb(true));
    EXPECT_TRUE(m_settings.printerPortUsb());
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
        ASSERT_TRUE(m_store.remove(QStringLiteral("ISActivePoolDisplay"), QStringLiteral("Port")));
        keep(c.section, "Port", latin(c.kept));
        EXPECT_EQ(m_settings.displayPort(), c.port) << c.section << " \"" << c.kept << '"';
    }
}

TEST_F(MachineSettingsTest, PortNumbersOfTwoCashDesksStayApart) {
    QSettingsStore otherStore(QStringLiteral("Retail"), dir_.filePath(QStringLiteral("desk2.ini")));
    MachineSettings other(otherStore);
    ASSERT_TRUE(m_settings.setNumber(k::PortNo, 1));
    ASSERT_TRUE(m_settings.setNumber(k::DisplayLine, 3));
    ASSERT_TRUE(other.setNumber(k::PortNo, 4));
    ASSERT_TRUE(other.setNumber(k::DisplayLine, 1));
    EXPECT_EQ(m_settings.portNo(), 1);
    EXPECT_EQ(m_settings.displayLine(), 3);
    EXPECT_EQ(other.portNo(), 4);
    EXPECT_EQ(other.displayLine(), 1);
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
        EXPECT_EQ(m_settings.companionProgramPath(folder), QDir::cleanPath(c.path)) << c.kept;
    }
    EXPECT_EQ(m_settings.drawerProgramPath(folder), folder + QStringLiteral("/Program/Tamvex.exe"));
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
        EXPECT_EQ(m_settings.receiptOutput(), c.output) << c.kept;
    }
    for (ReceiptOutput output :
         {ReceiptOutput::Pdf, ReceiptOutput::EscPos, ReceiptOutput::Printer}) {
        ASSERT_TRUE(m_settings.setReceiptOutput(output));
        EXPECT_EQ(m_settings.receiptOutput(), output);
    }
}

TEST_F(MachineSettingsTest, ShowPriceLivesUnderTheTransferApplicationOnly) {
    QSettingsStore transferStore(QStringLiteral("Factortransfer"),
                                 dir_.filePath(QStringLiteral("Factortransfer.ini")));
    BranchTransferSettings transfer(transferStore);
    EXPECT_EQ(transfer.showPrice(), 1);
    ASSERT_TRUE(transfer.setShowPrice(2));
    EXPECT_EQ(transfer.showPrice(), 2);
    EXPECT_EQ(transferStore.read(QStringLiteral("fc"), QStringLiteral("showprice")),
              QStringLiteral("2"));
    EXPECT_EQ(m_store.read(QStringLiteral("FC"), QStringLiteral("ShowPrice")), QString());

    // Keys of another application are neither read nor written, by either reader.
    keep("FC", "ShowPrice", QStringLiteral("2"));
    BranchTransferSettings onRetail(m_store);
    EXPECT_EQ(onRetail.showPrice(), 1);
    EXPECT_FALSE(onRetail.setShowPrice(2));
    EXPECT_EQ(m_settings.integer(k::TransferShowPrice), 1);
    EXPECT_FALSE(m_settings.write(k::TransferShowPrice, QStringLiteral("2")));
    EXPECT_FALSE(m_settings.reset(k::TransferShowPrice));
    ASSERT_TRUE(
        transferStore.write(QStringLiteral("PortNo"), QStringLiteral("No"), QStringLiteral("5")));
    MachineSettings wrongStore(transferStore);
    EXPECT_EQ(wrongStore.portNo(), 0);
    EXPECT_FALSE(wrongStore.setNumber(k::PortNo, 3));
}

}  // namespace
}  // namespace sandogh
