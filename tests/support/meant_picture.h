// What readers should see of a document once it is written, worked out from the document alone.
#pragma once

#include <vector>

#include "document/animation_document.h"
#include "support/random_document.h"
#include "support/test_support.h"

namespace kirto::test {

// A picture, row by row, as 0xAARRGGBB values; transparent pixels are 0.
using Pixels = std::vector<uint32>;

inline constexpr uint32 kTransparentPixel = 0;

// A document made of choices, with its settings.
struct MadeUpAnimation {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    Prefs& prefs = fixture.prefs;

    MadeUpAnimation(const DocumentStyle& style, ChoiceSource& choices);
    MadeUpAnimation(const DocumentStyle& style, uint32 seed);
    std::vector<uint8> Save();
    // False when pixels come out dithered to colours that only the encoder can tell.
    bool PixelsAreKnown(const DocumentStyle& style) const;
};

// The pixels of one image of the file: each has the nearest colour of its palette, or is
// transparent.
Pixels MeantPixels(const AnimationDocument& document, const Frame& frame);

// As above, with the colours that the loader gives transparent pixels of frames in their own size.
Pixels MeantOwnSizePixels(const AnimationDocument& document, const Frame& frame);

// Puts the frame's pixels where they are not transparent onto the canvas, at its place.
void Draw(const AnimationDocument& document, const Frame& frame, Pixels* canvas);

// The canvas after each frame where nothing is disposed of.
std::vector<Pixels> MeantCanvases(const AnimationDocument& document);

}  // namespace kirto::test
