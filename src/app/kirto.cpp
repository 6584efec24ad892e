#include "app/kirto.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

#include "app/arrangement_commands.h"
#include "app/command_port.h"
#include "app/document_edits.h"
#include "app/fade_preview.h"
#include "app/frames_exchange.h"
#include "app/picture_commands.h"
#include "base/core_text.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "effects/fade.h"
#include "effects/insert_images.h"
#include "kit/alert.h"

// One row of the command table: what a command does, the refresh posted after it (0: none), and
// whether and how it changes the document.
struct Kirto::Command {
    uint32 code;
    void (*run)(Kirto& app, BMessage* message);
    uint32 refresh;
    Change change = Change::kNone;
    const char* step = nullptr;  // the edit's name in the "Edit" menu; null: none to undo
};

const Kirto::Command* Kirto::CommandFor(uint32 code) {
    using kirto::kUpdateAll;
    using kirto::kUpdateFrames;
    static constexpr uint32 kNothing = 0;
    static constexpr Change kEdit = Change::kEdit;
    static constexpr Change kInsertion = Change::kInsertion;
    static constexpr auto open_file = [](Kirto& app, BMessage* message) {
        app.Open(message);
        app.PostThumbnailSize();
    };
    static constexpr auto cancel = [](Kirto& app, BMessage* message) {
        if (app.Cancel(message)) app.PostToWindow(kUpdateAll);
    };
    static constexpr auto quit_when_done = [](Kirto& app, BMessage*) {
        app.work.AllowAll();
        // The window closes only where no work is running, and this is none.
        app.work.End();
        app.PostToWindow(kirto::kQuitWhenDone);
    };
    static constexpr auto fade = [](Kirto& app, BMessage* message) { app.Fade(message); };
    static constexpr Command kCommands[] = {
        {B_SIMPLE_DATA, [](Kirto& app, BMessage* message) { app.RefsReceived(message); },
         kUpdateAll, kInsertion},
        {B_CANCEL, cancel, kNothing},
        {kirto::kOpenFile, open_file, kUpdateAll, kInsertion, CoreText::Later("Insert Animation")},
        {kirto::kInsertAnimations,
         [](Kirto& app, BMessage* message) { app.InsertAnimations(*message); }, kUpdateAll,
         kInsertion, CoreText::Later("Insert Animation")},
        {kirto::kPasteFrames, [](Kirto& app, BMessage* message) { app.PasteFrames(*message); },
         kUpdateAll, kInsertion, CoreText::Later("Paste")},
        {kirto::kInsertFiles, [](Kirto& app, BMessage* message) { app.InsertFrame(message); },
         kUpdateAll, kInsertion, CoreText::Later("Insert")},
        {kirto::kInsertTiledFile,
         [](Kirto& app, BMessage* message) { app.InsertTiledFrame(message); }, kUpdateAll,
         kInsertion, CoreText::Later("Insert Tiled")},
        {kirto::kSaveFile, [](Kirto& app, BMessage* message) { app.Save(message); }, kUpdateAll},
        {kirto::kSaveSheet, [](Kirto& app, BMessage* message) { app.SaveSheet(message); },
         kUpdateAll},
        {kirto::kSaveAgain, [](Kirto& app, BMessage*) { app.SaveAgain(); }, kUpdateAll},
        {kirto::kQuitWhenDone, quit_when_done, kNothing},
        {kirto::kResetDocument, [](Kirto& app, BMessage*) { app.StartAnew(); }, kNothing, kEdit},
        {kirto::kOfferRecovery, [](Kirto& app, BMessage*) { app.OfferRecovery(); }, kNothing},
        {kirto::kRecover, [](Kirto& app, BMessage* message) { app.Recover(message); }, kUpdateAll,
         kInsertion},
        {kirto::kSelectFrame, [](Kirto& app, BMessage* message) { app.SelectFrame(message); },
         kNothing},
        {kirto::kSelectFrames,
         [](Kirto& app, BMessage* message) {
             if (kirto::SelectFrames(app, *message)) app.PostToWindow(kUpdateFrames);
         },
         kNothing},
        {kirto::kRemoveFrame, [](Kirto& app, BMessage*) { app.RemoveFrame(); }, kUpdateFrames,
         kEdit, CoreText::Later("Remove Frame")},
        {kirto::kMoveFrameUp, [](Kirto& app, BMessage*) { app.MoveFrame(true); }, kUpdateFrames,
         kEdit, CoreText::Later("Move Frame Up")},
        {kirto::kMoveFrameDown, [](Kirto& app, BMessage*) { app.MoveFrame(false); }, kUpdateFrames,
         kEdit, CoreText::Later("Move Frame Down")},
        {kirto::kReverseFrames, [](Kirto& app, BMessage*) { app.ReverseFrames(); }, kUpdateFrames,
         kEdit, CoreText::Later("Reverse All")},
        {kirto::kUndo, [](Kirto& app, BMessage*) { app.Undo(); }, kUpdateAll, kEdit},
        {kirto::kRedo, [](Kirto& app, BMessage*) { app.Redo(); }, kUpdateAll, kEdit},
        {kirto::kUndoOpening, [](Kirto& app, BMessage*) { app.UndoOpening(); }, kUpdateAll, kEdit},
        {kirto::kSaveChecked, [](Kirto& app, BMessage*) { app.TellOfCheckedSave(); }, kNothing},
        {kirto::kScaleLargerFrames,
         [](Kirto& app, BMessage*) { app.FitLargerFrames(kirto::Fit::kScale); }, kUpdateAll, kEdit,
         CoreText::Later("Fit Frames")},
        {kirto::kCropLargerFrames,
         [](Kirto& app, BMessage*) { app.FitLargerFrames(kirto::Fit::kCrop); }, kUpdateAll, kEdit,
         CoreText::Later("Fit Frames")},
        {kirto::kSaveFaithfully, [](Kirto& app, BMessage*) { app.SaveFaithfully(); }, kUpdateAll},
        {kirto::kCloseNotice, [](Kirto& app, BMessage*) { app.CloseNotice(); }, kNothing},
        {kirto::kPreview, [](Kirto& app, BMessage*) { app.Preview(); }, kUpdateAll},
        {kirto::kFadeToNext, fade, kUpdateFrames, kEdit, CoreText::Later("Fade")},
        {kirto::kFadeFromPrevious, fade, kUpdateFrames, kEdit, CoreText::Later("Fade")},
        {kirto::kFadeFromColor, fade, kUpdateFrames, kEdit, CoreText::Later("Fade")},
        {kirto::kFadeToColor, fade, kUpdateFrames, kEdit, CoreText::Later("Fade")},
        {kirto::kStoreSettings, [](Kirto& app, BMessage* message) { app.StoreSettings(*message); },
         kUpdateAll},
        {kirto::kTranslatorSettings,
         [](Kirto& app, BMessage* message) { app.StoreTranslatorSettings(*message); }, kNothing},
    };
    for (const Command& command : kCommands) {
        if (command.code == code) return &command;
    }
    return nullptr;
}

namespace {

// Edits of the document's value that come in tables of their own.
struct EditTable {
    // The edit's name in the "Edit" menu; null for codes of other tables.
    const char* (*name)(uint32 code);
    // Returns false for those.
    bool (*apply)(AnimationDocument& document, const BMessage& message);
};

constexpr EditTable kEditTables[] = {
    {kirto::EditName, kirto::ApplyEdit},
    {kirto::ArrangementName, kirto::ApplyArrangement},
};

const char* NameOfEdit(uint32 code) {
    for (const EditTable& table : kEditTables) {
        if (const char* name = table.name(code)) return name;
    }
    return kirto::PictureEditName(code);
}

bool ApplyFromTables(AnimationDocument& document, const BMessage& message) {
    return std::any_of(std::begin(kEditTables), std::end(kEditTables),
                       [&](const EditTable& table) { return table.apply(document, message); });
}

}  // namespace

Kirto::Change Kirto::ChangeBy(uint32 code) {
    if (code == B_REFS_RECEIVED) return Change::kInsertion;
    if (const Command* command = CommandFor(code)) return command->change;
    return NameOfEdit(code) ? Change::kEdit : Change::kNone;
}

namespace {

// Told before the document takes its properties from the settings, which may fail in turn.
Prefs& WarnOfTrouble(Prefs& settings) {
    if (settings.failed) {
        kirto::Warn(CoreText::Later(
            "Unable to open or create a settings file. Default values will be used instead, but "
            "may not be saved."));
    }
    if (!settings.damaged_copy.empty()) {
        kirto::TellQuietly(
            CoreText::With(CoreText::tr("The settings file was damaged. It has been put aside as "
                                        "\"%1\", and default values will be used instead."),
                           {settings.damaged_copy}));
    }
    return settings;
}

}  // namespace

Kirto::Kirto(Prefs& settings, kirto::Desktop& desktop, BTranslatorRoster& roster,
             const entry_ref& resource_file)
    : IEApplication(kSignature, resource_file),
      AnimationDocument(WarnOfTrouble(settings)),
      desktop_(desktop),
      roster_(roster),
      commands_(std::make_shared<kirto::CommandPort>(*this, Port())),
      images_ahead_(roster, pixel_budget, work) {
    window = desktop_.OpenMainWindow(*this, MainWindowFrame(), "Kirto - untitled");
    PostToWindow(kirto::kUpdateAll);
}

Kirto::~Kirto() {
    Quit();
    save_check_.reset();
    Reset();
    RemovePreviews();
}

// The stored rectangle, or the default size in the middle of the screen.
BRect Kirto::MainWindowFrame() {
    if (prefs.misc_savewindowdimensions) return prefs.misc_windowdimensions;
    const BRect screen = desktop_.ScreenFrame();
    const int32 width = screen.PixelWidth() - 1;
    const int32 height = screen.PixelHeight() - 1;
    BRect frame(0, 0, 549, 399);
    const int32 left = (width - 548) / 2;
    const int32 top = (height - 398) / 2;
    frame.OffsetTo(static_cast<float>(left), static_cast<float>(top));
    return frame;
}

void Kirto::MessageReceived(BMessage* message) {
    work.Begin();
    try {
        CarryOut(message);
    } catch (const std::bad_alloc&) {
        AbandonStep();
        kirto::WarnOutOfMemory();
        PostToWindow(kirto::kUpdateAll);
    }
    EndWork();
}

void Kirto::CarryOut(BMessage* message) {
    const Command* command = CommandFor(message->what);
    if (ChangeBy(message->what) != Change::kNone && message->what != kirto::kUndoOpening) {
        notices_.HideOpened();
        if (save_check_) save_check_->Stop();
    }
    BeginStep();
    if (command) {
        command->run(*this, message);
    } else if (kirto::PictureEditName(message->what)) {
        last_word_ = kirto::ApplyPictureEdit(*this, *message, roster_);
    } else if (!ApplyFromTables(*this, *message)) {
        IEApplication::MessageReceived(message);
    }
    EndStep(command ? command->step : NameOfEdit(message->what));
    const bool of_canvas = message->what == kirto::kSetWidth || message->what == kirto::kSetHeight;
    if (of_canvas || notices_.Shown() == kirto::Notices::Kind::kLarger) TellOfLargerFrames();
    if (command && command->refresh != 0) PostToWindow(command->refresh);
    if (kirto::PictureEditName(message->what)) PostToWindow(kirto::kUpdateAll);
}

void Kirto::DispatchMessage(BMessage* message, BHandler* handler) {
    IEApplication::DispatchMessage(message, handler);
    if (kirto::CommandPort::IsCounted(*message)) {
        kirto::CommandPort::Uncount(*this, *message);
        PostToWindow(kirto::kEditDone);
    }
    // After the refreshes, which write the status line too.
    if (!last_word_.empty())
        PostStatus(CoreText::With(CoreText::tr("Status: %1"), {std::exchange(last_word_, {})}));
}

void Kirto::EndWork() {
    const bool shown = work.Reported();
    work.End();
    if (shown) PostToWindow(kirto::kWorkProgress);
}

void Kirto::AboutRequested() {
    PostToWindow(B_ABOUT_REQUESTED);
}

bool Kirto::Cancel(BMessage* message) {
    void* source = nullptr;
    if (message->FindPointer("source", &source) != B_OK || !source) return false;
    if (IsPanel(kirto::FilePanelKind::kSave, source)) {
        AbandonWaiting();
        return false;
    }
    if (!IsPanel(kirto::FilePanelKind::kOpen, source)) return false;
    // The panel also reports its closing after it has delivered a file.
    if (open_panel_delivered) {
        open_panel_delivered = false;
        return false;
    }
    const bool awaited =
        EditAwaitedPalette([](Palette& palette) { palette.Set(kirto::kPaletteWebSafe); });
    if (awaited) EndStepWithinLast();
    return true;
}

void Kirto::StartAnew() {
    CloseNotice();
    UseOutputFormat(0);
    StartHistory();
    Reset();
}

void Kirto::UseOutputFormat(uint32 format) {
    output_format_ = format;
    const std::lock_guard lock(panels_mutex_);
    const auto panel = panels_.find(kirto::FilePanelKind::kSave);
    if (panel != panels_.end()) panel->second->UseOutputFormat(format);
}

void Kirto::SelectFrame(BMessage* message) {
    int32 number = 0;
    if (message->FindInt32("number", &number) == B_OK && Select(number)) {
        PostToWindow(kirto::kUpdateFrames);
    }
}

void Kirto::StoreSettings(const BMessage& message) {
    prefs.TakeFrom(message);
    BRect frame = prefs.misc_windowdimensions;
    message.FindRect("window_frame", &frame);
    prefs.Save(frame);
    PublishSettings();
}

void Kirto::StoreTranslatorSettings(const BMessage& message) {
    int32 translator = 0;
    BMessage settings;
    if (message.FindInt32("translator", &translator) != B_OK) return;
    if (message.FindMessage("settings", &settings) != B_OK) return;
    translator_settings[static_cast<translator_id>(translator)] = settings;
}

void Kirto::InsertFrame(BMessage* message) {
    const int32 before = FrameCount();
    if (!kirto::InsertImages(*this, *message, images_ahead_)) SayCanceled(before);
}

void Kirto::PasteFrames(const BMessage& message) {
    const int32 before = FrameCount();
    if (!kirto::PasteFrames(*this, message, roster_)) SayCanceled(before);
}

// To be called where the work was stopped before it was done.
void Kirto::SayCanceled(int32 frames_before) {
    last_word_ = CoreText::With(CoreText::tr("canceled, %1 new frame(s) kept"),
                                {std::to_string(FrameCount() - frames_before)});
}

void Kirto::Fade(BMessage* message) {
    int32 count = 0;
    int32 packed = 0;
    if (message->FindInt32("count", &count) != B_OK) return;
    if (message->FindInt32("color", &packed) != B_OK) return;
    const uint32 packed_color = static_cast<uint32>(packed);
    const rgb_color color = {static_cast<uint8>(packed_color >> 24),
                             static_cast<uint8>(packed_color >> 16),
                             static_cast<uint8>(packed_color >> 8), 255};
    const int32 before = FrameCount();
    if (!kirto::Fade(*this, kirto::FadeModeOf(message->what), count, color, &fade_name_base_)) {
        SayCanceled(before);
    }
}

kirto::FilePanel* Kirto::GetPanel(kirto::FilePanelKind kind) {
    const std::lock_guard lock(panels_mutex_);
    std::unique_ptr<kirto::FilePanel>& panel = panels_[kind];
    if (!panel) panel = desktop_.MakeFilePanel(kind, Commands());
    return panel.get();
}

bool Kirto::IsPanel(kirto::FilePanelKind kind, const void* source) {
    const std::lock_guard lock(panels_mutex_);
    const auto found = panels_.find(kind);
    return found != panels_.end() && found->second.get() == source;
}
