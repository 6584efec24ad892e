#pragma once

#include <QMainWindow>
#include <QPointer>
#include <vector>

#include "kit/qt/gui_port.h"
#include "kit/rect.h"
#include "kit/window.h"
#include "ui/controls/editor.h"
#include "ui/controls/shown_document.h"

namespace kirto {
class FieldPanel;
class PlayerView;
class TextControl;
}  // namespace kirto

class ColorsWindow;
class FrameListView;
class LocalView;
class NoticeBar;
class PreferencesWindow;
class QScrollArea;
class QShortcut;
class QSplitter;
class QStackedWidget;
class StatusView;
class ThumbnailView;

// The main window: menus and panels around the frames. It turns choices into commands for the
// application, lets the panels do so with edits, and shows the document again when the application
// says that it changed. What it shows is the document's state at one moment, which never changes.
// GUI thread.
class KirtoWindow : public QMainWindow, public BWindow {
  public:
    // frame: the window's place on the screen, without its decoration. Not shown yet.
    KirtoWindow(BRect frame, const char* title, const kirto::Editor& editor);
    ~KirtoWindow() override;

    // Handles one command; what its sender's control holds is read now.
    void MessageReceived(BMessage* message) override;
    // Offers to save unsaved changes. Returns true when the window may close; then saves the
    // settings and asks the application to quit.
    bool QuitRequested();
    // Returns true when the document has no changes or the user discards them. When the user wants
    // to save them first, starts the save; the command is carried out after it.
    bool LoseChanges(uint32 command);
    // Sets the height of the thumbnails in pixels, within the settings' bounds.
    void SetThumbnailHeight(int32 height);
    // Show the document in all panels: an empty one, and as it is now.
    void ResetDisplay();
    void UpdateDisplay();
    // Opens the preferences, or brings them to the front; with a tab's name that tab.
    void ShowPreferences(const char* tab = nullptr);

    // The command that waits for a save; 0 for none.
    uint32 PendingCommand() const { return pending_command_; }
    bool ShowsFrameList() const;
    bool ShowsPlayer() const;
    // The window's rectangle on the screen, as the settings store it.
    BRect ScreenPlace() const;
    const kirto::ShownDocument& Shown() const { return shown_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    // Keys that mean nothing where the keyboard is.
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    using Handler = void (KirtoWindow::*)(BMessage* message);
    struct Command;
    // Groups of panels that a refresh shows again.
    enum Part : uint32 { kTitle = 1, kPanels = 2, kLocal = 4, kFrames = 8, kStatus = 16 };
    static constexpr uint32 kEverything = kTitle | kPanels | kLocal | kFrames | kStatus;

    static const Command* CommandFor(uint32 code);
    void MakePanels();
    void ArrangePanels();
    QWidget* ArrangeFrames();
    void AlignFields();
    void LimitSize();
    QSize RoomySize() const;
    void Place(const BRect& frame);

    // Shows the parts as the document is now.
    void Refresh(uint32 parts);
    void ShowParts(uint32 parts);
    void ChooseCommand(uint32 command);
    // Sends the command of the field that is being edited; true when there was one.
    bool CommitEdit();
    // The field that is being edited, or null.
    kirto::TextControl* EditedField() const;
    void ShowHistory();
    bool HasUnsavedChanges();
    // Whether the application does something that may take long, or is about to.
    bool IsWorking() const;
    void ApplyPreset(uint32 preset);
    void FitThumbnails();
    void SaveOrAsk();
    void ShowSavePanel();
    void StartNew();
    void ShowOpenPanel(const std::string& title);
    void ShowMode(bool frame_list);
    void ShowPlayer(bool shown);
    void ShowLabels(bool shown);
    void PostToApplication(const BMessage& message);
    // True when a panel posted the edit that the command of its control stands for.
    bool PostEdit(uint32 command);

    // The commands' handlers.
    void UpdateAll(BMessage* message);
    void UpdateFrames(BMessage* message);
    void UpdateFramesNoStatus(BMessage* message);
    void Resume(BMessage* message);
    void AbandonPending(BMessage* message);
    void ShowStatus(BMessage* message);
    void ShowWork(BMessage* message);
    void StopWork(BMessage* message);
    void Notice(BMessage* message);
    void CloseWhenDone(BMessage* message);
    void New(BMessage* message);
    void Open(BMessage* message);
    void Save(BMessage* message);
    void SaveAs(BMessage* message);
    void About(BMessage* message);
    void RequestQuit(BMessage* message);
    void Preview(BMessage* message);
    void ToggleMode(BMessage* message);
    void TogglePlayer(BMessage* message);
    void Play(BMessage* message);
    void ToggleLabels(BMessage* message);
    void ShowColors(BMessage* message);
    void OpenPreferences(BMessage* message);
    void Insert(BMessage* message);
    void InsertTiled(BMessage* message);
    void FadeEffects(BMessage* message);
    void InsertAnimation(BMessage* message);
    void Export(BMessage* message);
    void ExportSheet(BMessage* message);
    void AskAboutVideo(BMessage* message);
    void ChooseFrames(BMessage* message);
    void UseClipboard(BMessage* message);
    void Forward(BMessage* message);
    void PaletteFromFile(BMessage* message);
    void ChooseMode(BMessage* message);
    void SlideThumbnails(BMessage* message);
    void PresetThumbnails(BMessage* message);
    void SelectInList(BMessage* message);

    kirto::Editor editor_;
    std::shared_ptr<kirto::GuiPort> port_;
    kirto::ShownDocument shown_;
    uint32 pending_command_ = 0;
    bool may_close_ = false;
    uint64 shown_work_ = 0;  // the piece that the status line shows; 0 for none
    QShortcut* stop_work_ = nullptr;

    std::vector<kirto::FieldPanel*> panels_;  // in their order from above
    LocalView* local_view_ = nullptr;         // one of them
    StatusView* status_view_ = nullptr;
    NoticeBar* notice_bar_ = nullptr;
    FrameListView* frame_list_view_ = nullptr;
    ThumbnailView* thumbnail_view_ = nullptr;
    QStackedWidget* frame_area_ = nullptr;
    QScrollArea* panel_area_ = nullptr;
    QSplitter* splitter_ = nullptr;
    kirto::PlayerView* player_view_ = nullptr;
    QSplitter* player_splitter_ = nullptr;  // the player above the frames
    QPointer<PreferencesWindow> preferences_window_;
    ColorsWindow* colors_window_ = nullptr;  // null before it was asked for
};
