// What is known of a video, and which part of it is wanted: two texts with a line break between
// them.
#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "base/types.h"
#include "formats/video/video_cut.h"
#include "formats/video/video_probe.h"

namespace {

constexpr int32 kLargestSide = 65535;

bool IsSide(int32 side) {
    return side >= 1 && side <= kLargestSide;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const size_t end = std::min(text.find('\n'), text.size());
    const auto cut = kirto::ParseVideoCut(text.substr(0, end));
    const auto video = kirto::ParseVideoProbe(text.substr(std::min(end + 1, text.size())));
    if (!cut || !video) return 0;
    const auto frames = kirto::FramesOf(*video, *cut);
    if (!frames) return 0;
    const bool sound = IsSide(frames->width) && IsSide(frames->height) && frames->count >= 0 &&
                       frames->rate_numerator > 0 && frames->rate_denominator > 0 &&
                       frames->rate_numerator <= 50 * frames->rate_denominator;
    if (!sound) std::abort();
    return 0;
}
