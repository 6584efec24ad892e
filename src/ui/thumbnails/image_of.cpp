#include "ui/thumbnails/image_of.h"

#include <algorithm>

#include "kit/qt/picture_image.h"

namespace kirto {

QImage ImageOf(const std::shared_ptr<const Picture>& picture) {
    if (!picture || !picture->HasRows()) return {};
    if (picture->KeptBitmap()) return ImageOfPicture(picture->KeptBitmap());
    QImage image(picture->Width(), picture->Height(),
                 picture->IsOpaque() ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    if (image.isNull()) return image;
    const bool turned = IsBigEndian(picture->ColorSpace());
    for (int32 y = 0; y < picture->Height(); ++y) {
        uchar* target = image.scanLine(y);
        picture->ReadRow(y, target);
        for (int32 x = 0; turned && x < picture->Width(); ++x, target += 4)
            std::reverse(target, target + 4);
    }
    return image;
}

}  // namespace kirto
