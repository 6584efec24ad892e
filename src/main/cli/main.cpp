// kirto-cli: edits frame animations without a window.
#include <QGuiApplication>
#include <algorithm>
#include <atomic>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <memory>
#include <new>
#include <set>

#include "base/abandonable.h"
#include "kit/qt/qt_translator_roster.h"
#include "main/cli/cli_arguments.h"
#include "main/cli/cli_session.h"

namespace {

std::atomic<kirto::CliSession*> g_session = nullptr;

// The first Ctrl-C ends the work in hand; a second one ends the program.
void StopOnInterrupt(int) {
    if (kirto::CliSession* session = g_session) session->RequestStop();
}

// What Qt has to remark about the surroundings of a program without a screen is of no use here.
void IgnoreRemark(QtMsgType, const QMessageLogContext&, const QString&) {}

bool UsesImages(const kirto::CliArguments& arguments) {
    static const std::set<std::string> kImageOptions = {"--insert", "--insert-tiled",
                                                        "--save-sequence", "--list-formats"};
    return std::any_of(
        arguments.operations.begin(), arguments.operations.end(),
        [](const auto& operation) { return kImageOptions.contains(operation.option); });
}

// What Qt's image formats need: an application object, but no screen. It looks through the fonts of
// the machine, so it is made only where images are used.
class ImageSupport {
  public:
    explicit ImageSupport(bool wanted) {
        if (!wanted) return;
        qInstallMessageHandler(IgnoreRemark);
        kirto::QtTranslatorRoster::RestrictPluginFolders();
        application_ = std::make_unique<QGuiApplication>(argc_, argv_);
        kirto::QtTranslatorRoster::RestrictPluginFolders();
        // The application object takes over the user's locale; numbers stay as they are without it.
        std::setlocale(LC_NUMERIC, "C");
    }

  private:
    char name_[10] = "kirto-cli";
    char option_[10] = "-platform";
    char platform_[10] = "offscreen";
    int argc_ = 3;
    char* argv_[4] = {name_, option_, platform_, nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

int RunSession(kirto::CliArguments arguments, kirto::QtTranslatorRoster& roster) {
    kirto::CliSession session(std::move(arguments), roster);
    g_session = &session;
    struct sigaction action = {};
    action.sa_handler = StopOnInterrupt;
    // Once only; and a wait for the Enter key ends, instead of being taken up again.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    int status = kirto::kExitFailed;
    try {
        status = session.Run();
    } catch (const std::bad_alloc&) {
        std::fputs("kirto-cli: Out of memory.\n", stderr);
    }
    g_session = nullptr;
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    // A reader that goes away, or a file that may grow no further, is a failed write and not the
    // end of the program.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    kirto::CliArguments arguments;
    if (const auto status = kirto::ParseArguments(argc, argv, &arguments)) return *status;
    const ImageSupport image_support(UsesImages(arguments));
    kirto::QtTranslatorRoster roster;
    const int status = kirto::ExitStatus(RunSession(std::move(arguments), roster));
    if (std::fflush(stdout) == 0 && !std::ferror(stdout)) return status;
    std::fputs("kirto-cli: standard output can't be written.\n", stderr);
    return kirto::kExitFailed;
}
