// The part of the thumbnail grid that answers the mouse, the keyboard and drags.
#include <QContextMenuEvent>
#include <QDir>
#include <QDropEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QStyleHints>
#include <utility>

#include "base/core_text.h"
#include "document/command_codes.h"
#include "kit/alert.h"
#include "kit/qt/ui_text.h"
#include "ui/thumbnails/file_urls.h"
#include "ui/thumbnails/frames_mime_data.h"
#include "ui/thumbnails/targa_file.h"
#include "ui/thumbnails/thumb_drawing_view.h"

namespace {

constexpr int kHoldMilliseconds = 200;
constexpr int kRetryMilliseconds = 20;
constexpr int kDragAlpha = 127;
constexpr int kMaxDragSide = 2048;  // of the picture under the pointer, pixels

bool CarriesFiles(const QDropEvent& event) {
    return event.mimeData()->hasUrls() && !kirto::BeganInKirto(*event.mimeData());
}

}  // namespace

void ThumbDrawingView::MakeMenu() {
    menu_.setObjectName("ModifyFrame");
    const std::pair<const char*, uint32> items[] = {
        {UiText::Later("Insert Frame"), kirto::kMenuInsert},
        {UiText::Later("Remove Frame"), kirto::kRemoveFrame},
        {UiText::Later("Move Up"), kirto::kMoveFrameUp},
        {UiText::Later("Move Down"), kirto::kMoveFrameDown},
        {UiText::Later("Fade Effects..."), kirto::kMenuFadeEffects},
        {nullptr, 0},
        {UiText::Later("Cut"), kirto::kMenuCut},
        {UiText::Later("Copy"), kirto::kMenuCopy},
        {UiText::Later("Paste"), kirto::kMenuPaste},
        {UiText::Later("Duplicate"), kirto::kDuplicateFrames},
        {UiText::Later("Set Pause..."), kirto::kMenuSetPause},
    };
    for (const auto& [label, command] : items) {
        if (!label) {
            menu_.addSeparator();
            continue;
        }
        menu_.addAction(UiText::tr(label), this,
                        [this, code = command] { window_.SendMessage(code); });
    }
}

void ThumbDrawingView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    const BPoint point = PointOf(event->position().toPoint());
    const int32 index = Layout().HitTest(point);
    const bool left = event->button() == Qt::LeftButton;
    if (index < 0) {
        band_start_ = event->position().toPoint();
        band_.setGeometry(QRect(band_start_, QSize()));
        band_.setVisible(left && shown_.CurrentFrame());
        return;
    }
    PressOn(index, kirto::FrameSelector::ModeOf(event->modifiers()), left);
    if (!left) return;
    const BRect thumbnail = layout_.At(index);
    held_ = index;
    StartDragTimer({point.x - thumbnail.left, point.y - thumbnail.top});
}

// Several frames stay selected when one of them is pressed, to be dragged or to show their menu.
void ThumbDrawingView::PressOn(int32 index, kirto::FrameSelector::Mode mode, bool left) {
    const kirto::Animation& shown = shown_.Current();
    const bool alone = mode == kirto::FrameSelector::Mode::kAlone || !left;
    const bool stay = alone && shown.several.Contains(index);
    alone_on_release_ = stay && left;
    editor_.application.SendMessage(
        stay ? kirto::FrameSelector::MakeCurrent(shown, index)
             : selector_.Choose(shown, index, left ? mode : kirto::FrameSelector::Mode::kAlone));
}

void ThumbDrawingView::mouseMoveEvent(QMouseEvent* event) {
    if (band_.isVisible())
        band_.setGeometry(QRect(band_start_, event->position().toPoint()).normalized());
}

void ThumbDrawingView::SelectAround(const QRect& area, bool added) {
    // A click on nothing is none.
    if (area.width() + area.height() < QGuiApplication::styleHints()->startDragDistance()) return;
    const kirto::FrameSet frames =
        Layout().Touching({static_cast<float>(area.left()), static_cast<float>(area.top()),
                           static_cast<float>(area.right()), static_cast<float>(area.bottom())});
    if (frames.Empty()) return;
    editor_.application.SendMessage(
        kirto::FrameSelector::ChooseAround(shown_.Current(), frames, added));
}

void ThumbDrawingView::StartDragTimer(BPoint grab) {
    drag_pending_ = true;
    drag_message_ = BMessage(kirto::kThumbnailDrag);
    drag_message_.AddPoint("point", grab);
    drag_timer_.start(kHoldMilliseconds);
}

void ThumbDrawingView::mouseReleaseEvent(QMouseEvent* event) {
    drag_pending_ = false;
    if (band_.isVisible()) {
        band_.hide();
        SelectAround(band_.geometry(), event->modifiers() & Qt::ControlModifier);
    }
    if (!std::exchange(alone_on_release_, false)) return;
    editor_.application.SendMessage(
        selector_.Choose(shown_.Current(), held_, kirto::FrameSelector::Mode::kAlone));
}

void ThumbDrawingView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Keyboard) {
        if (Layout().HitTest(PointOf(event->pos())) >= 0) menu_.popup(event->globalPos());
        return;
    }
    if (!shown_.CurrentFrame()) return;
    const BRect current = Layout().At(shown_.Selected());
    const QPoint middle(static_cast<int>((current.left + current.right) / 2),
                        static_cast<int>((current.top + current.bottom) / 2));
    menu_.popup(mapToGlobal(middle));
}

// With Shift the selection grows. The application ignores numbers that no frame has.
void ThumbDrawingView::SelectAt(const QKeyEvent& event, int32 number) {
    if (!shown_.CurrentFrame()) return;
    const auto mode = event.modifiers() & Qt::ShiftModifier ? kirto::FrameSelector::Mode::kUpTo
                                                            : kirto::FrameSelector::Mode::kAlone;
    editor_.application.SendMessage(selector_.Choose(shown_.Current(), number, mode));
}

void ThumbDrawingView::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool plain = modifiers == 0;
    const bool selects = plain || modifiers == Qt::ShiftModifier;
    const int32 page = scroll_view_.ViewHeight();
    switch (selects ? event->key() : 0) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            return SelectAt(*event, shown_.Selected() - 1);
        case Qt::Key_Right:
        case Qt::Key_Down:
            return SelectAt(*event, shown_.Selected() + 1);
        case Qt::Key_Home:
            return SelectAt(*event, 0);
        case Qt::Key_End:
            return SelectAt(*event, shown_.FrameCount() - 1);
        default:
            break;
    }
    switch (plain ? event->key() : 0) {
        case Qt::Key_PageDown:
            scroll_view_.ScrollTo(scroll_view_.Top() + page);
            break;
        case Qt::Key_PageUp:
            scroll_view_.ScrollTo(scroll_view_.Top() - page);
            break;
        case Qt::Key_Insert:
            window_.SendMessage(kirto::kMenuInsert);
            break;
        case Qt::Key_Delete:
            window_.SendMessage(kirto::kRemoveFrame);
            break;
        default:
            if (plain && range_entry_->Begins(event->text())) {
                range_entry_->Begin(event->text());
            } else {
                QWidget::keyPressEvent(event);
            }
    }
}

void ThumbDrawingView::MessageReceived(BMessage* message) {
    if (message->what == kirto::kThumbnailDrag) {
        drag_timer_.stop();
        BPoint grab;
        // What is dragged is the current frame; a busy application may take a while to make it the
        // one that is held.
        if (drag_pending_ && shown_.Selected() != held_)
            return drag_timer_.start(kRetryMilliseconds);
        if (!std::exchange(drag_pending_, false)) return;
        alone_on_release_ = false;
        if (message->FindPoint("point", &grab) == B_OK) DragToTracker(grab);
    } else if (message->what == B_COPY_TARGET) {
        SaveToTracker(message);
    } else if (message->what == B_SIMPLE_DATA) {
        const int32 position = drop_position_;
        MoveDropPosition(-1);
        if (message->HasField("Kirto")) return;
        message->AddInt32("position", position);
        window_.SendMessage(*message);
    }
}

// The thumbnail as it stands in the grid, half transparent.
QImage ThumbDrawingView::DragImage(const Frame& frame) {
    BRect thumbnail = Layout().At(shown_.Selected());
    thumbnail.OffsetTo(0, 0);
    const qreal ratio = devicePixelRatioF();
    const QSize size = (kirto::OnPixels(thumbnail, ratio).size() * ratio).toSize();
    QImage image(size.boundedTo({kMaxDragSide, kMaxDragSide}), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    {
        QPainter painter(&image);
        kirto::PicturePainter pictures(painter, palette(),
                                       shown_.Settings().thumbnail_drawtransparent, cache_);
        pictures.Draw(frame.bitmap, thumbnail);
    }
    image.convertTo(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = qRgba(qRed(row[x]), qGreen(row[x]), qBlue(row[x]), kDragAlpha);
    }
    return image;
}

// A folder for each drag, so that files of the same name keep apart. Where none can be made, saving
// will fail and say so.
std::string ThumbDrawingView::NewDragFolder() {
    if (!drag_folder_) drag_folder_ = std::make_unique<QTemporaryDir>();
    const QString name = QString::number(++drag_count_);
    QDir(drag_folder_->path()).mkdir(name);
    return drag_folder_->filePath(name).toStdString();
}

void ThumbDrawingView::DragToTracker(BPoint grab) {
    const kirto::FramePointer frame = shown_.CurrentFrame();
    if (!frame || !frame->bitmap || !kirto::Is32Bit(frame->bitmap->ColorSpace())) return;
    BMessage message(B_SIMPLE_DATA);
    message.AddInt32("be:actions", static_cast<int32>(B_COPY_TARGET));
    message.AddString("be:clip_name", frame->name);
    message.AddString("be:types", "application/octet-stream");
    message.AddString("be:filetypes", "application/octet-stream");
    message.AddInt32("Kirto", 1);
    // What targets ask may outlive the drag, and perhaps this view.
    auto drag = std::make_unique<kirto::FrameDrag>(
        message, kirto::TargaFileName(frame->name), NewDragFolder(),
        [view = QPointer(this)](BMessage* wanted) { return view && view->SaveToTracker(wanted); },
        shown_.StatePointer());
    const QPointer self(this);
    dragging_ = true;
    start_drag_(std::move(drag), DragImage(*frame), grab);
    if (!self) return;
    dragging_ = false;
    if (std::exchange(save_failed_, false)) ReportFailedSave();
}

bool ThumbDrawingView::SaveToTracker(BMessage* message) {
    entry_ref directory;
    std::string name;
    if (message->FindRef("directory", &directory) != B_OK) return false;
    if (message->FindString("name", &name) != B_OK) return false;
    const kirto::FramePointer frame = shown_.CurrentFrame();
    if (!frame) return false;
    const std::shared_ptr<const BBitmap> picture = frame->bitmap->ToBitmap();
    const std::string path = directory.path + "/" + name;
    if (kirto::WriteTargaFile(*picture, path, editor_.roster)) return true;
    ReportFailedSave();
    return false;
}

// The pointer belongs to the drag while it lasts, and whoever asked for the file waits for the
// answer: the alert comes after both.
void ThumbDrawingView::ReportFailedSave() {
    save_failed_ = dragging_;
    if (dragging_) return;
    QTimer::singleShot(0, this, [] {
        kirto::Warn(CoreText::tr(
            "The file could not be saved because the Targa translator is either missing or "
            "failed."));
    });
}

void ThumbDrawingView::MoveDropPosition(int32 position) {
    if (position == drop_position_) return;
    drop_position_ = position;
    update();
}

void ThumbDrawingView::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

// Several frames are moved by dragging them, one only with Shift; those of another editor are
// copied.
bool ThumbDrawingView::MovesFrames(const QDropEvent& event) const {
    if (kirto::BeganInAnotherEditor(*event.mimeData())) return true;
    return !shown_.Current().several.Empty() || (event.modifiers() & Qt::ShiftModifier);
}

void ThumbDrawingView::dragMoveEvent(QDragMoveEvent* event) {
    const BPoint point = PointOf(event->position().toPoint());
    if (CarriesFiles(*event)) {
        // The files stay where they are, whatever the other program proposes.
        event->setDropAction(Qt::CopyAction);
        event->accept();
        MoveDropPosition(Layout().DropPosition(point));
    } else if (kirto::BeganInKirto(*event->mimeData())) {
        // Taken, so that the window does not get it, but nothing comes of a single frame.
        event->setDropAction(MovesFrames(*event) ? Qt::CopyAction : Qt::IgnoreAction);
        event->accept();
        MoveDropPosition(MovesFrames(*event) ? Layout().DropPosition(point) : -1);
    } else {
        event->ignore();
    }
}

void ThumbDrawingView::dragLeaveEvent(QDragLeaveEvent*) {
    MoveDropPosition(-1);
}

void ThumbDrawingView::dropEvent(QDropEvent* event) {
    MoveDropPosition(Layout().DropPosition(PointOf(event->position().toPoint())));
    BMessage drop(B_SIMPLE_DATA);
    const bool own = kirto::BeganInKirto(*event->mimeData());
    if (own) drop.AddInt32("Kirto", 1);
    const bool has_files = kirto::AddRefs(*event->mimeData(), &drop);
    event->setDropAction(own ? Qt::IgnoreAction : Qt::CopyAction);
    event->accept();
    if (own) DropOwn(*event);
    if (own || has_files) MessageReceived(&drop);
    MoveDropPosition(-1);
}

void ThumbDrawingView::DropOwn(const QDropEvent& event) {
    if (kirto::BeganInAnotherEditor(*event.mimeData())) {
        if (auto paste = kirto::PasteCommand(*event.mimeData())) {
            paste->AddInt32("position", drop_position_);
            window_.SendMessage(*paste);
        }
        return;
    }
    if (MovesFrames(event)) {
        const bool copies = event.modifiers() & Qt::ControlModifier;
        BMessage move(copies ? kirto::kCopyFramesTo : kirto::kMoveFramesTo);
        move.AddInt32("position", drop_position_);
        window_.SendMessage(move);
        return;
    }
    BMessage hint(kirto::kStatusUpdate);
    hint.AddString("text", "Status: Shift moves the frame, Ctrl+Shift copies it");
    window_.SendMessage(hint);
}
