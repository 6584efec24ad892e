// Files that ask as much of their reader as their format lets them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/types.h"

namespace kirto::test {

// A file that can have any amount of one thing.
struct HostileSeries {
    std::string name;  // says of what: also a name for a file, with its extension
    int32 count;       // of it in the file at its worst
    std::function<std::vector<uint8>(int32 count)> bytes;
};

// A file whose numbers are as small or as large as they can be, or just beside a power of two.
struct HostileFile {
    std::string name;  // with its extension
    std::vector<uint8> bytes;
};

std::vector<HostileSeries> HostileGifSeries();
std::vector<HostileSeries> HostileFliSeries();

// take: gets one file after the other, as all of them take much memory. few: some of each kind.
void ForEachHostileGif(bool few, const std::function<void(const HostileFile& file)>& take);
void ForEachHostileFli(bool few, const std::function<void(const HostileFile& file)>& take);

}  // namespace kirto::test
