// Arbitrary bytes as two pictures, their color spaces, a color and a share: the kernels of fades
// give what blending component by component gives. The first nine bytes are the numbers.
#include <cmath>
#include <cstdlib>
#include <vector>

#include "effects/fade_kernels.h"

namespace {

constexpr size_t kNumbers = 9;
constexpr color_space kSpaces[] = {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG};
constexpr int32 kMostWidth = 70;

struct Pixels {
    const uint8* bytes;
    color_space space;

    // component: blue, green, red, alpha.
    uint8 At(size_t pixel, size_t component) const {
        const bool little = space == B_RGB32 || space == B_RGBA32;
        return bytes[pixel * 4 + (little ? component : 3 - component)];
    }
};

void Check(bool holds) {
    if (!holds) std::abort();
}

uint8 PlainBlend(double share, uint8 a, uint8 b) {
    const long double f = share;
    return static_cast<uint8>(std::trunc(f * a + (1 - f) * b));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < kNumbers + 8) return 0;
    const int32 width = 1 + data[0] % kMostWidth;
    const size_t count = (size - kNumbers) / 8;
    const auto height = static_cast<int32>(count / static_cast<size_t>(width));
    if (height == 0) return 0;
    // Fades of up to 257 frames; the shares are of single precision, as those of a fade are.
    const float share =
        static_cast<float>(data[1] % (data[2] + 1)) / static_cast<float>(data[2] + 1);
    const Pixels first{data + kNumbers, kSpaces[data[3] % 4]};
    const size_t used = static_cast<size_t>(width) * static_cast<size_t>(height);
    const Pixels second{data + kNumbers + used * 4, kSpaces[data[4] % 4]};
    const rgb_color color{data[5], data[6], data[7], data[8]};
    const uint8 wanted[3] = {color.blue, color.green, color.red};

    const kirto::FadeShare fade(static_cast<double>(share));
    std::vector<uint8> to_color(used * 4);
    std::vector<uint8> to_frame(used * 4);
    kirto::FadeToRGB(first.bytes, first.space, to_color.data(), width, height, fade, color);
    kirto::FadeToFrame(first.bytes, first.space, second.bytes, second.space, to_frame.data(), width,
                       height, fade);
    for (size_t pixel = 0; pixel < used; ++pixel) {
        for (size_t part = 0; part < 3; ++part) {
            const uint8 from = first.At(pixel, part);
            Check(to_color[pixel * 4 + part] ==
                  PlainBlend(static_cast<double>(share), from, wanted[part]));
            Check(to_frame[pixel * 4 + part] ==
                  PlainBlend(static_cast<double>(share), from, second.At(pixel, part)));
        }
        Check(to_color[pixel * 4 + 3] == first.At(pixel, 3));
        Check(to_frame[pixel * 4 + 3] == first.At(pixel, 3));
    }
    return 0;
}
