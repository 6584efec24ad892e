#include "formats/faithful/choice_lzw_encoder.h"

#include <gtest/gtest.h>
#include <random>

#include "formats/gif/gif_index_writer.h"
#include "formats/gif/gif_lzw_decoder.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

// How strings are found, and whether the places to clear the table at are looked for.
struct Effort {
    size_t shorter = 0;
    bool well = false;
};

class ChoiceLzw : public testing::Test {
  protected:
    Bytes Encode(const ChoiceLzwEncoder::Image& image, const Effort& effort) {
        std::span<const uint8> codes = encoder_->Encode(image, effort.shorter, {});
        const LzwPace pace = encoder_->Pace();
        if (effort.well) {
            const auto clearings = encoder_->FindClearings(image, pace);
            codes = encoder_->EncodeCleared(image, effort.shorter, clearings, {});
        }
        EXPECT_TRUE(encoder_->Complete());
        return {codes.begin(), codes.end()};
    }
    // All of them, and nothing behind them.
    Bytes Decoded(const Bytes& codes, int32 min_code_size, size_t count) {
        GifImageData data;
        data.bytes = codes;
        data.complete = true;
        Bytes indices(count + 1, 0xEE);
        // A row more, which must not be filled.
        GifIndexWriter writer(indices.data(), 1, static_cast<int32>(count + 1), false);
        const auto decoder = std::make_unique<GifLzwDecoder>(data, min_code_size);
        EXPECT_TRUE(decoder->Decode(writer, work_, 0));
        EXPECT_EQ(writer.RowLengths().size(), count + 1);
        EXPECT_EQ(writer.RowLengths().back(), 0);
        EXPECT_EQ(writer.RowLengths()[count - 1], 1);
        indices.pop_back();
        return indices;
    }

    Work work_;
    const std::unique_ptr<ChoiceLzwEncoder> encoder_ = std::make_unique<ChoiceLzwEncoder>(work_);
};

class Random {
  public:
    explicit Random(uint32 seed) : engine_(seed) {}
    uint32 operator()() { return static_cast<uint32>(engine_()); }

  private:
    std::mt19937 engine_;
};

// Nothing may be skipped.
ChoiceLzwEncoder::Image Plain(const Bytes& indices, int32 min_code_size) {
    return {indices, {}, 0, min_code_size};
}

// Runs of indices below the limit.
Bytes Runs(Random& random, size_t count, uint32 limit, uint32 longest) {
    Bytes indices;
    while (indices.size() < count) {
        const auto index = static_cast<uint8>(random() % limit);
        for (uint32 left = 1 + random() % longest; left > 0 && indices.size() < count; --left)
            indices.push_back(index);
    }
    return indices;
}

constexpr Effort kEfforts[] = {{0, false}, {0, true}, {1, false}, {3, true}};

}  // namespace

TEST_F(ChoiceLzw, WrapsOnePixelIntoClearAndEndCode) {
    const Bytes indices = {1};
    // 3 bits each: 4 (clear), 1, 5 (end).
    EXPECT_EQ(Encode(Plain(indices, 2), {}), (Bytes{0x4C, 0x01}));
}

TEST_F(ChoiceLzw, TheLeadingZeroOfTheEndCodeTakesNoByte) {
    // The eleventh string makes codes longer, 44 bits from the start: the end code has 4 bits left
    // in the sixth byte, and needs no more.
    const Bytes indices(64, 0);
    const Bytes codes = Encode(Plain(indices, 2), {});
    EXPECT_EQ(codes, (Bytes{0x84, 0x8F, 0xA9, 0xCB, 0xED, 0x5D}));
    EXPECT_EQ(Decoded(codes, 2, indices.size()), indices);
}

TEST_F(ChoiceLzw, IndicesWithoutAChoiceComeBack) {
    Random random(1);
    for (int32 round = 0; round < 40; ++round) {
        const int32 bits = 2 + round % 7;
        const Bytes indices =
            Runs(random, 1 + random() % 20000, 1U << bits, round % 3 == 0 ? 1 : 30);
        for (const auto& effort : kEfforts) {
            const Bytes codes = Encode(Plain(indices, bits), effort);
            ASSERT_EQ(Decoded(codes, bits, indices.size()), indices) << round;
        }
    }
}

TEST_F(ChoiceLzw, SkippablePixelsBecomeEitherOfTheirTwoIndices) {
    Random random(2);
    for (int32 round = 0; round < 40; ++round) {
        const int32 bits = 2 + round % 7;
        const Bytes indices = Runs(random, 1 + random() % 9000, (1U << bits) - 1, 20);
        const Bytes skippable = Runs(random, indices.size(), 2, 1 + random() % 50);
        const auto transparent = static_cast<uint8>((1U << bits) - 1);
        for (const auto& effort : kEfforts) {
            const Bytes codes = Encode({indices, skippable, transparent, bits}, effort);
            const Bytes decoded = Decoded(codes, bits, indices.size());
            for (size_t i = 0; i < indices.size(); ++i) {
                if (skippable[i] != 0 && decoded[i] == transparent) continue;
                ASSERT_EQ(decoded[i], indices[i]) << round << " at " << i;
            }
        }
    }
}

TEST_F(ChoiceLzw, AChoiceMakesFewerCodes) {
    Random random(3);
    const Bytes indices = Runs(random, 20000, 15, 3);
    const Bytes all(indices.size(), 1);
    const Bytes fixed = Encode(Plain(indices, 4), {});
    EXPECT_LT(Encode({indices, all, 15, 4}, {}).size() * 20, fixed.size());
}

TEST_F(ChoiceLzw, AFullTableIsKeptWhileItPays) {
    // The same again and again: what the table has learnt does for all that follows.
    Random random(4);
    const Bytes once = Runs(random, 2000, 256, 1);
    Bytes indices;
    for (int32 i = 0; i < 60; ++i)
        indices.insert(indices.end(), once.begin(), once.end());
    const ChoiceLzwEncoder::Image image = Plain(indices, 8);
    EXPECT_LT(Encode(image, {0, true}).size(), Encode(image, {0, false}).size());
}

TEST_F(ChoiceLzw, BreaksOffOnceItIsLargerThanAsked) {
    Random random(5);
    const Bytes indices = Runs(random, 50000, 256, 1);
    const auto codes = encoder_->Encode(Plain(indices, 8), 0, {.most = 1000});
    EXPECT_FALSE(encoder_->Complete());
    EXPECT_GT(codes.size(), 1000u);
    EXPECT_LT(codes.size(), 1100u);
}

TEST_F(ChoiceLzw, ClearingWhereItIsToldIsBoundByTheSameLimits) {
    Random random(9);
    const Bytes indices = Runs(random, 50000, 256, 1);
    const auto image = Plain(indices, 8);
    const std::vector<size_t> clearings = {100, 101, 20000};
    const auto all = encoder_->EncodeCleared(image, 0, clearings, {});
    EXPECT_TRUE(encoder_->Complete());
    EXPECT_EQ(Decoded({all.begin(), all.end()}, 8, indices.size()), indices);
    const auto codes = encoder_->EncodeCleared(image, 0, clearings, {.most = 1000});
    EXPECT_FALSE(encoder_->Complete());
    EXPECT_LT(codes.size(), 1100u);
}

TEST_F(ChoiceLzw, EndsEarlyWhenTheWorkIsStopped) {
    Random random(6);
    const Bytes indices = Runs(random, 50000, 256, 1);
    work_.StopAll();
    EXPECT_LT(encoder_->Encode(Plain(indices, 8), 0, {}).size(), 10u);
    EXPECT_FALSE(encoder_->Complete());
}

TEST_F(ChoiceLzw, BreaksOffWhereItHasFallenFarBehindAnotherEncoding) {
    Random random(7);
    const Bytes flat(50000, 3);
    const Bytes noise = Runs(random, flat.size(), 256, 1);
    const size_t size = encoder_->Encode(Plain(flat, 8), 0, {}).size();
    const LzwPace pace = encoder_->Pace();
    // It may have as many bytes as it likes, at the end.
    encoder_->Encode(Plain(noise, 8), 0, {100 * size, &pace});
    EXPECT_FALSE(encoder_->Complete());
}

TEST_F(ChoiceLzw, WellIsNeverLargerThanClearingFullTables) {
    Random random(8);
    for (const uint32 longest : {1U, 3U, 40U}) {
        const Bytes indices = Runs(random, 60000, 64, longest);
        const auto image = Plain(indices, 6);
        EXPECT_LE(Encode(image, {0, true}).size(), Encode(image, {0, false}).size()) << longest;
    }
}

}  // namespace kirto::test
