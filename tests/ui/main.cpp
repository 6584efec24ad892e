// Runs the tests with the application object that windows need, without a screen.
#include <QApplication>
#include <cstdlib>
#include <gtest/gtest.h>

#include "kit/qt/qt_translator_roster.h"
#include "support/test_support.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Dialogs remember what the user left them at; the user's own memory stays out of this.
    const kirto::test::TemporaryFolder configuration;
    setenv("XDG_CONFIG_HOME", configuration.Path().c_str(), 1);
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    int count = 3;
    char name[] = "ui_tests";
    char option[] = "-platform";
    char platform[] = "offscreen";
    char* arguments[] = {name, option, platform, nullptr};
    const QApplication application(count, arguments);
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    return RUN_ALL_TESTS();
}
