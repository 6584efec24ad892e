#include "app/save_animation.h"

#include <algorithm>
#include <memory>

#include "formats/gif_save.h"
#include "platform/file.h"
#include "platform/text.h"

namespace kirto {

namespace {

SaveResult Encode(AnimationDocument& document, const std::shared_ptr<BFile>& file) {
    if (file->InitCheck() != B_OK) return SaveResult::kFileNotCreated;
    file->RemoveLeftovers();
    GifSave(file, document);
    if (document.StopRequested()) return SaveResult::kStopped;
    return file->Commit() == B_OK ? SaveResult::kSaved : SaveResult::kWriteFailed;
}

}  // namespace

std::string SequenceFileName(const std::string& file_name, int32 index) {
    const size_t dot = std::min(file_name.find('.'), file_name.size());
    return file_name.substr(0, dot) + Format("%04d", index) + file_name.substr(dot);
}

SaveResult SaveAnimatedGif(AnimationDocument& document, const std::string& path) {
    if (document.Current()->FrameLargerThanCanvas()) return SaveResult::kFrameTooLarge;
    return Encode(document, BFile::CreateReplacing(path));
}

SaveResult SavePreviewGif(AnimationDocument& document, const std::string& path) {
    return Encode(document, BFile::CreatePrivate(path));
}

}  // namespace kirto
