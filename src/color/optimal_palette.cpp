// The part of Palette that counts the colors of a picture and keeps the most frequent ones.
#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "base/allocation.h"
#include "base/byte_order.h"
#include "base/debug_line.h"
#include "color/color_cube.h"
#include "color/color_slices.h"
#include "color/color_values.h"
#include "color/commonest_colors.h"
#include "color/palette.h"
#include "kit/alert.h"

using kirto::ColorKey;

namespace {

// One bucket for each pair of green and blue; colors that differ only in red share one.
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

// Adds so many pixels to the values of their colors. False when memory is short or the work was
// stopped.
template <bool kBigEndian>
bool CountPixels(const uint8* pixels, size_t count, kirto::ColorValues& counts) {
    constexpr size_t kAhead = 16;  // pixels that the processor may fetch slots for
    const auto key_at = [pixels](size_t i) {
        const uint8* pixel = pixels + i * 4;
        return kBigEndian ? ColorKey(pixel[1], pixel[2], pixel[3])
                          : kirto::ReadLittle32(pixel) & 0xFFFFFF;
    };
    for (size_t i = 0; i < count;) {
        const uint32 key = key_at(i);
        if (i + kAhead < count) counts.Prefetch(key_at(i + kAhead));
        // Neighbors are often equal: only the first of a run is looked up.
        size_t end = i + 1;
        while (end < count && key_at(end) == key)
            ++end;
        kirto::ColorValues::Item* item = counts.FindOrAdd(key);
        if (!item) return false;
        item->value += static_cast<uint32>(end - i);
        i = end;
    }
    return true;
}

// Adds a pixel that is counted already.
bool AddCount(const kirto::PixelCount& pixel, bool big_endian, kirto::ColorValues& counts) {
    uint8 bytes[4];
    std::memcpy(bytes, &pixel.pixel, sizeof(bytes));
    const uint32 key = big_endian ? ColorKey(bytes[1], bytes[2], bytes[3])
                                  : ColorKey(bytes[2], bytes[1], bytes[0]);
    kirto::ColorValues::Item* item = counts.FindOrAdd(key);
    if (!item) return false;
    item->value += pixel.count;
    return true;
}

// Where the table of the colors has become large, and so many pixels are left that sorting them is
// less work than looking for each one's color there.
constexpr size_t kManyColors = 1 << 14;
constexpr size_t kManyPixels = 1 << 17;
// The same for a counter of each color. It takes that pixels have come with colors that were known.
constexpr size_t kManyCubeColors = 1 << 12;
constexpr size_t kManyCubePixels = 1 << 19;
constexpr size_t kPixelsOfAStep = 1 << 13;  // between two looks at that

using ManyPixels = std::vector<kirto::ColorSlices::Pixels>;

size_t CountOf(const ManyPixels& pixels) {
    size_t bytes = 0;
    for (const kirto::ColorSlices::Pixels& part : pixels)
        bytes += part.size();
    return bytes / 4;
}

// Takes away so many pixels from the front.
void Skip(size_t count, ManyPixels* pixels) {
    size_t bytes = count * 4;
    for (kirto::ColorSlices::Pixels& part : *pixels) {
        const size_t here = std::min(bytes, part.size());
        part = part.subspan(here);
        bytes -= here;
    }
}

// The colors of a picture with their numbers of pixels. Colors of the same green and blue are in
// the order in which they appear.
class ColorCounts {
  public:
    ColorCounts(const kirto::Picture& picture, const kirto::Work* work)
        : picture_(picture),
          work_(work),
          big_endian_(kirto::IsBigEndian(picture.ColorSpace())),
          values_(work) {}

    bool Ready() const { return values_.Ready(); }
    // Counts every pixel of a 32-bit picture. False when memory is short or the work was stopped.
    bool Count();
    std::span<const kirto::ColorValues::Item> Items() const {
        if (slices_) return slices_->Items();
        return cube_ ? cube_->Items() : values_.Items();
    }

  private:
    size_t SizeOf(const kirto::Strip& strip) const {
        return static_cast<size_t>(picture_.Width()) * static_cast<size_t>(strip.Rows());
    }
    bool CountStrip(size_t place);
    // Counts the strip's pixels from that one on, and the strips that follow, in a cube or slices.
    // False where that is not worth it, or can't be done.
    bool CountRest(size_t place, size_t done);
    // The strip's pixels from that one on, and those of the strips that follow; nothing where some
    // of these are indices.
    ManyPixels RestFrom(size_t place, size_t done) const;
    // Counts some of the pixels, or all of them, and takes them away. False where that can't be
    // done.
    bool CountInCube(ManyPixels* rest);
    bool CountInSlices(const ManyPixels& rest);

    const kirto::Picture& picture_;
    const kirto::Work* const work_;
    const bool big_endian_;
    kirto::ColorValues values_;
    size_t looked_up_ = 0;                      // pixels
    std::optional<kirto::ColorCube> cube_;      // once it has counted what follows
    std::optional<kirto::ColorSlices> slices_;  // once it has counted the rest
};

bool ColorCounts::Count() {
    for (size_t i = 0; i < picture_.AllStrips().size() && !cube_ && !slices_; ++i) {
        if (kirto::IsStopped(work_) || !CountStrip(i)) return false;
    }
    return true;
}

bool ColorCounts::CountStrip(size_t place) {
    const kirto::Strip& strip = *picture_.AllStrips()[place];
    if (!strip.Pixels()) {
        return strip.AllCounts([this](const kirto::PixelCount& pixel) {
            return AddCount(pixel, big_endian_, values_);
        });
    }
    const auto count_pixels = big_endian_ ? CountPixels<true> : CountPixels<false>;
    const size_t size = SizeOf(strip);
    for (size_t done = 0; done < size;) {
        if (values_.Items().size() >= kManyCubeColors && CountRest(place, done)) return true;
        const size_t count = std::min(size - done, kPixelsOfAStep);
        if (!count_pixels(strip.Pixels() + done * 4, count, values_)) return false;
        looked_up_ += count;
        done += count;
    }
    return true;
}

bool ColorCounts::CountRest(size_t place, size_t done) {
    ManyPixels rest = RestFrom(place, done);
    const size_t colors = values_.Items().size();
    if (CountOf(rest) >= kManyCubePixels && colors <= kirto::ColorCube::kMostColors &&
        looked_up_ >= colors + colors / 4 && CountInCube(&rest)) {
        if (CountOf(rest) == 0 || CountInSlices(rest)) return true;
        cube_.reset();
        return false;
    }
    return colors >= kManyColors && CountOf(rest) >= kManyPixels && CountInSlices(rest);
}

ManyPixels ColorCounts::RestFrom(size_t place, size_t done) const {
    ManyPixels rest;
    for (size_t i = place; i < picture_.AllStrips().size(); ++i, done = 0) {
        const kirto::Strip& strip = *picture_.AllStrips()[i];
        if (!strip.Pixels()) return {};
        rest.emplace_back(strip.Pixels() + done * 4, (SizeOf(strip) - done) * 4);
    }
    return rest;
}

bool ColorCounts::CountInCube(ManyPixels* rest) {
    cube_.emplace(big_endian_, work_);
    const bool counted = cube_->Count(values_.Items(), *rest);
    if (counted) {
        Skip(cube_->Done(), rest);
    } else {
        cube_.reset();
    }
    return counted;
}

bool ColorCounts::CountInSlices(const ManyPixels& rest) {
    const std::span<const kirto::ColorValues::Item> before = Items();
    slices_.emplace(big_endian_, work_);
    const bool counted = slices_->Count(before, rest);
    if (!counted) slices_.reset();
    return counted;
}

// Each color of the picture with its number of pixels. Nothing on failure: B_CANCELED when the work
// was stopped, B_NO_MEMORY, B_BAD_VALUE without a picture, B_BAD_TYPE for one that is not 32-bit.
std::optional<ColorCounts> CountColors(const kirto::Picture* picture, const kirto::Work* work,
                                       status_t* status) {
    *status = B_BAD_VALUE;
    if (!picture) return std::nullopt;
    std::optional<ColorCounts> counts(std::in_place, *picture, work);
    const bool is_32_bit = kirto::Is32Bit(picture->ColorSpace());
    const bool counted = counts->Ready() && (!is_32_bit || counts->Count());
    if (kirto::IsStopped(work)) {
        *status = B_CANCELED;
    } else if (!counted) {
        *status = B_NO_MEMORY;
    } else {
        *status = is_32_bit ? B_OK : B_BAD_TYPE;
    }
    if (*status != B_OK) counts.reset();
    return counts;
}

// The colors as items of a hash table; null when memory is short.
std::unique_ptr<SFHash> TableOf(const ColorCounts& counts) {
    auto table = TryMake<SFHash>(kColorBuckets);
    if (!table || table->fail) return nullptr;
    for (const kirto::ColorValues::Item& color : counts.Items()) {
        std::unique_ptr<ColorItem> item = TryMake<ColorItem>(color.key, color.value);
        if (!item) return nullptr;
        table->AddItem(item.release());
    }
    return table;
}

// The smallest index width that holds so many colors, 8 at most.
int32 BitsFor(int32 color_count) {
    int32 bits = 1;
    while (bits < 8 && (1 << bits) < color_count)
        ++bits;
    return bits;
}

rgb_color ColorOfKey(uint32 key) {
    return {static_cast<uint8>(key >> 16), static_cast<uint8>(key >> 8), static_cast<uint8>(key),
            255};
}

}  // namespace

void Palette::Set(const kirto::Picture* picture, const kirto::Work* work) {
    TellOfFailure(SetOptimal(picture, work));
}

status_t Palette::SetOptimal(const kirto::Picture* picture, const kirto::Work* work) {
    mode = kirto::kPaletteOptimal;
    std::optional<std::vector<rgb_color>> optimal;
    const status_t status = FindNearestColors(picture, work, &optimal);
    if (optimal) {
        std::copy(optimal->begin(), optimal->end(), colors.begin());
    } else {
        Set(kirto::kPaletteWebSafe);
    }
    return status;
}

void Palette::TellOfFailure(status_t status) {
    if (status == B_NO_MEMORY) kirto::WarnOutOfMemory();
    if (status == B_BAD_TYPE) {
        kirto::DebugLine("Palette::BuildHashtable() - Wrong color space given\n");
    }
}

std::optional<std::vector<rgb_color>> Palette::MakeNearestColorPalette(
    const kirto::Picture* picture, const kirto::Work* work) {
    std::optional<std::vector<rgb_color>> result;
    TellOfFailure(FindNearestColors(picture, work, &result));
    return result;
}

status_t Palette::FindNearestColors(const kirto::Picture* picture, const kirto::Work* work,
                                    std::optional<std::vector<rgb_color>>* result) {
    status_t status = B_OK;
    const std::optional<ColorCounts> counts = CountColors(picture, work, &status);
    if (!counts) return status;
    unique_colors = static_cast<int32>(counts->Items().size());
    bits = BitsFor(unique_colors);
    size = 1 << bits;

    const size_t count = static_cast<size_t>(size);
    kirto::CommonestColors commonest(count);
    auto found = TryMakeColors(count);
    if (!commonest.Ready() || !found) return B_NO_MEMORY;
    for (const kirto::ColorValues::Item& color : counts->Items())
        commonest.Add(color);
    std::array<uint32, 256> keys;
    const size_t used = commonest.Keys(keys.data());
    const auto rest = std::transform(keys.begin(), keys.begin() + used, found->begin(), ColorOfKey);
    std::fill(rest, found->end(), ColorOfKey(0));
    *result = std::move(found);
    return B_OK;
}

std::unique_ptr<SFHash> Palette::BuildHashtable(const kirto::Picture* picture) const {
    status_t status = B_OK;
    const std::optional<ColorCounts> counts = CountColors(picture, nullptr, &status);
    TellOfFailure(status);
    if (!counts) return nullptr;
    std::unique_ptr<SFHash> table = TableOf(*counts);
    if (!table) kirto::WarnOutOfMemory();
    return table;
}

int32 Palette::CountUniqueColors(const kirto::Picture* picture, const kirto::Work* work) const {
    status_t status = B_OK;
    const std::optional<ColorCounts> counts = CountColors(picture, work, &status);
    TellOfFailure(status);
    return counts ? static_cast<int32>(counts->Items().size()) : 0;
}

bool Palette::UpdateIfNeeded(const kirto::Picture* first_frame, const kirto::Picture* current_frame,
                             const kirto::Work* work) {
    const int32 kind = mode;
    const kirto::Picture* picture = nullptr;
    if (kind == kirto::kPaletteFirstFrame) picture = first_frame;
    if (kind == kirto::kPaletteCurrentFrame) picture = current_frame;
    if (!picture) return false;
    Set(picture, work);
    mode = kind;
    return true;
}
