#include "color/adaptive/color_census.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>

namespace kirto {

bool ColorCensus::Count(uint32 key, uint32 pixels) {
    if (key == AlphaMatte::kTransparent) {
        has_transparent_ = true;
        return true;
    }
    ColorValues::Item* item = counts_.FindOrAdd(key);
    if (!item) return false;
    item->value += std::min(pixels, std::numeric_limits<uint32>::max() - item->value);
    return true;
}

template <bool kBigEndian>
bool ColorCensus::AddStrip(const Strip& strip, size_t width) {
    const uint8* pixels = strip.Pixels();
    if (!pixels) {
        return strip.AllCounts([&](const PixelCount& each) {
            uint8 bytes[4];
            std::memcpy(bytes, &each.pixel, sizeof(bytes));
            return Count(matte_.KeyAt<kBigEndian>(bytes), each.count);
        });
    }
    const uint8* const end = pixels + width * static_cast<size_t>(strip.Rows()) * 4;
    while (pixels != end) {
        // Neighbors are often equal: only the first of a run is looked up.
        const uint8* run_end = pixels + 4;
        while (run_end != end && std::memcmp(run_end, pixels, 4) == 0)
            run_end += 4;
        const auto run = static_cast<uint32>((run_end - pixels) / 4);
        if (!Count(matte_.KeyAt<kBigEndian>(pixels), run)) return false;
        pixels = run_end;
    }
    return true;
}

status_t ColorCensus::Add(const Picture& picture) {
    if (!Is32Bit(picture.ColorSpace())) return B_BAD_TYPE;
    const bool big_endian = IsBigEndian(picture.ColorSpace());
    const size_t width = static_cast<size_t>(picture.Width());
    for (const std::shared_ptr<const Strip>& strip : picture.AllStrips()) {
        if (IsStopped(work_)) return B_CANCELED;
        if (big_endian ? !AddStrip<true>(*strip, width) : !AddStrip<false>(*strip, width)) {
            return IsStopped(work_) ? B_CANCELED : B_NO_MEMORY;
        }
    }
    return B_OK;
}

}  // namespace kirto
