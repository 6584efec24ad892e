#include "formats/gif/gif_save.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <vector>

#include "base/byte_order.h"
#include "base/debug_line.h"
#include "base/text.h"
#include "formats/gif/gif_lzw_encoder.h"
#include "formats/gif/gif_row_order.h"

namespace {

constexpr char kComment[] = "Created by Kirto v1.4 by Morvik on BeOS";

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

uint8 LowByte(int32 value) {
    return static_cast<uint8>(value);
}

int32 BitWidth(uint8 value) {
    return static_cast<int32>(std::bit_width(value));
}

// The largest of the indices that pixels get whatever the number of entries in use: the transparent
// one, and the levels of the grey ramp.
uint8 LargestUnboundIndex(const Frame& frame, const Palette& palette, uint8 transparent,
                          const kirto::Work& work) {
    const bool grey_ramp = palette.mode == kirto::kPaletteGreyscale;
    uint8 largest = 0;
    for (int32 y = 0; y < frame.height && !work.StopRequested(); ++y) {
        for (int32 x = 0; x < frame.width; ++x) {
            const rgb_color color = kirto::PixelColor(frame.bitmap.get(), x, y);
            if (color.alpha < 255) {
                largest = std::max(largest, transparent);
            } else if (grey_ramp) {
                largest = std::max(largest, palette.IndexForColor(color));
            }
        }
    }
    return largest;
}

}  // namespace

GifSave::GifSave(std::shared_ptr<BFile> file, AnimationDocument& document)
    : file_(std::move(file)),
      document_(document),
      animation_(document.Current()),
      interlaced_(document.prefs.animation_gifinterlaced),
      rows_(CountRows()),
      mapper_(LowByte(animation_->palette->transparent_index), animation_->palette->dither,
              WidestFrame()) {
    WriteGifHeader();
    const int32 count = animation_->frames.Size();
    int32 number = 0;
    for (const kirto::FramePointer& frame : animation_->frames) {
        document_.PostStatus(kirto::Format("Status: writing frame %d of %d...", ++number, count));
        if (document_.StopRequested()) break;
        encoding_ = EncodingOf(*frame);
        WriteGifControlBlock(*frame);
        WriteGifImageHeader(*frame);
        WriteGifImageData(*frame);
    }
    file_->Write(";", 1);
    file_->SetMimeType("image/gif");
}

void GifSave::WriteGifHeader() {
    const Palette& palette = *animation_->palette;
    uint8 header[13] = {'G', 'I', 'F', '8', '9', 'a'};
    kirto::WriteLittle16(header + 6, animation_->width);
    kirto::WriteLittle16(header + 8, animation_->height);
    // A global table, of the highest colour resolution, unsorted.
    header[10] = LowByte((palette.bits - 1) | 0xF0);
    header[11] = LowByte(palette.background_index);
    file_->Write(header, sizeof(header));
    WriteColorTable(palette, palette.bits);
    if (animation_->use_loop) {
        uint8 loop[19] = {0x21, 0xFF, 0x0B, 'N', 'E', 'T', 'S', 'C', 'A', 'P',
                          'E',  '2',  '.',  '0', 3,   1,   0,   0,   0};
        kirto::WriteLittle16(loop + 16, animation_->loop_count);
        file_->Write(loop, sizeof(loop));
    }
    if (document_.prefs.animation_gifcomment) {
        const uint8 start[3] = {0x21, 0xFE, LowByte(sizeof(kComment) - 1)};
        file_->Write(start, sizeof(start));
        // The text's own terminating zero ends the chain of sub-blocks.
        file_->Write(kComment, sizeof(kComment));
    }
}

void GifSave::WriteGifControlBlock(const Frame& frame) {
    const Palette& global = *animation_->palette;
    const int32 setting = document_.prefs.animation_gifdisposal;
    const int32 disposal = setting >= 0 && setting <= 2 ? setting : 3;
    uint8 block[8] = {0x21, 0xF9, 4};
    block[3] = LowByte(disposal << 2);
    kirto::WriteLittle16(block + 4,
                         DelayOf(*animation_, frame, document_.prefs.global_pauseinseconds));
    if (global.use_transparent) {
        block[3] |= 1;
        block[6] = LowByte(global.transparent_index);
    }
    file_->Write(block, sizeof(block));
}

void GifSave::WriteGifImageHeader(const Frame& frame) {
    uint8 header[10] = {','};
    kirto::WriteLittle16(header + 1, frame.x_offset);
    kirto::WriteLittle16(header + 3, frame.y_offset);
    kirto::WriteLittle16(header + 5, frame.width);
    kirto::WriteLittle16(header + 7, frame.height);
    if (encoding_.local_table) header[9] = LowByte((encoding_.bits - 1) | 0x80);
    if (interlaced_) header[9] |= 0x40;
    file_->Write(header, sizeof(header));
    if (encoding_.local_table) WriteColorTable(*encoding_.palette, encoding_.bits);
}

void GifSave::WriteGifImageData(const Frame& frame) {
    mapper_.StartPicture(*encoding_.palette, interlaced_);
    kirto::GifLzwEncoder encoder(*file_, std::max(encoding_.bits, 2));
    std::vector<uint8> indices;
    for (kirto::GifRowOrder rows(frame.height, interlaced_); !rows.Done(); rows.Next()) {
        document_.work.Report(rows_written_++, rows_);
        if (document_.StopRequested()) return;
        mapper_.MapRow(frame.bitmap.get(), rows.Row(), frame.width, &indices);
        for (const uint8 index : indices)
            encoder.Add(index);
    }
    encoder.Finish();
}

// The transparent index is the global palette's even in frames with a narrower palette of their
// own, and a palette may be recognised as the grey ramp though fewer entries were read. A frame
// that uses an index past its palette is written wider, with a table of its own.
GifSave::Encoding GifSave::EncodingOf(const Frame& frame) const {
    const Palette& global = *animation_->palette;
    Encoding encoding;
    encoding.local_table = frame.local_palette;
    encoding.palette = frame.local_palette ? frame.palette.get() : &global;
    encoding.bits = encoding.palette->bits;
    const uint8 transparent = LowByte(global.transparent_index);
    const bool grey_ramp = encoding.palette->mode == kirto::kPaletteGreyscale;
    // Most frames can't need more bits and are spared the look at their pixels.
    if (encoding.bits >= (grey_ramp ? 8 : BitWidth(transparent))) return encoding;
    const int32 needed =
        BitWidth(LargestUnboundIndex(frame, *encoding.palette, transparent, document_.work));
    if (needed > encoding.bits) {
        encoding.bits = needed;
        encoding.local_table = true;
    }
    return encoding;
}

int64 GifSave::DelayOf(const kirto::Animation& animation, const Frame& frame, bool in_seconds) {
    double pause = 0;
    if (frame.use_pause) {
        pause = frame.pause_length;
    } else if (animation.use_pause) {
        pause = animation.pause_length;
    }
    return WholeHundredths(in_seconds ? pause * 100 : pause);
}

void GifSave::WriteColorTable(const Palette& palette, int32 bits) {
    const size_t count = size_t{1} << bits;
    std::vector<uint8> table;
    table.reserve(count * 3);
    for (size_t i = 0; i < count; ++i) {
        const rgb_color color = palette.colors[i];
        table.insert(table.end(), {color.red, color.green, color.blue});
    }
    file_->Write(table.data(), table.size());
}

int64 GifSave::CountRows() const {
    int64 rows = 0;
    for (const kirto::FramePointer& frame : animation_->frames)
        rows += frame->height;
    return rows;
}

int32 GifSave::WidestFrame() const {
    int32 widest = 0;
    for (const kirto::FramePointer& frame : animation_->frames)
        widest = std::max(widest, frame->width);
    return widest;
}
