#include "kit/bitmap.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace kirto::test {

TEST(BBitmap, IsZeroFilledWhenMade) {
    const BBitmap bitmap(BRect(0, 0, 99, 49), B_RGB32);
    ASSERT_EQ(bitmap.InitCheck(), B_OK);
    ASSERT_EQ(bitmap.BitsLength(), 100u * 50u * 4u);
    EXPECT_TRUE(std::all_of(bitmap.Bits(), bitmap.Bits() + bitmap.BitsLength(),
                            [](uint8 byte) { return byte == 0; }));
}

TEST(BBitmap, CoversBothEdgesOfItsBounds) {
    const BBitmap bitmap(BRect(10, 20, 12, 23), B_RGBA32);
    EXPECT_EQ(bitmap.Width(), 3);
    EXPECT_EQ(bitmap.Height(), 4);
    EXPECT_EQ(bitmap.Bounds(), BRect(10, 20, 12, 23));
    EXPECT_EQ(bitmap.ColorSpace(), B_RGBA32);
}

TEST(BBitmap, RowsOf32BitSpacesArePacked) {
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        const BBitmap bitmap(BRect::OfSize(5, 2), space);
        EXPECT_EQ(bitmap.BytesPerRow(), 20u);
        EXPECT_EQ(bitmap.Row(1) - bitmap.Bits(), 20);
    }
}

TEST(BBitmap, RowsOfNarrowerSpacesArePaddedToFourBytes) {
    const auto row = [](color_space space) {
        return BBitmap(BRect::OfSize(9, 1), space).BytesPerRow();
    };
    EXPECT_EQ(row(B_RGB24), 28u);
    EXPECT_EQ(row(B_RGB16), 20u);
    EXPECT_EQ(row(B_CMAP8), 12u);
    EXPECT_EQ(row(B_GRAY8), 12u);
    EXPECT_EQ(row(B_GRAY1), 4u);
}

TEST(BBitmap, RowsAreWritable) {
    BBitmap bitmap(BRect::OfSize(2, 2), B_RGB32);
    bitmap.Row(1)[7] = 9;
    EXPECT_EQ(bitmap.Bits()[15], 9);
}

TEST(BBitmap, HasNoBitsWithoutPixels) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const BRect bounds : {BRect(), BRect(0, 0, -1, 5), BRect(0, 0, 5, -1), BRect::OfSize(0, 0),
                               BRect(nan, 0, 5, 5)}) {
        const BBitmap bitmap(bounds, B_RGB32);
        EXPECT_EQ(bitmap.InitCheck(), B_NO_MEMORY);
        EXPECT_EQ(bitmap.Bits(), nullptr);
        EXPECT_EQ(bitmap.BitsLength(), 0u);
        EXPECT_EQ(bitmap.Width(), 0);
        EXPECT_EQ(bitmap.Height(), 0);
    }
}

TEST(BBitmap, HasNoBitsWithoutColorSpace) {
    EXPECT_EQ(BBitmap(BRect::OfSize(4, 4), B_NO_COLOR_SPACE).InitCheck(), B_NO_MEMORY);
}

TEST(BBitmap, HasNoBitsWhereARowOrASidePassesInt32) {
    EXPECT_EQ(BBitmap(BRect(0, 0, 1e9F, 0), B_RGB32).InitCheck(), B_NO_MEMORY);
    EXPECT_EQ(BBitmap(BRect(0, 0, 0, 4e9F), B_RGB32).InitCheck(), B_NO_MEMORY);
}

TEST(BBitmap, HasNoBitsWhenMemoryIsShort) {
    const auto budget = std::make_shared<PixelBudget>(5000);
    const AllocationFault fault(1);
    const BBitmap bitmap(BRect::OfSize(4, 4), B_RGB32, budget);
    EXPECT_EQ(bitmap.InitCheck(), B_NO_MEMORY);
    EXPECT_EQ(budget->Used(), 0u);
}

TEST(BBitmap, ReservesItsBytesAndAFramesCostAndGivesThemBack) {
    const auto budget = std::make_shared<PixelBudget>(5000);
    {
        const BBitmap bitmap(BRect::OfSize(4, 4), B_RGB32, budget);
        EXPECT_EQ(budget->Used(), 64u + PixelBudget::kFrameCost);
    }
    EXPECT_EQ(budget->Used(), 0u);
}

TEST(BBitmap, HasNoBitsWhenTheBudgetRefusesThem) {
    const auto budget = std::make_shared<PixelBudget>(63 + PixelBudget::kFrameCost);
    {
        const BBitmap bitmap(BRect::OfSize(4, 4), B_RGB32, budget);
        EXPECT_EQ(bitmap.InitCheck(), B_NO_MEMORY);
        EXPECT_EQ(budget->Used(), 0u);
    }
    EXPECT_EQ(budget->Used(), 0u);
}

TEST(BBitmap, MayOutliveTheOwnerOfItsBudget) {
    auto budget = std::make_shared<PixelBudget>(5000);
    const std::weak_ptr<PixelBudget> watched = budget;
    auto bitmap = std::make_unique<BBitmap>(BRect::OfSize(4, 4), B_RGB32, budget);
    budget.reset();
    EXPECT_FALSE(watched.expired());
    bitmap.reset();
    EXPECT_TRUE(watched.expired());
}

TEST(ColorSpace, FourSpacesHaveFourBytesAPixel) {
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        EXPECT_TRUE(Is32Bit(space));
    }
    for (const color_space space :
         {B_NO_COLOR_SPACE, B_RGB24, B_RGB16, B_CMAP8, B_GRAY8, B_GRAY1}) {
        EXPECT_FALSE(Is32Bit(space));
    }
}

TEST(ColorSpace, TwoSpacesAreBigEndian) {
    EXPECT_TRUE(IsBigEndian(B_RGB32_BIG));
    EXPECT_TRUE(IsBigEndian(B_RGBA32_BIG));
    EXPECT_FALSE(IsBigEndian(B_RGB32));
    EXPECT_FALSE(IsBigEndian(B_RGBA32));
    EXPECT_FALSE(IsBigEndian(B_RGB24));
}

}  // namespace kirto::test
