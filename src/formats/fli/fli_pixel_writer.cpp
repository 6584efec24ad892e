#include "formats/fli/fli_pixel_writer.h"

#include <algorithm>

namespace kirto {

void FliPixelWriter::MoveToRow(int64 y) {
    position_ = y * canvas_.Width();
}

void FliPixelWriter::Skip(int64 count) {
    position_ += count;
}

void FliPixelWriter::Copy(std::span<const uint8> indices) {
    int64 start = 0;
    const int64 count = Take(static_cast<int64>(indices.size()), &start);
    canvas_.Put(start, indices.first(static_cast<size_t>(count)));
}

void FliPixelWriter::Repeat(uint8 index, int32 count) {
    int64 start = 0;
    const int64 there = Take(count, &start);
    canvas_.RepeatPair(start, index, index, there);
}

void FliPixelWriter::RepeatPair(uint8 first, uint8 second, int32 count) {
    int64 start = 0;
    const int64 there = Take(int64{count} * 2, &start);
    canvas_.RepeatPair(start, first, second, there);
}

int64 FliPixelWriter::Take(int64 count, int64* start) {
    *start = std::min(position_, canvas_.PixelCount());
    position_ += count;
    return std::min(position_, canvas_.PixelCount()) - *start;
}

}  // namespace kirto
