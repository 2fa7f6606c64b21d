#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include "RecordingMessageService.h"
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

TEST_F(frmLogoTest, PictureComesFromTheProgramSubfolder) {
    EXPECT_EQ(frmLogo::imagePath(QStringLiteral("/opt/shop")),
              QStringLiteral("/opt/shop/Program/Intro.png"));
}

TEST_F(frmLogoTest, ShowsThePictureInAFramelessTopmostSeeThroughWindow) {
    putPicture(QSize(320, 180));
    frmLogo logo(programFolder(), messages);
    EXPECT_TRUE(logo.hasImage());
    EXPECT_EQ(logo.size(), QSize(320, 180));
    EXPECT_TRUE(logo.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(logo.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(logo.testAttribute(Qt::WA_TranslucentBackground));

    logo.start();
    EXPECT_TRUE(logo.isVisible());
    const QImage shown = logo.grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2), QColor(200, 30, 30));
}

TEST_F(frmLogoTest, WithoutAPictureShowsTheNameOnARoundedPanel) {
    frmLogo logo(programFolder(), messages);
    EXPECT_FALSE(logo.hasImage());
    logo.start();
    EXPECT_TRUE(logo.isVisible());
    EXPECT_TRUE(messages.shown.isEmpty());

    const QImage shown = logo.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(qAlpha(shown.pixel(0, 0)), 0) << "corners are rounded off";
    EXPECT_EQ(qAlpha(shown.pixel(12, shown.height() / 2)), 255) << "the panel is drawn";
    // The name is drawn in white; the panel itself has no light colour anywhere.
    int white = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const QColor c = shown.pixelColor(x, y);
            white += c.alpha() == 255 && c.red() > 240 && c.green() > 240 && c.blue() > 240;
        }
    }
    EXPECT_GT(white, 100);
}

TEST_F(frmLogoTest, AnUnreadablePictureIsTakenAsNone) {
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Program")));
    QFile broken(frmLogo::imagePath(folder.path()));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("not a picture");
    broken.close();
    frmLogo logo(programFolder(), messages);
    EXPECT_FALSE(logo.hasImage());
    logo.start();
    EXPECT_TRUE(logo.isVisible());
}

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
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_EQ(messages.shown[0].text,
              QStringLiteral("فايل Provider.txt در مسير برنامه موجود نيست!"));
    EXPECT_EQ(messages.shown[0].style, MessageStyle::Information);
    EXPECT_EQ(messages.shown[0].title, QStringLiteral("اخطار!"));
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
    EXPECT_TRUE(messages.shown.isEmpty());
}

}  // namespace
}  // namespace sandogh
