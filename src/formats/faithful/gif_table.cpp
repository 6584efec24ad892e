#include "formats/faithful/gif_table.h"

#include <algorithm>
#include <bit>
#include <map>

namespace kirto {

namespace {

// What the images share: each color with the number of images that have it.
using Uses = std::map<uint32, int64>;

std::vector<uint32> KeysOf(const FramePlan& plan) {
    std::vector<uint32> keys;
    keys.reserve(plan.colors.size());
    for (const ColorValues::Item& item : plan.colors)
        keys.push_back(item.key);
    return keys;
}

// False, and nothing changes, where there would be too many.
bool AddAll(const std::vector<uint32>& keys, Uses* uses) {
    const auto added =
        std::count_if(keys.begin(), keys.end(), [&](uint32 key) { return !uses->contains(key); });
    if (uses->size() + static_cast<size_t>(added) > GifTable::kMostEntries) return false;
    for (const uint32 key : keys)
        ++(*uses)[key];
    return true;
}

std::vector<uint32> CommonestFirst(const Uses& uses) {
    std::vector<std::pair<uint32, int64>> sorted(uses.begin(), uses.end());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    std::vector<uint32> keys;
    keys.reserve(sorted.size());
    for (const auto& [key, count] : sorted)
        keys.push_back(key);
    return keys;
}

}  // namespace

GifTable::GifTable(std::span<const uint32> keys) : GifTable() {
    for (const uint32 key : keys) {
        const size_t slot = SlotOf(key);
        if (slots_[slot] == kNone) slots_[slot] = static_cast<int16>(size_);
        keys_[size_++] = key;
    }
}

size_t GifTable::SlotOf(uint32 key) const {
    size_t slot = key * 0x9E3779B1U >> 22;
    while (slots_[slot] != kNone && keys_[static_cast<size_t>(slots_[slot])] != key)
        slot = (slot + 1) % kSlots;
    return slot;
}

int32 GifTable::Bits() const {
    return std::max(1, static_cast<int32>(std::bit_width(size_ > 0 ? size_ - 1 : 0)));
}

void GifTable::Write(ByteWriter* bytes) const {
    for (size_t i = 0; i < size_t{1} << Bits(); ++i) {
        const uint32 key = keys_[i] & 0xFFFFFF;
        bytes->U8(static_cast<uint8>(key >> 16));
        bytes->U8(static_cast<uint8>(key >> 8));
        bytes->U8(static_cast<uint8>(key));
    }
}

bool Serves(const GifTable& table, const FramePlan& plan) {
    if (plan.skips && plan.colors.size() >= size_t{1} << table.Bits()) return false;
    return std::all_of(plan.colors.begin(), plan.colors.end(), [&](const ColorValues::Item& item) {
        return table.IndexOf(item.key) != GifTable::kNone;
    });
}

GifTable ChooseGlobalTable(const FramePlans& plans, std::span<const rgb_color> given) {
    if (!given.empty()) {
        std::vector<uint32> keys;
        for (const rgb_color& color : given)
            keys.push_back(ColorKey(color.red, color.green, color.blue));
        return GifTable(keys);
    }
    Uses uses;
    for (const FramePlan& plan : plans) {
        if (!plan.source) AddAll(KeysOf(plan), &uses);
    }
    return GifTable(CommonestFirst(uses));
}

}  // namespace kirto
