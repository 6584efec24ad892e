#include "effects/insert_images.h"

#include <algorithm>
#include <memory>
#include <new>

#include "platform/alert.h"
#include "platform/text.h"

namespace kirto {

namespace {

constexpr int32 kBehindCurrent = -1;

int32 PositionIn(const AnimationDocument& document, const BMessage& message) {
    int32 position = kBehindCurrent;
    message.FindInt32("position", &position);
    return position == kBehindCurrent ? document.selected + 1 : position;
}

std::unique_ptr<Frame> MakeFrame(AnimationDocument& document, const entry_ref& ref, int32 position,
                                 BTranslatorRoster& roster) {
    if (AllocationShouldFail()) return nullptr;
    return std::unique_ptr<Frame>(new (std::nothrow) Frame(ref.path.c_str(), ref.Leaf(), position,
                                                           roster, document.pixel_budget));
}

}  // namespace

void InsertImages(AnimationDocument& document, const BMessage& message, BTranslatorRoster& roster) {
    int32 position = PositionIn(document, message);
    const int32 count = message.CountItems("refs");
    for (int32 i = 0; i < count && !document.StopRequested(); ++i) {
        document.PostStatus(Format("Status: loading frame %d of %d...", i + 1, count));
        entry_ref ref;
        if (message.FindRef("refs", &ref, i) != B_OK) return;
        position = std::clamp(position, 0, document.FrameCount());
        std::unique_ptr<Frame> frame = MakeFrame(document, ref, position, roster);
        if (!frame) {
            WarnOutOfMemory();
            return;
        }
        if (frame->init_failed) {
            Warn("This file can't be inserted because this file type is unsupported: " +
                 ref.Leaf());
            continue;
        }
        document.InsertFrameAsCurrent(frame.release());
        ++position;
    }
}

}  // namespace kirto
