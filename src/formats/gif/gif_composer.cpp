#include "formats/gif/gif_composer.h"

#include <algorithm>
#include <utility>

#include "base/debug_line.h"
#include "color/pixel_table.h"

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
    : options_(options),
      budget_(std::move(budget)),
      work_(work),
      global_(global),
      painter_(budget_) {}

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

status_t GifComposer::Compose(const GifImage& image, GifIndices* ahead, int64 file_size,
                              Frame* frame, Palette* palette) {
    if (image.width > width_ || image.height > height_) {
        DebugLine("GifLoad::ReadGifImageHeader() - Local dimensions exceed global dimensions\n");
        return B_BAD_DATA;
    }
    frame->local_palette = image.table.bits > 0;
    if (frame->local_palette) TakeColors(image.table, palette);
    if (!image.table.complete) return B_BAD_DATA;
    const Palette& current = frame->local_palette ? *palette : global_;
    const int32 width = options_.full_frame ? width_ : image.width;
    const int32 height = options_.full_frame ? height_ : image.height;
    // No memory of any size makes a picture of no pixels.
    if (width == 0 || height == 0) return B_BAD_DATA;
    // Pictures are given to others as bitmaps, however little memory they take here.
    if (uint64{4} * static_cast<uint64>(width) * static_cast<uint64>(height) > budget_->Limit())
        return B_NO_MEMORY;
    if (image.data.too_large || (!ahead && !ReserveIndices(image))) return B_NO_MEMORY;
    IndexImage indices;
    if (!ReadGifImageData(image, current, ahead, file_size, &indices)) return B_BAD_DATA;
    std::shared_ptr<const Picture> picture = Below(image, current);
    picture = painter_.Paint(picture, indices);
    if (!picture) return B_NO_MEMORY;
    frame->width = width;
    frame->height = height;
    frame->x_offset = options_.full_frame ? 0 : image.left;
    frame->y_offset = options_.full_frame ? 0 : image.top;
    previous_ = picture;
    frame->bitmap = std::move(picture);
    return work_.StopRequested() ? B_CANCELED : B_OK;
}

// What the image is drawn over.
std::shared_ptr<const Picture> GifComposer::Below(const GifImage& image, const Palette& current) {
    if (!options_.full_frame) return Solid(0, image.width, image.height);
    if (CoversScreen(image)) return Solid(0, width_, height_);
    if (previous_) return FrameDisposal(current);
    const bool background = previous_disposal_ == kDisposalBackground;
    const uint32 pixel = PixelOf(current.ColorForIndex(global_.background_index));
    return Solid(background ? pixel : 0, width_, height_);
}

// What the picture before leaves, as its disposal says.
std::shared_ptr<const Picture> GifComposer::FrameDisposal(const Palette& current) {
    if (previous_disposal_ == -1) previous_disposal_ = 0;
    // A frame decoded at full size claims the whole screen as its rectangle, so this clears the
    // whole canvas, not only what the image before had drawn. Intended.
    if (previous_disposal_ != kDisposalBackground) return previous_;
    return Solid(PixelOf(current.ColorForIndex(global_.background_index)), width_, height_);
}

std::shared_ptr<const Picture> GifComposer::Solid(uint32 pixel, int32 width, int32 height) {
    // It lasts until it is painted over.
    return Picture::Solid(pixel, width, height, B_RGB32, nullptr);
}

// Makes room for the image's indices. False when memory is short.
bool GifComposer::ReserveIndices(const GifImage& image) {
    const uint64 size = static_cast<uint64>(image.width) * static_cast<uint64>(image.height);
    return size <= budget_->Left() + PixelBudget::kWorkingRoom && indices_.Reserve(image);
}

bool GifComposer::ReadGifImageData(const GifImage& image, const Palette& current, GifIndices* ahead,
                                   int64 file_size, IndexImage* indices) {
    const std::optional<int32> min_code_size = CheckCodeSize(image.min_code_size, current);
    if (!min_code_size) return false;
    GifIndices& decoded = ahead ? *ahead : indices_;
    if (!ahead) decoded.Decode(image, *min_code_size, work_, file_size);
    if (!decoded.lines.empty()) DebugLine("%s", decoded.lines.c_str());
    if (!decoded.complete) return false;
    indices->indices = {decoded.indices.get(), decoded.room};
    indices->left = options_.full_frame ? image.left : 0;
    indices->top = options_.full_frame ? image.top : 0;
    indices->width = image.width;
    indices->height = image.height;
    indices->row_lengths = decoded.row_lengths;
    indices->counts = decoded.counts;
    SetColors(current, indices);
    return true;
}

void GifComposer::SetColors(const Palette& current, IndexImage* indices) {
    PixelTable table = PixelTableOf(current.colors);
    const int32 transparent = global_.transparent_index;
    if (global_.use_transparent && transparent >= 0 && transparent < 256) {
        if (options_.full_frame) {
            indices->skipped = transparent;
        } else {
            table.pixels[static_cast<size_t>(transparent)] =
                PixelOf(options_.draw_transparent ? kDrawnTransparent : kPlainTransparent);
        }
    }
    if (!table_ || *table_ != table) table_ = std::make_shared<const PixelTable>(table);
    indices->table = table_;
}

std::optional<int32> GifComposer::CheckCodeSize(uint8 size, const Palette& current) {
    const std::optional<int32> actual = GifCodeSizeOf(size, current.bits);
    const int32 expected = std::max(current.bits, 2);
    if (!actual) {
        DebugLine("GifLoad::ReadGifImageData() - Code_size should be %d, but was in fact %d\n",
                  expected, size);
    } else if (*actual > expected) {
        DebugLine(
            "GifLoad::ReadGifImageData() - Code_size should be %d, but was in fact %d, allowing "
            "it\n",
            expected, size);
    }
    return actual;
}

bool GifComposer::CoversScreen(const GifImage& image) const {
    return image.width == width_ && image.height == height_;
}

}  // namespace kirto
