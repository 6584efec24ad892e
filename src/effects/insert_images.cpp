#include "effects/insert_images.h"

#include <algorithm>

#include "animation/frame.h"
#include "base/text.h"
#include "kit/alert.h"

namespace kirto {

namespace {

constexpr int32 kAfterCurrent = -1;

int32 PositionIn(const AnimationDocument& document, const BMessage& message) {
    int32 position = kAfterCurrent;
    message.FindInt32("position", &position);
    return position == kAfterCurrent ? document.Selected() + 1 : position;
}

// Tells the user of files that are no images: of the first ones each by itself, of all others
// together at the end.
class UnsupportedFiles {
  public:
    void Add(const std::string& name) {
        if (told_ == kToldSingly) {
            names_.push_back(name);
            return;
        }
        Tell(name);
        ++told_;
    }

    void TellTheRest() const {
        if (names_.empty()) return;
        if (names_.size() == 1) return Tell(names_.front());
        std::string text = "These files can't be inserted because their types are unsupported:";
        const size_t listed = std::min(names_.size(), kListed);
        for (size_t i = 0; i < listed; ++i)
            text += "\n" + names_[i];
        if (names_.size() > listed) text += Format("\nand %zu more", names_.size() - listed);
        Warn(text);
    }

  private:
    static constexpr int kToldSingly = 3;
    static constexpr size_t kListed = 20;  // what still fits a screen

    static void Tell(const std::string& name) {
        Warn("This file can't be inserted because this file type is unsupported: " + name);
    }

    int told_ = 0;
    std::vector<std::string> names_;
};

}  // namespace

bool InsertImages(AnimationDocument& document, const BMessage& message, BTranslatorRoster& roster) {
    int32 position = PositionIn(document, message);
    const int32 count = message.CountItems("refs");
    UnsupportedFiles unsupported;
    for (int32 i = 0; i < count; ++i) {
        if (document.StopRequested()) return false;
        document.PostStatus(Format("Status: loading frame %d of %d...", i + 1, count));
        document.work.Report(i, count);
        entry_ref ref;
        if (message.FindRef("refs", &ref, i) != B_OK) break;
        position = std::clamp(position, 0, document.FrameCount());
        Frame frame;
        const status_t status = Frame::Read(ref.path, ref.Leaf(), roster, document.pixel_budget,
                                            &frame, &document.work);
        if (status == B_CANCELED) return false;
        if (status == B_NO_MEMORY) {
            unsupported.TellTheRest();
            WarnOutOfMemory();
            return true;
        }
        if (status != B_OK) {
            unsupported.Add(ref.Leaf());
            continue;
        }
        document.InsertFrameAsCurrent(position, std::move(frame));
        ++position;
    }
    unsupported.TellTheRest();
    return true;
}

}  // namespace kirto
