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
    // The same, the table being cleared where it pays, which takes some times as long. pace: of
    // Encode(). most: bytes.
    std::span<const uint8> EncodeWell(const Image& image, size_t shorter, const LzwPace& pace,
                                      size_t most);
    // Whether the last encoding is all of the image.
    bool Complete() const { return complete_; }
    // Of the last Encode(), as far as it went.
    const LzwPace& Pace() const { return pace_; }
    // Whether the last encoding has had a full table.
    bool HasFilledTable() const { return filled_; }

  private:
    // Strings between two looks at the work.
    static constexpr size_t kStringsAtOnce = 1024;
    // What an encoding may be behind another one, and still come out ahead.
    static constexpr size_t kBehind = 8;  // a part of the most bytes
    static constexpr size_t kAnyBehind = 64;

    void Begin(const Image& image, size_t shorter);
    // Strings until the table is full, or up to that pixel; false where the encoding need not go
    // on.
    bool TakeTable(const Limits& limits);
    bool TakeUntil(size_t end, size_t most);
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
