#include "kit/qt/picture_image.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

using SharedPicture = std::shared_ptr<const BBitmap>;

// In every 32-bit color space: the decoders leave alpha 0 where no image paints.
bool HasTransparency(const BBitmap& picture) {
    const size_t alpha = IsBigEndian(picture.ColorSpace()) ? 0 : 3;
    for (size_t i = alpha; i < picture.BitsLength(); i += 4) {
        if (picture.Bits()[i] != 255) return true;
    }
    return false;
}

void Release(void* kept) {
    delete static_cast<SharedPicture*>(kept);
}

QImage CopyWithBytesReversed(const BBitmap& picture, QImage::Format format) {
    QImage image(picture.Width(), picture.Height(), format);
    if (image.isNull()) return image;
    for (int32 y = 0; y < picture.Height(); ++y) {
        uchar* target = image.scanLine(y);
        std::memcpy(target, picture.Row(y), picture.BytesPerRow());
        for (int32 x = 0; x < picture.Width(); ++x, target += 4)
            std::reverse(target, target + 4);
    }
    return image;
}

}  // namespace

QImage ImageOfPicture(const BBitmap& picture) {
    if (picture.InitCheck() != B_OK || !Is32Bit(picture.ColorSpace())) return {};
    const QImage::Format format =
        HasTransparency(picture) ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    if (IsBigEndian(picture.ColorSpace())) return CopyWithBytesReversed(picture, format);
    return QImage(picture.Bits(), picture.Width(), picture.Height(),
                  static_cast<qsizetype>(picture.BytesPerRow()), format);
}

QImage ImageOfPicture(const SharedPicture& picture) {
    if (!picture) return {};
    QImage image = ImageOfPicture(*picture);
    if (image.isNull() || image.constBits() != picture->Bits()) return image;
    return QImage(picture->Bits(), image.width(), image.height(), image.bytesPerLine(),
                  image.format(), Release, new SharedPicture(picture));
}

}  // namespace kirto
