#include "kit/bitmap.h"

#include <utility>

namespace {

// Bytes a row; rows of the narrower spaces are padded to whole 32-bit words.
size_t RowBytes(color_space space, int32 width) {
    const size_t pixels = static_cast<size_t>(width);
    const auto padded = [](size_t bytes) { return (bytes + 3) / 4 * 4; };
    switch (space) {
        case B_RGB32:
        case B_RGBA32:
        case B_RGB32_BIG:
        case B_RGBA32_BIG:
            return pixels * 4;
        case B_RGB24:
            return padded(pixels * 3);
        case B_RGB16:
            return padded(pixels * 2);
        case B_CMAP8:
        case B_GRAY8:
            return padded(pixels);
        case B_GRAY1:
            return padded((pixels + 7) / 8);
        case B_NO_COLOR_SPACE:
            break;
    }
    return 0;
}

}  // namespace

BBitmap::BBitmap(BRect bounds, color_space space, std::shared_ptr<kirto::PixelBudget> budget)
    : BBitmap(bounds, space, nullptr, std::move(budget)) {}

std::shared_ptr<BBitmap> BBitmap::OnSealedFile(BRect bounds, color_space space,
                                               const kirto::FileDescriptor& file,
                                               std::shared_ptr<kirto::PixelBudget> budget) {
    return std::shared_ptr<BBitmap>(new BBitmap(bounds, space, &file, std::move(budget)));
}

BBitmap::BBitmap(BRect bounds, color_space space, const kirto::FileDescriptor* file,
                 std::shared_ptr<kirto::PixelBudget> budget)
    : bounds_(bounds), space_(space), budget_(std::move(budget)) {
    if (!bounds.IsValid()) return;
    width_ = bounds.PixelWidth();
    height_ = bounds.PixelHeight();
    bytes_per_row_ = RowBytes(space, width_);
    if (bytes_per_row_ == 0 || bytes_per_row_ > INT32_MAX || height_ == 0) return;
    // Both factors are below 2^31.
    const size_t bytes = bytes_per_row_ * static_cast<size_t>(height_);
    if (budget_ && !budget_->Reserve(bytes + kirto::PixelBudget::kFrameCost)) return;
    bytes_ = bytes;
    bits_ = file ? kirto::BitmapMemory::OfSealedFile(*file, bytes)
                 : kirto::BitmapMemory::Allocate(bytes);
    if (!bits_) ReleaseBudget();
}

BBitmap::~BBitmap() {
    if (bits_) ReleaseBudget();
}

void BBitmap::ReleaseBudget() {
    if (budget_) budget_->Release(bytes_ + kirto::PixelBudget::kFrameCost);
}

namespace kirto {

bool Is32Bit(color_space space) {
    return IsLittleEndian(space) || IsBigEndian(space);
}

bool IsLittleEndian(color_space space) {
    return space == B_RGB32 || space == B_RGBA32;
}

bool IsBigEndian(color_space space) {
    return space == B_RGB32_BIG || space == B_RGBA32_BIG;
}

}  // namespace kirto
