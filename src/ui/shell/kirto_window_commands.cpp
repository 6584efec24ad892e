// What the main window does on each command.
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <filesystem>

#include "base/core_text.h"
#include "document/command_codes.h"
#include "kit/alert.h"
#include "kit/qt/ui_text.h"
#include "ui/dialogs/fade_window.h"
#include "ui/dialogs/sheet_dialog.h"
#include "ui/dialogs/video_dialog.h"
#include "ui/export/export_dialog.h"
#include "ui/panels/field_panel.h"
#include "ui/panels/notice_bar.h"
#include "ui/panels/status_view.h"
#include "ui/shell/frame_commands.h"
#include "ui/shell/kirto_window.h"
#include "ui/shell/main_menu.h"
#include "ui/thumbnails/difference_window.h"
#include "ui/thumbnails/frame_list.h"
#include "ui/thumbnails/frame_list_view.h"
#include "ui/thumbnails/frames_mime_data.h"
#include "ui/thumbnails/thumbnail_view.h"

namespace {

// The name of a document without a file.
constexpr const char* kUntitled = "untitled";

}  // namespace

void KirtoWindow::UpdateAll(BMessage*) {
    Refresh(kEverything);
}

void KirtoWindow::UpdateFrames(BMessage*) {
    Refresh(kLocal | kFrames | kStatus);
}

void KirtoWindow::UpdateFramesNoStatus(BMessage*) {
    Refresh(kLocal | kFrames);
}

void KirtoWindow::Resume(BMessage*) {
    const uint32 command = std::exchange(pending_command_, 0);
    // A save that failed, and edits made during it, leave changes that the command would lose.
    if (HasUnsavedChanges()) return;
    switch (command) {
        case kirto::kMenuNew:
            StartNew();
            break;
        case kirto::kMenuOpen:
            ShowOpenPanel(CoreText::tr("Open Animation"));
            break;
        case B_QUIT_REQUESTED:
            close();
            break;
        default:
            break;
    }
}

void KirtoWindow::AbandonPending(BMessage*) {
    pending_command_ = 0;
}

void KirtoWindow::ShowStatus(BMessage* message) {
    std::string text;
    if (message->FindString("text", &text) == B_OK) status_view_->UpdateDisplay(text.c_str());
}

void KirtoWindow::ShowWork(BMessage* message) {
    int64 piece = 0;
    int64 done = 0;
    int64 total = 0;
    message->FindInt64("piece", &piece);
    message->FindInt64("done", &done);
    message->FindInt64("total", &total);
    shown_work_ = static_cast<uint64>(piece);
    stop_work_->setEnabled(shown_work_ != 0);
    if (shown_work_ != 0) {
        status_view_->ShowWork(done, total);
    } else {
        status_view_->HideWork();
    }
}

void KirtoWindow::StopWork(BMessage*) {
    editor_.document.work.Stop(shown_work_);
}

void KirtoWindow::Notice(BMessage* message) {
    if (message->what == kirto::kShowNotice) {
        notice_bar_->ShowNotice(*message);
    } else if (message->what == kirto::kShowDifferences) {
        const auto finding = editor_.finding ? editor_.finding() : nullptr;
        if (!finding || finding->differences.pairs.empty()) return;
        const bool draw_transparent = shown_.Settings().thumbnail_drawtransparent;
        (new DifferenceWindow(finding, draw_transparent, this))->show();
    } else {
        notice_bar_->HideNotice();
        if (message->what == kirto::kCloseNotice) PostToApplication(*message);
    }
}

void KirtoWindow::CloseWhenDone(BMessage*) {
    close();
}

void KirtoWindow::New(BMessage*) {
    if (LoseChanges(kirto::kMenuNew)) StartNew();
}

void KirtoWindow::StartNew() {
    PostToApplication(BMessage(kirto::kResetDocument));
    ResetDisplay();
}

void KirtoWindow::Open(BMessage*) {
    if (LoseChanges(kirto::kMenuOpen)) ShowOpenPanel(CoreText::tr("Open Animation"));
}

void KirtoWindow::ShowOpenPanel(const std::string& title) {
    kirto::FilePanel* panel = editor_.panels.GetPanel(kirto::FilePanelKind::kOpen);
    panel->SetTitle(title);
    panel->Show();
}

void KirtoWindow::Save(BMessage*) {
    if (HasUnsavedChanges()) SaveOrAsk();
}

void KirtoWindow::SaveOrAsk() {
    if (shown_.State().file_name == kUntitled) {
        ShowSavePanel();
    } else {
        PostToApplication(BMessage(kirto::kSaveAgain));
    }
}

void KirtoWindow::SaveAs(BMessage*) {
    if (!shown_.Frames().Empty()) ShowSavePanel();
}

void KirtoWindow::ShowSavePanel() {
    kirto::FilePanel* panel = editor_.panels.GetPanel(kirto::FilePanelKind::kSave);
    const std::string& directory = shown_.State().file_directory;
    if (!directory.empty()) panel->SetDirectory(directory);
    const std::string& name = shown_.State().file_name;
    panel->SetSaveText("");
    if (name != kUntitled) panel->ProposeName(name);
    panel->Show();
}

void KirtoWindow::About(BMessage*) {
    BAlert alert(
        "",
        CoreText::tr(
            "Kirto v1.4\n"
            "An editor for frame animations, by Morvik\n"
            "https://kirto.example.org\n\n"
            "Please send in bug reports and feature requests.\n\n"
            "Thanks to all who shared their code for GIF files, and for a long conversation "
            "about dithering."),
        CoreText::Later("OK"), {}, {}, B_INFO_ALERT);
    alert.Go();
}

void KirtoWindow::RequestQuit(BMessage*) {
    close();
}

void KirtoWindow::Preview(BMessage* message) {
    if (shown_.FirstFrame()) PostToApplication(*message);
}

void KirtoWindow::ToggleMode(BMessage*) {
    ShowMode(!ShowsFrameList());
}

void KirtoWindow::OpenPreferences(BMessage*) {
    ShowPreferences();
}

void KirtoWindow::Insert(BMessage*) {
    editor_.panels.GetPanel(kirto::FilePanelKind::kInsert)->Show();
}

void KirtoWindow::InsertTiled(BMessage*) {
    editor_.panels.GetPanel(kirto::FilePanelKind::kInsertTiled)->Show();
}

void KirtoWindow::InsertAnimation(BMessage*) {
    editor_.panels.GetPanel(kirto::FilePanelKind::kInsertAnimation)->Show();
}

void KirtoWindow::FadeEffects(BMessage*) {
    if (!shown_.CurrentFrame()) return;
    auto* window = new FadeWindow(editor_.application, this);
    window->ShowFadeOf(shown_.State().animation, shown_.Settings().global_pauseinseconds);
    QRect place = window->frameGeometry();
    place.moveCenter(QGuiApplication::primaryScreen()->geometry().center());
    window->move(place.topLeft());
    window->show();
}

void KirtoWindow::Export(BMessage*) {
    if (!shown_.CurrentFrame()) return;
    const kirto::DocumentState& state = shown_.State();
    const std::filesystem::path name(state.file_name);
    auto* dialog = new kirto::ExportDialog(
        {state.animation, QFile::decodeName(state.file_directory.c_str()),
         QFile::decodeName(name.stem().c_str()), shown_.Settings().global_pauseinseconds,
         editor_.document.pixel_budget, editor_.roster},
        this);
    dialog->show();
}

void KirtoWindow::ExportSheet(BMessage*) {
    if (!shown_.CurrentFrame()) return;
    kirto::AskForSheet(shown_.Current(), editor_.roster, this,
                       [application = editor_.application](const BMessage& command) {
                           application.SendMessage(command);
                       });
}

void KirtoWindow::AskAboutVideo(BMessage* message) {
    kirto::AskForVideoPart(*message, this,
                           [application = editor_.application](const BMessage& command) {
                               application.SendMessage(command);
                           });
}

void KirtoWindow::ChooseFrames(BMessage* message) {
    if (!shown_.CurrentFrame()) return;
    const auto receive = [application = editor_.application](const BMessage& command) {
        application.SendMessage(command);
    };
    kirto::ChooseFrames(message->what, shown_, this, receive);
}

void KirtoWindow::UseClipboard(BMessage* message) {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (message->what == kirto::kMenuPaste) {
        // Null where nothing has ever been copied.
        const QMimeData* copied = clipboard.mimeData();
        if (const auto command = copied ? kirto::PasteCommand(*copied) : std::nullopt)
            PostToApplication(*command);
        return;
    }
    if (!shown_.CurrentFrame()) return;
    clipboard.setMimeData(new kirto::FramesMimeData(shown_.StatePointer()));
    if (message->what == kirto::kMenuCut) PostToApplication(BMessage(kirto::kRemoveFrame));
}

void KirtoWindow::Forward(BMessage* message) {
    PostToApplication(*message);
}

void KirtoWindow::PaletteFromFile(BMessage* message) {
    if (PostEdit(message->what)) ShowOpenPanel(CoreText::tr("Open Paletted File"));
}

void KirtoWindow::ChooseMode(BMessage* message) {
    const bool frame_list = message->what == kirto::kFrameListMode;
    if (frame_list != ShowsFrameList()) ShowMode(frame_list);
}

void KirtoWindow::SlideThumbnails(BMessage*) {
    thumbnail_view_->SetHeight(thumbnail_view_->SliderValue());
    thumbnail_view_->UpdateDisplay();
}

void KirtoWindow::PresetThumbnails(BMessage* message) {
    // The command may be ahead of the frames that the window knows.
    Refresh(kFrames);
    ApplyPreset(message->what);
}

void KirtoWindow::ApplyPreset(uint32 preset) {
    if (preset == kirto::kThumbnailPreset) {
        SetThumbnailHeight(shown_.Settings().thumbnail_heightvalue);
        return;
    }
    if (preset == kirto::kThumbnailFit) return FitThumbnails();
    const bool first = preset == kirto::kThumbnailFirstHalf || preset == kirto::kThumbnailFirstFull;
    const bool half =
        preset == kirto::kThumbnailFirstHalf || preset == kirto::kThumbnailCurrentHalf;
    const kirto::FramePointer frame = first ? shown_.FirstFrame() : shown_.CurrentFrame();
    if (frame) SetThumbnailHeight(half ? frame->height / 2 : frame->height);
}

void KirtoWindow::SelectInList(BMessage*) {
    const FrameList& list = *frame_list_view_->List();
    const kirto::FrameSet frames = list.Selection();
    const int32 current = list.CurrentSelection();
    BMessage select(frames.Count() > 1 ? kirto::kSelectFrames : kirto::kSelectFrame);
    if (frames.Count() > 1) {
        select.AddString("frames", TextOf(frames));
        select.AddInt32("current", current);
    } else {
        select.AddInt32("number", current);
    }
    PostToApplication(select);
    // One frame stays selected.
    if (frames.Empty()) frame_list_view_->UpdateDisplay();
}
