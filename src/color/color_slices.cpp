#include "color/color_slices.h"

#include <algorithm>
#include <utility>

#include "base/byte_order.h"
#include "color/hash_item.h"

namespace kirto {

namespace {

constexpr size_t kReds = 256;
constexpr size_t kBlues = 256;
constexpr size_t kPixelsAtOnce = 1 << 16;  // between two looks at the work

constexpr uint32 GreenOf(uint32 key) {
    return key >> 8 & 0xFF;
}

constexpr uint16 RedAndBlueOf(uint32 key) {
    return static_cast<uint16>((key >> 8 & 0xFF00) | (key & 0xFF));
}

constexpr uint32 KeyOf(uint32 green, uint32 red_and_blue) {
    return (red_and_blue & 0xFF00) << 8 | green << 8 | (red_and_blue & 0xFF);
}

// Appends to many places of memory by way of a line for each, all of which the processor's cache
// holds; one by one, they would go to as many pages.
class SliceLines {
  public:
    // begins: where in the target each slice begins.
    SliceLines(uint16* target, const size_t* begins) {
        for (size_t i = 0; i < next_.size(); ++i)
            next_[i] = target + begins[i];
    }
    void Add(uint32 slice, uint16 value) {
        lines_[slice][filled_[slice]++] = value;
        if (filled_[slice] == kLine) Write(slice);
    }
    void Flush() {
        for (uint32 i = 0; i < next_.size(); ++i)
            Write(i);
    }

  private:
    static constexpr size_t kLine = 32;

    void Write(uint32 slice) {
        next_[slice] = std::copy_n(lines_[slice].data(), filled_[slice], next_[slice]);
        filled_[slice] = 0;
    }

    alignas(64) std::array<std::array<uint16, kLine>, 256> lines_;
    std::array<uint32, 256> filled_{};
    std::array<uint16*, 256> next_;
};

size_t CountOf(const std::vector<ColorSlices::Pixels>& pixels) {
    size_t bytes = 0;
    for (const ColorSlices::Pixels& part : pixels)
        bytes += part.size();
    return bytes / 4;
}

}  // namespace

bool ColorSlices::Count(std::span<const Item> counted, const std::vector<Pixels>& pixels) {
    return big_endian_ ? CountAs<true>(counted, pixels) : CountAs<false>(counted, pixels);
}

template <bool kBigEndian>
bool ColorSlices::CountAs(std::span<const Item> counted, const std::vector<Pixels>& pixels) {
    const size_t count = CountOf(pixels);
    sorted_ = AllocateArray<uint16>(count);
    counts_ = AllocateArray<uint32>(kReds * kBlues);
    if (!sorted_ || !counts_) return false;
    const Begins begins = Measure<kBigEndian>(pixels);
    if (!Sort<kBigEndian>(pixels, begins)) return false;
    std::array<std::vector<Item>, kSlices> counted_by_green;
    for (const Item& item : counted)
        counted_by_green[GreenOf(item.key)].push_back(item);
    for (uint32 green = 0; green < kSlices; ++green) {
        const size_t size = begins[green + 1] - begins[green];
        const std::vector<Item>& before = counted_by_green[green];
        if (IsStopped(work_) || !MakeRoom(std::min(before.size() + size, kReds * kBlues)))
            return false;
        CountSlice(green, before, {sorted_.get() + begins[green], size});
    }
    sorted_ = nullptr;
    counts_ = nullptr;
    return true;
}

template <bool kBigEndian>
ColorSlices::Begins ColorSlices::Measure(const std::vector<Pixels>& pixels) const {
    // Neighbors are counted in different lanes: adding to the same place again and again would wait
    // for each addition to be stored.
    constexpr size_t kLanes = 4;
    std::array<std::array<size_t, kSlices>, kLanes> sizes{};
    size_t lane = 0;
    for (const Pixels& part : pixels) {
        for (size_t i = 0; i < part.size(); i += 4)
            ++sizes[lane++ % kLanes][part[i + (kBigEndian ? 2 : 1)]];
    }
    Begins begins{};
    for (size_t green = 0; green < kSlices; ++green) {
        begins[green + 1] = begins[green];
        for (size_t i = 0; i < kLanes; ++i)
            begins[green + 1] += sizes[i][green];
    }
    return begins;
}

template <bool kBigEndian>
bool ColorSlices::Sort(const std::vector<Pixels>& pixels, const Begins& begins) {
    SliceLines lines(sorted_.get(), begins.data());
    for (Pixels part : pixels) {
        while (!part.empty()) {
            if (IsStopped(work_)) return false;
            const Pixels block = part.first(std::min(part.size(), kPixelsAtOnce * 4));
            for (size_t i = 0; i < block.size(); i += 4) {
                const uint32 key = KeyAt<kBigEndian>(block.data() + i);
                lines.Add(GreenOf(key), RedAndBlueOf(key));
            }
            part = part.subspan(block.size());
        }
    }
    lines.Flush();
    return true;
}

bool ColorSlices::MakeRoom(size_t more) {
    const size_t wanted = std::min(size_ + more, kSlices * kReds * kBlues);
    if (wanted <= capacity_) return true;
    const size_t capacity = std::max(wanted, 2 * capacity_);
    AllocatedArray<Item> items = AllocateArray<Item>(capacity);
    if (!items) return false;
    std::copy_n(items_.get(), size_, items.get());
    items_ = std::move(items);
    capacity_ = capacity;
    return true;
}

void ColorSlices::CountSlice(uint32 green, std::span<const Item> counted,
                             std::span<const uint16> sorted) {
    uint32* const counts = counts_.get();
    Item* const items = items_.get();
    const size_t first = size_;
    size_t size = size_;
    for (const Item& item : counted) {
        counts[RedAndBlueOf(item.key)] = item.value;
        items[size++].key = item.key;
    }
    for (const uint16 red_and_blue : sorted) {
        if (counts[red_and_blue]++ == 0) items[size++].key = KeyOf(green, red_and_blue);
    }
    for (size_t i = first; i < size; ++i) {
        uint32& count = counts[RedAndBlueOf(items[i].key)];
        items[i].value = count;
        count = 0;
    }
    size_ = size;
}

}  // namespace kirto
