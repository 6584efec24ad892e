#pragma once

#include <array>

#include "base/types.h"
#include "picture/strip.h"

namespace kirto {

// Gives pixels indices in the order of their first appearance, as long as at most 256 differ. Used
// by one thread.
class PixelPacker {
  public:
    PixelPacker() { Clear(); }

    // No pixel has an index.
    void Clear();
    // Writes the indices of count pixels of 4 bytes. False when there would be more than 256.
    bool Pack(const uint8* pixels, size_t count, uint8* indices);

    int32 Size() const { return size_; }
    // What the indices stand for.
    const PixelTable& Table() const { return table_; }

  private:
    static constexpr uint32 kSlotBits = 10;

    // The pixel's index, or -1 when it would be one too many.
    int32 IndexOf(uint32 pixel);

    PixelTable table_;
    int32 size_ = 0;
    std::array<uint16, 1U << kSlotBits> slots_;  // an index plus 1; 0 is empty
};

}  // namespace kirto
