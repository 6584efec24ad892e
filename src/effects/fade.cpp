#include "effects/fade.h"

#include <algorithm>
#include <memory>

#include "base/text.h"
#include "effects/fade_kernels.h"
#include "kit/alert.h"

namespace kirto {

namespace {

constexpr int32 kNamesPerFade = 100;

bool IsBlendable(const FramePointer& frame) {
    return frame && frame->bitmap && frame->bitmap->Bits() && Is32Bit(frame->bitmap->ColorSpace());
}

// Blends a row as far as both pictures reach; beyond the other one the current pixels stay.
void BlendRow(const BBitmap& current, const BBitmap& other, BBitmap* target, int32 y, float f) {
    const color_space space = current.ColorSpace();
    const int32 width = target->Width();
    const int32 common = y < other.Height() ? std::min(width, other.Width()) : 0;
    const size_t rest = static_cast<size_t>(common) * 4;
    if (common > 0) {
        FadeToFrame(current.Row(y), space, other.Row(y), other.ColorSpace(), target->Row(y), common,
                    1, f);
    }
    FadeToFrame(current.Row(y) + rest, space, current.Row(y) + rest, space, target->Row(y) + rest,
                width - common, 1, 1.0f);
}

// What a fade is made of.
struct FadePlan {
    FadeMode mode;
    rgb_color color;
    FramePointer current;
    FramePointer other;  // the neighbour; null for fades of a colour
};

// A picture of the fade, or null when memory is short. Not complete when the work was stopped.
std::shared_ptr<const BBitmap> MakePicture(const FadePlan& plan, float f,
                                           std::shared_ptr<PixelBudget> budget, const Work& work) {
    const BBitmap& current = *plan.current->bitmap;
    auto picture = std::make_shared<BBitmap>(BRect::OfSize(current.Width(), current.Height()),
                                             B_RGB32, std::move(budget));
    if (picture->InitCheck() != B_OK) return nullptr;
    for (int32 y = 0; y < picture->Height() && !work.StopRequested(); ++y) {
        if (plan.other) {
            BlendRow(current, *plan.other->bitmap, picture.get(), y, f);
        } else {
            FadeToRGB(current.Row(y), current.ColorSpace(), picture->Row(y), current.Width(), 1, f,
                      plan.mode == FadeMode::kToColor, plan.color);
        }
    }
    return picture;
}

}  // namespace

float FadeFactor(FadeMode mode, int32 i, int32 count) {
    const double step = i;
    const double steps = count;
    switch (mode) {
        case FadeMode::kToColor:
            return static_cast<float>((step + 1) / steps);
        case FadeMode::kFromColor:
            return static_cast<float>(step / steps);
        case FadeMode::kToNext:
            return static_cast<float>(1 - (step + 1) / (steps + 1));
        case FadeMode::kFromPrevious:
            break;
    }
    return static_cast<float>((step + 1) / (steps + 1));
}

bool Fade(AnimationDocument& document, FadeMode mode, int32 count, rgb_color color,
          int32* name_base) {
    const auto before = document.Current();
    FadePlan plan{mode, color, before->CurrentFrame(), nullptr};
    if (!IsBlendable(plan.current)) return true;
    const bool between = mode == FadeMode::kToNext || mode == FadeMode::kFromPrevious;
    const bool after = mode == FadeMode::kToColor || mode == FadeMode::kToNext;
    if (between) {
        plan.other = before->frames.At(before->selected + (after ? 1 : -1));
        if (!IsBlendable(plan.other)) return true;
    }
    const int32 first = before->selected + (after ? 1 : 0);
    int32 position = first;
    for (int32 i = 0; i < count && !document.StopRequested(); ++i) {
        Frame frame(Format("fade%04d", *name_base + i), plan.current->bitmap->Width(),
                    plan.current->bitmap->Height());
        const std::shared_ptr<Palette> palette = SharePalette();
        if (palette) {
            document.PostStatus(Format("Status: generating frame %d of %d...", i + 1, count));
            document.work.Report(i, count);
            frame.bitmap =
                MakePicture(plan, FadeFactor(mode, i, count), document.pixel_budget, document.work);
        }
        if (!frame.bitmap) {
            WarnOutOfMemory();
            return true;
        }
        palette->Set(frame.bitmap.get(), &document.work);
        if (document.StopRequested()) break;
        frame.palette = palette;
        document.InsertFrame(position++, std::move(frame));
    }
    const bool complete = position - first >= count;
    if (complete || position > first) {
        document.SetModified(true);
        *name_base += kNamesPerFade;
    }
    return complete;
}

}  // namespace kirto
