#include "app/save_animation.h"

#include <memory>

#include "formats/gif_save.h"
#include "platform/file.h"

namespace kirto {

namespace {

SaveResult Encode(AnimationDocument& document, const std::shared_ptr<BFile>& file) {
    if (file->InitCheck() != B_OK) return SaveResult::kFileNotCreated;
    GifSave(file, document);
    if (document.StopRequested()) return SaveResult::kStopped;
    return file->Commit() == B_OK ? SaveResult::kSaved : SaveResult::kWriteFailed;
}

}  // namespace

SaveResult SaveAnimatedGif(AnimationDocument& document, const std::string& path) {
    if (document.FrameLargerThanCanvas()) return SaveResult::kFrameTooLarge;
    return Encode(document, BFile::CreateReplacing(path));
}

SaveResult SavePreviewGif(AnimationDocument& document, const std::string& path) {
    return Encode(document, BFile::CreatePrivate(path));
}

}  // namespace kirto
