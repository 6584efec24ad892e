#include "picture/picture.h"

#include <gtest/gtest.h>
#include <random>

#include "base/allocation.h"
#include "picture/picture_builder.h"
#include "random_picture.h"
#include "strip_counts.h"

namespace kirto::test {

namespace {

std::shared_ptr<BBitmap> BitmapOf(const PlainPicture& plain, color_space space,
                                  std::shared_ptr<PixelBudget> budget = nullptr) {
    auto bitmap =
        std::make_shared<BBitmap>(BRect::OfSize(plain.width, plain.height), space, budget);
    std::memcpy(bitmap->Bits(), plain.pixels.data(), bitmap->BitsLength());
    return bitmap;
}

}  // namespace

TEST(Picture, OfABitmapHasItsPixelsWhateverTheirNumberOfColors) {
    std::mt19937 random(1);
    for (const int32 colors : {1, 2, 256, 257, 5000}) {
        const PlainPicture plain = RandomPicture(150, 131, colors, random);
        const auto picture = Picture::Of(BitmapOf(plain, B_RGBA32_BIG));

        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->Width(), 150);
        EXPECT_EQ(picture->Height(), 131);
        EXPECT_EQ(picture->ColorSpace(), B_RGBA32_BIG);
        EXPECT_EQ(PlainOf(*picture).pixels, plain.pixels);
        const auto bitmap = picture->ToBitmap();
        EXPECT_EQ(std::memcmp(bitmap->Bits(), plain.pixels.data(), bitmap->BitsLength()), 0);
    }
}

TEST(Picture, OfABitmapOfManyColorsKeepsItAndOfFewLetsItGo) {
    std::mt19937 random(2);
    const auto many = BitmapOf(RandomPicture(100, 100, 3000, random), B_RGB32);
    EXPECT_EQ(Picture::Of(many)->ToBitmap(), many);

    std::weak_ptr<BBitmap> few;
    std::shared_ptr<const Picture> picture;
    {
        const auto bitmap = BitmapOf(RandomPicture(100, 100, 200, random), B_RGB32);
        few = bitmap;
        picture = Picture::Of(bitmap);
    }
    EXPECT_TRUE(few.expired());
}

TEST(Picture, OfAnotherColorSpaceHasNoRowsButIsGivenBack) {
    const auto grey = std::make_shared<BBitmap>(BRect::OfSize(4, 3), B_GRAY8);
    const auto picture = Picture::Of(grey);

    EXPECT_FALSE(picture->HasRows());
    EXPECT_EQ(picture->Width(), 4);
    EXPECT_EQ(picture->ColorSpace(), B_GRAY8);
    EXPECT_EQ(picture->ToBitmap(), grey);
}

TEST(Picture, OfNoBitmapIsNone) {
    EXPECT_EQ(Picture::Of(std::shared_ptr<const BBitmap>()), nullptr);
}

TEST(Picture, OfOneColorTakesMemoryForItsListOfStripsOnly) {
    const auto budget = std::make_shared<PixelBudget>(PixelBudget::kFrameCost + 8000);
    const auto picture = Picture::Solid(0xFF102030, 20000, 20000, B_RGB32, budget);

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Height(), 20000);
    EXPECT_EQ(picture->Row(19999).solid, 0xFF102030);
    EXPECT_EQ(Picture::Solid(0, 1, 1, B_RGB32, budget), nullptr);
}

TEST(Picture, CountsItsMemoryUntilItIsGone) {
    std::mt19937 random(3);
    const auto budget = std::make_shared<PixelBudget>(1 << 20);
    const PlainPicture plain = RandomPicture(100, 100, 16, random);
    auto picture = Picture::Of(BitmapOf(plain, B_RGB32, budget), budget);
    EXPECT_EQ(budget->Used(), 100 * 100 + PixelBudget::kFrameCost);

    picture = nullptr;
    EXPECT_EQ(budget->Used(), 0U);
}

TEST(Picture, CountsTheManyStripsOfAHighOne) {
    const auto budget = std::make_shared<PixelBudget>(uint64{1} << 30);
    const auto high = [&](uint32 first) {
        Picture::Strips strips;
        for (uint32 i = 0; i < 1000; ++i)
            strips.push_back(Strip::Solid(first + i, 1, 1));
        return Picture::Of(std::move(strips), 1, B_RGB32, budget);
    };
    const auto picture = high(1);
    EXPECT_GE(budget->Used(), 900 * sizeof(Strip));
    EXPECT_LE(budget->Used(), PixelBudget::kFrameCost + 1000 * (sizeof(Strip) + 100));
}

TEST(Picture, RepeatedTakesNoMoreThanAFrameHoweverManyStripsItHas) {
    const auto budget = std::make_shared<PixelBudget>(uint64{1} << 30);
    const auto picture = Picture::Solid(0xFF102030, 1, 60000, B_RGB32, budget);
    const uint64 before = budget->Used();
    ASSERT_GT(before, 2 * PixelBudget::kFrameCost);

    auto again = Picture::Again(*picture, budget);
    EXPECT_TRUE(again->Repeats(*picture));
    EXPECT_EQ(&again->AllStrips(), &picture->AllStrips());
    EXPECT_EQ(again->Height(), 60000);
    EXPECT_EQ(budget->Used(), before + PixelBudget::kFrameCost);

    again = nullptr;
    EXPECT_EQ(budget->Used(), before);
    budget->SetLimit(before);
    EXPECT_EQ(Picture::Again(*picture, budget), nullptr);
}

TEST(Picture, KeepsTheBitmapWhereThereIsNoMemoryToPackIt) {
    std::mt19937 random(4);
    const auto bitmap = BitmapOf(RandomPicture(100, 100, 16, random), B_RGB32);
    const AllocationFault fault(1);

    EXPECT_EQ(Picture::Of(bitmap)->ToBitmap(), bitmap);
}

TEST(Picture, IsOpaqueUnlessAPixelIsNot) {
    for (const int32 colors : {1, 20, 3000}) {
        std::mt19937 random(5);
        PlainPicture plain = RandomPicture(90, 90, colors, random);
        for (uint32& pixel : plain.pixels)
            pixel |= 0xFF000000;
        EXPECT_TRUE(Picture::Of(BitmapOf(plain, B_RGB32))->IsOpaque());

        plain.pixels.back() &= 0xFEFFFFFF;
        EXPECT_FALSE(Picture::Of(BitmapOf(plain, B_RGB32))->IsOpaque());
        EXPECT_FALSE(Picture::Of(BitmapOf(plain, B_RGB32_BIG))->IsOpaque());
    }
}

TEST(Picture, IsCopiedAsFarAsBothReachWhateverTheirRows) {
    std::mt19937 random(6);
    const PlainPicture plain = RandomPicture(7, 5, 12, random);
    const auto picture = Built(plain);
    const Work work;
    for (const auto& [width, height] : {std::pair{3, 4}, {7, 5}, {9, 8}}) {
        BBitmap target(BRect::OfSize(width, height), B_RGB32);
        EXPECT_TRUE(CopyPixels(*picture, target, work));

        const size_t common = std::min(target.BitsLength(), plain.pixels.size() * 4);
        EXPECT_EQ(std::memcmp(target.Bits(), plain.pixels.data(), common), 0);
    }
}

TEST(PictureBuilder, TakesStripsOfAnEarlierPictureThatHaveTheSamePixels) {
    std::mt19937 random(8);
    for (const int32 colors : {1, 40, 3000}) {
        PlainPicture plain = RandomPicture(100, 200, colors, random);
        const auto earlier = Built(plain);
        plain.At(5, 70) ^= 1;
        const auto later = Built(plain, earlier);

        EXPECT_EQ(PlainOf(*later).pixels, plain.pixels);
        ASSERT_EQ(later->AllStrips().size(), 4U);
        for (size_t strip = 0; strip < 4; ++strip)
            EXPECT_EQ(later->AllStrips()[strip] == earlier->AllStrips()[strip], strip != 1);
    }
}

TEST(PictureBuilder, GivesNothingAtEachAllocationThatFails) {
    std::mt19937 random(9);
    const PlainPicture plain = RandomPicture(100, 100, 3000, random);
    for (int64 call = 1; call <= 2; ++call) {
        const AllocationFault fault(call);
        EXPECT_EQ(Built(plain), nullptr);
    }
    EXPECT_TRUE(Built(plain));
}

TEST(Strip, CountsItsPixelsInTheOrderInWhichTheyAppear) {
    const PlainPicture plain{3, 2, {5, 9, 5, 5, 0, 9}};
    const auto picture = Built(plain);
    const auto& strip = *picture->AllStrips().front();

    EXPECT_EQ(CountsOf(strip), (std::vector<PixelCount>{{5, 3}, {9, 2}, {0, 1}}));
    uint32 asked = 0;
    EXPECT_FALSE(strip.AllCounts([&](const PixelCount& each) {
        ++asked;
        return each.pixel != 9;
    }));
    EXPECT_EQ(asked, 2U) << "Nothing is asked behind the first that is false.";
}

TEST(Strip, CountsOfOneStorageAreSharedWhateverItsIndicesMean) {
    const auto storage = PixelStorage::Make(6, nullptr);
    for (size_t i = 0; i < 6; ++i)
        storage->Bytes()[i] = static_cast<uint8>(i / 4);
    PixelTable table;
    table.pixels[0] = 7;
    table.pixels[1] = 8;
    const auto strip = Strip::Indexed(storage, std::make_shared<PixelTable>(table), 3, 2);
    ASSERT_EQ(CountsOf(*strip).size(), 2U);
    table.pixels[0] = 9;
    const auto recolored =
        Strip::Indexed(storage, std::make_shared<PixelTable>(table), 3, 2, nullptr, strip);
    // Counted anew they would be others now.
    storage->Bytes()[0] = 1;

    const std::vector<PixelCount> counts = CountsOf(*recolored);
    ASSERT_EQ(counts.size(), 2U);
    EXPECT_EQ(counts[0].pixel, 9U);
    EXPECT_EQ(counts[0].count, 4U);
    EXPECT_EQ(counts[1].pixel, 8U);
}

TEST(Strip, SlicesShowTheirRows) {
    std::mt19937 random(10);
    for (const int32 colors : {1, 40, 3000}) {
        const PlainPicture plain = RandomPicture(60, 64, colors, random);
        const auto strip = Built(plain)->AllStrips().front();
        const auto slice = strip->Slice(20, 30);

        ASSERT_EQ(slice->Rows(), 30);
        for (int32 y = 0; y < 30; ++y) {
            std::vector<uint32> row(60);
            slice->Row(y).Expand(60, reinterpret_cast<uint8*>(row.data()));
            EXPECT_TRUE(std::equal(row.begin(), row.end(), plain.pixels.begin() + (20 + y) * 60));
        }
    }
}

}  // namespace kirto::test
