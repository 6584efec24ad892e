#include "kit/decoding/decoded_animation.h"

#include <gtest/gtest.h>

#include "kit/decoding/decoding_roster.h"
#include "support/fake_roster.h"

namespace kirto::test {

namespace {

using Result = AnimatedImageReader::Result;

// What comes of reading the header, and then a frame, of a file that takes the decoder over.
std::pair<Result, Result> ResultsOf(char order, uint64 pixel_bytes = 16) {
    FakeRoster others;
    const DecodingRoster roster(KIRTO_BAD_DECODER, others);
    const std::vector<uint8> file = {static_cast<uint8>(order)};
    const auto reader = roster.ReadAnimatedImage(AnimatedImageFormat::kWebp, file, pixel_bytes);
    AnimatedImageHeader header;
    const Result result = reader->ReadHeader(&header);
    return {result, reader->Next()};
}

TEST(DecodedAnimation, HasTheHeaderAndTheFramesThatTheDecoderDraws) {
    FakeRoster others;
    const DecodingRoster roster(KIRTO_BAD_DECODER, others);
    const std::vector<uint8> file = {'g'};
    const auto reader = roster.ReadAnimatedImage(AnimatedImageFormat::kApng, file, 16);
    AnimatedImageHeader header;

    ASSERT_EQ(reader->ReadHeader(&header), Result::kFrame);
    EXPECT_EQ(header.width, 2);
    EXPECT_EQ(header.height, 2);
    EXPECT_EQ(header.frame_count, 3);
    ASSERT_EQ(reader->Next(), Result::kFrame);
    EXPECT_EQ(reader->Milliseconds(), 40.0);
    EXPECT_EQ(reader->Row(1)[7], 0);
}

TEST(DecodedAnimation, IsBrokenWhereTheDecoderFailsAtTheHeader) {
    for (const char order : {'c', 'e', 'k', 'l', 's', 't', 'n', 'w', 'm', 'x'})
        EXPECT_EQ(ResultsOf(order).first, Result::kBroken) << order;
}

TEST(DecodedAnimation, IsBrokenWhereTheDecoderFailsAtAFrame) {
    for (const char order : {'C', 'E', 'K', 'L', 'S', 'X', 'Y'}) {
        const auto [header, frame] = ResultsOf(order);
        EXPECT_EQ(header, Result::kFrame) << order;
        EXPECT_EQ(frame, Result::kBroken) << order;
    }
}

TEST(DecodedAnimation, TellsWhenTheCanvasDoesNotFit) {
    EXPECT_EQ(ResultsOf('g', 15).first, Result::kNoMemory);
}

}  // namespace

}  // namespace kirto::test
