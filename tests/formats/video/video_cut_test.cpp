// Parts of videos as texts, and the frames that they make.
#include "formats/video/video_cut.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

// 100 seconds of 30 pictures of 640 x 360.
VideoProperties WideVideo() {
    VideoProperties video;
    video.width = 640;
    video.height = 360;
    video.rate_numerator = 30;
    video.seconds = 100;
    return video;
}

std::optional<VideoFrames> FramesOfText(const std::string& text,
                                        const VideoProperties& video = WideVideo()) {
    const auto cut = ParseVideoCut(text);
    EXPECT_TRUE(cut) << text;
    return cut ? FramesOf(video, *cut) : std::nullopt;
}

std::string SizeText(const std::string& text) {
    const auto frames = FramesOfText(text);
    return frames ? std::to_string(frames->width) + "x" + std::to_string(frames->height) : "none";
}

}  // namespace

TEST(VideoCut, ReadsEachPartOfTheText) {
    VideoCut cut;
    cut.start = 3.2;
    cut.end = 7.5;
    cut.rate = 15;
    cut.width = 480;
    cut.area = VideoArea{0, 60, 640, 300};
    EXPECT_EQ(ParseVideoCut("3.2-7.5@15:480x,crop=640x300+0+60"), cut);
    EXPECT_EQ(ParseVideoCut(""), VideoCut());
}

TEST(VideoCut, WritesTheTextThatItReads) {
    for (const std::string text :
         {"", "3.2-7.5@15:480x", "0-2", "4-", "@0.5", ":x270", ":1x65535", ",crop=1x2+3+4",
          "1.001-9999999@50:3x4,crop=65535x65535+65535+0"}) {
        const auto cut = ParseVideoCut(text);
        ASSERT_TRUE(cut) << text;
        EXPECT_EQ(cut->Text(), text);
    }
}

TEST(VideoCut, RefusesOtherTexts) {
    for (const std::string text : {"x",
                                   "3,2-7",
                                   "1-1",
                                   "2-1",
                                   "-0",
                                   "1--2",
                                   "1-2-3",
                                   "+1",
                                   "1e3",
                                   "inf",
                                   "nan",
                                   "@",
                                   "@0",
                                   "@51",
                                   "@60",
                                   "@-1",
                                   "@0.0001",
                                   ":",
                                   ":x",
                                   ":0x",
                                   ":x0",
                                   ":65536x",
                                   ":1",
                                   ":1x2x3",
                                   ":-1x",
                                   ",crop=",
                                   ",crop=1x2",
                                   ",crop=0x2+0+0",
                                   ",crop=1x2+3",
                                   ",crop=1x2-3+4",
                                   ",crop=1x2+3+4+5",
                                   "99999999999-",
                                   "1-2 ",
                                   " 1",
                                   "@15@15",
                                   "1-2:3x@4"}) {
        EXPECT_EQ(ParseVideoCut(text), std::nullopt) << text;
    }
}

TEST(VideoCut, KeepsTheRatioWhereOneSideIsMissing) {
    EXPECT_EQ(SizeText(""), "640x360");
    EXPECT_EQ(SizeText(":320x"), "320x180");
    EXPECT_EQ(SizeText(":x90"), "160x90");
    EXPECT_EQ(SizeText(":1x"), "1x1");
    EXPECT_EQ(SizeText(":30x400"), "30x400");
    EXPECT_EQ(SizeText(":x50,crop=200x100+440+260"), "100x50");
    EXPECT_EQ(SizeText(":65535x,crop=1x360+0+0"), "65535x65535");
}

TEST(VideoCut, CountsTheFramesThatItMakes) {
    EXPECT_EQ(FramesOfText("")->count, 3000);
    EXPECT_EQ(FramesOfText("3.2-7.5@15")->count, 65);
    EXPECT_EQ(FramesOfText("90-200@1")->count, 10);
    EXPECT_EQ(FramesOfText("@50")->Bytes(), uint64{4} * 640 * 360 * 5000);
    VideoProperties endless = WideVideo();
    endless.seconds = 0;
    EXPECT_EQ(FramesOfText("5", endless)->count, 0);
    EXPECT_EQ(FramesOfText("5-6", endless)->count, 30);
}

TEST(VideoCut, LowersRatesThatNoBrowserShows) {
    VideoProperties fast = WideVideo();
    fast.rate_numerator = 60;
    EXPECT_EQ(FramesOfText("", fast)->count, 5000);
}

TEST(VideoCut, MakesNothingOfWhatIsNotInTheVideo) {
    EXPECT_FALSE(FramesOfText("100"));
    EXPECT_FALSE(FramesOfText(",crop=641x1+0+0"));
    EXPECT_FALSE(FramesOfText(",crop=1x1+640+0"));
    EXPECT_FALSE(FramesOfText(",crop=1x1+0+360"));
    EXPECT_TRUE(FramesOfText("99.9,crop=1x1+639+359"));
}

}  // namespace kirto::test
