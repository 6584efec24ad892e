// How GifSave writes the images of frames: descriptor, local table and data.
#include <gtest/gtest.h>
#include <random>

#include "formats/gif/plain_document.h"
#include "formats/gif/reference_gif_encoder.h"
#include "support/colors.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

std::vector<uint32> GreyNoise(size_t count) {
    std::mt19937 engine(1);
    std::vector<uint32> argb;
    for (size_t i = 0; i < count; ++i)
        argb.push_back(kBlack | static_cast<uint32>(engine() % 256) * 0x010101);
    return argb;
}

TEST(GifSave, WritesPlaceAndSizeOfEachFrame) {
    PlainDocument plain;
    const FrameHandle frame = plain.Add(2, 3, std::vector<uint32>(6, kBlack));
    frame->x_offset = 0x0102;
    frame->y_offset = 0x30405;
    EXPECT_EQ(plain.SaveParts().images.at(0).descriptor, (Bytes{',', 2, 1, 5, 4, 2, 0, 3, 0, 0}));
}

TEST(GifSave, ALocalPaletteIsWrittenBehindItsImage) {
    PlainDocument plain;
    const FrameHandle frame = plain.Add(1, 2, {0xFF102030, 0xFF405060});
    frame.Palette()->bits = 2;
    frame.Palette()->colors[2] = {7, 8, 9, 255};
    frame.Palette()->colors[3] = {10, 11, 12, 255};
    frame->local_palette = true;
    const GifImageParts image = plain.SaveParts().images.at(0);
    EXPECT_EQ(image.descriptor[9], 0x81);
    EXPECT_EQ(image.table, (Bytes{0x10, 0x20, 0x30, 0x40, 0x50, 0x60, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(image.image_data, ReferenceImageData({0, 1}, 2));
}

TEST(GifSave, TheCodeSizeIsThatOfThePaletteInUse) {
    for (int32 bits = 1; bits <= 8; ++bits) {
        PlainDocument plain;
        PaletteEditOf(plain.document)->bits = bits;
        const FrameHandle frame = plain.Add(1, 1, {kWhite});
        frame.Palette()->bits = 9 - bits;
        plain.Add(1, 1, {kWhite}).Palette()->bits = 9 - bits;
        frame->local_palette = true;
        const GifParts parts = plain.SaveParts();
        EXPECT_EQ(parts.images.at(0).code_size, std::max(9 - bits, 2));
        EXPECT_EQ(parts.images.at(1).code_size, std::max(bits, 2));
    }
}

TEST(GifSave, TheInterlaceBitStandsWithAndWithoutALocalPalette) {
    PlainDocument plain;
    plain.prefs.animation_gifinterlaced = true;
    plain.Add(1, 1, {kBlack});
    plain.Add(1, 1, {kBlack})->local_palette = true;
    const GifParts parts = plain.SaveParts();
    EXPECT_EQ(parts.images.at(0).descriptor[9], 0x40);
    EXPECT_EQ(parts.images.at(1).descriptor[9], 0xC0);
}

TEST(GifSave, InterlacedRowsAreWrittenInFourPassesAtEveryHeight) {
    for (int32 height = 1; height <= 20; ++height) {
        PlainDocument plain;
        plain.prefs.animation_gifinterlaced = true;
        PaletteEditOf(plain.document)->Set(kPaletteGreyscale);
        std::vector<uint32> argb;
        for (uint32 row = 0; row < static_cast<uint32>(height); ++row)
            argb.insert(argb.end(), 3, kBlack | row * 0x010101);
        plain.Add(3, height, argb);
        Bytes expected;
        for (const auto& [start, step] : {std::pair{0, 8}, {4, 8}, {2, 4}, {1, 2}}) {
            for (int32 row = start; row < height; row += step)
                expected.insert(expected.end(), 3, static_cast<uint8>(row));
        }
        EXPECT_EQ(plain.SaveParts().images.at(0).image_data, ReferenceImageData(expected, 8))
            << "height " << height;
    }
}

TEST(GifSave, ManyDistinctColoursMakeAClearCodeAtTwelveBits) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->Set(kPaletteGreyscale);
    plain.Add(100, 100, GreyNoise(100 * 100));
    const GifImageParts image = plain.SaveParts().images.at(0);
    std::vector<int32> clear_sizes;
    std::vector<int32> sizes_after;
    const std::vector<SizedCode> codes = CodesOf(image.data, 8);
    for (size_t i = 0; i < codes.size(); ++i) {
        if (codes[i].code != 256) continue;
        clear_sizes.push_back(codes[i].size);
        sizes_after.push_back(codes[i + 1].size);
    }
    ASSERT_GE(clear_sizes.size(), 2U);
    EXPECT_EQ(clear_sizes[1], 12);
    EXPECT_EQ(sizes_after[1], 9);
}

TEST(GifSave, DataIsCutIntoSubBlocksOfAtMost255Bytes) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->Set(kPaletteGreyscale);
    for (int32 width = 200; width < 260; ++width)
        plain.Add(width, 1, GreyNoise(static_cast<size_t>(width)));
    for (const GifImageParts& image : plain.SaveParts().images) {
        for (size_t i = 0; i + 1 < image.block_sizes.size(); ++i)
            EXPECT_EQ(image.block_sizes[i], 255U);
    }
}

TEST(GifSave, SemiTransparentPixelsAreWrittenAsTheTransparentIndex) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->Set(kPaletteWebSafe);
    PaletteEditOf(plain.document)->use_transparent = true;
    PaletteEditOf(plain.document)->transparent_index = 77;
    std::vector<uint32> argb;
    for (uint32 alpha = 0; alpha < 255; ++alpha)
        argb.push_back(alpha << 24 | 0x336699);
    plain.Add(255, 1, argb);
    EXPECT_EQ(plain.SaveParts().images.at(0).image_data, ReferenceImageData(Bytes(255, 77), 8));
}

TEST(GifSave, TransparentPixelsBecomeTheTransparentIndexThoughTransparencyIsOff) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->transparent_index = 1;
    plain.Add(3, 1, {kBlack, 0, kBlack});
    EXPECT_EQ(plain.SaveParts().images.at(0).image_data, ReferenceImageData({0, 1, 0}, 2));
}

TEST(GifSave, AFrameThatNeedsAnIndexPastTheGlobalTableGetsAWiderLocalOne) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->transparent_index = 5;
    PaletteEditOf(plain.document)->colors[5] = {1, 2, 3, 255};
    plain.Add(2, 1, {kBlack, 0});
    plain.Add(2, 1, {kBlack, kWhite});
    const GifParts parts = plain.SaveParts();
    EXPECT_EQ(parts.header[10], 0xF0);
    EXPECT_EQ(parts.images.at(0).descriptor[9], 0x82);
    ASSERT_EQ(parts.images.at(0).table.size(), 24U);
    EXPECT_EQ(Bytes(parts.images[0].table.begin() + 15, parts.images[0].table.begin() + 18),
              (Bytes{1, 2, 3}));
    EXPECT_EQ(parts.images.at(0).image_data, ReferenceImageData({0, 5}, 3));
    EXPECT_EQ(parts.images.at(1).descriptor[9], 0);
    EXPECT_EQ(parts.images.at(1).image_data, ReferenceImageData({0, 1}, 2));
}

TEST(GifSave, AFrameThatNeedsAnIndexPastItsLocalTableGetsItWider) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->Set(kPaletteWebSafe);
    PaletteEditOf(plain.document)->use_transparent = true;
    PaletteEditOf(plain.document)->transparent_index = 255;
    const FrameHandle frame = plain.Add(2, 1, {0x80FFFFFF, 0xFF0000FF});
    MakeBlackAndWhite(&*frame.Palette());
    frame->local_palette = true;
    const GifImageParts image = plain.SaveParts().images.at(0);
    EXPECT_EQ(image.descriptor[9], 0x87);
    EXPECT_EQ(image.table.size(), 768U);
    EXPECT_EQ(image.image_data, ReferenceImageData({255, 0}, 8));
}

TEST(GifSave, LevelsPastAShortGreyRampGetAWiderTable) {
    // 128 entries read from a file into what was the grey ramp before are recognised as the ramp.
    PlainDocument plain;
    PaletteEditOf(plain.document)->Set(kPaletteGreyscale);
    PaletteEditOf(plain.document)->bits = 7;
    PaletteEditOf(plain.document)->size = 128;
    plain.Add(2, 1, {kBlack, kWhite});
    plain.Add(1, 1, {0xFF7F7F7F});
    const GifParts parts = plain.SaveParts();
    EXPECT_EQ(parts.images.at(0).descriptor[9], 0x87);
    EXPECT_EQ(parts.images.at(0).image_data, ReferenceImageData({0, 255}, 8));
    EXPECT_EQ(parts.images.at(1).descriptor[9], 0);
    EXPECT_EQ(parts.images.at(1).image_data, ReferenceImageData({127}, 7));
}

TEST(GifSave, AFrameWithoutPixelsIsAnImageWithoutData) {
    PlainDocument plain;
    plain.document.InsertFrame(0, Frame());
    const GifImageParts image = plain.SaveParts().images.at(0);
    EXPECT_EQ(image.descriptor, (Bytes{',', 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(image.image_data, (Bytes{2, 2, 0x2C, 0, 0}));
}

TEST(GifSave, AFrameWithoutAPictureIsTransparent) {
    PlainDocument plain;
    PaletteEditOf(plain.document)->transparent_index = 1;
    plain.document.InsertFrame(0, Frame("frame", 2, 2));
    EXPECT_EQ(plain.SaveParts().images.at(0).image_data, ReferenceImageData(Bytes(4, 1), 2));
}

}  // namespace

}  // namespace kirto::test
