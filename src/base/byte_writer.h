#pragma once

#include <bit>
#include <span>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace kirto {

// Appends little-endian numbers to a buffer of its own: what a ByteReader reads. Throws
// std::bad_alloc when memory is short.
class ByteWriter {
  public:
    const std::vector<uint8>& Written() const { return bytes_; }

    void U8(uint8 value) { bytes_.push_back(value); }
    void U16(uint16 value) { Put(value, 2); }
    void U32(uint32 value) { Put(value, 4); }
    void S32(int32 value) { U32(static_cast<uint32>(value)); }
    void U64(uint64 value) { Put(value, 8); }
    void S64(int64 value) { U64(static_cast<uint64>(value)); }
    void F32(float value) { U32(std::bit_cast<uint32>(value)); }
    void F64(double value) { U64(std::bit_cast<uint64>(value)); }
    void Bytes(std::span<const uint8> bytes) {
        bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    }
    void Text(std::string_view text) { bytes_.insert(bytes_.end(), text.begin(), text.end()); }

  private:
    void Put(uint64 value, int count) {
        for (int i = 0; i < count; ++i)
            bytes_.push_back(static_cast<uint8>(value >> (8 * i)));
    }

    std::vector<uint8> bytes_;
};

}  // namespace kirto
