#include "formats/faithful/gif_table.h"

#include <algorithm>
#include <bit>
#include <map>
#include <set>
#include <utility>

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

using PlanPointers = std::vector<const FramePlan*>;

// Those of as many images as there is room for, one after the other.
Uses SharedBy(const PlanPointers& plans) {
    Uses uses;
    for (const FramePlan* plan : plans)
        AddAll(KeysOf(*plan), &uses);
    return uses;
}

bool HasAll(const Uses& uses, const FramePlan& plan) {
    return std::all_of(plan.colors.begin(), plan.colors.end(),
                       [&](const ColorValues::Item& item) { return uses.contains(item.key); });
}

// Of the tables of all other images.
size_t LocalEntries(const Uses& uses, const PlanPointers& plans) {
    size_t entries = 0;
    for (const FramePlan* plan : plans)
        entries += HasAll(uses, *plan) ? 0 : std::bit_ceil(plan->colors.size());
    return entries;
}

// The colors of images of few colors come first.
std::vector<uint32> FewestFirst(const Uses& uses, const PlanPointers& fewest_first) {
    std::vector<uint32> keys;
    std::set<uint32> known;
    for (const FramePlan* plan : fewest_first) {
        if (!HasAll(uses, *plan)) continue;
        for (const ColorValues::Item& item : plan->colors) {
            if (known.insert(item.key).second) keys.push_back(item.key);
        }
    }
    return keys;
}

// Of the indices of all pixels that are drawn with the table.
int64 BitsOf(const std::vector<uint32>& keys, const PlanPointers& plans) {
    // Those of other tables count alike, whatever the order.
    constexpr int32 kBeyond = GifTable::kMostEntries;
    const GifTable table{keys};
    int64 bits = 0;
    for (const FramePlan* plan : plans) {
        int32 largest = 0;
        int64 pixels = 0;
        for (const ColorValues::Item& item : plan->colors) {
            const int32 index = table.IndexOf(item.key);
            largest = std::max(largest, index == GifTable::kNone ? kBeyond : index);
            pixels += item.value;
        }
        bits += std::bit_width(static_cast<uint32>(largest)) * pixels;
    }
    return bits;
}

}  // namespace

GifTable::GifTable(std::span<const uint32> keys) : GifTable() {
    for (const uint32 key : keys) {
        const size_t slot = SlotOf(key);
        if (slots_[slot] == kNone) slots_[slot] = static_cast<int16>(size_);
        keys_[size_++] = key;
    }
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
    PlanPointers made;
    for (const FramePlan& plan : plans) {
        if (!plan.source) made.push_back(&plan);
    }
    PlanPointers fewest_first = made;
    std::stable_sort(
        fewest_first.begin(), fewest_first.end(),
        [](const FramePlan* a, const FramePlan* b) { return a->colors.size() < b->colors.size(); });
    Uses uses = SharedBy(made);
    Uses of_few = SharedBy(fewest_first);
    if (LocalEntries(of_few, made) < LocalEntries(uses, made)) uses = std::move(of_few);
    std::vector<uint32> commonest = CommonestFirst(uses);
    std::vector<uint32> fewest = FewestFirst(uses, fewest_first);
    return GifTable(BitsOf(fewest, made) < BitsOf(commonest, made) ? fewest : commonest);
}

}  // namespace kirto
