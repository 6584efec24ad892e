// Sheets that are written, and cut again.
#include "cli_images/image_home.h"

namespace kirto::test {

namespace {

constexpr uint32 kSheetRed = 0xFF0000;
constexpr uint32 kSheetGreen = 0x00FF00;
constexpr uint32 kSheetBlue = 0x0000FF;

struct SheetHome : ImageHome {
    SheetHome() {
        Write("red.ppm", Ppm(2, 1, {kSheetRed, kSheetRed}));
        Write("green.ppm", Ppm(2, 1, {kSheetGreen, kSheetGreen}));
        Write("blue.ppm", Ppm(2, 1, {kSheetBlue, kSheetBlue}));
    }
    Arguments Three(const Arguments& edits) const {
        Arguments all = {"--insert", "red.ppm", "--insert", "green.ppm", "--insert", "blue.ppm"};
        all.insert(all.end(), edits.begin(), edits.end());
        return all;
    }
};

const std::vector<Colors> kFrames = {
    {kSheetRed, kSheetRed}, {kSheetGreen, kSheetGreen}, {kSheetBlue, kSheetBlue}};

}  // namespace

TEST(KirtoCliImages, WritesASheetThatComesBackByItsText) {
    const SheetHome home;
    home.Succeed(
        home.Three({"--frame-pause", "12", "--save-sheet", "sheet.png,columns=2,padding=3,pot"}));

    const Json info = home.Info({"--insert-tiled", "sheet.json"});

    EXPECT_EQ(NamesIn(info), (Arguments{"red.ppm", "green.ppm", "blue.ppm"}));
    EXPECT_EQ(info["frames"][2]["pause_length"], 12.0);
    EXPECT_EQ(info["frames"][2]["use_pause"], true);
    EXPECT_EQ(home.Frames({"--insert-tiled", "sheet.json"}), kFrames);
    EXPECT_EQ(home.Frames({"--insert-tiled", "sheet.png,tile=2x1,spacing=3,skip-empty"}), kFrames);
}

TEST(KirtoCliImages, WritesTheSelectedFramesWhereSeveralAre) {
    const SheetHome home;
    home.Succeed(home.Three({"--select", "0,2", "--save-sheet", "sheet.png"}));

    EXPECT_EQ(home.Frames({"--insert-tiled", "sheet.png,1,2"}),
              (std::vector<Colors>{kFrames[0], kFrames[2]}));
}

TEST(KirtoCliImages, RefusesSheetsThatCanNotBe) {
    const SheetHome home;
    home.Fail(home.Three({"--save-sheet", "sheet"}),
              "--save-sheet: \"sheet\": expected FILE.png[,columns=N][,padding=N][,pot].", 2);
    home.Fail(home.Three({"--save-sheet", "sheet.png,padding=-1"}),
              "--save-sheet: \"sheet.png,padding=-1\": expected "
              "FILE.png[,columns=N][,padding=N][,pot].",
              2);
    home.Fail({"--insert-tiled", "red.ppm,1,1,margin=x"},
              "--insert-tiled: \"red.ppm,1,1,margin=x\": expected "
              "FILE,ROWS,COLUMNS[,by-column].",
              2);
    home.Fail({"--insert-tiled", "missing.json"},
              "missing.json: This file can't be inserted because it does not describe a sheet: "
              "missing.json",
              1);
}

}  // namespace kirto::test
