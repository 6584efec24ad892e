#include "platform/directories.h"

#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace kirto {

namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string AccountHome() {
    std::array<char, 16384> buffer;
    passwd entry;
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found) {
        return "/";
    }
    return found->pw_dir;
}

std::string WithoutClosingSlashes(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

}  // namespace

std::string SettingsDirectory() {
    const std::string configured = Environment("XDG_CONFIG_HOME");
    if (configured.starts_with('/')) return WithoutClosingSlashes(configured);
    const std::string home = HomeDirectory();
    return home == "/" ? "/.config" : home + "/.config";
}

std::string HomeDirectory() {
    const std::string home = Environment("HOME");
    return WithoutClosingSlashes(home.empty() ? AccountHome() : home);
}

}  // namespace kirto
