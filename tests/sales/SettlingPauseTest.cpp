// The pause before the barcode box is read.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

#include "sales/SettlingPause.h"

namespace sandogh {
namespace {

TEST(SettlingPause, ReturnsAfterOnePassWhenNothingIsPending) {
    QCoreApplication::processEvents();
    int reads = 0;
    const SettlingPause::Result r = SettlingPause::settle([&] {
        ++reads;
        return QStringLiteral("1001");
    });
    EXPECT_EQ(r.passes, 1);
    EXPECT_FALSE(r.capped);
}

TEST(SettlingPause, LetsInTheKeysAlreadyQueued) {
    QString box = QStringLiteral("62612345");
    // Three keys of a slow scanner, queued behind Enter; the last queues one more.
    QObject receiver;
    for (const char* chunk : {"67", "89", "0"}) {
        QMetaObject::invokeMethod(
            &receiver, [&box, chunk] { box += QString::fromLatin1(chunk); }, Qt::QueuedConnection);
    }
    QMetaObject::invokeMethod(
        &receiver,
        [&box, &receiver] {
            QMetaObject::invokeMethod(
                &receiver, [&box] { box += QStringLiteral("!"); }, Qt::QueuedConnection);
        },
        Qt::QueuedConnection);
    const SettlingPause::Result r = SettlingPause::settle([&] { return box; });
    EXPECT_EQ(box, QStringLiteral("6261234567890!"));
    EXPECT_GE(r.passes, 2);
    EXPECT_FALSE(r.capped);
}

TEST(SettlingPause, StopsAtTheCapWhileTheTextKeepsChanging) {
    QString box;
    QTimer typist;
    QObject::connect(&typist, &QTimer::timeout, [&box] { box += u'x'; });
    typist.start(0);  // a key on every pass, for ever
    const SettlingPause::Result r = SettlingPause::settle([&] { return box; }, 5);
    typist.stop();
    EXPECT_TRUE(r.capped);
    EXPECT_GT(box.size(), 1);
}

}  // namespace
}  // namespace sandogh
