#include "ui/player/pixel_text.h"

#include <algorithm>
#include <vector>

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr int kOpaque = 255;

// x and y: within the picture, which has rows.
rgb_color ColorAt(const Picture& picture, int32 x, int32 y) {
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    picture.ReadRow(y, row.data());
    uint8* pixel = row.data() + static_cast<size_t>(x) * 4;
    if (IsBigEndian(picture.ColorSpace())) std::reverse(pixel, pixel + 4);
    return {pixel[2], pixel[1], pixel[0], pixel[3]};
}

// The first entry that is just that color, or -1.
int32 IndexOf(const Palette& palette, rgb_color color) {
    for (int32 i = 0; i < palette.size; ++i) {
        const rgb_color entry = palette.ColorForIndex(i);
        if (entry.red == color.red && entry.green == color.green && entry.blue == color.blue)
            return i;
    }
    return -1;
}

}  // namespace

QString PixelText(const Animation& animation, const Frame& frame, QPoint pixel) {
    const Picture* picture = frame.bitmap.get();
    const int64 x = int64{pixel.x()} - frame.x_offset;
    const int64 y = int64{pixel.y()} - frame.y_offset;
    const bool inside = picture && picture->HasRows() && x >= 0 && y >= 0 && x < picture->Width() &&
                        y < picture->Height();
    if (!inside) return UiText::tr("no frame");
    const rgb_color color = ColorAt(*picture, static_cast<int32>(x), static_cast<int32>(y));
    if (color.alpha == 0) return UiText::tr("transparent");
    const QString text = QString("#%1%2%3")
                             .arg(color.red, 2, 16, QChar('0'))
                             .arg(color.green, 2, 16, QChar('0'))
                             .arg(color.blue, 2, 16, QChar('0'))
                             .toUpper();
    if (color.alpha < kOpaque) return text + UiText::tr(", alpha %1").arg(color.alpha);
    const int32 index = IndexOf(frame.local_palette ? *frame.palette : *animation.palette, color);
    return index < 0 ? text : text + UiText::tr(", index %1").arg(index);
}

}  // namespace kirto
