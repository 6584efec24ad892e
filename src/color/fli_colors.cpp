#include "color/fli_colors.h"

#include "base/byte_reader.h"

namespace kirto {

void ReadFliColors(std::span<const uint8> data, int32 factor, ColorTable* colors, bool widen) {
    ByteReader reader(data);
    const auto component = [&] {
        const uint8 value = static_cast<uint8>(reader.U8() * factor);
        return static_cast<uint8>(widen ? value | value >> 6 : value);
    };
    size_t index = 0;
    for (int32 packets = reader.U16(); packets > 0; --packets) {
        index += reader.U8();
        const int32 count = reader.U8();
        for (int32 left = count == 0 ? 256 : count; left > 0; --left, ++index) {
            const uint8 red = component();
            const uint8 green = component();
            const uint8 blue = component();
            if (reader.Overrun() || index >= colors->size()) return;
            (*colors)[index] = {red, green, blue, 255};
        }
    }
}

}  // namespace kirto
