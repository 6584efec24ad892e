// Reading and saving as browsers do where the defined rules hurt, and what the window says of it.
#include "app/kirto.h"
#include "app/open_animation.h"
#include "app/save_verification.h"
#include "document/command_codes.h"

// For all animations from now on, and for the next runs of the program.
void Kirto::TurnFaithful(bool on) {
    prefs.animation_faithful = on;
    prefs.Save(prefs.misc_windowdimensions);
    PublishSettings();
}

// Puts the file's frames where those stand that were decoded before it was refused. The switch
// stays off where that fails too.
bool Kirto::OpenAsBrowsersDo(kirto::AnimationType type, BFile* file, int32 position,
                             const kirto::Animation& before) {
    Commit(before);
    file->Seek(0, SEEK_FROM_START);
    prefs.animation_faithful = true;
    if (kirto::OpenAnimation(type, file, position, *this, nullptr)) {
        TurnFaithful(true);
        return true;
    }
    prefs.animation_faithful = false;
    return false;
}

void Kirto::UndoOpening() {
    const kirto::Notices::Kind opened = notices_.Shown();
    const bool inserted = opened == kirto::Notices::Kind::kInserted;
    if (!inserted && opened != kirto::Notices::Kind::kOpened) return;
    CloseNotice();
    TurnFaithful(false);
    if (inserted) {
        Undo();
    } else {
        StartAnew();
    }
}

void Kirto::CheckSaves() {
    const BMessenger application(Port());
    save_check_ = std::make_unique<kirto::SaveCheck>(
        [application] { application.SendMessage(kirto::kSaveChecked); });
}

std::shared_ptr<const kirto::SaveCheck::Finding> Kirto::LastFinding() const {
    return save_check_ ? save_check_->Last() : nullptr;
}

// What is saved as browsers show it needs no comparison.
void Kirto::CheckSave(const std::shared_ptr<const kirto::Animation>& saved,
                      const std::string& path) {
    if (!save_check_ || prefs.animation_faithful) return;
    save_check_->Start(
        {path, saved, kirto::SaveVerification::OptionsOf(prefs), pixel_budget->Limit()});
}

// Nothing is found anymore where something was opened or saved meanwhile.
void Kirto::TellOfCheckedSave() {
    if (const auto finding = LastFinding()) notices_.ShowDifferences(finding->differences);
}

// What was compared is the current file, or its notice would be gone.
void Kirto::SaveFaithfully() {
    if (notices_.Shown() != kirto::Notices::Kind::kSaved) return;
    TurnFaithful(true);
    if (MayOverwrite()) Save(uint32{0});
}

void Kirto::CloseNotice() {
    notices_.Hide();
    if (save_check_) save_check_->Forget();
}
