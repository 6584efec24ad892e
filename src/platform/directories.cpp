#include "platform/directories.h"

#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

#include "platform/text.h"

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

}  // namespace

std::string SettingsDirectory() {
    const std::string configured = Environment("XDG_CONFIG_HOME");
    if (configured.starts_with('/')) return std::string(WithoutClosingSlashes(configured));
    const std::string home = HomeDirectory();
    return home == "/" ? "/.config" : home + "/.config";
}

std::string HomeDirectory() {
    const std::string home = Environment("HOME");
    return std::string(WithoutClosingSlashes(home.empty() ? AccountHome() : home));
}

}  // namespace kirto
