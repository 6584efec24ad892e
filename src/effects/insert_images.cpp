#include "effects/insert_images.h"

#include <algorithm>

#include "animation/frame.h"
#include "platform/alert.h"
#include "platform/text.h"

namespace kirto {

namespace {

constexpr int32 kBehindCurrent = -1;

int32 PositionIn(const AnimationDocument& document, const BMessage& message) {
    int32 position = kBehindCurrent;
    message.FindInt32("position", &position);
    return position == kBehindCurrent ? document.Selected() + 1 : position;
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
        Frame frame;
        const status_t status =
            Frame::Read(ref.path, ref.Leaf(), roster, document.pixel_budget, &frame);
        if (status == B_NO_MEMORY) {
            WarnOutOfMemory();
            return;
        }
        if (status != B_OK) {
            Warn("This file can't be inserted because this file type is unsupported: " +
                 ref.Leaf());
            continue;
        }
        document.InsertFrameAsCurrent(position, std::move(frame));
        ++position;
    }
}

}  // namespace kirto
