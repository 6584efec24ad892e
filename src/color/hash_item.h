#pragma once

#include "base/byte_order.h"
#include "base/types.h"

// An entry of an SFHash chain. The table that it was added to owns it.
struct HashItem {
    uint32 key = 0;
    HashItem* next = nullptr;

    explicit HashItem(uint32 item_key) : key(item_key) {}
    virtual ~HashItem() = default;
};

// A color with a payload: a number of pixels, or a palette index.
struct ColorItem : HashItem {
    uint32 value = 0;

    ColorItem(uint32 item_key, uint32 item_value) : HashItem(item_key), value(item_value) {}
};

namespace kirto {

// The key of a color: red * 65536 + green * 256 + blue.
constexpr uint32 ColorKey(uint8 red, uint8 green, uint8 blue) {
    return static_cast<uint32>(red) << 16 | static_cast<uint32>(green) << 8 | blue;
}

// The key of a pixel of four bytes.
template <bool kBigEndian>
uint32 KeyAt(const uint8* pixel) {
    return kBigEndian ? ColorKey(pixel[1], pixel[2], pixel[3]) : ReadLittle32(pixel) & 0xFFFFFF;
}

}  // namespace kirto
