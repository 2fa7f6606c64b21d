#include <gtest/gtest.h>

#include <QCoreApplication>

// The device classes need an event loop: serial notifiers, timers, network replies.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
