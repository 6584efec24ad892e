// kirto-cli: edits frame animations without a window.
#include <csignal>
#include <cstdio>

#include "main/cli/cli_arguments.h"
#include "main/cli/cli_session.h"
#include "platform/debug_line.h"

int main(int argc, char** argv) {
    // A reader that goes away is a failed write, not the end of the program.
    std::signal(SIGPIPE, SIG_IGN);
    kirto::CliArguments arguments;
    if (const auto status = kirto::ParseArguments(argc, argv, &arguments)) return *status;
    const bool quiet = arguments.quiet;
    kirto::InstallDebugSink([quiet](const std::string& text) {
        if (!quiet) std::fputs(text.c_str(), stderr);
    });
    const int status = kirto::CliSession(std::move(arguments)).Run();
    if (std::fflush(stdout) == 0) return status;
    std::fputs("kirto-cli: standard output can't be written.\n", stderr);
    return kirto::kExitFailed;
}
