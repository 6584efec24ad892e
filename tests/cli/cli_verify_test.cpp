// kirto-cli --verify.
#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

// 2 x 1 pixels: the first frame red and blue, the second red and transparent, on a clear screen.
std::vector<uint8> TransparentGif() {
    GifBuilder gif(2, 1, {0x000000, 0xFFFFFF, 0xFF0000, 0x0000FF});
    GifBuilder::Image image;
    image.width = 2;
    image.min_code_size = 2;
    image.indices = {2, 3};
    gif.Control(2, 10, 0).Add(image);
    image.indices = {2, 0};
    return gif.Control(2, 10, 0).Add(image).Trailer();
}

}  // namespace

TEST(KirtoCliVerify, SaysNothingWhereBrowsersShowTheSame) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    for (const char* mode : {"animation_faithful=false", "animation_faithful=true"}) {
        const RunResult result = home.Run(
            {"--quiet", "--verify", "--set", mode, "--open", "three.gif", "--save", "saved.gif"});

        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "");
    }
}

TEST(KirtoCliVerify, TellsHowMuchDiffersAndWhy) {
    const CliHome home;
    home.Write("clear.gif", TransparentGif());

    const RunResult trails =
        home.Run({"--quiet", "--faithful", "--open", "clear.gif", "--set",
                  "animation_faithful=false", "--save", "trails.gif", "--verify"});
    const RunResult colors = home.Run({"--quiet", "--open", "clear.gif", "--palette", "greyscale",
                                       "--save", "grey.gif", "--verify"});

    EXPECT_EQ(trails.status, 1);
    EXPECT_EQ(trails.out, "trails.gif: 1 of 2 frames will show trails, of up to 1 pixel\n");
    EXPECT_EQ(trails.err, "");
    EXPECT_EQ(colors.status, 1);
    EXPECT_EQ(colors.err, "");
    const std::string differences =
        ".gif: 1 of 2 frames will show trails, of up to 1 pixel\n"
        "grey.gif: 75 % of the pixels lost their color, by 106.0 of 255 on average: 256 colors\n";
    EXPECT_EQ(colors.out, "grey" + differences);
}

TEST(KirtoCliVerify, GoesOnAfterADifference) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const RunResult result =
        home.Run({"--quiet", "--verify", "--open", "three.gif", "--pause", "70000", "--save",
                  "a.gif", "--reverse", "--save", "b.gif", "--info-json"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out.find("a.gif: 2 of 3 frames will be shown for another time\n"
                              "b.gif: 2 of 3 frames will be shown for another time\n{"),
              0)
        << result.out;
}

TEST(KirtoCliVerify, WarnsOfPausesThatBrowsersLengthen) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const RunResult result = home.Run({"--quiet", "--verify", "--faithful", "--open", "three.gif",
                                       "--frame-pause", "1", "--save", "a.gif"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out,
              "a.gif: browsers will play 1 frame slower: its pause is below 0.02 seconds\n");
}

TEST(KirtoCliVerify, PrintsNoDebugLinesOfTheReading) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const RunResult plain = home.Run({"--open", "three.gif", "--save", "saved.gif"});
    const RunResult verified = home.Run({"--open", "three.gif", "--save", "saved.gif", "--verify"});

    EXPECT_EQ(verified.err, plain.err);
}

TEST(KirtoCli, NamesTheCauseWhereBrowsersOpenWhatIsRefused) {
    const CliHome home;
    std::vector<uint8> bytes = ThreeFrameGif();
    bytes.pop_back();
    home.Write("open.gif", bytes);
    const std::string refused =
        "kirto-cli: open.gif: The animation can't be opened because it was corrupted or "
        "unreadable.\n"
        "kirto-cli: open.gif: It was refused because the file ends without its trailer; --faithful "
        "opens it as browsers do.\n";

    const RunResult plain = home.Run({"--quiet", "--open", "open.gif"});
    const RunResult inserted = home.Run({"--quiet", "--insert-animation", "open.gif@0"});
    const RunResult salvaged =
        home.Run({"--quiet", "--salvage", "--open", "open.gif", "--save", "saved.gif"});

    EXPECT_EQ(plain.status, 1);
    EXPECT_EQ(plain.err, refused);
    EXPECT_EQ(inserted.status, 1);
    EXPECT_EQ(inserted.err, refused);
    EXPECT_EQ(salvaged.status, 0);
    EXPECT_EQ(salvaged.err, refused);
    EXPECT_EQ(home.Info({"--faithful", "--open", "open.gif"})["frame_count"], 3);
}

}  // namespace kirto::test
