#include "picture/index_painter.h"

#include <gtest/gtest.h>
#include <random>

#include "base/allocation.h"
#include "random_picture.h"
#include "strip_counts.h"

namespace kirto::test {

namespace {

// An image of indices with what it needs.
struct OwnedImage {
    std::vector<uint8> indices;
    std::vector<int32> row_lengths;
    IndexImage image;
};

SharedPixelTable RandomTable(std::mt19937& random) {
    auto table = std::make_shared<PixelTable>();
    for (uint32& pixel : table->pixels)
        pixel = static_cast<uint32>(random());
    return table;
}

OwnedImage RandomImage(int32 width, int32 height, SharedPixelTable table, std::mt19937& random) {
    OwnedImage owned;
    IndexImage& image = owned.image;
    const bool whole = RandomBelow(3, random) == 0;
    image.width = whole ? width : 1 + RandomBelow(width + 5, random);
    image.height = whole ? height : 1 + RandomBelow(height + 5, random);
    image.left = whole ? 0 : RandomBelow(width + 2, random);
    image.top = whole ? 0 : RandomBelow(height + 2, random);
    const int32 different = 1 << RandomBelow(9, random);
    owned.indices.resize(static_cast<size_t>(image.width) * static_cast<size_t>(image.height));
    for (uint8& index : owned.indices)
        index = static_cast<uint8>(RandomBelow(different, random));
    image.table = std::move(table);
    if (RandomBelow(2, random) == 0) image.skipped = RandomBelow(different, random);
    if (RandomBelow(4, random) == 0) {
        owned.row_lengths.resize(static_cast<size_t>(image.height));
        for (int32& length : owned.row_lengths)
            length = RandomBelow(image.width + 1, random);
    }
    image.indices = owned.indices;
    image.row_lengths = owned.row_lengths;
    return owned;
}

// Pixel by pixel.
void PaintPlainly(PlainPicture& target, const IndexImage& image) {
    for (int32 row = 0; row < image.height; ++row) {
        const int32 length =
            image.row_lengths.empty() ? image.width : image.row_lengths[static_cast<size_t>(row)];
        for (int32 column = 0; column < length; ++column) {
            const size_t place = static_cast<size_t>(row) * static_cast<size_t>(image.width) +
                                 static_cast<size_t>(column);
            const int32 x = image.left + column;
            const int32 y = image.top + row;
            const uint8 index = image.indices[place];
            if (x >= target.width || y >= target.height || index == image.skipped) continue;
            target.At(x, y) = image.table->pixels[index];
        }
    }
}

IndexImage OnePixel(const SharedPixelTable& table, const uint8& index, int32 left, int32 top) {
    IndexImage image;
    image.indices = {&index, 1};
    image.left = left;
    image.top = top;
    image.width = image.height = 1;
    image.table = table;
    return image;
}

}  // namespace

TEST(IndexPainter, PaintsWhatAPainterOfSinglePixelsPaints) {
    std::mt19937 random(11);
    for (int32 round = 0; round < 60; ++round) {
        const int32 width = 1 + RandomBelow(200, random);
        const int32 height = 1 + RandomBelow(200, random);
        PlainPicture plain = RandomPicture(width, height, 1 << RandomBelow(11, random), random);
        std::shared_ptr<const Picture> picture = Built(plain);
        IndexPainter painter(nullptr);
        SharedPixelTable table = RandomTable(random);
        for (int32 image = 0; image < 12; ++image) {
            if (RandomBelow(4, random) == 0) table = RandomTable(random);
            const OwnedImage owned = RandomImage(width, height, table, random);
            PaintPlainly(plain, owned.image);
            picture = painter.Paint(picture, owned.image);
            ASSERT_TRUE(picture);
            ASSERT_EQ(PlainOf(*picture).pixels, plain.pixels) << round << ", image " << image;
        }
    }
}

TEST(IndexPainter, PaintsOverOneColorWithTheSkippedIndexInItsPlace) {
    std::mt19937 random(12);
    PlainPicture plain{50, 50, std::vector<uint32>(2500, 0x00000000)};
    OwnedImage owned = RandomImage(50, 50, RandomTable(random), random);
    owned.image.left = owned.image.top = 3;
    owned.image.skipped = owned.indices[0];
    IndexPainter painter(nullptr);
    const auto base = Picture::Solid(0, 50, 50, B_RGB32, nullptr);
    const auto picture = painter.Paint(base, owned.image);
    PaintPlainly(plain, owned.image);

    EXPECT_EQ(PlainOf(*picture).pixels, plain.pixels);
    EXPECT_TRUE(picture->Row(20).pixels == nullptr);
}

TEST(IndexPainter, CountsOfAWholeImageBecomeThoseOfItsStrips) {
    std::mt19937 random(16);
    const int32 step = Strip::RowsFor(50);
    const auto base = Picture::Solid(0, 50, step * 2 + 7, B_RGB32, nullptr);
    OwnedImage owned;
    while (!owned.image.row_lengths.empty() || owned.image.width != 50 || owned.image.skipped >= 0)
        owned = RandomImage(50, step * 2 + 7, RandomTable(random), random);
    std::vector<IndexCounts> counts(3);
    for (size_t i = 0; i < owned.indices.size(); ++i)
        counts[i / static_cast<size_t>(50 * step)].Add({&owned.indices[i], 1});
    IndexPainter painter(nullptr);
    const auto counted_later = painter.Paint(base, owned.image);
    owned.image.counts = counts;
    const auto counted = painter.Paint(base, owned.image);

    ASSERT_EQ(counted->AllStrips().size(), 3U);
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(CountsOf(*counted->AllStrips()[i]), CountsOf(*counted_later->AllStrips()[i]));
    }
}

// Counts the strip's indices again.
std::vector<PixelCount> CountedAnew(const Strip& strip, int32 width) {
    IndexCounts counts;
    counts.Add({strip.Indices(), static_cast<size_t>(width) * static_cast<size_t>(strip.Rows())});
    std::vector<PixelCount> result;
    for (const IndexCount& each : counts.Listed())
        result.push_back({strip.Table()->pixels[each.index], each.count});
    return result;
}

TEST(IndexPainter, CountsOfCountedStripsFollowWhatIsPaintedOverThem) {
    std::mt19937 random(17);
    OwnedImage owned;
    while (!owned.image.row_lengths.empty() || owned.image.width != 100 || owned.image.skipped >= 0)
        owned = RandomImage(100, 256, RandomTable(random), random);
    IndexPainter painter(nullptr);
    auto picture = painter.Paint(Picture::Solid(0, 100, 256, B_RGB32, nullptr), owned.image);
    for (int round = 0; round < 20; ++round) {
        for (const auto& strip : picture->AllStrips())
            strip->Count();
        IndexImage part = owned.image;
        part.top = static_cast<int32>(random() % 4) * 64;
        part.left = static_cast<int32>(random() % 90);
        part.width = 10;
        part.height = 64;
        const auto before = picture;
        picture = painter.Paint(before, part);
        for (const auto& strip : picture->AllStrips())
            EXPECT_EQ(CountsOf(*strip), CountedAnew(*strip, 100));
    }
}

TEST(IndexPainter, SharesWhatTheImageDoesNotTouch) {
    std::mt19937 random(13);
    const auto base = Built(RandomPicture(100, 256, 30, random));
    const uint8 index = 1;
    IndexPainter painter(nullptr);
    const auto picture = painter.Paint(base, OnePixel(RandomTable(random), index, 50, 70));

    const auto& strips = picture->AllStrips();
    ASSERT_EQ(strips.size(), 6U);
    EXPECT_EQ(strips[0], base->AllStrips()[0]);
    EXPECT_EQ(strips[1]->Rows(), 6);
    EXPECT_EQ(strips[2]->Rows(), 1);
    EXPECT_EQ(strips[4], base->AllStrips()[2]);
    EXPECT_EQ(strips[5], base->AllStrips()[3]);
}

TEST(IndexPainter, ManySmallImagesOnAHugePictureTakeLittleMemory) {
    const auto budget = std::make_shared<PixelBudget>(16 << 20);
    const uint8 index = 1;
    auto table = std::make_shared<PixelTable>();
    table->pixels[1] = 0xFFFFFFFF;
    IndexPainter painter(budget);
    std::vector<std::shared_ptr<const Picture>> pictures = {
        Picture::Solid(0, 20000, 20000, B_RGB32, budget)};
    for (int32 image = 0; image < 100; ++image) {
        pictures.push_back(
            painter.Paint(pictures.back(), OnePixel(table, index, image * 7, image * 190)));
        ASSERT_TRUE(pictures.back());
    }
    EXPECT_LT(budget->Used(), uint64{4} << 20);
}

TEST(IndexPainter, ManyImagesOfOneRowDoNotMakeAStripOfEachRow) {
    const auto budget = std::make_shared<PixelBudget>();
    auto table = std::make_shared<PixelTable>();
    for (uint32 i = 0; i < 256; ++i)
        table->pixels[i] = 0xFF000000 | i;
    IndexPainter painter(budget);
    PlainPicture plain{3, 6000, std::vector<uint32>(18000, 0)};
    auto picture = Picture::Solid(0, 3, 6000, B_RGB32, budget);
    for (int32 row = 0; row < 6000; row += 2) {
        const uint8 index = static_cast<uint8>(row / 2 * 7);
        const IndexImage image = OnePixel(table, index, 1, row);
        picture = painter.Paint(picture, image);
        PaintPlainly(plain, image);
        ASSERT_LE(picture->AllStrips().size(), 4U * 94 + 3);
    }
    EXPECT_EQ(PlainOf(*picture).pixels, plain.pixels);
}

TEST(IndexPainter, SharesAllWhereNothingIsPaintedButCountsThePicture) {
    std::mt19937 random(14);
    const auto base = Built(RandomPicture(10, 10, 30, random));
    const uint8 index = 1;
    const auto budget = std::make_shared<PixelBudget>();
    IndexPainter painter(budget);
    std::vector<std::shared_ptr<const Picture>> pictures;
    for (const auto& [left, top] : {std::pair{10, 0}, {0, 10}}) {
        pictures.push_back(painter.Paint(base, OnePixel(RandomTable(random), index, left, top)));
        EXPECT_EQ(pictures.back()->AllStrips(), base->AllStrips());
    }
    EXPECT_EQ(budget->Used(), 2 * PixelBudget::kFrameCost);
}

TEST(IndexPainter, RepeatsThePictureWherePaintingChangesNothing) {
    std::mt19937 random(16);
    const auto budget = std::make_shared<PixelBudget>();
    IndexPainter painter(budget);
    const SharedPixelTable table = RandomTable(random);
    const uint8 index = 1;
    const IndexImage dot = OnePixel(table, index, 30, 40);
    const auto base = Picture::Solid(0, 100, 500, B_RGB32, nullptr);
    const auto once = painter.Paint(base, dot);
    const uint64 used = budget->Used();
    const auto twice = painter.Paint(once, dot);
    EXPECT_FALSE(once->Repeats(*base));
    EXPECT_TRUE(twice->Repeats(*once));
    EXPECT_EQ(budget->Used(), used + PixelBudget::kFrameCost);

    // In one color, and with what is filled as in what is painted.
    const auto filled = painter.Fill(once, {0, 0, 100, 500}, table->pixels[1]);
    EXPECT_TRUE(painter.Fill(filled, {0, 0, 100, 500}, table->pixels[1])->Repeats(*filled));
    const auto dotted = painter.Paint(filled, dot);
    EXPECT_TRUE(painter.Paint(dotted, dot)->Repeats(*dotted));
}

TEST(IndexPainter, GivesNothingWithoutMemory) {
    std::mt19937 random(15);
    const auto base = Built(RandomPicture(10, 10, 30, random));
    const uint8 index = 1;
    IndexPainter painter(nullptr);
    const AllocationFault fault(1);

    EXPECT_EQ(painter.Paint(base, OnePixel(RandomTable(random), index, 5, 5)), nullptr);
}

}  // namespace kirto::test
