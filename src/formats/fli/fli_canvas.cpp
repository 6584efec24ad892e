#include "formats/fli/fli_canvas.h"

#include <algorithm>
#include <cstring>

#include "color/pixel_table.h"

namespace kirto {

namespace {

constexpr rgb_color kOpaqueBlack = {0, 0, 0, 255};

}  // namespace

FliCanvas::FliCanvas(int32 width, int32 height, std::shared_ptr<PixelBudget> budget)
    : width_(width),
      height_(height),
      budget_(std::move(budget)),
      indices_(PixelStorage::Make(static_cast<size_t>(PixelCount()), budget_)),
      table_(std::make_shared<PixelTable>()),
      ready_(indices_ != nullptr),
      changed_rows_(static_cast<size_t>(ready_ ? height : 0), true) {}

void FliCanvas::Blacken(const Work& work) {
    const uint32 black = PixelOf(kOpaqueBlack);
    const auto* const entry = std::find(table_->pixels.begin(), table_->pixels.end(), black);
    if (indices_ && entry == table_->pixels.end()) TurnIntoPixels();
    if (!ready_) return;
    Mark(0, PixelCount());
    for (int32 y = 0; y < height_ && !work.StopRequested(); ++y) {
        if (indices_) {
            std::memset(indices_->Bytes() + int64{y} * width_,
                        static_cast<int32>(entry - table_->pixels.begin()),
                        static_cast<size_t>(width_));
            continue;
        }
        uint8* row = pixels_->Row(y);
        for (size_t i = 0; i < pixels_->BytesPerRow(); i += sizeof(black))
            std::memcpy(row + i, &black, sizeof(black));
    }
}

bool FliCanvas::Take(const std::shared_ptr<const Picture>& picture, const Work& work) {
    if (picture == last_) return true;
    if (indices_ && !TurnIntoPixels()) return false;
    Mark(0, PixelCount());
    std::fill_n(pixels_->Bits(), pixels_->BitsLength(), uint8{0});
    return CopyPixels(*picture, *pixels_, work);
}

void FliCanvas::SetTable(const PixelTable& table) {
    if (*table_ == table) return;
    // Before anything is drawn the indices have no meaning yet.
    if (indices_ && drawn_) TurnIntoPixels();
    table_ = std::make_shared<const PixelTable>(table);
}

void FliCanvas::Recolor(const PixelTable& table) {
    if (*table_ == table) return;
    table_ = std::make_shared<const PixelTable>(table);
    recolored_ = true;
}

// What is drawn keeps its colors whatever indices mean later.
bool FliCanvas::TurnIntoPixels() {
    pixels_ = std::make_unique<BBitmap>(BRect::OfSize(width_, height_), B_RGB32, budget_);
    ready_ = pixels_->InitCheck() == B_OK;
    PixelRow row;
    row.table = &table_;
    for (int32 y = 0; y < height_ && ready_; ++y) {
        row.indices = indices_->Bytes() + int64{y} * width_;
        row.Expand(width_, pixels_->Row(y));
    }
    indices_ = nullptr;
    stored_.clear();
    return ready_;
}

void FliCanvas::Put(int64 position, std::span<const uint8> indices) {
    if (!ready_) return;
    Mark(position, static_cast<int64>(indices.size()));
    if (indices_) {
        std::copy(indices.begin(), indices.end(), indices_->Bytes() + position);
        return;
    }
    uint8* target = pixels_->Bits() + position * 4;
    for (size_t i = 0; i < indices.size(); ++i)
        std::memcpy(target + i * 4, &table_->pixels[indices[i]], 4);
}

void FliCanvas::RepeatPair(int64 position, uint8 first, uint8 second, int64 count) {
    if (!ready_) return;
    Mark(position, count);
    const uint8 pair[2] = {first, second};
    for (int64 i = 0; indices_ && i < count; ++i)
        indices_->Bytes()[position + i] = pair[i % 2];
    for (int64 i = 0; pixels_ && i < count; ++i)
        std::memcpy(pixels_->Bits() + (position + i) * 4, &table_->pixels[pair[i % 2]], 4);
}

void FliCanvas::Mark(int64 position, int64 count) {
    drawn_ = true;
    const int64 end = position + count;
    if (count == 0 || (position >= marked_start_ && end <= marked_end_)) return;
    const int64 last = (end - 1) / width_;
    for (int64 row = position / width_; row <= last; ++row)
        changed_rows_[static_cast<size_t>(row)] = true;
    marked_start_ = last * width_;
    marked_end_ = marked_start_ + width_;
}

bool FliCanvas::IsChanged(int32 first_row, int32 end) const {
    const auto last = changed_rows_.begin() + end;
    return !last_ || std::find(changed_rows_.begin() + first_row, last, true) != last;
}

std::shared_ptr<const Picture> FliCanvas::MakePicture(const Work& work) {
    if (!ready_) return nullptr;
    PictureBuilder builder(width_, height_, B_RGB32, budget_, last_);
    const int32 step = Strip::RowsFor(width_);
    stored_.resize(static_cast<size_t>((height_ + step - 1) / step));
    for (int32 y = 0; y < height_;) {
        if (work.StopRequested()) return nullptr;
        const int32 end = std::min(y + step, height_);
        const bool added = AddBand(static_cast<size_t>(y / step), y, end, builder);
        if (!added) return nullptr;
        y = end;
    }
    last_ = builder.Take();
    changed_rows_.assign(changed_rows_.size(), false);
    recolored_ = false;
    marked_end_ = marked_start_;
    return last_;
}

// The rows as they were in the last picture where nothing has been drawn on them since.
bool FliCanvas::AddBand(size_t number, int32 first_row, int32 end, PictureBuilder& builder) {
    if (IsChanged(first_row, end)) return AddRows(number, first_row, end, builder);
    if (!recolored_) return builder.AddStrip(last_->AllStrips()[number]);
    return builder.AddStrip(StripOf(number, first_row, end - first_row));
}

// Rows of the canvas as a new strip.
bool FliCanvas::AddRows(size_t number, int32 first_row, int32 end, PictureBuilder& builder) {
    if (pixels_) {
        for (int32 y = first_row; y < end; ++y) {
            if (!builder.AddRow(pixels_->Row(y))) return false;
        }
        return true;
    }
    const int32 rows = end - first_row;
    const uint8* indices = indices_->Bytes() + int64{first_row} * width_;
    const size_t size = static_cast<size_t>(rows) * static_cast<size_t>(width_);
    stored_[number] = nullptr;
    if (std::memcmp(indices, indices + 1, size - 1) != 0) {
        const std::shared_ptr<PixelStorage> storage = PixelStorage::MakeUnfilled(size, budget_);
        if (!storage) return false;
        std::memcpy(storage->Bytes(), indices, size);
        stored_[number] = storage;
    }
    return builder.AddStrip(StripOf(number, first_row, rows));
}

// What is stored of the rows, in today's colors.
std::shared_ptr<const Strip> FliCanvas::StripOf(size_t number, int32 first_row, int32 rows) const {
    if (stored_[number]) {
        const std::shared_ptr<const Strip> before = last_ ? last_->AllStrips()[number] : nullptr;
        const bool similar = before && before->Table() == table_;
        return Strip::Indexed(stored_[number], table_, width_, rows, nullptr,
                              similar ? before : nullptr);
    }
    const uint8 index = indices_->Bytes()[int64{first_row} * width_];
    return Strip::Solid(table_->pixels[index], width_, rows);
}

}  // namespace kirto
