#include "kit/file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <new>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "base/allocation.h"
#include "base/temporary_files.h"

namespace {

constexpr size_t kBufferSize = size_t{64} * 1024;
constexpr int64 kMaxPosition = std::numeric_limits<int64>::max();
// Bytes in memory end here; more can only be a mistake.
constexpr int64 kMaxMemory = int64{1} << 31;
constexpr int kMaxLinks = 40;

status_t StatusFromErrno(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return B_ENTRY_NOT_FOUND;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case ELOOP:
        case ENXIO:
            return B_NOT_ALLOWED;
        case ENAMETOOLONG:
            return B_BAD_VALUE;
        case ENOMEM:
            return B_NO_MEMORY;
        default:
            return B_IO_ERROR;
    }
}

status_t WriteAll(int descriptor, const std::vector<uint8>& bytes, int64 offset) {
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written = pwrite(descriptor, bytes.data() + done, bytes.size() - done,
                                       offset + static_cast<int64>(done));
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return StatusFromErrno(errno);
        if (written == 0) return B_IO_ERROR;
        done += static_cast<size_t>(written);
    }
    return B_OK;
}

// The path with every symbolic link in its last component followed, also when what it leads to does
// not exist yet; empty when the links run in a circle.
std::string ResolveLinks(const std::string& path) {
    std::filesystem::path current(path);
    std::error_code error;
    for (int links = 0; links < kMaxLinks; ++links) {
        if (!std::filesystem::is_symlink(std::filesystem::symlink_status(current, error))) {
            return current.string();
        }
        const std::filesystem::path link = std::filesystem::read_symlink(current, error);
        if (error) return {};
        // An absolute link replaces the folder.
        current = current.parent_path() / link;
    }
    return {};
}

// Whether a file may be written in place of what is there. B_ENTRY_NOT_FOUND when nothing is there.
status_t CheckTarget(int directory, const std::string& name, struct stat* info) {
    // Links that were to be followed have been; one that is still here is replaced itself.
    if (fstatat(directory, name.c_str(), info, AT_SYMLINK_NOFOLLOW) != 0) {
        return StatusFromErrno(errno);
    }
    if (S_ISLNK(info->st_mode)) return B_OK;
    if (!S_ISREG(info->st_mode)) return B_NOT_ALLOWED;
    // A target that its owner made read-only is not replaced behind the owner's back.
    const bool writable = faccessat(directory, name.c_str(), W_OK, AT_EACCESS) == 0;
    return writable ? B_OK : StatusFromErrno(errno);
}

// As good as the file system allows: there are some that can't sync a directory.
void SyncDirectory(int directory) {
    const int descriptor = openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

}  // namespace

BFile::BFile(const std::string& path, open_mode) : path_(path) {
    // O_NONBLOCK keeps the open of a pipe from waiting for a writer; regular files ignore it.
    descriptor_ = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor_ < 0) {
        status_ = StatusFromErrno(errno);
    } else {
        CheckOpened();
    }
}

void BFile::CheckOpened() {
    struct stat info;
    if (fstat(descriptor_, &info) != 0) {
        status_ = StatusFromErrno(errno);
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
    if (directory_ >= 0) close(directory_);
}

std::unique_ptr<BFile> BFile::OnDescriptor(kirto::FileDescriptor descriptor) {
    std::unique_ptr<BFile> file(new BFile);
    file->descriptor_ = descriptor.Release();
    file->CheckOpened();
    return file;
}

kirto::FileDescriptor BFile::ForOtherProcess() const {
    if (descriptor_ >= 0) {
        return kirto::FileDescriptor(fcntl(descriptor_, F_DUPFD_CLOEXEC, 0));
    }
    kirto::FileDescriptor copy(memfd_create("kirto-file", MFD_CLOEXEC));
    if (copy && WriteAll(copy.Get(), buffer_, 0) != B_OK) return {};
    return copy;
}

std::unique_ptr<BFile> BFile::CreateReplacing(const std::string& path) {
    return Create(path, false);
}

std::unique_ptr<BFile> BFile::CreatePrivate(const std::string& path) {
    return Create(path, true);
}

std::unique_ptr<BFile> BFile::Create(const std::string& path, bool for_owner_only) {
    std::unique_ptr<BFile> file(new BFile);
    file->path_ = path;
    file->status_ = file->OpenTemporary(for_owner_only);
    if (file->status_ != B_OK) file->DiscardTemporary();
    return file;
}

std::unique_ptr<BFile> BFile::OnMemory(std::vector<uint8> bytes) {
    std::unique_ptr<BFile> file(new BFile);
    file->buffer_ = std::move(bytes);
    file->status_ = B_OK;
    return file;
}

std::unique_ptr<BFile> BFile::ThatCounts() {
    std::unique_ptr<BFile> file(new BFile);
    file->counts_only_ = true;
    file->status_ = B_OK;
    return file;
}

status_t BFile::OpenTemporary(bool for_owner_only) {
    if (path_.empty()) return B_ENTRY_NOT_FOUND;
    const std::filesystem::path target = for_owner_only ? path_ : ResolveLinks(path_);
    if (target.empty()) return B_NOT_ALLOWED;
    const std::string folder = target.has_parent_path() ? target.parent_path().string() : ".";
    // All further steps go through this descriptor, so that they happen in one and the same
    // directory whatever becomes of the names that lead to it.
    directory_ = open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (directory_ < 0) return StatusFromErrno(errno);
    // A path that ends in a slash asks for a folder.
    target_ = target.has_filename() ? target.filename().string() : ".";
    struct stat info;
    const status_t found = CheckTarget(directory_, target_, &info);
    const bool is_new = found == B_ENTRY_NOT_FOUND;
    if (found != B_OK && !is_new) return found;
    descriptor_ =
        kirto::CreateTemporary(directory_, is_new && !for_owner_only ? 0666 : 0600, &temporary_);
    if (descriptor_ < 0) return StatusFromErrno(errno);
    uncommitted_ = true;
    if (is_new || for_owner_only || S_ISLNK(info.st_mode)) return B_OK;
    // The owner stays only if the process may give files away; the permissions stay either way.
    [[maybe_unused]] const int ignored = fchown(descriptor_, info.st_uid, info.st_gid);
    if (fchmod(descriptor_, info.st_mode & 0777) != 0) return StatusFromErrno(errno);
    kirto::CopyAttributes(directory_, target_, descriptor_);
    return B_OK;
}

void BFile::RemoveLeftovers() {
    if (directory_ >= 0) kirto::RemoveStaleTemporaries(directory_);
}

int64 BFile::Size() const {
    if (counts_only_) return size_;
    if (descriptor_ < 0) return static_cast<int64>(buffer_.size());
    if (!buffer_dirty_) return size_;
    return std::max(size_, buffer_start_ + static_cast<int64>(buffer_.size()));
}

status_t BFile::FillBuffer() {
    const status_t flushed = FlushBuffer();
    buffer_.clear();
    buffer_start_ = position_;
    // No file reaches so far, and the end of the window must stay a number.
    if (flushed != B_OK || position_ > kMaxPosition - static_cast<int64>(kBufferSize)) {
        return flushed;
    }
    if (!MakeReadBuffer()) {
        ran_out_of_memory_ = true;
        return B_NO_MEMORY;
    }
    ssize_t count = 0;
    do {
        count = pread(descriptor_, buffer_.data(), buffer_.size(), position_);
    } while (count < 0 && errno == EINTR);
    const status_t status = count < 0 ? StatusFromErrno(errno) : B_OK;
    buffer_.resize(static_cast<size_t>(std::max<ssize_t>(count, 0)));
    return status;
}

bool BFile::MakeReadBuffer() {
    if (buffer_.capacity() < kBufferSize && kirto::AllocationShouldFail()) return false;
    try {
        buffer_.resize(kBufferSize);
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

int64 BFile::Read(void* buffer, size_t size) {
    if (status_ != B_OK) return status_;
    size_t done = 0;
    while (done < size) {
        const int64 buffer_end = buffer_start_ + static_cast<int64>(buffer_.size());
        if (position_ < buffer_start_ || position_ >= buffer_end) {
            if (descriptor_ < 0) break;
            const status_t status = FillBuffer();
            if (status != B_OK && done == 0) return status;
            if (buffer_.empty()) break;
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
    if (write_status_ == B_OK) write_status_ = PrepareWrite(size);
    if (write_status_ != B_OK) return write_status_;
    if (counts_only_) {
        position_ += static_cast<int64>(size);
        if (size > 0) size_ = std::max(size_, position_);
        return static_cast<int64>(size);
    }
    if (size > 0) {
        const size_t offset = static_cast<size_t>(position_ - buffer_start_);
        std::memcpy(buffer_.data() + offset, buffer, size);
        position_ += static_cast<int64>(size);
        buffer_dirty_ = descriptor_ >= 0;
    }
    if (buffer_dirty_ && buffer_.size() >= kBufferSize && FlushBuffer() != B_OK) {
        return write_status_;
    }
    return static_cast<int64>(size);
}

// Makes the buffer reach from the position over size bytes.
status_t BFile::PrepareWrite(size_t size) {
    if (descriptor_ >= 0 && !uncommitted_) return B_NOT_ALLOWED;
    const int64 limit = descriptor_ >= 0 || counts_only_ ? kMaxPosition : kMaxMemory;
    if (position_ > limit || size > static_cast<size_t>(limit - position_)) return B_NO_MEMORY;
    if (counts_only_) return B_OK;
    const int64 buffer_end = buffer_start_ + static_cast<int64>(buffer_.size());
    const bool continues = position_ >= buffer_start_ && position_ <= buffer_end;
    if (descriptor_ >= 0 && (!continues || !buffer_dirty_)) {
        if (FlushBuffer() != B_OK) return write_status_;
        buffer_.clear();
        buffer_start_ = position_;
    }
    const size_t needed = static_cast<size_t>(position_ - buffer_start_) + size;
    if (size == 0 || needed <= buffer_.size()) return B_OK;
    try {
        buffer_.resize(needed);
    } catch (const std::bad_alloc&) {
        return B_NO_MEMORY;
    }
    return B_OK;
}

status_t BFile::FlushBuffer() {
    if (!buffer_dirty_) return B_OK;
    buffer_dirty_ = false;
    const status_t status = WriteAll(descriptor_, buffer_, buffer_start_);
    if (status != B_OK) return write_status_ = status;
    size_ = std::max(size_, buffer_start_ + static_cast<int64>(buffer_.size()));
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
    if (write_status_ != B_OK) {
        DiscardTemporary();
        return write_status_;
    }
    if (!uncommitted_) return B_NOT_ALLOWED;
    if (FlushBuffer() == B_OK && fsync(descriptor_) != 0) write_status_ = StatusFromErrno(errno);
    if (write_status_ == B_OK) write_status_ = TakeTargetsPlace();
    if (write_status_ != B_OK) {
        DiscardTemporary();
        return write_status_;
    }
    temporary_.clear();
    uncommitted_ = false;
    SyncDirectory(directory_);
    return B_OK;
}

// A target that is not there yet is the first name of the file, so that no moment of a kill leaves
// a file of another name. What is there can only be replaced by a rename.
status_t BFile::TakeTargetsPlace() {
    if (temporary_.empty()) {
        if (kirto::LinkTemporary(descriptor_, directory_, target_)) return B_OK;
        if (errno != EEXIST || !kirto::NameTemporary(descriptor_, directory_, &temporary_))
            return StatusFromErrno(errno);
    }
    if (renameat(directory_, temporary_.c_str(), directory_, target_.c_str()) != 0)
        return StatusFromErrno(errno);
    return B_OK;
}

void BFile::DiscardTemporary() {
    if (descriptor_ >= 0 && !temporary_.empty()) unlinkat(directory_, temporary_.c_str(), 0);
    temporary_.clear();
    uncommitted_ = false;
}

void BFile::SetMimeType(const std::string& type) {
    if (descriptor_ < 0) return;
    [[maybe_unused]] const int ignored =
        fsetxattr(descriptor_, "user.mime_type", type.data(), type.size(), 0);
}
