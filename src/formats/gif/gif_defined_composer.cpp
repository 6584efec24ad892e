#include "formats/gif/gif_defined_composer.h"

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

}  // namespace

GifDefinedComposer::GifDefinedComposer(const Options& options, const Palette& global,
                                       std::shared_ptr<PixelBudget> budget, Work& work)
    : GifComposer(global, budget, work), options_(options), painter_(std::move(budget)) {}

void GifDefinedComposer::SetControl(const GifControl& control) {
    GifComposer::SetControl(control);
    previous_disposal_ = current_disposal_;
    current_disposal_ = std::min(control.disposal, kDisposalBackground);
    if (previous_disposal_ == -1) previous_disposal_ = current_disposal_;
}

std::optional<int32> GifDefinedComposer::CodeSizeOf(const GifImage& image) const {
    if (!FitsScreen(image)) return std::nullopt;
    const int32 bits = image.table.bits > 0 ? image.table.bits : global_.bits;
    return GifCodeSizeOf(image.min_code_size, bits);
}

status_t GifDefinedComposer::Compose(const GifImage& image, GifIndices* ahead, int64 file_size,
                                     Frame* frame, Palette* palette) {
    if (!FitsScreen(image)) {
        DebugLine("GifLoad::ReadGifImageHeader() - Local dimensions exceed global dimensions\n");
        if (image.data.complete) cause_ = HarmlessCause::kImageBeyondScreen;
        return B_BAD_DATA;
    }
    const Palette* const current = TakeTable(image, frame, palette);
    if (!current) return B_BAD_DATA;
    const int32 width = options_.full_frame ? width_ : image.width;
    const int32 height = options_.full_frame ? height_ : image.height;
    // No memory of any size makes a picture of no pixels.
    if (width == 0 || height == 0) return B_BAD_DATA;
    if (!IsAffordable(width, height)) return B_NO_MEMORY;
    if (image.data.too_large || (!ahead && !Reserve(image))) return B_NO_MEMORY;
    const std::optional<int32> min_code_size = CheckCodeSize(image.min_code_size, *current);
    if (!min_code_size) {
        if (HasShortCodes(image, *current)) cause_ = HarmlessCause::kShortCodes;
        return B_BAD_DATA;
    }
    const GifIndices& decoded = Decode(image, ahead, *min_code_size, file_size);
    if (!decoded.complete) return B_BAD_DATA;
    const IndexImage indices = PlacedIn(*current, image, decoded);
    std::shared_ptr<const Picture> picture =
        IsHiddenBy(indices, width, height) ? previous_ : Below(image, *current);
    picture = painter_.Paint(picture, indices);
    if (!picture) return B_NO_MEMORY;
    frame->width = width;
    frame->height = height;
    frame->x_offset = options_.full_frame ? 0 : image.left;
    frame->y_offset = options_.full_frame ? 0 : image.top;
    frame->damaged = !decoded.row_lengths.empty();
    previous_ = picture;
    frame->bitmap = std::move(picture);
    return work_.StopRequested() ? B_CANCELED : B_OK;
}

bool GifDefinedComposer::FitsScreen(const GifImage& image) const {
    return image.width <= width_ && image.height <= height_;
}

IndexImage GifDefinedComposer::PlacedIn(const Palette& current, const GifImage& image,
                                        const GifIndices& decoded) {
    PixelTable table = PixelTableOf(current.colors);
    const int32 transparent = global_.transparent_index;
    const bool skips = global_.use_transparent && transparent >= 0 && transparent < 256;
    if (skips && !options_.full_frame) {
        table.pixels[static_cast<size_t>(transparent)] =
            PixelOf(options_.draw_transparent ? kDrawnTransparent : kPlainTransparent);
    }
    IndexImage indices = Placed(image, decoded, table);
    if (!options_.full_frame) {
        indices.left = 0;
        indices.top = 0;
    } else if (skips) {
        indices.skipped = transparent;
    }
    return indices;
}

// Whether nothing shows through of the picture before, which has the same size: then the image may
// be drawn over that one whatever is below, for the sake of the rows that both have.
bool GifDefinedComposer::IsHiddenBy(const IndexImage& image, int32 width, int32 height) const {
    return previous_ && previous_->Width() == width && previous_->Height() == height &&
           image.left == 0 && image.top == 0 && image.width == width && image.height == height &&
           image.skipped < 0 && image.row_lengths.empty();
}

// What the image is drawn over.
std::shared_ptr<const Picture> GifDefinedComposer::Below(const GifImage& image,
                                                         const Palette& current) {
    if (!options_.full_frame) return Solid(0, image.width, image.height);
    if (CoversScreen(image)) return Solid(0, width_, height_);
    if (previous_) return FrameDisposal(current);
    const bool background = previous_disposal_ == kDisposalBackground;
    const uint32 pixel = PixelOf(current.ColorForIndex(global_.background_index));
    return Solid(background ? pixel : 0, width_, height_);
}

// What the picture before leaves, as its disposal says.
std::shared_ptr<const Picture> GifDefinedComposer::FrameDisposal(const Palette& current) {
    if (previous_disposal_ == -1) previous_disposal_ = 0;
    // A frame decoded at full size claims the whole screen as its rectangle, so this clears the
    // whole canvas, not only what the image before had drawn. Intended.
    if (previous_disposal_ != kDisposalBackground) return previous_;
    return Solid(PixelOf(current.ColorForIndex(global_.background_index)), width_, height_);
}

std::shared_ptr<const Picture> GifDefinedComposer::Solid(uint32 pixel, int32 width, int32 height) {
    // It lasts until it is painted over.
    return Picture::Solid(pixel, width, height, B_RGB32, nullptr);
}

std::optional<int32> GifDefinedComposer::CheckCodeSize(uint8 size, const Palette& current) {
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

// Browsers take the codes as they are, whatever the palette's size.
bool GifDefinedComposer::HasShortCodes(const GifImage& image, const Palette& current) {
    return image.data.complete && image.min_code_size > 0 && image.min_code_size < current.bits;
}

bool GifDefinedComposer::CoversScreen(const GifImage& image) const {
    return image.width == width_ && image.height == height_;
}

}  // namespace kirto
