#include "effects/insert_images.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "animation/frame.h"
#include "base/core_text.h"
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
        std::string text =
            CoreText::tr("These files can't be inserted because their types are unsupported:");
        const size_t listed = std::min(names_.size(), kListed);
        for (size_t i = 0; i < listed; ++i)
            text += "\n" + names_[i];
        if (names_.size() > listed)
            text += "\n" + CoreText::With(CoreText::tr("and %1 more"),
                                          {std::to_string(names_.size() - listed)});
        Warn(text);
    }

  private:
    static constexpr int kToldSingly = 3;
    static constexpr size_t kListed = 20;  // what still fits a screen

    static void Tell(const std::string& name) {
        Warn(CoreText::With(
            CoreText::tr("This file can't be inserted because this file type is unsupported: %1"),
            {name}));
    }

    int told_ = 0;
    std::vector<std::string> names_;
};

// The files of the message from that one on, up to the first reference without one, as many as are
// worth telling.
std::vector<std::string> FilesFrom(int32 first, const BMessage& message) {
    const size_t most = ImagesAhead::MostFollowing() + 1;
    std::vector<std::string> files;
    entry_ref ref;
    for (int32 i = first; files.size() < most && message.FindRef("refs", &ref, i) == B_OK; ++i)
        files.push_back(ref.path);
    for (int32 i = 0; files.size() < most && message.FindRef("following", &ref, i) == B_OK; ++i)
        files.push_back(ref.path);
    return files;
}

// Inserts the files of a message.
class ImageRun {
  public:
    ImageRun(AnimationDocument& document, const BMessage& message, ImagesAhead& images)
        : document_(document),
          message_(message),
          images_(images),
          position_(PositionIn(document, message)),
          count_(message.CountItems("refs")) {}

    // B_CANCELED when the work was stopped, B_NO_MEMORY when memory ran out; else B_OK.
    status_t Run();

  private:
    status_t Insert(int32 i, const entry_ref& ref);

    AnimationDocument& document_;
    const BMessage& message_;
    ImagesAhead& images_;
    int32 position_;
    const int32 count_;
    UnsupportedFiles unsupported_;
};

status_t ImageRun::Run() {
    for (int32 i = 0; i < count_; ++i) {
        if (document_.StopRequested()) return B_CANCELED;
        document_.PostStatus(CoreText::With(CoreText::tr("Status: loading frame %1 of %2..."),
                                            {std::to_string(i + 1), std::to_string(count_)}));
        document_.work.Report(i, count_);
        entry_ref ref;
        if (message_.FindRef("refs", &ref, i) != B_OK) break;
        const status_t status = Insert(i, ref);
        if (status == B_CANCELED) return B_CANCELED;
        if (status == B_NO_MEMORY) {
            unsupported_.TellTheRest();
            WarnOutOfMemory();
            return B_NO_MEMORY;
        }
        if (status != B_OK) unsupported_.Add(ref.Leaf());
    }
    unsupported_.TellTheRest();
    return B_OK;
}

status_t ImageRun::Insert(int32 i, const entry_ref& ref) {
    position_ = std::clamp(position_, 0, document_.FrameCount());
    FrameImage image = images_.Read(FilesFrom(i, message_));
    if (image.picture) Palette::TellOfFailure(image.palette_status);
    if (image.status != B_OK) return image.status;
    document_.InsertFrameAsCurrent(position_++, Frame(ref.Leaf(), std::move(image)));
    return B_OK;
}

}  // namespace

bool InsertImages(AnimationDocument& document, const BMessage& message, ImagesAhead& images) {
    const status_t status = ImageRun(document, message, images).Run();
    if (status != B_OK) images.Forget();
    return status != B_CANCELED;
}

}  // namespace kirto
