#include "app/save_animation.h"

#include <memory>

#include "formats/gif_save.h"
#include "platform/file.h"

namespace kirto {

SaveResult SaveAnimatedGif(AnimationDocument& document, const std::string& path) {
    if (document.FrameLargerThanCanvas()) return SaveResult::kFrameTooLarge;
    const std::shared_ptr<BFile> file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) return SaveResult::kFileNotCreated;
    GifSave(file, document);
    return file->Commit() == B_OK ? SaveResult::kSaved : SaveResult::kWriteFailed;
}

}  // namespace kirto
