// The fields of an animation that users edit: command, name, location and allowed values of each.
// The application sets fields by this table; panels and the command line use it to check and name
// them.
#pragma once

#include <variant>

#include "animation/animation.h"
#include "base/types.h"
#include "kit/message.h"

namespace kirto {

struct Field {
    // Animation: the animation's; Palette: the global palette's; Frame: the selected frames'.
    using Member =
        std::variant<int32 Animation::*, bool Animation::*, double Animation::*, int32 Palette::*,
                     bool Palette::*, int32 Frame::*, bool Frame::*, double Frame::*>;
    using Value = std::variant<int32, bool, double>;
    enum class Bound { kNone, kFromZero, kPaletteIndex };

    uint32 code;       // the command that sets it, with a "value" of the member's type
    const char* name;  // as shown in alerts
    const char* step;  // name of a change in the "Edit" menu
    Member member;
    Bound bound;  // of numbers: at least 0, or an index of the global palette

    bool IsReal() const;     // holds a double
    bool IsOfFrame() const;  // a member of frames
    // The largest number allowed, or -1 where there is none.
    int32 Largest(const Animation& animation) const;
    // Of frames: the current one's; 0 or false when there is none.
    Value In(const Animation& animation) const;
    // Whether the selected frames have different values.
    bool IsMixedIn(const Animation& animation) const;
    // Sets the field to the value in the command, of frames that of all selected ones. Changes
    // nothing and returns false when the command has no value, or when there is no current frame
    // for it.
    bool Set(Animation& animation, const BMessage& command) const;
};

// The field that the command sets, or null.
const Field* FieldOf(uint32 code);

}  // namespace kirto
