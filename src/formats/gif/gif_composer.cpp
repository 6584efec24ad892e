#include "formats/gif/gif_composer.h"

#include <algorithm>
#include <utility>

#include "base/debug_line.h"

namespace kirto {

namespace {

void TakeColors(const GifColorTable& table, Palette* palette) {
    palette->mode = kPaletteFromFile;
    palette->bits = table.bits;
    palette->size = 1 << table.bits;
    if (table.complete) std::copy_n(table.colors.begin(), palette->size, palette->colors.begin());
}

}  // namespace

GifComposer::GifComposer(const Palette& global, std::shared_ptr<PixelBudget> budget, Work& work)
    : global_(global), budget_(std::move(budget)), work_(work) {}

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
    if (control.transparent_index < 0) return;
    global_.use_transparent = true;
    global_.transparent_index = control.transparent_index;
}

const Palette* GifComposer::TakeTable(const GifImage& image, Frame* frame, Palette* palette) const {
    frame->local_palette = image.table.bits > 0;
    if (frame->local_palette) TakeColors(image.table, palette);
    if (!image.table.complete) return nullptr;
    return frame->local_palette ? palette : &global_;
}

bool GifComposer::IsAffordable(int32 width, int32 height) const {
    // However little memory it takes here.
    return uint64{4} * static_cast<uint64>(width) * static_cast<uint64>(height) <= budget_->Limit();
}

bool GifComposer::Reserve(const GifImage& image) {
    const uint64 size = static_cast<uint64>(image.width) * static_cast<uint64>(image.height);
    return size <= budget_->Left() + PixelBudget::kWorkingRoom && indices_.Reserve(image);
}

const GifIndices& GifComposer::Decode(const GifImage& image, GifIndices* ahead, int32 min_code_size,
                                      int64 file_size) {
    GifIndices& decoded = ahead ? *ahead : indices_;
    if (!ahead) decoded.Decode(image, min_code_size, work_, file_size);
    if (!decoded.lines.empty()) DebugLine("%s", decoded.lines.c_str());
    return decoded;
}

IndexImage GifComposer::Placed(const GifImage& image, const GifIndices& decoded,
                               const PixelTable& table) {
    IndexImage indices;
    indices.indices = {decoded.indices.get(), decoded.room};
    indices.left = image.left;
    indices.top = image.top;
    indices.width = image.width;
    indices.height = image.height;
    indices.row_lengths = decoded.row_lengths;
    indices.counts = decoded.counts;
    if (!table_ || *table_ != table) table_ = std::make_shared<const PixelTable>(table);
    indices.table = table_;
    return indices;
}

}  // namespace kirto
