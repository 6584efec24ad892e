#include "color/color_slices.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

#include "color/palette.h"
#include "color/reference_palette.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

// 512 x 512 pixels whose colors are of the mask.
std::vector<uint32> RandomPixels(uint32 seed, uint32 mask) {
    std::mt19937 random(seed);
    std::vector<uint32> argb(512 * 512);
    for (uint32& pixel : argb)
        pixel = 0xFF000000U | (static_cast<uint32>(random()) & mask);
    return argb;
}

std::shared_ptr<const Picture> Square(const std::vector<uint32>& argb,
                                      color_space space = B_RGB32) {
    return FramePictureOf(512, 512, argb, space);
}

std::vector<rgb_color> OptimalPaletteColors(const Picture& picture) {
    Palette palette;
    return palette.MakeNearestColorPalette(&picture).value_or(std::vector<rgb_color>{});
}

TEST(ColorSlices, CountsEachColorInTheOrderOfItsGreenAndThenOfItsAppearance) {
    const std::vector<uint8> pixels = {1, 5, 9, 255, 1, 4, 9, 0, 2, 5, 9, 255, 1, 5, 9, 7};
    const ColorSlices::Item counted[] = {{0x080501, 10}, {0x090502, 20}, {0x0000FF, 30}};
    ColorSlices slices(false, nullptr);

    ASSERT_TRUE(slices.Count(counted, {pixels}));

    std::vector<std::pair<uint32, uint32>> items;
    for (const ColorSlices::Item& item : slices.Items())
        items.emplace_back(item.key, item.value);
    EXPECT_EQ(items,
              (std::vector<std::pair<uint32, uint32>>{
                  {0x0000FF, 30}, {0x090401, 1}, {0x080501, 10}, {0x090502, 21}, {0x090501, 2}}));
}

TEST(ColorSlices, MakeThePaletteThatSortingMakes) {
    uint32 seed = 0;
    for (const uint32 mask : {0xFFFFFFU, 0xFF0FFFU, 0xFFFF00U, 0x3F3F3FU, 0x7F00FFU, 0x00FFFFU}) {
        const auto picture = Square(RandomPixels(++seed, mask));
        ASSERT_NE(picture->AllStrips().front()->Pixels(), nullptr);
        EXPECT_EQ(OptimalPaletteColors(*picture), ReferenceOptimal(*picture)) << std::hex << mask;
        EXPECT_EQ(Palette().CountUniqueColors(picture.get()),
                  static_cast<int32>(ReferenceColors(*picture).size()));
    }
}

TEST(ColorSlices, MakeTheSamePaletteOfBytesInTheOtherOrder) {
    const std::vector<uint32> argb = RandomPixels(7, 0x7F7F7F);

    EXPECT_EQ(OptimalPaletteColors(*Square(argb, B_RGB32_BIG)),
              OptimalPaletteColors(*Square(argb)));
}

TEST(ColorSlices, CountColorsThatComeLateInAPictureOfFew) {
    std::vector<uint32> argb = RandomPixels(8, 0xFFFFFF);
    std::fill(argb.begin(), argb.begin() + 512 * 100 + 17, 0xFF010203);
    const auto picture = Square(argb);

    EXPECT_EQ(OptimalPaletteColors(*picture), ReferenceOptimal(*picture));
}

TEST(ColorSlices, AreDoneWithoutWhereMemoryIsShort) {
    const auto picture = Square(RandomPixels(9, 0x7F7F7F));
    const std::vector<rgb_color> wanted = ReferenceOptimal(*picture);
    const AlertRecorder alerts;
    int64 calls = 1;
    for (int64 failing = 1; failing <= calls + 1; ++failing) {
        const AllocationFault fault(failing);
        const std::vector<rgb_color> colors = OptimalPaletteColors(*picture);
        calls = std::max(calls, fault.Calls());
        ASSERT_TRUE(colors.empty() || colors == wanted) << failing;
        if (failing > fault.Calls()) {
            ASSERT_EQ(colors, wanted);
            break;
        }
    }
}

TEST(ColorSlices, EndWhenTheWorkIsStopped) {
    Work work;
    work.Begin();
    work.Stop(work.Running());
    const std::vector<uint8> pixels(4 * 100, 1);
    ColorSlices slices(false, &work);

    EXPECT_FALSE(slices.Count({}, {pixels}));
}

}  // namespace

}  // namespace kirto::test
