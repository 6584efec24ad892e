// Little-endian numbers in byte buffers. Who reads or writes in place has checked the bounds.
#pragma once

#include "base/types.h"

namespace kirto {

inline uint8 LowByte(int32 value) {
    return static_cast<uint8>(value);
}

inline uint16 ReadLittle16(const uint8* bytes) {
    return static_cast<uint16>(bytes[0] | bytes[1] << 8);
}

inline uint32 ReadLittle32(const uint8* bytes) {
    const uint32 high = ReadLittle16(bytes + 2);
    return high << 16 | ReadLittle16(bytes);
}

inline uint64 ReadLittle64(const uint8* bytes) {
    const uint64 high = ReadLittle32(bytes + 4);
    return high << 32 | ReadLittle32(bytes);
}

// Stores the low 16 bits.
inline void WriteLittle16(uint8* bytes, int64 value) {
    bytes[0] = static_cast<uint8>(value);
    bytes[1] = static_cast<uint8>(value >> 8);
}

// Appends the value's bytes, as many as its type has.
template <typename Buffer, typename Unsigned>
void AppendLittle(Buffer* bytes, Unsigned value) {
    for (size_t i = 0; i < sizeof(value); ++i)
        bytes->push_back(static_cast<typename Buffer::value_type>(value >> (8 * i)));
}

}  // namespace kirto
