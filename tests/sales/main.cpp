#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
    // The sale runs inside the program's event loop; the settling pause drains it.
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
