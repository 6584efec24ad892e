#include "platform/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace {

constexpr size_t kBufferSize = 64 * 1024;

status_t StatusFromErrno(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR: return B_ENTRY_NOT_FOUND;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case ELOOP: return B_NOT_ALLOWED;
        case ENOMEM: return B_NO_MEMORY;
        default: return B_IO_ERROR;
    }
}

bool WriteAll(int descriptor, const uint8* bytes, size_t size) {
    while (size > 0) {
        const ssize_t written = write(descriptor, bytes, size);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

// The path with every symbolic link followed, also when the last component does not exist yet;
// empty when the links run in a circle.
std::string ResolveLinks(const std::string& path) {
    std::filesystem::path current(path);
    std::error_code error;
    for (int links = 0; links < 40; ++links) {
        if (!std::filesystem::is_symlink(std::filesystem::symlink_status(current, error))) {
            return current.string();
        }
        const std::filesystem::path link = std::filesystem::read_symlink(current, error);
        if (error) return {};
        current = link.is_absolute() ? link : current.parent_path() / link;
    }
    return {};
}

bool SyncDirectoryOf(const std::string& path) {
    std::string directory = std::filesystem::path(path).parent_path().string();
    if (directory.empty()) directory = ".";
    const int descriptor = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return false;
    const bool synced = fsync(descriptor) == 0;
    close(descriptor);
    return synced;
}

}  // namespace

BFile::BFile(const std::string& path, open_mode) : path_(path) {
    // O_NONBLOCK keeps the open of a pipe from waiting for a writer; regular files ignore it.
    descriptor_ = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor_ < 0) {
        status_ = StatusFromErrno(errno);
        return;
    }
    struct stat info;
    if (fstat(descriptor_, &info) != 0) {
        status_ = B_IO_ERROR;
    } else if (!S_ISREG(info.st_mode)) {
        status_ = B_NOT_ALLOWED;
    } else {
        size_ = info.st_size;
        status_ = B_OK;
    }
}

BFile::~BFile() {
    DiscardTemporary();
    if (descriptor_ >= 0) close(descriptor_);
}

std::unique_ptr<BFile> BFile::CreateReplacing(const std::string& path) {
    std::unique_ptr<BFile> file(new BFile);
    file->path_ = path;
    file->target_ = ResolveLinks(path);
    file->OpenTemporary();
    return file;
}

std::unique_ptr<BFile> BFile::OnMemory(std::vector<uint8> bytes) {
    std::unique_ptr<BFile> file(new BFile);
    file->buffer_ = std::move(bytes);
    file->status_ = B_OK;
    return file;
}

void BFile::OpenTemporary() {
    if (target_.empty()) {
        status_ = B_NOT_ALLOWED;
        return;
    }
    struct stat info;
    const bool exists = stat(target_.c_str(), &info) == 0;
    if (exists && !S_ISREG(info.st_mode)) {
        status_ = B_NOT_ALLOWED;
        return;
    }
    // A target that its owner made read-only is not replaced behind the owner's back.
    if (exists && access(target_.c_str(), W_OK) != 0) {
        status_ = StatusFromErrno(errno);
        return;
    }
    const std::filesystem::path target(target_);
    std::string name = (target.parent_path() / ".kirto-XXXXXX").string();
    descriptor_ = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor_ < 0) {
        status_ = StatusFromErrno(errno);
        return;
    }
    temporary_ = name;
    mode_t mode = 0666;
    if (exists) {
        mode = info.st_mode & 07777;
    } else {
        const mode_t mask = umask(0);
        umask(mask);
        mode &= ~mask;
    }
    status_ = fchmod(descriptor_, mode) == 0 ? B_OK : StatusFromErrno(errno);
    if (status_ != B_OK) DiscardTemporary();
}

int64 BFile::Size() const {
    if (descriptor_ < 0) return static_cast<int64>(buffer_.size());
    if (!buffer_dirty_) return size_;
    return std::max(size_, buffer_start_ + static_cast<int64>(buffer_.size()));
}

bool BFile::FillBuffer() {
    if (FlushBuffer() != B_OK) return false;
    buffer_.resize(kBufferSize);
    buffer_start_ = position_;
    ssize_t count = 0;
    do {
        count = pread(descriptor_, buffer_.data(), buffer_.size(), position_);
    } while (count < 0 && errno == EINTR);
    buffer_.resize(static_cast<size_t>(std::max<ssize_t>(count, 0)));
    return count >= 0;
}

int64 BFile::Read(void* buffer, size_t size) {
    if (status_ != B_OK) return status_;
    size_t done = 0;
    while (done < size) {
        const int64 buffer_end = buffer_start_ + static_cast<int64>(buffer_.size());
        if (position_ < buffer_start_ || position_ >= buffer_end) {
            if (descriptor_ < 0) break;
            if (!FillBuffer()) return B_IO_ERROR;
            if (buffer_.empty()) break;
            continue;
        }
        const size_t offset = static_cast<size_t>(position_ - buffer_start_);
        const size_t step = std::min(size - done, buffer_.size() - offset);
        std::memcpy(static_cast<uint8*>(buffer) + done, buffer_.data() + offset, step);
        done += step;
        position_ += static_cast<int64>(step);
    }
    return static_cast<int64>(done);
}

bool BFile::ReadExactly(void* buffer, size_t size) {
    return Read(buffer, size) == static_cast<int64>(size);
}

int64 BFile::Write(const void* buffer, size_t size) {
    if (status_ != B_OK) return status_;
    if (write_status_ != B_OK) return write_status_;
    if (descriptor_ >= 0 && temporary_.empty()) return write_status_ = B_NOT_ALLOWED;
    const int64 buffer_end = buffer_start_ + static_cast<int64>(buffer_.size());
    const bool continues = position_ >= buffer_start_ && position_ <= buffer_end;
    if (descriptor_ >= 0 && (!continues || !buffer_dirty_)) {
        if (FlushBuffer() != B_OK) return write_status_;
        buffer_.clear();
        buffer_start_ = position_;
    }
    const size_t offset = static_cast<size_t>(position_ - buffer_start_);
    if (buffer_.size() < offset + size) buffer_.resize(offset + size);
    std::memcpy(buffer_.data() + offset, buffer, size);
    position_ += static_cast<int64>(size);
    buffer_dirty_ = true;
    if (descriptor_ >= 0 && buffer_.size() >= kBufferSize && FlushBuffer() != B_OK) {
        return write_status_;
    }
    return static_cast<int64>(size);
}

status_t BFile::FlushBuffer() {
    if (!buffer_dirty_ || descriptor_ < 0) return B_OK;
    buffer_dirty_ = false;
    const bool written = lseek(descriptor_, buffer_start_, SEEK_SET) >= 0 &&
                         WriteAll(descriptor_, buffer_.data(), buffer_.size());
    if (!written) return write_status_ = StatusFromErrno(errno);
    size_ = std::max(size_, buffer_start_ + static_cast<int64>(buffer_.size()));
    buffer_start_ += static_cast<int64>(buffer_.size());
    buffer_.clear();
    return B_OK;
}

int64 BFile::Seek(int64 offset, seek_mode mode) {
    int64 base = 0;
    if (mode == SEEK_FROM_CURRENT) base = position_;
    if (mode == SEEK_FROM_END) base = Size();
    int64 target = 0;
    if (__builtin_add_overflow(base, offset, &target) || target < 0) return B_BAD_VALUE;
    return position_ = target;
}

status_t BFile::Commit() {
    if (status_ != B_OK) return status_;
    if (temporary_.empty()) return B_NOT_ALLOWED;
    if (write_status_ == B_OK) FlushBuffer();
    if (write_status_ == B_OK && fsync(descriptor_) != 0) write_status_ = B_IO_ERROR;
    if (write_status_ == B_OK && std::rename(temporary_.c_str(), target_.c_str()) != 0) {
        write_status_ = StatusFromErrno(errno);
    }
    if (write_status_ != B_OK) {
        DiscardTemporary();
        return write_status_;
    }
    temporary_.clear();
    // The new file is in place; only its survival of a power loss is at stake here.
    return SyncDirectoryOf(target_) ? B_OK : B_IO_ERROR;
}

void BFile::DiscardTemporary() {
    if (!temporary_.empty()) unlink(temporary_.c_str());
    temporary_.clear();
}

void BFile::SetMimeType(const std::string& type) {
    if (descriptor_ < 0) return;
    [[maybe_unused]] const int ignored =
        fsetxattr(descriptor_, "user.mime_type", type.data(), type.size(), 0);
}
