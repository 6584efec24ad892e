#include "kit/decoding/decoded_pixels.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace kirto {

bool HasDecodedPixels(const FileDescriptor& file, int32 width, int32 height) {
    struct stat info;
    if (width < 1 || height < 1 || !file || fstat(file.Get(), &info) != 0) return false;
    return S_ISREG(info.st_mode) && info.st_size / 4 / width >= height;
}

bool ReadDecodedPixels(const FileDescriptor& file, std::span<uint8> pixels) {
    off_t position = 0;
    while (!pixels.empty()) {
        const ssize_t count = pread(file.Get(), pixels.data(), pixels.size(), position);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        position += count;
        pixels = pixels.subspan(static_cast<size_t>(count));
    }
    return true;
}

}  // namespace kirto
