// Runs the tests with the application object that Qt's image formats need.
#include <QGuiApplication>
#include <cstdlib>
#include <gtest/gtest.h>

#include "kit/qt/qt_translator_roster.h"
#include "kit_qt/roster_fixture.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // A folder that Qt would look for plugins in if nobody kept it from doing so.
    setenv("QT_PLUGIN_PATH", kirto::test::ForeignPluginFolder().c_str(), 1);
    setenv("QT_QPA_PLATFORM_PLUGIN_PATH", kirto::test::ForeignPluginFolder().c_str(), 1);
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    int count = 3;
    char name[] = "kit_qt_tests";
    char option[] = "-platform";
    char platform[] = "offscreen";
    char* arguments[] = {name, option, platform, nullptr};
    const QGuiApplication application(count, arguments);
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    return RUN_ALL_TESTS();
}
