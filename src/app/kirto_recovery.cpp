// Taking over documents that an editor has left that did not come to its end.
#include "app/kirto.h"
#include "app/recovery/crash_recovery.h"
#include "base/core_text.h"
#include "document/command_codes.h"
#include "kit/alert.h"

namespace {

const char* FailureText(status_t status) {
    switch (status) {
        case B_BAD_DATA:
            return CoreText::Later(
                "The animation can't be recovered because its copy was damaged. The copy has "
                "been put aside.");
        case B_NO_MEMORY:
            return CoreText::Later(
                "The animation can't be recovered because it needs more memory than there is.");
        default:
            return CoreText::Later(
                "The animation can't be recovered because its copy can't be read.");
    }
}

}  // namespace

void Kirto::OfferRecovery() {
    if (!recovery_) return;
    const auto path = recovery_->Offer();
    if (!path) return;
    BMessage recover(kirto::kRecover);
    recover.AddString("path", *path);
    Commands().SendMessage(recover);
}

void Kirto::Recover(BMessage* message) {
    std::string path;
    if (!recovery_ || message->FindString("path", &path) != B_OK) return;
    if (Modified() && FrameCount() > 0) {
        kirto::Warn(CoreText::Later(
            "The animation can't be recovered because the open one has unsaved changes. It will be "
            "offered again when the editor is started next."));
        return;
    }
    kirto::RecoveryStore::Outcome outcome = recovery_->Read(path, pixel_budget);
    if (!outcome.document) return kirto::Warn(FailureText(outcome.status));
    const kirto::RecoveryHead& head = outcome.document->head;
    UseOutputFormat(0);
    Restore(std::move(outcome.document->animation), head.file_directory, head.file_name);
    // A file that is older than the copy is the one that the document was opened or saved as; of
    // any other one a save asks.
    file_stamp_ = kirto::FileStamp::Of(FilePath());
    if (file_stamp_ && file_stamp_->seconds >= head.written) file_stamp_.reset();
    PostThumbnailSize();
    recovery_->Finish(path);
}
