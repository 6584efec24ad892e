#pragma once

#include <bit>
#include <span>

#include "base/byte_order.h"
#include "base/types.h"

namespace kirto {

// Walks a buffer. Reading past the end gives zeros and is remembered, so a parser can check once a
// block instead of once a byte. Does not own the bytes.
class ByteReader {
  public:
    explicit ByteReader(std::span<const uint8> bytes) : bytes_(bytes) {}

    // True once a read asked for more than there was.
    bool Overrun() const { return overrun_; }
    // Bytes left to read.
    size_t Left() const { return bytes_.size() - position_; }

    uint8 U8() {
        if (!Need(1)) return 0;
        return bytes_[position_++];
    }
    int8 S8() { return static_cast<int8>(U8()); }
    uint16 U16() {
        if (!Need(2)) return 0;
        const uint16 value = ReadLittle16(&bytes_[position_]);
        position_ += 2;
        return value;
    }
    int16 S16() { return static_cast<int16>(U16()); }
    uint32 U32() {
        if (!Need(4)) return 0;
        const uint32 value = ReadLittle32(&bytes_[position_]);
        position_ += 4;
        return value;
    }
    int32 S32() { return static_cast<int32>(U32()); }
    uint64 U64() {
        if (!Need(8)) return 0;
        const uint64 value = ReadLittle64(&bytes_[position_]);
        position_ += 8;
        return value;
    }
    int64 S64() { return static_cast<int64>(U64()); }
    float F32() { return std::bit_cast<float>(U32()); }
    double F64() { return std::bit_cast<double>(U64()); }
    // The next count bytes where they lie in the buffer; empty when there are fewer.
    std::span<const uint8> Bytes(size_t count) {
        if (!Need(count)) return {};
        const std::span<const uint8> bytes = bytes_.subspan(position_, count);
        position_ += count;
        return bytes;
    }

  private:
    bool Need(size_t count) {
        if (overrun_ || Left() < count) {
            overrun_ = true;
            position_ = bytes_.size();
            return false;
        }
        return true;
    }

    std::span<const uint8> bytes_;
    size_t position_ = 0;
    bool overrun_ = false;
};

}  // namespace kirto
