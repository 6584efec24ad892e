// The operations that edit the pictures of frames.
#include <filesystem>
#include <utility>

#include "base/number.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "main/cli/cli_session.h"
#include "main/cli/picture_values.h"

namespace kirto {

namespace {

constexpr const char* kFilters = "nearest bilinear lanczos";

void AddSize(const CanvasSize& size, BMessage* message) {
    message->AddInt32("width", size.width);
    message->AddInt32("height", size.height);
}

// "WxH+X+Y"; X and Y may be negative: "+-3" or "-3".
bool ParseRectangle(const std::string& text, BMessage* message) {
    const size_t first = text.find_first_of("+-");
    if (first == std::string::npos) return false;
    const size_t second = text.find_first_of("+-", text.find_first_not_of("+-", first));
    if (second == std::string::npos) return false;
    const auto number = [](std::string_view part, int32* value) {
        if (part.starts_with('+')) part.remove_prefix(1);
        return ParseNumber(part, value);
    };
    const auto size = ParseSize(text.substr(0, first));
    int32 left = 0;
    int32 top = 0;
    if (!size || !number(text.substr(first, second - first), &left) ||
        !number(text.substr(second), &top)) {
        return false;
    }
    AddSize(*size, message);
    message->AddInt32("left", left);
    message->AddInt32("top", top);
    return true;
}

// "brightness=10,contrast=-20" with the names that there are, each once at most.
bool ParseAdjustments(std::string text, BMessage* message) {
    for (bool more = true; more;) {
        const std::optional<std::string> rest = TakeBehind(&text, ',');
        const std::optional<std::string> value = TakeBehind(&text, '=');
        int32 percent = 0;
        if (!value || PositionIn("brightness contrast saturation", text) < 0 ||
            !ParseNumber(*value, &percent) || percent < -100 || percent > 100 ||
            message->HasField(text)) {
            return false;
        }
        message->AddInt32(text, percent);
        more = rest.has_value();
        text = rest.value_or("");
    }
    return true;
}

// Where an overlay is drawn: takes "@X,Y[:N%]" off the value, where it ends so.
void TakeOverlayPlace(std::string* value, BMessage* message) {
    int32 x = 0;
    int32 y = 0;
    int32 percent = 100;
    std::error_code error;
    const size_t at = value->rfind('@');
    if (at != std::string::npos && !std::filesystem::exists(*value, error)) {
        std::string place = value->substr(at + 1);
        const std::optional<std::string> opacity = TakeBehind(&place, ':');
        const std::optional<std::string> second = TakeBehind(&place, ',');
        const std::optional<int32> wanted = opacity ? ParsePercent(*opacity) : percent;
        if (second && wanted && ParseNumber(place, &x) && ParseNumber(*second, &y)) {
            percent = *wanted;
            value->resize(at);
        }
    }
    message->AddInt32("x", x);
    message->AddInt32("y", y);
    message->AddInt32("percent", percent);
}

}  // namespace

CliSession::Outcome CliSession::CheckCanvas() {
    const auto animation = app_->Current();
    if (animation->width > 0 && animation->height > 0) return Outcome::kDone;
    return Fail("The animation's width or height is 0.");
}

CliSession::Outcome CliSession::Resize(const std::string& value) {
    if (CheckCanvas() != Outcome::kDone) return Outcome::kFailed;
    std::string text = value;
    const int32 filter = PositionIn(kFilters, TakeBehind(&text, ':').value_or("lanczos"));
    const auto animation = app_->Current();
    const auto size = ParseNewSize(text, {animation->width, animation->height});
    if (!size || filter < 0) {
        return Refuse("--resize: \"" + value + "\": expected WxH, Wx, xH or N%, and [:FILTER].");
    }
    BMessage message(kResizeAnimation);
    AddSize(*size, &message);
    message.AddInt32("filter", filter);
    return Post(message);
}

CliSession::Outcome CliSession::Crop(const std::string& value) {
    if (CheckCanvas() != Outcome::kDone) return Outcome::kFailed;
    BMessage message(kCropAnimation);
    const int32 trim = PositionIn("transparent changes", value);
    if (trim >= 0) {
        message.AddInt32("trim", trim);
    } else if (!ParseRectangle(value, &message)) {
        return Refuse("--crop: \"" + value + "\": expected WxH+X+Y, transparent or changes.");
    }
    return Post(message);
}

CliSession::Outcome CliSession::SetCanvas(const std::string& value) {
    if (CheckCanvas() != Outcome::kDone) return Outcome::kFailed;
    std::string text = value;
    const int32 anchor = PositionIn(kAnchorNames, TakeBehind(&text, ':').value_or("center"));
    const auto size = ParseSize(text);
    if (!size || anchor < 0) {
        return Refuse("--canvas: \"" + value + "\": expected WxH[:ANCHOR].");
    }
    BMessage message(kSetCanvasSize);
    AddSize(*size, &message);
    message.AddInt32("anchor", anchor);
    return Post(message);
}

CliSession::Outcome CliSession::Rotate(const std::string& value) {
    const int32 quarters = PositionIn("90 180 270", value) + 1;
    if (quarters == 0) return Refuse("--rotate: \"" + value + "\": expected 90, 180 or 270.");
    if (CheckCanvas() != Outcome::kDone) return Outcome::kFailed;
    BMessage message(kRotateAnimation);
    message.AddInt32("quarters", quarters);
    return Post(message);
}

CliSession::Outcome CliSession::Flip(const std::string& value) {
    if (value != "h" && value != "v") {
        return Refuse("--flip: \"" + value + "\": expected h or v.");
    }
    if (CheckCanvas() != Outcome::kDone) return Outcome::kFailed;
    BMessage message(kFlipAnimation);
    message.AddBool("across", value == "h");
    return Post(message);
}

CliSession::Outcome CliSession::PostPictureEdit(const BMessage& message) {
    if (CheckCurrentFrame() != Outcome::kDone || CheckCanvas() != Outcome::kDone)
        return Outcome::kFailed;
    return Post(message);
}

CliSession::Outcome CliSession::FitFrames(const std::string& value) {
    const int32 fit = PositionIn("scale pad crop", value);
    if (fit < 0) {
        return Refuse("--fit: \"" + value +
                      "\": expected scale, pad or crop, or a size such as 500KB.");
    }
    BMessage message(kFitFrames);
    message.AddInt32("fit", fit);
    message.AddInt32("filter", PositionIn(kFilters, "lanczos"));
    return PostPictureEdit(message);
}

CliSession::Outcome CliSession::AdjustColors(const std::string& value) {
    BMessage message(kAdjustColors);
    if (!ParseAdjustments(value, &message)) {
        return Refuse("--adjust: \"" + value +
                      "\": expected brightness=N, contrast=N and saturation=N, -100 to 100, with "
                      "commas between them.");
    }
    return PostPictureEdit(message);
}

CliSession::Outcome CliSession::MakeGreyscale(const std::string&) {
    BMessage message(kAdjustColors);
    message.AddBool("greyscale", true);
    return PostPictureEdit(message);
}

CliSession::Outcome CliSession::SetOpacity(const std::string& value) {
    const auto percent = ParsePercent(value);
    if (!percent) return Refuse("--opacity: \"" + value + "\": expected 0% to 100%.");
    BMessage message(kSetOpacity);
    message.AddInt32("percent", *percent);
    return PostPictureEdit(message);
}

CliSession::Outcome CliSession::Overlay(const std::string& value) {
    BMessage message(kOverlayImage);
    std::string path = value;
    TakeOverlayPlace(&path, &message);
    desktop_.SetSubject(path);
    message.AddRef("refs", AbsoluteRef(path));
    return PostPictureEdit(message);
}

CliSession::Outcome CliSession::DrawText(const std::string& value) {
    std::string reason;
    std::optional<Caption> caption = ParseCaption(value, &reason);
    if (!caption) return Refuse("--text: " + reason);
    if (CheckCurrentFrame() != Outcome::kDone || CheckCanvas() != Outcome::kDone)
        return Outcome::kFailed;
    const auto animation = app_->Current();
    if (!caption->size) caption->size = UsualCaptionSize(*animation);
    const CaptionPicture picture = draw_caption_(*caption);
    if (picture.png.empty())
        return Fail("--text: the text shows nothing, or is larger than 8192 pixels.");
    const CaptionPlace place =
        PlaceCaption(*animation, picture.width, picture.height, caption->anchor);
    BMessage message(kDrawText);
    message.AddData("image", B_RAW_TYPE, picture.png.data(), picture.png.size());
    message.AddInt32("x", caption->x.value_or(place.x));
    message.AddInt32("y", caption->y.value_or(place.y));
    message.AddInt32("fade_in", caption->fade_in);
    message.AddInt32("fade_out", caption->fade_out);
    return Post(message);
}

CliSession::Outcome CliSession::MakeTransparent(const std::string& value) {
    std::string text = value;
    const std::string tolerance_text = TakeBehind(&text, ':').value_or("0");
    const auto color = ParseColor(text);
    int32 tolerance = 0;
    if (!color || !ParseNumber(tolerance_text, &tolerance) || tolerance < 0 || tolerance > 255) {
        return Refuse("--make-transparent: \"" + value +
                      "\": expected RRGGBB[:TOLERANCE], the tolerance 0 to 255.");
    }
    BMessage message(kMakeTransparent);
    message.AddInt32("color", static_cast<int32>(*color << 8));
    message.AddInt32("tolerance", tolerance);
    return PostPictureEdit(message);
}

}  // namespace kirto
