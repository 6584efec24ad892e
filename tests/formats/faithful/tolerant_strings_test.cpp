#include "formats/faithful/tolerant_strings.h"

#include <gtest/gtest.h>

#include "formats/faithful/choice_lzw_encoder.h"
#include "formats/faithful/pixel_tolerance.h"
#include "support/random_document.h"

namespace kirto::test {

namespace {

// A picture of 32 greys in 64 x 64 pixels with noise, and what it is encoded with.
struct NoisyImage {
    static constexpr uint8 kTransparent = 31;

    explicit NoisyImage(uint32 seed) {
        SeededChoices choices(seed);
        for (uint32 i = 0; i < 32; ++i)
            keys.push_back(8 * i * 0x10101);
        for (int32 i = 0; i < 64 * 64; ++i) {
            indices.push_back(static_cast<uint8>(i / 256 + choices.Between(0, 4)));
            skippable.push_back(choices.OneIn(3) ? 1 : 0);
        }
        image.indices = indices;
        image.min_code_size = 5;
    }
    void Skip() {
        image.skippable = skippable;
        image.transparent = kTransparent;
    }
    std::vector<uint8> Find(int64 tolerance) {
        const int32 transparent = image.skippable.empty() ? -1 : kTransparent;
        return TolerantStrings(keys, transparent, tolerance, work).Find(image);
    }
    size_t SizeOf(const std::vector<uint8>& found) {
        ChoiceImage tolerant = image;
        tolerant.indices = found;
        return ChoiceLzwEncoder(work).Encode(tolerant, 0, {}).size();
    }

    Work work;
    std::vector<uint32> keys;
    std::vector<uint8> indices;
    std::vector<uint8> skippable;
    ChoiceImage image;
};

constexpr int64 kTolerances[] = {0, 200, 800, 3000, 20000};

}  // namespace

TEST(TolerantStrings, NoIndexIsFartherAwayThanTolerated) {
    for (const bool skips : {false, true}) {
        for (const int64 tolerance : kTolerances) {
            NoisyImage noisy(7);
            if (skips) noisy.Skip();
            const std::vector<uint8> found = noisy.Find(tolerance);
            ASSERT_EQ(found.size(), noisy.indices.size());
            for (size_t i = 0; i < found.size(); ++i) {
                ASSERT_LE(SquareDistance(noisy.keys[found[i]], noisy.keys[noisy.indices[i]]),
                          tolerance);
                // What takes the transparent index's place would not be drawn.
                ASSERT_TRUE(!skips || found[i] != NoisyImage::kTransparent);
            }
        }
    }
}

TEST(TolerantStrings, NothingChangesWhereNothingIsTolerated) {
    NoisyImage noisy(3);
    EXPECT_EQ(noisy.Find(0), noisy.indices);
}

TEST(TolerantStrings, MoreToleranceMakesFewerCodes) {
    for (const bool skips : {false, true}) {
        NoisyImage noisy(11);
        if (skips) noisy.Skip();
        size_t last = noisy.SizeOf(noisy.indices);
        for (const int64 tolerance : kTolerances) {
            if (tolerance == 0) continue;
            const size_t size = noisy.SizeOf(noisy.Find(tolerance));
            EXPECT_LT(size, last) << tolerance;
            last = size;
        }
    }
}

TEST(TolerantStrings, ATransparentPixelStaysTransparent) {
    NoisyImage noisy(5);
    noisy.image.transparent = NoisyImage::kTransparent;
    for (size_t i = 0; i < noisy.indices.size(); i += 5)
        noisy.indices[i] = NoisyImage::kTransparent;
    const std::vector<uint8> found =
        TolerantStrings(noisy.keys, NoisyImage::kTransparent, 20000, noisy.work).Find(noisy.image);
    for (size_t i = 0; i < found.size(); ++i)
        ASSERT_EQ(found[i] == NoisyImage::kTransparent, i % 5 == 0);
}

}  // namespace kirto::test
