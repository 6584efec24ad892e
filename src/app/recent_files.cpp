#include "app/recent_files.h"

#include <algorithm>
#include <string_view>
#include <unistd.h>

#include "base/directories.h"
#include "base/number.h"
#include "base/text.h"
#include "kit/file.h"

namespace kirto {

namespace {

// Twelve of the longest paths there are, three letters for each.
constexpr int64 kMostBytes = int64{12} * 3 * 4200;

std::string Escaped(std::string_view path) {
    std::string text;
    for (const char c : path) {
        if (c == '%' || c == '\n') {
            text += Format("%%%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
        } else {
            text += c;
        }
    }
    return text;
}

std::string Unescaped(std::string_view text) {
    std::string path;
    while (!text.empty()) {
        const bool percent = text.starts_with("%25");
        const bool line = text.starts_with("%0A");
        path += line ? '\n' : text.front();
        text.remove_prefix(percent || line ? 3 : 1);
    }
    return path;
}

// False for a line that is none of those that are written.
bool Parse(std::string_view line, RecentFile* file) {
    const size_t blank = line.find(' ');
    if (blank == std::string_view::npos) return false;
    if (!ParseNumber(line.substr(0, blank), &file->seconds) || file->seconds < 0) return false;
    file->path = Unescaped(line.substr(blank + 1));
    return file->path.starts_with('/') && file->path.find('\0') == std::string::npos;
}

}  // namespace

std::string RecentFiles::DefaultFolder() {
    return StateDirectory() + "/kirto";
}

std::string RecentFiles::Path() const {
    return folder_ + "/recent";
}

std::vector<RecentFile> RecentFiles::Read() const {
    BFile file(Path(), B_READ_ONLY);
    if (file.InitCheck() != B_OK) return {};
    std::string text(static_cast<size_t>(std::min(file.Size(), kMostBytes)), '\0');
    if (!file.ReadExactly(text.data(), text.size())) return {};

    std::vector<RecentFile> files;
    for (std::string_view rest = text; !rest.empty() && files.size() < kMost;) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        RecentFile file_of_line;
        if (!Parse(line, &file_of_line)) continue;
        const bool known = std::any_of(files.begin(), files.end(), [&](const RecentFile& other) {
            return other.path == file_of_line.path;
        });
        if (!known) files.push_back(std::move(file_of_line));
    }
    return files;
}

bool RecentFiles::Add(const RecentFile& file) {
    std::vector<RecentFile> files = Read();
    std::erase_if(files, [&](const RecentFile& other) { return other.path == file.path; });
    files.insert(files.begin(), file);
    if (files.size() > kMost) files.resize(kMost);
    return Write(files);
}

bool RecentFiles::Clear() {
    return unlink(Path().c_str()) == 0 || errno == ENOENT;
}

bool RecentFiles::Write(const std::vector<RecentFile>& files) {
    std::string text;
    for (const RecentFile& file : files)
        text += std::to_string(file.seconds) + ' ' + Escaped(file.path) + '\n';
    MakeFolders(folder_);
    const auto file = BFile::CreatePrivate(Path());
    if (file->InitCheck() != B_OK) return false;
    file->Write(text.data(), text.size());
    return file->Commit() == B_OK;
}

}  // namespace kirto
