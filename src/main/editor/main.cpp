// kirto: the editor.
#include <QApplication>
#include <QIcon>
#include <QStyle>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <thread>

#include "app/kirto.h"
#include "app/recovery/crash_recovery.h"
#include "base/abandonable.h"
#include "base/natural_order.h"
#include "base/number.h"
#include "desktop/qt/desktop_recent_list.h"
#include "desktop/qt/mime_types.h"
#include "document/command_codes.h"
#include "kit/decoding/decoder_program.h"
#include "kit/decoding/decoding_roster.h"
#include "kit/qt/qt_translator_roster.h"
#include "kit/qt/ui_text.h"
#include "main/editor/editor_arguments.h"
#include "main/editor/printed_alerts.h"
#include "main/editor/screenshot.h"
#include "main/editor/termination_signals.h"
#include "resources/resource_file_path.h"
#include "ui/shell/editor_style.h"
#include "ui/shell/qt_desktop.h"

namespace {

constexpr int kIconDelayMilliseconds = 100;
constexpr int kExitFailed = 1;

// ask: which part of a video is wanted, as somebody is there.
BMessage RefsMessage(const std::vector<std::string>& files, bool ask) {
    BMessage refs(B_REFS_RECEIVED);
    for (const std::string& file : kirto::InNaturalOrder(files))
        refs.AddRef("refs", entry_ref(std::filesystem::absolute(file).string()));
    if (!ask) refs.AddString("video", "");
    return refs;
}

// How long after a change the copy for the case of a crash is written. KIRTO_RECOVERY_DELAY,
// milliseconds, is for tests, which have no time.
std::chrono::milliseconds RecoveryDelay() {
    const char* milliseconds = std::getenv("KIRTO_RECOVERY_DELAY");
    if (!milliseconds) return kirto::RecoveryWriter::kDelay;
    return std::chrono::milliseconds(kirto::LeadingInteger(milliseconds));
}

void TellDesktop(const std::string& path) {
    kirto::TellDesktopOfRecentFile(path, kirto::MimeTypeOf(path));
}

// Runs until the application's loop has ended; the loop ends when the main window has agreed.
int RunEditor(const kirto::EditorArguments& arguments, BTranslatorRoster& roster) {
    const bool for_user = arguments.screenshot.empty();
    std::optional<kirto::RecentList> recent;
    if (for_user) recent.emplace(kirto::RecentFiles::DefaultFolder(), TellDesktop);
    kirto::QtDesktop desktop(roster, recent ? &*recent : nullptr);
    // A picture is taken where nobody answers an alert.
    std::optional<kirto::PrintedAlerts> printed;
    if (!for_user) printed.emplace();
    Prefs prefs;
    std::optional<kirto::CrashRecovery> recovery;
    std::optional<kirto::TerminationSignals> termination;
    Kirto application(prefs, desktop, roster, entry_ref(kirto::ResourceFilePath()));
    application.CheckSaves();
    if (for_user) {
        recovery.emplace(kirto::RecoveryStore::DefaultFolder(), RecoveryDelay());
        recovery->Watch(application);
        application.UseRecovery(*recovery);
        termination.emplace([&recovery] { recovery->WriteNow(); });
        application.PostMessage(kirto::kOfferRecovery);
    }
    if (!arguments.files.empty())
        application.Commands().SendMessage(RefsMessage(arguments.files, for_user));

    int status = 0;
    const kirto::Screenshot screenshot(application, *desktop.MainWindow(), arguments.screenshot,
                                       &status);
    std::atomic<bool> agreed = false;
    std::thread loop([&application, &agreed] {
        application.Loop();
        agreed = true;
        // Quitting would ask the main window again.
        QMetaObject::invokeMethod(
            qApp, [] { QApplication::exit(); }, Qt::QueuedConnection);
    });
    QApplication::exec();
    // A desktop that ends its programs has not asked whether the document may go.
    const bool done = agreed;
    if (recovery && !done) recovery->WriteNow();
    termination.reset();
    desktop.CloseWindows();
    application.RequestStop();
    application.Quit();
    loop.join();
    application.SetObserver(nullptr);
    if (recovery && done) recovery->Remove();
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
    UiText::UseLanguage(UiText::UserLanguages());
    QApplication::setStyle(new kirto::EditorStyle(QApplication::style()->name()));
    QApplication::setApplicationName("kirto");
    QApplication::setApplicationVersion(KIRTO_VERSION);
    QApplication::setDesktopFileName("org.kirto.Kirto");
    // Reading the drawing takes half as long as everything else; the window comes first.
    QTimer::singleShot(kIconDelayMilliseconds, qApp,
                       [] { QApplication::setWindowIcon(QIcon(":/kirto.svg")); });
    // The main window's closing is a request; the application decides.
    QApplication::setQuitOnLastWindowClosed(false);
    if (const auto status = kirto::ParseArguments(argc, argv, &arguments)) return *status;
    kirto::QtTranslatorRoster writers;
    kirto::DecodingRoster roster(kirto::DecoderProgram(), writers);
    return kirto::ExitStatus(RunEditor(arguments, roster));
}
