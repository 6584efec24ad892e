#include "resources/resource_file_path.h"

#include <filesystem>

namespace kirto {

namespace fs = std::filesystem;

std::string ResourceFilePath() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return ResourceFilePath(error ? std::string(".") : program.parent_path().string());
}

std::string ResourceFilePath(const std::string& program_folder) {
    const fs::path folder = program_folder;
    const fs::path beside = folder / "kirto.rsrc";
    const fs::path installed = folder / ".." / "share" / "kirto" / "kirto.rsrc";
    std::error_code error;
    const bool is_installed = !fs::exists(beside, error) && fs::exists(installed, error);
    return (is_installed ? installed : beside).string();
}

}  // namespace kirto
