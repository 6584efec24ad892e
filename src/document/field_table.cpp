#include "document/field_table.h"

#include <algorithm>

#include "base/core_text.h"
#include "document/command_codes.h"

namespace kirto {

namespace {

using Bound = Field::Bound;

constexpr Field kFields[] = {
    {kSetWidth, CoreText::Later("Width"), CoreText::Later("Change Width"), &Animation::width,
     Bound::kFromZero},
    {kSetHeight, CoreText::Later("Height"), CoreText::Later("Change Height"), &Animation::height,
     Bound::kFromZero},
    {kUsePause, CoreText::Later("Pause"), CoreText::Later("Change Pause"), &Animation::use_pause,
     Bound::kNone},
    {kSetPauseLength, CoreText::Later("Pause length"), CoreText::Later("Change Pause Length"),
     &Animation::pause_length, Bound::kFromZero},
    {kUseLoop, CoreText::Later("Loop"), CoreText::Later("Change Loop"), &Animation::use_loop,
     Bound::kNone},
    {kSetLoopCount, CoreText::Later("Loop count"), CoreText::Later("Change Loop Count"),
     &Animation::loop_count, Bound::kFromZero},
    {kSetBackgroundIndex, CoreText::Later("Background index"),
     CoreText::Later("Change Background Index"), &Palette::background_index, Bound::kPaletteIndex},
    {kUseTransparent, CoreText::Later("Transparent"), CoreText::Later("Change Transparency"),
     &Palette::use_transparent, Bound::kNone},
    {kSetTransparentIndex, CoreText::Later("Transparent index"),
     CoreText::Later("Change Transparent Index"), &Palette::transparent_index,
     Bound::kPaletteIndex},
    {kSetDither, CoreText::Later("Dither"), CoreText::Later("Change Dither"), &Palette::dither,
     Bound::kNone},
    {kFrameSetXOffset, CoreText::Later("XOffset"), CoreText::Later("Change X Offset"),
     &Frame::x_offset, Bound::kFromZero},
    {kFrameSetYOffset, CoreText::Later("YOffset"), CoreText::Later("Change Y Offset"),
     &Frame::y_offset, Bound::kFromZero},
    {kFrameUsePause, CoreText::Later("Pause"), CoreText::Later("Change Frame Pause"),
     &Frame::use_pause, Bound::kNone},
    {kFrameSetPauseLength, CoreText::Later("Pause length"),
     CoreText::Later("Change Frame Pause Length"), &Frame::pause_length, Bound::kFromZero},
    {kFrameUsePalette, CoreText::Later("Palette"), CoreText::Later("Change Local Palette"),
     &Frame::local_palette, Bound::kNone},
};

bool Find(const BMessage& command, int32* value) {
    return command.FindInt32("value", value) == B_OK;
}

bool Find(const BMessage& command, double* value) {
    return command.FindDouble("value", value) == B_OK;
}

bool Find(const BMessage& command, bool* value) {
    return command.FindBool("value", value) == B_OK;
}

template <typename Value>
Value ValueOf(const Animation& animation, Value Animation::*member) {
    return animation.*member;
}

template <typename Value>
Value ValueOf(const Animation& animation, Value Palette::*member) {
    return *animation.palette.*member;
}

template <typename Value>
Value ValueOf(const Animation& animation, Value Frame::*member) {
    const FramePointer frame = animation.CurrentFrame();
    return frame ? *frame.*member : Value{};
}

template <typename Value, typename Owner>
bool IsMixed(const Animation& animation, Value Owner::*member) {
    if constexpr (std::is_same_v<Owner, Frame>) {
        for (const FrameSet::Range range : animation.several.Ranges()) {
            for (int32 i = range.first; i <= range.last; ++i) {
                if (*animation.frames.At(i).*member != *animation.CurrentFrame().*member)
                    return true;
            }
        }
    }
    return false;
}

template <typename Value>
bool SetMember(Animation& animation, Value Animation::*member, const Value& value) {
    animation.*member = value;
    return true;
}

template <typename Value>
bool SetMember(Animation& animation, Value Palette::*member, const Value& value) {
    EditPalette(animation, [&](Palette& palette) { palette.*member = value; });
    return true;
}

template <typename Value>
bool SetMember(Animation& animation, Value Frame::*member, const Value& value) {
    if (!animation.CurrentFrame()) return false;
    EditSelectedFrames(animation, [&](Frame& frame) { frame.*member = value; });
    return true;
}

template <typename Value, typename Owner>
bool TakeMember(Animation& animation, Value Owner::*member, const BMessage& command) {
    Value value{};
    return Find(command, &value) && SetMember(animation, member, value);
}

}  // namespace

bool Field::IsReal() const {
    return std::holds_alternative<double Animation::*>(member) ||
           std::holds_alternative<double Frame::*>(member);
}

bool Field::IsOfFrame() const {
    return std::holds_alternative<int32 Frame::*>(member) ||
           std::holds_alternative<bool Frame::*>(member) ||
           std::holds_alternative<double Frame::*>(member);
}

int32 Field::Largest(const Animation& animation) const {
    return bound == Bound::kPaletteIndex ? (1 << animation.palette->bits) - 1 : -1;
}

Field::Value Field::In(const Animation& animation) const {
    return std::visit([&](auto place) -> Value { return ValueOf(animation, place); }, member);
}

bool Field::IsMixedIn(const Animation& animation) const {
    return std::visit([&](auto place) { return IsMixed(animation, place); }, member);
}

bool Field::Set(Animation& animation, const BMessage& command) const {
    return std::visit([&](auto place) { return TakeMember(animation, place, command); }, member);
}

const Field* FieldOf(uint32 code) {
    const auto* found = std::find_if(std::begin(kFields), std::end(kFields),
                                     [code](const Field& field) { return field.code == code; });
    return found == std::end(kFields) ? nullptr : found;
}

}  // namespace kirto
