#include "formats/faithful/screen.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

#include "picture/picture_builder.h"

namespace kirto {

namespace {

// Keys of the pixels of one picture, row by row.
class KeyReader {
  public:
    KeyReader(const Picture& picture, const AlphaMatte& matte)
        : picture_(picture), matte_(matte), big_endian_(IsBigEndian(picture.ColorSpace())) {}

    void Read(int32 y, int32 first, int32 count, uint32* keys) {
        const PixelRow row = picture_.Row(y);
        if (row.pixels) {
            for (int32 x = 0; x < count; ++x)
                keys[x] = KeyAt(row.pixels + size_t{4} * static_cast<size_t>(first + x));
        } else if (row.indices) {
            TakeTable(*row.table);
            for (int32 x = 0; x < count; ++x)
                keys[x] = table_keys_[row.indices[first + x]];
        } else {
            std::fill_n(keys, count, KeyOf(row.solid));
        }
    }

  private:
    uint32 KeyAt(const uint8* pixel) const {
        return big_endian_ ? matte_.KeyAt<true>(pixel) : matte_.KeyAt<false>(pixel);
    }
    uint32 KeyOf(uint32 pixel) const {
        uint8 bytes[4];
        std::memcpy(bytes, &pixel, sizeof(bytes));
        return KeyAt(bytes);
    }
    void TakeTable(const SharedPixelTable& table) {
        if (table_ == table) return;
        table_ = table;
        std::transform(table->pixels.begin(), table->pixels.end(), table_keys_.begin(),
                       [this](uint32 pixel) { return KeyOf(pixel); });
    }

    const Picture& picture_;
    const AlphaMatte& matte_;
    const bool big_endian_;
    SharedPixelTable table_;
    std::array<uint32, 256> table_keys_{};
};

int32 Limited(int64 value, int32 limit) {
    return static_cast<int32>(std::clamp<int64>(value, 0, limit));
}

}  // namespace

ScreenImage ScreenImage::Of(const Frame& frame) {
    return {frame.bitmap, frame.x_offset, frame.y_offset, frame.width, frame.height};
}

PixelRect Clipped(const PixelRect& rect, int32 width, int32 height) {
    const int32 left = Limited(rect.left, width);
    const int32 top = Limited(rect.top, height);
    return {left, top, Limited(int64{rect.left} + rect.width, width) - left,
            Limited(int64{rect.top} + rect.height, height) - top};
}

PixelRect Common(const PixelRect& a, const PixelRect& b) {
    const int32 left = std::max(a.left, b.left);
    const int32 top = std::max(a.top, b.top);
    return {left, top, std::max(0, std::min(a.left + a.width, b.left + b.width) - left),
            std::max(0, std::min(a.top + a.height, b.top + b.height) - top)};
}

PixelRect Around(const PixelRect& a, const PixelRect& b) {
    if (a.width == 0 || a.height == 0) return b;
    if (b.width == 0 || b.height == 0) return a;
    const int32 left = std::min(a.left, b.left);
    const int32 top = std::min(a.top, b.top);
    return {left, top, std::max(a.left + a.width, b.left + b.width) - left,
            std::max(a.top + a.height, b.top + b.height) - top};
}

void FillPixels(std::span<const uint32> keys, uint8* pixels) {
    for (const uint32 key : keys) {
        const uint32 pixel = key == kNothing ? 0 : key | 0xFF000000;
        for (uint32 i = 0; i < 4; ++i)
            *pixels++ = static_cast<uint8>(pixel >> 8 * i);
    }
}

ScreenPixels Screen::Empty() const {
    return ScreenPixels(At(0, height_), kNothing);
}

ScreenPixels Screen::Show(const ScreenImage& image) const {
    return ShowPart(image, Whole());
}

ScreenPixels Screen::ShowPart(const ScreenImage& image, const PixelRect& rect) const {
    ScreenPixels pixels(static_cast<size_t>(rect.width) * static_cast<size_t>(rect.height),
                        kNothing);
    if (!image.picture || !image.picture->HasRows()) return pixels;
    const int32 columns = std::min(image.width, image.picture->Width());
    const int32 rows = std::min(image.height, image.picture->Height());
    const PixelRect seen =
        Common(Clipped({image.left, image.top, columns, rows}, width_, height_), rect);
    if (seen.width <= 0) return pixels;
    KeyReader reader(*image.picture, matte_);
    uint32* row = pixels.data() +
                  static_cast<size_t>(seen.top - rect.top) * static_cast<size_t>(rect.width) +
                  (seen.left - rect.left);
    for (int32 y = seen.top; y < seen.top + seen.height; ++y, row += rect.width)
        reader.Read(y - image.top, seen.left - image.left, seen.width, row);
    return pixels;
}

void Screen::Clear(const PixelRect& rect, ScreenPixels* pixels) const {
    for (int32 y = rect.top; y < rect.top + rect.height; ++y)
        std::fill_n(pixels->begin() + static_cast<ptrdiff_t>(At(rect.left, y)), rect.width,
                    kNothing);
}

std::shared_ptr<const Picture> Screen::PictureOf(const ScreenPixels& pixels) const {
    PictureBuilder builder(width_, height_, B_RGB32, nullptr);
    std::vector<uint8> row(size_t{4} * static_cast<size_t>(width_));
    const std::span<const uint32> keys(pixels);
    for (size_t start = 0; start < keys.size(); start += row.size() / 4) {
        FillPixels(keys.subspan(start, row.size() / 4), row.data());
        if (!builder.AddRow(row.data())) throw std::bad_alloc();
    }
    std::shared_ptr<const Picture> picture = builder.Take();
    if (!picture) throw std::bad_alloc();
    return picture;
}

}  // namespace kirto
