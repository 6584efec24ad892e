#include "color/builtin_palettes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "color/hash_item.h"

namespace kirto::test {

namespace {

// The 32-bit FNV-1a hash of all components in the order of the table.
uint32 Checksum(const ColorTable& colors) {
    uint32 hash = 2166136261U;
    for (const rgb_color& color : colors) {
        for (const uint8 component : {color.red, color.green, color.blue}) {
            hash = (hash ^ component) * 16777619U;
        }
    }
    return hash;
}

bool IsOpaque(const ColorTable& colors) {
    return std::all_of(colors.begin(), colors.end(),
                       [](const rgb_color& color) { return color.alpha == 255; });
}

size_t DistinctColors(const ColorTable& colors) {
    std::set<uint32> keys;
    for (const rgb_color& color : colors) {
        keys.insert(ColorKey(color.red, color.green, color.blue));
    }
    return keys.size();
}

}  // namespace

TEST(WebSafeColors, RunDownFromWhiteToBlackWithRedVaryingSlowest) {
    size_t index = 0;
    for (int red = 255; red >= 0; red -= 51) {
        for (int green = 255; green >= 0; green -= 51) {
            for (int blue = 255; blue >= 0; blue -= 51) {
                const rgb_color expected{static_cast<uint8>(red), static_cast<uint8>(green),
                                         static_cast<uint8>(blue), 255};
                EXPECT_EQ(kWebSafeColors[index], expected) << "index " << index;
                ++index;
            }
        }
    }
    EXPECT_EQ(index, 216U);
    EXPECT_EQ(kWebSafeSize, 216);
}

TEST(WebSafeColors, HaveTheirLandmarksInPlace) {
    EXPECT_EQ(kWebSafeColors[0], (rgb_color{255, 255, 255, 255}));
    EXPECT_EQ(kWebSafeColors[5], (rgb_color{255, 255, 0, 255}));
    EXPECT_EQ(kWebSafeColors[6], (rgb_color{255, 204, 255, 255}));
    EXPECT_EQ(kWebSafeColors[215], (rgb_color{0, 0, 0, 255}));
}

TEST(WebSafeColors, AreOpaqueBlackPastTheCube) {
    for (size_t i = 216; i < 256; ++i) {
        EXPECT_EQ(kWebSafeColors[i], (rgb_color{0, 0, 0, 255})) << "index " << i;
    }
}

TEST(SystemColors, AreTheDesktopsColourMap) {
    EXPECT_EQ(Checksum(kSystemColors), 0x90364097U);
    EXPECT_EQ(DistinctColors(kSystemColors), 254U);
    EXPECT_TRUE(IsOpaque(kSystemColors));
}

TEST(SystemColors, StartWithAGreyRampInStepsOfEight) {
    for (size_t i = 0; i < 32; ++i) {
        const uint8 level = static_cast<uint8>(8 * i);
        EXPECT_EQ(kSystemColors[i], (rgb_color{level, level, level, 255})) << "index " << i;
    }
}

TEST(SystemColors, HaveTheirLandmarksInPlace) {
    EXPECT_EQ(kSystemColors[32], (rgb_color{0, 0, 255, 255}));
    EXPECT_EQ(kSystemColors[42], (rgb_color{255, 0, 0, 255}));
    EXPECT_EQ(kSystemColors[52], (rgb_color{0, 255, 0, 255}));
    EXPECT_EQ(kSystemColors[63], (rgb_color{255, 255, 255, 255}));
    EXPECT_EQ(kSystemColors[255], (rgb_color{255, 255, 255, 255}));
}

}  // namespace kirto::test
