#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "animation/gif_source.h"
#include "formats/gif/gif_composer.h"
#include "picture/screen_compositor.h"

namespace kirto {

// Makes frames as web browsers show them: pictures of the whole screen, transparent where nothing
// was drawn. Each remembers how it stood in the file.
class GifBrowserComposer : public GifComposer {
  public:
    GifBrowserComposer(const Palette& global, std::shared_ptr<PixelBudget> budget, Work& work);

    void SetScreen(const GifScreen& screen) override;
    // All of it holds for the next image only.
    void SetControl(const GifControl& control) override;
    std::optional<int32> CodeSizeOf(const GifImage& image) const override;
    // The first image may make the screen larger. What is missing of an image's data is not drawn.
    // B_BAD_DATA where there is no code size or no screen, or the color table breaks off.
    status_t Compose(const GifImage& image, GifIndices* ahead, int64 file_size, Frame* frame,
                     Palette* palette) override;

  private:
    using Colors = std::shared_ptr<const std::vector<rgb_color>>;

    status_t OpenScreen(const GifImage& image);
    IndexImage PlacedIn(const Colors& colors, const GifImage& image, const GifIndices& decoded);
    std::shared_ptr<const GifSource> SourceOf(const GifImage& image, Colors colors,
                                              const std::shared_ptr<const Picture>& picture);

    GifControl control_;                      // of the next image
    Colors global_colors_;                    // null: there are none
    std::optional<ScreenCompositor> screen_;  // from the first image on
    std::shared_ptr<const GifSource> last_source_;
    bool lacks_source_ = false;  // of an image so far
};

}  // namespace kirto
