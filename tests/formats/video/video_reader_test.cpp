// Videos, read by ffmpeg and by programs that pretend to be it.
#include "formats/video/video_reader.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>

#include "support/test_support.h"

namespace kirto::test {

namespace {

using VideoResult = AnimatedImageReader::Result;

constexpr uint64 kRoomForAFrame = uint64{1} << 20;
// Of a video of 2 x 1 pixels, for 1 second.
constexpr const char* kSmallVideo =
    R"({"streams":[{"width":2,"height":1,"avg_frame_rate":"30/1"}],"format":{"duration":"1.0"}})";

// Scripts in place of ffprobe and ffmpeg.
struct VideoFolder {
    VideoPrograms Scripts(const std::string& probe, const std::string& decode) const {
        return {Script("probe", probe), Script("decode", decode)};
    }
    std::string Script(const std::string& name, const std::string& text) const {
        const std::string path = files.File(name);
        std::ofstream(path) << "#!/bin/sh\n" << text << "\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return path;
    }

    TemporaryFolder files;
};

struct VideoRun {
    VideoResult header_result = VideoResult::kBroken;
    VideoResult end = VideoResult::kBroken;
    AnimatedImageHeader header;
    std::vector<uint8> bytes;  // of all frames
    std::vector<double> pauses;
};

VideoRun ReadVideo(const VideoPrograms& programs, const std::string& path,
                   const std::string& part = "", ForeignProcess::Limits limits = {},
                   const std::function<bool()>& stopped = {}) {
    VideoRun run;
    VideoReader::Job job{path, ParseVideoCut(part).value()};
    job.pixel_bytes = kRoomForAFrame;
    job.limits = limits;
    const auto video = ProbeVideo(programs, path, limits, stopped);
    const auto frames = video ? FramesOf(*video, job.cut) : std::nullopt;
    if (!frames) return run;
    job.frames = *frames;
    VideoReader reader(programs.decode, job, stopped);
    run.header_result = reader.ReadHeader(&run.header);
    if (run.header_result != VideoResult::kFrame) return run;
    while ((run.end = reader.Next()) == VideoResult::kFrame) {
        for (int32 y = 0; y < run.header.height; ++y)
            run.bytes.insert(run.bytes.end(), reader.Row(y), reader.Row(y) + 4 * run.header.width);
        run.pauses.push_back(reader.Milliseconds());
    }
    return run;
}

std::string Saying(const std::string& json) {
    return "echo '" + json + "'";
}

// With both scripts; the probe's is right.
VideoRun DecodedBy(const std::string& decode, ForeignProcess::Limits limits = {}) {
    const VideoFolder folder;
    return ReadVideo(folder.Scripts(Saying(kSmallVideo), decode), "any.mp4", "", limits);
}

VideoResult ProbedBy(const std::string& probe, ForeignProcess::Limits limits = {}) {
    const VideoFolder folder;
    return ReadVideo(folder.Scripts(probe, "true"), "any.mp4", "", limits).header_result;
}

int RunLine(const std::string& line) {
    return std::system(line.c_str());
}

}  // namespace

TEST(VideoReader, SpreadsPausesSoThatTheirMeanIsThatOfTheVideo) {
    const VideoRun run = DecodedBy("printf 12345678abcdefgh12345678");
    EXPECT_EQ(run.end, VideoResult::kEnd);
    EXPECT_EQ(run.header.frame_count, 30);
    EXPECT_EQ(run.pauses, (std::vector<double>{30, 40, 30}));
    EXPECT_EQ(run.bytes.size(), 24u);
}

TEST(VideoReader, KeepsWholeFramesOfAProgramThatDies) {
    for (const std::string end : {"printf abc", "exit 1", "kill -9 $$", "echo bad >&2"}) {
        const VideoRun run = DecodedBy("printf 12345678; " + end);
        EXPECT_EQ(run.end, VideoResult::kBroken) << end;
        EXPECT_EQ(run.pauses.size(), 1u) << end;
    }
}

TEST(VideoReader, GivesUpAProgramThatHangs) {
    ForeignProcess::Limits limits;
    limits.silence = std::chrono::milliseconds(200);
    EXPECT_EQ(DecodedBy("sleep 1000", limits).end, VideoResult::kBroken);
    EXPECT_EQ(ProbedBy("sleep 1000", limits), VideoResult::kBroken);
}

TEST(VideoReader, EndsWhenStopped) {
    const VideoFolder folder;
    const VideoRun run =
        ReadVideo(folder.Scripts("sleep 1000", "true"), "any.mp4", "", {}, [] { return true; });
    EXPECT_EQ(run.header_result, VideoResult::kBroken);
}

TEST(VideoReader, RefusesAVideoWithoutFrames) {
    EXPECT_EQ(DecodedBy("true").end, VideoResult::kBroken);
}

TEST(VideoReader, RefusesWhatIsNoDescriptionOfAVideo) {
    for (const std::string json :
         {"", "{", "[]", "3", R"({"streams":3})", R"({"streams":[]})", R"({"streams":[7]})",
          R"({"streams":[{"width":0,"height":1,"avg_frame_rate":"30/1"}]})",
          R"({"streams":[{"width":-2,"height":1,"avg_frame_rate":"30/1"}]})",
          R"({"streams":[{"width":65536,"height":1,"avg_frame_rate":"30/1"}]})",
          R"({"streams":[{"width":"2","height":1,"avg_frame_rate":"30/1"}]})",
          R"({"streams":[{"width":2,"height":1,"avg_frame_rate":"0/0"}]})",
          R"({"streams":[{"width":2,"height":1,"avg_frame_rate":"30"}]})",
          R"({"streams":[{"width":2,"height":1,"avg_frame_rate":"99999999999999999999/1"}]})"}) {
        EXPECT_EQ(ProbedBy(Saying(json)), VideoResult::kBroken) << json;
    }
    EXPECT_EQ(ProbedBy(Saying(kSmallVideo) + "; exit 1"), VideoResult::kBroken);
    EXPECT_EQ(ProbedBy("yes"), VideoResult::kBroken);
}

TEST(VideoReader, RefusesFramesThatFitNoMemoryBeforeTheyAreDecoded) {
    EXPECT_EQ(
        ProbedBy(Saying(R"({"streams":[{"width":65535,"height":65535,"avg_frame_rate":"30/1"}]})")),
        VideoResult::kNoMemory);
}

class VideoReaderOnFfmpeg : public testing::Test {
  protected:
    void SetUp() override {
        programs_ = FindVideoPrograms();
        if (!programs_) GTEST_SKIP() << "ffmpeg is not installed";
    }
    // Makes a video of 64 x 48 with the options behind the picture's.
    std::string Make(const std::string& name, const std::string& source = "r=10:d=1") const {
        const std::string path = folder_.files.File(name);
        EXPECT_EQ(RunLine("ffmpeg -v error -nostdin -f lavfi -i testsrc=s=64x48:" + source +
                          " -y '" + path + "'"),
                  0);
        return path;
    }

    std::optional<VideoPrograms> programs_;
    VideoFolder folder_;
};

TEST_F(VideoReaderOnFfmpeg, ShowsTheFramesThatFfmpegShows) {
    for (const std::string name : {"a.mp4", "a.mov", "a.webm", "a.mkv", "a.avi"}) {
        const std::string path = Make(name);
        const std::string raw = folder_.files.File("raw");
        ASSERT_EQ(RunLine("ffmpeg -v error -nostdin -i '" + path +
                          "' -f rawvideo -pix_fmt bgra -y '" + raw + "'"),
                  0);
        std::ifstream file(raw, std::ios::binary);
        const std::vector<uint8> expected{std::istreambuf_iterator<char>(file), {}};
        const VideoRun run = ReadVideo(*programs_, path);
        EXPECT_EQ(run.end, VideoResult::kEnd) << name;
        EXPECT_EQ(run.pauses, std::vector<double>(10, 100.0)) << name;
        EXPECT_TRUE(run.bytes == expected) << name;
    }
}

TEST_F(VideoReaderOnFfmpeg, DropsFramesThatBrowsersWouldNotShowInTime) {
    const VideoRun run = ReadVideo(*programs_, Make("a.mp4", "r=100:d=1"));
    EXPECT_EQ(run.end, VideoResult::kEnd);
    EXPECT_EQ(run.pauses, std::vector<double>(50, 20.0));
}

// The frames of the same file, made by the options.
TEST_F(VideoReaderOnFfmpeg, ShowsTheChosenPartInItsSize) {
    const std::string path = Make("a.mkv", "r=10:d=4 -c:v ffv1");
    const auto expect = [&](const std::string& part, const std::string& input,
                            const std::string& filter, size_t frames) {
        const std::string raw = folder_.files.File("raw");
        ASSERT_EQ(RunLine("ffmpeg -v error -nostdin " + input + " -i '" + path + "' -vf " + filter +
                          " -f rawvideo -pix_fmt bgra -y '" + raw + "'"),
                  0);
        std::ifstream file(raw, std::ios::binary);
        const std::vector<uint8> expected{std::istreambuf_iterator<char>(file), {}};
        const VideoRun run = ReadVideo(*programs_, path, part);
        EXPECT_EQ(run.end, VideoResult::kEnd) << part;
        EXPECT_EQ(run.pauses.size(), frames) << part;
        EXPECT_EQ(run.header.frame_count, static_cast<int32>(frames)) << part;
        EXPECT_TRUE(run.bytes == expected) << part;
    };
    expect("1-2.5", "-ss 1 -t 1.5", "fps=10", 15);
    expect("3", "-ss 3", "fps=10", 10);
    expect("@5", "", "fps=5", 20);
    expect(":32x", "", "fps=10,scale=32:24", 40);
    expect(":x12", "", "fps=10,scale=16:12", 40);
    expect(":10x40", "", "fps=10,scale=10:40", 40);
    expect(",crop=20x10+7+5", "", "crop=20:10:7:5:exact=1", 40);
    expect("0.5-1.5@4:10x,crop=20x10+7+5", "-ss 0.5 -t 1",
           "fps=4,crop=20:10:7:5:exact=1,scale=10:5", 4);
}

TEST_F(VideoReaderOnFfmpeg, ReadsFilesOfAnyName) {
    const std::string path = Make("plain.mp4");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(std::filesystem::path(path).parent_path());
    for (const std::string name :
         {"-x.mp4", "http:x.mp4", "concat:a|b", "a'b $(x).mp4", "%d.mp4"}) {
        std::filesystem::copy_file(path, name);
        EXPECT_EQ(ReadVideo(*programs_, name).pauses.size(), 10u) << name;
    }
    std::filesystem::current_path(before);
}

// KIRTO_MUTATIONS: how many files are tried.
TEST_F(VideoReaderOnFfmpeg, EndsWithEveryDamagedVideo) {
    const char* wish = std::getenv("KIRTO_MUTATIONS");
    const int count = wish ? std::atoi(wish) : 24;
    std::vector<std::vector<char>> sound;
    for (const std::string name : {"a.mp4", "a.webm", "a.avi"}) {
        std::ifstream file(Make(name, "r=5:d=1"), std::ios::binary);
        sound.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    std::mt19937 random(1);
    const std::string path = folder_.files.File("damaged.mp4");
    for (int i = 0; i < count; ++i) {
        std::vector<char> bytes = sound[static_cast<size_t>(i) % sound.size()];
        // The first bytes say what all others mean.
        const size_t reach = i % 2 == 0 ? std::min<size_t>(bytes.size(), 512) : bytes.size();
        for (auto changes = 1 + random() % 8; changes > 0; --changes)
            bytes[random() % reach] = static_cast<char>(random());
        if (random() % 4 == 0) bytes.resize(random() % bytes.size());
        std::ofstream(path, std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        const VideoRun run = ReadVideo(*programs_, path);
        ASSERT_NE(run.end, VideoResult::kFrame) << i;
        ASSERT_TRUE(run.end != VideoResult::kEnd || !run.pauses.empty()) << i;
    }
}

TEST_F(VideoReaderOnFfmpeg, FollowsNoListsOfOtherFiles) {
    Make("a.mp4");
    for (const std::string text :
         {"#EXTM3U\n#EXTINF:1,\na.mp4\n", "ffconcat version 1.0\nfile a.mp4\n"}) {
        const std::string path = folder_.files.File("list.mp4");
        std::ofstream(path) << text;
        EXPECT_EQ(ReadVideo(*programs_, path).header_result, VideoResult::kBroken) << text;
    }
}

}  // namespace kirto::test
