// kirto-cli: edits frame animations without a window.
#include <QGuiApplication>
#include <atomic>
#include <csignal>
#include <cstdio>

#include "main/cli/cli_arguments.h"
#include "main/cli/cli_session.h"
#include "platform/qt/qt_translator_roster.h"

namespace {

std::atomic<kirto::CliSession*> g_session = nullptr;

// The first Ctrl-C ends the work between two frames; a second one ends the program.
void StopOnInterrupt(int signal) {
    std::signal(signal, SIG_DFL);
    if (kirto::CliSession* session = g_session) session->RequestStop();
}

// What Qt has to remark about the surroundings of a program without a screen is of no use here.
void IgnoreRemark(QtMsgType, const QMessageLogContext&, const QString&) {}

int RunSession(kirto::CliArguments arguments) {
    qInstallMessageHandler(IgnoreRemark);
    // Qt's image formats need an application object, but no screen.
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    int argc = 3;
    char name[] = "kirto-cli";
    char option[] = "-platform";
    char platform[] = "offscreen";
    char* argv[] = {name, option, platform, nullptr};
    const QGuiApplication application(argc, argv);
    kirto::QtTranslatorRoster roster;
    kirto::CliSession session(std::move(arguments), roster);
    g_session = &session;
    std::signal(SIGINT, StopOnInterrupt);
    std::signal(SIGTERM, StopOnInterrupt);
    const int status = session.Run();
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
    const int status = RunSession(std::move(arguments));
    if (std::fflush(stdout) == 0 && !std::ferror(stdout)) return status;
    std::fputs("kirto-cli: standard output can't be written.\n", stderr);
    return kirto::kExitFailed;
}
