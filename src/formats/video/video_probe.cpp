#include "formats/video/video_probe.h"

#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>

namespace kirto {

namespace {

using ProbeJson = nlohmann::json;

constexpr int64 kLargestVideoSide = 65535;
// Parts of a rate beyond that are no rate.
constexpr int64 kLargestRatePart = int64{1} << 31;

const ProbeJson& Member(const ProbeJson& object, const char* name) {
    static const ProbeJson kNone;
    const auto member = object.is_object() ? object.find(name) : object.end();
    return object.is_object() && member != object.end() ? *member : kNone;
}

int64 WholeNumber(const ProbeJson& value) {
    return value.is_number_integer() ? value.get<int64>() : 0;
}

template <typename Number>
bool ParseNumber(std::string_view text, Number* number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *number);
    return error == std::errc() && end == text.data() + text.size();
}

// "30000/1001"
bool ParseRate(const ProbeJson& value, VideoProperties* video) {
    if (!value.is_string()) return false;
    const std::string text = value.get<std::string>();
    const size_t slash = text.find('/');
    int64 numerator = 0;
    int64 denominator = 0;
    if (slash == std::string::npos) return false;
    if (!ParseNumber(std::string_view(text).substr(0, slash), &numerator)) return false;
    if (!ParseNumber(std::string_view(text).substr(slash + 1), &denominator)) return false;
    const auto valid = [](int64 part) { return part > 0 && part < kLargestRatePart; };
    if (!valid(numerator) || !valid(denominator)) return false;
    video->rate_numerator = numerator;
    video->rate_denominator = denominator;
    return true;
}

// Whether it is shown on its side.
bool LiesOnItsSide(const ProbeJson& stream) {
    const ProbeJson& list = Member(stream, "side_data_list");
    if (!list.is_array()) return false;
    for (const ProbeJson& data : list) {
        if (WholeNumber(Member(data, "rotation")) % 180 != 0) return true;
    }
    return false;
}

double Seconds(const ProbeJson& format) {
    const ProbeJson& value = Member(format, "duration");
    double seconds = 0;
    if (!value.is_string() || !ParseNumber(value.get_ref<const std::string&>(), &seconds)) return 0;
    return std::isfinite(seconds) && seconds > 0 ? seconds : 0;
}

}  // namespace

std::optional<VideoProperties> ParseVideoProbe(std::string_view json) {
    const ProbeJson all = ProbeJson::parse(json, nullptr, false);
    const ProbeJson& streams = Member(all, "streams");
    if (!streams.is_array() || streams.empty()) return std::nullopt;
    const ProbeJson& stream = streams.front();
    VideoProperties video;
    video.width = WholeNumber(Member(stream, "width"));
    video.height = WholeNumber(Member(stream, "height"));
    const auto valid = [](int64 side) { return side >= 1 && side <= kLargestVideoSide; };
    if (!valid(video.width) || !valid(video.height)) return std::nullopt;
    if (LiesOnItsSide(stream)) std::swap(video.width, video.height);
    const bool rated = ParseRate(Member(stream, "avg_frame_rate"), &video) ||
                       ParseRate(Member(stream, "r_frame_rate"), &video);
    if (!rated) return std::nullopt;
    video.seconds = Seconds(Member(all, "format"));
    return video;
}

}  // namespace kirto
