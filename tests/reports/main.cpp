#include <gtest/gtest.h>

#include <QApplication>

// The Qt SQL drivers are plugins, the PDF pages need fonts and the reports screen widgets:
// an (offscreen) widget application.
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
