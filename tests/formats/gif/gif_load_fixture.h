// What the tests of the GIF decoder share: a document to load into and small files.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "formats/gif/gif_load.h"
#include "support/colors.h"
#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

inline constexpr uint32 kUnpainted = 0;

// Index 0 black, 1 red, 2 green, 3 blue.
inline const std::vector<uint32> kFourColors = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF};
// The same in the opposite order.
inline const std::vector<uint32> kFourColorsReversed = {0x0000FF, 0x00FF00, 0xFF0000, 0x000000};

// A file without images whose screen is so large and which has the four colours.
inline GifBuilder FourColorGif(int32 width, int32 height, uint8 background = 0) {
    return GifBuilder(width, height, kFourColors, background);
}

// An image of the four colours at the screen's corner.
inline GifBuilder::Image ImageOf(int32 width, int32 height, const std::vector<uint8>& indices) {
    GifBuilder::Image image;
    image.width = width;
    image.height = height;
    image.indices = indices;
    image.min_code_size = 2;
    return image;
}

inline GifBuilder::Image ImageAt(int32 x, int32 y, int32 width, int32 height,
                                 const std::vector<uint8>& indices) {
    GifBuilder::Image image = ImageOf(width, height, indices);
    image.x = x;
    image.y = y;
    return image;
}

// Loads files into one document and keeps what the last load said.
class GifLoadTest : public testing::Test {
  protected:
    // True when the load did not fail.
    bool Load(const std::vector<uint8>& bytes, int32 start = 0) {
        const DebugRecorder debug;
        const auto file = BFile::OnMemory(bytes);
        const GifLoad loader(file.get(), start, document);
        end = loader.End();
        debug_text = debug.Text();
        return !loader.failed;
    }
    // As above, images at their own size.
    bool LoadRaw(const std::vector<uint8>& bytes) {
        prefs.animation_gifloadfullframe = false;
        return Load(bytes);
    }
    const Frame& FrameOf(int32 index) { return *document.FrameAt(index); }
    const Palette& GlobalPalette() { return *document.Current()->palette; }
    std::vector<uint32> Pixels(int32 index) { return PixelsOf(*FrameOf(index).bitmap); }

    DocumentFixture fixture;
    Prefs& prefs = fixture.prefs;
    AnimationDocument& document = fixture.document;
    int32 end = 0;
    std::string debug_text;
};

}  // namespace kirto::test
