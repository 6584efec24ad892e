#pragma once

#include <string>
#include <utility>

// Names a file-system entry by its path, bytes as the file system has them. Links are not followed.
struct entry_ref {
    std::string path;

    entry_ref() = default;
    explicit entry_ref(std::string entry_path) : path(std::move(entry_path)) {}

    // The path's last component, without slashes that follow it; empty for the root.
    std::string Leaf() const;
    // The path of the directory that holds the entry, absolute where the path is; "." for a bare
    // name, the root for the root.
    std::string Directory() const;

    friend bool operator==(const entry_ref&, const entry_ref&) = default;
};
