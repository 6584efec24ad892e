#pragma once

#include <optional>
#include <vector>

#include "base/types.h"
#include "color/color_values.h"
#include "formats/faithful/screen.h"

namespace kirto {

// What has to be drawn over what is on a screen so that it shows something else.
struct ScreenDifference {
    PixelRect changed;  // around all pixels that differ
    PixelRect lost;     // around those that are there, but are to show nothing: drawing can't do it
    bool transparent = false;  // anywhere the screen is to show nothing
    int64 pixels = 0;          // that differ
    // In rows, of pixels that are drawn alike, whatever stays as it is in between.
    int64 runs = 0;

    bool Possible() const { return lost.width == 0; }

    // below, shown: of the screen.
    static ScreenDifference Between(const Screen& screen, const ScreenPixels& below,
                                    const ScreenPixels& shown);
};

// The colors that were counted, by falling number and then by rising key.
std::vector<ColorValues::Item> CommonestFirst(const ColorValues& counts);

// The colors of the pixels that differ in a rectangle of the screen, with their numbers, by falling
// number and then by rising key; nothing where there are more than most. Throws std::bad_alloc.
std::optional<std::vector<ColorValues::Item>> ColorsToDraw(const Screen& screen,
                                                           const PixelRect& rect,
                                                           const ScreenPixels& below,
                                                           const ScreenPixels& shown, size_t most);

}  // namespace kirto
