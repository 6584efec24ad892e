#include "formats/video/video_cut.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/number.h"
#include "base/text.h"

namespace kirto {

namespace {

constexpr int32 kLargestCutSide = 65535;
constexpr double kLatestSecond = 1e7;
constexpr double kThousandths = 1000;
constexpr std::string_view kCropName = ",crop=";

// What is in front of the last such character stays, what is behind it is returned.
std::optional<std::string_view> TakeLast(std::string_view* text, char separator) {
    const size_t at = text->rfind(separator);
    if (at == std::string_view::npos) return std::nullopt;
    const std::string_view behind = text->substr(at + 1);
    *text = text->substr(0, at);
    return behind;
}

// Digits with at most one dot, so that no number has a sign, an exponent or a name.
bool ParsePlainReal(std::string_view text, double* number) {
    const bool plain = std::all_of(text.begin(), text.end(),
                                   [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
    return plain && ParseNumber(text, number);
}

bool ParseSide(std::string_view text, int32 least, int32* side) {
    return ParseNumber(text, side) && *side >= least && *side <= kLargestCutSide;
}

// "480x270", "480x", "x270".
bool ParseFrameSize(std::string_view text, VideoCut* cut) {
    const size_t cross = text.find('x');
    if (cross == std::string_view::npos || text.size() == 1) return false;
    const std::string_view width = text.substr(0, cross);
    const std::string_view height = text.substr(cross + 1);
    return (width.empty() || ParseSide(width, 1, &cut->width)) &&
           (height.empty() || ParseSide(height, 1, &cut->height));
}

// "640x360+0+60"
bool ParseArea(std::string_view text, VideoCut* cut) {
    VideoArea area;
    const auto top = TakeLast(&text, '+');
    const auto left = TakeLast(&text, '+');
    const auto height = TakeLast(&text, 'x');
    if (!top || !left || !height) return false;
    if (!ParseSide(*top, 0, &area.top) || !ParseSide(*left, 0, &area.left)) return false;
    if (!ParseSide(text, 1, &area.width) || !ParseSide(*height, 1, &area.height)) return false;
    cut->area = area;
    return true;
}

bool ParseRate(std::string_view text, VideoCut* cut) {
    double rate = 0;
    if (!ParsePlainReal(text, &rate)) return false;
    cut->rate = rate;
    return rate >= VideoCut::kFewestFramesPerSecond && rate <= VideoCut::kMostFramesPerSecond;
}

// "3.2-7.5", "3.2-", "-7.5", "3.2" or nothing.
bool ParseTimes(std::string_view text, VideoCut* cut) {
    const auto end = TakeLast(&text, '-');
    if (!text.empty() && !ParsePlainReal(text, &cut->start)) return false;
    if (end && !end->empty()) {
        double seconds = 0;
        if (!ParsePlainReal(*end, &seconds)) return false;
        cut->end = seconds;
    }
    return cut->start <= kLatestSecond && (!cut->end || *cut->end > cut->start);
}

// In thousandths, without zeros at the end.
std::string NumberText(double number) {
    const auto thousandths = static_cast<long long>(std::llround(number * kThousandths));
    std::string text = Format("%lld.%03lld", thousandths / 1000, thousandths % 1000);
    while (text.ends_with('0'))
        text.pop_back();
    if (text.ends_with('.')) text.pop_back();
    return text;
}

std::string SideText(int32 side) {
    return side > 0 ? std::to_string(side) : "";
}

int32 InProportion(int64 side, int64 to, int64 from) {
    const double exact =
        static_cast<double>(side) * static_cast<double>(to) / static_cast<double>(from);
    return static_cast<int32>(std::clamp<double>(std::round(exact), 1, kLargestCutSide));
}

VideoArea AreaOf(const VideoProperties& video, const VideoCut& cut) {
    return cut.area.value_or(
        VideoArea{0, 0, static_cast<int32>(video.width), static_cast<int32>(video.height)});
}

void TakeRate(const VideoProperties& video, const VideoCut& cut, VideoFrames* frames) {
    frames->rate_numerator = video.rate_numerator;
    frames->rate_denominator = video.rate_denominator;
    const double own =
        static_cast<double>(video.rate_numerator) / static_cast<double>(video.rate_denominator);
    if (!cut.rate && own <= VideoCut::kMostFramesPerSecond) return;
    const double rate = cut.rate.value_or(VideoCut::kMostFramesPerSecond);
    frames->rate_numerator = std::max<int64>(std::llround(rate * kThousandths), 1);
    frames->rate_denominator = static_cast<int64>(kThousandths);
}

int32 CountOf(double seconds, const VideoFrames& frames) {
    const double count = std::round(seconds * static_cast<double>(frames.rate_numerator) /
                                    static_cast<double>(frames.rate_denominator));
    return static_cast<int32>(std::clamp<double>(count, 0, std::numeric_limits<int32>::max()));
}

}  // namespace

std::string VideoCut::Text() const {
    std::string text;
    if (start > 0 || end) text = NumberText(start) + '-';
    if (end) text += NumberText(*end);
    if (rate) text += '@' + NumberText(*rate);
    if (width > 0 || height > 0) text += ':' + SideText(width) + 'x' + SideText(height);
    if (area) {
        text += kCropName;
        text += Format("%dx%d+%d+%d", area->width, area->height, area->left, area->top);
    }
    return text;
}

std::optional<VideoCut> ParseVideoCut(std::string_view text) {
    VideoCut cut;
    const size_t crop = text.find(kCropName);
    if (crop != std::string_view::npos) {
        if (!ParseArea(text.substr(crop + kCropName.size()), &cut)) return std::nullopt;
        text = text.substr(0, crop);
    }
    const auto size = TakeLast(&text, ':');
    if (size && !ParseFrameSize(*size, &cut)) return std::nullopt;
    const auto rate = TakeLast(&text, '@');
    if (rate && !ParseRate(*rate, &cut)) return std::nullopt;
    if (!ParseTimes(text, &cut)) return std::nullopt;
    return cut;
}

uint64 VideoFrames::Bytes() const {
    return uint64{4} * static_cast<uint64>(width) * static_cast<uint64>(height) *
           static_cast<uint64>(count);
}

std::optional<VideoFrames> FramesOf(const VideoProperties& video, const VideoCut& cut) {
    const VideoArea area = AreaOf(video, cut);
    const bool on_pictures = int64{area.left} + area.width <= video.width &&
                             int64{area.top} + area.height <= video.height;
    if (!on_pictures || (video.seconds > 0 && cut.start >= video.seconds)) return std::nullopt;
    VideoFrames frames;
    frames.width = cut.width > 0    ? cut.width
                   : cut.height > 0 ? InProportion(area.width, cut.height, area.height)
                                    : area.width;
    frames.height = cut.height > 0  ? cut.height
                    : cut.width > 0 ? InProportion(area.height, cut.width, area.width)
                                    : area.height;
    TakeRate(video, cut, &frames);
    const double end = video.seconds > 0 ? std::min(video.seconds, cut.end.value_or(video.seconds))
                                         : cut.end.value_or(cut.start);
    frames.count = CountOf(end - cut.start, frames);
    return frames;
}

}  // namespace kirto
