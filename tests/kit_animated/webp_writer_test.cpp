#include "kit/animated/webp_writer.h"

#include <gtest/gtest.h>

#include "kit/animated/webp_reader.h"

namespace kirto::test {

namespace {

constexpr AnimatedImageHeader kTwoByOne{2, 1, 2, 3};
const std::vector<uint8> kRedAndHalfGreen = {0, 0, 255, 255, 0, 255, 0, 128};
const std::vector<uint8> kBlueAndNothing = {255, 0, 0, 255, 0, 0, 0, 0};

}  // namespace

TEST(WebpWriter, WritesWhatTheReaderReads) {
    WebpWriter writer(kTwoByOne, {});
    ASSERT_TRUE(writer.Add(kRedAndHalfGreen, 30));
    ASSERT_TRUE(writer.Add(kBlueAndNothing, 7));
    const std::vector<uint8> file = writer.Finish();

    WebpReader reader(file, 1 << 20);
    AnimatedImageHeader header;
    ASSERT_EQ(reader.ReadHeader(&header), AnimatedImageReader::Result::kFrame);
    EXPECT_EQ(header.width, 2);
    EXPECT_EQ(header.height, 1);
    EXPECT_EQ(header.plays, 3);
    const auto row = [&] { return std::vector<uint8>(reader.Row(0), reader.Row(0) + 8); };
    ASSERT_EQ(reader.Next(), AnimatedImageReader::Result::kFrame);
    EXPECT_EQ(row(), kRedAndHalfGreen);
    EXPECT_EQ(reader.Milliseconds(), 30);
    ASSERT_EQ(reader.Next(), AnimatedImageReader::Result::kFrame);
    EXPECT_EQ(row(), kBlueAndNothing);
    EXPECT_EQ(reader.Milliseconds(), 7);
    EXPECT_EQ(reader.Next(), AnimatedImageReader::Result::kEnd);
}

TEST(WebpWriter, RefusesSidesThatTheFormatHasNoRoomFor) {
    for (const auto& [width, height] :
         {std::pair(16384, 1), std::pair(1, 16384), std::pair(0, 1)}) {
        WebpWriter writer({width, height, 1, 0}, {});
        const auto size = static_cast<size_t>(width) * static_cast<size_t>(height) * 4;
        EXPECT_FALSE(writer.Add(std::vector<uint8>(size), 10));
        EXPECT_TRUE(writer.Finish().empty());
    }
}

TEST(WebpWriter, RefusesACanvasOfAnotherSize) {
    WebpWriter writer(kTwoByOne, {});
    EXPECT_FALSE(writer.Add(std::vector<uint8>(4), 10));
}

TEST(WebpWriter, RefusesMoreTimeThanTheFormatCanTell) {
    WebpWriter writer(kTwoByOne, {});
    ASSERT_TRUE(writer.Add(kRedAndHalfGreen, 0x7FFFFFFF));
    EXPECT_FALSE(writer.Add(kBlueAndNothing, 1));
}

TEST(WebpWriter, GivesUpWhenItIsAskedTo) {
    AnimatedImageQuality quality;
    quality.stopped = [] { return true; };
    const AnimatedImageHeader header{64, 64, 1, 0};
    WebpWriter writer(header, quality);
    EXPECT_FALSE(writer.Add(std::vector<uint8>(size_t{64} * 64 * 4), 10));
}

}  // namespace kirto::test
