#include "main/cli/caption.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "base/number.h"
#include "base/text.h"
#include "main/cli/picture_values.h"

namespace kirto {

namespace {

constexpr int32 kFarthest = 65535;  // places, and frames that fade

bool ReadNumber(const std::string& text, int32 first, int32 last, int32* number) {
    return ParseNumber(text, number) && *number >= first && *number <= last;
}

bool ReadNumber(const std::string& text, int32 first, int32 last, std::optional<int32>* number) {
    return ReadNumber(text, first, last, &number->emplace());
}

bool ReadColor(const std::string& text, uint32* color) {
    const std::optional<uint32> read = ParseColor(text);
    if (read) *color = *read;
    return read.has_value();
}

bool ReadOutline(std::string text, Caption& caption) {
    const std::optional<std::string> color = TakeBehind(&text, ':');
    return ReadNumber(text, 0, kWidestOutline, &caption.outline) &&
           (!color || ReadColor(*color, &caption.outline_color));
}

// What follows the text; the same names stand in the option's help.
struct CaptionItem {
    const char* name;
    const char* expected;
    bool (*read)(const std::string& text, Caption& caption);
};

constexpr CaptionItem kItems[] = {
    {"font", "a name",
     [](const std::string& text, Caption& caption) {
         caption.font = text;
         return !text.empty();
     }},
    {"size", "4 to 1000",
     [](const std::string& text, Caption& caption) {
         return ReadNumber(text, kSmallestCaption, kLargestCaption, &caption.size);
     }},
    {"color", "RRGGBB",
     [](const std::string& text, Caption& caption) { return ReadColor(text, &caption.color); }},
    {"outline", "0 to 50 and [:RRGGBB]",
     [](const std::string& text, Caption& caption) { return ReadOutline(text, caption); }},
    {"at", "an anchor such as top-left",
     [](const std::string& text, Caption& caption) {
         caption.anchor = PositionIn(kAnchorNames, text);
         return caption.anchor >= 0;
     }},
    {"x", "-65535 to 65535",
     [](const std::string& text, Caption& caption) {
         return ReadNumber(text, -kFarthest, kFarthest, &caption.x);
     }},
    {"y", "-65535 to 65535",
     [](const std::string& text, Caption& caption) {
         return ReadNumber(text, -kFarthest, kFarthest, &caption.y);
     }},
    {"fade-in", "0 to 65535",
     [](const std::string& text, Caption& caption) {
         return ReadNumber(text, 0, kFarthest, &caption.fade_in);
     }},
    {"fade-out", "0 to 65535",
     [](const std::string& text, Caption& caption) {
         return ReadNumber(text, 0, kFarthest, &caption.fade_out);
     }},
};

// Null for text that is no item.
const CaptionItem* ItemNamed(const std::string& name) {
    const auto* found =
        std::find_if(std::begin(kItems), std::end(kItems),
                     [&name](const CaptionItem& item) { return item.name == name; });
    return found == std::end(kItems) ? nullptr : found;
}

}  // namespace

std::optional<Caption> ParseCaption(const std::string& value, std::string* reason) {
    Caption caption;
    caption.text = value;
    std::set<std::string> names;
    for (;;) {
        const size_t comma = caption.text.rfind(',');
        if (comma == std::string::npos) break;
        const std::string whole = caption.text.substr(comma + 1);
        std::string name = whole;
        const std::optional<std::string> content = TakeBehind(&name, '=');
        const CaptionItem* item = content ? ItemNamed(name) : nullptr;
        if (!item) break;
        if (!names.insert(name).second || !item->read(*content, caption)) {
            *reason = Format("\"%s\": expected %s=%s, once.", whole.c_str(), name.c_str(),
                             item->expected);
            return std::nullopt;
        }
        caption.text.resize(comma);
    }
    if (!caption.text.empty()) return caption;
    *reason = "\"" + value + "\": expected TEXT[,NAME=VALUE...].";
    return std::nullopt;
}

}  // namespace kirto
