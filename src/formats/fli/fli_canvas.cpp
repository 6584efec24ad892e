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
      band_rows_(Strip::RowsFor(width)),
      budget_(std::move(budget)),
      indices_(PixelStorage::Make(static_cast<size_t>(PixelCount()), budget_)),
      table_(std::make_shared<PixelTable>()),
      ready_(indices_ != nullptr),
      bands_(static_cast<size_t>(ready_ ? (height + band_rows_ - 1) / band_rows_ : 0)) {}

void FliCanvas::Blacken() {
    const uint32 black = PixelOf(kOpaqueBlack);
    const auto* const entry = std::find(table_->pixels.begin(), table_->pixels.end(), black);
    if (indices_ && entry == table_->pixels.end()) TurnIntoPixels();
    if (!ready_) return;
    FillAll(indices_ ? static_cast<uint32>(entry - table_->pixels.begin()) : black);
}

void FliCanvas::Clear() {
    if (ready_) FillAll(indices_ ? 0 : table_->pixels[0]);
}

void FliCanvas::FillAll(uint32 value) {
    drawn_ = true;
    prepared_end_ = prepared_start_;
    for (Band& band : bands_) {
        band.changed = band.changed || band.solid != value;
        band.solid = value;
    }
}

bool FliCanvas::Take(const std::shared_ptr<const Picture>& picture, const Work& work) {
    if (picture == last_) return true;
    if (indices_ && !TurnIntoPixels()) return false;
    for (Band& band : bands_)
        band = {.changed = true, .solid = std::nullopt, .stored = nullptr};
    drawn_ = true;
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
    for (size_t i = 0; i < bands_.size() && ready_; ++i) {
        bands_[i].stored = nullptr;
        if (bands_[i].solid) {
            bands_[i].solid = table_->pixels[*bands_[i].solid];
            continue;
        }
        for (int32 y = FirstRow(i); y < FirstRow(i) + RowsOf(i); ++y) {
            row.indices = indices_->Bytes() + int64{y} * width_;
            row.Expand(width_, pixels_->Row(y));
        }
    }
    indices_ = nullptr;
    return ready_;
}

void FliCanvas::Put(int64 position, std::span<const uint8> indices) {
    if (!ready_) return;
    Prepare(position, static_cast<int64>(indices.size()));
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
    Prepare(position, count);
    const uint8 pair[2] = {first, second};
    for (int64 i = 0; indices_ && i < count; ++i)
        indices_->Bytes()[position + i] = pair[i % 2];
    for (int64 i = 0; pixels_ && i < count; ++i)
        std::memcpy(pixels_->Bits() + (position + i) * 4, &table_->pixels[pair[i % 2]], 4);
}

// The bands of these pixels are about to be drawn on.
void FliCanvas::Prepare(int64 position, int64 count) {
    drawn_ = true;
    const int64 end = position + count;
    if (count == 0 || (position >= prepared_start_ && end <= prepared_end_)) return;
    const int64 size = int64{band_rows_} * width_;
    const size_t first = static_cast<size_t>(position / size);
    const size_t last = static_cast<size_t>((end - 1) / size);
    for (size_t i = first; i <= last; ++i) {
        bands_[i].changed = true;
        if (bands_[i].solid) FillMemory(i, *bands_[i].solid);
        bands_[i].solid.reset();
    }
    prepared_start_ = static_cast<int64>(first) * size;
    prepared_end_ = (static_cast<int64>(last) + 1) * size;
}

void FliCanvas::FillMemory(size_t number, uint32 value) {
    const int64 first = int64{FirstRow(number)} * width_;
    const int64 count = int64{RowsOf(number)} * width_;
    if (indices_) {
        std::memset(indices_->Bytes() + first, static_cast<int32>(value),
                    static_cast<size_t>(count));
        return;
    }
    uint8* target = pixels_->Bits() + first * 4;
    for (int64 i = 0; i < count; ++i)
        std::memcpy(target + i * 4, &value, sizeof(value));
}

bool FliCanvas::HasChanged() const {
    return !last_ || recolored_ ||
           std::ranges::any_of(bands_, [](const Band& band) { return band.changed; });
}

std::shared_ptr<const Picture> FliCanvas::MakePicture(const Work& work) {
    if (!ready_ || work.StopRequested()) return nullptr;
    if (!HasChanged()) {
        last_ = Picture::Again(*last_, budget_);
        return last_;
    }
    PictureBuilder builder(width_, height_, B_RGB32, budget_, last_);
    for (size_t i = 0; i < bands_.size(); ++i) {
        if (work.StopRequested() || !AddBand(i, builder)) return nullptr;
    }
    last_ = builder.Take();
    for (Band& band : bands_)
        band.changed = false;
    recolored_ = false;
    prepared_end_ = prepared_start_;
    return last_;
}

// The rows as they were in the last picture where nothing has been drawn on them since.
bool FliCanvas::AddBand(size_t number, PictureBuilder& builder) {
    const Band& band = bands_[number];
    if (last_ && !band.changed && !recolored_) return builder.AddStrip(last_->AllStrips()[number]);
    if (band.solid || (last_ && !band.changed)) return builder.AddStrip(StripOf(number));
    return AddRows(number, builder);
}

// Rows of the canvas as a new strip.
bool FliCanvas::AddRows(size_t number, PictureBuilder& builder) {
    const int32 rows = RowsOf(number);
    if (pixels_) {
        for (int32 y = FirstRow(number); y < FirstRow(number) + rows; ++y) {
            if (!builder.AddRow(pixels_->Row(y))) return false;
        }
        return true;
    }
    const uint8* indices = indices_->Bytes() + int64{FirstRow(number)} * width_;
    const size_t size = static_cast<size_t>(rows) * static_cast<size_t>(width_);
    Band& band = bands_[number];
    if (std::memcmp(indices, indices + 1, size - 1) == 0) {
        band.solid = indices[0];
    } else {
        const std::shared_ptr<PixelStorage> storage = PixelStorage::MakeUnfilled(size, budget_);
        if (!storage) return false;
        std::memcpy(storage->Bytes(), indices, size);
        band.stored = storage;
    }
    return builder.AddStrip(StripOf(number));
}

// What is known of the rows, in today's colors.
std::shared_ptr<const Strip> FliCanvas::StripOf(size_t number) {
    const Band& band = bands_[number];
    const int32 rows = RowsOf(number);
    if (band.solid) return SolidStrip(pixels_ ? *band.solid : table_->pixels[*band.solid], rows);
    const std::shared_ptr<const Strip> before = last_ ? last_->AllStrips()[number] : nullptr;
    const bool similar =
        before && (before->Table() == table_ || before->Indices() == band.stored->Bytes());
    return Strip::Indexed(band.stored, table_, width_, rows, nullptr, similar ? before : nullptr);
}

// Bands that look alike share their strip.
std::shared_ptr<const Strip> FliCanvas::SolidStrip(uint32 pixel, int32 rows) {
    if (!last_solid_ || last_solid_->Rows() != rows || !last_solid_->IsSolid(pixel))
        last_solid_ = Strip::Solid(pixel, width_, rows);
    return last_solid_;
}

}  // namespace kirto
