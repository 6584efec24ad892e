#include "formats/sheet/sheet_description.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace kirto {

namespace {

// Keeps the order of members, for writing. Finding one takes longer the more there are, so texts of
// others are read into the other kind.
using WrittenJson = nlohmann::ordered_json;
using Json = nlohmann::json;

constexpr double kLongestDuration = std::numeric_limits<int32>::max();  // milliseconds, 24 days

WrittenJson RectJson(int32 x, int32 y, int32 width, int32 height) {
    return {{"x", x}, {"y", y}, {"w", width}, {"h", height}};
}

WrittenJson SizeJson(int32 width, int32 height) {
    return {{"w", width}, {"h", height}};
}

WrittenJson FrameJson(const SheetFrame& frame) {
    const bool trimmed = frame.width != frame.whole_width || frame.height != frame.whole_height;
    WrittenJson json = {
        {"filename", frame.name},
        {"frame", RectJson(frame.left, frame.top, frame.width, frame.height)},
        {"rotated", false},
        {"trimmed", trimmed},
        {"spriteSourceSize", RectJson(frame.x_offset, frame.y_offset, frame.width, frame.height)},
        {"sourceSize", SizeJson(frame.whole_width, frame.whole_height)}};
    if (frame.milliseconds) {
        json["duration"] = std::llround(std::min(*frame.milliseconds, kLongestDuration));
    }
    return json;
}

// The member of an object; null where there is none.
const Json* MemberOf(const Json& object, const char* name) {
    if (!object.is_object()) return nullptr;
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

// The member's number where it is a whole one from first on that an int32 holds.
bool TakeNumber(const Json& object, const char* name, int32 first, int32* number) {
    const Json* member = MemberOf(object, name);
    if (!member || !member->is_number()) return false;
    const double value = member->get<double>();
    if (!(value >= first && value <= std::numeric_limits<int32>::max())) return false;
    *number = static_cast<int32>(value);
    return static_cast<double>(*number) == value;
}

bool TakeSize(const Json& object, int32* width, int32* height) {
    return TakeNumber(object, "w", 1, width) && TakeNumber(object, "h", 1, height);
}

// How the frame lies in the whole one; without a word it is all of it.
bool TakeWhole(const Json& json, SheetFrame* frame) {
    frame->whole_width = frame->width;
    frame->whole_height = frame->height;
    if (const Json* place = MemberOf(json, "spriteSourceSize")) {
        if (!TakeNumber(*place, "x", 0, &frame->x_offset) ||
            !TakeNumber(*place, "y", 0, &frame->y_offset)) {
            return false;
        }
    }
    const Json* whole = MemberOf(json, "sourceSize");
    return !whole || TakeSize(*whole, &frame->whole_width, &frame->whole_height);
}

bool TakeDuration(const Json& json, SheetFrame* frame) {
    const Json* duration = MemberOf(json, "duration");
    if (!duration) return true;
    if (!duration->is_number()) return false;
    const double milliseconds = duration->get<double>();
    if (!(milliseconds >= 0 && milliseconds <= kLongestDuration)) return false;
    frame->milliseconds = milliseconds;
    return true;
}

bool TakeFrame(const Json& json, SheetDescription* description) {
    SheetFrame frame;
    if (const Json* text = MemberOf(json, "filename"); text && text->is_string())
        frame.name = text->get<std::string>();
    const Json* turned = MemberOf(json, "rotated");
    if (turned && *turned != false) return false;
    const Json* rect = MemberOf(json, "frame");
    if (!rect || !TakeNumber(*rect, "x", 0, &frame.left) || !TakeNumber(*rect, "y", 0, &frame.top))
        return false;
    if (!TakeSize(*rect, &frame.width, &frame.height)) return false;
    if (!TakeWhole(json, &frame) || !TakeDuration(json, &frame)) return false;
    description->frames.push_back(std::move(frame));
    return true;
}

}  // namespace

std::string SheetDescriptionText(const SheetDescription& description) {
    WrittenJson frames = WrittenJson::array();
    for (const SheetFrame& frame : description.frames)
        frames.push_back(FrameJson(frame));
    const WrittenJson json = {{"frames", frames},
                              {"meta",
                               {{"image", description.image},
                                {"format", "RGBA8888"},
                                {"size", SizeJson(description.width, description.height)},
                                {"scale", "1"}}}};
    return json.dump(2, ' ', false, WrittenJson::error_handler_t::replace) + "\n";
}

std::optional<SheetDescription> ReadSheetDescription(std::string_view text) {
    const Json json = Json::parse(text, nullptr, false);
    const Json* frames = MemberOf(json, "frames");
    if (!frames || !frames->is_array()) return std::nullopt;
    SheetDescription description;
    if (const Json* meta = MemberOf(json, "meta")) {
        const Json* image = MemberOf(*meta, "image");
        if (image && image->is_string()) description.image = image->get<std::string>();
    }
    for (const Json& frame : *frames) {
        if (!TakeFrame(frame, &description)) return std::nullopt;
    }
    return description;
}

}  // namespace kirto
