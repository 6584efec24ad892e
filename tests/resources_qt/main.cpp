// Runs the tests with the application object that controls need, without a screen.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    int count = 3;
    char name[] = "resources_qt_tests";
    char option[] = "-platform";
    char platform[] = "offscreen";
    char* arguments[] = {name, option, platform, nullptr};
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
