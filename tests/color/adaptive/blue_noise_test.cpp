#include "color/adaptive/blue_noise.h"

#include <gtest/gtest.h>
#include <set>

namespace kirto::test {

TEST(BlueNoise, HasEachRankOnce) {
    std::set<int32> ranks;
    for (int32 y = 0; y < BlueNoise::kSize; ++y) {
        for (int32 x = 0; x < BlueNoise::kSize; ++x)
            ranks.insert(BlueNoise::Square().RankAt(x, y));
    }
    EXPECT_EQ(ranks.size(), static_cast<size_t>(BlueNoise::kRanks));
    EXPECT_EQ(*ranks.begin(), 0);
    EXPECT_EQ(*ranks.rbegin(), BlueNoise::kRanks - 1);
}

TEST(BlueNoise, RepeatsFarAway) {
    for (const int32 far : {BlueNoise::kSize, 65535 / BlueNoise::kSize * BlueNoise::kSize}) {
        EXPECT_EQ(BlueNoise::Square().RankAt(5 + far, 7), BlueNoise::Square().RankAt(5, 7));
        EXPECT_EQ(BlueNoise::Square().RankAt(5, 7 + far), BlueNoise::Square().RankAt(5, 7));
    }
}

TEST(BlueNoise, SpreadsThePlacesBelowAThreshold) {
    // By chance nearly every second place of a tenth of them would have a neighbor.
    const int32 threshold = BlueNoise::kRanks / 10;
    const BlueNoise& noise = BlueNoise::Square();
    for (int32 y = 0; y < BlueNoise::kSize; ++y) {
        for (int32 x = 0; x < BlueNoise::kSize; ++x) {
            if (noise.RankAt(x, y) >= threshold) continue;
            EXPECT_GE(noise.RankAt(x + 1, y), threshold) << x << " " << y;
            EXPECT_GE(noise.RankAt(x, y + 1), threshold) << x << " " << y;
        }
    }
}

TEST(BlueNoise, FillsEveryPartOfTheSquareAlike) {
    const BlueNoise& noise = BlueNoise::Square();
    for (int32 block = 0; block < 16; ++block) {
        int32 below_half = 0;
        for (int32 i = 0; i < 64; ++i) {
            const int32 rank = noise.RankAt(block % 4 * 8 + i % 8, block / 4 * 8 + i / 8);
            below_half += rank < BlueNoise::kRanks / 2 ? 1 : 0;
        }
        EXPECT_NEAR(below_half, 32, 4) << block;
    }
}

}  // namespace kirto::test
