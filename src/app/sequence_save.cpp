#include "app/sequence_save.h"

#include <thread>
#include <utility>

#include "app/export/sequence_name.h"
#include "app/save_animation.h"
#include "base/run_in_order.h"
#include "kit/alert.h"
#include "kit/picture_files.h"

namespace kirto {

SequenceSave::SequenceSave(AnimationDocument& document, BTranslatorRoster& roster,
                           Encoding encoding)
    : document_(document),
      roster_(roster),
      encoding_(std::move(encoding)),
      state_(document.CurrentState()) {}

status_t SequenceSave::Save() {
    const int32 count = state_->animation->frames.Size();
    const std::thread::id caller = std::this_thread::get_id();
    status_t status = B_OK;
    int32 next = 0;
    OrderedSteps<int32, Ahead> steps;
    steps.next = [&] { return next < count ? std::optional(next++) : std::nullopt; };
    steps.begin = [&](int32 index) {
        document_.work.Report(index, count);
        return true;
    };
    steps.work = [&](int32 index, int32) -> std::optional<Ahead> {
        if (std::this_thread::get_id() == caller) return nullptr;
        return EncodeAhead(*state_->animation->frames.At(index));
    };
    steps.waiting = [&] { document_.work.ReportAgain(); };
    steps.take = [&](int32 index, const std::optional<Ahead>& ahead) {
        status = Write(index, ahead.value_or(nullptr));
        return status == B_OK;
    };
    RunInOrder(steps);
    return status;
}

std::optional<SequenceSave::Ahead> SequenceSave::EncodeAhead(const Frame& frame) const {
    const Picture& picture = *frame.bitmap;
    const uint64 pixels =
        static_cast<uint64>(picture.Width()) * static_cast<uint64>(picture.Height());
    if (pixels == 0 || pixels > kMostPixelsAhead) return nullptr;
    const std::shared_ptr<const BBitmap> bitmap = picture.ToBitmap();
    if (bitmap->InitCheck() != B_OK) return std::nullopt;
    const std::shared_ptr<BFile> bytes = BFile::OnMemory();
    const status_t status = WritePictureQuietly(bitmap, roster_, encoding_.translator,
                                                encoding_.format, encoding_.settings, bytes,
                                                [this] { return document_.StopRequested(); });
    // What has failed does so again at its turn.
    return status == B_OK ? bytes : nullptr;
}

status_t SequenceSave::Write(int32 index, const Ahead& ahead) {
    const std::string name = SequenceFileName(state_->file_name, index);
    const std::shared_ptr<BFile> file =
        BFile::CreateReplacing(PathIn(state_->file_directory, name));
    if (file->InitCheck() != B_OK) return TellOfFailure(file->InitCheck());
    // Once a sequence is enough.
    if (index == 0) file->RemoveLeftovers();
    status_t status = B_OK;
    if (ahead && !document_.StopRequested()) {
        file->Write(ahead->Memory().data(), ahead->Memory().size());
    } else {
        status = Encode(*state_->animation->frames.At(index), file);
    }
    if (status != B_OK) return status;
    const status_t committed = file->Commit();
    if (committed != B_OK) return TellOfFailure(committed);
    ++written_;
    return B_OK;
}

status_t SequenceSave::TellOfFailure(status_t status) {
    if (status == B_NO_MEMORY) {
        WarnOutOfMemory();
        return B_NO_MEMORY;
    }
    Warn(kFileNotCreatedText);
    return B_IO_ERROR;
}

status_t SequenceSave::Encode(const Frame& frame, const std::shared_ptr<BFile>& file) {
    const std::shared_ptr<const BBitmap> picture = frame.bitmap->ToBitmap();
    if (picture->InitCheck() != B_OK) {
        WarnOutOfMemory();
        return B_NO_MEMORY;
    }
    const status_t status = WritePicture(picture, roster_, encoding_.translator, encoding_.format,
                                         encoding_.settings, file, document_.work);
    // That the file can't be written is told when it is to take its place.
    if (status == B_CANCELED) return B_CANCELED;
    if (status == B_OK || file->WriteStatus() != B_OK) return B_OK;
    Warn(kInvalidTranslatorText);
    return status;
}

}  // namespace kirto
