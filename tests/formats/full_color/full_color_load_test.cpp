// Animated WebP and PNG files as documents.
#include "formats/full_color/full_color_load.h"

#include <gtest/gtest.h>
#include <random>

#include "formats/full_color/apng_reader.h"
#include "formats/full_color/webp_reader.h"
#include "support/full_color_file.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;
using Image = FullColorFile::Image;

constexpr uint32 kRedPixel = 0xFFFF0000;
constexpr uint32 kBluePixel = 0xFF0000FF;
constexpr uint32 kHalfGreen = 0x8000FF00;

// Two frames of 2 x 1, the second over half of the first.
FullColorFile TwoFrames() {
    FullColorFile file;
    file.width = 2;
    Image first{0, 0, 2, 1, {kRedPixel, kHalfGreen}};
    Image second{0, 0, 1, 1, {kBluePixel}};
    second.milliseconds = 33;
    file.frames = {first, second};
    return file;
}

class FullColorLoadTest : public testing::TestWithParam<FullColorFormat> {
  protected:
    static Bytes BytesOf(const FullColorFile& file) {
        return GetParam() == FullColorFormat::kWebp ? file.Webp() : file.Apng();
    }
    static FullColorFile Random(uint32 seed) {
        return RandomFullColorFile(seed, GetParam() == FullColorFormat::kWebp);
    }
    FullColorLoad Load(Bytes bytes, int32 start = 0) {
        const auto file = BFile::OnMemory(std::move(bytes));
        return FullColorLoad(GetParam(), file.get(), start, document());
    }
    AnimationDocument& document() { return fixture_.document; }
    Frame FrameAt(int32 position) { return *document().FrameAt(position); }
    std::vector<uint32> PixelsAt(int32 position) { return PixelsOf(*FrameAt(position).bitmap); }

    DocumentFixture fixture_;
};

std::string NameOf(const testing::TestParamInfo<FullColorFormat>& info) {
    return info.param == FullColorFormat::kWebp ? "Webp" : "Apng";
}

INSTANTIATE_TEST_SUITE_P(Formats, FullColorLoadTest,
                         testing::Values(FullColorFormat::kWebp, FullColorFormat::kApng), NameOf);

TEST_P(FullColorLoadTest, ShowsEachFrameOnTheCanvas) {
    const FullColorLoad load = Load(BytesOf(TwoFrames()));

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(load.End(), 2);
    ASSERT_EQ(document().FrameCount(), 2);
    EXPECT_EQ(document().Current()->width, 2);
    EXPECT_EQ(document().Current()->height, 1);
    EXPECT_EQ(PixelsAt(0), (std::vector<uint32>{kRedPixel, kHalfGreen}));
    EXPECT_EQ(PixelsAt(1), (std::vector<uint32>{kBluePixel, kHalfGreen}));
    EXPECT_EQ(FrameAt(1).name, "frame0001");
    EXPECT_TRUE(FrameAt(1).local_palette);
}

TEST_P(FullColorLoadTest, KeepsPausesToTheMillisecond) {
    Load(BytesOf(TwoFrames()));
    EXPECT_TRUE(FrameAt(0).use_pause);
    EXPECT_DOUBLE_EQ(FrameAt(0).pause_length, 10.0);
    EXPECT_DOUBLE_EQ(FrameAt(1).pause_length, 3.3);

    document().Reset();
    fixture_.prefs.global_pauseinseconds = true;
    Load(BytesOf(TwoFrames()));
    EXPECT_DOUBLE_EQ(FrameAt(1).pause_length, 0.033);
}

TEST_P(FullColorLoadTest, APauseThatAllFramesHaveIsTheAnimations) {
    FullColorFile file = TwoFrames();
    file.frames[1].milliseconds = 100;
    Load(BytesOf(file));

    EXPECT_TRUE(document().Current()->use_pause);
    EXPECT_DOUBLE_EQ(document().Current()->pause_length, 10.0);
    EXPECT_FALSE(FrameAt(0).use_pause);
    EXPECT_FALSE(FrameAt(1).use_pause);
}

TEST_P(FullColorLoadTest, LoopsAsTheFileSays) {
    FullColorFile file = TwoFrames();
    for (const int32 plays : {0, 1, 2, 7}) {
        document().Reset();
        file.plays = plays;
        Load(BytesOf(file));
        EXPECT_EQ(document().Current()->use_loop, plays != 1) << plays;
        EXPECT_EQ(document().Current()->loop_count, std::max(plays - 1, 0)) << plays;
    }
}

TEST_P(FullColorLoadTest, InsertedFramesLeaveTheAnimationAsItIsButForItsSize) {
    document().Change([](Animation& animation) {
        animation.width = 1;
        animation.height = 20;
    });
    Frame frame("first", 1, 20);
    frame.bitmap = FramePictureOf(1, 20, std::vector<uint32>(20, kRedPixel));
    document().InsertFrame(0, frame);
    const auto before = document().Current();

    FullColorFile file = TwoFrames();
    file.plays = 3;
    EXPECT_EQ(Load(BytesOf(file), 1).End(), 3);

    const auto after = document().Current();
    EXPECT_EQ(after->width, 2);
    EXPECT_EQ(after->height, 20);
    EXPECT_EQ(after->use_loop, before->use_loop);
    EXPECT_EQ(after->loop_count, before->loop_count);
    EXPECT_EQ(after->use_pause, before->use_pause);
    EXPECT_EQ(FrameAt(0).name, "first");
}

TEST_P(FullColorLoadTest, ShowsWhatViewersShowOfAnyAnimation) {
    for (uint32 seed = 0; seed < 200; ++seed) {
        const FullColorFile file = Random(seed);
        document().Reset();
        ASSERT_FALSE(Load(BytesOf(file)).failed) << seed;
        const auto shown = file.Shown();
        ASSERT_EQ(document().FrameCount(), static_cast<int32>(shown.size())) << seed;
        for (int32 i = 0; i < document().FrameCount(); ++i)
            ASSERT_EQ(PixelsAt(i), shown[static_cast<size_t>(i)]) << seed << ", frame " << i;
    }
}

TEST_P(FullColorLoadTest, ShowsTheSameWithAnyNumberOfThreads) {
    const Bytes bytes = BytesOf(Random(7));
    std::vector<std::vector<uint32>> first;
    for (const int32 threads : kThreadCounts) {
        const ScopedThreads count(threads);
        document().Reset();
        Load(bytes);
        std::vector<std::vector<uint32>> pixels;
        for (int32 i = 0; i < document().FrameCount(); ++i)
            pixels.push_back(PixelsAt(i));
        if (first.empty()) first = pixels;
        EXPECT_EQ(pixels, first) << threads;
    }
}

TEST_P(FullColorLoadTest, FramesWithTheSameRowsShareThem) {
    FullColorFile file;
    file.width = 100;
    file.height = 200;
    Image first{0, 0, 100, 200, std::vector<uint32>(100 * 200, kRedPixel)};
    for (size_t i = 0; i < first.pixels.size(); ++i)
        first.pixels[i] -= static_cast<uint32>(i % 2);
    Image second{0, 0, 2, 2, std::vector<uint32>(4, kBluePixel)};
    file.frames = {first, second};
    Load(BytesOf(file));

    const Picture::Strips& a = FrameAt(0).bitmap->AllStrips();
    const Picture::Strips& b = FrameAt(1).bitmap->AllStrips();
    ASSERT_EQ(a.size(), b.size());
    EXPECT_NE(a.front(), b.front());
    EXPECT_EQ(a.back(), b.back());
}

TEST_P(FullColorLoadTest, AFileThatBreaksOffKeepsTheFramesBefore) {
    FullColorFile file = Random(3);
    const size_t count = file.frames.size();
    Bytes bytes = BytesOf(file);
    file.frames.pop_back();
    bytes.resize(bytes.size() - 30);

    const FullColorLoad load = Load(bytes);

    EXPECT_TRUE(load.failed);
    EXPECT_FALSE(load.out_of_memory);
    EXPECT_LT(document().FrameCount(), static_cast<int32>(count));
}

TEST_P(FullColorLoadTest, ACanvasBeyondTheMemoryIsRefusedBeforeItIsMade) {
    document().pixel_budget->SetLimit(1000);
    FullColorFile file;
    file.width = 8000;
    file.height = 2000;
    file.frames = {{0, 0, 8000, 2000, std::vector<uint32>(8000 * 2000, kRedPixel)}};

    const FullColorLoad load = Load(BytesOf(file));

    EXPECT_TRUE(load.failed);
    EXPECT_TRUE(load.out_of_memory);
    EXPECT_EQ(document().FrameCount(), 0);
}

TEST_P(FullColorLoadTest, StopsBetweenFramesWhenItIsToldTo) {
    document().work.Begin();
    document().work.Stop(document().work.Running());
    const FullColorLoad load = Load(BytesOf(TwoFrames()));
    document().work.End();

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(document().FrameCount(), 0);
}

TEST_P(FullColorLoadTest, DamagedFilesGiveFramesOrAnError) {
    std::mt19937 random(1);
    document().pixel_budget->SetLimit(uint64{16} << 20);
    for (int i = 0; i < 1000; ++i) {
        Bytes bytes = BytesOf(Random(static_cast<uint32>(i % 40)));
        for (uint32 changes = 1 + static_cast<uint32>(random() % 4); changes > 0; --changes)
            bytes[random() % bytes.size()] = static_cast<uint8>(random());
        if (random() % 4 == 0) bytes.resize(random() % bytes.size());
        document().Reset();
        const FullColorLoad load = Load(bytes);
        ASSERT_EQ(load.End(), document().FrameCount()) << i;
        ASSERT_TRUE(load.failed || load.End() > 0) << i;
    }
}

TEST(FullColorFormats, AreKnownByTheirFirstBytesOnlyWhereTheyMove) {
    const auto png = BFile::OnMemory(TwoFrames().Apng());
    const auto webp = BFile::OnMemory(TwoFrames().Webp());
    EXPECT_TRUE(ApngReader::Knows(*png));
    EXPECT_FALSE(WebpReader::Knows(*png));
    EXPECT_TRUE(WebpReader::Knows(*webp));
    EXPECT_FALSE(ApngReader::Knows(*webp));
    EXPECT_EQ(png->Position(), 0);

    Bytes still = TwoFrames().Apng();
    // The chunk acTL follows the signature and IHDR.
    still.erase(still.begin() + 33, still.begin() + 33 + 20);
    EXPECT_FALSE(ApngReader::Knows(*BFile::OnMemory(still)));
    EXPECT_FALSE(ApngReader::Knows(*BFile::OnMemory()));
    EXPECT_FALSE(WebpReader::Knows(*BFile::OnMemory({'R', 'I', 'F', 'F'})));
}

TEST(ApngLoad, AStillImageInFrontIsNoFrame) {
    DocumentFixture fixture;
    const auto file = BFile::OnMemory(TwoFrames().Apng(true));
    const FullColorLoad load(FullColorFormat::kApng, file.get(), 0, fixture.document);

    EXPECT_FALSE(load.failed);
    ASSERT_EQ(fixture.document.FrameCount(), 2);
    EXPECT_EQ(PixelsOf(*fixture.document.FrameAt(0)->bitmap).front(), kRedPixel);
}

TEST(ApngLoad, PixelsArePutOverOthersByTheirAlpha) {
    DocumentFixture fixture;
    FullColorFile apng = TwoFrames();
    apng.frames[0].pixels = {0xFF000000, kHalfGreen};
    apng.frames[1] = {0, 0, 2, 1, {0x80FFFFFF, 0x80FF0000}};
    apng.frames[1].over = true;
    const auto file = BFile::OnMemory(apng.Apng());
    const FullColorLoad load(FullColorFormat::kApng, file.get(), 0, fixture.document);

    ASSERT_FALSE(load.failed);
    // 128/255 of white over black; half red over half green covers three quarters, two thirds of
    // it red.
    EXPECT_EQ(PixelsOf(*fixture.document.FrameAt(1)->bitmap),
              (std::vector<uint32>{0xFF808080, 0xC0AA5500}));
}

TEST(ApngLoad, AWrongChecksumIsDamage) {
    DocumentFixture fixture;
    Bytes bytes = TwoFrames().Apng();
    // The last byte of the checksum of the last image, before the 12 of IEND.
    ++bytes[bytes.size() - 13];
    const auto file = BFile::OnMemory(bytes);
    const FullColorLoad load(FullColorFormat::kApng, file.get(), 0, fixture.document);

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(fixture.document.FrameCount(), 1);
}

}  // namespace

}  // namespace kirto::test
