#include "color/color_values.h"

#include <algorithm>
#include <utility>

namespace kirto {

namespace {

constexpr size_t kFirstCapacity = 512;
constexpr size_t kGrowth = 4;
constexpr size_t kItemsAtOnce = 1 << 16;  // between two looks at the work
// Tables with more slots than this take more memory than one with a slot for each color, in which
// no two colors meet. Up to here the tag leaves enough of a slot for the position of its item.
constexpr int32 kMostHashedBits = 22;
// Colors may be chosen to crowd a few slots; then each gets one of its own, too.
constexpr uint32 kFarFromHome = 128;
// Multiplying by an odd number maps the keys one to one.
constexpr uint32 kScatter = 0x9E3779B1;
constexpr uint32 kTag = 0xFF000000;

// Half of the slots stay empty, so that chains of full ones are short.
int32 SlotBitsFor(size_t capacity, int32 key_bits) {
    int32 bits = 1;
    while (size_t{1} << bits < 2 * capacity)
        ++bits;
    return bits <= kMostHashedBits ? bits : key_bits;
}

}  // namespace

ColorValues::ColorValues(const Work* work)
    : work_(work), items_(AllocateArray<Item>(kFirstCapacity)), capacity_(kFirstCapacity) {
    GrowSlots(SlotBitsFor(capacity_, kKeyBits));
}

ColorValues::Item* ColorValues::FindFarOrAdd(uint32 key) {
    if (!Ready()) return nullptr;
    uint32* slot = SlotFor(key);
    if (*slot != 0) return ItemOf(*slot);
    const bool crowded = IsFarFromHome(slot, key);
    if (count_ == capacity_ || crowded) {
        if (!Grow(crowded)) return nullptr;
        slot = SlotFor(key);
    }
    items_[count_].key = key;
    *slot = static_cast<uint32>(++count_) | TagOf(key);
    return &items_[count_ - 1];
}

uint32* ColorValues::SlotFor(uint32 key) const {
    const uint32 last = (1U << slot_bits_) - 1;
    uint32 slot = HomeSlot(key);
    while (slots_[slot] != 0 && (!MayHold(slots_[slot], key) || ItemOf(slots_[slot])->key != key))
        slot = (slot + 1) & last;
    return &slots_[slot];
}

bool ColorValues::IsFarFromHome(const uint32* slot, uint32 key) const {
    const uint32 last = (1U << slot_bits_) - 1;
    const uint32 index = static_cast<uint32>(slot - slots_.get());
    return ((index - HomeSlot(key)) & last) > kFarFromHome;
}

bool ColorValues::Grow(bool crowded) {
    if (count_ == capacity_ && !GrowItems()) return false;
    const int32 bits = crowded ? kKeyBits : SlotBitsFor(capacity_, kKeyBits);
    return bits <= slot_bits_ || GrowSlots(bits);
}

bool ColorValues::GrowItems() {
    const size_t capacity = std::min(capacity_ * kGrowth, size_t{1} << kKeyBits);
    AllocatedArray<Item> items = AllocateArray<Item>(capacity);
    if (!items) return false;
    std::copy_n(items_.get(), count_, items.get());
    items_ = std::move(items);
    capacity_ = capacity;
    return true;
}

bool ColorValues::GrowSlots(int32 bits) {
    AllocatedArray<uint32> slots = AllocateArray<uint32>(size_t{1} << bits);
    if (!slots) return false;
    slots_ = std::move(slots);
    slot_bits_ = bits;
    const bool hashed = bits < kKeyBits;
    factor_ = hashed ? kScatter : 1;
    tag_mask_ = hashed ? kTag : 0;
    for (size_t i = 0; i < count_; ++i) {
        if (i % kItemsAtOnce == 0 && IsStopped(work_)) {
            slots_ = nullptr;
            return false;
        }
        const uint32 key = items_[i].key;
        *SlotFor(key) = static_cast<uint32>(i + 1) | TagOf(key);
    }
    return true;
}

}  // namespace kirto
