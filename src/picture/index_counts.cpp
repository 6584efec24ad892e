#include "picture/index_counts.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>

namespace kirto {

namespace {

// Indices that are counted before anybody looks for new ones.
constexpr size_t kBlock = 4096;
// Indices that are looked at together.
constexpr ptrdiff_t kGroup = 8;

// Neighbors are counted in different lanes: adding to the same place again and again would wait for
// each addition to be stored.
using Lanes = std::array<std::array<uint16, 256>, 4>;

uint64 GroupAt(const uint8* indices) {
    uint64 group = 0;
    std::memcpy(&group, indices, sizeof(group));
    return group;
}

// Adds four indices, the bytes of the number.
inline void AddFour(uint32 indices, Lanes& lanes) {
    ++lanes[0][indices & 0xFF];
    ++lanes[1][indices >> 8 & 0xFF];
    ++lanes[2][indices >> 16 & 0xFF];
    ++lanes[3][indices >> 24];
}

}  // namespace

void IndexCounts::Add(std::span<const uint8> indices) {
    while (!indices.empty()) {
        const std::span<const uint8> block = indices.first(std::min(indices.size(), kBlock));
        AddBlock(block);
        Append(block);
        indices = indices.subspan(block.size());
    }
}

void IndexCounts::AddBlock(std::span<const uint8> block) {
    Lanes lanes{};
    const uint8* next = block.data();
    const uint8* const end = next + block.size();
    while (end - next >= kGroup) {
        const uint64 group = GroupAt(next);
        if (group != std::rotl(group, 8)) {
            AddFour(static_cast<uint32>(group), lanes);
            AddFour(static_cast<uint32>(group >> 32), lanes);
            next += kGroup;
            continue;
        }
        // A run is counted at once.
        const uint8* const run = next;
        do
            next += kGroup;
        while (end - next >= kGroup && GroupAt(next) == group);
        counts_[*run] += static_cast<uint32>(next - run);
    }
    for (; next != end; ++next)
        ++lanes[0][*next];
    for (size_t index = 0; index < 256; ++index)
        counts_[index] +=
            uint32{lanes[0][index]} + lanes[1][index] + lanes[2][index] + lanes[3][index];
}

// Appends to the order those that have been counted, but are new; all of them are in the block.
void IndexCounts::Append(std::span<const uint8> block) {
    size_t counted = 0;
    for (size_t index = 0; index < 256; ++index)
        counted += counts_[index] != 0;
    for (const uint8* next = block.data(); order_size_ < counted;) {
        const uint8* const group_end = std::min(next + kGroup, block.data() + block.size());
        if (group_end - next == kGroup && AreKnown(next)) {
            next = group_end;
            continue;
        }
        for (; next != group_end; ++next) {
            if (known_[*next]) continue;
            known_[*next] = 1;
            order_[order_size_++] = *next;
        }
    }
}

// Whether a group of indices has none that is new.
inline bool IndexCounts::AreKnown(const uint8* group) const {
    const auto known = [this, group](size_t i) { return known_[group[i]]; };
    return (known(0) & known(1) & known(2) & known(3) & known(4) & known(5) & known(6) &
            known(7)) != 0;
}

}  // namespace kirto
