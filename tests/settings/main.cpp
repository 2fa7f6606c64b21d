#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    // The program runs with an application object (which also sets the C locale from the
    // environment); the settings are tested in the same surroundings.
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
