#include "platform/entry_ref.h"

#include <filesystem>

std::string entry_ref::Leaf() const {
    return std::filesystem::path(path).filename().string();
}

std::string entry_ref::Directory() const {
    const std::string parent = std::filesystem::path(path).parent_path().string();
    return parent.empty() ? "." : parent;
}
