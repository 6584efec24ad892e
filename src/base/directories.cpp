#include "base/directories.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/text.h"

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

// The folder that the variable names, or the one below the home folder.
std::string ConfiguredDirectory(const char* variable, const std::string& below_home) {
    const std::string configured = Environment(variable);
    if (configured.starts_with('/')) return std::string(WithoutClosingSlashes(configured));
    const std::string home = HomeDirectory();
    return home == "/" ? below_home : home + below_home;
}

}  // namespace

std::string SettingsDirectory() {
    return ConfiguredDirectory("XDG_CONFIG_HOME", "/.config");
}

std::string StateDirectory() {
    return ConfiguredDirectory("XDG_STATE_HOME", "/.local/state");
}

std::string HomeDirectory() {
    const std::string home = Environment("HOME");
    return std::string(WithoutClosingSlashes(home.empty() ? AccountHome() : home));
}

void MakeFolders(const std::string& folder) {
    std::error_code ignored;
    if (std::filesystem::is_directory(folder, ignored)) return;
    std::filesystem::path made;
    for (const std::filesystem::path& part : std::filesystem::path(folder)) {
        made /= part;
        mkdir(made.c_str(), 0700);
    }
}

}  // namespace kirto
