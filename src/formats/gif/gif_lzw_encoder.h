#pragma once

#include <array>

#include "base/types.h"
#include "kit/file.h"

namespace kirto {

// Compresses the palette indices of one image into GIF image data: the code size byte, data
// sub-blocks of at most 255 bytes and the terminator. The string table is cleared when the codes
// would pass 12 bits.
class GifLzwEncoder {
  public:
    // min_code_size: 2 to 8; every index is below 2^min_code_size. Writes the code size byte and
    // the first clear code.
    GifLzwEncoder(BFile& file, int32 min_code_size);

    void Add(uint8 index);
    // Writes what is pending and the terminator; nothing may be added after it.
    void Finish();

  private:
    static constexpr int32 kTableSize = 9973;  // prime
    static constexpr int32 kProbeStep = 2039;
    static constexpr uint16 kEmptySlot = 65535;
    static constexpr int32 kMaxCodeSize = 12;
    static constexpr int32 kNoPrefix = -1;

    void ResetHashtable();
    void AddToHashtable(int32 prefix, uint8 suffix);
    int32 CheckHashtable(int32 prefix, uint8 suffix) const;
    void OutputCode(int32 code, int32 size);
    void FlushCodes(int32 size);
    void AppendByte();
    void WriteBlock();
    static int32 Slot(int32 prefix, uint8 suffix);
    static int32 NextSlot(int32 slot) { return (slot + kProbeStep) % kTableSize; }

    BFile& file_;
    const int32 min_code_size_;
    const int32 clear_code_;
    const int32 end_code_;
    int32 next_free_;
    int32 code_size_;
    int32 largest_code_;
    int32 prefix_ = kNoPrefix;

    // A string is its prefix's code and a suffix byte; slots hold codes, strings are kept by code.
    std::array<uint16, kTableSize> slots_;
    std::array<uint16, kTableSize> prefixes_;
    std::array<uint8, kTableSize> suffixes_;

    uint32 bit_buffer_ = 0;
    int32 bit_count_ = 0;
    std::array<uint8, 256> block_;  // size byte and data
    int32 pending_ = 0;             // data bytes in the block
};

}  // namespace kirto
