#include "formats/gif/gif_composer.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/debug_line.h"
#include "formats/gif/gif_lzw_decoder.h"

namespace kirto {

namespace {

// Restore-to-previous and the reserved methods all behave as restore-to-background.
constexpr int32 kDisposalBackground = 2;

constexpr rgb_color kDrawnTransparent = {255, 255, 255, 128};
constexpr rgb_color kPlainTransparent = {128, 128, 128, 128};

void TakeColors(const GifColorTable& table, Palette* palette) {
    palette->mode = kPaletteFromFile;
    palette->bits = table.bits;
    palette->size = 1 << table.bits;
    if (table.complete) std::copy_n(table.colors.begin(), palette->size, palette->colors.begin());
}

}  // namespace

GifComposer::GifComposer(const Options& options, const Palette& global,
                         std::shared_ptr<PixelBudget> budget, Work& work)
    : options_(options), budget_(std::move(budget)), work_(work), global_(global) {}

void GifComposer::SetScreen(const GifScreen& screen) {
    width_ = screen.width;
    height_ = screen.height;
    if (screen.table.bits == 0) {
        global_.Set(kPaletteWebSafe);
        return;
    }
    TakeColors(screen.table, &global_);
    if (screen.table.complete) global_.background_index = screen.background_index;
}

void GifComposer::SetControl(const GifControl& control) {
    // Never cleared: a transparent index stays in force for all later images of the file.
    if (control.transparent_index >= 0) {
        global_.use_transparent = true;
        global_.transparent_index = control.transparent_index;
    }
    previous_disposal_ = current_disposal_;
    current_disposal_ = std::min(control.disposal, kDisposalBackground);
    if (previous_disposal_ == -1) previous_disposal_ = current_disposal_;
}

status_t GifComposer::Compose(const GifImage& image, int64 file_size, Frame* frame,
                              Palette* palette) {
    if (image.width > width_ || image.height > height_) {
        DebugLine("GifLoad::ReadGifImageHeader() - Local dimensions exceed global dimensions\n");
        return B_BAD_DATA;
    }
    frame->local_palette = image.table.bits > 0;
    if (frame->local_palette) TakeColors(image.table, palette);
    if (!image.table.complete) return B_BAD_DATA;
    const Palette& current = frame->local_palette ? *palette : global_;
    const status_t status = MakePicture(image, current);
    if (status != B_OK) return status;
    if (image.data.too_large) return B_NO_MEMORY;
    if (!ReadGifImageData(image, current, file_size)) return B_BAD_DATA;
    frame->width = options_.full_frame ? width_ : image.width;
    frame->height = options_.full_frame ? height_ : image.height;
    frame->x_offset = options_.full_frame ? 0 : image.left;
    frame->y_offset = options_.full_frame ? 0 : image.top;
    previous_ = picture_;
    frame->bitmap = std::move(picture_);
    return work_.StopRequested() ? B_CANCELED : B_OK;
}

// As it is before the image is drawn.
status_t GifComposer::MakePicture(const GifImage& image, const Palette& current) {
    const BRect bounds = options_.full_frame ? BRect::OfSize(width_, height_)
                                             : BRect::OfSize(image.width, image.height);
    picture_ = std::make_shared<BBitmap>(bounds, B_RGB32, budget_);
    if (picture_->InitCheck() != B_OK) {
        // No memory of any size makes a picture of no pixels.
        return bounds.IsValid() ? B_NO_MEMORY : B_BAD_DATA;
    }
    if (!options_.full_frame || CoversScreen(image)) return B_OK;
    if (previous_) return FrameDisposal(current) ? B_OK : B_CANCELED;
    if (previous_disposal_ == kDisposalBackground) FillScreen(current);
    return B_OK;
}

// Starts a full-size frame from the picture before it, as that picture's disposal says.
bool GifComposer::FrameDisposal(const Palette& current) {
    if (!CopyPixels(*previous_, *picture_, work_)) return false;
    if (previous_disposal_ == -1) previous_disposal_ = 0;
    // A frame decoded at full size claims the whole screen as its rectangle, so this clears the
    // whole canvas, not only what the image before had drawn. Intended.
    if (previous_disposal_ == kDisposalBackground) FillScreen(current);
    return true;
}

void GifComposer::FillScreen(const Palette& current) {
    const uint32 pixel = PixelOf(current.ColorForIndex(global_.background_index));
    for (int32 y = 0; y < height_ && !work_.StopRequested(); ++y) {
        uint8* row = picture_->Row(y);
        for (size_t x = 0; x < static_cast<size_t>(width_); ++x)
            std::memcpy(row + x * 4, &pixel, 4);
    }
}

bool GifComposer::ReadGifImageData(const GifImage& image, const Palette& current, int64 file_size) {
    int32 min_code_size = 0;
    if (!CheckCodeSize(image.min_code_size, current, &min_code_size)) return false;
    GifPixelColors colors = PixelColorsOf(current);
    const int32 transparent = global_.transparent_index;
    if (global_.use_transparent && transparent >= 0 && transparent < 256) {
        if (options_.full_frame) {
            colors.skipped_index = transparent;
        } else {
            colors.pixels[static_cast<size_t>(transparent)] =
                PixelOf(options_.draw_transparent ? kDrawnTransparent : kPlainTransparent);
        }
    }
    GifImageArea area{0, 0, image.width, image.height};
    if (options_.full_frame) {
        area.left = image.left;
        area.top = image.top;
    }
    GifPixelWriter writer(*picture_, area, image.interlaced, colors);
    GifLzwDecoder decoder(image.data, min_code_size);
    return decoder.Decode(writer, work_, file_size);
}

// A code size above the palette's depth is allowed, one below it is not: deliberately lopsided. A
// size of 1 always counts as 2.
bool GifComposer::CheckCodeSize(uint8 size, const Palette& current, int32* min_code_size) const {
    const int32 expected = std::max(current.bits, 2);
    const int32 actual = size == 1 ? 2 : size;
    *min_code_size = actual;
    if (actual < expected || actual > GifLzwDecoder::kMaxMinCodeSize) {
        DebugLine("GifLoad::ReadGifImageData() - Code_size should be %d, but was in fact %d\n",
                  expected, size);
        return false;
    }
    if (actual > expected) {
        DebugLine(
            "GifLoad::ReadGifImageData() - Code_size should be %d, but was in fact %d, allowing "
            "it\n",
            expected, size);
    }
    return true;
}

bool GifComposer::CoversScreen(const GifImage& image) const {
    return image.width == width_ && image.height == height_;
}

}  // namespace kirto
