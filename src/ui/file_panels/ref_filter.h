// Which entries of a folder a file panel offers.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "kit/entry_ref.h"

class BRefFilter {
  public:
    // Gives the entry's MIME type, empty when it is unknown. Finding it may require reading the
    // file, so a filter asks only if the type decides.
    using TypeSource = std::function<std::string()>;

    virtual ~BRefFilter() = default;
    // True when the entry is to be offered. Thread-safe.
    virtual bool Filter(const entry_ref& ref, const TypeSource& type) const = 0;
};

namespace kirto {

// The types of entries that are not files.
inline constexpr std::string_view kVolumeType = "application/x-vnd.Be-volume";
inline constexpr std::string_view kDirectoryType = "application/x-vnd.Be-directory";
inline constexpr std::string_view kSymlinkType = "application/x-vnd.Be-symlink";

// True for what may lead to files: volumes, folders and links.
inline bool LeadsToFiles(std::string_view type) {
    return type == kVolumeType || type == kDirectoryType || type == kSymlinkType;
}

}  // namespace kirto
