#include "color/shared_palette.h"

#include <gtest/gtest.h>

#include "base/allocation.h"

namespace kirto::test {

TEST(DefaultPalette, IsOneWebSafePaletteForAll) {
    const auto palette = DefaultPalette();

    EXPECT_EQ(*palette, Palette(kPaletteWebSafe));
    EXPECT_EQ(DefaultPalette(), palette);
}

TEST(SharePalette, MakesACopyThatItsMakerMayChange) {
    const Palette grey(kPaletteGreyscale);

    const auto shared = SharePalette(grey);
    EXPECT_EQ(*shared, grey);
    shared->dither = true;

    EXPECT_FALSE(grey.dither);
    EXPECT_EQ(*SharePalette(), Palette());
}

TEST(SharePalette, IsNullWhenMemoryIsShort) {
    const AllocationFault fault(1);

    EXPECT_EQ(SharePalette(), nullptr);
}

}  // namespace kirto::test
