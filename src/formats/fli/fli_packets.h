// The packets of the FLI and FLC chunks that draw pixels. Each function reads one packet and draws
// what it says. Where the data ends inside a packet, literal indices are drawn as far as there are
// any; a repeated value that is cut off draws nothing.
#pragma once

#include "base/byte_reader.h"
#include "base/types.h"
#include "formats/fli/fli_pixel_writer.h"

namespace kirto {

using FliPacketReader = void (*)(ByteReader& reader, FliPixelWriter& writer);

// Pixels to skip, signed count: literal indices when positive, one index repeated when negative.
void DrawLcPacket(ByteReader& reader, FliPixelWriter& writer);

// Signed count, of the opposite meaning: one index repeated when positive, literal indices when
// negative. A count of 0 still takes its index.
void DrawBrunPacket(ByteReader& reader, FliPixelWriter& writer);

// As in LC chunks, but counting words of two indices.
void DrawDeltaPacket(ByteReader& reader, FliPixelWriter& writer);

// The packets of one line; they end early where the data does.
void DrawPackets(FliPacketReader draw, int32 count, ByteReader& reader, FliPixelWriter& writer);

}  // namespace kirto
