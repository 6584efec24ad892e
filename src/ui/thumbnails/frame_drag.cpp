#include "ui/thumbnails/frame_drag.h"

#include <QCoreApplication>
#include <QDrag>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "app/frames_exchange.h"
#include "ui/thumbnails/direct_save.h"
#include "ui/thumbnails/file_urls.h"
#include "ui/thumbnails/frames_mime_data.h"

namespace kirto {

namespace {

// The number of the process that the drag began in.
constexpr char kProcessType[] = "application/x-kirto-process";
constexpr char kFileListType[] = "text/uri-list";

QByteArray ThisProcess() {
    return QByteArray::number(QCoreApplication::applicationPid());
}

}  // namespace

FrameDrag::FrameDrag(const BMessage& message, std::string file_name, std::string folder, Save save,
                     std::shared_ptr<const DocumentState> state)
    : message_(BytesOf(message.Flatten())),
      file_name_(std::move(file_name)),
      folder_(std::move(folder)),
      save_(std::move(save)),
      state_(std::move(state)) {}

QStringList FrameDrag::formats() const {
    QStringList types{kDragMessageType, kFileListType};
    if (state_) types << kFramesType << kProcessType;
    if (IsDirectSavePossible()) types.append(kDirectSaveType);
    return types;
}

bool FrameDrag::hasFormat(const QString& type) const {
    return formats().contains(type);
}

QVariant FrameDrag::retrieveData(const QString& type, QMetaType) const {
    if (type == kDragMessageType) return message_;
    if (type == kFileListType) return FileList();
    if (type == kProcessType && state_) return ThisProcess();
    if (type == kFramesType && state_) return BytesOf(PackFrames(*state_));
    if (type == kDirectSaveType) return DirectSaveAnswer();
    return {};
}

bool FrameDrag::SaveAt(const std::string& path) const {
    const entry_ref file(path);
    BMessage message(B_COPY_TARGET);
    message.AddRef("directory", entry_ref(file.Directory()));
    message.AddString("name", file.Leaf());
    return save_(&message);
}

QByteArray FrameDrag::FileList() const {
    const std::string path = folder_ + "/" + file_name_;
    if (!is_saved_) is_saved_ = SaveAt(path);
    return *is_saved_ ? FileUrlOf(path) + "\r\n" : QByteArray();
}

QByteArray FrameDrag::DirectSaveAnswer() const {
    const std::optional<std::string> path = DirectSavePath();
    return path && SaveAt(*path) ? kDirectSaveDone : kDirectSaveFailed;
}

bool BeganInKirto(const QMimeData& data) {
    const QByteArray bytes = data.data(kDragMessageType);
    const std::vector<uint8> flattened(bytes.begin(), bytes.end());
    BMessage message;
    int32 mark = 0;
    return message.Unflatten(flattened.data(), flattened.size()) == B_OK &&
           message.FindInt32("Kirto", &mark) == B_OK;
}

bool BeganInAnotherEditor(const QMimeData& data) {
    return data.hasFormat(kProcessType) && data.data(kProcessType) != ThisProcess();
}

void RunFrameDrag(QWidget* source, std::unique_ptr<FrameDrag> data, const QImage& image,
                  BPoint grab) {
    auto* drag = new QDrag(source);
    drag->setPixmap(QPixmap::fromImage(image));
    drag->setHotSpot(QPoint(static_cast<int>(grab.x), static_cast<int>(grab.y)));
    const std::string file_name = data->FileName();
    drag->setMimeData(data.release());
    // The source window is known only once the drag has begun.
    QTimer::singleShot(0, drag, [file_name] { OfferDirectSave(file_name); });
    drag->exec(Qt::CopyAction);
}

}  // namespace kirto
