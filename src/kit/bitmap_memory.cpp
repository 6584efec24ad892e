#include "kit/bitmap_memory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <utility>

namespace kirto {

namespace {

constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

}  // namespace

BitmapMemory& BitmapMemory::operator=(BitmapMemory&& other) noexcept {
    std::swap(own_, other.own_);
    std::swap(mapped_, other.mapped_);
    std::swap(size_, other.size_);
    return *this;
}

BitmapMemory::~BitmapMemory() {
    if (mapped_) munmap(mapped_, size_);
}

BitmapMemory BitmapMemory::Allocate(size_t size) {
    BitmapMemory memory;
    memory.own_ = AllocateArray<uint8>(size);
    return memory;
}

BitmapMemory BitmapMemory::OfSealedFile(const FileDescriptor& file, size_t size) {
    const int seals = fcntl(file.Get(), F_GET_SEALS);
    struct stat info;
    if (seals < 0 || (seals & kSeals) != kSeals || fstat(file.Get(), &info) != 0) return {};
    if (static_cast<uint64>(info.st_size) < size) return {};
    void* bytes = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE, file.Get(), 0);
    if (bytes == MAP_FAILED) return {};
    // All pages at once where the kernel does that; none of them is copied for it.
    madvise(bytes, size, MADV_POPULATE_READ);
    BitmapMemory memory;
    memory.mapped_ = static_cast<uint8*>(bytes);
    memory.size_ = size;
    return memory;
}

bool SealFile(const FileDescriptor& file) {
    return fcntl(file.Get(), F_ADD_SEALS, kSeals) == 0;
}

}  // namespace kirto
