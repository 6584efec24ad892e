#pragma once

#include <memory>
#include <optional>

#include "formats/gif/gif_composer.h"
#include "picture/index_painter.h"
#include "picture/picture.h"

namespace kirto {

// Makes frames by the program's own rules: each image's pixels over what the one before leaves on
// the screen, or alone.
class GifDefinedComposer : public GifComposer {
  public:
    struct Options {
        bool full_frame = false;        // frames of the screen's size, else of their image's
        bool draw_transparent = false;  // without full_frame: transparent pixels look like that
    };
    GifDefinedComposer(const Options& options, const Palette& global,
                       std::shared_ptr<PixelBudget> budget, Work& work);

    // Some of it stays in force for all later images.
    void SetControl(const GifControl& control) override;
    std::optional<int32> CodeSizeOf(const GifImage& image) const override;
    // B_BAD_DATA for an image that is damaged or larger than the screen.
    status_t Compose(const GifImage& image, GifIndices* ahead, int64 file_size, Frame* frame,
                     Palette* palette) override;

  private:
    bool FitsScreen(const GifImage& image) const;
    bool IsHiddenBy(const IndexImage& image, int32 width, int32 height) const;
    std::shared_ptr<const Picture> Below(const GifImage& image, const Palette& current);
    std::shared_ptr<const Picture> FrameDisposal(const Palette& current);
    static std::shared_ptr<const Picture> Solid(uint32 pixel, int32 width, int32 height);
    IndexImage PlacedIn(const Palette& current, const GifImage& image, const GifIndices& decoded);
    static std::optional<int32> CheckCodeSize(uint8 size, const Palette& current);
    static bool HasShortCodes(const GifImage& image, const Palette& current);
    bool CoversScreen(const GifImage& image) const;

    const Options options_;
    int32 current_disposal_ = -1;  // -1: no control block seen yet
    int32 previous_disposal_ = -1;
    std::shared_ptr<const Picture> previous_;  // the picture before; null for the first
    IndexPainter painter_;
};

}  // namespace kirto
