#pragma once

#include <span>

#include "base/allocation.h"
#include "base/types.h"
#include "base/work.h"

namespace kirto {

// A number for each color met, 0 at first. Finding a color takes the same time whatever the number
// of colors: the table grows with them, until each of the 16 million has a slot of its own. Used by
// one thread.
//
// Finding one that is known and lies where it belongs is all that most pixels need; that much is
// inline.
class ColorValues {
  public:
    struct Item {
        uint32 key = 0;  // red * 65536 + green * 256 + blue
        uint32 value = 0;
    };

    // No color is known yet. Where the work, if any, is stopped, so is the growing of the table.
    explicit ColorValues(const Work* work = nullptr);

    // False when memory is too short to keep anything, or the work was stopped.
    bool Ready() const { return slots_ && items_; }
    // The color's item, which stays where it is until the next color is added; null when the color
    // is new and memory is short or the work was stopped.
    Item* FindOrAdd(uint32 key) {
        if (!slots_) return nullptr;
        const uint32 slot = slots_[HomeSlot(key)];
        if (slot == 0 || !MayHold(slot, key)) return FindFarOrAdd(key);
        Item* item = ItemOf(slot);
        return item->key == key ? item : FindFarOrAdd(key);
    }
    // Lets the processor fetch what FindOrAdd(key) will look at. Only while Ready().
    void Prefetch(uint32 key) const { __builtin_prefetch(&slots_[HomeSlot(key)]); }
    // All items in the order in which they were added.
    std::span<const Item> Items() const { return {items_.get(), count_}; }

  private:
    static constexpr int32 kKeyBits = 24;
    static constexpr uint32 kKeyMask = (1U << kKeyBits) - 1;

    // Where the color belongs: the high bits of a product that depend on all bits of the key.
    uint32 HomeSlot(uint32 key) const {
        return (key * factor_ & kKeyMask) >> (kKeyBits - slot_bits_);
    }
    // The low bits of that product, where the slot keeps them.
    uint32 TagOf(uint32 key) const { return key * factor_ << kKeyBits & tag_mask_; }
    // False when the slot's tag alone shows that it holds another color, which saves the look at
    // an item far away. The slot is not empty.
    bool MayHold(uint32 slot, uint32 key) const { return (slot & tag_mask_) == TagOf(key); }
    Item* ItemOf(uint32 slot) const { return &items_[(slot & ~tag_mask_) - 1]; }

    // The item of a color that is not in its home slot, or is new.
    Item* FindFarOrAdd(uint32 key);
    // The slot that holds the color's item, or the empty one where it belongs.
    uint32* SlotFor(uint32 key) const;
    // Whether finding that slot again would take long.
    bool IsFarFromHome(const uint32* slot, uint32 key) const;
    // Makes room for another item.
    bool Grow(bool crowded);
    bool GrowItems();
    bool GrowSlots(int32 bits);

    const Work* work_;
    AllocatedArray<Item> items_;
    AllocatedArray<uint32> slots_;  // an item's position in items_ plus 1, and its tag; 0 is empty
    size_t count_ = 0;
    size_t capacity_ = 0;
    int32 slot_bits_ = 0;
    uint32 factor_ = 0;
    uint32 tag_mask_ = 0;  // the bits of a slot that are the tag
};

}  // namespace kirto
