#include "formats/fli/fli_pixel_writer.h"

#include <algorithm>
#include <cstring>

#include "color/pixel_table.h"

namespace kirto {

FliPixelWriter::FliPixelWriter(BBitmap& bitmap, const Palette& palette,
                               std::vector<bool>& changed_rows)
    : bits_(bitmap.Bits()),
      width_(bitmap.Width()),
      pixel_count_(int64{bitmap.Width()} * bitmap.Height()),
      table_(PixelTableOf(palette.colors)),
      changed_rows_(changed_rows) {}

void FliPixelWriter::MoveToRow(int64 y) {
    position_ = y * width_;
}

void FliPixelWriter::Skip(int64 count) {
    position_ += count;
}

void FliPixelWriter::Copy(std::span<const uint8> indices) {
    const std::span<uint8> room = Take(static_cast<int64>(indices.size()));
    for (size_t i = 0; i * 4 < room.size(); ++i)
        std::memcpy(&room[i * 4], &table_.pixels[indices[i]], 4);
}

void FliPixelWriter::Repeat(uint8 index, int32 count) {
    const std::span<uint8> room = Take(count);
    for (size_t i = 0; i < room.size(); i += 4)
        std::memcpy(&room[i], &table_.pixels[index], 4);
}

void FliPixelWriter::RepeatPair(uint8 first, uint8 second, int32 count) {
    const std::span<uint8> room = Take(int64{count} * 2);
    for (size_t i = 0; i < room.size(); i += 4)
        std::memcpy(&room[i], &table_.pixels[i % 8 == 0 ? first : second], 4);
}

std::span<uint8> FliPixelWriter::Take(int64 count) {
    const int64 start = std::min(position_, pixel_count_);
    position_ += count;
    const int64 end = std::min(position_, pixel_count_);
    MarkRows(start, end);
    return {bits_ + start * 4, static_cast<size_t>((end - start) * 4)};
}

void FliPixelWriter::MarkRows(int64 start, int64 end) {
    if (start >= end || (start >= marked_start_ && end <= marked_end_)) return;
    const int64 last = (end - 1) / width_;
    for (int64 row = start / width_; row <= last; ++row)
        changed_rows_[static_cast<size_t>(row)] = true;
    marked_start_ = last * width_;
    marked_end_ = marked_start_ + width_;
}

}  // namespace kirto
