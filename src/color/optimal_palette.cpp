// The part of Palette that counts the colours of a picture and keeps the most frequent ones.
#include <algorithm>
#include <new>
#include <span>

#include "color/palette.h"
#include "platform/alert.h"
#include "platform/allocation.h"
#include "platform/debug_line.h"

using kirto::ColorKey;

namespace {

// One bucket for each pair of green and blue; colours that differ only in red share one.
constexpr int32 kColorBuckets = 65536;

// A single object from the heap, or null.
template <typename T, typename... Arguments>
std::unique_ptr<T> TryMake(Arguments... arguments) {
    if (kirto::AllocationShouldFail()) return nullptr;
    return std::unique_ptr<T>(new (std::nothrow) T(arguments...));
}

// So many entries, or nothing when memory is short.
std::optional<std::vector<rgb_color>> TryMakeColors(size_t count) {
    if (kirto::AllocationShouldFail()) return std::nullopt;
    try {
        return std::vector<rgb_color>(count);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

// The colour's item, added with a count of 0 where it is new; null when memory is short.
ColorItem* FindOrAdd(SFHash& table, uint32 key) {
    if (HashItem* known = table.GetItem(key)) return static_cast<ColorItem*>(known);
    ColorItem* item = TryMake<ColorItem>(key, 0U).release();
    if (item) table.AddItem(item);
    return item;
}

// Adds every pixel of a 32-bit picture to the count of its colour. False when memory is short.
bool CountPixels(const BBitmap& picture, SFHash& table) {
    const bool big_endian = kirto::IsBigEndian(picture.ColorSpace());
    const uint8* pixel = picture.Bits();
    ColorItem* item = nullptr;
    for (size_t left = picture.BitsLength() / 4; left > 0; --left, pixel += 4) {
        const uint32 key = big_endian ? ColorKey(pixel[1], pixel[2], pixel[3])
                                      : ColorKey(pixel[2], pixel[1], pixel[0]);
        // Neighbours are often equal: only the first of a run is looked up.
        if (!item || item->key != key) item = FindOrAdd(table, key);
        if (!item) return false;
        ++item->value;
    }
    return true;
}

// The smallest index width that holds so many colours, 8 at most.
int32 BitsFor(int32 color_count) {
    int32 bits = 1;
    while (bits < 8 && (1 << bits) < color_count)
        ++bits;
    return bits;
}

// Slots are sorted by falling count. The item goes behind its equals, and what is pushed past the
// last slot is dropped.
void InsertByCount(std::span<const ColorItem*> slots, const ColorItem* item) {
    if (item->value <= slots.back()->value) return;
    const auto place = std::upper_bound(
        slots.begin(), slots.end(), item,
        [](const ColorItem* a, const ColorItem* b) { return a->value > b->value; });
    std::move_backward(place, slots.end() - 1, slots.end());
    *place = item;
}

rgb_color ColorOfKey(uint32 key) {
    return {static_cast<uint8>(key >> 16), static_cast<uint8>(key >> 8), static_cast<uint8>(key),
            255};
}

}  // namespace

void Palette::Set(const BBitmap* picture) {
    mode = kirto::kPaletteOptimal;
    const auto optimal = MakeNearestColorPalette(picture);
    if (optimal) {
        std::copy(optimal->begin(), optimal->end(), colors.begin());
    } else {
        Set(kirto::kPaletteWebSafe);
    }
}

std::optional<std::vector<rgb_color>> Palette::MakeNearestColorPalette(const BBitmap* picture) {
    const std::unique_ptr<SFHash> table = BuildHashtable(picture);
    if (!table) return std::nullopt;
    unique_colors = table->CountItems();
    bits = BitsFor(unique_colors);
    size = 1 << bits;

    const size_t count = static_cast<size_t>(size);
    const auto slots = kirto::AllocateArray<const ColorItem*>(count);
    auto result = TryMakeColors(count);
    if (!slots || !result) {
        kirto::WarnOutOfMemory();
        return std::nullopt;
    }
    // Stands in the slots that no colour takes; any colour's count is greater.
    const ColorItem sentinel(0, 0);
    const std::span<const ColorItem*> commonest(slots.get(), count);
    std::fill(commonest.begin(), commonest.end(), &sentinel);
    table->Rewind();
    while (const HashItem* item = table->NextItem()) {
        InsertByCount(commonest, static_cast<const ColorItem*>(item));
    }
    std::transform(commonest.begin(), commonest.end(), result->begin(),
                   [](const ColorItem* item) { return ColorOfKey(item->key); });
    return result;
}

std::unique_ptr<SFHash> Palette::BuildHashtable(const BBitmap* picture) const {
    if (!picture) return nullptr;
    auto table = TryMake<SFHash>(kColorBuckets);
    if (!table || table->fail) {
        kirto::WarnOutOfMemory();
        return nullptr;
    }
    if (!kirto::Is32Bit(picture->ColorSpace())) {
        kirto::DebugLine("Palette::BuildHashtable() - Wrong color space given\n");
        return nullptr;
    }
    if (!CountPixels(*picture, *table)) {
        kirto::WarnOutOfMemory();
        return nullptr;
    }
    return table;
}

int32 Palette::CountUniqueColors(const BBitmap* picture) const {
    const std::unique_ptr<SFHash> table = BuildHashtable(picture);
    return table ? table->CountItems() : 0;
}

void Palette::UpdateIfNeeded(const BBitmap* first_frame, const BBitmap* current_frame) {
    const int32 kind = mode;
    const BBitmap* picture = nullptr;
    if (kind == kirto::kPaletteFirstFrame) picture = first_frame;
    if (kind == kirto::kPaletteCurrentFrame) picture = current_frame;
    if (!picture) return;
    Set(picture);
    mode = kind;
}
