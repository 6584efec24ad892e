#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/types.h"
#include "formats/sheet/sheet_description.h"

namespace kirto {

// What an export has made, in memory: one file; the picture of a sheet, with the text beside it; or
// numbered images.
struct ExportFiles {
    std::vector<std::vector<uint8>> contents;
    std::optional<SheetDescription> sheet;  // of the one picture
    bool numbered = false;                  // the contents are images of a sequence

    bool Empty() const { return contents.empty(); }
    // With the text.
    size_t Count() const { return contents.size() + (sheet ? 1 : 0); }
    // Bytes of all of them, where the first has that name, which a text tells.
    uint64 Size(const std::string& name) const;
    // Where they go when that path is chosen, in the order of their contents; the text comes last.
    std::vector<std::string> PathsAt(const std::string& path) const;
};

struct WrittenExport {
    size_t written = 0;  // files that are there
    size_t count = 0;    // that were to be written

    bool IsComplete() const { return written == count; }
    // What has to be added where it can't be written: " 3 of 10 files were written."; empty where
    // there is one file.
    std::string Remark() const;
};

// Writes the files to the paths that belong to that one. Each takes the place of an existing one as
// a whole or not at all, in their order, until one fails; where some are short of room, none of
// them takes its place. Any thread.
WrittenExport WriteExport(const ExportFiles& files, const std::string& path);

}  // namespace kirto
