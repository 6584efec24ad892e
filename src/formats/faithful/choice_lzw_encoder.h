#pragma once

#include <limits>
#include <span>
#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "formats/faithful/lzw_pace.h"
#include "formats/faithful/lzw_parser.h"
#include "formats/faithful/table_clearings.h"

namespace kirto {

// Compresses palette indices to the codes of GIF image data, where some pixels may have either of
// two indices. The same codes for the same indices. Used by one thread; throws std::bad_alloc.
class ChoiceLzwEncoder {
  public:
    using Image = ChoiceImage;

    // When an encoding is worth no more time.
    struct Limits {
        size_t most = std::numeric_limits<size_t>::max();  // bytes
        // Of an encoding to be compared with, which has the most bytes; null: none.
        const LzwPace* pace = nullptr;
    };

    // work: outlives this; codes that are made while it is stopped are of no use.
    explicit ChoiceLzwEncoder(const Work& work) : work_(work), clearings_(work) {}

    // Encodes an image, the table of strings being cleared whenever it is full. shorter: as for
    // LzwParser. The codes, first to last, as they go into sub-blocks; good until the next call.
    // Breaks off beyond the limits.
    std::span<const uint8> Encode(const Image& image, size_t shorter, const Limits& limits);
    // Where it pays to clear the table, with the longest strings; takes some times as long. pace:
    // of Encode().
    std::vector<size_t> FindClearings(const Image& image, const LzwPace& pace) {
        return clearings_.Find(image, pace);
    }
    // The same as Encode(), the table being cleared at the first strings that start at or behind
    // these pixels.
    std::span<const uint8> EncodeCleared(const Image& image, size_t shorter,
                                         std::span<const size_t> clearings, const Limits& limits);
    // Whether the last encoding is all of the image.
    bool Complete() const { return complete_; }
    // Of the last encoding, as far as it went.
    const LzwPace& Pace() const { return pace_; }
    // Whether the last encoding has had a full table.
    bool HasFilledTable() const { return filled_; }

  private:
    // Strings between two looks at the work.
    static constexpr size_t kStringsAtOnce = 1024;
    // Strings between two looks at the encoding that this one is compared with.
    static constexpr size_t kStringsToCompare = 64;
    // What an encoding may be behind another one, and still come out ahead.
    static constexpr size_t kBehind = 16;  // a part of the most bytes
    static constexpr size_t kAnyBehind = 32;

    void Begin(const Image& image, size_t shorter);
    // Strings up to that pixel, or until the table is full where that is the end; false where the
    // encoding need not go on.
    bool TakeUntil(size_t end, bool full_ends, const Limits& limits);
    void ClearTable(size_t shorter);
    std::span<const uint8> End();
    bool KeepsUp(const Limits& limits) const;
    void Put(LzwParser::Code code);

    const Work& work_;
    Image image_;
    LzwParser parser_;
    TableClearings clearings_;
    bool complete_ = false;
    bool filled_ = false;
    LzwPace pace_;

    std::vector<uint8> bytes_;
    uint64 bit_buffer_ = 0;
    uint32 bit_count_ = 0;
};

}  // namespace kirto
