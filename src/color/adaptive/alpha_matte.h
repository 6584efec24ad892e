#pragma once

#include "base/types.h"
#include "color/hash_item.h"

namespace kirto {

// What pixels with alpha become where a pixel is either there or not: those of little alpha are
// transparent, the rest is laid on a color, so that soft edges end in that color and not in black.
// A plain value.
class AlphaMatte {
  public:
    // From here on a pixel is there, unless another alpha is asked for.
    static constexpr uint8 kFirstVisible = 128;
    // Stands for a key where there is no color.
    static constexpr uint32 kTransparent = 1U << 24;

    // color: what lies below the pixels. cuts_out: whether there is a way to write transparent
    // pixels; if not, these are laid on the color as well. first_visible: pixels of less alpha
    // are transparent.
    explicit AlphaMatte(rgb_color color = {255, 255, 255, 255}, bool cuts_out = true,
                        uint8 first_visible = kFirstVisible)
        : color_(color), cuts_out_(cuts_out), first_visible_(first_visible) {}

    // The key of the color that is seen, or kTransparent.
    uint32 KeyOf(rgb_color pixel) const {
        if (pixel.alpha == 255) return ColorKey(pixel.red, pixel.green, pixel.blue);
        if (cuts_out_ && pixel.alpha < first_visible_) return kTransparent;
        return ColorKey(Laid(pixel.red, color_.red, pixel.alpha),
                        Laid(pixel.green, color_.green, pixel.alpha),
                        Laid(pixel.blue, color_.blue, pixel.alpha));
    }
    // The same of a pixel's four bytes.
    template <bool kBigEndian>
    uint32 KeyAt(const uint8* pixel) const {
        if constexpr (kBigEndian) return KeyOf({pixel[1], pixel[2], pixel[3], pixel[0]});
        return KeyOf({pixel[2], pixel[1], pixel[0], pixel[3]});
    }

  private:
    static uint8 Laid(int32 above, int32 below, int32 alpha) {
        return static_cast<uint8>((above * alpha + below * (255 - alpha) + 127) / 255);
    }

    rgb_color color_;
    bool cuts_out_;
    uint8 first_visible_;
};

}  // namespace kirto
