#include "base/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kirto {

namespace {

// Whoever held the lock before may have removed the file between our opening it and our locking it.
// What is locked then is no file of that path any more.
bool StandsAt(const std::string& path, int descriptor) {
    struct stat locked;
    struct stat named;
    return fstat(descriptor, &locked) == 0 && lstat(path.c_str(), &named) == 0 &&
           locked.st_dev == named.st_dev && locked.st_ino == named.st_ino;
}

}  // namespace

std::unique_ptr<FileLock> FileLock::TryTake(const std::string& path) {
    const int descriptor =
        open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (descriptor < 0) return nullptr;
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 || !StandsAt(path, descriptor)) {
        close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<FileLock>(new FileLock(path, descriptor));
}

FileLock::FileLock(std::string path, int descriptor)
    : path_(std::move(path)), descriptor_(descriptor) {}

FileLock::~FileLock() {
    close(descriptor_);
}

void FileLock::RemoveFile() {
    unlink(path_.c_str());
}

}  // namespace kirto
