#include "ui/shell/kirto_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "base/core_text.h"
#include "document/command_codes.h"
#include "kit/alert.h"
#include "kit/qt/ui_text.h"
#include "ui/dialogs/colors_window.h"
#include "ui/dialogs/preferences_window.h"
#include "ui/panels/global_view.h"
#include "ui/panels/local_view.h"
#include "ui/panels/notice_bar.h"
#include "ui/panels/palette_view.h"
#include "ui/panels/status_view.h"
#include "ui/player/player_view.h"
#include "ui/shell/help_menu.h"
#include "ui/shell/main_menu.h"
#include "ui/shell/recent_menu.h"
#include "ui/shell/tool_bar.h"
#include "ui/shell/window_place.h"
#include "ui/shell/window_state.h"
#include "ui/thumbnails/file_urls.h"
#include "ui/thumbnails/frame_drag.h"
#include "ui/thumbnails/frame_list.h"
#include "ui/thumbnails/frame_list_view.h"
#include "ui/thumbnails/thumb_drawing_view.h"
#include "ui/thumbnails/thumbnail_view.h"

namespace {

// In pixels, as the window's frame counts them: one less than there are.
constexpr int kMinimumWidth = 549;
constexpr int kMinimumHeight = 399;

const std::vector<uint32>& RefreshCodes() {
    static const std::vector<uint32> kCodes = {
        kirto::kUpdateAll, kirto::kUpdateFrames, kirto::kUpdateFramesNoStatus,
        kirto::kEditDone,  kirto::kStatusUpdate, kirto::kWorkProgress,
    };
    return kCodes;
}

}  // namespace

KirtoWindow::KirtoWindow(BRect frame, const char* title, const kirto::Editor& editor)
    : BWindow("KirtoWindow",
              kirto::GuiPort::Create([this](BMessage* message) { MessageReceived(message); },
                                     RefreshCodes())),
      editor_(editor),
      port_(std::static_pointer_cast<kirto::GuiPort>(Port())) {
    setObjectName("KirtoWindow");
    setWindowTitle(QString::fromUtf8(title));
    setAcceptDrops(true);

    shown_.Take(editor_.document);
    const auto choose = [this](uint32 command) { ChooseCommand(command); };
    setMenuBar(kirto::MakeMainMenu(this, choose));
    kirto::AddToolBar(*this);
    if (editor_.recent) {
        kirto::AddRecentMenu(*this, *editor_.recent, editor_.application);
    }
    kirto::AddHelpMenu(*menuBar(), choose);
    MakePanels();
    ArrangePanels();
    stop_work_ = new QShortcut(Qt::Key_Escape, this, [this] { StopWork(nullptr); });
    stop_work_->setEnabled(false);
    LimitSize();
    Place(frame);
    ShowMode(shown_.Settings().misc_preferredmode == 1);
    ShowParts(kEverything & ~kTitle);
}

KirtoWindow::~KirtoWindow() {
    port_->Close();
}

void KirtoWindow::MakePanels() {
    const BMessenger window = Messenger();
    local_view_ = new LocalView(shown_, window);
    panels_ = {new GlobalView(shown_, window), new PaletteView(shown_, window), local_view_};
    status_view_ = new StatusView(shown_, window);
    status_view_->ShowSizes(editor_.document.pixel_budget);
    notice_bar_ = new NoticeBar(window);
    frame_list_view_ = new FrameListView(shown_, window);
    // Thumbnails select by way of the window, so that an edit of the frame that was current goes
    // before them.
    kirto::Editor editor = editor_;
    editor.application = window;
    thumbnail_view_ = new ThumbnailView(shown_, editor, window);
    player_view_ = new kirto::PlayerView(shown_, window);
    for (const QWidget* panel : panels_) {
        for (const QLineEdit* field : panel->findChildren<QLineEdit*>())
            connect(field, &QLineEdit::textEdited, this, [this] { ShowHistory(); });
    }
}

// The panels in a column at the left that scrolls when the window is low, the frames in all the
// room that is left, what is said quietly and the status line below both.
void KirtoWindow::ArrangePanels() {
    auto* column = new QWidget;
    auto* column_layout = new QVBoxLayout(column);
    for (QWidget* panel : panels_)
        column_layout->addWidget(panel);
    column_layout->addStretch();
    AlignFields();

    panel_area_ = new QScrollArea;
    panel_area_->setObjectName("Panels");
    panel_area_->setFrameShape(QFrame::NoFrame);
    panel_area_->setWidgetResizable(true);
    panel_area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    panel_area_->setFocusPolicy(Qt::NoFocus);
    panel_area_->setWidget(column);
    panel_area_->setMinimumWidth(column->minimumSizeHint().width() +
                                 panel_area_->verticalScrollBar()->sizeHint().width());

    splitter_ = new QSplitter;
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(panel_area_);
    splitter_->addWidget(ArrangeFrames());
    splitter_->setStretchFactor(1, 1);

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(splitter_, 1);
    layout->addWidget(notice_bar_);
    layout->addWidget(status_view_);
    setCentralWidget(content);
}

// The fields of all panels stand below each other.
void KirtoWindow::AlignFields() {
    int widest = 0;
    for (kirto::FieldPanel* panel : panels_)
        widest = std::max(widest, panel->Rows().LabelWidth());
    for (kirto::FieldPanel* panel : panels_)
        panel->Rows().SetLabelWidth(widest);
}

// No smaller than what the controls need in the desktop's font.
void KirtoWindow::LimitSize() {
    setMinimumSize(
        QSize(kMinimumWidth + 1, kMinimumHeight + 1).expandedTo(layout()->totalMinimumSize()));
}

// All panels without scrolling, and as much room again for the frames.
QSize KirtoWindow::RoomySize() const {
    const int panels = panel_area_->widget()->sizeHint().height();
    const int above_and_below =
        layout()->totalSizeHint().height() - panel_area_->sizeHint().height();
    const QSize needed(2 * panel_area_->minimumWidth() + panels / 2, panels + above_and_below);
    return needed.expandedTo(minimumSize());
}

void KirtoWindow::Place(const BRect& frame) {
    QRect place = kirto::PixelsOf(frame);
    const QScreen* on = QGuiApplication::screenAt(place.center());
    const QRect screen = (on ? on : QGuiApplication::primaryScreen())->availableGeometry();
    // Nobody has chosen a size yet where it is the very smallest.
    if (place.size() == QSize(kMinimumWidth + 1, kMinimumHeight + 1)) {
        const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
        const int border = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, this);
        place = kirto::FirstPlace(RoomySize(), screen, {border, title, border, border});
    }
    const QSize desktop = QGuiApplication::primaryScreen()->availableVirtualSize();
    place.setSize(place.size().boundedTo(desktop).expandedTo(minimumSize()));
    // The screen where the window was last may be gone.
    const QList<QScreen*> screens = QGuiApplication::screens();
    const bool visible = std::any_of(screens.begin(), screens.end(), [&](const QScreen* each) {
        return each->availableGeometry().intersects(place);
    });
    if (!visible) {
        place.setSize(place.size().boundedTo(screen.size()));
        place.moveCenter(screen.center());
    }
    setGeometry(place);
    ShowLabels(true);
    if (!shown_.Settings().misc_savewindowdimensions) return;
    kirto::RestoreSplitter(*splitter_);
    ShowPlayer(kirto::RestorePlayer(*player_splitter_, *player_view_));
    ShowLabels(kirto::RestoreLabels());
}

BRect KirtoWindow::ScreenPlace() const {
    const QRect place = isMaximized() || isFullScreen() ? normalGeometry() : geometry();
    BRect frame = BRect::OfSize(place.width(), place.height());
    frame.OffsetTo(static_cast<float>(place.left()), static_cast<float>(place.top()));
    return frame;
}

void KirtoWindow::ResetDisplay() {
    shown_.Reset();
    setWindowTitle(UiText::tr("Kirto - untitled"));
    for (kirto::FieldPanel* panel : panels_)
        panel->ResetDisplay();
    thumbnail_view_->ResetDisplay();
    frame_list_view_->ResetDisplay();
    status_view_->ResetDisplay();
    player_view_->UpdateDisplay();
    ShowHistory();
    kirto::EnableFrameItems(*menuBar(), false);
}

void KirtoWindow::UpdateDisplay() {
    Refresh(kEverything);
}

void KirtoWindow::Refresh(uint32 parts) {
    const bool was_faithful = shown_.Settings().animation_faithful;
    shown_.Take(editor_.document);
    const bool is_faithful = shown_.Settings().animation_faithful;
    if (preferences_window_ && is_faithful != was_faithful)
        preferences_window_->ShowFaithful(is_faithful);
    ShowParts(parts);
}

void KirtoWindow::ShowParts(uint32 parts) {
    if (parts & kTitle) {
        setWindowTitle("Kirto - " + QString::fromStdString(shown_.State().file_name));
    }
    for (kirto::FieldPanel* panel : panels_) {
        if (parts & (panel->ShowsFrame() ? kLocal : kPanels)) panel->UpdateDisplay();
    }
    if (parts & kFrames) {
        thumbnail_view_->UpdateDisplay();
        frame_list_view_->UpdateDisplay();
    }
    if (parts & kStatus) status_view_->UpdateDisplay();
    player_view_->UpdateDisplay();
    if (colors_window_) colors_window_->UpdateDisplay();
    ShowHistory();
    kirto::ShowReversing(*menuBar(), !shown_.Current().several.Empty());
    kirto::EnableFrameItems(*menuBar(), !shown_.Frames().Empty());
}

// What is being typed becomes an edit as soon as it is to be undone.
void KirtoWindow::ShowHistory() {
    kirto::ShowHistory(*menuBar(), shown_.State().undo_name, shown_.State().redo_name);
    if (EditedField()) kirto::EnableUndo(*menuBar());
}

bool KirtoWindow::ShowsFrameList() const {
    return frame_area_->currentWidget() == frame_list_view_;
}

void KirtoWindow::ShowMode(bool frame_list) {
    if (frame_list) {
        frame_area_->setCurrentWidget(frame_list_view_);
        frame_list_view_->List()->setFocus();
    } else {
        frame_area_->setCurrentWidget(thumbnail_view_);
        thumbnail_view_->DrawingView()->setFocus();
    }
    local_view_->ShowMode(frame_list);
}

void KirtoWindow::SetThumbnailHeight(int32 height) {
    const int32 raised = std::max(height, shown_.Settings().thumbnail_minheight);
    thumbnail_view_->SetHeight(std::min(raised, shown_.Settings().thumbnail_maxheight));
    thumbnail_view_->UpdateDisplay();
}

void KirtoWindow::ShowPreferences(const char* tab) {
    // In front of the dialog that asks for them, which keeps other windows from being used.
    QWidget* dialog = QApplication::activeModalWidget();
    QWidget* parent = dialog ? dialog : this;
    if (!preferences_window_) {
        preferences_window_ = new PreferencesWindow(editor_, shown_.Settings(), parent,
                                                    [this] { return ScreenPlace(); });
        preferences_window_->Show();
    } else if (preferences_window_->parentWidget() != parent) {
        preferences_window_->setParent(parent, preferences_window_->windowFlags());
        preferences_window_->show();
    }
    if (tab) preferences_window_->ShowTab(tab);
    preferences_window_->raise();
    preferences_window_->activateWindow();
}

bool KirtoWindow::QuitRequested() {
    if (!LoseChanges(B_QUIT_REQUESTED)) return false;
    BMessage settings(kirto::kStoreSettings);
    settings.AddRect("window_frame", ScreenPlace());
    PostToApplication(settings);
    kirto::StoreSplitter(*splitter_);
    kirto::StorePlayer(*player_splitter_, *player_view_);
    kirto::StoreLabels(thumbnail_view_->DrawingView()->ShowsLabels());
    PostToApplication(BMessage(B_QUIT_REQUESTED));
    return true;
}

bool KirtoWindow::LoseChanges(uint32 command) {
    if (!HasUnsavedChanges()) {
        pending_command_ = 0;
        return true;
    }
    BAlert alert("", CoreText::tr("Do you want to save your changes?"), CoreText::Later("Cancel"),
                 CoreText::Later("Discard"), CoreText::Later("Save"));
    constexpr int32 kDiscard = 1;
    constexpr int32 kSaveFirst = 2;
    const int32 answer = alert.Go();
    pending_command_ = answer == kSaveFirst ? command : 0;
    if (answer == kSaveFirst) SaveOrAsk();
    return answer == kDiscard;
}

bool KirtoWindow::HasUnsavedChanges() {
    return editor_.document.HasUnsavedChanges();
}

kirto::TextControl* KirtoWindow::EditedField() const {
    auto* field = dynamic_cast<kirto::TextControl*>(focusWidget());
    return field && field->IsBeingEdited() ? field : nullptr;
}

// A field holds what was typed until it is left; a command of the keyboard leaves nothing.
bool KirtoWindow::CommitEdit() {
    kirto::TextControl* field = EditedField();
    if (!field) return false;
    field->Commit();
    return true;
}

void KirtoWindow::ChooseCommand(uint32 command) {
    CommitEdit();
    Messenger().SendMessage(command);
}

void KirtoWindow::PostToApplication(const BMessage& message) {
    editor_.application.SendMessage(message);
}

void KirtoWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    // What was typed reaches the document before the question whether to save it.
    if (CommitEdit()) {
        Messenger().SendMessage(B_QUIT_REQUESTED);
        return;
    }
    if (!may_close_ && IsWorking()) {
        // Only what is left then is worth a question.
        editor_.document.RequestStop();
        PostToApplication(BMessage(kirto::kQuitWhenDone));
        return;
    }
    if (!may_close_) may_close_ = QuitRequested();
    event->setAccepted(may_close_);
}

bool KirtoWindow::IsWorking() const {
    return editor_.document.work.Running() != 0 || editor_.document.insertions_waiting > 0;
}

void KirtoWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (!thumbnail_view_) return;
    frame_list_view_->UpdateDisplay();
    thumbnail_view_->UpdateDisplay();
}

void KirtoWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    const bool font_changed =
        event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (!font_changed || !splitter_) return;
    AlignFields();
    LimitSize();
}

void KirtoWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!event->mimeData()->hasUrls() || kirto::BeganInKirto(*event->mimeData())) return;
    // The files stay where they are, whatever the other program proposes.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void KirtoWindow::dropEvent(QDropEvent* event) {
    BMessage drop(B_SIMPLE_DATA);
    const bool has_files = kirto::AddRefs(*event->mimeData(), &drop);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (has_files) Messenger().SendMessage(drop);
}
