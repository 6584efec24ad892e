#include "app/sheet_save.h"

#include <filesystem>
#include <utility>

#include "app/save_animation.h"
#include "app/sequence_save.h"
#include "base/core_text.h"
#include "kit/alert.h"
#include "kit/picture_files.h"

namespace kirto {

SheetSave::SheetSave(AnimationDocument& document, BTranslatorRoster& roster, Encoding encoding,
                     const FrameSet& frames, const SheetDrawing::Layout& layout)
    : document_(document),
      roster_(roster),
      encoding_(std::move(encoding)),
      drawing_(document.Current(), document.prefs.global_pauseinseconds, frames, layout) {}

status_t SheetSave::Save(const std::string& path) {
    if (drawing_.IsEmpty() || drawing_.IsTooLarge()) {
        Warn(drawing_.IsEmpty()
                 ? CoreText::Later("There is no frame to save.")
                 : CoreText::Later("The sheet can't be saved because it would be too large."));
        return B_BAD_VALUE;
    }
    const std::shared_ptr<BBitmap> picture = drawing_.Draw(document_.pixel_budget, document_.work);
    if (!picture && document_.StopRequested()) return B_CANCELED;
    if (!picture) {
        WarnOutOfMemory();
        return B_NO_MEMORY;
    }
    const std::shared_ptr<BFile> file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) {
        Warn(kFileNotCreatedText);
        return B_IO_ERROR;
    }
    const status_t status = WritePicture(picture, roster_, encoding_.translator, encoding_.format,
                                         encoding_.settings, file, document_.work);
    if (status == B_CANCELED) return status;
    if (status != B_OK && file->WriteStatus() == B_OK) {
        Warn(kInvalidTranslatorText);
        return status;
    }
    if (file->Commit() != B_OK) {
        Warn(kFileNotCreatedText);
        return B_IO_ERROR;
    }
    return WriteText(path);
}

status_t SheetSave::WriteText(const std::string& path) const {
    const std::filesystem::path picture(path);
    SheetDescription description = drawing_.Description();
    description.image = picture.filename().string();
    const std::string text = SheetDescriptionText(description);
    const auto file =
        BFile::CreateReplacing(std::filesystem::path(picture).replace_extension(".json").string());
    if (file->InitCheck() == B_OK) file->Write(text.data(), text.size());
    if (file->InitCheck() == B_OK && file->Commit() == B_OK) return B_OK;
    Warn(kFileNotCreatedText);
    return B_IO_ERROR;
}

}  // namespace kirto
