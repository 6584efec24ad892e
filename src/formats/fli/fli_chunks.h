// The FLI and FLC chunks that draw pixels. Each function draws a chunk's data as far as it goes,
// and ends early where the work is stopped.
#pragma once

#include <span>

#include "base/byte_reader.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/fli/fli_pixel_writer.h"

namespace kirto {

// How files are read that not all readers understand alike.
enum class FliRules {
    kDefined,  // as this program does by default
    kPlayers   // as players do
};

void DrawLcChunk(ByteReader& reader, FliPixelWriter& writer, const Work& work);

// By the defined rules rows are deliberately not aligned anew: each has its count of packets and
// starts where those of the one before ended. Players go by the width: more packets than the count,
// a byte, has room for are common.
void DrawBrunChunk(ByteReader& reader, FliPixelWriter& writer, int32 width, int32 height,
                   FliRules rules, const Work& work);

// By the defined rules every negative word skips lines, also in the form with the top bits 10 by
// which some writers set the last pixel of a line of odd width. Players know that one.
void DrawDeltaChunk(ByteReader& reader, FliPixelWriter& writer, int32 width, FliRules rules,
                    const Work& work);

// Rows of one index a pixel.
void DrawCopyChunk(std::span<const uint8> data, FliPixelWriter& writer, int32 width,
                   const Work& work);

}  // namespace kirto
