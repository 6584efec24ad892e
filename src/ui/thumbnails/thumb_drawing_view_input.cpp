// The part of the thumbnail grid that answers the mouse, the keyboard and drags.
#include <QContextMenuEvent>
#include <QDir>
#include <QDropEvent>
#include <QPointer>
#include <utility>

#include "document/command_codes.h"
#include "kit/alert.h"
#include "ui/thumbnails/file_urls.h"
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
        {"Insert Frame", kirto::kMenuInsert},
        {"Remove Frame", kirto::kRemoveFrame},
        {"Move Up", kirto::kMoveFrameUp},
        {"Move Down", kirto::kMoveFrameDown},
        {"Fade Effects...", kirto::kMenuFadeEffects},
    };
    for (const auto& [label, command] : items) {
        menu_.addAction(label, this, [this, code = command] { window_.SendMessage(code); });
    }
}

void ThumbDrawingView::SelectFrame(int32 number) {
    BMessage select(kirto::kSelectFrame);
    select.AddInt32("number", number);
    editor_.application.SendMessage(select);
}

void ThumbDrawingView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    const BPoint point = PointOf(event->position().toPoint());
    const int32 index = Layout().HitTest(point);
    if (index < 0) return;
    SelectFrame(index);
    if (event->button() != Qt::LeftButton) return;
    const BRect thumbnail = layout_.At(index);
    held_ = index;
    StartDragTimer({point.x - thumbnail.left, point.y - thumbnail.top});
}

void ThumbDrawingView::StartDragTimer(BPoint grab) {
    drag_pending_ = true;
    drag_message_ = BMessage(kirto::kThumbnailDrag);
    drag_message_.AddPoint("point", grab);
    drag_timer_.start(kHoldMilliseconds);
}

void ThumbDrawingView::mouseReleaseEvent(QMouseEvent*) {
    drag_pending_ = false;
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

void ThumbDrawingView::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    const int32 page = scroll_view_.ViewHeight();
    switch (plain ? event->key() : 0) {
        // The application ignores numbers that no frame has.
        case Qt::Key_Left:
        case Qt::Key_Up:
            if (shown_.CurrentFrame()) SelectFrame(shown_.Selected() - 1);
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
            if (shown_.CurrentFrame()) SelectFrame(shown_.Selected() + 1);
            break;
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
            QWidget::keyPressEvent(event);
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
        [view = QPointer(this)](BMessage* wanted) { return view && view->SaveToTracker(wanted); });
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
        kirto::Warn(
            "The file could not be saved because the Targa translator is either missing or "
            "failed.");
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

void ThumbDrawingView::dragMoveEvent(QDragMoveEvent* event) {
    if (CarriesFiles(*event)) {
        // The files stay where they are, whatever the other program proposes.
        event->setDropAction(Qt::CopyAction);
        event->accept();
        MoveDropPosition(Layout().DropPosition(PointOf(event->position().toPoint())));
    } else if (kirto::BeganInKirto(*event->mimeData())) {
        // Taken, so that the window does not get it, but nothing comes of it.
        event->setDropAction(Qt::IgnoreAction);
        event->accept();
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
    if (own || has_files) MessageReceived(&drop);
    MoveDropPosition(-1);
}
