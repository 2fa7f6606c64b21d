#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

#include "CatalogScreenFixture.h"
#include "ScreenTestContext.h"
#include "app/Permissions.h"
#include "ui/app/frmMain.h"
#include "ui/sales/frmShift.h"

namespace sandogh {
namespace {

class frmShiftTest : public test::CatalogScreenFixture {
protected:
    void SetUp() override {
        CatalogScreenFixture::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(exec(QStringLiteral(
            "INSERT INTO tblShift (Code, Name, LastActiveShift) VALUES (1, 'صبح', 1), "
            "(2, 'عصر', 0), (3, 'شب', 0)")));
    }
    QString activeCodes() {
        Session s = database->session();
        SqlQuery q(s, QStringLiteral("SELECT Code FROM tblShift WHERE LastActiveShift = 1"));
        QStringList codes;
        if (q.exec()) {
            while (q.next()) {
                codes << q.text(0);
            }
        }
        return codes.join(QLatin1Char(','));
    }
    // Chooses the shift shown under name and clicks the button.
    void switchTo(frmShift& screen, const QString& name) {
        auto* chooser = control<QComboBox>(&screen, QStringLiteral("cmbShift"));
        ASSERT_NE(chooser, nullptr);
        const int index = chooser->findText(name);
        ASSERT_GE(index, 0) << name.toStdString();
        chooser->setCurrentIndex(index);
        control<QPushButton>(&screen, QStringLiteral("cmdChange"))->click();
    }
};

TEST_F(frmShiftTest, ShowsTheActiveShiftAndSwitchesToTheChosenOne) {
    frmShift screen(*database, messages);
    screen.show();
    auto* label = control<QLabel>(&screen, QStringLiteral("lblActiveShift"));
    auto* chooser = control<QComboBox>(&screen, QStringLiteral("cmbShift"));
    EXPECT_TRUE(label->text().endsWith(QStringLiteral("صبح")));
    EXPECT_EQ(chooser->count(), 3);
    EXPECT_EQ(chooser->currentText(), QStringLiteral("صبح"));

    // The active one again, then another: always exactly one active row.
    for (const auto& [name, code] : {std::pair{QStringLiteral("صبح"), QStringLiteral("1")},
                                     std::pair{QStringLiteral("شب"), QStringLiteral("3")}}) {
        switchTo(screen, name);
        EXPECT_EQ(activeCodes(), code);
        EXPECT_TRUE(label->text().endsWith(name));
        EXPECT_EQ(chooser->currentText(), name);
    }
    EXPECT_TRUE(messages.shown.isEmpty());
}

TEST_F(frmShiftTest, AFailedSwitchKeepsTheActiveShiftAndSaysSo) {
    frmShift screen(*database, messages);
    screen.show();
    // Another desk removed the evening shift after this screen was opened.
    ASSERT_TRUE(exec(QStringLiteral("DELETE FROM tblShift WHERE Code = 2")));
    switchTo(screen, QStringLiteral("عصر"));
    EXPECT_EQ(activeCodes(), QStringLiteral("1"));
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_EQ(messages.shown.first().text, Database::connectionFailureMessage());
    EXPECT_EQ(messages.shown.first().title, warningTitle());
    auto* chooser = control<QComboBox>(&screen, QStringLiteral("cmbShift"));
    EXPECT_EQ(chooser->count(), 2);
    EXPECT_EQ(chooser->currentText(), QStringLiteral("صبح"));
}

TEST_F(frmShiftTest, WithoutShiftsTheButtonIsOff) {
    ASSERT_TRUE(exec(QStringLiteral("DELETE FROM tblShift")));
    frmShift screen(*database, messages);
    EXPECT_FALSE(control<QPushButton>(&screen, QStringLiteral("cmdChange"))->isEnabled());
    EXPECT_FALSE(screen.cmdChange_Click());
    EXPECT_TRUE(messages.shown.isEmpty());
}

// The sales menu opens the screen on the shop of the running program.
TEST(frmShiftMenuTest, TheSalesMenuOpensItOnTheShopsActiveShift) {
    test::ScreenTestContext app;
    ASSERT_TRUE(app.openShop(true));
    frmMain window(app.context);
    window.Form_Load();
    window.applyPermissions(Permissions(PermissionLevel::Cashier));
    window.show();
    QAction* command = window.findChild<QAction*>(QStringLiteral("mnuShift"));
    ASSERT_NE(command, nullptr);
    command->trigger();
    const QList<QMdiSubWindow*> children = window.mdiArea()->subWindowList();
    ASSERT_EQ(children.size(), 1);
    auto* screen = qobject_cast<frmShift*>(children.first()->widget());
    ASSERT_NE(screen, nullptr);
    auto* chooser = screen->findChild<QComboBox*>(QStringLiteral("cmbShift"));
    ASSERT_NE(chooser, nullptr);
    EXPECT_EQ(chooser->count(), 2);
    EXPECT_EQ(chooser->currentData().toInt(), 1);
}

}  // namespace
}  // namespace sandogh
