#include "app/kirto.h"

#include <charconv>

#include "app/document_edits.h"
#include "document/command_codes.h"
#include "document/document_scope.h"
#include "effects/fade.h"
#include "effects/insert_images.h"
#include "effects/insert_tiles.h"
#include "platform/alert.h"

// One row of the command table: what a command does, and the refresh posted after it (0: none).
struct Kirto::Command {
    uint32 code;
    void (*run)(Kirto& app, BMessage* message);
    uint32 refresh;
};

const Kirto::Command* Kirto::CommandFor(uint32 code) {
    using kirto::kUpdateAll;
    using kirto::kUpdateFrames;
    static constexpr uint32 kNothing = 0;
    static constexpr auto open_file = [](Kirto& app, BMessage* message) {
        app.Open(message);
        app.PostThumbnailSize();
    };
    static constexpr auto cancel = [](Kirto& app, BMessage* message) {
        if (app.Cancel(message)) app.PostToWindow(kUpdateAll);
    };
    static constexpr auto save_again = [](Kirto& app, BMessage*) {
        app.Save(app.GetSaveFilePanel()->OutputFormat());
    };
    static constexpr auto fade = [](Kirto& app, BMessage* message) { app.Fade(message); };
    static constexpr auto frame_palette = [](Kirto& app, BMessage* message) {
        app.SetFramePalette(message);
    };
    static constexpr Command kCommands[] = {
        {B_SIMPLE_DATA, [](Kirto& app, BMessage* message) { app.RefsReceived(message); },
         kUpdateAll},
        {B_CANCEL, cancel, kNothing},
        {kirto::kOpenFile, open_file, kUpdateAll},
        {kirto::kInsertFiles, [](Kirto& app, BMessage* message) { app.InsertFrame(message); },
         kUpdateAll},
        {kirto::kInsertTiledFile,
         [](Kirto& app, BMessage* message) { app.InsertTiledFrame(message); }, kUpdateAll},
        {kirto::kSaveFile, [](Kirto& app, BMessage* message) { app.Save(message); }, kUpdateAll},
        {kirto::kSaveAgain, save_again, kUpdateAll},
        {kirto::kResetDocument, [](Kirto& app, BMessage*) { app.Reset(); }, kNothing},
        {kirto::kSelectFrame, [](Kirto& app, BMessage* message) { app.SelectFrame(message); },
         kNothing},
        {kirto::kRemoveFrame, [](Kirto& app, BMessage*) { app.RemoveFrame(); }, kUpdateFrames},
        {kirto::kMoveFrameUp, [](Kirto& app, BMessage*) { app.MoveFrame(true); }, kUpdateFrames},
        {kirto::kMoveFrameDown, [](Kirto& app, BMessage*) { app.MoveFrame(false); }, kUpdateFrames},
        {kirto::kReverseFrames, [](Kirto& app, BMessage*) { app.ReverseFrames(); }, kUpdateFrames},
        {kirto::kPreview, [](Kirto& app, BMessage*) { app.Preview(); }, kUpdateAll},
        {kirto::kFadeToNext, fade, kUpdateFrames},
        {kirto::kFadeFromPrevious, fade, kUpdateFrames},
        {kirto::kFadeFromColor, fade, kUpdateFrames},
        {kirto::kFadeToColor, fade, kUpdateFrames},
        {kirto::kFrameWebSafe, frame_palette, kNothing},
        {kirto::kFrameSystem, frame_palette, kNothing},
        {kirto::kFrameGreyscale, frame_palette, kNothing},
        {kirto::kFrameOptimal, frame_palette, kNothing},
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

// The number at the start of the text; 0 without one.
int32 LeadingNumber(const std::string& text) {
    int32 number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

kirto::FadeMode FadeModeOf(uint32 code) {
    switch (code) {
        case kirto::kFadeToColor:
            return kirto::FadeMode::kToColor;
        case kirto::kFadeFromColor:
            return kirto::FadeMode::kFromColor;
        case kirto::kFadeToNext:
            return kirto::FadeMode::kToNext;
        default:
            return kirto::FadeMode::kFromPrevious;
    }
}

// Told before the document takes its properties from the settings, which may fail in turn.
Prefs& WarnOfTrouble(Prefs& settings) {
    if (settings.failed) {
        kirto::Warn(
            "Unable to open or create a settings file. Default values will be used instead, but "
            "may not be saved.");
    }
    if (!settings.damaged_copy.empty()) {
        kirto::Warn("The settings file was damaged. It has been put aside as \"" +
                    settings.damaged_copy + "\", and default values will be used instead.");
    }
    return settings;
}

}  // namespace

Kirto::Kirto(Prefs& settings, kirto::Desktop& desktop, BTranslatorRoster& roster,
             const entry_ref& resource_file)
    : IEApplication(kSignature, resource_file),
      AnimationDocument(WarnOfTrouble(settings)),
      desktop_(desktop),
      roster_(roster) {
    window = desktop_.OpenMainWindow(*this, MainWindowFrame(), "Kirto - untitled");
    PostToWindow(kirto::kUpdateAll);
}

Kirto::~Kirto() {
    Quit();
    Reset();
    RemovePreview();
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
    if (const Command* command = CommandFor(message->what)) {
        command->run(*this, message);
        if (command->refresh != 0) PostToWindow(command->refresh);
    } else if (!kirto::ApplyEdit(*this, *message)) {
        IEApplication::MessageReceived(message);
    }
    int32 serial = 0;
    if (message->FindInt32("serial", &serial) != B_OK) return;
    edits_done = serial;
    PostToWindow(kirto::kEditDone);
}

void Kirto::AboutRequested() {
    PostToWindow(B_ABOUT_REQUESTED);
}

bool Kirto::Cancel(BMessage* message) {
    void* source = nullptr;
    if (message->FindPointer("source", &source) != B_OK || !source) return false;
    if (IsPanel(kirto::FilePanelKind::kSave, source)) {
        desktop_.AbandonPendingCommand();
        return false;
    }
    if (!IsPanel(kirto::FilePanelKind::kOpen, source)) return false;
    // The panel also reports its closing after it has delivered a file.
    if (open_panel_delivered) {
        open_panel_delivered = false;
        return false;
    }
    const kirto::WriterScope writer(*this);
    const Frame* current = CurrentFrame();
    if (global_palette->mode == kirto::kPaletteAwaitingFile) {
        global_palette->Set(kirto::kPaletteWebSafe);
    } else if (current && current->palette->mode == kirto::kPaletteAwaitingFile) {
        current->palette->Set(kirto::kPaletteWebSafe);
    }
    return true;
}

void Kirto::SelectFrame(BMessage* message) {
    int32 number = 0;
    if (message->FindInt32("number", &number) == B_OK && Select(number)) {
        PostToWindow(kirto::kUpdateFrames);
    }
}

void Kirto::StoreSettings(const BMessage& message) {
    {
        const kirto::WriterScope writer(*this);
        prefs.TakeFrom(message);
    }
    BRect frame = prefs.misc_windowdimensions;
    message.FindRect("window_frame", &frame);
    prefs.Save(frame);
}

void Kirto::StoreTranslatorSettings(const BMessage& message) {
    int32 translator = 0;
    BMessage settings;
    if (message.FindInt32("translator", &translator) != B_OK) return;
    if (message.FindMessage("settings", &settings) != B_OK) return;
    translator_settings[static_cast<translator_id>(translator)] = settings;
}

void Kirto::SetFramePalette(BMessage* message) {
    // A window may be reading the palette meanwhile.
    const kirto::WriterScope writer(*this);
    Frame* frame = CurrentFrame();
    if (!frame) return;
    switch (message->what) {
        case kirto::kFrameWebSafe:
            frame->palette->Set(kirto::kPaletteWebSafe);
            break;
        case kirto::kFrameSystem:
            frame->palette->Set(kirto::kPaletteSystem);
            break;
        case kirto::kFrameGreyscale:
            frame->palette->Set(kirto::kPaletteGreyscale);
            break;
        default:
            frame->palette->Set(frame->bitmap.get());
            break;
    }
    modified = true;
}

void Kirto::InsertFrame(BMessage* message) {
    kirto::InsertImages(*this, *message, roster_);
}

void Kirto::InsertTiledFrame(BMessage* message) {
    const kirto::FilePanel* panel = GetInsertTiledFilePanel();
    kirto::TileGrid grid;
    grid.rows = LeadingNumber(panel->RowsText());
    grid.columns = LeadingNumber(panel->ColumnsText());
    grid.column_by_column = panel->ColumnByColumn();
    entry_ref ref;
    const bool has_ref = message->FindRef("refs", &ref) == B_OK;
    kirto::InsertTiles(*this, has_ref ? &ref : nullptr, grid, roster_);
}

void Kirto::Fade(BMessage* message) {
    int32 count = 0;
    int32 packed = 0;
    if (message->FindInt32("count", &count) != B_OK) return;
    if (message->FindInt32("color", &packed) != B_OK) return;
    const uint32 color = static_cast<uint32>(packed);
    kirto::Fade(*this, FadeModeOf(message->what), count,
                {static_cast<uint8>(color >> 24), static_cast<uint8>(color >> 16),
                 static_cast<uint8>(color >> 8), 255},
                &fade_name_base_);
}

kirto::FilePanel* Kirto::GetPanel(kirto::FilePanelKind kind) {
    const std::lock_guard lock(panels_mutex_);
    std::unique_ptr<kirto::FilePanel>& panel = panels_[kind];
    if (!panel) panel = desktop_.MakeFilePanel(kind, BMessenger(*this));
    return panel.get();
}

bool Kirto::IsPanel(kirto::FilePanelKind kind, const void* source) {
    const std::lock_guard lock(panels_mutex_);
    const auto found = panels_.find(kind);
    return found != panels_.end() && found->second.get() == source;
}
