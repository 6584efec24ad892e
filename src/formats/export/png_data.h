// The image data of PNG files.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "base/types.h"
#include "base/work.h"

namespace kirto {

// Rows as they stand in IDAT and fdAT chunks: filtered in the way that makes them smallest, and
// compressed. rows: whole ones; row_bytes: of each, above 0. pixel_bytes: as for PngPixels. Of no
// use where the work was stopped. Throws std::bad_alloc.
// Format: PNG specification, third edition, "9 Filtering" and "10 Compression".
std::vector<uint8> CompressPngRows(std::span<const uint8> rows, size_t row_bytes,
                                   size_t pixel_bytes, const Work& work);

void AppendBig32(uint32 value, std::vector<uint8>* bytes);
void AppendBig16(uint32 value, std::vector<uint8>* bytes);

// A whole chunk. type: four letters.
void AppendPngChunk(std::string_view type, std::span<const uint8> content,
                    std::vector<uint8>* file);

}  // namespace kirto
