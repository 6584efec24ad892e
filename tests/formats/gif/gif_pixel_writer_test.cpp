#include "formats/gif/gif_pixel_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "support/test_support.h"

namespace kirto::test {
namespace {

using testing::Each;
using testing::ElementsAre;

// Colours by which an index can be told in the picture: index i is the pixel i.
GifPixelColors IndexColors() {
    GifPixelColors colors;
    for (uint32 i = 0; i < 256; ++i)
        colors.pixels[i] = i;
    return colors;
}

// A picture of 3 x 2 pixels of value 99.
std::shared_ptr<BBitmap> Canvas() {
    return PictureOf(3, 2, std::vector<uint32>(6, 99));
}

// The canvas after so many indices 1, 2, 3, ... were written into the area.
std::vector<uint32> Written(GifImageArea area, uint8 count, bool interlaced = false) {
    const auto canvas = Canvas();
    const GifPixelColors colors = IndexColors();
    GifPixelWriter writer(*canvas, area, interlaced, colors);
    for (uint8 index = 1; index <= count; ++index)
        writer.Write(&index, 1);
    return PixelsOf(*canvas);
}

TEST(GifPixelWriter, FillsItsAreaRowByRow) {
    EXPECT_THAT(Written({1, 0, 2, 2}, 4), ElementsAre(99, 1, 2, 99, 3, 4));
}

TEST(GifPixelWriter, TakesStringsThatRunOverSeveralRows) {
    const auto canvas = Canvas();
    const GifPixelColors colors = IndexColors();
    GifPixelWriter writer(*canvas, {1, 0, 2, 2}, false, colors);
    const uint8 indices[] = {1, 2, 3, 4};

    writer.Write(indices, 1);
    writer.Write(indices + 1, 3);

    EXPECT_THAT(PixelsOf(*canvas), ElementsAre(99, 1, 2, 99, 3, 4));
}

TEST(GifPixelWriter, FollowsTheInterlacedOrder) {
    const auto canvas = PictureOf(1, 5, std::vector<uint32>(5, 99));
    const GifPixelColors colors = IndexColors();
    GifPixelWriter writer(*canvas, {0, 0, 1, 5}, true, colors);
    const uint8 indices[] = {1, 2, 3, 4, 5};

    writer.Write(indices, 5);

    EXPECT_THAT(PixelsOf(*canvas), ElementsAre(1, 4, 3, 5, 2));
}

TEST(GifPixelWriter, MissingIndicesLeaveThePicture) {
    EXPECT_THAT(Written({0, 0, 3, 2}, 4), ElementsAre(1, 2, 3, 4, 99, 99));
}

TEST(GifPixelWriter, DropsIndicesPastTheLastRow) {
    EXPECT_THAT(Written({0, 0, 3, 1}, 9), ElementsAre(1, 2, 3, 99, 99, 99));
    EXPECT_THAT(Written({0, 0, 3, 1}, 9, true), ElementsAre(1, 2, 3, 99, 99, 99));
}

TEST(GifPixelWriter, IsFullOnceEveryRowIsWritten) {
    const auto canvas = Canvas();
    const GifPixelColors colors = IndexColors();
    GifPixelWriter writer(*canvas, {0, 0, 2, 1}, false, colors);
    const uint8 indices[] = {1, 2};

    writer.Write(indices, 1);
    EXPECT_FALSE(writer.Full());
    writer.Write(indices + 1, 1);
    EXPECT_TRUE(writer.Full());
}

TEST(GifPixelWriter, DropsPixelsRightOfThePictureWithoutWrappingRows) {
    EXPECT_THAT(Written({2, 0, 3, 2}, 6), ElementsAre(99, 99, 1, 99, 99, 4));
}

TEST(GifPixelWriter, DropsRowsBelowThePicture) {
    EXPECT_THAT(Written({0, 1, 3, 3}, 9), ElementsAre(99, 99, 99, 1, 2, 3));
}

TEST(GifPixelWriter, AnAreaOutsideThePictureWritesNothing) {
    EXPECT_THAT(Written({3, 0, 3, 2}, 6), Each(99));
    EXPECT_THAT(Written({0, 2, 3, 2}, 6), Each(99));
    EXPECT_THAT(Written({65535, 65535, 3, 2}, 6), Each(99));
}

TEST(GifPixelWriter, AnAreaWithoutColumnsOrRowsTakesNothing) {
    EXPECT_THAT(Written({0, 0, 0, 2}, 6), Each(99));
    EXPECT_THAT(Written({0, 0, 3, 0}, 6), Each(99));
}

TEST(GifPixelWriter, LeavesPixelsOfTheSkippedIndex) {
    const auto canvas = Canvas();
    GifPixelColors colors = IndexColors();
    colors.skipped_index = 2;
    GifPixelWriter writer(*canvas, {0, 0, 3, 2}, false, colors);
    const uint8 indices[] = {1, 2, 3, 2, 2, 6};

    writer.Write(indices, 6);

    EXPECT_THAT(PixelsOf(*canvas), ElementsAre(1, 99, 3, 99, 99, 6));
}

// The picture after the indices were written into the area one by one.
std::vector<uint32> PlainlyWritten(std::vector<uint32> pixels, int32 width, GifImageArea area,
                                   bool interlaced, const GifPixelColors& colors,
                                   const std::vector<uint8>& indices) {
    const int32 height = static_cast<int32>(pixels.size()) / width;
    GifRowOrder rows(area.height, interlaced);
    int32 column = 0;
    for (const uint8 index : indices) {
        if (rows.Done()) break;
        const int32 x = area.left + column;
        const int32 y = area.top + rows.Row();
        if (x < width && y < height && index != colors.skipped_index) {
            pixels[static_cast<size_t>(y * width + x)] = colors.pixels[index];
        }
        column = (column + 1) % area.width;
        if (column == 0) rows.Next();
    }
    return pixels;
}

TEST(GifPixelWriter, EqualsWritingOneByOneHoweverTheIndicesArrive) {
    std::mt19937 engine(11);
    const auto random = [&engine](uint32 least, uint32 most) {
        return static_cast<int32>(least + engine() % (most - least + 1));
    };
    for (int32 round = 0; round < 3000; ++round) {
        const int32 width = random(1, 60);
        const int32 height = random(1, 12);
        const GifImageArea area{random(0, 9), random(0, 3), random(1, 70), random(1, 14)};
        const bool interlaced = random(0, 1) == 1;
        GifPixelColors colors = IndexColors();
        if (random(0, 2) > 0) colors.skipped_index = random(0, 1) == 0 ? 255 : 0;
        // Runs, so that there are groups with the skipped index alone, without it, and mixed.
        std::vector<uint8> indices;
        const int32 count = area.width * random(0, static_cast<uint32>(area.height + 1));
        const uint32 longest_run = static_cast<uint32>(random(1, 30));
        while (indices.size() < static_cast<size_t>(count))
            indices.insert(indices.end(), static_cast<size_t>(random(1, longest_run)),
                           static_cast<uint8>(random(0, 3) - 2));
        const std::vector<uint32> before(static_cast<size_t>(width * height), 0x12345678);

        const auto canvas = PictureOf(width, height, before);
        GifPixelWriter writer(*canvas, area, interlaced, colors);
        for (size_t done = 0; done < indices.size();) {
            const size_t step = std::min(indices.size() - done, static_cast<size_t>(random(0, 99)));
            writer.Write(indices.data() + done, step);
            done += step;
        }

        ASSERT_EQ(PixelsOf(*canvas),
                  PlainlyWritten(before, width, area, interlaced, colors, indices))
            << "round " << round;
    }
}

TEST(PixelOf, LiesInMemoryAsBlueGreenRedAlpha) {
    const uint32 pixel = PixelOf({1, 2, 3, 4});

    const auto* bytes = reinterpret_cast<const uint8*>(&pixel);
    EXPECT_THAT(std::vector<uint8>(bytes, bytes + 4), ElementsAre(3, 2, 1, 4));
}

TEST(PixelColorsOf, GivesEveryEntryOfThePaletteAndSkipsNone) {
    const Palette palette(kPaletteGreyscale);

    const GifPixelColors colors = PixelColorsOf(palette);

    for (uint32 i = 0; i < 256; ++i)
        EXPECT_EQ(colors.pixels[i], 0xFF000000 | i << 16 | i << 8 | i);
    EXPECT_EQ(colors.skipped_index, -1);
}

}  // namespace
}  // namespace kirto::test
