#include "kit/attribute_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <new>
#include <unistd.h>

#include "base/debug_line.h"
#include "base/directories.h"
#include "base/text.h"
#include "kit/file.h"

namespace kirto {

namespace {

constexpr size_t kMaxFileSize = size_t{1024} * 1024;
constexpr int kMaxDamagedCopies = 1000;

// Renames the file to a free name beside it and returns that; empty on failure. Behind a symbolic
// link it is the file that moves.
std::string MoveAside(const std::string& path) {
    std::error_code error;
    const std::string file = std::filesystem::canonical(path, error).string();
    for (int number = 1; !error && number <= kMaxDamagedCopies; ++number) {
        std::string copy = file + ".damaged";
        if (number > 1) copy.append("-").append(std::to_string(number));
        // Only a name that this call has created is renamed over, so no other copy is lost.
        const int descriptor = open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (descriptor < 0 && errno == EEXIST) continue;
        if (descriptor < 0) return {};
        close(descriptor);
        std::filesystem::rename(file, copy, error);
        if (!error) return copy;
        unlink(copy.c_str());
    }
    return {};
}

}  // namespace

}  // namespace kirto

AttributeFile::AttributeFile(const std::string& path) : path_(path) {
    kirto::MakeFolders(std::filesystem::path(path_).parent_path());
    status_ = Load();
}

status_t AttributeFile::Load() {
    try {
        return ReadFile();
    } catch (const std::bad_alloc&) {
        // That memory is short says nothing about the file.
        attributes_.clear();
        return B_NO_MEMORY;
    }
}

status_t AttributeFile::ReadFile() {
    BFile file(path_, B_READ_ONLY);
    if (file.InitCheck() == B_ENTRY_NOT_FOUND) return CheckWritable();
    if (file.InitCheck() != B_OK) return file.InitCheck();
    const auto size = static_cast<size_t>(file.Size());
    if (size > kirto::kMaxFileSize) return PutAside("larger than 1 MiB");
    std::string text(size, '\0');
    const int64 read = file.Read(text.data(), size);
    if (read < 0) return static_cast<status_t>(read);
    text.resize(static_cast<size_t>(read));
    std::string reason;
    return Parse(text, &attributes_, &reason) ? B_OK : PutAside(reason);
}

status_t AttributeFile::PutAside(const std::string& reason) {
    damaged_copy_ = kirto::MoveAside(path_);
    if (damaged_copy_.empty()) {
        kirto::DebugLine("AttributeFile::PutAside() - %s is damaged (%s)\n", path_.c_str(),
                         reason.c_str());
        return B_NOT_ALLOWED;
    }
    kirto::DebugLine("AttributeFile::PutAside() - %s is damaged (%s), kept as %s\n", path_.c_str(),
                     reason.c_str(), damaged_copy_.c_str());
    return B_OK;
}

status_t AttributeFile::CheckWritable() {
    if (!writable_) {
        const status_t status = BFile::CreateReplacing(path_)->InitCheck();
        // A missing folder must not look like a missing attribute.
        writable_ = status == B_ENTRY_NOT_FOUND ? B_NOT_ALLOWED : status;
    }
    return *writable_;
}

int64 AttributeFile::ReadAttr(std::string_view name, type_code type, void* buffer, size_t size) {
    if (status_ != B_OK) return status_;
    const auto found = attributes_.find(name);
    if (found == attributes_.end()) return B_ENTRY_NOT_FOUND;
    const Attribute attribute = found->second.As(type);
    return static_cast<int64>(attribute.bytes.copy(static_cast<char*>(buffer), size));
}

int64 AttributeFile::WriteAttr(std::string_view name, type_code type, const void* buffer,
                               size_t size) {
    if (status_ != B_OK) return status_;
    if (CheckWritable() != B_OK) return *writable_;
    if (!kirto::IsValidUtf8(name)) return B_BAD_VALUE;
    Attribute written{type, std::string(static_cast<const char*>(buffer), size)};
    const auto [place, added] = attributes_.try_emplace(std::string(name));
    if (!added && place->second == written) return static_cast<int64>(size);
    place->second = std::move(written);
    changed_ = true;
    return static_cast<int64>(size);
}

status_t AttributeFile::Sync() {
    if (status_ != B_OK || !changed_) return status_;
    const std::string text = Print(attributes_);
    if (text.size() > kirto::kMaxFileSize) return B_BAD_VALUE;
    const std::unique_ptr<BFile> file = BFile::CreateReplacing(path_);
    file->RemoveLeftovers();
    file->Write(text.data(), text.size());
    const status_t status = file->Commit();
    changed_ = status != B_OK;
    return status;
}
