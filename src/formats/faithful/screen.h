#pragma once

#include <memory>
#include <span>
#include <vector>

#include "animation/frame.h"
#include "base/types.h"
#include "color/adaptive/alpha_matte.h"
#include "picture/picture.h"
#include "picture/pixel_rect.h"

namespace kirto {

// What the pixels of a screen show, row by row: the key of a color, or nothing.
using ScreenPixels = std::vector<uint32>;
inline constexpr uint32 kNothing = AlphaMatte::kTransparent;

// A picture at its place on the screen; nothing is shown around it.
struct ScreenImage {
    std::shared_ptr<const Picture> picture;  // null, or without rows: nothing is shown
    int32 left = 0;
    int32 top = 0;
    int32 width = 0;  // of the picture, so much is shown
    int32 height = 0;

    static ScreenImage Of(const Frame& frame);
};

// The colors as pixels of B_RGB32, four bytes each: opaque, or nothing's.
void FillPixels(std::span<const uint32> keys, uint8* pixels);

// Part of a screen of that size, which may be none of it.
PixelRect Clipped(const PixelRect& rect, int32 width, int32 height);
// What is in both rectangles on a screen; of no pixels where nothing is.
PixelRect Common(const PixelRect& a, const PixelRect& b);
// The smallest rectangle around both; one of no pixels counts for nothing.
PixelRect Around(const PixelRect& a, const PixelRect& b);

// The screen that an animation is shown on. A value; may be used by several threads. What is made
// takes 4 bytes a pixel; throws std::bad_alloc where they are not to be had.
class Screen {
  public:
    // In pixels, above 0. matte: of pixels with alpha.
    Screen(int32 width, int32 height, const AlphaMatte& matte)
        : width_(width), height_(height), matte_(matte) {}

    int32 Width() const { return width_; }
    int32 Height() const { return height_; }
    PixelRect Whole() const { return {0, 0, width_, height_}; }
    size_t At(int32 x, int32 y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x);
    }

    ScreenPixels Empty() const;
    // What the screen shows with nothing but the image.
    ScreenPixels Show(const ScreenImage& image) const;
    // The part in the rectangle, row by row. rect: on the screen.
    ScreenPixels ShowPart(const ScreenImage& image, const PixelRect& rect) const;
    // Takes what is in the rectangle off the screen.
    void Clear(const PixelRect& rect, ScreenPixels* pixels) const;
    // A picture of the pixels; throws std::bad_alloc.
    std::shared_ptr<const Picture> PictureOf(const ScreenPixels& pixels) const;

  private:
    int32 width_;
    int32 height_;
    AlphaMatte matte_;
};

}  // namespace kirto
