#include "base/program_files.h"

#include <filesystem>

namespace kirto {

namespace fs = std::filesystem;

std::optional<std::string> ProgramFolder() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error) return std::nullopt;
    return program.parent_path().string();
}

std::string ProgramFile(const std::string& program_folder, const std::string& name,
                        const std::string& installed) {
    const fs::path folder = program_folder;
    const fs::path beside = folder / name;
    const fs::path elsewhere = folder / installed / name;
    std::error_code error;
    const bool is_installed = !fs::exists(beside, error) && fs::exists(elsewhere, error);
    return (is_installed ? elsewhere : beside).string();
}

}  // namespace kirto
