#include "formats/fli/fli_chunks.h"

#include <algorithm>

#include "formats/fli/fli_packets.h"

namespace kirto {

namespace {

// Whether there is more to draw of a chunk's data.
bool GoesOn(const ByteReader& reader, const Work& work) {
    return !reader.Overrun() && !work.StopRequested();
}

// Whether players take the word for the last pixel of its line.
bool SetsLastPixel(int32 word) {
    return (word & 0xC000) == 0x8000;
}

}  // namespace

void DrawLcChunk(ByteReader& reader, FliPixelWriter& writer, const Work& work) {
    int32 y = reader.U16();
    for (int32 lines = reader.U16(); lines > 0 && GoesOn(reader, work); --lines, ++y) {
        writer.MoveToRow(y);
        DrawPackets(DrawLcPacket, reader.U8(), reader, writer);
    }
}

void DrawBrunChunk(ByteReader& reader, FliPixelWriter& writer, int32 width, int32 height,
                   FliRules rules, const Work& work) {
    for (int32 y = 0; y < height && GoesOn(reader, work); ++y) {
        const int32 packets = reader.U8();
        if (rules == FliRules::kDefined) {
            DrawPackets(DrawBrunPacket, packets, reader, writer);
            continue;
        }
        writer.MoveToRow(y);
        const int64 end = writer.Position() + width;
        while (writer.Position() < end && !reader.Overrun())
            DrawBrunPacket(reader, writer);
    }
}

void DrawDeltaChunk(ByteReader& reader, FliPixelWriter& writer, int32 width, FliRules rules,
                    const Work& work) {
    int32 lines = reader.U16();
    for (int64 y = 0; lines > 0 && GoesOn(reader, work);) {
        const int32 word = reader.S16();
        if (rules == FliRules::kPlayers && SetsLastPixel(word)) {
            writer.MoveToRow(y);
            writer.Skip(width - 1);
            if (!reader.Overrun()) writer.Repeat(static_cast<uint8>(word), 1);
            continue;
        }
        if (word < 0) {
            y -= word;
            continue;
        }
        --lines;
        writer.MoveToRow(y++);
        DrawPackets(DrawDeltaPacket, word, reader, writer);
    }
}

void DrawCopyChunk(std::span<const uint8> data, FliPixelWriter& writer, int32 width,
                   const Work& work) {
    const size_t row = static_cast<size_t>(width);
    for (; !data.empty() && !work.StopRequested(); data = data.subspan(std::min(row, data.size())))
        writer.Copy(data.first(std::min(row, data.size())));
}

}  // namespace kirto
