#include "formats/gif/gif_browser_composer.h"

#include <algorithm>
#include <span>
#include <utility>

#include "color/pixel_table.h"

namespace kirto {

namespace {

// Indices of more bits than a color table has are an error everywhere.
constexpr uint8 kMaxCodeSize = 8;
// What indices without an entry stand for.
constexpr rgb_color kNoEntry = {0, 0, 0, 255};

std::shared_ptr<const std::vector<rgb_color>> ColorsOf(const GifColorTable& table) {
    if (table.bits == 0 || !table.complete) return nullptr;
    const std::span<const rgb_color> entries =
        std::span(table.colors).first(size_t{1} << table.bits);
    return std::make_shared<const std::vector<rgb_color>>(entries.begin(), entries.end());
}

// Some writers have taken the third bit for that of the third method. Methods without a meaning
// leave the image where it is.
Disposal DisposalOf(int32 method) {
    if (method == 4) return Disposal::kPrevious;
    return method < 4 ? static_cast<Disposal>(method) : Disposal::kNone;
}

PixelTable PixelsOf(const std::vector<rgb_color>* colors) {
    PixelTable table;
    table.pixels.fill(PixelOf(kNoEntry));
    if (colors) std::transform(colors->begin(), colors->end(), table.pixels.begin(), PixelOf);
    return table;
}

// The rows up to the last that has any pixels: a few bytes may claim very many.
int32 RowsWithPixels(const GifImage& image, const GifIndices& decoded) {
    const std::vector<int32>& lengths = decoded.row_lengths;
    if (lengths.empty()) return image.height;
    const auto last = std::find_if(lengths.rbegin(), lengths.rend(), [](int32 n) { return n > 0; });
    return static_cast<int32>(lengths.rend() - last);
}

}  // namespace

GifBrowserComposer::GifBrowserComposer(const Palette& global, std::shared_ptr<PixelBudget> budget,
                                       Work& work)
    : GifComposer(global, std::move(budget), work) {}

void GifBrowserComposer::SetScreen(const GifScreen& screen) {
    GifComposer::SetScreen(screen);
    global_colors_ = ColorsOf(screen.table);
}

void GifBrowserComposer::SetControl(const GifControl& control) {
    GifComposer::SetControl(control);
    control_ = control;
}

std::optional<int32> GifBrowserComposer::CodeSizeOf(const GifImage& image) const {
    if (image.min_code_size > kMaxCodeSize) return std::nullopt;
    return image.min_code_size;
}

status_t GifBrowserComposer::Compose(const GifImage& image, GifIndices* ahead, int64 file_size,
                                     Frame* frame, Palette* palette) {
    const std::optional<int32> code_size = CodeSizeOf(image);
    if (!TakeTable(image, frame, palette) || !code_size) return B_BAD_DATA;
    const status_t opened = OpenScreen(image);
    if (opened != B_OK) return opened;
    if (image.data.too_large || (!ahead && !Reserve(image))) return B_NO_MEMORY;
    const GifIndices& decoded = Decode(image, ahead, *code_size, file_size);
    if (work_.StopRequested()) return B_CANCELED;
    const Colors colors = frame->local_palette ? ColorsOf(image.table) : global_colors_;
    const IndexImage indices = PlacedIn(colors, image, decoded);
    std::shared_ptr<const Picture> picture = screen_->Draw(indices, DisposalOf(control_.disposal));
    if (!picture) return B_NO_MEMORY;
    frame->width = width_;
    frame->height = height_;
    frame->damaged = !decoded.row_lengths.empty();
    frame->source = SourceOf(image, colors, picture);
    frame->bitmap = std::move(picture);
    control_ = GifControl();
    return B_OK;
}

// The screen is as large as the file says, and has room for all of the first image.
status_t GifBrowserComposer::OpenScreen(const GifImage& image) {
    if (screen_) return B_OK;
    width_ = std::max(width_, image.left + image.width);
    height_ = std::max(height_, image.top + image.height);
    // No memory of any size makes a picture of no pixels.
    if (width_ == 0 || height_ == 0) return B_BAD_DATA;
    if (!IsAffordable(width_, height_)) return B_NO_MEMORY;
    screen_.emplace(width_, height_, budget_);
    return B_OK;
}

IndexImage GifBrowserComposer::PlacedIn(const Colors& colors, const GifImage& image,
                                        const GifIndices& decoded) {
    IndexImage indices = Placed(image, decoded, PixelsOf(colors.get()));
    indices.skipped = control_.transparent_index;
    indices.height = RowsWithPixels(image, decoded);
    return indices;
}

// Null when memory is short, and from then on: frames can do without, but none may seem to be the
// first.
std::shared_ptr<const GifSource> GifBrowserComposer::SourceOf(
    const GifImage& image, Colors colors, const std::shared_ptr<const Picture>& picture) {
    const std::vector<uint8>& codes = image.data.bytes;
    const std::shared_ptr<PixelStorage> kept = PixelStorage::MakeUnfilled(codes.size(), budget_);
    const std::shared_ptr<const GifSource> previous = std::exchange(last_source_, nullptr);
    lacks_source_ = lacks_source_ || !kept;
    if (lacks_source_) return nullptr;
    std::copy(codes.begin(), codes.end(), kept->Bytes());
    auto source = std::make_shared<GifSource>();
    source->rect = {image.left, image.top, image.width, image.height};
    source->disposal = DisposalOf(control_.disposal);
    source->transparent_index = control_.transparent_index;
    source->interlaced = image.interlaced;
    source->local_table = image.table.bits > 0;
    source->table = std::move(colors);
    source->min_code_size = image.min_code_size;
    source->codes = kept;
    source->codes_size = codes.size();
    source->picture = picture;
    source->previous = previous;
    last_source_ = source;
    return source;
}

}  // namespace kirto
