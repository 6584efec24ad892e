// The fixed numbers of a resource container, for its reader and its writer. All words are
// little-endian, all offsets count from the container's start; docs/formats/resources.md has the
// whole layout.
#pragma once

#include <algorithm>
#include <span>

#include "base/byte_order.h"
#include "base/types.h"

namespace kirto {

inline constexpr uint32 kContainerMagic = 0x444F1000;
// Larger ones are refused: the program's own is a few tens of KiB.
inline constexpr size_t kMaxContainerSize = size_t{16} << 20;

// The administrative sections: the header, and the index right after it.
inline constexpr uint32 kContainerHeaderSize = 0x44;
inline constexpr uint32 kIndexHeaderSize = 33 * 4;
inline constexpr uint32 kIndexEntrySize = 3 * 4;
inline constexpr uint32 kIndexMark = 0x3E9;
inline constexpr int kIndexFillerWords = 25;
// An index grows in steps of this many bytes; the first step has room for 117 entries.
inline constexpr uint32 kIndexStep = 0x600;

// Reserved by the format: a section of zeros after the index.
inline constexpr uint32 kReservedSectionSize = 0x168;

// Ends a type's block in the info table, twice in a row.
inline constexpr uint32 kTypeEnd = 0xFFFFFFFF;
// Behind the last block: the check word and a zero word.
inline constexpr uint32 kInfoTableTail = 2 * 4;

// The check word of an info table, computed of what stands before it: the sum of its words modulo
// 2^32, the last one filled up with zero bytes.
inline uint32 InfoTableCheck(std::span<const uint8> blocks) {
    uint32 sum = 0;
    for (size_t i = 0; i < blocks.size(); i += 4) {
        uint8 word[4] = {};
        std::copy_n(blocks.begin() + static_cast<std::ptrdiff_t>(i),
                    std::min<size_t>(4, blocks.size() - i), word);
        sum += ReadLittle32(word);
    }
    return sum;
}

}  // namespace kirto
