#include "ui/thumbnails/frames_mime_data.h"

#include <QImage>
#include <vector>

#include "document/command_codes.h"
#include "kit/qt/text_picture.h"
#include "ui/controls/image_of.h"
#include "ui/thumbnails/file_urls.h"

namespace kirto {

namespace {

// What Qt makes the image formats of other programs of.
constexpr const char* kQtImageType = "application/x-qt-image";
constexpr const char* kPngType = "image/png";

std::optional<BMessage> Pasting(const char* type, const QByteArray& bytes) {
    if (bytes.isEmpty()) return std::nullopt;
    BMessage command(kPasteFrames);
    command.AddString("type", type);
    command.AddData("bytes", B_RAW_TYPE, bytes.constData(), static_cast<size_t>(bytes.size()));
    return command;
}

}  // namespace

QByteArray BytesOf(const std::vector<uint8>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

QStringList FramesMimeData::formats() const {
    return {kFramesType, kGifType, kQtImageType};
}

bool FramesMimeData::hasFormat(const QString& type) const {
    return formats().contains(type);
}

QVariant FramesMimeData::retrieveData(const QString& type, QMetaType) const {
    if (type == kQtImageType) {
        const FramePointer frame = state_->animation->CurrentFrame();
        return frame ? ImageOf(frame->bitmap, {frame->width, frame->height}) : QImage();
    }
    if (type != kFramesType && type != kGifType) return {};
    QByteArray& bytes = made_[type];
    if (bytes.isEmpty())
        bytes = BytesOf(type == kFramesType ? PackFrames(*state_) : PackAsGif(*state_));
    return bytes;
}

std::optional<BMessage> PasteCommand(const QMimeData& data) {
    for (const char* type : {kFramesType, kGifType}) {
        if (data.hasFormat(type)) return Pasting(type, data.data(type));
    }
    if (data.hasUrls()) {
        BMessage files(B_SIMPLE_DATA);
        return AddRefs(data, &files) ? std::optional(files) : std::nullopt;
    }
    if (data.hasFormat(kPngType)) return Pasting(kPngType, data.data(kPngType));
    // The bytes as they are: Qt would decode them here, where a bad file could do harm.
    for (const QString& type : data.formats()) {
        if (type.startsWith("image/")) return Pasting(kPngType, data.data(type));
    }
    if (data.hasImage())
        return Pasting(kPngType,
                       QByteArray::fromStdString(PngOf(qvariant_cast<QImage>(data.imageData()))));
    return std::nullopt;
}

}  // namespace kirto
