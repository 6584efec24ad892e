#include "effects/insert_images.h"

#include <algorithm>
#include <memory>
#include <new>

#include "platform/alert.h"
#include "platform/text.h"

namespace kirto {

void InsertImages(AnimationDocument& document, const std::vector<entry_ref>& refs, int32 position,
                  BTranslatorRoster& roster) {
    const int32 count = static_cast<int32>(refs.size());
    int32 loaded = 0;
    for (const entry_ref& ref : refs) {
        document.PostStatus(Format("Status: loading frame %d of %d...", ++loaded, count));
        if (document.StopRequested()) return;
        position = std::clamp(position, 0, document.FrameCount());
        std::unique_ptr<Frame> frame;
        if (!AllocationShouldFail()) {
            frame.reset(new (std::nothrow) Frame(ref.path.c_str(), ref.Leaf(), position, roster,
                                                 document.pixel_budget));
        }
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
        document.modified = true;
        ++position;
    }
}

}  // namespace kirto
