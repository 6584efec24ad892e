#pragma once

#include <string>
#include <vector>

#include "base/types.h"

namespace kirto {

struct RecentFile {
    std::string path;   // absolute
    int64 seconds = 0;  // since 1970, when it was opened or saved last

    bool operator==(const RecentFile&) const = default;
};

// The animations that were opened or saved last, in a file that only the user may read: a line
// each, its time and its path, in which % and a line's end are written as %XX. Lines that are
// damaged are left out. Several editors may add to it; each reads it before it writes. May be used
// by one thread at a time.
class RecentFiles {
  public:
    static constexpr size_t kMost = 12;

    // folder: made when something is added.
    explicit RecentFiles(std::string folder) : folder_(std::move(folder)) {}
    // $XDG_STATE_HOME/kirto
    static std::string DefaultFolder();

    // The latest first.
    std::vector<RecentFile> Read() const;
    // Puts the file in front; those beyond kMost are forgotten. False when it can't be written.
    bool Add(const RecentFile& file);
    bool Clear();

  private:
    std::string Path() const;
    bool Write(const std::vector<RecentFile>& files);

    const std::string folder_;
};

}  // namespace kirto
