#include <gtest/gtest.h>

#include <QApplication>

// Screens and widgets need a widget application. They run on the offscreen platform unless
// another one is asked for (QT_QPA_PLATFORM=xcb under Xvfb); CTest's listing of the tests
// runs the program without the tests' environment, so the default is set here too.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
