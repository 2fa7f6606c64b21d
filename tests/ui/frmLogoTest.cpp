#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include "support/RecordingMessageService.h"
#include "ui/app/frmLogo.h"

namespace sandogh {
namespace {

class frmLogoTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(folder.isValid()); }

    QString programFolder() const { return folder.path(); }

    void putPicture(const QSize& size) {
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Program")));
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(QColor(200, 30, 30));
        ASSERT_TRUE(picture.save(frmLogo::imagePath(folder.path())));
    }

    QTemporaryDir folder;
    test::RecordingMessageService messages;
};

TEST_F(frmLogoTest, FailingStartUpStepShowsTheMessageAndFails) {
    frmLogo logo(programFolder(), messages);
    int runs = 0;
    logo.setStartupStep([&runs] {
        ++runs;
        return false;
    });
    QSignalSpy failed(&logo, &frmLogo::failed);
    QSignalSpy finished(&logo, &frmLogo::finished);

    logo.start();

    EXPECT_EQ(runs, 1);
    EXPECT_EQ(failed.count(), 1);
    EXPECT_EQ(finished.count(), 0);
    EXPECT_FALSE(logo.isVisible());
    ASSERT_EQ(messages.messages().size(), 1);
    EXPECT_EQ(messages.messages()[0].text,
              QStringLiteral("فايل Provider.txt در مسير برنامه موجود نيست!"));
    EXPECT_EQ(messages.messages()[0].style, MessageStyle::Information);
    EXPECT_EQ(messages.messages()[0].title, QStringLiteral("اخطار!"));
}

TEST_F(frmLogoTest, SucceedingStepShowsTheSplashAndFinishesAfterTheTimers) {
    frmLogo logo(programFolder(), messages);
    bool visibleDuringStep = true;
    logo.setStartupStep([&] {
        visibleDuringStep = logo.isVisible();
        return true;
    });
    QSignalSpy failed(&logo, &frmLogo::failed);
    QSignalSpy finished(&logo, &frmLogo::finished);
    // Fires during the pause after the first tick: it can only fire before finished() if the
    // pause lets the event loop run.
    bool loopRanDuringPause = false;
    QTimer::singleShot(frmLogo::kTickMs + frmLogo::kPauseMs / 2,
                       [&] { loopRanDuringPause = finished.isEmpty(); });

    logo.start();

    EXPECT_FALSE(visibleDuringStep);
    EXPECT_TRUE(logo.isVisible());
    EXPECT_EQ(finished.count(), 0);
    ASSERT_TRUE(finished.wait(30000));
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(failed.count(), 0);
    EXPECT_FALSE(logo.isVisible());
    EXPECT_TRUE(loopRanDuringPause);
    EXPECT_TRUE(messages.messages().isEmpty());
}

}  // namespace
}  // namespace sandogh
