#include "kit/animated_image.h"

#include <array>
#include <cstring>

namespace kirto {

namespace {

// More chunks than that stand in front of no image.
constexpr int kMostChunks = 1000;

bool IsAnimatedWebp(BFile& file) {
    // The chunk VP8X comes first in every file that has more than a still image.
    constexpr uint8 kAnimation = 0x02;
    std::array<uint8, 21> start{};
    const bool whole = file.ReadExactly(start.data(), start.size());
    return whole && std::memcmp(start.data(), "RIFF", 4) == 0 &&
           std::memcmp(&start[8], "WEBPVP8X", 8) == 0 && (start[20] & kAnimation) != 0;
}

bool IsAnimatedPng(BFile& file) {
    std::array<uint8, 8> bytes{};
    bool known = file.ReadExactly(bytes.data(), bytes.size()) &&
                 std::memcmp(bytes.data(), "\x89PNG\r\n\x1A\n", bytes.size()) == 0;
    for (int i = 0; known; ++i) {
        known = i < kMostChunks && file.ReadExactly(bytes.data(), bytes.size()) &&
                std::memcmp(&bytes[4], "IDAT", 4) != 0;
        if (known && std::memcmp(&bytes[4], "acTL", 4) == 0) break;
        const int64 length = int64{bytes[0]} << 24 | bytes[1] << 16 | bytes[2] << 8 | bytes[3];
        file.Seek(length + 4, SEEK_FROM_CURRENT);
    }
    return known;
}

}  // namespace

AnimatedImageFormat AnimatedImageFormatOf(BFile& file) {
    AnimatedImageFormat format = AnimatedImageFormat::kNone;
    file.Seek(0, SEEK_FROM_START);
    if (IsAnimatedWebp(file)) format = AnimatedImageFormat::kWebp;
    file.Seek(0, SEEK_FROM_START);
    if (format == AnimatedImageFormat::kNone && IsAnimatedPng(file))
        format = AnimatedImageFormat::kApng;
    file.Seek(0, SEEK_FROM_START);
    return format;
}

}  // namespace kirto
