#include "ui/controls/thumbnail_cache.h"

#include "ui/controls/image_of.h"

namespace kirto {

ThumbnailCache::ThumbnailCache(int64 max_bytes) : entries_(static_cast<qsizetype>(max_bytes)) {}

QImage ThumbnailCache::Find(const std::shared_ptr<const Picture>& picture, QSize size) const {
    const Entry* entry = entries_.object({picture.get(), size});
    return entry && entry->picture.lock() == picture ? entry->image : QImage();
}

QImage ThumbnailCache::Scaled(const std::shared_ptr<const Picture>& picture, QSize size) {
    QImage image = Find(picture, size);
    if (!image.isNull()) return image;
    const QImage source = ImageOf(picture, size);
    if (source.isNull()) return {};
    // What is scaled is first made premultiplied, so that the colors below transparent pixels do
    // not bleed into their neighbors.
    image = source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (image.isNull()) return image;
    // A scaled picture has pixels of its own, also in the size it had before.
    if (source.hasAlphaChannel()) {
        image.convertTo(QImage::Format_ARGB32_Premultiplied);
    } else if (image.size() == source.size()) {
        image = image.copy();
    }
    entries_.insert({picture.get(), size}, new Entry{picture, image}, image.sizeInBytes());
    return image;
}

}  // namespace kirto
