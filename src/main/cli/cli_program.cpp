#include "main/cli/cli_program.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <new>
#include <utility>

#include "base/abandonable.h"
#include "main/cli/cli_session.h"

namespace kirto {

namespace {

std::atomic<CliSession*> g_session = nullptr;

// The first Ctrl-C ends the work in hand; a second one ends the program.
void StopOnInterrupt(int) {
    if (CliSession* session = g_session) session->RequestStop();
}

int RunSession(CliArguments arguments, BTranslatorRoster& roster, CaptionDrawer draw_caption,
               Exporter exporter) {
    const int retry_status = arguments.retry_status;
    CliSession session(std::move(arguments), roster, std::move(draw_caption), std::move(exporter));
    g_session = &session;
    struct sigaction action = {};
    action.sa_handler = StopOnInterrupt;
    // Once only; and a wait for the Enter key ends, instead of being taken up again.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    int status = kExitFailed;
    try {
        status = session.Run();
    } catch (const std::bad_alloc&) {
        std::fputs("kirto-cli: Out of memory.\n", stderr);
        status = retry_status;
    }
    g_session = nullptr;
    return status;
}

}  // namespace

void PrepareCliProcess() {
    // A reader that goes away, or a file that may grow no further, is a failed write and not the
    // end of the program.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

int RunCliProgram(CliArguments arguments, BTranslatorRoster& roster, CaptionDrawer draw_caption,
                  Exporter exporter) {
    const int status = ExitStatus(
        RunSession(std::move(arguments), roster, std::move(draw_caption), std::move(exporter)));
    if (std::fflush(stdout) == 0 && !std::ferror(stdout)) return status;
    std::fputs("kirto-cli: standard output can't be written.\n", stderr);
    return kExitFailed;
}

}  // namespace kirto
