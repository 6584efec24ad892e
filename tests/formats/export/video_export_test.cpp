// Videos, written by ffmpeg and by programs that pretend to be it.
#include "formats/export/video_export.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "formats/video/video_reader.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr ExportFormat kVideoFormats[] = {ExportFormat::kMp4, ExportFormat::kWebm};
constexpr uint32 kFlatColors[] = {0xFFC02020, 0xFF20C020, 0x00000000};

// Frames of 33 x 17 pixels in one color each, for 40, 80 and 40 milliseconds.
struct VideoExportFixture {
    VideoExportFixture() {
        animation.width = 33;
        animation.height = 17;
        for (const uint32 color : kFlatColors) {
            Frame frame("frame", 33, 17);
            frame.bitmap = FramePictureOf(33, 17, std::vector<uint32>(33 * 17, color), B_RGBA32);
            frame.use_pause = true;
            frame.pause_length = color == kFlatColors[1] ? 8 : 4;
            animation.frames.Insert(animation.frames.Size(),
                                    std::make_shared<const Frame>(std::move(frame)));
        }
    }
    VideoResult Export(const std::string& program,
                       const ForeignProcess::Limits& limits = VideoWriterLimits()) {
        return EncodeVideo(animation, false, settings, program, limits, work, &bytes);
    }
    VideoResult ExportByScript(const std::string& text,
                               const ForeignProcess::Limits& limits = VideoWriterLimits()) {
        const std::string path = files.File("ffmpeg");
        std::ofstream(path) << "#!/bin/sh\n" << text << "\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        const DebugRecorder lines;
        return Export(path, limits);
    }

    TemporaryFolder files;
    Animation animation;
    ExportSettings settings;
    Work work;
    std::vector<uint8> bytes;
};

bool IsNear(const uint8* pixel, rgb_color color) {
    constexpr int kNear = 12;
    return std::abs(pixel[0] - color.blue) < kNear && std::abs(pixel[1] - color.green) < kNear &&
           std::abs(pixel[2] - color.red) < kNear;
}

}  // namespace

TEST(VideoExport, ComesBackWithItsColorsAndPauses) {
    const auto programs = FindVideoPrograms();
    if (!programs) GTEST_SKIP() << "ffmpeg is not installed";
    for (const ExportFormat format : kVideoFormats) {
        VideoExportFixture fixture;
        fixture.settings.format = format;
        fixture.settings.matte = {32, 32, 192, 255};
        ASSERT_EQ(fixture.Export(programs->decode), VideoResult::kDone);
        const std::string path = fixture.files.File("video");
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(fixture.bytes.data()),
                   static_cast<std::streamsize>(fixture.bytes.size()));

        VideoReader::Job job{path};
        const auto video = ProbeVideo(*programs, path, job.limits, {});
        ASSERT_TRUE(video) << NameOf(format);
        job.frames = FramesOf(*video, job.cut).value();
        job.pixel_bytes = uint64{1} << 20;
        VideoReader reader(programs->decode, job, {});
        AnimatedImageHeader header;
        ASSERT_EQ(reader.ReadHeader(&header), AnimatedImageReader::Result::kFrame);
        EXPECT_EQ(header.width, 34);
        EXPECT_EQ(header.height, 18);
        const rgb_color meant[] = {
            {192, 32, 32, 255}, {32, 192, 32, 255}, {32, 192, 32, 255}, {32, 32, 192, 255}};
        for (const rgb_color color : meant) {
            ASSERT_EQ(reader.Next(), AnimatedImageReader::Result::kFrame) << NameOf(format);
            EXPECT_EQ(reader.Milliseconds(), 40);
            EXPECT_TRUE(IsNear(reader.Row(8) + 4 * 16, color)) << NameOf(format);
        }
        EXPECT_EQ(reader.Next(), AnimatedImageReader::Result::kEnd);
    }
}

TEST(VideoExport, MakesTheSameBytesAgain) {
    const auto programs = FindVideoPrograms();
    if (!programs) GTEST_SKIP() << "ffmpeg is not installed";
    for (const ExportFormat format : kVideoFormats) {
        VideoExportFixture fixture;
        fixture.settings.format = format;
        ASSERT_EQ(fixture.Export(programs->decode), VideoResult::kDone);
        const std::vector<uint8> first = fixture.bytes;
        ASSERT_EQ(fixture.Export(programs->decode), VideoResult::kDone);
        EXPECT_EQ(fixture.bytes, first);
    }
}

TEST(VideoExport, TakesWhatTheProgramWrites) {
    VideoExportFixture fixture;
    EXPECT_EQ(fixture.ExportByScript("cat > /dev/null; printf abc"), VideoResult::kDone);
    EXPECT_EQ(fixture.bytes, (std::vector<uint8>{'a', 'b', 'c'}));
}

TEST(VideoExport, GivesTheProgramEachPictureAsOftenAsItIsShown) {
    VideoExportFixture fixture;
    ASSERT_EQ(fixture.ExportByScript("cat"), VideoResult::kDone);
    EXPECT_EQ(fixture.bytes.size(), size_t{4 * 33 * 17 * 4});
}

TEST(VideoExport, FailsWithTheProgram) {
    for (const std::string text : {"exit 1", "cat > /dev/null; exit 3", "kill -9 $$",
                                   "cat > /dev/null", "printf abc; cat > /dev/null; exit 1"}) {
        VideoExportFixture fixture;
        EXPECT_EQ(fixture.ExportByScript(text), VideoResult::kFailed) << text;
    }
    VideoExportFixture fixture;
    EXPECT_EQ(fixture.ExportByScript("head -c 100000 /dev/zero", {}), VideoResult::kFailed);
}

TEST(VideoExport, GivesUpAProgramThatHangs) {
    ForeignProcess::Limits limits = VideoWriterLimits();
    limits.silence = std::chrono::milliseconds(200);
    VideoExportFixture fixture;
    EXPECT_EQ(fixture.ExportByScript("cat > /dev/null; sleep 1000", limits), VideoResult::kFailed);
}

TEST(VideoExport, EndsWhenStopped) {
    VideoExportFixture fixture;
    fixture.work.StopAll();
    EXPECT_EQ(fixture.ExportByScript("sleep 1000"), VideoResult::kStopped);
}

TEST(VideoExport, RefusesMorePicturesThanAVideoIsToHave) {
    VideoExportFixture fixture;
    EditFrame(fixture.animation, 0, [](Frame& frame) { frame.pause_length = 10000001; });
    EXPECT_EQ(fixture.ExportByScript("cat"), VideoResult::kTooLong);
}

}  // namespace kirto::test
