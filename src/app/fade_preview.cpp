#include "app/fade_preview.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "base/work.h"
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
    small->use_pause = frame->use_pause;
    small->pause_length = frame->pause_length;
    small->bitmap = builder.Take();
    return small->bitmap ? small : nullptr;
}

// How many pixels of the current frame stand for one.
int32 StepOf(const FramePointer& current, int32 side) {
    if (!current || !current->bitmap) return 1;
    const int32 longer = std::max(current->bitmap->Width(), current->bitmap->Height());
    return std::max((longer + side - 1) / side, 1);
}

rgb_color FadeColorOf(uint32 color) {
    return {static_cast<uint8>(color >> 24), static_cast<uint8>(color >> 16),
            static_cast<uint8>(color >> 8), 255};
}

// The frames and what they are faded to or from.
bool AddFade(Animation& made, const FadePlan& plan, int32 count, const std::atomic<bool>& stop) {
    const auto add = [&made](FramePointer frame) {
        InsertFrame(made, made.frames.Size(), std::move(frame));
    };
    const Work work;
    if (plan.mode == FadeMode::kFromPrevious) add(plan.other);
    if (plan.mode == FadeMode::kToColor || plan.mode == FadeMode::kToNext) add(plan.current);
    for (int32 i = 0; i < count; ++i) {
        auto frame = std::make_shared<Frame>("", plan.current->width, plan.current->height);
        frame->bitmap = stop ? nullptr : FadePicture(plan, i, count, nullptr, work);
        if (!frame->bitmap) return false;
        add(std::move(frame));
    }
    if (plan.mode == FadeMode::kFromColor || plan.mode == FadeMode::kFromPrevious)
        add(plan.current);
    if (plan.mode == FadeMode::kToNext) add(plan.other);
    return true;
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

Animation FadePreview(const Animation& animation, const FadeChoice& choice, int32 side,
                      const std::atomic<bool>& stop) {
    try {
        const FadeMode mode = FadeModeOf(choice.command);
        const int32 step = StepOf(animation.CurrentFrame(), side);
        FadePlan plan{mode, FadeColorOf(choice.color), Thinned(animation.CurrentFrame(), step),
                      nullptr};
        if (!plan.current) return {};
        if (mode == FadeMode::kToNext || mode == FadeMode::kFromPrevious) {
            const int32 neighbor = animation.selected + (mode == FadeMode::kToNext ? 1 : -1);
            plan.other = Thinned(animation.frames.At(neighbor), step);
            if (!plan.other) return {};
        }
        Animation made;
        made.use_pause = animation.use_pause;
        made.pause_length = animation.pause_length;
        return AddFade(made, plan, choice.count, stop) ? made : Animation();
    } catch (const std::bad_alloc&) {
        return {};
    }
}

}  // namespace kirto
