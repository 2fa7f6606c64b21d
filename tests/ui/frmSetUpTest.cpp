// The set-up screen: a page and a named editor for every setting of the catalogue, the
// kept value or the default shown, only what was changed written, and a refused write told.

#include <gtest/gtest.h>

#include <memory>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

#include "ScreenTestContext.h"
#include "TypeText.h"
#include "settings/QSettingsStore.h"
#include "settings/SettingsCatalogue.h"
#include "support/RecordingMessageService.h"
#include "ui/settings/ProgramSettingField.h"
#include "ui/settings/frmSetUp.h"
#include "ui/widgets/AmountEdit.h"

namespace sandogh {
namespace {

class frmSetUpTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.isValid());
        openStores();
    }

    QString retailIni() const { return folder.filePath(QStringLiteral("Retail.ini")); }
    QString transferIni() const { return folder.filePath(QStringLiteral("Factortransfer.ini")); }

    void openStores() {
        retail = std::make_unique<QSettingsStore>(QStringLiteral("Retail"), retailIni());
        transfer =
            std::make_unique<QSettingsStore>(QStringLiteral("Factortransfer"), transferIni());
    }

    std::unique_ptr<frmSetUp> openScreen() {
        auto screen = std::make_unique<frmSetUp>(
            QList<SettingsStore*>{retail.get(), transfer.get()}, folder.path(), messages);
        screen->show();
        return screen;
    }

    // The keys the INI file holds, as "Section/Key".
    QStringList keptKeys(const QString& path) const {
        return QSettings(path, QSettings::IniFormat).allKeys();
    }

    QTemporaryDir folder;
    std::unique_ptr<QSettingsStore> retail;
    std::unique_ptr<QSettingsStore> transfer;
    test::RecordingMessageService messages;
};

TEST_F(frmSetUpTest, OnePageForEachPageOfTheCatalogueShownWhenChosen) {
    const auto screen = openScreen();
    auto* pages = test::child<QListWidget>(*screen, "lstPages");
    auto* stack = test::child<QStackedWidget>(*screen, "stkPages");
    auto* display = test::child<QCheckBox>(*screen, "IsActivePoolDisplay/Enable");
    ASSERT_TRUE(pages && stack && display);
    EXPECT_EQ(pages->count(), 12);
    EXPECT_EQ(stack->count(), pages->count());
    EXPECT_EQ(pages->item(0)->text(), SettingsCatalogue::groupCaption(SettingGroup::Session));
    EXPECT_EQ(screen->layoutDirection(), Qt::RightToLeft);
    // The page list stands on the right of the pages.
    EXPECT_GT(pages->mapTo(screen.get(), QPoint()).x(), stack->mapTo(screen.get(), QPoint()).x());
    EXPECT_FALSE(display->isVisible());
    pages->setCurrentRow(2);
    EXPECT_EQ(stack->currentIndex(), 2);
    EXPECT_TRUE(display->isVisible());
}

TEST_F(frmSetUpTest, EverySettingHasItsNamedEditor) {
    const auto screen = openScreen();
    for (const SettingDescriptor& row : SettingsCatalogue::all()) {
        const QString name = row.section() + u'/' + row.name();
        auto* editor = screen->findChild<QWidget*>(name);
        // Who logged in last is the program's own record: not shown.
        if (SettingsCatalogue::writtenByProgram(row.key)) {
            EXPECT_EQ(editor, nullptr) << name.toStdString();
            continue;
        }
        ASSERT_NE(editor, nullptr) << name.toStdString();
        // A setting of a few values is chosen from a list.
        if (!SettingsCatalogue::choices(row.key).isEmpty()) {
            EXPECT_NE(qobject_cast<QComboBox*>(editor), nullptr) << name.toStdString();
            continue;
        }
        switch (row.key.form) {
            case SettingForm::Flag:
                EXPECT_NE(qobject_cast<QCheckBox*>(editor), nullptr) << name.toStdString();
                break;
            case SettingForm::Number:
                EXPECT_TRUE(qobject_cast<AmountEdit*>(editor) || qobject_cast<QSpinBox*>(editor))
                    << name.toStdString();
                break;
            case SettingForm::Text:
                // "True"/"False" switches are ticked rather than typed.
                EXPECT_TRUE(qobject_cast<QLineEdit*>(editor) || qobject_cast<QCheckBox*>(editor))
                    << name.toStdString();
                break;
        }
    }
}

struct LoadCase {
    const char* section;
    const char* key;
    const char* kept;  // nullptr: nothing kept
    const char* shown;
};

TEST_F(frmSetUpTest, LoadingShowsTheKeptValueOrTheDefault) {
    // How a kept text reads is the settings' (tested under settings); each kind of editor
    // shows it, or the default when nothing is kept.
    const LoadCase cases[] = {
        {"IsActiveCashDraw", "Enable", "2", "1"},
        {"SaleOptions", "QuickEntry", nullptr, "1"},  // default on
        {"PrinterPort", "USB", "false", "0"},         // a "True"/"False" switch
        {"PortNo", "Saman", "4", "4"},
        {"LimitListQty", "Qty", nullptr, "100"},
        {"SaleOptions", "CustomerAboveAmount", "2500000", "2,500,000"},
        {"Receipt", "Output", nullptr, "printer"},
        // A value that is none of the choices is shown and kept as it stands.
        {"ThemeSetting", "TextColor", "12345", "12345"},
        {"Devices", "MSComm1", "/dev/ttyUSB0", "/dev/ttyUSB0"},
        {"Programs", "Drawer", nullptr, "Program/Tamvex.exe"},
    };
    for (const LoadCase& c : cases) {
        const QString section = QString::fromLatin1(c.section);
        const QString key = QString::fromLatin1(c.key);
        if (c.kept) {
            ASSERT_TRUE(retail->write(section, key, QString::fromLatin1(c.kept)));
        } else {
            retail->remove(section, key);
        }
        const auto screen = openScreen();
        QWidget* editor = screen->findChild<QWidget*>(section + u'/' + key);
        ASSERT_NE(editor, nullptr) << c.section << "/" << c.key;
        QString shown;
        if (auto* check = qobject_cast<QCheckBox*>(editor)) {
            shown = check->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
        } else if (auto* spin = qobject_cast<QSpinBox*>(editor)) {
            shown = QString::number(spin->value());
        } else if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
            shown = edit->text();
        } else if (auto* combo = qobject_cast<QComboBox*>(editor)) {
            shown = combo->currentData().toString();
        }
        EXPECT_EQ(shown, QString::fromLatin1(c.shown)) << c.section << "/" << c.key;
        EXPECT_FALSE(screen->hasChanges());
    }
}

TEST_F(frmSetUpTest, SavedValuesReadBackFromTheFile) {
    auto screen = openScreen();
    auto* display = test::child<QCheckBox>(*screen, "IsActivePoolDisplay/Enable");
    auto* device = test::child<QLineEdit>(*screen, "Devices/MSComm1");
    auto* port = test::child<QSpinBox>(*screen, "PortNo/No");
    auto* above = test::child<AmountEdit>(*screen, "SaleOptions/CustomerAboveAmount");
    auto* output = test::child<QComboBox>(*screen, "Receipt/Output");
    auto* save = test::child<QPushButton>(*screen, "cmdSave");
    ASSERT_TRUE(display && device && port && above && output && save);

    QTest::keyClick(display, Qt::Key_Space);
    output->setCurrentIndex(output->findData(QStringLiteral("pdf")));  // written as its value
    QTest::keyClicks(device, QStringLiteral("/dev/pts/7"));
    port->setValue(3);
    test::typeText(above, QStringLiteral("۵۰۰۰۰۰"));
    EXPECT_TRUE(screen->hasChanges());
    QTest::mouseClick(save, Qt::LeftButton);

    ASSERT_EQ(messages.messages().size(), 1);
    EXPECT_EQ(messages.messages()[0].text, frmSetUp::savedMessage());
    EXPECT_EQ(messages.messages()[0].style, MessageStyle::Information);
    EXPECT_FALSE(screen->hasChanges());

    screen.reset();
    retail.reset();
    const QSettingsStore reopened(QStringLiteral("Retail"), retailIni());
    EXPECT_EQ(reopened.read(QStringLiteral("IsActivePoolDisplay"), QStringLiteral("Enable")),
              QStringLiteral("1"));
    EXPECT_EQ(reopened.read(QStringLiteral("Devices"), QStringLiteral("MSComm1")),
              QStringLiteral("/dev/pts/7"));
    EXPECT_EQ(reopened.read(QStringLiteral("PortNo"), QStringLiteral("No")), QStringLiteral("3"));
    EXPECT_EQ(reopened.read(QStringLiteral("SaleOptions"), QStringLiteral("CustomerAboveAmount")),
              QStringLiteral("500000"));
    EXPECT_EQ(reopened.read(QStringLiteral("Receipt"), QStringLiteral("Output")),
              QStringLiteral("pdf"));
    // Only what was changed is written.
    EXPECT_EQ(keptKeys(retailIni()).size(), 5) << keptKeys(retailIni()).join(u' ').toStdString();
    EXPECT_FALSE(QFile::exists(transferIni()));
}

TEST_F(frmSetUpTest, ExitClosesWithoutWriting) {
    const auto screen = openScreen();
    auto* display = test::child<QCheckBox>(*screen, "IsActivePoolDisplay/Enable");
    auto* device = test::child<QLineEdit>(*screen, "Devices/MSComm1");
    auto* exit = test::child<QPushButton>(*screen, "cmdExit");
    ASSERT_TRUE(display && device && exit);
    QTest::keyClick(display, Qt::Key_Space);
    QTest::keyClicks(device, QStringLiteral("/dev/pts/7"));

    QTest::mouseClick(exit, Qt::LeftButton);

    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(messages.messages().isEmpty());
    EXPECT_FALSE(QFile::exists(retailIni()));
    EXPECT_TRUE(retail->read(QStringLiteral("Devices"), QStringLiteral("MSComm1")).isEmpty());
}

TEST_F(frmSetUpTest, ARefusedWriteIsReported) {
    // A folder where the INI file should be: nothing can be kept there.
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Blocked.ini")));
    QSettingsStore blocked(QStringLiteral("Retail"),
                           folder.filePath(QStringLiteral("Blocked.ini")));
    frmSetUp screen({&blocked}, folder.path(), messages);
    auto* mizan = test::child<QCheckBox>(screen, "Scale/IsActiveMizan");
    ASSERT_NE(mizan, nullptr);
    QTest::keyClick(mizan, Qt::Key_Space);
    EXPECT_FALSE(screen.save());
    ASSERT_EQ(messages.messages().size(), 1);
    EXPECT_EQ(messages.messages()[0].style, MessageStyle::Critical);
    EXPECT_TRUE(screen.hasChanges());
}

TEST_F(frmSetUpTest, ChosenProgramIsKeptRelativeToTheProgramFolder) {
    const QString programFolder = folder.filePath(QStringLiteral("shop"));
    EXPECT_EQ(ProgramSettingField::pathToKeep(programFolder + QStringLiteral("/Program/Acc.exe"),
                                              programFolder),
              QStringLiteral("Program/Acc.exe"));
    const QString outside = folder.filePath(QStringLiteral("other/Acc.exe"));
    EXPECT_EQ(ProgramSettingField::pathToKeep(outside, programFolder), outside);
    EXPECT_EQ(ProgramSettingField::pathToKeep(outside, QString()), outside);
}

}  // namespace
}  // namespace sandogh
