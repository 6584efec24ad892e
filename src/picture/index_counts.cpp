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

// Whether all of a group are marked.
inline bool AreMarked(const std::array<uint8, 256>& marks, const uint8* group) {
    const auto mark = [&marks, group](size_t i) { return marks[group[i]]; };
    return (mark(0) & mark(1) & mark(2) & mark(3) & mark(4) & mark(5) & mark(6) & mark(7)) != 0;
}

inline uint32 SumOf(const Lanes& lanes, size_t index) {
    return uint32{lanes[0][index]} + lanes[1][index] + lanes[2][index] + lanes[3][index];
}

}  // namespace

// How far a change has been followed.
struct IndexCounts::Passed {
    std::array<uint8, 256> marks{};  // 1: the index is there before this place
    size_t next = 0;                 // of those that were known, in their order
    size_t known;                    // so many were
};

IndexCounts::IndexCounts(std::span<const IndexCount> listed) {
    for (const IndexCount& each : listed) {
        counts_[each.index] = each.count;
        Know(each.index, each.first);
        added_ += each.count;
    }
}

std::vector<IndexCount> IndexCounts::Listed() const {
    std::vector<IndexCount> listed;
    listed.reserve(order_size_);
    for (const uint8 index : InOrder())
        listed.push_back({counts_[index], first_[index], index});
    return listed;
}

void IndexCounts::Add(std::span<const uint8> indices) {
    while (!indices.empty()) {
        const std::span<const uint8> block = indices.first(std::min(indices.size(), kBlock));
        AddBlock(block);
        Append(block);
        added_ += static_cast<uint32>(block.size());
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

// Where an index comes first is told by what has changed: before that it may have come up, and
// where it was it may be gone.
void IndexCounts::Change(std::span<const uint8> before, std::span<const uint8> after) {
    Passed passed;
    passed.known = order_size_;
    for (size_t done = 0; done < before.size(); done += kBlock) {
        const size_t size = std::min(before.size() - done, kBlock);
        ChangeBlock(before.subspan(done, size), after.data() + done, static_cast<uint32>(done),
                    passed);
    }
    FindLost(after);
    Sort();
}

// place: of the block.
void IndexCounts::ChangeBlock(std::span<const uint8> before, const uint8* after, uint32 place,
                              Passed& passed) {
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
            if (!AreMarked(passed.marks, after + i))
                Pass(after + i, kGroup, place + static_cast<uint32>(i), passed);
        }
    }
    if (at < before.size())
        Pass(after + at, before.size() - at, place + static_cast<uint32>(at), passed);
    for (; at < before.size(); ++at) {
        ++fewer[0][before[at]];
        ++more[0][after[at]];
    }
    for (size_t index = 0; index < 256; ++index)
        counts_[index] += SumOf(more, index) - SumOf(fewer, index);
}

// Marks what is known to be before the place, and takes the indices there for the first of their
// kind if nothing else is.
void IndexCounts::Pass(const uint8* after, size_t count, uint32 place, Passed& passed) {
    while (passed.next < passed.known && first_[order_[passed.next]] < place)
        passed.marks[order_[passed.next++]] = 1;
    for (size_t i = 0; i < count; ++i, ++place) {
        const uint8 index = after[i];
        if (passed.marks[index]) continue;
        if (!known_[index]) {
            Know(index, place);
        } else {
            first_[index] = std::min(first_[index], place);
        }
        passed.marks[index] = 1;
    }
}

// Looks on for those that are no longer in their first place, and forgets those that are gone.
void IndexCounts::FindLost(std::span<const uint8> indices) {
    size_t kept = 0;
    for (size_t i = 0; i < order_size_; ++i) {
        const uint8 index = order_[i];
        known_[index] = counts_[index] != 0;
        if (!known_[index]) continue;
        order_[kept++] = index;
        const uint8* const first = indices.data() + first_[index];
        if (*first == index) continue;
        const uint8* const end = indices.data() + indices.size();
        const void* const found = std::memchr(first, index, static_cast<size_t>(end - first));
        first_[index] = static_cast<uint32>(static_cast<const uint8*>(found) - indices.data());
    }
    order_size_ = kept;
}

// The order is nearly that of the places.
void IndexCounts::Sort() {
    for (size_t i = 1; i < order_size_; ++i) {
        const uint8 index = order_[i];
        size_t place = i;
        for (; place > 0 && first_[order_[place - 1]] > first_[index]; --place)
            order_[place] = order_[place - 1];
        order_[place] = index;
    }
}

// Appends to the order those that have been counted, but are new; all of them are among the
// indices, which come after those that were added.
void IndexCounts::Append(std::span<const uint8> indices) {
    constexpr size_t kFew = 8;
    size_t counted = 0;
    for (size_t index = 0; index < 256; ++index)
        counted += counts_[index] != 0;
    const uint8* next = indices.data();
    const uint8* const end = next + indices.size();
    const auto place = [&] { return added_ + static_cast<uint32>(next - indices.data()); };
    while (order_size_ + kFew < counted) {
        const uint8* const group_end = std::min(next + kGroup, end);
        if (group_end - next == kGroup && AreMarked(known_, next)) {
            next = group_end;
            continue;
        }
        for (; next != group_end; ++next)
            if (!known_[*next]) Know(*next, place());
    }
    if (order_size_ < counted) AppendFew({next, end}, place());
}

// The same where there are only a few: each is looked for by itself. place: of the indices.
void IndexCounts::AppendFew(std::span<const uint8> indices, uint32 place) {
    struct Found {
        const uint8* first;
        uint8 index;
    };
    std::array<Found, 256> all_found;
    size_t size = 0;
    for (size_t index = 0; index < 256; ++index) {
        if (counts_[index] == 0 || known_[index]) continue;
        const void* const first =
            std::memchr(indices.data(), static_cast<int>(index), indices.size());
        all_found[size++] = {static_cast<const uint8*>(first), static_cast<uint8>(index)};
    }
    std::sort(all_found.begin(), all_found.begin() + size,
              [](const Found& a, const Found& b) { return a.first < b.first; });
    for (size_t i = 0; i < size; ++i)
        Know(all_found[i].index, place + static_cast<uint32>(all_found[i].first - indices.data()));
}

void IndexCounts::Know(uint8 index, uint32 first) {
    known_[index] = 1;
    first_[index] = first;
    order_[order_size_++] = index;
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
