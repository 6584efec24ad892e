#include "formats/gif/gif_lzw_encoder.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <span>

#include "formats/gif/gif_parts.h"
#include "formats/gif/reference_gif_encoder.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

// The image data, when the encoder is given so many indices at once.
Bytes Encode(int32 min_code_size, const Bytes& indices, size_t at_once = 100) {
    ByteWriter output;
    GifLzwEncoder encoder(output, min_code_size);
    const std::span<const uint8> all(indices);
    for (size_t done = 0; done < all.size(); done += at_once)
        encoder.Add(all.subspan(done, std::min(at_once, all.size() - done)));
    encoder.Finish();
    return output.Written();
}

Bytes Noise(size_t count, int32 min_code_size, uint32 seed = 1) {
    std::mt19937 engine(seed);
    Bytes indices;
    for (size_t i = 0; i < count; ++i)
        indices.push_back(static_cast<uint8>(engine() % (1U << min_code_size)));
    return indices;
}

// The data behind the code size byte, without the sizes of the sub-blocks, which are checked: all
// but the last hold 255 bytes, and a terminator ends them.
Bytes JoinedBlocks(const Bytes& image_data) {
    Bytes joined;
    size_t position = 1;
    while (image_data[position] != 0) {
        const size_t size = image_data[position];
        const bool last = image_data[position + size + 1] == 0;
        EXPECT_TRUE(last || size == 255) << "at " << position;
        for (size_t i = 1; i <= size; ++i)
            joined.push_back(image_data[position + i]);
        position += size + 1;
    }
    EXPECT_EQ(position + 1, image_data.size());
    return joined;
}

TEST(GifLzwEncoder, WrapsOnePixelIntoClearAndEndCode) {
    // 3 bits each: 4 (clear), 1, 5 (end), 0.
    EXPECT_EQ(Encode(2, {1}), (Bytes{2, 2, 0x4C, 0x01, 0}));
}

TEST(GifLzwEncoder, EndsWithACodeOfZeroBitsThatMayTakeAByteOfItsOwn) {
    // 15 bits of codes, 3 of zeros.
    EXPECT_EQ(Encode(2, {0, 1, 2}), (Bytes{2, 3, 0x44, 0x54, 0x00, 0}));
}

TEST(GifLzwEncoder, CodesGrowOnceTheTableOutgrowsThem) {
    // 4, 0, 1, 2 of 3 bits; then 8 is in the table: 3, 5, 0 of 4 bits.
    EXPECT_EQ(Encode(2, {0, 1, 2, 3}), (Bytes{2, 3, 0x44, 0x34, 0x05, 0}));
}

TEST(GifLzwEncoder, AStringSeenBeforeIsOneCode) {
    // 4, 0, 6 = "00", 7 = "000", 5.
    EXPECT_EQ(Encode(2, {0, 0, 0, 0, 0, 0}), (Bytes{2, 3, 0x84, 0x5F, 0x00, 0}));
}

TEST(GifLzwEncoder, APictureWithoutPixelsIsClearAndEndCode) {
    EXPECT_EQ(Encode(2, {}), (Bytes{2, 2, 0x2C, 0x00, 0}));
}

TEST(GifLzwEncoder, StartsWithTheCodeSizeAsItsFirstByte) {
    for (int32 size = 2; size <= 8; ++size)
        EXPECT_EQ(Encode(size, {0})[0], size);
}

TEST(GifLzwEncoder, ClearsTheTableAtTwelveBitsAndStartsAgainSmall) {
    const Bytes data = JoinedBlocks(Encode(8, Noise(20000, 8)));
    const std::vector<SizedCode> codes = CodesOf(data, 8);
    std::vector<size_t> clears;
    for (size_t i = 0; i < codes.size(); ++i) {
        if (codes[i].code == 256) clears.push_back(i);
    }
    ASSERT_GE(clears.size(), 4U);
    EXPECT_EQ(clears[0], 0U);
    EXPECT_EQ(codes[0].size, 9);
    for (size_t i = 1; i < clears.size(); ++i) {
        EXPECT_EQ(codes[clears[i]].size, 12);
        EXPECT_EQ(codes[clears[i] - 1].size, 12);
        EXPECT_EQ(codes[clears[i] + 1].size, 9);
        // The codes 258 to 4096 come into being between two clears, one with each code written.
        EXPECT_EQ(clears[i] - clears[i - 1] - 1, 4096U - 258 + 1);
    }
}

TEST(GifLzwEncoder, EndsTheDataWithTheEndCode) {
    for (size_t count = 1; count < 300; ++count) {
        const std::vector<SizedCode> codes = CodesOf(JoinedBlocks(Encode(3, Noise(count, 3))), 3);
        ASSERT_EQ(codes.back().code, 9) << count << " pixels";
    }
}

TEST(GifLzwEncoder, CutsTheDataIntoBlocksOf255BytesAtEveryLength) {
    std::set<size_t> sizes;
    for (int32 size = 2; size <= 8; ++size) {
        for (size_t count = 190; count < 700; ++count) {
            const Bytes indices = Noise(count, size);
            const Bytes encoded = Encode(size, indices);
            sizes.insert(JoinedBlocks(encoded).size());
            ASSERT_EQ(encoded, ReferenceImageData(indices, size)) << count << " pixels";
        }
    }
    // One block that is nearly full, full, and running over; the same with two.
    for (const size_t size : {253U, 254U, 255U, 256U, 257U, 258U, 509U, 510U, 511U, 512U, 513U})
        EXPECT_THAT(sizes, testing::Contains(size));
}

TEST(GifLzwEncoder, EqualsThePlainEncoderOnRunsAndNoise) {
    std::mt19937 engine(7);
    for (int32 round = 0; round < 70; ++round) {
        const int32 size = 2 + round % 7;
        const size_t longest_run = 1 + engine() % (round % 2 == 0 ? 40 : 900);
        Bytes indices;
        while (indices.size() < 12000)
            indices.insert(indices.end(), 1 + engine() % longest_run,
                           static_cast<uint8>(engine() % (1U << size)));
        const size_t at_once = 1 + engine() % 700;
        ASSERT_EQ(Encode(size, indices, at_once), ReferenceImageData(indices, size))
            << "round " << round << ", " << at_once << " at once";
    }
}

TEST(GifLzwEncoder, EqualsThePlainEncoderOnOneLongRun) {
    // Strings of more than 255 equal pixels, and of all lengths up to thousands.
    const Bytes indices(300000, 5);
    const Bytes reference = ReferenceImageData(indices, 3);
    for (const size_t at_once : {size_t{7}, size_t{640}, indices.size()})
        EXPECT_EQ(Encode(3, indices, at_once), reference) << at_once << " at once";
}

TEST(GifLzwEncoder, EqualsThePlainEncoderOnGradientsAndShapes) {
    std::mt19937 engine(8);
    for (int32 size = 2; size <= 8; ++size) {
        for (const int32 width : {3, 61, 400}) {
            const int32 noise = 1 + static_cast<int32>(engine() % 4);
            Bytes indices;
            for (int32 i = 0; i < width * 150; ++i) {
                const int32 x = i % width;
                const int32 y = i / width;
                const bool shape = y / 9 % 2 == 0 && (x * 7 + y / 9) % 90 > 20;
                const int32 shade = (x + 2 * y) / 5 + static_cast<int32>(engine()) % noise;
                indices.push_back(static_cast<uint8>((shape ? 1 : shade) & ((1 << size) - 1)));
            }
            ASSERT_EQ(Encode(size, indices, static_cast<size_t>(width)),
                      ReferenceImageData(indices, size))
                << size << " bits, width " << width;
        }
    }
}

}  // namespace

}  // namespace kirto::test
