#include "color/color_cube.h"

#include <gtest/gtest.h>
#include <random>

#include "color/palette.h"
#include "color/reference_palette.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr int32 kSide = 1024;

using Counted = std::vector<std::pair<uint32, uint32>>;

Counted ItemsOf(const ColorCube& cube) {
    Counted items;
    for (const ColorCube::Item& item : cube.Items())
        items.emplace_back(item.key, item.value);
    return items;
}

// So many pixels of those colors in turn.
std::vector<uint8> Pixels(size_t count, const std::vector<uint32>& colors) {
    std::vector<uint8> pixels;
    for (size_t i = 0; i < count; ++i) {
        const uint32 color = colors[i % colors.size()];
        for (const uint32 shift : {0U, 8U, 16U})
            pixels.push_back(static_cast<uint8>(color >> shift));
        pixels.push_back(255);
    }
    return pixels;
}

// A picture of so many random colors, some of which differ only in red.
std::vector<uint32> Repeated(uint32 seed, size_t colors, uint32 mask) {
    std::mt19937 random(seed);
    std::vector<uint32> some(colors);
    for (uint32& color : some)
        color = 0xFF000000U | (static_cast<uint32>(random()) & mask);
    std::vector<uint32> argb(size_t{kSide} * kSide);
    for (uint32& pixel : argb)
        pixel = some[random() % colors];
    return argb;
}

std::shared_ptr<const Picture> CubeSquare(const std::vector<uint32>& argb,
                                          color_space space = B_RGB32) {
    return FramePictureOf(kSide, kSide, argb, space);
}

std::vector<rgb_color> CubeColors(const Picture& picture) {
    Palette palette;
    return palette.MakeNearestColorPalette(&picture).value_or(std::vector<rgb_color>{});
}

void ExpectPaletteOfSorting(const std::vector<uint32>& argb) {
    const auto picture = CubeSquare(argb);
    ASSERT_NE(picture->AllStrips().front()->Pixels(), nullptr);
    EXPECT_EQ(CubeColors(*picture), ReferenceOptimal(*picture));
    EXPECT_EQ(Palette().CountUniqueColors(picture.get()),
              static_cast<int32>(ReferenceColors(*picture).size()));
}

TEST(ColorCube, CountsEachColorInTheOrderOfItsAppearance) {
    const std::vector<uint8> pixels = {1, 5, 9, 255, 1, 4, 9, 0, 2, 5, 9, 255, 1, 5, 9, 7};
    const ColorCube::Item counted[] = {{0x080501, 10}, {0x090502, 200000}, {0x0000FF, 30}};
    ColorCube cube(false, nullptr);

    ASSERT_TRUE(cube.Count(counted, {pixels}));

    EXPECT_EQ(cube.Done(), 4U);
    EXPECT_EQ(
        ItemsOf(cube),
        (Counted{
            {0x080501, 10}, {0x090502, 200001}, {0x0000FF, 30}, {0x090501, 2}, {0x090401, 1}}));
}

TEST(ColorCube, CountsMorePixelsOfAColorThanACounterHolds) {
    for (const size_t count : {65534U, 65535U, 65536U, 131070U, 131071U, 300001U}) {
        const ColorCube::Item counted[] = {{0x010203, 7}};
        ColorCube cube(false, nullptr);

        ASSERT_TRUE(cube.Count(counted, {Pixels(2 * count, {0x010203, 0x010204})}));

        EXPECT_EQ(ItemsOf(cube), (Counted{{0x010203, 7 + static_cast<uint32>(count)},
                                          {0x010204, static_cast<uint32>(count)}}));
    }
}

TEST(ColorCube, EndsWhereMostPixelsBringANewColor) {
    std::vector<uint32> colors(size_t{1} << 18);
    for (size_t i = 0; i < colors.size(); ++i)
        colors[i] = static_cast<uint32>(i);
    const std::vector<uint8> pixels = Pixels(colors.size(), colors);
    ColorCube cube(false, nullptr);

    ASSERT_TRUE(cube.Count({}, {pixels}));

    EXPECT_GT(cube.Done(), 0U);
    EXPECT_LT(cube.Done(), colors.size() / 4);
    EXPECT_EQ(cube.Items().size(), cube.Done());
    EXPECT_EQ(cube.Items().back().value, 1U);
}

TEST(ColorCube, EndsWhereThereAreTooManyColors) {
    std::vector<uint32> colors(size_t{3} << 18);
    for (size_t i = 0; i < colors.size(); ++i)
        colors[i] = static_cast<uint32>(i / 3);
    const std::vector<uint8> pixels = Pixels(colors.size(), colors);
    const std::vector<ColorCube::Item> counted(ColorCube::kMostColors - 20000, {0xFFFFFF, 1});
    ColorCube cube(false, nullptr);

    ASSERT_TRUE(cube.Count(counted, {pixels}));

    EXPECT_LT(cube.Done(), colors.size());
    EXPECT_GT(cube.Items().size(), ColorCube::kMostColors);
}

TEST(ColorCube, MakesThePaletteThatSortingMakes) {
    uint32 seed = 0;
    for (const uint32 mask : {0xFFFFFFU, 0x3F3F3FU, 0x7F00FFU}) {
        ++seed;
        ExpectPaletteOfSorting(Repeated(seed, 6000 * seed, mask));
    }
}

TEST(ColorCube, MakesTheSamePaletteOfBytesInTheOtherOrder) {
    const std::vector<uint32> argb = Repeated(7, 20000, 0x7F7F7F);

    EXPECT_EQ(CubeColors(*CubeSquare(argb, B_RGB32_BIG)), CubeColors(*CubeSquare(argb)));
}

TEST(ColorCube, LeavesTheRestOfAPictureToSlicesWhereItBringsNewColors) {
    std::vector<uint32> argb = Repeated(8, 9000, 0xFFFFFF);
    std::mt19937 random(9);
    for (size_t i = argb.size() / 4 * 3; i < argb.size(); ++i)
        argb[i] = 0xFF000000U | static_cast<uint32>(random() & 0xFF3FFF);

    ExpectPaletteOfSorting(argb);
}

TEST(ColorCube, IsDoneWithoutWhereMemoryIsShort) {
    const auto picture = CubeSquare(Repeated(10, 30000, 0x7F7F7F));
    const std::vector<rgb_color> wanted = ReferenceOptimal(*picture);
    const AlertRecorder alerts;
    for (int64 failing = 1;; ++failing) {
        const AllocationFault fault(failing);
        const std::vector<rgb_color> colors = CubeColors(*picture);
        ASSERT_TRUE(colors.empty() || colors == wanted) << failing;
        if (failing > fault.Calls()) {
            ASSERT_EQ(colors, wanted);
            break;
        }
    }
}

TEST(ColorCube, EndsWhenTheWorkIsStopped) {
    Work work;
    work.Begin();
    work.Stop(work.Running());
    const std::vector<uint8> pixels(4 * 100, 1);
    ColorCube cube(false, &work);

    EXPECT_FALSE(cube.Count({}, {pixels}));
}

}  // namespace

}  // namespace kirto::test
