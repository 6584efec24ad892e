#include "effects/fade.h"

#include <algorithm>
#include <memory>
#include <new>

#include "document/document_scope.h"
#include "effects/fade_kernels.h"
#include "platform/alert.h"
#include "platform/text.h"

namespace kirto {

namespace {

constexpr int32 kNamesPerFade = 100;

bool IsBlendable(const Frame* frame) {
    return frame && frame->bitmap && frame->bitmap->Bits() && Is32Bit(frame->bitmap->ColorSpace());
}

// Blends each row as far as both pictures reach; beyond the other one the current pixels stay.
void BlendFrames(const BBitmap& current, const BBitmap& other, BBitmap* target, float f) {
    const color_space space = current.ColorSpace();
    const int32 width = target->Width();
    for (int32 y = 0; y < target->Height(); ++y) {
        const int32 common = y < other.Height() ? std::min(width, other.Width()) : 0;
        const size_t rest = static_cast<size_t>(common) * 4;
        if (common > 0) {
            FadeToFrame(current.Row(y), space, other.Row(y), other.ColorSpace(), target->Row(y),
                        common, 1, f);
        }
        FadeToFrame(current.Row(y) + rest, space, current.Row(y) + rest, space,
                    target->Row(y) + rest, width - common, 1, 1.0f);
    }
}

// The picture of frame i of the fade, or null when memory is short.
std::shared_ptr<BBitmap> MakePicture(AnimationDocument& document, FadeMode mode, float f,
                                     const BBitmap& current, const Frame* other, rgb_color color) {
    auto picture = std::make_shared<BBitmap>(BRect::OfSize(current.Width(), current.Height()),
                                             B_RGB32, document.pixel_budget);
    if (picture->InitCheck() != B_OK) return nullptr;
    if (other) {
        BlendFrames(current, *other->bitmap, picture.get(), f);
    } else {
        FadeToRGB(current.Bits(), current.ColorSpace(), picture->Bits(), current.Width(),
                  current.Height(), f, mode == FadeMode::kToColor, color);
    }
    return picture;
}

std::unique_ptr<Frame> MakeFrame(const std::string& name, const BBitmap& picture, int32 index) {
    if (AllocationShouldFail()) return nullptr;
    std::unique_ptr<Frame> frame(new (std::nothrow)
                                     Frame(name, picture.Width(), picture.Height(), index));
    return frame && !frame->init_failed ? std::move(frame) : nullptr;
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

void Fade(AnimationDocument& document, FadeMode mode, int32 count, rgb_color color,
          int32* name_base) {
    ReaderScope reader(document);
    const Frame* current = document.CurrentFrame();
    if (!IsBlendable(current)) return;
    // The pixels are shared, so they stay whatever happens to the list between two insertions.
    const std::shared_ptr<const BBitmap> picture = current->bitmap;
    const bool between = mode == FadeMode::kToNext || mode == FadeMode::kFromPrevious;
    const bool after = mode == FadeMode::kToColor || mode == FadeMode::kToNext;
    const Frame* other = nullptr;
    if (between) {
        other = document.FrameAt(after ? current->index + 1 : current->index - 1);
        if (!IsBlendable(other)) return;
    }
    int32 position = after ? current->index + 1 : current->index;
    for (int32 i = 0; i < count && !document.StopRequested(); ++i) {
        const std::string name = Format("fade%04d", *name_base + i);
        std::unique_ptr<Frame> frame = MakeFrame(name, *picture, position);
        if (frame) {
            document.PostStatus(Format("Status: generating frame %d of %d...", i + 1, count));
            frame->bitmap =
                MakePicture(document, mode, FadeFactor(mode, i, count), *picture, other, color);
        }
        if (!frame || !frame->bitmap) {
            WarnOutOfMemory();
            return;
        }
        frame->palette->Set(frame->bitmap.get());
        reader.Leave();
        if (document.InsertFrame(frame.get())) static_cast<void>(frame.release());
        reader.Enter();
        ++position;
    }
    reader.Leave();
    document.SetModified(true);
    *name_base += kNamesPerFade;
}

}  // namespace kirto
