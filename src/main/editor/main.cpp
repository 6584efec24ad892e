// kirto: the editor.
#include <QApplication>
#include <QIcon>
#include <QStyle>
#include <QTimer>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <thread>

#include "app/kirto.h"
#include "framework/resource_file_path.h"
#include "main/editor/editor_arguments.h"
#include "main/editor/printed_alerts.h"
#include "main/editor/screenshot.h"
#include "platform/qt/qt_translator_roster.h"
#include "ui/editor_style.h"
#include "ui/qt_desktop.h"

namespace {

constexpr int kIconDelayMilliseconds = 100;
constexpr int kExitFailed = 1;

BMessage RefsMessage(const std::vector<std::string>& files) {
    BMessage refs(B_REFS_RECEIVED);
    for (const std::string& file : files) {
        refs.AddRef("refs", entry_ref(std::filesystem::absolute(file).string()));
    }
    return refs;
}

// Runs until the application's loop has ended; the loop ends when the main window has agreed.
int RunEditor(const kirto::EditorArguments& arguments) {
    kirto::QtTranslatorRoster roster;
    kirto::QtDesktop desktop(roster);
    // A picture is taken where nobody answers an alert.
    std::optional<kirto::PrintedAlerts> printed;
    if (!arguments.screenshot.empty()) printed.emplace();
    Prefs prefs;
    Kirto application(prefs, desktop, roster, entry_ref(kirto::ResourceFilePath()));
    if (!arguments.files.empty()) application.Commands().SendMessage(RefsMessage(arguments.files));

    int status = 0;
    const kirto::Screenshot screenshot(application, *desktop.MainWindow(), arguments.screenshot,
                                       &status);
    std::thread loop([&application] {
        application.Loop();
        QMetaObject::invokeMethod(qApp, &QApplication::quit, Qt::QueuedConnection);
    });
    QApplication::exec();
    desktop.CloseWindows();
    application.Quit();
    loop.join();
    const bool told = printed && printed->Presented();
    return told || application.Error() != 0 ? kExitFailed : status;
}

}  // namespace

int main(int argc, char** argv) {
    // A reader that goes away, or a file that may grow no further, is a failed write and not the
    // end of the program.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // What needs no screen is answered without one.
    kirto::EditorArguments arguments;
    if (const auto status = kirto::ParseInformation(argc, argv)) return *status;
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    QApplication application(argc, argv);
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    // The application object takes over the user's locale; numbers stay as they are without it.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setStyle(new kirto::EditorStyle(QApplication::style()->name()));
    QApplication::setApplicationName("kirto");
    QApplication::setApplicationVersion(KIRTO_VERSION);
    QApplication::setDesktopFileName("kirto");
    // Reading the drawing takes half as long as everything else; the window comes first.
    QTimer::singleShot(kIconDelayMilliseconds, qApp,
                       [] { QApplication::setWindowIcon(QIcon(":/kirto.svg")); });
    // The main window's closing is a request; the application decides.
    QApplication::setQuitOnLastWindowClosed(false);
    if (const auto status = kirto::ParseArguments(argc, argv, &arguments)) return *status;
    return RunEditor(arguments);
}
