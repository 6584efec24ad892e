#include "main/cli/up_to_date.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <string>

#include "main/cli/standard_streams.h"

namespace kirto {

namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

const Names kReaders = {"--open", "--insert", "--insert-animation", "--insert-tiled", "--overlay"};
const Names kPaletteReaders = {"--palette", "--frame-palette"};
const Names kWriters = {"--save", "--save-frame", "--save-sheet", "--export"};
// What they do is nothing that a file could show to be done.
const Names kAlwaysDone = {"--save-sequence", "--preview", "--info", "--info-json",
                           "--list-formats"};

// When the file was changed that the value opens with; behind its name there may be items that
// begin with a comma or an at sign. Nothing where there is no such file.
std::optional<fs::file_time_type> TimeOf(std::string value) {
    for (;;) {
        std::error_code error;
        if (fs::is_regular_file(value, error)) {
            const fs::file_time_type time = fs::last_write_time(value, error);
            if (!error) return time;
        }
        const size_t end = value.find_last_of(",@");
        if (end == std::string::npos) return std::nullopt;
        value.resize(end);
    }
}

}  // namespace

bool IsUpToDate(std::span<const CliOperation> operations) {
    std::optional<fs::file_time_type> newest_read;
    std::optional<fs::file_time_type> oldest_written;
    for (const auto& [option, value] : operations) {
        if (kAlwaysDone.contains(option)) return false;
        const bool writes = kWriters.contains(option);
        if (!writes && !kReaders.contains(option) && !kPaletteReaders.contains(option)) continue;
        if (IsStandardStream(value)) return false;
        const std::optional<fs::file_time_type> time = TimeOf(value);
        // The name of a built-in palette.
        if (!time && kPaletteReaders.contains(option)) continue;
        if (!time) return false;
        if (writes) {
            oldest_written = std::min(oldest_written.value_or(*time), *time);
        } else {
            newest_read = std::max(newest_read.value_or(*time), *time);
        }
    }
    return newest_read && oldest_written && *oldest_written > *newest_read;
}

}  // namespace kirto
