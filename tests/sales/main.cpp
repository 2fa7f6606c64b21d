#include <gtest/gtest.h>

#include <QGuiApplication>

int main(int argc, char** argv) {
    // The sale runs inside the program's event loop; the settling pause drains it. Receipts
    // are laid out with fonts, which need the GUI application (offscreen).
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
