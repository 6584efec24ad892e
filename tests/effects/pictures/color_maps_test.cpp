#include "effects/pictures/color_maps.h"

#include <cmath>
#include <gtest/gtest.h>

#include "effects/pictures/color_edit.h"
#include "support/random_document.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

ColorBytes Adjusted(const ColorAdjustment& adjustment, ColorBytes color) {
    return AdjustmentMap(adjustment).Of(color);
}

TEST(AdjustmentMap, LeavesColorsAsTheyAreWhereAllIsZero) {
    const AdjustmentMap map({});
    for (int32 i = 0; i < 256; ++i) {
        const auto component = static_cast<uint8>(i);
        const ColorBytes color{component, static_cast<uint8>(255 - i), 7, 200};
        EXPECT_EQ(map.Of(color), color);
    }
}

TEST(AdjustmentMap, MovesBrightnessTowardTheEnds) {
    EXPECT_EQ(Adjusted({50, 0, 0, false}, {0, 100, 255, 9}), (ColorBytes{128, 178, 255, 9}));
    EXPECT_EQ(Adjusted({-50, 0, 0, false}, {0, 100, 255, 9}), (ColorBytes{0, 50, 128, 9}));
    EXPECT_EQ(Adjusted({100, 0, 0, false}, {0, 100, 255, 9}), (ColorBytes{255, 255, 255, 9}));
    EXPECT_EQ(Adjusted({-100, 0, 0, false}, {0, 100, 255, 9}), (ColorBytes{0, 0, 0, 9}));
}

TEST(AdjustmentMap, StretchesContrastAroundTheMiddle) {
    EXPECT_EQ(Adjusted({0, -100, 0, false}, {0, 100, 255, 9}), (ColorBytes{128, 128, 128, 9}));
    EXPECT_EQ(Adjusted({0, 100, 0, false}, {0, 127, 128, 9}), (ColorBytes{0, 0, 255, 9}));
    const ColorBytes stretched = Adjusted({0, 50, 0, false}, {100, 128, 150, 9});
    EXPECT_LT(stretched.blue, 100);
    EXPECT_NEAR(stretched.green, 128, 1);
    EXPECT_GT(stretched.red, 150);
}

TEST(AdjustmentMap, TakesGreysOfTheSameLight) {
    EXPECT_EQ(Adjusted({0, 0, 0, true}, {0, 255, 0, 9}), (ColorBytes{220, 220, 220, 9}));
    EXPECT_EQ(Adjusted({0, 0, -100, false}, {0, 255, 0, 9}), (ColorBytes{220, 220, 220, 9}));
    EXPECT_EQ(Adjusted({0, 0, 80, true}, {255, 0, 0, 9}), (ColorBytes{76, 76, 76, 9}));
    for (int32 i = 0; i < 256; ++i) {
        const auto grey = static_cast<uint8>(i);
        EXPECT_EQ(Adjusted({0, 0, 100, false}, {grey, grey, grey, 9}),
                  (ColorBytes{grey, grey, grey, 9}));
    }
}

TEST(AdjustmentMap, KnowsItsBounds) {
    EXPECT_TRUE((ColorAdjustment{100, -100, 100, true}).IsSound());
    EXPECT_FALSE((ColorAdjustment{101, 0, 0, false}).IsSound());
    EXPECT_FALSE((ColorAdjustment{0, -101, 0, false}).IsSound());
    EXPECT_FALSE((ColorAdjustment{0, 0, 101, false}).IsSound());
}

TEST(OpacityMap, TakesThatMuchOfTheAlpha) {
    EXPECT_EQ(OpacityMap(100).Of({1, 2, 3, 201}), (ColorBytes{1, 2, 3, 201}));
    EXPECT_EQ(OpacityMap(50).Of({1, 2, 3, 201}), (ColorBytes{1, 2, 3, 101}));
    EXPECT_EQ(OpacityMap(0).Of({1, 2, 3, 255}).alpha, 0);
}

TEST(TransparencyMap, TakesColorsWithinTheTolerance) {
    const TransparencyMap map({10, 20, 30, 255}, 4);
    EXPECT_EQ(map.Of({30, 20, 10, 255}), ColorBytes{});
    EXPECT_EQ(map.Of({34, 16, 6, 90}), ColorBytes{});
    EXPECT_EQ(map.Of({35, 20, 10, 255}), (ColorBytes{35, 20, 10, 255}));
    EXPECT_EQ(map.Of({30, 15, 10, 255}), (ColorBytes{30, 15, 10, 255}));
    EXPECT_EQ(map.Of({30, 20, 15, 255}), (ColorBytes{30, 20, 15, 255}));
}

// Turns each color into one that no other color becomes, in all of its components.
class Rotation : public ColorMap {
  public:
    ColorBytes Of(ColorBytes color) const override {
        return {color.green, color.red, color.blue, color.alpha};
    }
};

TEST(MapColors, MapsEachPixelWithAlphaInEverySpace) {
    SeededChoices choices(1);
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        for (const uint32 colors : {1u, 20u, 5000u}) {
            std::vector<uint32> pixels;
            for (int32 i = 0; i < 70 * 90; ++i)
                pixels.push_back(choices.Below(colors) * 0x01020305 & 0xFFFFFFFF);
            const auto picture = FramePictureOf(70, 90, pixels, space);
            const auto mapped = MapColors(*picture, Rotation(), nullptr, Work());
            ASSERT_TRUE(mapped);
            EXPECT_EQ(mapped->ColorSpace(), space);
            for (int32 i = 0; i < 70 * 90; ++i) {
                const rgb_color was = PixelColor(picture.get(), i % 70, i / 70);
                const rgb_color is = PixelColor(mapped.get(), i % 70, i / 70);
                ASSERT_EQ(is.alpha, was.alpha);
                ASSERT_EQ(is.blue, was.alpha == 0 ? was.blue : was.green);
                ASSERT_EQ(is.green, was.alpha == 0 ? was.green : was.red);
                ASSERT_EQ(is.red, was.alpha == 0 ? was.red : was.blue);
            }
        }
    }
}

TEST(MapColors, SharesTheIndices) {
    const auto picture = FramePictureOf(2, 1, {0xFF000001, 0xFF000002});
    const auto mapped = MapColors(*picture, Rotation(), nullptr, Work());
    EXPECT_EQ(mapped->AllStrips().front()->Indices(), picture->AllStrips().front()->Indices());
    EXPECT_EQ(PixelsOf(*mapped), (std::vector<uint32>{0xFF010000, 0xFF020000}));
}

}  // namespace

}  // namespace kirto::test
