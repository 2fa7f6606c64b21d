#include <gtest/gtest.h>

#include <QCoreApplication>

// The Qt SQL drivers are plugins: they need an application object.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
