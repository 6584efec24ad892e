#pragma once

#include <span>
#include <unordered_map>
#include <vector>

#include "base/types.h"
#include "formats/export/export_canvas.h"
#include "picture/pixel_rect.h"

namespace kirto {

// How the pixels of all frames stand in a PNG file: as indices where there are few colors, else
// with alpha only where some pixel needs it. Constant once all canvases have been counted; may be
// used by several threads then.
// Format: PNG specification, third edition, "11.2.1 IHDR", "11.2.2 PLTE" and "11.3.1.1 tRNS".
class PngPixels {
  public:
    // Takes the pixels of a canvas into account.
    void Count(std::span<const uint8> canvas);
    // No more canvases come. skips: pixels of no alpha are needed in any case.
    void Settle(bool skips);

    uint8 ColorType() const;
    int32 BitDepth() const { return few_ ? depth_ : 8; }
    // Bytes of a pixel; 1 where there are several in a byte.
    size_t PixelBytes() const;
    size_t RowBytes(int32 width) const;
    // Contents of PLTE and of tRNS; empty where there is no such chunk.
    std::vector<uint8> Palette() const;
    std::vector<uint8> PaletteAlpha() const;
    // Whether a pixel of no alpha can be written.
    bool HasTransparent() const { return few_ ? index_of_.contains(0) : alpha_; }

    // The rows of a rectangle of the canvas, which is `width` pixels wide. below: pixels that are
    // equal there become transparent, so that they stay; null: none.
    std::vector<uint8> Rows(std::span<const uint8> canvas, int32 width, const PixelRect& rect,
                            const CanvasPixels* below) const;

  private:
    static constexpr size_t kMostColors = 256;

    void Put(uint32 pixel, size_t x, uint8* row) const;

    bool few_ = true;     // colors for indices
    bool alpha_ = false;  // a pixel is not opaque
    int32 depth_ = 8;     // of indices
    std::vector<uint32> colors_;
    std::unordered_map<uint32, uint8> index_of_;
};

}  // namespace kirto
