#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/byte_writer.h"
#include "base/types.h"
#include "formats/faithful/frame_plan.h"

namespace kirto {

// A color table of a GIF file, and the index of a color in it. A plain value; several threads may
// look colors up.
class GifTable {
  public:
    static constexpr int32 kNone = -1;
    static constexpr size_t kMostEntries = 256;

    // Without entries.
    GifTable() { slots_.fill(kNone); }
    // keys: of at most 256 colors; of those that equal each other, the first one is found.
    explicit GifTable(std::span<const uint32> keys);

    size_t Size() const { return size_; }
    // Of the colors, by their indices.
    std::span<const uint32> Keys() const { return {keys_.data(), size_}; }
    // Of the color, or kNone.
    int32 IndexOf(uint32 key) const { return slots_[SlotOf(key)]; }
    // Bits of an index: 1 to 8. The file has 1 << bits entries.
    int32 Bits() const;
    // Appends the entries as they stand in the file.
    void Write(ByteWriter* bytes) const;

  private:
    static constexpr size_t kSlots = 1024;

    // The slot that has the key, or the empty one for it.
    size_t SlotOf(uint32 key) const;

    std::array<uint32, kMostEntries> keys_{};
    size_t size_ = 0;
    std::array<int16, kSlots> slots_;
};

inline size_t GifTable::SlotOf(uint32 key) const {
    size_t slot = key * 0x9E3779B1U >> 22;
    while (slots_[slot] != kNone && keys_[static_cast<size_t>(slots_[slot])] != key)
        slot = (slot + 1) % kSlots;
    return slot;
}

// Whether the table has all that the image needs: its colors, and an index that none of them has
// where pixels are skipped.
bool Serves(const GifTable& table, const FramePlan& plan);

// The one table that it is best to have for all images together, the others having their own. The
// images that are written as they were read have the table `given`, if that is not empty, and it is
// the answer. Colors that most images have come first, or those of images of few colors, so that
// few bits do for them.
GifTable ChooseGlobalTable(const FramePlans& plans, std::span<const rgb_color> given);

}  // namespace kirto
