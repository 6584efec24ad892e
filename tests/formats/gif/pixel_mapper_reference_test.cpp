// The mapper against the same arithmetic written down plainly: every color searched for in the
// whole palette, and errors in wide numbers.
#include <gtest/gtest.h>
#include <random>
#include <span>

#include "color/reference_palette.h"
#include "formats/gif/pixel_mapper.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Indices = std::vector<uint8>;

constexpr uint8 kTransparentIndex = 7;
constexpr int32 kWidth = 61;
constexpr int32 kHeight = 40;

uint8 Nearest(const Palette& palette, rgb_color color) {
    if (palette.mode != kPaletteGreyscale)
        return ReferenceNearest(palette.colors, palette.size, color);
    return static_cast<uint8>((color.red + 2 * color.green + color.blue) / 4);
}

// One component's errors. Entry x + 1 of the row belongs to column x.
class PlainErrors {
  public:
    explicit PlainErrors(int32 width) : row_(static_cast<size_t>(width) + 2, 0) {}

    void StartRow() { carried_ = 0; }
    void Clear() { std::fill(row_.begin(), row_.end(), 0); }
    uint8 Correct(uint8 value) const {
        return static_cast<uint8>(std::clamp(value - carried_, 0, 255));
    }
    void Spread(int32 x, int32 chosen, int32 corrected) {
        const size_t column = static_cast<size_t>(x) + 1;
        const int64 error = chosen - corrected;
        carried_ = static_cast<int32>((error * 14336 + row_[column + 1]) >> 15);
        row_[column - 1] += error * 6144;
        row_[column] += error * 10240;
        row_[column + 1] = error * 2048;
    }

  private:
    std::vector<int64> row_;
    int32 carried_ = 0;
};

class PlainMapper {
  public:
    PlainMapper(const Palette& palette, bool dither, bool unconnected_rows, int32 width)
        : palette_(palette),
          dither_(dither && palette.mode != kPaletteGreyscale),
          unconnected_rows_(unconnected_rows),
          width_(width),
          red_(width),
          green_(width),
          blue_(width) {}

    Indices Row(const kirto::Picture& bitmap, int32 y) {
        Indices indices;
        for (PlainErrors* errors : {&red_, &green_, &blue_})
            errors->StartRow();
        for (int32 x = 0; x < width_; ++x) {
            if (unconnected_rows_ && x == width_ - 1) {
                for (PlainErrors* errors : {&red_, &green_, &blue_})
                    errors->Clear();
            }
            const rgb_color color = PixelColor(&bitmap, x, y);
            indices.push_back(color.alpha < 255 ? kTransparentIndex : Map(color, x));
        }
        return indices;
    }

  private:
    uint8 Map(rgb_color color, int32 x) {
        if (!dither_) return Nearest(palette_, color);
        color = {red_.Correct(color.red), green_.Correct(color.green), blue_.Correct(color.blue),
                 255};
        const uint8 index = Nearest(palette_, color);
        const rgb_color chosen = palette_.colors[index];
        red_.Spread(x, chosen.red, color.red);
        green_.Spread(x, chosen.green, color.green);
        blue_.Spread(x, chosen.blue, color.blue);
        return index;
    }

    const Palette& palette_;
    const bool dither_;
    const bool unconnected_rows_;
    const int32 width_;
    PlainErrors red_;
    PlainErrors green_;
    PlainErrors blue_;
};

// Runs of equal pixels and noise, here and there transparent.
std::vector<uint32> RandomPixels(std::mt19937& random, uint32 mask) {
    std::vector<uint32> argb;
    while (argb.size() < static_cast<size_t>(kWidth * kHeight)) {
        const uint32 alpha = random() % 8 == 0 ? static_cast<uint32>(random()) << 24 : 0xFF000000U;
        const uint32 color = static_cast<uint32>(random()) & mask;
        argb.insert(argb.end(), random() % 3 == 0 ? random() % 6 : 1, alpha | color);
    }
    argb.resize(static_cast<size_t>(kWidth * kHeight));
    return argb;
}

Palette RandomPalette(std::mt19937& random, int32 size, uint32 mask) {
    Palette palette(kPaletteFromFile);
    palette.size = size;
    for (rgb_color& color : palette.colors) {
        const uint32 key = static_cast<uint32>(random()) & mask;
        color = {static_cast<uint8>(key >> 16), static_cast<uint8>(key >> 8),
                 static_cast<uint8>(key), 255};
    }
    return palette;
}

// A picture by the mapper and by the plain one. Rows are wider than the bitmap by so much.
void ExpectPlain(PixelMapper& mapper, const Palette& palette, bool dither, bool unconnected_rows,
                 const kirto::Picture& bitmap, int32 beyond) {
    PlainMapper plain(palette, dither, unconnected_rows, kWidth + beyond);
    mapper.StartPicture(palette, unconnected_rows);
    for (int32 y = 0; y <= kHeight; ++y) {
        const std::span<const uint8> indices = mapper.MapRow(&bitmap, y, kWidth + beyond);
        ASSERT_EQ(Indices(indices.begin(), indices.end()), plain.Row(bitmap, y))
            << "row " << y << ", size " << palette.size;
    }
}

void ExpectPlainPictures(bool dither) {
    std::mt19937 random(61);
    PixelMapper mapper(kTransparentIndex, dither, kWidth + 2);
    for (const int32 size : {1, 2, 3, 16, 40, 216, 255, 256}) {
        for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
            const uint32 mask = random() % 2 == 0 ? 0xFFFFFF : 0xC0E0C0;
            const Palette palette = RandomPalette(random, size, mask);
            const auto picture =
                FramePictureOf(kWidth, kHeight, RandomPixels(random, 0xFFFFFF), space);
            const bool unconnected_rows = random() % 2 == 0;
            ExpectPlain(mapper, palette, dither, unconnected_rows, *picture,
                        static_cast<int32>(random() % 3));
        }
    }
}

}  // namespace

TEST(PixelMapper, EqualsThePlainOneOnRandomPictures) {
    ExpectPlainPictures(false);
}

TEST(PixelMapper, EqualsThePlainOneOnRandomDitheredPictures) {
    ExpectPlainPictures(true);
}

TEST(PixelMapper, EqualsThePlainOneWithBuiltInPalettes) {
    std::mt19937 random(62);
    for (const bool dither : {false, true}) {
        PixelMapper mapper(kTransparentIndex, dither, kWidth);
        for (const int32 kind : {kPaletteWebSafe, kPaletteSystem, kPaletteGreyscale}) {
            const Palette palette(kind);
            for (const uint32 mask : {0xFFFFFFU, 0x0F0F0FU}) {
                const auto picture = FramePictureOf(kWidth, kHeight, RandomPixels(random, mask));
                ExpectPlain(mapper, palette, dither, false, *picture, 0);
            }
        }
    }
}

}  // namespace kirto::test
