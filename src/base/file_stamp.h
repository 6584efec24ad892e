#pragma once

#include <optional>
#include <string>

#include "base/types.h"

namespace kirto {

// Tells whether a file is still the one that it was: which file it is, its size and the time of its
// last change. Two equal stamps mean that nobody wrote to the file meanwhile.
struct FileStamp {
    uint64 device = 0;
    uint64 inode = 0;
    int64 size = 0;
    int64 seconds = 0;  // of the last change, since 1970
    int64 nanoseconds = 0;

    // Of the file at path, at the end of its links; nothing where there is none.
    static std::optional<FileStamp> Of(const std::string& path);

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

}  // namespace kirto
