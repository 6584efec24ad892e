// TIFF images with straight alpha, read through libtiff. Qt's reader goes by way of premultiplied
// pixels, and there the colors of nearly transparent pixels are lost.
#pragma once

#include <memory>

#include "kit/bitmap.h"
#include "kit/file.h"

namespace kirto {

// Reads the first picture of a TIFF file whose pixels are red, green, blue and straight alpha of 8
// bits each, in rows from the top. B_BAD_DATA for every other file, whole or damaged; B_NO_MEMORY
// when the budget refuses the picture. The result is left alone on failure.
status_t ReadStraightTiff(BFile& source, std::shared_ptr<PixelBudget> budget,
                          std::shared_ptr<BBitmap>* result);

}  // namespace kirto
