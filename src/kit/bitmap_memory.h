#pragma once

#include "base/allocation.h"
#include "base/file_descriptor.h"
#include "base/types.h"

namespace kirto {

// The bytes of one bitmap: memory of the process, or those of a file in memory that another process
// has filled.
class BitmapMemory {
  public:
    BitmapMemory() = default;
    BitmapMemory(BitmapMemory&& other) noexcept { *this = std::move(other); }
    BitmapMemory& operator=(BitmapMemory&& other) noexcept;
    ~BitmapMemory();

    // Zero-filled; null when memory is short.
    static BitmapMemory Allocate(size_t size);
    // Those at the start of a file that nobody can change anymore; what is changed here is changed
    // here alone. Null where the file may still change or has fewer.
    static BitmapMemory OfSealedFile(const FileDescriptor& file, size_t size);

    uint8* Get() { return mapped_ ? mapped_ : own_.get(); }
    const uint8* Get() const { return mapped_ ? mapped_ : own_.get(); }
    explicit operator bool() const { return Get() != nullptr; }

  private:
    AllocatedArray<uint8> own_;
    uint8* mapped_ = nullptr;
    size_t size_ = 0;  // of what is mapped
};

// Keeps the file as it is for ever. False where it can't be kept from changing.
bool SealFile(const FileDescriptor& file);

}  // namespace kirto
