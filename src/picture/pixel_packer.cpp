#include "picture/pixel_packer.h"

#include <cstring>

namespace kirto {

namespace {

uint32 PixelAt(const uint8* pixels, size_t i) {
    uint32 pixel = 0;
    std::memcpy(&pixel, pixels + i * 4, sizeof(pixel));
    return pixel;
}

}  // namespace

void PixelPacker::Clear() {
    // Unused entries stay zero, so that equal pixels make equal tables.
    table_.pixels.fill(0);
    slots_.fill(0);
    size_ = 0;
}

bool PixelPacker::Pack(const uint8* pixels, size_t count, uint8* indices) {
    for (size_t i = 0; i < count;) {
        const uint32 pixel = PixelAt(pixels, i);
        const int32 index = IndexOf(pixel);
        if (index < 0) return false;
        // Neighbors are often equal: only the first of a run is looked up.
        do {
            indices[i++] = static_cast<uint8>(index);
        } while (i < count && PixelAt(pixels, i) == pixel);
    }
    return true;
}

int32 PixelPacker::IndexOf(uint32 pixel) {
    uint32 slot = pixel * 0x9E3779B1U >> (32 - kSlotBits);
    while (slots_[slot] != 0) {
        const int32 index = slots_[slot] - 1;
        if (table_.pixels[static_cast<size_t>(index)] == pixel) return index;
        slot = (slot + 1) % (1U << kSlotBits);
    }
    if (size_ == static_cast<int32>(table_.pixels.size())) return -1;
    table_.pixels[static_cast<size_t>(size_)] = pixel;
    slots_[slot] = static_cast<uint16>(++size_);
    return size_ - 1;
}

}  // namespace kirto
