#include "effects/fade.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "base/text.h"
#include "effects/fade_kernels.h"
#include "kit/alert.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

constexpr int32 kNamesPerFade = 100;

bool IsBlendable(const FramePointer& frame) {
    return frame && frame->bitmap && frame->bitmap->HasRows();
}

// What a fade is made of.
struct FadePlan {
    FadeMode mode;
    rgb_color color;
    FramePointer current;
    FramePointer other;  // the neighbour; null for fades of a colour
};

// Blends the rows of a plan's pictures.
class RowBlender {
  public:
    RowBlender(const FadePlan& plan, float f)
        : plan_(plan),
          f_(f),
          current_(*plan.current->bitmap),
          row_(Bytes(current_)),
          other_row_(plan.other ? Bytes(*plan.other->bitmap) : 0),
          target_(Bytes(current_)) {}

    // Row y in the order blue, green, red, alpha; there until the next one is asked for.
    const uint8* Row(int32 y) {
        current_.ReadRow(y, row_.data());
        if (plan_.other) {
            BlendWithOther(y);
        } else {
            FadeToRGB(row_.data(), current_.ColorSpace(), target_.data(), current_.Width(), 1, f_,
                      plan_.mode == FadeMode::kToColor, plan_.color);
        }
        return target_.data();
    }

  private:
    static size_t Bytes(const Picture& picture) { return static_cast<size_t>(picture.Width()) * 4; }

    // As far as both pictures reach; beyond the other one the current pixels stay.
    void BlendWithOther(int32 y) {
        const Picture& other = *plan_.other->bitmap;
        const color_space space = current_.ColorSpace();
        const int32 common = y < other.Height() ? std::min(current_.Width(), other.Width()) : 0;
        const size_t rest = static_cast<size_t>(common) * 4;
        if (common > 0) {
            other.ReadRow(y, other_row_.data());
            FadeToFrame(row_.data(), space, other_row_.data(), other.ColorSpace(), target_.data(),
                        common, 1, f_);
        }
        FadeToFrame(row_.data() + rest, space, row_.data() + rest, space, target_.data() + rest,
                    current_.Width() - common, 1, 1.0f);
    }

    const FadePlan& plan_;
    const float f_;
    const Picture& current_;
    std::vector<uint8> row_;
    std::vector<uint8> other_row_;
    std::vector<uint8> target_;
};

// A picture of the fade, or null when memory is short or the work was stopped.
std::shared_ptr<const Picture> MakePicture(const FadePlan& plan, float f,
                                           std::shared_ptr<PixelBudget> budget, const Work& work) {
    const Picture& current = *plan.current->bitmap;
    RowBlender blender(plan, f);
    PictureBuilder builder(current.Width(), current.Height(), B_RGB32, std::move(budget));
    for (int32 y = 0; y < current.Height(); ++y) {
        if (work.StopRequested() || !builder.AddRow(blender.Row(y))) return nullptr;
    }
    return builder.Take();
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
        if (document.StopRequested()) break;
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
