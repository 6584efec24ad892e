#include "support/meant_picture.h"

#include <algorithm>

#include "formats/gif/gif_save.h"
#include "support/test_support.h"

namespace kirto::test {

MadeUpAnimation::MadeUpAnimation(const DocumentStyle& style, ChoiceSource& choices) {
    ChooseSettings(choices, style, &prefs);
    FillDocument(choices, style, document);
}

MadeUpAnimation::MadeUpAnimation(const DocumentStyle& style, uint32 seed) {
    SeededChoices choices(seed);
    ChooseSettings(choices, style, &prefs);
    FillDocument(choices, style, document);
}

std::vector<uint8> MadeUpAnimation::Save() {
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    GifSave(file, document);
    return file->Memory();
}

bool MadeUpAnimation::PixelsAreKnown(const DocumentStyle& style) const {
    return style.fitting_colors || !document.Current()->palette->dither;
}

Pixels MeantPixels(const AnimationDocument& document, const Frame& frame) {
    const Palette& global = *document.Current()->palette;
    const Palette& palette = frame.local_palette ? *frame.palette : global;
    Pixels pixels;
    for (int32 y = 0; y < frame.height; ++y) {
        for (int32 x = 0; x < frame.width; ++x) {
            const rgb_color color = PixelColor(frame.bitmap.get(), x, y);
            const int32 index =
                color.alpha < 255 ? global.transparent_index : palette.IndexForColor(color);
            const rgb_color meant = palette.ColorForIndex(index);
            const bool transparent = global.use_transparent && index == global.transparent_index;
            pixels.push_back(transparent
                                 ? kTransparentPixel
                                 : 0xFF000000 | ColorKey(meant.red, meant.green, meant.blue));
        }
    }
    return pixels;
}

Pixels MeantOwnSizePixels(const AnimationDocument& document, const Frame& frame) {
    const uint32 transparent = document.prefs.thumbnail_drawtransparent ? 0x80FFFFFF : 0x80808080;
    Pixels pixels = MeantPixels(document, frame);
    std::replace(pixels.begin(), pixels.end(), kTransparentPixel, transparent);
    return pixels;
}

void Draw(const AnimationDocument& document, const Frame& frame, Pixels* canvas) {
    const Pixels pixels = MeantPixels(document, frame);
    for (int32 y = 0; y < frame.height; ++y) {
        for (int32 x = 0; x < frame.width; ++x) {
            const uint32 pixel = pixels[static_cast<size_t>(y * frame.width + x)];
            if (pixel == kTransparentPixel) continue;
            (*canvas)[static_cast<size_t>((y + frame.y_offset) * document.Current()->width + x +
                                          frame.x_offset)] = pixel;
        }
    }
}

std::vector<Pixels> MeantCanvases(const AnimationDocument& document) {
    Pixels canvas(static_cast<size_t>(document.Current()->width * document.Current()->height),
                  kTransparentPixel);
    std::vector<Pixels> canvases;
    for (const FramePointer& frame : document.Current()->frames) {
        Draw(document, *frame, &canvas);
        canvases.push_back(canvas);
    }
    return canvases;
}

}  // namespace kirto::test
