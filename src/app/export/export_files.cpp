#include "app/export/export_files.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>
#include <utility>

#include "app/export/sequence_name.h"
#include "base/core_text.h"
#include "kit/file.h"

namespace kirto {

namespace {

// So many files are complete before the first of them takes its place, and are open until then.
constexpr size_t kTogether = 64;

using OpenFiles = std::vector<std::unique_ptr<BFile>>;

std::string TextBeside(const SheetDescription& sheet, const std::string& name) {
    SheetDescription description = sheet;
    description.image = name;
    return SheetDescriptionText(description);
}

// Null where it can't be created or written.
std::unique_ptr<BFile> PrepareFile(const std::string& path, const void* bytes, size_t size) {
    std::unique_ptr<BFile> file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) return nullptr;
    file->Write(bytes, size);
    return file->WriteStatus() == B_OK ? std::move(file) : nullptr;
}

size_t CommitAll(const OpenFiles& files) {
    size_t written = 0;
    while (written < files.size() && files[written]->Commit() == B_OK)
        ++written;
    return written;
}

}  // namespace

uint64 ExportFiles::Size(const std::string& name) const {
    uint64 size = sheet ? TextBeside(*sheet, name).size() : 0;
    for (const std::vector<uint8>& content : contents)
        size += content.size();
    return size;
}

std::vector<std::string> ExportFiles::PathsAt(const std::string& path) const {
    const std::filesystem::path chosen(path);
    if (sheet) return {path, std::filesystem::path(chosen).replace_extension(".json").string()};
    if (!numbered) return {path};
    std::vector<std::string> paths;
    for (size_t i = 0; i < contents.size(); ++i) {
        const std::string name =
            SequenceFileName(chosen.filename().string(), static_cast<int32>(i));
        paths.push_back((chosen.parent_path() / name).string());
    }
    return paths;
}

std::string WrittenExport::Remark() const {
    if (count == 1) return {};
    return CoreText::With(CoreText::tr(" %1 of %2 files were written."),
                          {std::to_string(written), std::to_string(count)});
}

WrittenExport WriteExport(const ExportFiles& files, const std::string& path) {
    const std::vector<std::string> paths = files.PathsAt(path);
    WrittenExport result{0, paths.size()};
    // The text of a picture that is named like one.
    if (std::set(paths.begin(), paths.end()).size() != paths.size()) return result;
    const std::string name = std::filesystem::path(path).filename().string();
    const std::string text = files.sheet ? TextBeside(*files.sheet, name) : std::string();
    while (result.written < paths.size()) {
        const size_t end = std::min(paths.size(), result.written + kTogether);
        OpenFiles open;
        for (size_t i = result.written; i < end; ++i) {
            const bool is_text = i == files.contents.size();
            const void* const bytes =
                is_text ? text.data() : static_cast<const void*>(files.contents[i].data());
            auto file =
                PrepareFile(paths[i], bytes, is_text ? text.size() : files.contents[i].size());
            if (!file) return result;
            // Those of the first tell of what was killed here before.
            if (i == 0) file->RemoveLeftovers();
            open.push_back(std::move(file));
        }
        const size_t written = CommitAll(open);
        result.written += written;
        if (written < open.size()) return result;
    }
    return result;
}

}  // namespace kirto
