#include "formats/gif/gif_lzw_decoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

#include "formats/gif/gif_index_writer.h"
#include "support/gif_builder.h"
#include "support/reference_gif_decoder.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kPremature[] = "GifLoad::ReadGifImageData() - Premature end_code or error\n";

struct Result {
    bool success = false;
    std::vector<int32> indices;
    int64 left = 0;  // bytes of the file behind the image's data
    std::string debug;
};

// Decodes data sub-blocks into a picture of one row with room for so many pixels.
Result DecodeBlocks(const std::vector<uint8>& blocks, int32 min_code_size, int32 room = 1000) {
    const DebugRecorder debug;
    std::vector<uint8> row(static_cast<size_t>(room));
    GifIndexWriter writer(row.data(), room, 1, false);
    const auto file = BFile::OnMemory(blocks);
    Work work;
    WatchedInput input(*file, work);
    GifImageData data;
    data.Read(input, blocks.size());
    GifLzwDecoder decoder(data, min_code_size);

    Result result;
    result.success = decoder.Decode(writer, work, file->Size());
    result.left = file->Size() - file->Position();
    result.debug = debug.Text();
    const std::vector<int32> lengths = writer.RowLengths();
    result.indices.assign(row.begin(), row.begin() + (lengths.empty() ? room : lengths[0]));
    return result;
}

Result DecodeCodes(int32 min_code_size, const std::vector<int32>& codes) {
    return DecodeBlocks(GifBuilder::SubBlocks(GifBuilder::PackCodes(min_code_size, codes)),
                        min_code_size);
}

// With a code size of 2: clear is 4, end is 5, the first free code is 6.

TEST(GifLzwDecoder, GivesLiteralsAsTheyAre) {
    const Result result = DecodeCodes(2, {4, 0, 1, 2, 3, 5});

    EXPECT_TRUE(result.success);
    EXPECT_THAT(result.indices, ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(result.left, 0);
    EXPECT_EQ(result.debug, "");
}

TEST(GifLzwDecoder, NeedsNoClearCodeAtTheStart) {
    EXPECT_THAT(DecodeCodes(2, {1, 2, 6, 5}).indices, ElementsAre(1, 2, 1, 2));
}

TEST(GifLzwDecoder, GivesTheStringsOfTheTable) {
    // 6 is "1 2", 7 is "2 1", 8 is "1 2 2".
    EXPECT_THAT(DecodeCodes(2, {4, 1, 2, 6, 7, 8, 5}).indices,
                ElementsAre(1, 2, 1, 2, 2, 1, 1, 2, 2));
}

TEST(GifLzwDecoder, GivesTheStringThatACodeCompletesItself) {
    EXPECT_THAT(DecodeCodes(2, {4, 3, 6, 7, 5}).indices, ElementsAre(3, 3, 3, 3, 3, 3));
}

TEST(GifLzwDecoder, TakesACodeBeyondTheNextFreeOneForTheNextFreeOne) {
    // 7 where 6 is the next free one; afterwards 6 is "3 3", 7 is "3 3 3" and known.
    EXPECT_THAT(DecodeCodes(2, {4, 3, 7, 7, 5}).indices, ElementsAre(3, 3, 3, 3, 3, 3));
    EXPECT_THAT(DecodeCodes(2, {4, 3, 7, 6, 5}).indices, ElementsAre(3, 3, 3, 3, 3));
}

TEST(GifLzwDecoder, TakesAFirstCodeAboveTheLiteralsByItsLowByte) {
    EXPECT_THAT(DecodeCodes(2, {4, 7, 1, 6, 5}).indices, ElementsAre(7, 1, 7, 1));
    EXPECT_THAT(DecodeCodes(2, {7, 1, 6, 5}).indices, ElementsAre(7, 1, 7, 1));
    EXPECT_THAT(DecodeCodes(8, {256, 258 + 7, 1, 257}).indices, ElementsAre(9, 1));
}

TEST(GifLzwDecoder, CodesGrowBehindTheFirstOneWhereLiteralsTakeABitOrNone) {
    // Clear is 2, end is 3; 2 and 0 in two bits, 4 and 3 in three.
    EXPECT_THAT(DecodeBlocks({2, 0b1'100'00'10, 0b01, 0}, 1).indices, ElementsAre(0, 0, 0));
    // Clear is 1, end is 2; 1 and 0 in a bit, 3 in two, 2 in three.
    EXPECT_THAT(DecodeBlocks({1, 0b010'11'0'1, 0}, 0).indices, ElementsAre(0, 0, 0));
}

TEST(GifLzwDecoder, AClearCodeForgetsTheTable) {
    // After the second clear code 6 is free again, and completes itself.
    EXPECT_THAT(DecodeCodes(2, {4, 1, 2, 4, 3, 6, 5}).indices, ElementsAre(1, 2, 3, 3, 3));
}

TEST(GifLzwDecoder, AClearCodeTakesTheCodesBackToTheirFirstSize) {
    // The third code makes the table grow past 3 bits.
    EXPECT_THAT(DecodeCodes(2, {4, 1, 1, 1, 1, 8, 4, 2, 3, 5}).indices,
                ElementsAre(1, 1, 1, 1, 1, 1, 2, 3));
}

TEST(GifLzwDecoder, ClearCodesInARowCountAsOne) {
    EXPECT_THAT(DecodeCodes(2, {4, 4, 4, 1, 2, 5}).indices, ElementsAre(1, 2));
}

TEST(GifLzwDecoder, ACodeOverSeveralSubBlocksIsPutTogether) {
    const std::vector<uint8> packed = GifBuilder::PackCodes(2, {4, 0, 1, 2, 3, 5});
    std::vector<uint8> blocks;
    for (const uint8 byte : packed)
        blocks.insert(blocks.end(), {1, byte});
    blocks.push_back(0);

    EXPECT_THAT(DecodeBlocks(blocks, 2).indices, ElementsAre(0, 1, 2, 3));
}

TEST(GifLzwDecoder, EndsNormallyAtAZeroLengthSubBlockWithoutAnEndCode) {
    // Three codes of 8 bits: the data ends with the last one.
    const Result result = DecodeCodes(7, {128, 5, 6});

    EXPECT_TRUE(result.success);
    EXPECT_THAT(result.indices, ElementsAre(5, 6));
    EXPECT_EQ(result.debug, "");
}

TEST(GifLzwDecoder, NoCodesAtAllAreAnEmptyImage) {
    const Result result = DecodeBlocks({0}, 2);

    EXPECT_TRUE(result.success);
    EXPECT_THAT(result.indices, IsEmpty());
}

TEST(GifLzwDecoder, AnEndCodeAloneIsAnEmptyImage) {
    EXPECT_TRUE(DecodeCodes(2, {5}).success);
}

TEST(GifLzwDecoder, FailsWhenTheEndCodeFollowsAClearCode) {
    for (const std::vector<int32>& codes : {std::vector<int32>{4, 5}, {4, 1, 4, 5}, {4, 4, 5}}) {
        const Result result = DecodeCodes(2, codes);
        EXPECT_FALSE(result.success);
        EXPECT_EQ(result.debug, kPremature);
    }
}

TEST(GifLzwDecoder, FailsWhenTheDataEndsBehindAClearCode) {
    // The clear code fills 9 bits of 2 bytes; too few are left for another code.
    const Result terminated = DecodeBlocks({2, 0x00, 0x01, 0}, 8);
    EXPECT_FALSE(terminated.success);
    EXPECT_EQ(terminated.debug, kPremature);

    const Result cut = DecodeBlocks({2, 0x00, 0x01}, 8);
    EXPECT_FALSE(cut.success);
    EXPECT_EQ(cut.debug, kPremature);
}

TEST(GifLzwDecoder, FailsWhenTheFileEndsInFrontOfASubBlock) {
    const Result result = DecodeBlocks({1, 0x44}, 2);

    EXPECT_FALSE(result.success);
    EXPECT_EQ(result.debug, "");
}

TEST(GifLzwDecoder, FailsWhenTheFileEndsWithinASubBlock) {
    EXPECT_FALSE(DecodeBlocks({}, 2).success);
    EXPECT_FALSE(DecodeBlocks({3, 0x44, 0x01}, 2).success);
}

TEST(GifLzwDecoder, PassesOverWhatFollowsTheEndCode) {
    std::vector<uint8> blocks = GifBuilder::SubBlocks(GifBuilder::PackCodes(2, {4, 1, 5}));
    blocks.pop_back();
    blocks.insert(blocks.end(), {2, 0xAA, 0xBB, 1, 0xCC, 0, 0x3B});

    const Result result = DecodeBlocks(blocks, 2);

    EXPECT_TRUE(result.success);
    EXPECT_THAT(result.indices, ElementsAre(1));
    EXPECT_EQ(result.left, 1);
}

TEST(GifLzwDecoder, AFileThatEndsBehindTheEndCodeHasDeliveredTheImage) {
    std::vector<uint8> blocks = GifBuilder::SubBlocks(GifBuilder::PackCodes(2, {4, 1, 5}));
    blocks.pop_back();
    EXPECT_TRUE(DecodeBlocks(blocks, 2).success);

    blocks.insert(blocks.end(), {200, 0xAA});
    EXPECT_TRUE(DecodeBlocks(blocks, 2).success);
}

TEST(GifLzwDecoder, CutsWideValuesTo8Bits) {
    EXPECT_THAT(DecodeCodes(9, {512, 0x1FE, 0x101, 0x002, 513}).indices, ElementsAre(0xFE, 1, 2));
    EXPECT_THAT(DecodeCodes(11, {2048, 0x7FF, 0x701, 2050, 2049}).indices,
                ElementsAre(0xFF, 1, 0xFF, 1));
}

TEST(GifLzwDecoder, GoesOnWithAFullTable) {
    // 5,000 literals fill the table without a clear code; 4095 is then the last string of two.
    std::vector<int32> codes = {256};
    for (int32 i = 0; i < 5000; ++i)
        codes.push_back(i % 251);
    codes.insert(codes.end(), {4095, 257});
    const std::vector<uint8> blocks = GifBuilder::SubBlocks(GifBuilder::PackCodes(8, codes));

    const Result result = DecodeBlocks(blocks, 8, 6000);

    EXPECT_TRUE(result.success);
    ASSERT_EQ(result.indices.size(), 5002u);
    // Code 258 + n is the literals n and n + 1.
    EXPECT_EQ(result.indices[5000], (4095 - 258) % 251);
    EXPECT_EQ(result.indices[5001], (4095 - 258 + 1) % 251);
}

TEST(GifLzwDecoder, GivesTheLongestStringThatATableCanHold) {
    // Each code completes itself and is one longer than the one before.
    std::vector<int32> codes = {4, 0};
    for (int32 code = 6; code < 4096; ++code)
        codes.push_back(code);
    codes.insert(codes.end(), {4095, 5});
    const std::vector<uint8> blocks = GifBuilder::SubBlocks(GifBuilder::PackCodes(2, codes));
    constexpr int32 kLongest = 4096 - 6 + 1;
    constexpr int32 kAll = kLongest * (kLongest + 1) / 2 + kLongest;

    const Result result = DecodeBlocks(blocks, 2, kAll + 100);

    EXPECT_TRUE(result.success);
    EXPECT_TRUE(result.indices == std::vector<int32>(static_cast<size_t>(kAll), 0));
}

TEST(GifLzwDecoder, DropsWhatTheRowsDoNotTakeAndStillFindsTheEnd) {
    const std::vector<uint8> blocks =
        GifBuilder::SubBlocks(GifBuilder::PackCodes(2, {4, 1, 2, 6, 7, 8, 5}));

    const Result result = DecodeBlocks(blocks, 2, 3);

    EXPECT_TRUE(result.success);
    EXPECT_THAT(result.indices, ElementsAre(1, 2, 1));
    EXPECT_EQ(result.left, 0);
}

// Random streams, compared with the reference decoder.
class GifLzwDecoderAndReference : public testing::TestWithParam<int32> {
  protected:
    uint32 Random(uint32 limit) {
        return std::uniform_int_distribution<uint32>(0, limit - 1)(rng_);
    }

    void Compare(const std::vector<uint8>& blocks) {
        const ReferencePixels reference = DecodeReferenceLzw(blocks, GetParam());
        const int32 room = static_cast<int32>(reference.indices.size()) + 10;
        const Result result = DecodeBlocks(blocks, GetParam(), room);
        EXPECT_EQ(result.success, reference.success);
        EXPECT_EQ(result.indices,
                  std::vector<int32>(reference.indices.begin(), reference.indices.end()));
        if (reference.success) {
            EXPECT_EQ(result.left, static_cast<int64>(reference.leftover.size()));
        }
    }

    // Codes that a decoder can meet: mostly known ones, the next free one, now and then clear.
    std::vector<int32> RandomCodes(size_t count, uint32 codes_per_clear) {
        const int32 clear = 1 << GetParam();
        std::vector<int32> codes;
        int32 next = clear + 2;
        bool first = true;
        while (codes.size() < count) {
            if (Random(codes_per_clear) == 0) {
                codes.push_back(clear);
                next = clear + 2;
                first = true;
                continue;
            }
            const int32 limit = first ? clear : std::min(next + 1, 4096);
            const int32 code = static_cast<int32>(Random(static_cast<uint32>(limit)));
            if (code == clear || code == clear + 1) continue;
            codes.push_back(code);
            if (!first && next < 4096) ++next;
            first = false;
        }
        return codes;
    }

    std::mt19937 rng_{static_cast<uint32>(GetParam())};
};

TEST_P(GifLzwDecoderAndReference, AgreeOnSoundStreams) {
    for (int round = 0; round < 20; ++round) {
        std::vector<int32> codes = RandomCodes(300, 100);
        codes.push_back((1 << GetParam()) + 1);
        Compare(GifBuilder::SubBlocks(GifBuilder::PackCodes(GetParam(), codes)));
    }
}

TEST_P(GifLzwDecoderAndReference, AgreeOnStreamsThatFillTheTable) {
    std::vector<int32> codes = RandomCodes(6000, 1000000);
    codes.push_back((1 << GetParam()) + 1);
    Compare(GifBuilder::SubBlocks(GifBuilder::PackCodes(GetParam(), codes)));
}

TEST_P(GifLzwDecoderAndReference, AgreeOnManyCodes) {
    std::vector<int32> codes = RandomCodes(100000, 3000);
    codes.push_back((1 << GetParam()) + 1);
    Compare(GifBuilder::SubBlocks(GifBuilder::PackCodes(GetParam(), codes)));
}

TEST_P(GifLzwDecoderAndReference, AgreeOnLongStrings) {
    // Mostly the next free code, which makes the strings longer and longer; now and then another.
    for (const uint32 length : {10U, 100U, 900U}) {
        const int32 clear = 1 << GetParam();
        std::vector<int32> codes;
        for (int round = 0; round < 2; ++round) {
            codes.insert(codes.end(), {clear, static_cast<int32>(Random(4))});
            for (int32 next = clear + 2; next < std::min(clear + 1000, 4096); ++next) {
                const bool grow = Random(length) > 0;
                const int32 known = clear + 2 + static_cast<int32>(Random(1000)) % (next - clear);
                codes.push_back(grow ? next : std::min(known, next));
            }
        }
        codes.push_back(clear + 1);
        Compare(GifBuilder::SubBlocks(GifBuilder::PackCodes(GetParam(), codes)));
    }
}

TEST_P(GifLzwDecoderAndReference, AgreeOnRandomBytes) {
    for (int round = 0; round < 100; ++round) {
        std::vector<uint8> data(Random(700));
        for (uint8& byte : data)
            byte = static_cast<uint8>(Random(256));
        Compare(GifBuilder::SubBlocks(data));
    }
}

TEST_P(GifLzwDecoderAndReference, AgreeOnStreamsThatAreCutShort) {
    std::vector<int32> codes = RandomCodes(300, 50);
    codes.push_back((1 << GetParam()) + 1);
    const std::vector<uint8> blocks =
        GifBuilder::SubBlocks(GifBuilder::PackCodes(GetParam(), codes));
    for (size_t size = 0; size < blocks.size(); size += 7) {
        Compare({blocks.begin(), blocks.begin() + static_cast<std::ptrdiff_t>(size)});
    }
}

INSTANTIATE_TEST_SUITE_P(CodeSizes, GifLzwDecoderAndReference, testing::Range(2, 12),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace kirto::test
