#include "formats/gif/gif_load.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "base/byte_order.h"
#include "base/debug_line.h"
#include "base/text.h"
#include "formats/gif/gif_lzw_decoder.h"
#include "formats/gif/gif_pixel_writer.h"

namespace {

constexpr uint8 kExtensionIntroducer = '!';
constexpr uint8 kImageSeparator = ',';
constexpr uint8 kTrailer = ';';
constexpr uint8 kStrayTerminator = 0;

constexpr uint8 kGraphicControlLabel = 0xF9;
constexpr uint8 kCommentLabel = 0xFE;
constexpr uint8 kApplicationLabel = 0xFF;

// Restore-to-previous and the reserved methods all behave as restore-to-background.
constexpr int32 kDisposalBackground = 2;

constexpr rgb_color kDrawnTransparent = {255, 255, 255, 128};
constexpr rgb_color kPlainTransparent = {128, 128, 128, 128};

void FillRows(BBitmap& bitmap, int32 top, int32 bottom, int32 left, int32 right, uint32 pixel,
              const kirto::Work& work) {
    bottom = std::min(bottom, bitmap.Height());
    right = std::min(right, bitmap.Width());
    for (int32 y = std::max(top, 0); y < bottom && !work.StopRequested(); ++y) {
        uint8* row = bitmap.Row(y);
        for (int32 x = std::max(left, 0); x < right; ++x) {
            std::memcpy(row + static_cast<size_t>(x) * 4, &pixel, 4);
        }
    }
}

}  // namespace

GifLoad::GifLoad(BFile* file, int32 start, AnimationDocument& document)
    : input_(*file, document.work),
      document_(document),
      start_(start),
      next_position_(start),
      full_frame_(document.prefs.animation_gifloadfullframe) {
    Init();
    if (!ReadGifHeader() || !StartFrame()) {
        failed = true;
        return;
    }
    uint8 introducer = 0;
    do {
        if (!input_.Read(&introducer, 1) || !ReadBlock(introducer)) {
            failed = true;
            return;
        }
    } while (introducer != kTrailer);
}

void GifLoad::Init() {
    document_.Change([](kirto::Animation& animation) {
        animation.pause_length = 0;
        animation.use_pause = false;
        animation.use_loop = false;
    });
}

bool GifLoad::ReadGifHeader() {
    uint8 header[13];
    if (!input_.Read(header, sizeof(header))) return false;
    width_ = kirto::ReadLittle16(header + 6);
    height_ = kirto::ReadLittle16(header + 8);
    global_palette_ = *document_.Current()->palette;
    bool complete = true;
    if ((header[10] & 0x80) == 0) {
        global_palette_.Set(kirto::kPaletteWebSafe);
    } else {
        complete = ReadColorTable(&global_palette_, (header[10] & 7) + 1);
        if (complete) global_palette_.background_index = header[11];
    }
    document_.Change([this](kirto::Animation& animation) {
        animation.width = width_;
        animation.height = height_;
        animation.palette = std::make_shared<const Palette>(global_palette_);
    });
    return complete;
}

bool GifLoad::ReadBlock(uint8 introducer) {
    switch (introducer) {
        case kImageSeparator:
            return ReadImage();
        case kExtensionIntroducer:
            return ReadExtension();
        case kTrailer:
        case kStrayTerminator:
            return true;
        default:
            return ReadGifUnknownBlock(introducer);
    }
}

bool GifLoad::ReadImage() {
    document_.PostStatus(kirto::Format("Status: loading frame %d...", next_position_ + 1));
    if (document_.StopRequested()) return false;
    if (!ReadGifImageHeader() || !ReadGifImageData() || !FinishFrame()) return false;
    ++next_position_;
    if (StartFrame()) return true;
    kirto::DebugLine("GifLoad::GifLoad() - Out of memory\n");
    return false;
}

// Gives the frame its palette and its pixels, and the document the frame.
bool GifLoad::FinishFrame() {
    const BBitmap* picture = picture_.get();
    if (frame_.local_palette) {
        local_palette_->unique_colors = local_palette_->CountUniqueColors(picture, &document_.work);
    } else {
        local_palette_->Set(picture, &document_.work);
    }
    if (document_.StopRequested()) return false;
    frame_.palette = std::move(local_palette_);
    frame_.bitmap = std::move(picture_);
    return document_.InsertFrame(next_position_, std::move(frame_));
}

bool GifLoad::ReadExtension() {
    uint8 label = 0;
    if (!input_.Read(&label, 1)) return false;
    switch (label) {
        case kGraphicControlLabel:
            return ReadGifControlBlock();
        case kCommentLabel:
            return ReadGifCommentBlock();
        case kApplicationLabel:
            return ReadGifLoopBlock();
        default:
            return ReadGifUnknownBlock(label);
    }
}

bool GifLoad::ReadGifLoopBlock() {
    static constexpr char kIdentifier[12] = "NETSCAPE2.0";
    uint8 size = 0;
    std::array<uint8, 256> block{};
    if (!input_.Read(&size, 1) || !input_.Read(block.data(), size)) return false;
    if (std::memcmp(block.data(), kIdentifier, sizeof(kIdentifier)) != 0) return SkipSubBlocks();

    // One read takes the sub-block and the terminator after it.
    block.fill(0);
    if (!input_.Read(&size, 1)) return false;
    if (!input_.Read(block.data(), static_cast<size_t>(size) + 1)) return false;
    // What the sub-block is too short for counts as 0; the terminator is no part of the count.
    std::fill(block.begin() + size, block.end(), uint8{0});
    document_.Change([&block](kirto::Animation& animation) {
        animation.use_loop = true;
        animation.loop_count = kirto::ReadLittle16(block.data() + 1);
    });
    return true;
}

bool GifLoad::ReadGifControlBlock() {
    uint8 block[6];
    if (!input_.Read(block, sizeof(block))) return false;
    // Never cleared: a transparent index stays in force for all later images of the file.
    if ((block[1] & 1) != 0) {
        global_palette_.use_transparent = true;
        global_palette_.transparent_index = block[4];
        document_.Change([this](kirto::Animation& animation) {
            animation.palette = std::make_shared<const Palette>(global_palette_);
        });
    }
    previous_disposal_ = current_disposal_;
    current_disposal_ = std::min((block[1] >> 2) & 7, kDisposalBackground);
    if (previous_disposal_ == -1) previous_disposal_ = current_disposal_;
    frame_.pause_length = kirto::ReadLittle16(block + 2);
    frame_.use_pause = frame_.pause_length != 0;
    return true;
}

bool GifLoad::ReadGifCommentBlock() {
    kirto::DebugLine("GifLoad::ReadGifCommentBlock() - Found:");
    // A line break goes with what follows it: a text that ends in one ends the debug line, and the
    // comment's lines must not pass for the program's.
    std::string text = "\n";
    uint8 size = 0;
    char block[256] = {};
    while (input_.Read(&size, 1) && input_.Read(block, size)) {
        block[size] = 0;
        if (size == 0) {
            kirto::DebugLine("%s\n", text.c_str());
            return true;
        }
        text += block;
        const bool ends_line = text.ends_with('\n');
        if (ends_line) text.pop_back();
        kirto::DebugLine("%s", text.c_str());
        text = ends_line ? "\n" : "";
    }
    kirto::DebugLine("%s", text.c_str());
    return false;
}

bool GifLoad::ReadGifUnknownBlock(uint8 label) {
    kirto::DebugLine("GifLoad::ReadGifUnknownBlock() - Found: %d\n", label);
    return SkipSubBlocks();
}

bool GifLoad::SkipSubBlocks() {
    uint8 size = 0;
    do {
        if (!input_.Read(&size, 1)) return false;
        input_.Skip(size);
    } while (size != 0);
    return true;
}

bool GifLoad::ReadGifImageHeader() {
    uint8 header[9];
    if (!input_.Read(header, sizeof(header))) return false;
    frame_.x_offset = kirto::ReadLittle16(header);
    frame_.y_offset = kirto::ReadLittle16(header + 2);
    frame_.width = kirto::ReadLittle16(header + 4);
    frame_.height = kirto::ReadLittle16(header + 6);
    if (frame_.width > width_ || frame_.height > height_) {
        kirto::DebugLine(
            "GifLoad::ReadGifImageHeader() - Local dimensions exceed global dimensions\n");
        return false;
    }
    frame_.local_palette = (header[8] & 0x80) != 0;
    if (frame_.local_palette && !ReadColorTable(local_palette_.get(), (header[8] & 7) + 1)) {
        return false;
    }
    interlaced_ = (header[8] & 0x40) != 0;
    const BRect bounds =
        full_frame_ ? BRect::OfSize(width_, height_) : BRect::OfSize(frame_.width, frame_.height);
    picture_ = std::make_shared<BBitmap>(bounds, B_RGB32, document_.pixel_budget);
    if (picture_->InitCheck() != B_OK) {
        // No memory of any size makes a picture of no pixels.
        out_of_memory = bounds.IsValid();
        return false;
    }
    return !full_frame_ || FrameDisposal();
}

bool GifLoad::ReadColorTable(Palette* palette, int32 bits) {
    palette->mode = kirto::kPaletteFromFile;
    palette->bits = bits;
    palette->size = 1 << bits;
    uint8 table[256 * 3];
    const size_t count = static_cast<size_t>(palette->size);
    if (!input_.Read(table, count * 3)) return false;
    for (size_t i = 0; i < count; ++i) {
        palette->colors[i] = {table[i * 3], table[i * 3 + 1], table[i * 3 + 2], 255};
    }
    return true;
}

// Starts a full-size frame from the picture before it, as that picture's disposal says.
bool GifLoad::FrameDisposal() {
    if (IsFirst() || CoversScreen()) return true;
    const kirto::FramePointer previous = document_.FrameAt(next_position_ - 1);
    if (!previous || !previous->bitmap || !kirto::IsLittleEndian(previous->bitmap->ColorSpace()))
        return false;
    if (!previous->bitmap->Bits() || !picture_->Bits()) return false;
    if (!kirto::CopyPixels(*previous->bitmap, *picture_, document_.work)) return false;
    if (previous_disposal_ == -1) previous_disposal_ = 0;
    if (previous_disposal_ == kDisposalBackground) {
        // A frame decoded at full size claims the whole screen as its rectangle, so this clears
        // the whole canvas, not only what the image before had drawn. Intended.
        FillRows(*picture_, previous->y_offset, previous->y_offset + previous->height,
                 previous->x_offset, previous->x_offset + previous->width,
                 kirto::PixelOf(BackgroundColor()), document_.work);
    }
    return true;
}

// Gives the file's first image, where it leaves part of the screen free, its background.
bool GifLoad::FillBackground() {
    if (CoversScreen() || previous_disposal_ != kDisposalBackground) return true;
    if (!picture_->Bits()) return false;
    FillRows(*picture_, 0, height_, 0, width_, kirto::PixelOf(BackgroundColor()), document_.work);
    return true;
}

bool GifLoad::ReadGifImageData() {
    if (IsFirst() && full_frame_ && !FillBackground()) return false;
    int32 min_code_size = 0;
    if (!ReadCodeSize(&min_code_size)) return false;

    kirto::GifPixelColors colors = kirto::PixelColorsOf(CurrentPalette());
    const int32 transparent = global_palette_.transparent_index;
    if (global_palette_.use_transparent && transparent >= 0 && transparent < 256) {
        if (full_frame_) {
            colors.skipped_index = transparent;
        } else {
            const bool drawn = document_.prefs.thumbnail_drawtransparent;
            colors.pixels[static_cast<size_t>(transparent)] =
                kirto::PixelOf(drawn ? kDrawnTransparent : kPlainTransparent);
        }
    }
    kirto::GifImageArea area{0, 0, frame_.width, frame_.height};
    if (full_frame_) {
        area.left = frame_.x_offset;
        area.top = frame_.y_offset;
    }
    kirto::GifPixelWriter writer(*picture_, area, interlaced_, colors);
    kirto::GifLzwDecoder decoder(input_, min_code_size);
    if (!decoder.Decode(writer)) return false;
    if (full_frame_) {
        frame_.width = width_;
        frame_.height = height_;
        frame_.x_offset = 0;
        frame_.y_offset = 0;
    }
    return true;
}

// A code size above the palette's depth is allowed, one below it is not: deliberately lopsided. A
// size of 1 always counts as 2, and a missing byte as 0.
bool GifLoad::ReadCodeSize(int32* min_code_size) {
    const int32 expected = std::max(CurrentPalette().bits, 2);
    uint8 byte = 0;
    input_.Read(&byte, 1);
    const int32 actual = byte == 1 ? 2 : byte;
    *min_code_size = actual;
    if (actual < expected || actual > kirto::GifLzwDecoder::kMaxMinCodeSize) {
        kirto::DebugLine(
            "GifLoad::ReadGifImageData() - Code_size should be %d, but was in fact %d\n", expected,
            byte);
        return false;
    }
    if (actual > expected) {
        kirto::DebugLine(
            "GifLoad::ReadGifImageData() - Code_size should be %d, but was in fact %d, allowing "
            "it\n",
            expected, byte);
    }
    return true;
}

bool GifLoad::StartFrame() {
    frame_ = Frame(kirto::Format("frame%04d", next_position_), 0, 0);
    local_palette_ = kirto::SharePalette();
    out_of_memory = !local_palette_;
    return !out_of_memory;
}

bool GifLoad::CoversScreen() const {
    return frame_.width == width_ && frame_.height == height_;
}

const Palette& GifLoad::CurrentPalette() const {
    return frame_.local_palette ? *local_palette_ : global_palette_;
}

rgb_color GifLoad::BackgroundColor() const {
    return CurrentPalette().ColorForIndex(global_palette_.background_index);
}
