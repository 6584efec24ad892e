#include "picture/picture_builder.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kirto {

PictureBuilder::PictureBuilder(int32 width, int32 height, color_space space,
                               std::shared_ptr<PixelBudget> budget,
                               std::shared_ptr<const Picture> earlier)
    : width_(width),
      height_(height),
      strip_rows_(Strip::RowsFor(width)),
      space_(space),
      budget_(std::move(budget)),
      earlier_(std::move(earlier)),
      indices_(static_cast<size_t>(width) * static_cast<size_t>(StripRows())) {}

bool PictureBuilder::AddRow(const uint8* pixels) {
    if (failed_) return false;
    const size_t width = static_cast<size_t>(width_);
    const size_t before = width * static_cast<size_t>(rows_);
    if (!pixels_ && !packer_.Pack(pixels, width, indices_.data() + before) && !StartDirect())
        return false;
    if (pixels_) std::memcpy(pixels_->Bytes() + before * 4, pixels, width * 4);
    return ++rows_ < StripRows() || EndStrip();
}

// The strip has too many colors: its rows so far become pixels.
bool PictureBuilder::StartDirect() {
    only_indices_ = false;
    const size_t room = static_cast<size_t>(width_) * static_cast<size_t>(StripRows()) * 4;
    pixels_ = PixelStorage::MakeUnfilled(room, budget_);
    failed_ = !pixels_;
    if (failed_) return false;
    const SharedPixelTable table(std::shared_ptr<void>(), &packer_.Table());
    PixelRow rows;
    rows.indices = indices_.data();
    rows.table = &table;
    rows.Expand(width_ * rows_, pixels_->Bytes());
    return true;
}

bool PictureBuilder::AddStrip(std::shared_ptr<const Strip> strip) {
    if (!EndStrip()) return false;
    first_row_ += strip->Rows();
    strips_.push_back(std::move(strip));
    return true;
}

bool PictureBuilder::EndStrip() {
    if (rows_ == 0) return !failed_;
    std::shared_ptr<const Strip> strip = EarlierStrip(rows_);
    if (!strip) strip = MakeStrip();
    failed_ = !strip;
    if (failed_) return false;
    strips_.push_back(std::move(strip));
    first_row_ += rows_;
    rows_ = 0;
    pixels_ = nullptr;
    packer_.Clear();
    return true;
}

std::shared_ptr<const Strip> PictureBuilder::MakeStrip() const {
    if (pixels_) return Strip::Direct(pixels_, pixels_->Bytes(), width_, rows_);
    if (packer_.Size() == 1) return Strip::Solid(packer_.Table().pixels[0], width_, rows_);
    return MakeIndexed();
}

std::shared_ptr<const Strip> PictureBuilder::MakeIndexed() const {
    const size_t size = static_cast<size_t>(width_) * static_cast<size_t>(rows_);
    const std::shared_ptr<PixelStorage> storage = PixelStorage::MakeUnfilled(size, budget_);
    if (!storage) return nullptr;
    std::memcpy(storage->Bytes(), indices_.data(), size);
    // Strips one below the other often have the same colors.
    const SharedPixelTable above = strips_.empty() ? nullptr : strips_.back()->Table();
    const bool same = above && *above == packer_.Table();
    return Strip::Indexed(storage, same ? above : std::make_shared<PixelTable>(packer_.Table()),
                          width_, rows_);
}

// The earlier picture's strip in this place if it has the same pixels, else null.
std::shared_ptr<const Strip> PictureBuilder::EarlierStrip(int32 rows) const {
    if (!earlier_ || earlier_->Width() != width_ || earlier_->ColorSpace() != space_)
        return nullptr;
    const std::vector<int32>& first_rows = earlier_->FirstRows();
    const auto place = std::lower_bound(first_rows.begin(), first_rows.end(), first_row_);
    if (place == first_rows.end() || *place != first_row_) return nullptr;
    const std::shared_ptr<const Strip>& strip =
        earlier_->AllStrips()[static_cast<size_t>(place - first_rows.begin())];
    if (strip->Rows() != rows) return nullptr;
    const size_t size = static_cast<size_t>(width_) * static_cast<size_t>(rows);
    bool same = false;
    if (pixels_) {
        same = strip->Pixels() && std::memcmp(strip->Pixels(), pixels_->Bytes(), size * 4) == 0;
    } else if (strip->Indices()) {
        same = *strip->Table() == packer_.Table() &&
               std::memcmp(strip->Indices(), indices_.data(), size) == 0;
    } else if (!strip->Pixels()) {
        same = packer_.Size() == 1 && strip->Row(0).solid == packer_.Table().pixels[0];
    }
    return same ? strip : nullptr;
}

Picture::Strips PictureBuilder::TakeStrips() {
    if (!EndStrip()) return {};
    return std::move(strips_);
}

std::shared_ptr<const Picture> PictureBuilder::Take() {
    Picture::Strips strips = TakeStrips();
    if (strips.empty()) return nullptr;
    return Picture::Of(std::move(strips), width_, space_, budget_);
}

}  // namespace kirto
