#pragma once

#include <memory>
#include <optional>

#include "animation/frame.h"
#include "base/pixel_budget.h"
#include "base/work.h"
#include "color/palette.h"
#include "formats/gif/gif_indices.h"
#include "formats/gif/gif_parser.h"
#include "formats/gif/harmless_cause.h"
#include "picture/index_painter.h"

namespace kirto {

// Makes frames of the images of a GIF file, one after the other. How an image's pixels become a
// picture is up to the subclass.
class GifComposer {
  public:
    // global: the palette that the screen's color table is put into. The budget counts the frames'
    // pixels; the work may be stopped within a frame.
    GifComposer(const Palette& global, std::shared_ptr<PixelBudget> budget, Work& work);
    virtual ~GifComposer() = default;
    GifComposer(const GifComposer&) = delete;
    GifComposer& operator=(const GifComposer&) = delete;

    // What the file says in front of the images. An incomplete color table gives the palette its
    // kind and size only.
    virtual void SetScreen(const GifScreen& screen);
    // What it says of the next image.
    virtual void SetControl(const GifControl& control);
    // The palette of frames without a color table of their own.
    const Palette& GlobalPalette() const { return global_; }
    // The screen, in pixels.
    int32 Width() const { return width_; }
    int32 Height() const { return height_; }

    // The code size that the image's data is decoded with; nothing where it is not. On any thread,
    // says nothing.
    virtual std::optional<int32> CodeSizeOf(const GifImage& image) const = 0;

    // Gives the frame, which holds its name, and its palette, not yet its own, what the image says
    // of them, and its pixels. B_BAD_DATA for an image that can't be shown, B_NO_MEMORY, or
    // B_CANCELED. ahead: the image if it was decoded already, else null. file_size: what the work
    // is told the image's place in.
    virtual status_t Compose(const GifImage& image, GifIndices* ahead, int64 file_size,
                             Frame* frame, Palette* palette) = 0;
    // Of B_BAD_DATA that Compose has returned.
    HarmlessCause Cause() const { return cause_; }

  protected:
    // Marks the frame local, and fills its palette, if the image has a table. The palette that is
    // in force for it; null when the file ended within that table.
    const Palette* TakeTable(const GifImage& image, Frame* frame, Palette* palette) const;
    // Whether a picture of that size, which others are given as a bitmap, keeps to the budget.
    bool IsAffordable(int32 width, int32 height) const;
    // Makes room for the indices of an image that is decoded here. False when memory is short.
    bool Reserve(const GifImage& image);
    // The image's indices: what is ahead, or else decoded here, after Reserve. Lines of the decoder
    // are printed.
    const GifIndices& Decode(const GifImage& image, GifIndices* ahead, int32 min_code_size,
                             int64 file_size);
    // The indices as they are painted, at the image's place and in these colors.
    IndexImage Placed(const GifImage& image, const GifIndices& decoded, const PixelTable& table);

    int32 width_ = 0;
    int32 height_ = 0;
    Palette global_;
    const std::shared_ptr<PixelBudget> budget_;
    Work& work_;
    HarmlessCause cause_ = HarmlessCause::kNone;

  private:
    GifIndices indices_;      // of the last image that was decoded here
    SharedPixelTable table_;  // of the last image
};

}  // namespace kirto
