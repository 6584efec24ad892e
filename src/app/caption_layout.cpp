#include "app/caption_layout.h"

#include <algorithm>

namespace kirto {

namespace {

// third: 0 at the start of the side, 1 in its middle, 2 at its end.
int32 StartOnSide(int32 side, int32 length, int32 third, int32 room) {
    if (third == 0) return room;
    if (third == 1) return (side - length) / 2;
    return side - length - room;
}

}  // namespace

int32 UsualCaptionSize(const Animation& animation) {
    return std::clamp(animation.height / 8, 10, 200);
}

CaptionPlace PlaceCaption(const Animation& animation, int32 width, int32 height, int32 anchor) {
    const int32 room = animation.height / 20;
    return {StartOnSide(animation.width, width, anchor % 3, room),
            StartOnSide(animation.height, height, anchor / 3, room)};
}

}  // namespace kirto
