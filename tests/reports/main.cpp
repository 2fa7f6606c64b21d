#include <gtest/gtest.h>

#include <QApplication>

// The Qt SQL drivers are plugins, the PDF pages need fonts and the reports screen widgets:
// an (offscreen) widget application. CTest lists the tests without the tests' environment,
// so the offscreen default is set here too.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
