#include "picture/picture.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "picture/picture_builder.h"

namespace kirto {

namespace {

bool IsOpaquePixel(uint32 pixel, bool big_endian) {
    uint8 bytes[4];
    std::memcpy(bytes, &pixel, sizeof(bytes));
    return bytes[big_endian ? 0 : 3] == 255;
}

bool AreOpaque(const uint8* pixels, size_t count, bool big_endian) {
    for (size_t i = big_endian ? 0 : 3; i < count * 4; i += 4) {
        if (pixels[i] != 255) return false;
    }
    return true;
}

// The bitmap's rows as strips, in memory of their own; nothing unless all of them have few colors.
Picture::Strips Packed(const BBitmap& bitmap, const std::shared_ptr<PixelBudget>& budget) {
    // The history would be cut for the sake of memory that is not needed.
    if (budget && budget->Left() < bitmap.BitsLength() / 2) return {};
    PictureBuilder builder(bitmap.Width(), bitmap.Height(), bitmap.ColorSpace(), budget);
    for (int32 y = 0; y < bitmap.Height(); ++y) {
        if (!builder.AddRow(bitmap.Row(y)) || !builder.OnlyIndices()) return {};
    }
    return builder.TakeStrips();
}

Picture::Strips Borrowed(const std::shared_ptr<const BBitmap>& bitmap) {
    const int32 step = Strip::RowsFor(bitmap->Width());
    Picture::Strips strips;
    for (int32 y = 0; y < bitmap->Height(); y += step) {
        strips.push_back(Strip::Direct(bitmap, bitmap->Row(y), bitmap->Width(),
                                       std::min(step, bitmap->Height() - y)));
    }
    return strips;
}

}  // namespace

std::shared_ptr<const Picture> Picture::Of(std::shared_ptr<const BBitmap> bitmap,
                                           const std::shared_ptr<PixelBudget>& budget) {
    if (!bitmap) return nullptr;
    const color_space space = bitmap->ColorSpace();
    const int32 width = bitmap->Width();
    const bool has_rows = bitmap->InitCheck() == B_OK && Is32Bit(space);
    if (has_rows) {
        Strips strips = Packed(*bitmap, budget);
        if (!strips.empty()) {
            if (auto packed = Of(std::move(strips), width, space, budget)) return packed;
        }
    }
    std::shared_ptr<const StripList> strips =
        StripList::Of(has_rows ? Borrowed(bitmap) : Strips(), nullptr);
    const std::shared_ptr<Picture> picture(
        new Picture(width, bitmap->Height(), space, std::move(strips)));
    picture->bitmap_ = std::move(bitmap);
    return picture;
}

std::shared_ptr<const Picture> Picture::Of(Strips strips, int32 width, color_space space,
                                           std::shared_ptr<PixelBudget> budget) {
    const std::shared_ptr<const StripList> list = StripList::Of(std::move(strips), budget);
    if (!list) return nullptr;
    const std::shared_ptr<Picture> picture(new Picture(width, list->Height(), space, list));
    return picture->LetCount(std::move(budget)) ? picture : nullptr;
}

std::shared_ptr<const Picture> Picture::Again(const Picture& picture,
                                              std::shared_ptr<PixelBudget> budget) {
    const std::shared_ptr<Picture> again(
        new Picture(picture.width_, picture.height_, picture.space_, picture.strips_));
    again->bitmap_ = picture.bitmap_;
    return again->LetCount(std::move(budget)) ? again : nullptr;
}

bool Picture::LetCount(std::shared_ptr<PixelBudget> budget) {
    if (budget && !budget->Reserve(PixelBudget::kFrameCost)) return false;
    budget_ = std::move(budget);
    return true;
}

bool Picture::Repeats(const Picture& other) const {
    return strips_ == other.strips_ && width_ == other.width_ && space_ == other.space_;
}

std::shared_ptr<const Picture> Picture::Solid(uint32 pixel, int32 width, int32 height,
                                              color_space space,
                                              std::shared_ptr<PixelBudget> budget) {
    Strips strips;
    const std::shared_ptr<const Strip> whole = Strip::Solid(pixel, width, Strip::kMaxRows);
    int32 left = height;
    for (; left >= Strip::kMaxRows; left -= Strip::kMaxRows)
        strips.push_back(whole);
    if (left > 0) strips.push_back(whole->Slice(0, left));
    return Of(std::move(strips), width, space, std::move(budget));
}

Picture::~Picture() {
    if (budget_) budget_->Release(PixelBudget::kFrameCost);
}

PixelRow Picture::Row(int32 y) const {
    const size_t strip = StripAt(y);
    return AllStrips()[strip]->Row(y - FirstRows()[strip]);
}

size_t Picture::StripAt(int32 y) const {
    if (y >= height_) return AllStrips().size();
    const std::vector<int32>& first_rows = FirstRows();
    const auto after = std::upper_bound(first_rows.begin(), first_rows.end(), y);
    return static_cast<size_t>(after - first_rows.begin()) - 1;
}

bool Picture::IsOpaque() const {
    const bool big_endian = IsBigEndian(space_);
    return std::ranges::all_of(AllStrips(), [&](const auto& strip) {
        if (const uint8* pixels = strip->Pixels()) {
            return AreOpaque(pixels,
                             static_cast<size_t>(strip->Rows()) * static_cast<size_t>(width_),
                             big_endian);
        }
        return strip->AllCounts(
            [&](const PixelCount& each) { return IsOpaquePixel(each.pixel, big_endian); });
    });
}

std::shared_ptr<const BBitmap> Picture::ToBitmap() const {
    if (bitmap_) return bitmap_;
    const auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(width_, height_), space_);
    if (bitmap->InitCheck() != B_OK) return bitmap;
    for (int32 y = 0; y < height_; ++y)
        ReadRow(y, bitmap->Row(y));
    return bitmap;
}

bool CopyPixels(const Picture& source, BBitmap& target, const Work& work) {
    const size_t row_bytes = static_cast<size_t>(source.Width()) * 4;
    std::vector<uint8> row(row_bytes);
    size_t written = 0;
    for (int32 y = 0; y < source.Height() && written < target.BitsLength(); ++y) {
        if (work.StopRequested()) return false;
        source.ReadRow(y, row.data());
        const size_t size = std::min(row_bytes, target.BitsLength() - written);
        std::memcpy(target.Bits() + written, row.data(), size);
        written += size;
    }
    return !work.StopRequested();
}

}  // namespace kirto
