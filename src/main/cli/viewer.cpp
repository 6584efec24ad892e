#include "main/cli/viewer.h"

#include <cerrno>
#include <spawn.h>
#include <sys/wait.h>
#include <vector>

#include "desktop/browser_variable.h"

namespace kirto {

namespace {

// True when the program could be started and says that it succeeded.
bool RunProgram(ProgramCall call) {
    std::vector<char*> arguments;
    for (std::string& argument : call)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
        return false;
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

bool RunViewer(const std::string& path) {
    for (const ProgramCall& call : BrowserVariableCalls(path)) {
        if (RunProgram(call)) return true;
    }
    return RunProgram({"x-www-browser", path}) || RunProgram({"xdg-open", path});
}

}  // namespace kirto
