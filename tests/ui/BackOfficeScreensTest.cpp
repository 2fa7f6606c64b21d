// The backup and new-year screens offscreen: what the screens add to ShopBackup and
// NewFiscalYear (tested below them): the work runs while the screen stays live, the buttons
// are off meanwhile, the outcome is shown, and a restore asks first.

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "ScreenTestContext.h"
#include "WaitUntil.h"
#include "app/NewFiscalYear.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "ui/admin/frmBackup.h"
#include "ui/admin/frmNewYear.h"

namespace sandogh {
namespace {

using test::child;

class BackOfficeScreensTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(app.openShop(true)); }

    // Clicks the button and waits for the screen's finished(); its argument, false when
    // it never came.
    template <typename Screen>
    bool clickAndWait(Screen& screen, const char* button) {
        QSignalSpy done(&screen, &Screen::finished);
        QTest::mouseClick(child<QPushButton>(screen, button), Qt::LeftButton);
        EXPECT_TRUE(screen.isBusy());
        EXPECT_FALSE(child<QPushButton>(screen, button)->isEnabled());
        if (!test::waitUntil([&] { return !done.isEmpty(); }, 60000)) {
            return false;
        }
        EXPECT_FALSE(screen.isBusy());
        EXPECT_TRUE(child<QPushButton>(screen, button)->isEnabled());
        return done.first().first().toBool();
    }

    test::ScreenTestContext app;
};

TEST_F(BackOfficeScreensTest, TheBackupNamesItsArchiveAndARestoreAsksFirst) {
    frmBackup screen(app.context.database(), app.messages, app.folder.path());
    screen.show();
    const QString archive = app.folder.filePath(QStringLiteral("shop.tar"));
    auto* box = child<QLineEdit>(screen, "txtArchive");
    box->setText(archive);

    ASSERT_TRUE(clickAndWait(screen, "cmdBackup"));
    EXPECT_TRUE(QFile::exists(archive));
    EXPECT_TRUE(child<QLabel>(screen, "lblState")->text().contains(archive));

    // Declined, nothing is restored.
    QSignalSpy restored(&screen, &frmBackup::restored);
    app.messages.queueAnswer(false);
    QTest::mouseClick(child<QPushButton>(screen, "cmdRestore"), Qt::LeftButton);
    EXPECT_EQ(app.messages.count(), 1);
    EXPECT_TRUE(restored.isEmpty());

    // The archive taken above comes back, and the screen hands the end of the program on.
    app.messages.queueAnswer(true);
    QTest::mouseClick(child<QPushButton>(screen, "cmdRestore"), Qt::LeftButton);
    EXPECT_EQ(restored.count(), 1);
    EXPECT_EQ(app.messages.messages().last().style, MessageStyle::Information);
}

TEST_F(BackOfficeScreensTest, TheNewYearIsOpenedFromTheNameTypedAndListedForTheLogin) {
    frmNewYear screen(app.context);
    screen.show();
    auto* name = child<QLineEdit>(screen, "txtName");
    name->setText(QStringLiteral("bad name"));
    EXPECT_FALSE(clickAndWait(screen, "cmdOpen"));
    EXPECT_EQ(app.messages.messages().last().style, MessageStyle::Critical);

    name->setText(QStringLiteral("  Shop1406 "));
    ASSERT_TRUE(clickAndWait(screen, "cmdOpen"));
    EXPECT_EQ(app.messages.messages().last().style, MessageStyle::Information);
    EXPECT_TRUE(app.messages.messages().last().text.contains(QStringLiteral("Shop1406")));
    EXPECT_TRUE(NewFiscalYear::years(app.context.connectionSettings())
                    .contains(QStringLiteral("Shop1406")));
    QString ignored;
    DatabaseProvisioner::drop(
        app.context.connectionSettings().withCatalog(QStringLiteral("Shop1406")), &ignored);
}

}  // namespace
}  // namespace sandogh
