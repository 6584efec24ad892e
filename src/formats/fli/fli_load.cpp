#include "formats/fli/fli_load.h"

#include <algorithm>
#include <cstring>

#include "base/byte_order.h"
#include "base/byte_reader.h"
#include "base/debug_line.h"
#include "base/text.h"
#include "color/fli_colors.h"
#include "formats/fli/fli_packets.h"
#include "formats/fli/fli_pixel_writer.h"

namespace {

using kirto::ByteReader;
using kirto::FliPixelWriter;

constexpr size_t kHeaderSize = 128;
constexpr int64 kRecordHeaderSize = 16;
constexpr int64 kChunkHeaderSize = 6;

constexpr uint8 kMagicHigh = 0xAF;
constexpr uint8 kMagicLowFli = 0x11;
constexpr uint8 kMagicLowFlc = 0x12;
constexpr uint16 kFrameRecord = 0xF1FA;
constexpr uint16 kSkippedRecord = 0x00A1;

constexpr uint16 kChunkColor256 = 4;
constexpr uint16 kChunkDelta = 7;
constexpr uint16 kChunkColor64 = 11;
constexpr uint16 kChunkLc = 12;
constexpr uint16 kChunkBlack = 13;
constexpr uint16 kChunkBrun = 15;
constexpr uint16 kChunkCopy = 16;
constexpr uint16 kChunkMini = 18;

// Pictures' worth of work that each frame may take, beside what the file's size allows.
constexpr int64 kFillsPerFrame = 4;
// What a frame costs however small it is: building its palette takes a while.
constexpr int64 kFrameCost = 200;

void MarkReadFromFile(Palette* palette) {
    palette->mode = kirto::kPaletteFromFile;
    palette->size = 256;
    palette->bits = 8;
}

// Whether a picture's pixels have the byte order of the decoder's own.
bool HasPixelsToCopy(const BBitmap* bitmap) {
    return bitmap && bitmap->Bits() && kirto::Is32Bit(bitmap->ColorSpace()) &&
           !kirto::IsBigEndian(bitmap->ColorSpace());
}

}  // namespace

FliLoad::FliLoad(BFile* file, int32 start, AnimationDocument& document)
    : input_(*file, document.work), document_(document), position_(start) {
    if (file->InitCheck() != B_OK || !ReadFliHeader()) {
        failed = true;
        return;
    }
    for (int32 i = 0; i < frame_count_ && !failed; ++i) {
        document_.PostStatus(
            kirto::Format("Status: loading frame %d of %d...", i + 1, frame_count_));
        failed = document_.StopRequested() || !ReadFliFrameHeader() || !ReadRecord(i);
    }
}

bool FliLoad::ReadFliHeader() {
    uint8 header[kHeaderSize];
    if (!input_.Read(header)) return false;
    const bool is_fli = header[4] == kMagicLowFli;
    if ((!is_fli && header[4] != kMagicLowFlc) || header[5] != kMagicHigh) {
        kirto::DebugLine("FliLoad::ReadFliHeader() - Wrong magic number in FLI\n");
        return false;
    }
    frame_count_ = kirto::ReadLittle16(header + 6);
    width_ = kirto::ReadLittle16(header + 8);
    height_ = kirto::ReadLittle16(header + 10);
    const double seconds = kirto::ReadLittle16(header + 16) / (is_fli ? 70.0 : 1000.0);
    pause_ = document_.prefs.global_pauseinseconds ? seconds : seconds * 100.0;
    document_.Change([this](kirto::Animation& animation) {
        animation.width = width_;
        animation.height = height_;
        animation.pause_length = pause_;
    });
    return true;
}

bool FliLoad::ReadFliFrameHeader() {
    uint8 header[kRecordHeaderSize];
    led_back_ = !input_.StartRecord();
    if (!input_.Read(header)) return false;
    bytes_left_ = static_cast<int32>(kirto::ReadLittle32(header));
    const uint16 type = kirto::ReadLittle16(header + 4);
    if (type == kSkippedRecord) {
        skipped_block_ = true;
    } else if (type != kFrameRecord) {
        kirto::DebugLine("FliLoad::ReadFliFrameHeader() - Wrong magic number in FLI frame\n");
        return false;
    }
    chunk_count_ = kirto::ReadLittle16(header + 6);
    return true;
}

bool FliLoad::ReadRecord(int32 index) {
    if (skipped_block_) {
        skipped_block_ = false;
        // Damage in a block that is not shown is no reason to stop; if the file's end was the
        // reason, the next record finds it too.
        static_cast<void>(ReadFLCNewFrame());
        return true;
    }
    if (chunk_count_ == 0) return ShowPreviousFrameLonger();
    if (!ReadFliFrameData(index)) return false;
    ++position_;
    return true;
}

bool FliLoad::ReadFLCNewFrame() {
    for (int32 i = 0; i < chunk_count_; ++i) {
        Chunk chunk;
        if (!ReadChunkHeader(&chunk) || !input_.Skip(chunk.DataSize())) return false;
    }
    return true;
}

// A record without chunks repeats the picture: instead of another frame, the last one waits longer.
bool FliLoad::ShowPreviousFrameLonger() {
    if (!document_.FrameAt(position_ - 1)) return false;
    document_.Change([this](kirto::Animation& animation) {
        kirto::EditFrame(animation, position_ - 1, [this](Frame& frame) {
            frame.pause_length = frame.use_pause ? frame.pause_length + pause_ : pause_ * 2;
            frame.use_pause = true;
        });
    });
    return true;
}

bool FliLoad::ReadFliFrameData(int32 index) {
    if (!StartFrame(index)) return false;
    blank_ = index == 0;
    if (!blank_ && !CopyPreviousFrame()) return false;
    for (int32 i = 0; i < chunk_count_; ++i) {
        if (!ReadChunk()) return false;
    }
    // A record whose chunks claim more than it holds ends where it says. Bytes that no chunk covers
    // are deliberately not skipped: the next record follows the last chunk.
    bytes_left_ -= kRecordHeaderSize;
    if (bytes_left_ < 0 && !input_.Skip(bytes_left_)) return false;
    StartPicture();
    return FinishFrame();
}

bool FliLoad::StartFrame(int32 index) {
    frame_ = Frame(kirto::Format("frame%04d", index), width_, height_);
    local_palette_ = kirto::SharePalette();
    const BRect bounds = BRect::OfSize(width_, height_);
    if (local_palette_)
        picture_ = std::make_shared<BBitmap>(bounds, B_RGB32, document_.pixel_budget);
    if (!local_palette_ || picture_->InitCheck() != B_OK) {
        // No memory of any size makes a picture of no pixels.
        out_of_memory = !local_palette_ || bounds.IsValid();
        return false;
    }
    return ChargeFrame(static_cast<int64>(picture_->BitsLength()));
}

// A picture brings its own work with it. Where the file leads back it does not: the same few bytes
// would bring it again and again.
bool FliLoad::ChargeFrame(int64 picture_bytes) {
    if (led_back_) return input_.Spend(kFrameCost + picture_bytes);
    input_.Allow(kFillsPerFrame * picture_bytes);
    return input_.Spend(kFrameCost);
}

// Of a picture of another size as many pixels as fit are copied, without regard to its rows.
bool FliLoad::CopyPreviousFrame() {
    const kirto::FramePointer previous = document_.FrameAt(position_ - 1);
    if (!previous || !HasPixelsToCopy(previous->bitmap.get())) return false;
    if (!kirto::CopyPixels(*previous->bitmap, *picture_, document_.work)) return false;
    if (previous->local_palette) TakeLocalPalette(*previous->palette);
    return true;
}

void FliLoad::TakeLocalPalette(const Palette& source) {
    local_palette_->colors = source.colors;
    MarkReadFromFile(local_palette_.get());
    frame_.local_palette = true;
}

bool FliLoad::ReadChunkHeader(Chunk* chunk) {
    uint8 header[kChunkHeaderSize];
    if (!input_.Read(header)) return false;
    chunk->size = static_cast<int32>(kirto::ReadLittle32(header));
    chunk->type = kirto::ReadLittle16(header + 4);
    return true;
}

int64 FliLoad::Chunk::DataSize() const {
    return size - kChunkHeaderSize;
}

bool FliLoad::ReadChunk() {
    Chunk chunk;
    if (!ReadChunkHeader(&chunk)) return false;
    bytes_left_ -= chunk.size;
    switch (chunk.type) {
        case kChunkColor256:
            return ReadFliCOLORChunk(chunk.DataSize(), true);
        case kChunkDelta:
            return ReadFliDELTAChunk(chunk.DataSize());
        case kChunkColor64:
            return ReadFliCOLORChunk(chunk.DataSize(), false);
        case kChunkLc:
            return ReadFliLCChunk(chunk.DataSize());
        case kChunkBlack:
            return ReadFliBLACKChunk();
        case kChunkBrun:
            return ReadFliBRUNChunk(chunk.DataSize());
        case kChunkCopy:
            return ReadFliCOPYChunk();
        case kChunkMini:
            return ReadFliMINIChunk(chunk.DataSize());
        default:
            return SkipUnknownChunk(chunk);
    }
}

bool FliLoad::SkipUnknownChunk(const Chunk& chunk) {
    kirto::DebugLine("FliLoad::ReadFliFrameData() - Unknown chunk type: 0x%x, seeking 0x%x\n",
                     static_cast<unsigned int>(chunk.type), static_cast<unsigned int>(chunk.size));
    return input_.Skip(chunk.DataSize());
}

// Gives the frame its palette and its pixels, and the document the frame.
bool FliLoad::FinishFrame() {
    const BBitmap* picture = picture_.get();
    if (frame_.local_palette) {
        local_palette_->unique_colors = local_palette_->CountUniqueColors(picture, &document_.work);
    } else {
        local_palette_->Set(picture, &document_.work);
    }
    if (document_.StopRequested()) return false;
    frame_.palette = std::move(local_palette_);
    frame_.bitmap = std::move(picture_);
    return document_.InsertFrame(position_, std::move(frame_));
}

// The document's first frame defines the global palette, any other frame one of its own. Pixels
// already drawn keep their colours either way.
bool FliLoad::ReadFliCOLORChunk(int64 size, bool full8bit) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    // Six bits are deliberately not widened to reach 255.
    const int32 factor = full8bit ? 1 : 4;
    if (position_ == 0) {
        document_.Change([&](kirto::Animation& animation) {
            kirto::EditPalette(animation, [&](Palette& palette) {
                MarkReadFromFile(&palette);
                kirto::ReadFliColors(data, factor, &palette.colors);
            });
        });
        return true;
    }
    if (!frame_.local_palette && !TakePreviousPalette()) return false;
    kirto::ReadFliColors(data, factor, &local_palette_->colors);
    return true;
}

bool FliLoad::TakePreviousPalette() {
    const kirto::FramePointer previous = document_.FrameAt(position_ - 1);
    if (!previous) return false;
    TakeLocalPalette(previous->local_palette ? *previous->palette : *document_.Current()->palette);
    return true;
}

bool FliLoad::ReadFliLCChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    int32 y = reader.U16();
    for (int32 lines = reader.U16(); lines > 0 && GoesOn(reader); --lines, ++y) {
        writer.MoveToRow(y);
        DrawPackets(kirto::DrawLcPacket, reader.U8(), reader, writer);
    }
    return true;
}

// Rows are deliberately not aligned anew: each starts where the packets of the one before ended.
bool FliLoad::ReadFliBRUNChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    for (int32 rows = height_; rows > 0 && GoesOn(reader); --rows) {
        DrawPackets(kirto::DrawBrunPacket, reader.U8(), reader, writer);
    }
    return true;
}

// Takes one byte a pixel, whatever the chunk's size says.
bool FliLoad::ReadFliCOPYChunk() {
    std::span<const uint8> data;
    if (!input_.ReadBlock(int64{width_} * height_, &data)) return false;
    FliPixelWriter writer = Writer();
    const size_t row = static_cast<size_t>(width_);
    for (; !data.empty() && !document_.StopRequested(); data = data.subspan(row))
        writer.Copy(data.first(row));
    return true;
}

// Every negative word skips lines, also in the form with the top bits 10 by which some writers set
// the last pixel of a line of odd width.
bool FliLoad::ReadFliDELTAChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    int32 lines = reader.U16();
    for (int64 y = 0; lines > 0 && GoesOn(reader);) {
        const int32 word = reader.S16();
        if (word < 0) {
            y -= word;
            continue;
        }
        --lines;
        writer.MoveToRow(y++);
        DrawPackets(kirto::DrawDeltaPacket, word, reader, writer);
    }
    return true;
}

bool FliLoad::ReadFliMINIChunk(int64 size) {
    return input_.Skip(size);
}

bool FliLoad::ReadFliBLACKChunk() {
    if (!input_.Spend(static_cast<int64>(picture_->BitsLength()))) return false;
    blank_ = true;
    StartPicture();
    return true;
}

// For drawing into the current picture.
kirto::FliPixelWriter FliLoad::Writer() {
    StartPicture();
    const auto animation = document_.Current();
    return FliPixelWriter(*picture_, frame_.local_palette ? *local_palette_ : *animation->palette);
}

// The file's first picture starts black, but only once there is something to draw into it: until
// then a few bytes that claim a huge picture cost no memory.
void FliLoad::StartPicture() {
    if (!blank_) return;
    blank_ = false;
    static constexpr uint8 kOpaqueBlack[4] = {0, 0, 0, 255};
    for (int32 y = 0; y < height_ && !document_.StopRequested(); ++y) {
        uint8* row = picture_->Row(y);
        for (size_t i = 0; i < picture_->BytesPerRow(); i += sizeof(kOpaqueBlack))
            std::memcpy(row + i, kOpaqueBlack, sizeof(kOpaqueBlack));
    }
}

bool FliLoad::GoesOn(const ByteReader& reader) const {
    return !reader.Overrun() && !document_.StopRequested();
}
