// Animated WebP and PNG files, frame by frame.
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <random>

#include "kit/animated/apng_reader.h"
#include "kit/animated/webp_reader.h"
#include "support/animated_image_file.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;
using Format = AnimatedImageFormat;
using Result = AnimatedImageReader::Result;
using Canvas = std::vector<uint32>;

constexpr uint64 kRoom = uint64{64} << 20;
constexpr uint32 kRedPixel = 0xFFFF0000;
constexpr uint32 kBluePixel = 0xFF0000FF;
constexpr uint32 kHalfGreen = 0x8000FF00;

// Two frames of 2 x 1, the second in the place of half of the first.
AnimatedImageFile TwoFrames() {
    AnimatedImageFile file;
    file.width = 2;
    file.plays = 5;
    AnimatedImageFile::Image second{0, 0, 1, 1, {kBluePixel}};
    second.milliseconds = 33;
    file.frames = {{0, 0, 2, 1, {kRedPixel, kHalfGreen}}, second};
    return file;
}

std::unique_ptr<AnimatedImageReader> ReaderOf(Format format, const Bytes& bytes, uint64 room) {
    if (format == Format::kWebp) return std::make_unique<WebpReader>(bytes, room);
    return std::make_unique<ApngReader>(bytes, room);
}

// All that a reader makes of a file.
struct Read {
    explicit Read(Format format, Bytes bytes, uint64 room = kRoom) {
        const std::unique_ptr<AnimatedImageReader> reader = ReaderOf(format, bytes, room);
        end = reader->ReadHeader(&header);
        while (end == Result::kFrame && (end = reader->Next()) == Result::kFrame) {
            Canvas canvas(static_cast<size_t>(header.width) * static_cast<size_t>(header.height));
            for (int32 y = 0; y < header.height; ++y) {
                std::memcpy(&canvas[static_cast<size_t>(y * header.width)], reader->Row(y),
                            static_cast<size_t>(header.width) * 4);
            }
            for (uint32& pixel : canvas)
                pixel = pixel >> 24 == 0 ? 0 : pixel;
            canvases.push_back(std::move(canvas));
            milliseconds.push_back(reader->Milliseconds());
        }
    }

    AnimatedImageHeader header;
    std::vector<Canvas> canvases;
    std::vector<double> milliseconds;
    Result end = Result::kFrame;
};

class AnimatedImageReaderTest : public testing::TestWithParam<Format> {
  protected:
    static Bytes BytesOf(const AnimatedImageFile& file) {
        return GetParam() == Format::kWebp ? file.Webp() : file.Apng();
    }
    static AnimatedImageFile Random(uint32 seed) {
        return RandomAnimatedImageFile(seed, GetParam() == Format::kWebp);
    }
};

std::string NameOf(const testing::TestParamInfo<Format>& parameter) {
    return parameter.param == Format::kWebp ? "Webp" : "Apng";
}

INSTANTIATE_TEST_SUITE_P(Formats, AnimatedImageReaderTest,
                         testing::Values(Format::kWebp, Format::kApng), NameOf);

TEST_P(AnimatedImageReaderTest, TellsWhatTheFileSaysOfItself) {
    const Read read(GetParam(), BytesOf(TwoFrames()));

    EXPECT_EQ(read.end, Result::kEnd);
    EXPECT_EQ(read.header.width, 2);
    EXPECT_EQ(read.header.height, 1);
    EXPECT_EQ(read.header.frame_count, 2);
    EXPECT_EQ(read.header.plays, 5);
    EXPECT_EQ(read.milliseconds, (std::vector<double>{100, 33}));
    EXPECT_EQ(read.canvases,
              (std::vector<Canvas>{{kRedPixel, kHalfGreen}, {kBluePixel, kHalfGreen}}));
}

TEST_P(AnimatedImageReaderTest, ShowsWhatViewersShowOfAnyAnimation) {
    for (uint32 seed = 0; seed < 200; ++seed) {
        const AnimatedImageFile file = Random(seed);
        const Read read(GetParam(), BytesOf(file));
        ASSERT_EQ(read.end, Result::kEnd) << seed;
        ASSERT_EQ(read.canvases, file.Shown()) << seed;
    }
}

TEST_P(AnimatedImageReaderTest, AFileThatBreaksOffGivesTheFramesBefore) {
    const AnimatedImageFile file = Random(3);
    Bytes bytes = BytesOf(file);
    bytes.resize(bytes.size() - 30);

    const Read read(GetParam(), bytes);

    EXPECT_EQ(read.end, Result::kBroken);
    EXPECT_LT(read.canvases.size(), file.frames.size());
}

TEST_P(AnimatedImageReaderTest, ACanvasBeyondTheMemoryIsRefusedBeforeItIsMade) {
    EXPECT_EQ(Read(GetParam(), BytesOf(TwoFrames()), 15).end, Result::kNoMemory);
    EXPECT_EQ(Read(GetParam(), BytesOf(TwoFrames()), 24).end, Result::kEnd);
}

TEST_P(AnimatedImageReaderTest, DamagedFilesGiveFramesOrAnError) {
    std::mt19937 random(1);
    for (int i = 0; i < 1000; ++i) {
        Bytes bytes = BytesOf(Random(static_cast<uint32>(i % 40)));
        for (uint32 changes = 1 + static_cast<uint32>(random() % 4); changes > 0; --changes)
            bytes[random() % bytes.size()] = static_cast<uint8>(random());
        if (random() % 4 == 0) bytes.resize(random() % bytes.size());
        const Read read(GetParam(), bytes);
        ASSERT_NE(read.end, Result::kFrame) << i;
        ASSERT_TRUE(read.end != Result::kEnd || !read.canvases.empty()) << i;
    }
}

TEST_P(AnimatedImageReaderTest, IsKnownByItsFirstBytes) {
    const auto file = BFile::OnMemory(BytesOf(TwoFrames()));
    EXPECT_EQ(AnimatedImageFormatOf(*file), GetParam());
    EXPECT_EQ(file->Position(), 0);
}

TEST(AnimatedImageFormats, OfStillAndDamagedFilesAreNone) {
    Bytes still = TwoFrames().Apng();
    // The chunk acTL follows the signature and IHDR.
    still.erase(still.begin() + 33, still.begin() + 33 + 20);
    const Bytes webp = TwoFrames().Webp();
    for (const Bytes& bytes : {still, Bytes{}, Bytes{'R', 'I', 'F', 'F'},
                               Bytes(webp.begin(), webp.begin() + 20), Bytes(100, 0)}) {
        EXPECT_EQ(AnimatedImageFormatOf(*BFile::OnMemory(bytes)), Format::kNone);
    }
}

TEST(ApngReader, AStillImageInFrontIsNoFrame) {
    const Read read(Format::kApng, TwoFrames().Apng(true));
    EXPECT_EQ(read.end, Result::kEnd);
    ASSERT_EQ(read.canvases.size(), 2u);
    EXPECT_EQ(read.canvases[0].front(), kRedPixel);
}

TEST(ApngReader, PixelsArePutOverOthersByTheirAlpha) {
    AnimatedImageFile file = TwoFrames();
    file.frames[0].pixels = {0xFF000000, kHalfGreen};
    file.frames[1] = {0, 0, 2, 1, {0x80FFFFFF, 0x80FF0000}};
    file.frames[1].over = true;
    const Read read(Format::kApng, file.Apng());

    ASSERT_EQ(read.canvases.size(), 2u);
    // 128/255 of white over black; half red over half green covers three quarters, two thirds of
    // it red.
    EXPECT_EQ(read.canvases[1], (Canvas{0xFF808080, 0xC0AA5500}));
}

TEST(ApngReader, AWrongChecksumIsDamage) {
    Bytes bytes = TwoFrames().Apng();
    // The last byte of the checksum of the last image, before the 12 of IEND.
    ++bytes[bytes.size() - 13];
    const Read read(Format::kApng, bytes);
    EXPECT_EQ(read.end, Result::kBroken);
    EXPECT_EQ(read.canvases.size(), 1u);
}

}  // namespace

}  // namespace kirto::test
