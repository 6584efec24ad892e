#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/types.h"
#include "document/animation_document.h"
#include "painters.h"
#include "settings/prefs.h"

namespace kirto::bench {

// How an animation of the benchmarks is made.
struct AnimationPlan {
    const char* name;
    int32 width;  // of the canvas, pixels
    int32 height;
    int32 frames;
    Painter painter;
    bool local_palettes = false;  // one a frame, else the first frame's for all
    bool differences = false;     // later frames are cropped to what changed, the rest transparent
    bool dithered_file = false;
};

// An image as it stands in a GIF file, before compression.
struct IndexedImage {
    int32 left = 0;
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;
    std::shared_ptr<const Palette> palette;  // the document's or the frame's
    bool local_palette = false;
    std::vector<uint8> indices;  // row after row
};

// An animation in every form that a benchmark starts from. Each form is made when it is first asked
// for, so that a choice of benchmarks does not wait for the others'. Used by one thread.
class BenchAnimation {
  public:
    explicit BenchAnimation(const AnimationPlan& plan);

    const std::string& Name() const { return name_; }
    const AnimationPlan& Plan() const { return plan_; }
    // Of all frames at full size, and of the images alone.
    int64 CanvasPixels() const;
    int64 ImagePixels();

    // The 32-bit pictures, as if they had just been inserted.
    AnimationDocument& Document();
    // The document as GifSave writes it.
    const std::vector<uint8>& File();
    // The images of that file.
    const std::vector<IndexedImage>& Images();
    // The transparent index of the images, or -1.
    int32 TransparentIndex();

  private:
    void Draw();
    void AddFrame(std::shared_ptr<BBitmap> bitmap, int32 left, int32 top);
    std::shared_ptr<BBitmap> PaintStep(int32 step) const;

    const AnimationPlan plan_;
    const std::string name_;
    Prefs prefs_{Prefs::BuiltIn{}};
    std::unique_ptr<AnimationDocument> document_;
    std::optional<std::vector<uint8>> file_;
    std::optional<std::vector<IndexedImage>> images_;
};

// Every animation of the benchmarks.
std::vector<std::unique_ptr<BenchAnimation>> AllAnimations();

// Writes the document to memory, with or without dithering.
std::vector<uint8> SaveToMemory(AnimationDocument& document, bool dither);

}  // namespace kirto::bench
