#include "formats/fli/fli_pixel_writer.h"

#include <algorithm>
#include <cstring>

#include "formats/gif/gif_pixel_writer.h"

namespace kirto {

FliPixelWriter::FliPixelWriter(BBitmap& bitmap, const Palette& palette)
    : bits_(bitmap.Bits()),
      width_(bitmap.Width()),
      pixel_count_(int64{bitmap.Width()} * bitmap.Height()) {
    std::transform(palette.colors.begin(), palette.colors.end(), pixels_.begin(), PixelOf);
}

void FliPixelWriter::MoveToRow(int64 y) {
    position_ = y * width_;
}

void FliPixelWriter::Skip(int64 count) {
    position_ += count;
}

void FliPixelWriter::Copy(std::span<const uint8> indices) {
    const std::span<uint8> room = Take(static_cast<int64>(indices.size()));
    for (size_t i = 0; i * 4 < room.size(); ++i)
        std::memcpy(&room[i * 4], &pixels_[indices[i]], 4);
}

void FliPixelWriter::Repeat(uint8 index, int32 count) {
    const std::span<uint8> room = Take(count);
    for (size_t i = 0; i < room.size(); i += 4)
        std::memcpy(&room[i], &pixels_[index], 4);
}

void FliPixelWriter::RepeatPair(uint8 first, uint8 second, int32 count) {
    const std::span<uint8> room = Take(int64{count} * 2);
    for (size_t i = 0; i < room.size(); i += 4)
        std::memcpy(&room[i], &pixels_[i % 8 == 0 ? first : second], 4);
}

std::span<uint8> FliPixelWriter::Take(int64 count) {
    const int64 start = std::min(position_, pixel_count_);
    position_ += count;
    const int64 end = std::min(position_, pixel_count_);
    return {bits_ + start * 4, static_cast<size_t>((end - start) * 4)};
}

}  // namespace kirto
