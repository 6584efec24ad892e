// Little-endian numbers in byte buffers. The caller has checked the bounds.
#pragma once

#include "platform/types.h"

namespace kirto {

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

}  // namespace kirto
