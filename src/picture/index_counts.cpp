#include "picture/index_counts.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>

namespace kirto {

namespace {

// Indices that are counted before anybody looks for new ones.
constexpr size_t kBlock = 16384;
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

// Adds eight; those that are equal at once.
inline void AddGroup(uint64 group, Lanes& lanes) {
    if (group == std::rotl(group, 8)) {
        lanes[0][group & 0xFF] = static_cast<uint16>(lanes[0][group & 0xFF] + kGroup);
        return;
    }
    AddFour(static_cast<uint32>(group), lanes);
    AddFour(static_cast<uint32>(group >> 32), lanes);
}

inline uint32 SumOf(const Lanes& lanes, size_t index) {
    return uint32{lanes[0][index]} + lanes[1][index] + lanes[2][index] + lanes[3][index];
}

}  // namespace

IndexCounts::IndexCounts(std::span<const IndexCount> listed) {
    for (const IndexCount& each : listed) {
        counts_[each.index] = each.count;
        Know(each.index);
    }
}

std::vector<IndexCount> IndexCounts::Listed() const {
    std::vector<IndexCount> listed;
    listed.reserve(order_size_);
    for (const uint8 index : InOrder())
        listed.push_back({counts_[index], index});
    return listed;
}

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
        counts_[index] += SumOf(lanes, index);
}

void IndexCounts::Change(std::span<const uint8> before, std::span<const uint8> after) {
    for (size_t done = 0; done < before.size(); done += kBlock) {
        const size_t size = std::min(before.size() - done, kBlock);
        ChangeBlock(before.subspan(done, size), after.data() + done);
    }
    known_ = {};
    order_size_ = 0;
    Append(after);
}

void IndexCounts::ChangeBlock(std::span<const uint8> before, const uint8* after) {
    constexpr size_t kWide = 32;  // bytes that are mostly equal, and skipped at once
    Lanes more{};
    Lanes fewer{};
    size_t at = 0;
    for (; before.size() - at >= kWide; at += kWide) {
        if (std::memcmp(before.data() + at, after + at, kWide) == 0) continue;
        for (size_t i = at; i < at + kWide; i += kGroup) {
            const uint64 old_group = GroupAt(before.data() + i);
            const uint64 new_group = GroupAt(after + i);
            if (old_group == new_group) continue;
            AddGroup(old_group, fewer);
            AddGroup(new_group, more);
        }
    }
    for (; at < before.size(); ++at) {
        ++fewer[0][before[at]];
        ++more[0][after[at]];
    }
    for (size_t index = 0; index < 256; ++index)
        counts_[index] += SumOf(more, index) - SumOf(fewer, index);
}

// Appends to the order those that have been counted, but are new; all of them are among the
// indices.
void IndexCounts::Append(std::span<const uint8> indices) {
    constexpr size_t kFew = 8;
    size_t counted = 0;
    for (size_t index = 0; index < 256; ++index)
        counted += counts_[index] != 0;
    const uint8* next = indices.data();
    const uint8* const end = next + indices.size();
    while (order_size_ + kFew < counted) {
        const uint8* const group_end = std::min(next + kGroup, end);
        if (group_end - next == kGroup && AreKnown(next)) {
            next = group_end;
            continue;
        }
        for (; next != group_end; ++next)
            if (!known_[*next]) Know(*next);
    }
    if (order_size_ < counted) AppendFew({next, end});
}

// The same where there are only a few: each is looked for by itself.
void IndexCounts::AppendFew(std::span<const uint8> indices) {
    struct Place {
        const void* first;
        uint8 index;
    };
    std::array<Place, 256> places;
    size_t size = 0;
    for (size_t index = 0; index < 256; ++index) {
        if (counts_[index] == 0 || known_[index]) continue;
        places[size++] = {std::memchr(indices.data(), static_cast<int>(index), indices.size()),
                          static_cast<uint8>(index)};
    }
    std::sort(places.begin(), places.begin() + size,
              [](const Place& a, const Place& b) { return a.first < b.first; });
    for (size_t i = 0; i < size; ++i)
        Know(places[i].index);
}

void IndexCounts::Know(uint8 index) {
    known_[index] = 1;
    order_[order_size_++] = index;
}

// Whether a group of indices has none that is new.
inline bool IndexCounts::AreKnown(const uint8* group) const {
    const auto known = [this, group](size_t i) { return known_[group[i]]; };
    return (known(0) & known(1) & known(2) & known(3) & known(4) & known(5) & known(6) &
            known(7)) != 0;
}

bool AreMostlySame(std::span<const uint8> first, std::span<const uint8> second) {
    constexpr size_t kSamples = 64;
    constexpr size_t kBytes = 8;  // of a sample
    if (first.size() < kSamples * kBytes) return false;
    const size_t step = first.size() / kSamples;
    size_t same = 0;
    for (size_t i = 0; i < kSamples; ++i) {
        // Where a step is a row, from column to column, too.
        const size_t at = i * step + i * (step - kBytes) / kSamples;
        same += std::memcmp(first.data() + at, second.data() + at, kBytes) == 0;
    }
    return same > kSamples / 2;
}

}  // namespace kirto
