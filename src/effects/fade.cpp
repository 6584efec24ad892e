#include "effects/fade.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "base/core_text.h"
#include "base/text.h"
#include "effects/fade_kernels.h"
#include "effects/make_pictures.h"
#include "kit/alert.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

constexpr int32 kNamesPerFade = 100;

bool IsBlendable(const FramePointer& frame) {
    return frame && frame->bitmap && frame->bitmap->HasRows();
}

// The current frame's part of a picture of the fade.
FadeShare ShareOfCurrent(FadeMode mode, float f) {
    return FadeShare(mode == FadeMode::kToColor ? 1 - static_cast<double>(f)
                                                : static_cast<double>(f));
}

// Blends the rows of a plan's pictures.
class RowBlender {
  public:
    RowBlender(const FadePlan& plan, float f)
        : plan_(plan),
          share_(ShareOfCurrent(plan.mode, f)),
          current_(*plan.current->bitmap),
          row_(Bytes(current_)),
          other_row_(plan.other ? Bytes(*plan.other->bitmap) : 0),
          target_(Bytes(current_)) {}

    // Row y in the order blue, green, red, alpha; there until the next one is asked for.
    const uint8* Row(int32 y) {
        const uint8* row = PixelsOf(current_, y, row_);
        if (plan_.other) {
            BlendWithOther(row, y);
        } else {
            FadeToRGB(row, current_.ColorSpace(), target_.data(), current_.Width(), 1, share_,
                      plan_.color);
        }
        return target_.data();
    }

  private:
    static size_t Bytes(const Picture& picture) { return static_cast<size_t>(picture.Width()) * 4; }

    // The row's pixels, where they are or in the room.
    static const uint8* PixelsOf(const Picture& picture, int32 y, std::vector<uint8>& room) {
        const PixelRow row = picture.Row(y);
        if (row.pixels) return row.pixels;
        row.Expand(picture.Width(), room.data());
        return room.data();
    }

    // As far as both pictures reach; beyond the other one the current pixels stay.
    void BlendWithOther(const uint8* row, int32 y) {
        const Picture& other = *plan_.other->bitmap;
        const color_space space = current_.ColorSpace();
        const int32 common = y < other.Height() ? std::min(current_.Width(), other.Width()) : 0;
        const size_t rest = static_cast<size_t>(common) * 4;
        if (common > 0) {
            FadeToFrame(row, space, PixelsOf(other, y, other_row_), other.ColorSpace(),
                        target_.data(), common, 1, share_);
        }
        FadeToFrame(row + rest, space, row + rest, space, target_.data() + rest,
                    current_.Width() - common, 1, all_);
    }

    const FadePlan& plan_;
    const FadeShare share_;
    const FadeShare all_{1};
    const Picture& current_;
    std::vector<uint8> row_;
    std::vector<uint8> other_row_;
    std::vector<uint8> target_;
};

// Makes the frames of a fade and inserts them.
class FadeRun {
  public:
    FadeRun(AnimationDocument& document, FadePlan plan, int32 count, int32 name_base)
        : document_(document), plan_(std::move(plan)), count_(count), name_base_(name_base) {}

    // Returns how many frames were inserted, from the position on.
    int32 InsertAt(int32 position);
    bool OutOfMemory() const { return out_of_memory_; }

  private:
    bool Begin(int32 i);
    bool Insert(int32 i, std::optional<MadePicture> made);

    AnimationDocument& document_;
    const FadePlan plan_;
    const int32 count_;
    const int32 name_base_;
    int32 position_ = 0;  // of the next frame
    bool out_of_memory_ = false;
    std::shared_ptr<Palette> palette_;  // of the frame whose turn it is
};

int32 FadeRun::InsertAt(int32 position) {
    position_ = position;
    PictureSteps steps;
    steps.begin = [this](int32 i) { return Begin(i); };
    steps.make = [this](int32 i) {
        return FadePicture(plan_, i, count_, document_.pixel_budget, document_.work);
    };
    steps.take = [this](int32 i, std::optional<MadePicture> made) {
        return Insert(i, std::move(made));
    };
    return MakePictures(count_, steps, document_.work);
}

bool FadeRun::Begin(int32 i) {
    if (document_.StopRequested()) return false;
    palette_ = SharePalette();
    out_of_memory_ = !palette_;
    if (out_of_memory_) return false;
    document_.PostStatus(CoreText::With(CoreText::tr("Status: generating frame %1 of %2..."),
                                        {std::to_string(i + 1), std::to_string(count_)}));
    document_.work.Report(i, count_);
    return true;
}

bool FadeRun::Insert(int32 i, std::optional<MadePicture> made) {
    if (made) Palette::TellOfFailure(made->palette_status);
    if (document_.StopRequested()) return false;
    out_of_memory_ = !made;
    if (out_of_memory_) return false;
    const Picture& current = *plan_.current->bitmap;
    Frame frame(Format("fade%04d", name_base_ + i), current.Width(), current.Height());
    *palette_ = made->palette;
    frame.palette = std::move(palette_);
    frame.bitmap = std::move(made->bitmap);
    document_.InsertFrame(position_++, std::move(frame));
    return true;
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

std::shared_ptr<const Picture> FadePicture(const FadePlan& plan, int32 i, int32 count,
                                           std::shared_ptr<PixelBudget> budget, const Work& work) {
    const Picture& current = *plan.current->bitmap;
    RowBlender blender(plan, FadeFactor(plan.mode, i, count));
    PictureBuilder builder(current.Width(), current.Height(), B_RGB32, std::move(budget));
    for (int32 y = 0; y < current.Height(); ++y) {
        if (work.StopRequested() || !builder.AddRow(blender.Row(y))) return nullptr;
    }
    return builder.Take();
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
    FadeRun run(document, plan, count, *name_base);
    const int32 inserted = run.InsertAt(first);
    if (run.OutOfMemory()) {
        WarnOutOfMemory();
        return true;
    }
    const bool complete = inserted >= count;
    if (complete || inserted > 0) {
        document.SetModified(true);
        *name_base += kNamesPerFade;
    }
    return complete;
}

}  // namespace kirto
