#include "main/cli/viewer.h"

#include <cerrno>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>

namespace kirto {

namespace {

// True when the program could be started and says that it succeeded.
bool RunProgram(const std::string& program, const std::string& argument) {
    std::string name = program;
    std::string file = argument;
    char* arguments[] = {name.data(), file.data(), nullptr};
    pid_t child = 0;
    if (posix_spawnp(&child, name.c_str(), nullptr, nullptr, arguments, environ) != 0) {
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
    const char* browser = std::getenv("BROWSER");
    if (browser && *browser && RunProgram(browser, path)) return true;
    return RunProgram("x-www-browser", path) || RunProgram("xdg-open", path);
}

}  // namespace kirto
