#pragma once

#include <span>

#include "base/allocation.h"
#include "base/types.h"

namespace kirto {

// A number for each color met, 0 at first. Finding a color takes the same time whatever the number
// of colors: the table grows with them, until each of the 16 million has a slot of its own. Used by
// one thread.
class ColorValues {
  public:
    struct Item {
        uint32 key = 0;  // red * 65536 + green * 256 + blue
        uint32 value = 0;
    };

    // No color is known yet.
    ColorValues();

    // False when memory is too short to keep anything.
    bool Ready() const { return slots_ && items_; }
    // The color's item, which stays where it is until the next color is added; null when the color
    // is new and memory is short.
    Item* FindOrAdd(uint32 key);
    // All items in the order in which they were added.
    std::span<const Item> Items() const { return {items_.get(), count_}; }

  private:
    // The slot that holds the color's item, or the empty one where it belongs.
    uint32* SlotFor(uint32 key) const;
    // Whether finding that slot again would take long.
    bool IsFarFromHome(const uint32* slot, uint32 key) const;
    // Makes room for another item.
    bool Grow(bool crowded);
    bool GrowItems();
    bool GrowSlots(int32 bits);

    AllocatedArray<Item> items_;
    AllocatedArray<uint32> slots_;  // an item's position in items_ plus 1; 0 is empty
    size_t count_ = 0;
    size_t capacity_ = 0;
    int32 slot_bits_ = 0;
};

}  // namespace kirto
