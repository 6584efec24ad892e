#include "color/pixel_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include "color/palette.h"

namespace kirto::test {

TEST(PixelOf, LiesInMemoryAsBlueGreenRedAlpha) {
    const uint32 pixel = PixelOf({1, 2, 3, 4});

    const auto* bytes = reinterpret_cast<const uint8*>(&pixel);
    EXPECT_THAT(std::vector<uint8>(bytes, bytes + 4), testing::ElementsAre(3, 2, 1, 4));
}

TEST(PixelTableOf, GivesEveryColor) {
    const PixelTable table = PixelTableOf(Palette(kPaletteGreyscale).colors);

    for (uint32 i = 0; i < 256; ++i)
        EXPECT_EQ(table.pixels[i], 0xFF000000 | i << 16 | i << 8 | i);
}

}  // namespace kirto::test
