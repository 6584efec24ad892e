#include "formats/fli/fli_packets.h"

#include <algorithm>

namespace kirto {

namespace {

// What is missing counts as read past the end.
void DrawLiterals(int32 count, ByteReader& reader, FliPixelWriter& writer) {
    const size_t wanted = static_cast<size_t>(count);
    const size_t available = std::min(wanted, reader.Left());
    writer.Copy(reader.Bytes(available));
    if (available < wanted) reader.Bytes(wanted - available);
}

void DrawRepeat(int32 count, ByteReader& reader, FliPixelWriter& writer) {
    const uint8 index = reader.U8();
    if (!reader.Overrun()) writer.Repeat(index, count);
}

}  // namespace

void DrawLcPacket(ByteReader& reader, FliPixelWriter& writer) {
    writer.Skip(reader.U8());
    const int8 count = reader.S8();
    if (count < 0) {
        DrawRepeat(-count, reader, writer);
    } else {
        DrawLiterals(count, reader, writer);
    }
}

void DrawBrunPacket(ByteReader& reader, FliPixelWriter& writer) {
    const int8 count = reader.S8();
    if (count < 0) {
        DrawLiterals(-count, reader, writer);
    } else {
        DrawRepeat(count, reader, writer);
    }
}

void DrawDeltaPacket(ByteReader& reader, FliPixelWriter& writer) {
    writer.Skip(reader.U8());
    const int8 count = reader.S8();
    if (count >= 0) {
        DrawLiterals(count * 2, reader, writer);
        return;
    }
    const uint8 first = reader.U8();
    const uint8 second = reader.U8();
    if (!reader.Overrun()) writer.RepeatPair(first, second, -count);
}

void DrawPackets(FliPacketReader draw, int32 count, ByteReader& reader, FliPixelWriter& writer) {
    for (; count > 0 && !reader.Overrun(); --count)
        draw(reader, writer);
}

}  // namespace kirto
