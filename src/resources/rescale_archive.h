#pragma once

#include "kit/message.h"

namespace kirto {

// The archive of a window with its frames grown or shrunk, as a font of font_height pixels (ascent
// and descent) asks for. factor: what to multiply each coordinate by; below 0.001 it is computed
// from the font and the height of the font that the layout was drawn with ("designfsize"). A factor
// within one percent of 1 changes nothing; any other gives three percent of extra room. What tabs
// show is not a child of the tab view, so its frames stay as they are drawn.
BMessage RescaleArchive(BMessage archive, float factor, float font_height);

}  // namespace kirto
