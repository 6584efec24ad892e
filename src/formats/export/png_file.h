// PNG files of one picture, and how those of several begin.
#pragma once

#include <span>
#include <vector>

#include "base/types.h"
#include "formats/export/png_pixels.h"

namespace kirto {

// What a file begins with: the signature and IHDR. width, height: above 0. pixels: settled.
std::vector<uint8> PngStart(int32 width, int32 height, const PngPixels& pixels);
// PLTE and tRNS, where the pixels need them.
void AppendPngColors(const PngPixels& pixels, std::vector<uint8>* file);

// The file of a picture that keeps every pixel. canvas: blue, green, red and alpha of each pixel,
// row by row; what is transparent has no color. Of no use where the work was stopped. Throws
// std::bad_alloc.
// Format: PNG specification, third edition, "11.2 Critical chunks".
std::vector<uint8> EncodePng(std::span<const uint8> canvas, int32 width, int32 height,
                             const Work& work);

}  // namespace kirto
