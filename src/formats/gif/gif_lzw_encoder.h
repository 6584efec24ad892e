#pragma once

#include <array>
#include <span>

#include "base/byte_writer.h"
#include "base/types.h"

namespace kirto {

// Compresses the palette indices of one image into GIF image data: the code size byte, data
// sub-blocks of at most 255 bytes and the terminator. The string table is cleared when the codes
// would pass 12 bits. Throws std::bad_alloc when memory is short.
class GifLzwEncoder {
  public:
    // min_code_size: 2 to 8; every index is below 2^min_code_size. The output outlives this.
    GifLzwEncoder(ByteWriter& output, int32 min_code_size);
    GifLzwEncoder(const GifLzwEncoder&) = delete;
    GifLzwEncoder& operator=(const GifLzwEncoder&) = delete;

    // Takes the image's next indices, best a row at once.
    void Add(std::span<const uint8> indices);
    // Writes what is pending and the terminator; nothing may be added after it.
    void Finish();

  private:
    static constexpr uint32 kMaxCodeSize = 12;
    static constexpr uint32 kNoPrefix = ~uint32{0};
    static constexpr uint32 kMaxCode = (uint32{1} << kMaxCodeSize) - 1;
    static constexpr uint32 kHashBits = 14;
    static constexpr size_t kBlockSize = 255;
    // Sub-blocks that are put out at once.
    static constexpr size_t kBlocks = 64;

    static constexpr uint32 kRunStep = 32;
    // Strings shorter than this on average, once there are a few, are short.
    static constexpr size_t kLongStrings = 4;
    static constexpr size_t kFewStrings = 64;

    // The strings in the table that consist of one index alone.
    struct Run {
        uint16 longest;  // length; the table has all shorter ones
        uint16 code;     // of the longest
        // Of those whose lengths are multiples of kRunStep; what is beyond the longest is old.
        std::array<uint16, (1U << kMaxCodeSize) / kRunStep> codes;
    };

    // Packs codes, least significant bit first.
    struct Packer {
        uint64 bits;   // that are not in the bytes yet
        uint32 count;  // of them, below 8 between two codes
        uint8* next;   // byte; four are written at a time

        void Add(uint32 code, uint32 code_size);
    };

    const uint8* AddFollowingRuns(const uint8* next, const uint8* end);
    const uint8* AddShort(const uint8* next, const uint8* end);
    const uint8* StartString(const uint8* next, const uint8* end);
    const uint8* ExtendRun(const uint8* next, const uint8* end);
    void AddRun(uint32 code);
    static uint32 String(uint32 prefix, uint8 last) { return prefix << 20 | last; }
    static uint32 CodeOf(uint32 slot) { return slot >> 8 & kMaxCode; }
    bool Find(uint32 prefix, uint8 last, size_t* slot) const;
    void Store(size_t slot, uint32 prefix, uint8 last, uint32 code);
    const uint8* ExtendPrefix(const uint8* next, const uint8* end, size_t* free_slot);
    void ClearTable();
    void ResetTable();
    void OutputCode(uint32 code, uint32 size);
    void FlushCodes(uint32 size);
    bool HasBlocks(const Packer& packer) const {
        return packer.next >= data_.data() + kBlocks * kBlockSize;
    }
    void WriteBlocks();

    ByteWriter& output_;
    const uint32 min_code_size_;
    const uint32 clear_code_;
    uint32 next_free_;
    uint32 code_size_;
    // The longest string in the table that the indices since the last code are.
    uint32 prefix_ = kNoPrefix;
    uint32 run_length_ = 0;  // of the prefix while it is a run and may go on; else 0
    uint8 run_index_ = 0;
    bool follows_runs_ = true;  // false until the table is cleared: runs_ lacks new strings
    size_t taken_ = 0;          // indices since the table was cleared

    // Hash table of the strings. A slot is a string's prefix code (12 bits), its own code (12) and
    // its last index (8). No string begins with the clear code, so that marks an empty slot.
    const uint32 empty_slot_;
    std::array<uint32, size_t{1} << kHashBits> slots_;
    std::array<Run, 256> runs_;

    std::array<uint8, kBlocks * kBlockSize + 8> data_;  // of sub-blocks, joined
    Packer packer_{0, 0, data_.data()};
};

}  // namespace kirto
