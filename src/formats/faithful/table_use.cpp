#include "formats/faithful/table_use.h"

#include <algorithm>
#include <bit>
#include <new>
#include <utility>

#include "base/byte_order.h"
#include "color/color_values.h"
#include "formats/faithful/screen_difference.h"

namespace kirto {

namespace {

// Pixels that are worth an interruption of what is drawn.
constexpr size_t kLongStretch = 48;

// How often each color stays as it is, by falling number.
std::vector<ColorValues::Item> Skipped(std::span<const uint32> keys,
                                       std::span<const uint8> skippable) {
    ColorValues counts;
    for (size_t i = 0; i < keys.size();) {
        const uint32 key = keys[i];
        if (skippable[i] == 0 || key == kNothing) {
            ++i;
            continue;
        }
        ColorValues::Item* const item = counts.FindOrAdd(key);
        if (!item) throw std::bad_alloc();
        for (; i < keys.size() && keys[i] == key && skippable[i] != 0; ++i)
            ++item->value;
    }
    return CommonestFirst(counts);
}

// Skips stretches of at least so many pixels that may be skipped, but for those at their ends that
// go on with a run of what is drawn.
std::vector<uint8> Skipping(std::span<const uint8> indices, std::span<const uint8> skippable,
                            uint8 transparent, size_t least) {
    std::vector<uint8> result(indices.begin(), indices.end());
    const size_t size = result.size();
    for (size_t start = 0; start < size;) {
        size_t end = start;
        while (end < size && skippable[end] != 0)
            ++end;
        size_t first = start;
        size_t last = end;
        if (end - start < least) first = end;
        while (start > 0 && first < last && indices[first] == indices[start - 1])
            ++first;
        while (end < size && first < last && indices[last - 1] == indices[end])
            --last;
        for (; first < last; ++first)
            result[first] = transparent;
        start = end + 1;
    }
    return result;
}

std::vector<uint32> KeysOf(std::span<const ColorValues::Item> colors) {
    std::vector<uint32> keys;
    keys.reserve(colors.size());
    for (const ColorValues::Item& item : colors)
        keys.push_back(item.key);
    return keys;
}

int32 BitsFor(int32 index) {
    return std::max(2, static_cast<int32>(std::bit_width(static_cast<uint32>(index))));
}

std::shared_ptr<const TableIndices> IndicesOf(const GifTable& table, const ImageArea& area) {
    auto result = std::make_shared<TableIndices>();
    const size_t size = area.keys.size();
    result->indices.resize(size);
    for (size_t i = 0; i < size;) {
        const uint32 key = area.keys[i];
        const int32 index = table.IndexOf(key);
        const uint16 found =
            index == GifTable::kNone ? TableIndices::kNone : static_cast<uint16>(index);
        result->largest = std::max(result->largest, found);
        for (; i < size && area.keys[i] == key; ++i)
            result->indices[i] = found;
    }
    return result;
}

TableUse GlobalSkippingUse(const GifTable& table, const FramePlan& plan) {
    TableUse use;
    use.table = table;
    std::array<bool, GifTable::kMostEntries + 1> used{};
    int32 largest = 0;
    for (const ColorValues::Item& item : plan.colors) {
        const int32 index = use.table.IndexOf(item.key);
        used[static_cast<size_t>(index)] = true;
        largest = std::max(largest, index);
    }
    auto* const unused = std::find(used.begin(), used.end(), false);
    use.transparent_index = static_cast<int32>(unused - used.begin());
    use.bits = BitsFor(std::max(largest, use.transparent_index));
    return use;
}

// Draws all pixels; nothing where one has none of the colors.
std::optional<TableUse> PlainUse(const GifTable& table,
                                 std::shared_ptr<const TableIndices> indices) {
    if (indices->largest == TableIndices::kNone) return std::nullopt;
    TableUse use;
    use.table = table;
    use.bits = BitsFor(indices->largest);
    use.indices = std::move(indices);
    return use;
}

// What there is room for are colors of pixels that stay as they are: they may be drawn again.
TableUse LocalSkippingUse(const FramePlan& plan, const ImageArea& area,
                          std::span<const ColorValues::Item> skipped) {
    TableUse use;
    use.local = true;
    std::vector<uint32> keys = KeysOf(plan.colors);
    use.transparent_index = static_cast<int32>(keys.size());
    use.bits = BitsFor(use.transparent_index);
    // A color that is there already is not found here.
    keys.push_back(keys.empty() ? 0 : keys.front());
    const size_t room = size_t{1} << GifTable(keys).Bits();
    for (const ColorValues::Item& item : skipped) {
        const bool known = std::find(keys.begin(), keys.end(), item.key) != keys.end();
        if (keys.size() < room && !known) keys.push_back(item.key);
    }
    use.table = GifTable(keys);
    use.indices = IndicesOf(use.table, area);
    return use;
}

// Nothing where a pixel is to show nothing, or there are too many colors.
std::optional<TableUse> LocalPlainUse(const FramePlan& plan, const ImageArea& area,
                                      std::span<const ColorValues::Item> skipped) {
    std::vector<uint32> keys = KeysOf(plan.colors);
    for (const ColorValues::Item& item : skipped) {
        if (std::find(keys.begin(), keys.end(), item.key) == keys.end()) keys.push_back(item.key);
        if (keys.size() > GifTable::kMostEntries) return std::nullopt;
    }
    const GifTable table(keys);
    std::optional<TableUse> use = PlainUse(table, IndicesOf(table, area));
    if (use) use->local = true;
    return use;
}

}  // namespace

std::vector<TableUse> GlobalUses(const GifTable& table, const FramePlan& plan,
                                 const ImageArea& area) {
    std::vector<TableUse> uses;
    const std::shared_ptr<const TableIndices> indices = IndicesOf(table, area);
    if (plan.skips && Serves(table, plan)) {
        uses.push_back(GlobalSkippingUse(table, plan));
        uses.back().indices = indices;
    }
    if (std::optional<TableUse> plain = PlainUse(table, indices)) uses.push_back(*plain);
    return uses;
}

std::vector<TableUse> LocalUses(const FramePlan& plan, const ImageArea& area, int32 below) {
    std::vector<TableUse> uses;
    const int32 colors = static_cast<int32>(plan.colors.size());
    if (BitsFor(colors - 1) >= below) return uses;
    const std::vector<ColorValues::Item> skipped = Skipped(area.keys, area.skippable);
    if (plan.skips && BitsFor(colors) < below)
        uses.push_back(LocalSkippingUse(plan, area, skipped));
    std::optional<TableUse> plain = LocalPlainUse(plan, area, skipped);
    if (plain && plain->bits < below) uses.push_back(*plain);
    return uses;
}

std::vector<Drawing> DrawingsOf(const ImageArea& area, const TableUse& use) {
    const bool skips = use.transparent_index != GifTable::kNone;
    const int32 indices_end = 1 << use.bits;
    const auto transparent = static_cast<uint8>(std::max(use.transparent_index, 0));
    std::vector<uint8> indices(area.keys.size());
    std::transform(
        use.indices->indices.begin(), use.indices->indices.end(), indices.begin(),
        [=](uint16 index) { return index < indices_end ? LowByte(index) : transparent; });
    std::vector<Drawing> drawings;
    if (skips) {
        drawings.push_back({Skipping(indices, area.skippable, transparent, kLongStretch), false});
    }
    drawings.push_back({std::move(indices), skips});
    return drawings;
}

}  // namespace kirto
