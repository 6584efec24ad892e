#include "picture/index_counts.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

// Indices that are counted before anybody looks for new ones.
constexpr size_t kBlock = 4096;
constexpr size_t kLanes = 4;

}  // namespace

void IndexCounts::Add(std::span<const uint8> indices) {
    while (!indices.empty()) {
        const std::span<const uint8> block = indices.first(std::min(indices.size(), kBlock));
        AddBlock(block);
        if (HasNew()) Append(block);
        indices = indices.subspan(block.size());
    }
}

// Neighbors are counted in different lanes: adding to the same place again and again would wait for
// each addition to be stored.
void IndexCounts::AddBlock(std::span<const uint8> block) {
    std::array<std::array<uint16, 256>, kLanes> lanes{};
    const uint8* next = block.data();
    const uint8* const end = next + block.size();
    for (; end - next >= 8; next += 8) {
        uint64 group = 0;
        std::memcpy(&group, next, sizeof(group));
        // A run is counted at once.
        if (group == *next * uint64{0x0101010101010101}) {
            lanes[0][*next] = static_cast<uint16>(lanes[0][*next] + 8);
            continue;
        }
        for (size_t i = 0; i < 8; ++i)
            ++lanes[i % kLanes][group >> 8 * i & 0xFF];
    }
    for (; next != end; ++next)
        ++lanes[0][*next];
    for (size_t index = 0; index < 256; ++index)
        counts_[index] +=
            uint32{lanes[0][index]} + lanes[1][index] + lanes[2][index] + lanes[3][index];
}

bool IndexCounts::HasNew() const {
    bool any = false;
    for (size_t index = 0; index < 256; ++index)
        any |= counts_[index] != 0 && !known_[index];
    return any;
}

void IndexCounts::Append(std::span<const uint8> block) {
    for (const uint8 index : block) {
        if (known_[index]) continue;
        known_[index] = true;
        order_[order_size_++] = index;
    }
}

}  // namespace kirto
