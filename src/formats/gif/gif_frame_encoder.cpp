#include "formats/gif/gif_frame_encoder.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <vector>

#include "base/byte_order.h"
#include "formats/gif/gif_lzw_encoder.h"
#include "formats/gif/gif_row_order.h"

namespace kirto {

namespace {

constexpr int32 kPixelsAtOnce = 1 << 12;  // between two reports

// The integer part of a delay in hundredths. A value a hair below a whole number counts as that
// number, so that 0.29 seconds stays 29 through any number of saves.
int64 WholeHundredths(double hundredths) {
    constexpr double kTolerance = 1e-6;
    constexpr double kLimit = 9e18;
    if (std::isnan(hundredths)) return 0;
    const double nearest = std::ceil(hundredths);
    const double whole = nearest - hundredths < kTolerance ? nearest : std::trunc(hundredths);
    return static_cast<int64>(std::clamp(whole, -kLimit, kLimit));
}

int32 BitWidth(uint8 value) {
    return static_cast<int32>(std::bit_width(value));
}

// The largest of the indices that pixels get whatever the number of entries in use: the transparent
// one, and the levels of the grey ramp.
uint8 LargestUnboundIndex(const Frame& frame, const Palette& palette, uint8 transparent,
                          const SharedProgress& progress) {
    const bool grey_ramp = palette.mode == kPaletteGreyscale;
    uint8 largest = 0;
    std::vector<rgb_color> row;
    for (int32 y = 0; y < frame.height && !progress.StopRequested(); ++y) {
        ReadColors(frame.bitmap.get(), y, frame.width, &row);
        for (const rgb_color color : row) {
            if (color.alpha < 255) {
                largest = std::max(largest, transparent);
            } else if (grey_ramp) {
                largest = std::max(largest, palette.IndexForColor(color));
            }
        }
    }
    return largest;
}

int32 WidestFrame(const Animation& animation) {
    int32 widest = 0;
    for (const FramePointer& frame : animation.frames)
        widest = std::max(widest, frame->width);
    return widest;
}

}  // namespace

GifFrameEncoder::GifFrameEncoder(const Animation& animation, const GifSaveOptions& options)
    : animation_(animation),
      options_(options),
      mapper_(LowByte(animation.palette->transparent_index), animation.palette->dither,
              WidestFrame(animation)) {}

ByteWriter GifFrameEncoder::Encode(const Frame& frame, SharedProgress& progress) {
    ByteWriter bytes;
    const Encoding encoding = EncodingOf(frame, progress);
    AddControlBlock(frame, bytes);
    AddImageHeader(frame, encoding, bytes);
    mapper_.StartPicture(*encoding.palette, options_.interlaced);
    GifLzwEncoder encoder(bytes, std::max(encoding.bits, 2));
    // Short rows are told of several at a time, as that asks for the time.
    const int64 rows_at_once = kPixelsAtOnce / std::max(frame.width, 1) + 1;
    int64 untold = 0;
    for (GifRowOrder order(frame.height, options_.interlaced); !order.Done(); order.Next()) {
        if (progress.StopRequested()) return bytes;
        encoder.Add(mapper_.MapRow(frame.bitmap.get(), order.Row(), frame.width));
        if (++untold < rows_at_once) continue;
        progress.Add(untold);
        untold = 0;
    }
    progress.Add(untold);
    encoder.Finish();
    return bytes;
}

void GifFrameEncoder::AddControlBlock(const Frame& frame, ByteWriter& bytes) const {
    const Palette& global = *animation_.palette;
    uint8 block[8] = {0x21, 0xF9, 4};
    block[3] = LowByte(options_.disposal << 2);
    WriteLittle16(block + 4, DelayOf(animation_, frame, options_.pause_in_seconds));
    if (global.use_transparent) {
        block[3] |= 1;
        block[6] = LowByte(global.transparent_index);
    }
    bytes.Bytes(block);
}

void GifFrameEncoder::AddImageHeader(const Frame& frame, const Encoding& encoding,
                                     ByteWriter& bytes) const {
    uint8 header[10] = {','};
    WriteLittle16(header + 1, frame.x_offset);
    WriteLittle16(header + 3, frame.y_offset);
    WriteLittle16(header + 5, frame.width);
    WriteLittle16(header + 7, frame.height);
    if (encoding.local_table) header[9] = LowByte((encoding.bits - 1) | 0x80);
    if (options_.interlaced) header[9] |= 0x40;
    bytes.Bytes(header);
    if (encoding.local_table) AddColorTable(*encoding.palette, encoding.bits, bytes);
}

// The transparent index is the global palette's even in frames with a narrower palette of their
// own, and a palette may be recognised as the grey ramp though fewer entries were read. A frame
// that uses an index past its palette is written wider, with a table of its own.
GifFrameEncoder::Encoding GifFrameEncoder::EncodingOf(const Frame& frame,
                                                      const SharedProgress& progress) const {
    const Palette& global = *animation_.palette;
    Encoding encoding;
    encoding.local_table = frame.local_palette;
    encoding.palette = frame.local_palette ? frame.palette.get() : &global;
    encoding.bits = encoding.palette->bits;
    const uint8 transparent = LowByte(global.transparent_index);
    const bool grey_ramp = encoding.palette->mode == kPaletteGreyscale;
    // Most frames can't need more bits and are spared the look at their pixels.
    if (encoding.bits >= (grey_ramp ? 8 : BitWidth(transparent))) return encoding;
    const int32 needed =
        BitWidth(LargestUnboundIndex(frame, *encoding.palette, transparent, progress));
    if (needed > encoding.bits) {
        encoding.bits = needed;
        encoding.local_table = true;
    }
    return encoding;
}

int64 GifFrameEncoder::DelayOf(const Animation& animation, const Frame& frame, bool in_seconds) {
    const double pause = animation.PauseOf(frame);
    return WholeHundredths(in_seconds ? pause * 100 : pause);
}

void GifFrameEncoder::AddColorTable(const Palette& palette, int32 bits, ByteWriter& bytes) {
    const size_t count = size_t{1} << bits;
    for (size_t i = 0; i < count; ++i) {
        const rgb_color color = palette.colors[i];
        bytes.U8(color.red);
        bytes.U8(color.green);
        bytes.U8(color.blue);
    }
}

}  // namespace kirto
