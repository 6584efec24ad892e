#include "kit/animated/apng_reader.h"

#include <cstring>
#include <png.h>

namespace kirto {

namespace {

// The canvas, an image as large, and what it covers.
constexpr uint64 kCanvasBytes = 12;

size_t RowBytes(const ApngControl& control) {
    return static_cast<size_t>(control.width) * 4;
}

size_t AreaBytes(const ApngControl& control) {
    return RowBytes(control) * static_cast<size_t>(control.height);
}

// Puts a pixel over another one; both are blue, green, red and alpha, not multiplied.
void BlendOver(const uint8* source, uint8* target) {
    const uint32 alpha = source[3];
    if (alpha == 255 || target[3] == 0) {
        std::memcpy(target, source, 4);
        return;
    }
    if (alpha == 0) return;
    const uint32 below = target[3] * (255 - alpha);
    const uint32 whole = alpha * 255 + below;
    for (int i = 0; i < 3; ++i) {
        const uint32 sum = source[i] * alpha * 255 + target[i] * below;
        target[i] = static_cast<uint8>((sum + whole / 2) / whole);
    }
    target[3] = static_cast<uint8>((whole + 127) / 255);
}

}  // namespace

size_t ApngReader::Offset(int32 x, int32 y) const {
    return (static_cast<size_t>(y) * static_cast<size_t>(start_.width) + static_cast<size_t>(x)) *
           4;
}

AnimatedImageReader::Result ApngReader::ReadHeader(AnimatedImageHeader* header) {
    const std::optional<ApngStart> start = chunks_.ReadStart();
    if (!start) return Result::kBroken;
    start_ = *start;
    const uint64 pixels = static_cast<uint64>(start_.width) * static_cast<uint64>(start_.height);
    if (pixels > pixel_bytes_ / kCanvasBytes) return Result::kNoMemory;
    canvas_ = AllocateArray<uint8>(static_cast<size_t>(pixels) * 4);
    if (!canvas_) return Result::kNoMemory;
    *header = {start_.width, start_.height, start_.frame_count, start_.plays};
    return Result::kFrame;
}

AnimatedImageReader::Result ApngReader::Next() {
    if (frames_ == start_.frame_count) return Result::kEnd;
    const std::optional<ApngControl> next = chunks_.NextImage();
    if (!next) return Result::kBroken;
    Dispose();
    control_ = *next;
    const Result result = Decode();
    if (result != Result::kFrame) return result;
    if (control_.dispose == ApngControl::Dispose::kPrevious) KeepArea();
    Draw();
    ++frames_;
    return Result::kFrame;
}

AnimatedImageReader::Result ApngReader::Decode() {
    const std::span<const uint8> bytes = chunks_.Image();
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()))
        return Result::kBroken;
    image.format = PNG_FORMAT_BGRA;
    image.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;
    image_ = AllocateUnfilledArray<uint8>(AreaBytes(control_));
    kept_ = AllocateUnfilledArray<uint8>(AreaBytes(control_));
    if (!image_ || !kept_) {
        png_image_free(&image);
        return Result::kNoMemory;
    }
    return png_image_finish_read(&image, nullptr, image_.get(), 0, nullptr) ? Result::kFrame
                                                                            : Result::kBroken;
}

void ApngReader::Dispose() {
    if (frames_ == 0 || control_.dispose == ApngControl::Dispose::kNone) return;
    const size_t row_bytes = RowBytes(control_);
    for (int32 y = 0; y < control_.height; ++y) {
        uint8* row = canvas_.get() + Offset(control_.x, control_.y + y);
        if (control_.dispose == ApngControl::Dispose::kPrevious) {
            std::memcpy(row, kept_.get() + static_cast<size_t>(y) * row_bytes, row_bytes);
        } else {
            std::memset(row, 0, row_bytes);
        }
    }
}

void ApngReader::KeepArea() {
    const size_t row_bytes = RowBytes(control_);
    for (int32 y = 0; y < control_.height; ++y) {
        std::memcpy(kept_.get() + static_cast<size_t>(y) * row_bytes,
                    canvas_.get() + Offset(control_.x, control_.y + y), row_bytes);
    }
}

void ApngReader::Draw() {
    const size_t row_bytes = RowBytes(control_);
    for (int32 y = 0; y < control_.height; ++y) {
        uint8* row = canvas_.get() + Offset(control_.x, control_.y + y);
        const uint8* pixels = image_.get() + static_cast<size_t>(y) * row_bytes;
        if (!control_.over) {
            std::memcpy(row, pixels, row_bytes);
            continue;
        }
        for (size_t i = 0; i < row_bytes; i += 4)
            BlendOver(pixels + i, row + i);
    }
}

}  // namespace kirto
