#include "oracle/giflib_reader.h"

#ifdef KIRTO_HAVE_GIFLIB

#include <algorithm>
#include <cstring>

namespace kirto::test {

namespace {

// For a pixel past its colour table: no colour that anybody means.
constexpr uint32 kUnknownColor = 0x12345678;

}  // namespace

Slurped::Slurped(const std::vector<uint8>& bytes) : bytes_(bytes) {
    int error = 0;
    gif_ = DGifOpen(this, Read, &error);
    complete_ = gif_ && DGifSlurp(gif_) == GIF_OK && position_ == bytes.size();
}

Slurped::~Slurped() {
    if (gif_) DGifCloseFile(gif_, nullptr);
}

int Slurped::Read(GifFileType* gif, GifByteType* buffer, int size) {
    Slurped& self = *static_cast<Slurped*>(gif->UserData);
    const size_t count = std::min(static_cast<size_t>(size), self.bytes_.size() - self.position_);
    if (count > 0) std::memcpy(buffer, &self.bytes_[self.position_], count);
    self.position_ += count;
    return static_cast<int>(count);
}

GraphicsControlBlock Slurped::Control(int32 i) const {
    GraphicsControlBlock control{};
    control.TransparentColor = NO_TRANSPARENT_COLOR;
    DGifSavedExtensionToGCB(gif_, i, &control);
    return control;
}

Pixels Slurped::ImagePixels(int32 i) const {
    const SavedImage& image = Image(i);
    const int32 transparent_index = Control(i).TransparentColor;
    const ColorMapObject* map = image.ImageDesc.ColorMap;
    if (!map) map = gif_->SColorMap;
    Pixels pixels;
    for (int32 pixel = 0; pixel < image.ImageDesc.Width * image.ImageDesc.Height; ++pixel) {
        const int32 index = image.RasterBits[pixel];
        if (index == transparent_index) {
            pixels.push_back(kTransparentPixel);
        } else if (!map || index >= map->ColorCount) {
            pixels.push_back(kUnknownColor);
        } else {
            const GifColorType& color = map->Colors[index];
            pixels.push_back(0xFF000000 | ColorKey(color.Red, color.Green, color.Blue));
        }
    }
    return pixels;
}

}  // namespace kirto::test

#endif
