#pragma once

#include <memory>

#include "animation/frame.h"
#include "base/pixel_budget.h"
#include "base/work.h"
#include "color/palette.h"
#include "formats/gif/gif_indices.h"
#include "formats/gif/gif_parser.h"
#include "picture/index_painter.h"
#include "picture/picture.h"

namespace kirto {

// Makes frames of the images of a GIF file, one after the other: each image's pixels over what the
// one before leaves on the screen, or alone.
class GifComposer {
  public:
    struct Options {
        bool full_frame = false;        // frames of the screen's size, else of their image's
        bool draw_transparent = false;  // without full_frame: transparent pixels look like that
    };
    // global: the palette that the screen's color table is put into. The budget counts the frames'
    // pixels; the work may be stopped within a frame.
    GifComposer(const Options& options, const Palette& global, std::shared_ptr<PixelBudget> budget,
                Work& work);

    // What the file says in front of the images. An incomplete color table gives the palette its
    // kind and size only.
    void SetScreen(const GifScreen& screen);
    // What it says of the next image; some of it stays in force for all later ones.
    void SetControl(const GifControl& control);
    // The palette of frames without a color table of their own.
    const Palette& GlobalPalette() const { return global_; }

    // Gives the frame, which holds its name, and its palette, not yet its own, what the image says
    // of them, and its pixels. B_BAD_DATA for an image that is damaged or larger than the screen,
    // B_NO_MEMORY, or B_CANCELED. ahead: the image if it was decoded already, else null. file_size:
    // what the work is told the image's place in.
    status_t Compose(const GifImage& image, GifIndices* ahead, int64 file_size, Frame* frame,
                     Palette* palette);

  private:
    std::shared_ptr<const Picture> Below(const GifImage& image, const Palette& current);
    std::shared_ptr<const Picture> FrameDisposal(const Palette& current);
    static std::shared_ptr<const Picture> Solid(uint32 pixel, int32 width, int32 height);
    bool ReserveIndices(const GifImage& image);
    bool ReadGifImageData(const GifImage& image, const Palette& current, GifIndices* ahead,
                          int64 file_size, IndexImage* indices);
    void SetColors(const Palette& current, IndexImage* indices);
    static std::optional<int32> CheckCodeSize(uint8 size, const Palette& current);
    bool CoversScreen(const GifImage& image) const;

    const Options options_;
    const std::shared_ptr<PixelBudget> budget_;
    Work& work_;
    Palette global_;
    int32 width_ = 0;
    int32 height_ = 0;
    int32 current_disposal_ = -1;  // -1: no control block seen yet
    int32 previous_disposal_ = -1;
    std::shared_ptr<const Picture> previous_;  // the picture before; null for the first
    IndexPainter painter_;
    GifIndices indices_;      // of the last image that was decoded here
    SharedPixelTable table_;  // of the last image
};

}  // namespace kirto
