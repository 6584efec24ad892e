#include "formats/faithful/screen_difference.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace kirto {

namespace {

// No pixel has it.
constexpr uint32 kNoColor = ~uint32{0};
// Pixels that are compared at once.
constexpr size_t kAtOnce = 16;

// The first place from there on where the rows differ, or end.
inline size_t SkipSame(const uint32* a, const uint32* b, size_t from, size_t end) {
    while (end - from >= kAtOnce && std::memcmp(a + from, b + from, kAtOnce * sizeof(*a)) == 0)
        from += kAtOnce;
    while (from < end && a[from] == b[from])
        ++from;
    return from;
}

// The end of the last place where the rows differ, which they do.
size_t EndOfDifference(const uint32* a, const uint32* b, size_t end) {
    while (end >= kAtOnce &&
           std::memcmp(a + end - kAtOnce, b + end - kAtOnce, kAtOnce * sizeof(*a)) == 0)
        end -= kAtOnce;
    while (a[end - 1] == b[end - 1])
        --end;
    return end;
}

bool Contains(const ScreenPixels& pixels, uint32 wanted) {
    const uint32* at = pixels.data();
    const uint32* const end = at + pixels.size();
    for (; end - at >= static_cast<ptrdiff_t>(kAtOnce); at += kAtOnce) {
        uint32 found = 0;
        for (size_t i = 0; i < kAtOnce; ++i)
            found |= at[i] == wanted ? 1 : 0;
        if (found != 0) return true;
    }
    return std::find(at, end, wanted) != end;
}

// Columns first to end of a row.
struct Extent {
    int32 first = 0;
    int32 end = 0;

    void Add(int32 x) {
        if (end == 0) first = x;
        end = x + 1;
    }
    PixelRect InRow(int32 y) const { return {first, y, end - first, end > 0 ? 1 : 0}; }
};

// Of rows that differ.
void CompareRow(const uint32* below, const uint32* shown, int32 width, int32 y,
                ScreenDifference* difference) {
    Extent changed;
    Extent lost;
    uint32 last = kNoColor;
    const size_t end = EndOfDifference(below, shown, static_cast<size_t>(width));
    for (size_t x = SkipSame(below, shown, 0, end); x < end; x = SkipSame(below, shown, x, end)) {
        changed.Add(static_cast<int32>(x));
        for (; x < end && shown[x] != below[x]; ++x) {
            ++difference->pixels;
            if (shown[x] == kNothing) lost.Add(static_cast<int32>(x));
            if (shown[x] != last) ++difference->runs;
            last = shown[x];
        }
        changed.Add(static_cast<int32>(x) - 1);
    }
    difference->changed = Around(difference->changed, changed.InRow(y));
    difference->lost = Around(difference->lost, lost.InRow(y));
}

}  // namespace

ScreenDifference ScreenDifference::Between(const Screen& screen, const ScreenPixels& below,
                                           const ScreenPixels& shown) {
    ScreenDifference difference;
    const size_t row_bytes = static_cast<size_t>(screen.Width()) * sizeof(uint32);
    for (int32 y = 0; y < screen.Height(); ++y) {
        const uint32* const below_row = below.data() + screen.At(0, y);
        const uint32* const shown_row = shown.data() + screen.At(0, y);
        if (std::memcmp(below_row, shown_row, row_bytes) == 0) continue;
        CompareRow(below_row, shown_row, screen.Width(), y, &difference);
    }
    difference.transparent = Contains(shown, kNothing);
    return difference;
}

std::vector<ColorValues::Item> CommonestFirst(const ColorValues& counts) {
    std::vector<ColorValues::Item> colors(counts.Items().begin(), counts.Items().end());
    std::sort(colors.begin(), colors.end(), [](const auto& a, const auto& b) {
        return a.value != b.value ? a.value > b.value : a.key < b.key;
    });
    return colors;
}

std::optional<std::vector<ColorValues::Item>> ColorsToDraw(const Screen& screen,
                                                           const PixelRect& rect,
                                                           const ScreenPixels& below,
                                                           const ScreenPixels& shown, size_t most) {
    ColorValues counts;
    for (int32 y = rect.top; y < rect.top + rect.height; ++y) {
        const size_t end = screen.At(rect.left + rect.width, y);
        for (size_t i = screen.At(rect.left, y); i < end;) {
            i = SkipSame(below.data(), shown.data(), i, end);
            if (i == end) break;
            if (shown[i] == kNothing) {
                ++i;
                continue;
            }
            const uint32 key = shown[i];
            ColorValues::Item* const item = counts.FindOrAdd(key);
            if (!item) throw std::bad_alloc();
            if (counts.Items().size() > most) return std::nullopt;
            for (; i < end && shown[i] == key && below[i] != key; ++i)
                ++item->value;
        }
    }
    return CommonestFirst(counts);
}

}  // namespace kirto
