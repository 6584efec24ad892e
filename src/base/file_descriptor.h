#pragma once

#include <unistd.h>
#include <utility>

namespace kirto {

// Owns a file descriptor of the system.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    // Takes over the descriptor; below 0: none.
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(other.Release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() {
        if (descriptor_ >= 0) close(descriptor_);
    }

    // The number; -1 for none.
    int Get() const { return descriptor_; }
    explicit operator bool() const { return descriptor_ >= 0; }
    // Gives it to the caller.
    int Release() { return std::exchange(descriptor_, -1); }

  private:
    int descriptor_ = -1;
};

}  // namespace kirto
