#include "kit/qt/image_bitmap.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

// Rows that are converted at a time, so that no second picture comes about on the way.
constexpr int kBandRows = 64;

}  // namespace

std::shared_ptr<BBitmap> BitmapOf(const QImage& image, std::shared_ptr<PixelBudget> budget) {
    const bool has_alpha = image.hasAlphaChannel();
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(image.width(), image.height()),
                                            has_alpha ? B_RGBA32 : B_RGB32, std::move(budget));
    if (bitmap->InitCheck() != B_OK) return nullptr;
    for (int top = 0; top < bitmap->Height(); top += kBandRows) {
        const int rows = std::min(kBandRows, bitmap->Height() - top);
        const QImage band =
            image.copy(0, top, image.width(), rows)
                .convertToFormat(has_alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
        if (band.isNull()) return nullptr;
        for (int y = 0; y < rows; ++y)
            std::memcpy(bitmap->Row(top + y), band.constScanLine(y), bitmap->BytesPerRow());
    }
    return bitmap;
}

bool DecodesInPlace(const QImageReader& reader) {
    // Those of Qt's decoders that fill the image they are handed.
    const QByteArray format = reader.format();
    if (format != "png" && format != "jpeg" && format != "bmp") return false;
    // Of damaged files, some decoders tell no size, and a format that is anything.
    if (!reader.size().isValid()) return false;
    if (reader.transformation() != QImageIOHandler::TransformationNone) return false;
    return reader.imageFormat() == QImage::Format_RGB32 ||
           reader.imageFormat() == QImage::Format_ARGB32;
}

status_t ReadInPlace(QImageReader& reader, std::shared_ptr<PixelBudget> budget,
                     std::shared_ptr<BBitmap>* result) {
    const QSize size = reader.size();
    const QImage::Format format = reader.imageFormat();
    auto bitmap =
        std::make_shared<BBitmap>(BRect::OfSize(size.width(), size.height()),
                                  format == QImage::Format_ARGB32 ? B_RGBA32 : B_RGB32, budget);
    if (bitmap->InitCheck() != B_OK) return B_NO_MEMORY;
    QImage image(bitmap->Bits(), size.width(), size.height(),
                 static_cast<qsizetype>(bitmap->BytesPerRow()), format);
    if (!reader.read(&image)) return B_NO_TRANSLATOR;
    if (image.constBits() == bitmap->Bits()) {
        *result = std::move(bitmap);
        return B_OK;
    }
    bitmap.reset();
    *result = BitmapOf(image, std::move(budget));
    return *result ? B_OK : B_NO_MEMORY;
}

}  // namespace kirto
