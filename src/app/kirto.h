#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "app/desktop.h"
#include "app/file_panel.h"
#include "app/notices.h"
#include "app/open_animation.h"
#include "app/save_check.h"
#include "base/file_stamp.h"
#include "document/animation_document.h"
#include "effects/images_ahead.h"
#include "effects/pictures/fit_edit.h"
#include "kit/translator_roster.h"
#include "resources/ie_application.h"

namespace kirto {
class CrashRecovery;
}

// The application object, and at the same time the one open document. It is driven by messages:
// each command is looked up in a table and carried out on the application's own thread, in the
// order of arrival; refresh commands go back to the main window. The work itself is done by the
// units beside this class and the layers below.
class Kirto : public IEApplication, public AnimationDocument, public kirto::FilePanelSource {
  public:
    static constexpr const char* kSignature = "application/x-vnd.Tavon-Kirto";

    // What a command does to the document; an insertion may bring frames into an empty one.
    enum class Change { kNone, kEdit, kInsertion };
    static Change ChangeBy(uint32 code);

    // Everything handed in outlives the application. Makes and shows the main window; the loop is
    // started by the caller (Run() or Loop()). resource_file: as for IEApplication.
    Kirto(Prefs& settings, kirto::Desktop& desktop, BTranslatorRoster& roster,
          const entry_ref& resource_file = {});
    // Ends the loop, deletes all frames and removes the preview files that it wrote.
    ~Kirto() override;

    bool open_panel_delivered = false;  // the open panel's next cancel notice is not a real cancel

    // Settings of the image writers by translator id, as set in the save panel. Application's
    // thread only.
    std::map<translator_id, BMessage> translator_settings;

    // Where windows and file panels send their commands.
    BMessenger Commands() const { return BMessenger(commands_); }

    void MessageReceived(BMessage* message) override;
    // Files dropped on the window, or opened from the desktop: routed to opening or inserting.
    void RefsReceived(BMessage* message) override;
    void AboutRequested() override;
    // 'asav': to the current file in the save panel's format. Asks first if another program has
    // changed the file since it was opened or saved.
    void SaveAgain();
    // Why the last animation was refused that browsers would have opened; kNone for any other.
    // Application's thread, or while it is idle.
    kirto::HarmlessCause Refusal() const { return refusal_; }
    // From now on what is saved by the defined rules is read again and compared, and the window is
    // told where it shows something else than browsers do. Called before the loop.
    void CheckSaves();
    // The last such save; null when there is none. Any thread.
    std::shared_ptr<const kirto::SaveCheck::Finding> LastFinding() const;
    // A file panel closed. True when the window must be refreshed.
    bool Cancel(BMessage* message);

    // 'aofp': a file chosen to be opened, inserted or used as a palette.
    void Open(BMessage* message);
    // 'asfp': a place and a format chosen in the save panel.
    void Save(BMessage* message);
    // To file_directory/file_name. format: 0 or 0xFFFFFFFF for animated GIF, else the translator of
    // an image sequence.
    void Save(uint32 format);
    // Writes one image file per frame, named file_name with a number before its first dot. On
    // failure tells the user and returns false; also when the work is stopped.
    bool SaveSequence(uint32 translator);
    // Writes a temporary GIF and shows it in the browser.
    void Preview();

    using AnimationDocument::InsertFrame;
    // 'aifp': image files as frames.
    void InsertFrame(BMessage* message);
    // 'aitp': a picture cut into frames, as the insert-tiled panel and the message say, or as the
    // JSON text says that is chosen in its place (kirto_sheets.cpp).
    void InsertTiledFrame(BMessage* message);
    // 'apsh': the selected frames, or all where one alone is selected, side by side in one picture.
    void SaveSheet(BMessage* message);
    // 'apst': frames, an animation or an image from the clipboard.
    void PasteFrames(const BMessage& message);
    // One of the four fade commands.
    void Fade(BMessage* message);

    // Where documents that other editors have left come from; it outlives the application. Without
    // it the two below do nothing. Called before the loop.
    void UseRecovery(kirto::CrashRecovery& recovery) { recovery_ = &recovery; }
    // Asks what is to become of those documents.
    void OfferRecovery();
    // Puts such a document in the current one's place, unless that has unsaved changes.
    void Recover(BMessage* message);

    kirto::FilePanel* GetPanel(kirto::FilePanelKind kind) override;
    kirto::FilePanel* GetOpenFilePanel() { return GetPanel(kirto::FilePanelKind::kOpen); }
    kirto::FilePanel* GetInsertFilePanel() { return GetPanel(kirto::FilePanelKind::kInsert); }
    kirto::FilePanel* GetSaveFilePanel() { return GetPanel(kirto::FilePanelKind::kSave); }
    kirto::FilePanel* GetInsertTiledFilePanel() {
        return GetPanel(kirto::FilePanelKind::kInsertTiled);
    }

  protected:
    void DispatchMessage(BMessage* message, BHandler* handler) override;

  private:
    struct Command;

    static const Command* CommandFor(uint32 code);
    // Throws std::bad_alloc when memory runs out.
    void CarryOut(BMessage* message);
    // True when that panel exists and is the source.
    bool IsPanel(kirto::FilePanelKind kind, const void* source);
    BRect MainWindowFrame();
    // Empties the document; the next one is saved as animated GIF until told otherwise.
    void StartAnew();
    // Makes that the document's format, and the save panel's choice.
    void UseOutputFormat(uint32 format);
    bool LoadAwaitedPalette(const std::string& path);
    bool EditAwaitedPalette(const std::function<void(Palette&)>& edit);
    void SelectFrame(BMessage* message);
    void StoreSettings(const BMessage& message);
    void StoreTranslatorSettings(const BMessage& message);
    // The translator's first format that is a file format; 0 without one.
    uint32 FileFormat(translator_id translator) const;
    void EndWork();
    // Frames larger than the canvas (kirto_fitting.cpp).
    void TellOfLargerFrames();
    void FitLargerFrames(kirto::Fit fit);
    void SayWhatDiffers(const kirto::Animation& animation, const std::string& loss);
    void SayCanceled(int32 frames_before);
    void InsertAnimations(const BMessage& message);
    void Load(const entry_ref& ref, int32 position, bool reset, const kirto::VideoCut& cut);
    bool IsVideo(const entry_ref& ref) const;
    void AskAboutVideo(const entry_ref& ref, int32 position);
    void KeepStopped(bool reset, int32 frames_before);
    // Reading and saving as browsers do (kirto_faithful.cpp).
    void TurnFaithful(bool on);
    bool OpenAsBrowsersDo(kirto::AnimationType type, BFile* file, int32 position,
                          const kirto::Animation& before);
    void UndoOpening();
    void CheckSave(const std::shared_ptr<const kirto::Animation>& saved, const std::string& path);
    void TellOfCheckedSave();
    void SaveFaithfully();
    void CloseNotice();
    // Of the current file; empty before a save or an open.
    std::string FilePath() const;
    bool SaveGif();
    bool MayOverwrite();
    bool MayOpenDropped(const BMessage& message, const std::string& path);
    void AbandonWaiting();
    using AnimationDocument::SetFile;
    void SetFile(const std::string& directory, const std::string& name,
                 const std::optional<kirto::FileStamp>& stamp);
    void RemovePreviews();

    kirto::Desktop& desktop_;
    BTranslatorRoster& roster_;
    kirto::CrashRecovery* recovery_ = nullptr;
    const std::shared_ptr<kirto::MessagePort> commands_;
    std::mutex panels_mutex_;
    std::map<kirto::FilePanelKind, std::unique_ptr<kirto::FilePanel>> panels_;  // guarded by it
    int32 fade_name_base_ = 0;
    // The current file as it was when it was opened or saved.
    std::optional<kirto::FileStamp> file_stamp_;
    std::optional<BMessage> waiting_drop_;  // kOpenFile, to be carried out after a save
    uint32 output_format_ = 0;   // of the document's file: a translator, or 0 for animated GIF
    bool save_stopped_ = false;  // the last save was stopped before it was done
    kirto::ImagesAhead images_ahead_;
    kirto::HarmlessCause refusal_ = kirto::HarmlessCause::kNone;
    kirto::Notices notices_{*this};
    std::unique_ptr<kirto::SaveCheck> save_check_;  // null: saves are not checked
    std::string last_word_;                         // for the status line, once the command is done
    // The preview files that were written, as they were then, by path.
    std::map<std::string, std::optional<kirto::FileStamp>> previews_;
};
