// What edits the pictures of frames.
#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

// A home with "three.gif", which is 2 x 1 pixels, and what becomes of that animation.
struct PictureEdits : CliHome {
    PictureEdits() { Write("three.gif", ThreeFrameGif()); }

    Json Edited(Arguments edits) const {
        edits.insert(edits.begin(), {"--open", "three.gif"});
        return Info(edits);
    }
    void ExpectRefused(const std::string& option, const std::string& value,
                       const std::string& expected) const {
        const RunResult result = Run({"--open", "three.gif", option, value});
        EXPECT_EQ(result.status, 2) << option << ' ' << value;
        EXPECT_EQ(result.err,
                  "kirto-cli: " + option + ": \"" + value + "\": expected " + expected + ".\n");
    }
};

// Width and height of the canvas and of each frame: "2x1 2x1 2x1 2x1".
std::string SizesIn(const Json& info) {
    std::string sizes;
    const auto add = [&sizes](const Json& width, const Json& height) {
        sizes += sizes.empty() ? "" : " ";
        sizes += std::to_string(width.get<int32>()) + 'x' + std::to_string(height.get<int32>());
    };
    add(info["global_width"], info["global_height"]);
    for (const Json& frame : info["frames"])
        add(frame["width"], frame["height"]);
    return sizes;
}

}  // namespace

TEST(KirtoCli, ResizesTheAnimation) {
    const PictureEdits home;

    EXPECT_EQ(SizesIn(home.Edited({"--resize", "6x2"})), "6x2 6x2 6x2 6x2");
    EXPECT_EQ(SizesIn(home.Edited({"--resize", "8x"})), "8x4 8x4 8x4 8x4");
    EXPECT_EQ(SizesIn(home.Edited({"--resize", "x3:nearest"})), "6x3 6x3 6x3 6x3");
    EXPECT_EQ(SizesIn(home.Edited({"--resize", "250%:bilinear"})), "5x3 5x3 5x3 5x3");
    EXPECT_EQ(SizesIn(home.Edited({"--resize", "1%"})), "1x1 1x1 1x1 1x1");
    EXPECT_EQ(SizesIn(home.Edited({"--resize", "6x2", "--undo"})), "2x1 2x1 2x1 2x1");
    for (const std::string value :
         {"", "x", "0x", "65536x", "50", "50%:cubic", "-1x2", "0%", "1e9%", "nan%"})
        home.ExpectRefused("--resize", value, "WxH, Wx, xH or N%, and [:FILTER]");
}

TEST(KirtoCli, CropsTheAnimation) {
    const PictureEdits home;

    EXPECT_EQ(SizesIn(home.Edited({"--crop", "1x1+1+0"})), "1x1 1x1 1x1 1x1");
    EXPECT_EQ(SizesIn(home.Edited({"--crop", "3x2-1-1"})), "3x2 2x1 2x1 2x1");
    EXPECT_EQ(home.Edited({"--crop", "3x2+-1+-1"})["frames"][0]["x_offset"], 1);
    EXPECT_EQ(SizesIn(home.Edited({"--crop", "transparent"})), "2x1 2x1 2x1 2x1");
    EXPECT_EQ(home.Edited({"--canvas", "4x4", "--crop", "transparent"})["global_width"], 2);
    EXPECT_LE(home.Edited({"--crop", "changes"})["global_width"], 2);
    for (const std::string value : {"", "1x1", "1x1+1", "0x1+0+0", "1x1+a+b", "everything"})
        home.ExpectRefused("--crop", value, "WxH+X+Y, transparent or changes");
}

TEST(KirtoCli, ChangesTheCanvasAroundTheAnimation) {
    const PictureEdits home;

    const Json info = home.Edited({"--canvas", "6x3"});
    EXPECT_EQ(SizesIn(info), "6x3 2x1 2x1 2x1");
    EXPECT_EQ(info["frames"][0]["x_offset"], 2);
    EXPECT_EQ(info["frames"][0]["y_offset"], 1);
    EXPECT_EQ(home.Edited({"--canvas", "6x3:right"})["frames"][1]["x_offset"], 4);
    EXPECT_EQ(SizesIn(home.Edited({"--canvas", "1x1:top-left"})), "1x1 1x1 1x1 1x1");
    for (const std::string value : {"", "6", "6x3:middle", "6x0"})
        home.ExpectRefused("--canvas", value, "WxH[:ANCHOR]");
}

TEST(KirtoCli, RotatesAndFlips) {
    const PictureEdits home;
    const Json before = home.Edited({});

    EXPECT_EQ(SizesIn(home.Edited({"--rotate", "90"})), "1x2 1x2 1x2 1x2");
    const Json turned = home.Edited({"--rotate", "90", "--rotate", "270"});
    EXPECT_EQ(turned["frames"], before["frames"]);
    const Json half = home.Edited({"--rotate", "180"});
    EXPECT_EQ(half["frames"], home.Edited({"--flip", "h", "--flip", "v"})["frames"]);
    home.ExpectRefused("--rotate", "45", "90, 180 or 270");
    home.ExpectRefused("--flip", "x", "h or v");
}

TEST(KirtoCli, EditsThePicturesOfTheSelectedFramesOnly) {
    const PictureEdits home;
    const Json before = home.Edited({});
    const std::vector<Arguments> edits = {
        {"--adjust", "brightness=50,contrast=-20,saturation=10"},
        {"--opacity", "40%"},
        {"--make-transparent", "FFFFFF:255"},
    };
    for (Arguments edit : edits) {
        edit.insert(edit.begin(), {"--select", "1-2"});
        const Json after = home.Edited(edit);
        EXPECT_EQ(after["frames"][0], before["frames"][0]) << edit[2];
        EXPECT_NE(after["frames"][1]["md5"], before["frames"][1]["md5"]) << edit[2];
        EXPECT_NE(after["frames"][2]["md5"], before["frames"][2]["md5"]) << edit[2];
    }
    EXPECT_EQ(home.Edited({"--greyscale"})["frames"][1], before["frames"][1]);
}

TEST(KirtoCli, FitsFramesToTheCanvas) {
    const PictureEdits home;

    EXPECT_EQ(SizesIn(home.Edited(
                  {"--width", "6", "--height", "6", "--select", "all", "--fit", "scale"})),
              "6x6 6x3 6x3 6x3");
    EXPECT_EQ(SizesIn(home.Edited({"--width", "6", "--fit", "pad"})), "6x1 6x1 2x1 2x1");
    EXPECT_EQ(SizesIn(home.Edited({"--width", "1", "--fit", "crop"})), "1x1 1x1 2x1 2x1");
    home.ExpectRefused("--fit", "stretch", "scale, pad or crop, or a size such as 500KB");
}

TEST(KirtoCli, RefusesValuesOfColorsOutOfTheirBounds) {
    const PictureEdits home;
    for (const std::string value :
         {"", "brightness", "brightness=101", "hue=3", "contrast=1,contrast=2", "contrast=1,"})
        home.ExpectRefused("--adjust", value,
                           "brightness=N, contrast=N and saturation=N, -100 to 100, with commas "
                           "between them");
    for (const std::string value : {"", "50", "101%", "-1%"})
        home.ExpectRefused("--opacity", value, "0% to 100%");
    for (const std::string value : {"", "FFF", "FFFFFF:256", "FFFFFF:"})
        home.ExpectRefused("--make-transparent", value,
                           "RRGGBB[:TOLERANCE], the tolerance 0 to 255");
}

TEST(KirtoCli, EditsNoPicturesWithoutAFrameOrACanvas) {
    const PictureEdits home;
    for (const Arguments& edit :
         std::vector<Arguments>{{"--opacity", "5%"}, {"--greyscale"}, {"--fit", "pad"}}) {
        const RunResult result = home.Run(edit);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "kirto-cli: There is no current frame.\n");
    }
    const RunResult result = home.Run({"--width", "0", "--resize", "50%"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "kirto-cli: The animation's width or height is 0.\n");
}

}  // namespace kirto::test
