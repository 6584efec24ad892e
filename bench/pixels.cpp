#include "pixels.h"

#include <cstdlib>
#include <cstring>

namespace kirto::bench {

namespace {

std::shared_ptr<BBitmap> NewBitmap(int32 width, int32 height) {
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(width, height), B_RGB32);
    if (bitmap->InitCheck() != B_OK) std::abort();
    return bitmap;
}

Frame FrameOf(std::shared_ptr<const BBitmap> bitmap) {
    Frame frame("frame", bitmap->Width(), bitmap->Height());
    frame.bitmap = Picture::Of(std::move(bitmap));
    return frame;
}

}  // namespace

Frame PaintedFrame(Painter painter, int32 width, int32 height, int32 step) {
    auto bitmap = NewBitmap(width, height);
    for (int32 y = 0; y < height; ++y) {
        uint8* pixel = bitmap->Row(y);
        for (int32 x = 0; x < width; ++x, pixel += 4) {
            const rgb_color color = painter(x, y, step);
            pixel[0] = color.blue;
            pixel[1] = color.green;
            pixel[2] = color.red;
            pixel[3] = color.alpha;
        }
    }
    return FrameOf(std::move(bitmap));
}

Frame FrameOfPixels(const uint8* pixels, int32 width, int32 height) {
    auto bitmap = NewBitmap(width, height);
    const size_t row = static_cast<size_t>(width) * 4;
    for (int32 y = 0; y < height; ++y, pixels += row)
        std::memcpy(bitmap->Row(y), pixels, row);
    return FrameOf(std::move(bitmap));
}

const Picture* PictureOf(const Frame& frame) {
    return frame.bitmap.get();
}

void ReadPixels(const Frame& frame, int32 y, uint8* target) {
    frame.bitmap->ReadRow(y, target);
}

}  // namespace kirto::bench
