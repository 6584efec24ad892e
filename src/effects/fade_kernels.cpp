#include "effects/fade_kernels.h"

#include "kit/bitmap.h"

namespace kirto {

namespace {

constexpr size_t kPixelBytes = 4;

struct Components {
    uint8 blue;
    uint8 green;
    uint8 red;
    uint8 alpha;
};

Components ReadPixel(const uint8* pixel, bool little_endian) {
    if (little_endian) return {pixel[0], pixel[1], pixel[2], pixel[3]};
    return {pixel[3], pixel[2], pixel[1], pixel[0]};
}

// Double precision holds the products of a single-precision factor and a byte, and their sum,
// exactly, so nothing but the final truncation rounds.
uint8 Blend(double f, uint8 a, uint8 b) {
    return static_cast<uint8>(f * a + (1 - f) * b);
}

size_t Area(int32 width, int32 height) {
    return static_cast<size_t>(width) * static_cast<size_t>(height);
}

}  // namespace

void FadeToRGB(const uint8* source, color_space source_space, uint8* target, int32 width,
               int32 height, float f, bool to_color, rgb_color color) {
    const bool little_endian = IsLittleEndian(source_space);
    const double source_share = to_color ? 1 - static_cast<double>(f) : static_cast<double>(f);
    for (size_t left = Area(width, height); left > 0; --left) {
        const Components pixel = ReadPixel(source, little_endian);
        target[0] = Blend(source_share, pixel.blue, color.blue);
        target[1] = Blend(source_share, pixel.green, color.green);
        target[2] = Blend(source_share, pixel.red, color.red);
        target[3] = pixel.alpha;
        source += kPixelBytes;
        target += kPixelBytes;
    }
}

void FadeToFrame(const uint8* first, color_space first_space, const uint8* second,
                 color_space second_space, uint8* target, int32 width, int32 height, float f) {
    const bool first_little = IsLittleEndian(first_space);
    const bool second_little = IsLittleEndian(second_space);
    for (size_t left = Area(width, height); left > 0; --left) {
        const Components a = ReadPixel(first, first_little);
        const Components b = ReadPixel(second, second_little);
        target[0] = Blend(f, a.blue, b.blue);
        target[1] = Blend(f, a.green, b.green);
        target[2] = Blend(f, a.red, b.red);
        target[3] = a.alpha;
        first += kPixelBytes;
        second += kPixelBytes;
        target += kPixelBytes;
    }
}

}  // namespace kirto
