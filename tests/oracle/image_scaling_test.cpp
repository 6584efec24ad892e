// Pictures scaled by us and by ImageMagick, which knows the same filters.
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

#include "base/text.h"
#include "effects/pictures/scale_picture.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

struct Size {
    int32 width;
    int32 height;
};

// Waves of color, and of alpha where it is not opaque. They stay off the ends, at which ImageMagick
// cuts off what the first of its two passes gives.
std::vector<uint32> Waves(Size size, bool opaque) {
    std::vector<uint32> pixels;
    const auto wave = [](double x, int32 low, int32 high) {
        return static_cast<uint32>(std::lround(low + (high - low) * (0.5 + 0.5 * std::sin(x))));
    };
    for (int32 y = 0; y < size.height; ++y) {
        for (int32 x = 0; x < size.width; ++x) {
            const uint32 alpha = opaque ? 255 : wave(0.11 * x - 0.07 * y, 120, 200);
            pixels.push_back(alpha << 24 | wave(0.3 * x, 60, 190) << 16 |
                             wave(0.2 * y, 60, 190) << 8 | wave(0.15 * (x + y), 60, 190));
        }
    }
    return pixels;
}

// The picture in the order red, green, blue, alpha.
std::vector<uint8> BytesOf(const std::vector<uint32>& pixels) {
    std::vector<uint8> bytes;
    for (const uint32 pixel : pixels) {
        for (const int32 shift : {16, 8, 0, 24})
            bytes.push_back(static_cast<uint8>(pixel >> shift));
    }
    return bytes;
}

class ImageMagick : public ::testing::Test {
  protected:
    void SetUp() override {
        if (std::system("command -v convert >/dev/null 2>&1") != 0)
            GTEST_SKIP() << "ImageMagick is not installed";
    }
    // Components of 16 bits, as it cuts those of 8 off.
    std::vector<uint16> Scale(const std::vector<uint32>& pixels, Size from, Size to,
                              const char* filter) const {
        WriteBytes(folder_.File("from.rgba"), BytesOf(pixels));
        const std::string command = Format(
            "cd '%s' && convert -size %dx%d -depth 8 from.rgba -colorspace RGB -filter %s "
            "-resize '%dx%d!' -colorspace sRGB -depth 16 -endian LSB to.rgba",
            folder_.Path().c_str(), from.width, from.height, filter, to.width, to.height);
        EXPECT_EQ(std::system(command.c_str()), 0) << command;
        const std::vector<uint8> bytes = ReadBytes(folder_.File("to.rgba"));
        std::vector<uint16> components;
        for (size_t i = 0; i + 1 < bytes.size(); i += 2)
            components.push_back(static_cast<uint16>(bytes[i] | bytes[i + 1] << 8));
        return components;
    }
    void ExpectTheSame(Size from, Size to, bool opaque, ScaleFilter filter, const char* name) {
        const std::vector<uint32> pixels = Waves(from, opaque);
        const std::vector<uint16> theirs = Scale(pixels, from, to, name);
        const auto scaled = ScalePicture(
            *FramePictureOf(from.width, from.height, pixels, B_RGBA32),
            ScaleTo(from.width, from.height, to.width, to.height, filter), nullptr, Work());
        const std::vector<uint8> ours = BytesOf(PixelsOf(*scaled));
        ASSERT_EQ(ours.size(), theirs.size());
        for (size_t i = 0; i < ours.size(); ++i)
            ASSERT_NEAR(ours[i], theirs[i] / 257.0, 0.75) << name << ", component " << i;
    }

    const TemporaryFolder folder_;
};

constexpr Size kFrom = {90, 70};
constexpr Size kSizes[] = {{60, 47}, {31, 20}, {180, 141}, {90, 35}, {133, 70}};

TEST_F(ImageMagick, ScalesOpaquePicturesAsWeDo) {
    for (const Size to : kSizes) {
        ExpectTheSame(kFrom, to, true, ScaleFilter::kLanczos, "Lanczos");
        ExpectTheSame(kFrom, to, true, ScaleFilter::kBilinear, "Triangle");
    }
}

TEST_F(ImageMagick, ScalesTranslucentPicturesAsWeDo) {
    for (const Size to : kSizes) {
        ExpectTheSame(kFrom, to, false, ScaleFilter::kLanczos, "Lanczos");
        ExpectTheSame(kFrom, to, false, ScaleFilter::kBilinear, "Triangle");
    }
}

}  // namespace

}  // namespace kirto::test
