#include "ui/controls/image_of.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "kit/qt/picture_image.h"

namespace kirto {

namespace {

constexpr int64 kMostPixels = int64{16} << 20;

// Of so many rows and columns one is taken.
int32 StepFor(const Picture& picture, QSize shown) {
    if (int64{picture.Width()} * picture.Height() <= kMostPixels) return 1;
    const int32 across = picture.Width() / std::max(2 * shown.width(), 1);
    const int32 down = picture.Height() / std::max(2 * shown.height(), 1);
    return std::max(std::min(across, down), 1);
}

// One pixel of so many.
void Thin(const std::vector<uint8>& row, int32 step, uchar* target, int width) {
    const size_t apart = static_cast<size_t>(step) * 4;
    const uint8* source = row.data();
    for (int x = 0; x < width; ++x, source += apart, target += 4)
        std::memcpy(target, source, 4);
}

void TurnPixels(uchar* pixels, int width) {
    for (int x = 0; x < width; ++x, pixels += 4)
        std::reverse(pixels, pixels + 4);
}

}  // namespace

QImage ImageOf(const std::shared_ptr<const Picture>& picture, QSize shown) {
    if (!picture || !picture->HasRows()) return {};
    if (picture->KeptBitmap()) return ImageOfPicture(picture->KeptBitmap());
    const int32 step = StepFor(*picture, shown);
    QImage image((picture->Width() + step - 1) / step, (picture->Height() + step - 1) / step,
                 picture->IsOpaque() ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    if (image.isNull()) return image;
    const bool turned = IsBigEndian(picture->ColorSpace());
    const int width = image.width();
    std::vector<uint8> row(step == 1 ? 0 : static_cast<size_t>(picture->Width()) * 4);
    for (int32 y = 0; y < image.height(); ++y) {
        uchar* target = image.scanLine(y);
        if (step == 1) {
            picture->ReadRow(y, target);
        } else {
            picture->ReadRow(y * step, row.data());
            Thin(row, step, target, width);
        }
        if (turned) TurnPixels(target, width);
    }
    return image;
}

}  // namespace kirto
