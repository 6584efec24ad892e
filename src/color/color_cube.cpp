#include "color/color_cube.h"

#include <algorithm>
#include <array>

#include "base/byte_order.h"
#include "color/hash_item.h"

namespace kirto {

namespace {

constexpr size_t kColors = size_t{1} << 24;
constexpr size_t kPixelsOfABlock = 1 << 14;  // between two looks at the work and the colors
constexpr uint16 kFull = 0xFFFF;

// The bits of a component, each with two zeros above it.
constexpr uint32 Spread(uint32 component) {
    uint32 spread = 0;
    for (uint32 bit = 0; bit < 8; ++bit)
        spread |= (component >> bit & 1) << 3 * bit;
    return spread;
}

constexpr std::array<uint32, 256> kSpread = [] {
    std::array<uint32, 256> spread{};
    for (uint32 i = 0; i < spread.size(); ++i)
        spread[i] = Spread(i);
    return spread;
}();

// Where the color's counter is. Its number takes the bits of red, green and blue in turn (Morton's
// order), which makes a cube of similar colors neighbors.
uint32 Place(uint32 key) {
    return kSpread[key >> 16] << 2 | kSpread[key >> 8 & 0xFF] << 1 | kSpread[key & 0xFF];
}

}  // namespace

bool ColorCube::Count(std::span<const Item> counted, const std::vector<Pixels>& pixels) {
    if (counted.size() > kMostColors || !Allocate(pixels)) return false;
    size_ = counted.size();
    std::copy_n(counted.data(), size_, items_.get());
    for (const Item& item : counted)
        counts_[Place(item.key)] = 1;
    bool few = true;
    for (Pixels part : pixels) {
        while (few && !part.empty()) {
            if (IsStopped(work_)) return false;
            const size_t block = std::min(part.size() / 4, kPixelsOfABlock);
            const size_t before = size_;
            big_endian_ ? CountBlock<true>(part.data(), block)
                        : CountBlock<false>(part.data(), block);
            few = size_ <= kMostColors && size_ - before <= kPixelsOfABlock / 2;
            done_ += block;
            part = part.subspan(block * 4);
        }
    }
    TakeCounts(counted.size());
    counts_ = nullptr;
    return true;
}

bool ColorCube::Allocate(const std::vector<Pixels>& pixels) {
    size_t count = 0;
    for (const Pixels& part : pixels)
        count += part.size() / 4;
    counts_ = AllocateArray<uint16>(kColors);
    full_ = AllocateArray<uint32>(count / kFull + 1);
    // Each pixel writes an item, new or not.
    items_ = AllocateUnfilledArray<Item>(kMostColors + kPixelsOfABlock + 1);
    return counts_ && full_ && items_;
}

template <bool kBigEndian>
void ColorCube::CountBlock(const uint8* pixels, size_t count) {
    uint16* const counts = counts_.get();
    Item* const items = items_.get();
    size_t size = size_;
    for (size_t i = 0; i < count; ++i) {
        const uint32 key = KeyAt<kBigEndian>(pixels + i * 4);
        uint16& counter = counts[Place(key)];
        items[size].key = key;
        size += counter == 0 ? 1 : 0;
        if (counter == kFull) [[unlikely]] {
            full_[full_size_++] = key;
            counter = 0;
        }
        ++counter;
    }
    size_ = size;
}

void ColorCube::TakeCounts(size_t counted) {
    const std::span<uint32> full{full_.get(), full_size_};
    std::sort(full.begin(), full.end());
    for (size_t i = 0; i < size_; ++i) {
        Item& item = items_[i];
        const uint32 count = counts_[Place(item.key)];
        // The counters of colors that were known have begun with 1.
        item.value = i < counted ? item.value + count - 1 : count;
        if (full.empty()) continue;
        const auto [first, last] = std::equal_range(full.begin(), full.end(), item.key);
        item.value += static_cast<uint32>(last - first) * kFull;
    }
}

}  // namespace kirto
