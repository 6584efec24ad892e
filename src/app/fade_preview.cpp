#include "app/fade_preview.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "document/animation_document.h"
#include "document/command_codes.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

// One pixel of so many, across and down. Null where the frame has no pixels or memory is short.
FramePointer Thinned(const FramePointer& frame, int32 step) {
    if (!frame || !frame->bitmap || !frame->bitmap->HasRows()) return nullptr;
    const Picture& picture = *frame->bitmap;
    const int32 width = (picture.Width() + step - 1) / step;
    const int32 height = (picture.Height() + step - 1) / step;
    PictureBuilder builder(width, height, picture.ColorSpace(), nullptr);
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    for (int32 y = 0; y < picture.Height(); y += step) {
        picture.ReadRow(y, row.data());
        for (int32 x = 0; x < width; ++x)
            std::memmove(row.data() + static_cast<size_t>(x) * 4,
                         row.data() + static_cast<size_t>(x) * static_cast<size_t>(step) * 4, 4);
        if (!builder.AddRow(row.data())) return nullptr;
    }
    auto small = std::make_shared<Frame>(frame->name, width, height);
    small->bitmap = builder.Take();
    return small->bitmap ? small : nullptr;
}

// The current frame with the neighbor that the fade needs.
Animation SmallFrames(const Animation& animation, FadeMode mode, int32 side) {
    Animation small;
    const FramePointer current = animation.CurrentFrame();
    if (!current || !current->bitmap) return small;
    const int32 longer = std::max(current->bitmap->Width(), current->bitmap->Height());
    const int32 step = std::max((longer + side - 1) / side, 1);
    const auto add = [&](int32 position) {
        if (const FramePointer frame = Thinned(animation.frames.At(position), step))
            InsertFrame(small, small.frames.Size(), frame);
    };
    if (mode == FadeMode::kFromPrevious) add(animation.selected - 1);
    const int32 place = small.frames.Size();
    add(animation.selected);
    if (small.frames.Size() > place) small.selected = place;
    if (mode == FadeMode::kToNext) add(animation.selected + 1);
    return small;
}

}  // namespace

FadeMode FadeModeOf(uint32 command) {
    switch (command) {
        case kFadeToColor:
            return FadeMode::kToColor;
        case kFadeFromColor:
            return FadeMode::kFromColor;
        case kFadeToNext:
            return FadeMode::kToNext;
        default:
            return FadeMode::kFromPrevious;
    }
}

std::vector<std::shared_ptr<const Picture>> FadePreview(const Animation& animation, uint32 command,
                                                        int32 count, uint32 color, int32 side) {
    try {
        const FadeMode mode = FadeModeOf(command);
        Prefs settings{Prefs::BuiltIn{}};
        AnimationDocument document(settings);
        document.Commit(SmallFrames(animation, mode, side));
        const bool two = mode == FadeMode::kToNext || mode == FadeMode::kFromPrevious;
        if (document.FrameCount() != (two ? 2 : 1)) return {};
        int32 name = 0;
        const rgb_color target{static_cast<uint8>(color >> 24), static_cast<uint8>(color >> 16),
                               static_cast<uint8>(color >> 8), 255};
        if (!Fade(document, mode, count, target, &name)) return {};
        std::vector<std::shared_ptr<const Picture>> pictures;
        for (const FramePointer& frame : document.Current()->frames)
            pictures.push_back(frame->bitmap);
        return pictures;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

}  // namespace kirto
