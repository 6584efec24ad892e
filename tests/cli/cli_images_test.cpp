#include <filesystem>
#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

// A picture of 4 x 2 pixels: red, green, blue, white; black, black, black, white.
std::vector<uint8> SmallPicture() {
    const std::string header = "P6\n4 2\n255\n";
    std::vector<uint8> bytes(header.begin(), header.end());
    for (const uint32 color : {0xFF0000U, 0x00FF00U, 0x0000FFU, 0xFFFFFFU, 0U, 0U, 0U, 0xFFFFFFU}) {
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<uint8>(color >> shift));
    }
    return bytes;
}

struct ImageHome : CliHome {
    ImageHome() {
        Write("picture.ppm", SmallPicture());
        Write("three.gif", ThreeFrameGif());
    }
    // Makes a shell script the user's web browser.
    void SetBrowser(const std::string& commands) {
        const std::string path = File("browser");
        const std::string script = "#!/bin/sh\n" + commands + "\n";
        WriteBytes(path, {script.begin(), script.end()});
        fs::permissions(path, fs::perms::owner_all);
        SetEnvironment("BROWSER", path);
    }
    void ExpectRefused(const Arguments& arguments, const std::string& line, int status = 2) const {
        const RunResult result = Run(arguments);
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.err, "kirto-cli: " + line + "\n");
    }
};

}  // namespace

TEST(KirtoCli, InsertsImagesBehindTheCurrentFrameOrWhereItIsTold) {
    const ImageHome home;

    const Json behind = home.Info({"--open", "three.gif", "--insert", "picture.ppm"});
    const Json first = home.Info({"--open", "three.gif", "--insert", "picture.ppm@0"});

    EXPECT_EQ(NamesIn(behind)[1], "picture.ppm");
    EXPECT_EQ(behind["selected"], 1);
    EXPECT_EQ(behind["frames"][1]["width"], 4);
    EXPECT_EQ(NamesIn(first)[0], "picture.ppm");
    EXPECT_EQ(first["modified"], true);
}

TEST(KirtoCli, TakesTheSizeOfTheFirstImage) {
    const ImageHome home;

    const Json info = home.Info({"--insert", "picture.ppm"});

    EXPECT_EQ(info["global_width"], 4);
    EXPECT_EQ(info["global_height"], 2);
}

TEST(KirtoCli, InsertsAnImageWhoseOwnNameEndsLikeAPosition) {
    const ImageHome home;
    home.Write("picture.ppm@2", SmallPicture());

    EXPECT_EQ(NamesIn(home.Info({"--insert", "picture.ppm@2"})), Arguments{"picture.ppm@2"});
}

TEST(KirtoCli, FailsToInsertWhatIsNoImage) {
    const ImageHome home;

    home.ExpectRefused({"--insert", "missing.png", "--info"},
                       "missing.png: This file can't be inserted because this file type is "
                       "unsupported: missing.png",
                       1);
}

TEST(KirtoCli, CutsAnImageIntoFrames) {
    const ImageHome home;

    const Json info = home.Info({"--insert-tiled", "picture.ppm,1,2"});

    EXPECT_EQ(info["frame_count"], 2);
    EXPECT_EQ(info["frames"][0]["width"], 2);
    EXPECT_EQ(info["frames"][0]["height"], 2);
}

TEST(KirtoCli, CutsAnImageRowByRowOrColumnByColumn) {
    const ImageHome home;

    const Json rows = home.Info({"--insert-tiled", "picture.ppm,2,2"});
    const Json columns = home.Info({"--insert-tiled", "picture.ppm,2,2,by-column"});

    EXPECT_EQ(rows["frame_count"], 4);
    EXPECT_EQ(rows["frames"][1]["md5"], columns["frames"][2]["md5"]);
    EXPECT_EQ(rows["frames"][2]["md5"], columns["frames"][1]["md5"]);
    EXPECT_NE(rows["frames"][1]["md5"], rows["frames"][2]["md5"]);
}

TEST(KirtoCli, RefusesTilesWithoutRowsAndColumns) {
    const ImageHome home;
    for (const std::string value : {"picture.ppm", "picture.ppm,2", "picture.ppm,a,b", ",", ""}) {
        home.ExpectRefused(
            {"--insert-tiled", value},
            "--insert-tiled: \"" + value + "\": expected FILE,ROWS,COLUMNS[,by-column].");
    }
}

TEST(KirtoCli, FadesTheCurrentFrame) {
    const ImageHome home;
    for (const char* fade : {"to-color:2:00ff00", "from-color:2", "to-next:2"}) {
        EXPECT_EQ(home.Info({"--open", "three.gif", "--fade", fade})["frame_count"], 5) << fade;
    }
    EXPECT_EQ(home.Info({"--open", "three.gif", "--select", "1", "--fade",
                         "from-previous:1"})["frame_count"],
              4);
}

TEST(KirtoCli, RefusesFadesThatAreNone) {
    const ImageHome home;
    for (const std::string value :
         {"to-color", "to-nowhere:3", "to-color:x", "to-color:3:red", "to-color:3:ff", ""}) {
        home.ExpectRefused({"--open", "three.gif", "--fade", value},
                           "--fade: \"" + value + "\": expected MODE:COUNT[:RRGGBB].");
    }
    home.ExpectRefused({"--open", "three.gif", "--fade", "to-next:0"},
                       "Frame count must be between 1 and 100.");
    home.ExpectRefused({"--open", "three.gif", "--fade", "to-next:101"},
                       "Frame count must be between 1 and 100.");
    home.ExpectRefused({"--open", "three.gif", "--fade", "from-previous:1"},
                       "There is no frame to fade from-previous.", 1);
}

TEST(KirtoCli, SavesEachFrameAsAnImage) {
    const ImageHome home;

    const RunResult result = home.Run({"--open", "three.gif", "--save-sequence", "out.png"});

    EXPECT_EQ(result.status, 0) << result.err;
    for (const char* name : {"out0000.png", "out0001.png", "out0002.png"}) {
        EXPECT_TRUE(fs::exists(home.File(name))) << name;
    }
    EXPECT_EQ(home.Info({"--insert", "out0002.png"})["frames"][0]["md5"],
              home.Info({"--open", "three.gif"})["frames"][2]["md5"]);
}

TEST(KirtoCli, SavesImagesInTheFormatItIsTold) {
    const ImageHome home;

    EXPECT_EQ(
        home.Run({"--format", "png", "--open", "three.gif", "--save-sequence", "out.dat"}).status,
        0);

    EXPECT_EQ(ReadBytes(home.File("out0000.dat"))[1], 'P');
    home.ExpectRefused({"--open", "three.gif", "--save-sequence", "out.nonsense"},
                       "--save-sequence: There is no format \".nonsense\" to write; "
                       "--list-formats names them.");
}

TEST(KirtoCli, ListsTheImageFormats) {
    const ImageHome home;

    const RunResult result = home.Run({"--list-formats"});

    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("image/png"), std::string::npos);
    EXPECT_NE(result.out.find(" .tga"), std::string::npos);
}

TEST(KirtoCli, ShowsAPreviewAndRemovesItAfterwards) {
    ImageHome home;
    home.SetBrowser("cp \"$1\" seen.gif; echo \"$1\" > seen.txt");

    const RunResult result = home.Run({"--open", "three.gif", "--preview"});

    EXPECT_EQ(result.status, 0) << result.err;
    const std::vector<uint8> seen = ReadBytes(home.File("seen.txt"));
    EXPECT_EQ(std::string(seen.begin(), seen.end()), home.HomeFile("kirtotemp.gif") + "\n");
    EXPECT_FALSE(fs::exists(home.HomeFile("kirtotemp.gif")));
    EXPECT_EQ(home.Info({"--quiet", "--open", "seen.gif"})["frame_count"], 3);
}

TEST(KirtoCli, FailsWhereNoProgramShowsThePreview) {
    ImageHome home;
    home.SetBrowser("exit 1");
    home.SetEnvironment("PATH", home.File("nowhere"));

    home.ExpectRefused({"--open", "three.gif", "--preview"},
                       home.HomeFile("kirtotemp.gif") +
                           ": The preview was written, but no program to show it was found.",
                       1);
}

TEST(KirtoCli, StopsWhenItIsInterrupted) {
    for (const char* signal : {"INT", "TERM"}) {
        ImageHome home;
        home.SetBrowser("kill -" + std::string(signal) + " $PPID");

        home.ExpectRefused({"--open", "three.gif", "--preview", "--save", "new.gif"}, "Stopped.",
                           1);

        EXPECT_FALSE(fs::exists(home.File("new.gif")));
    }
}

TEST(KirtoCli, PreviewsNothingWithoutFrames) {
    const ImageHome home;

    home.ExpectRefused({"--preview"}, "There is no frame to preview.", 1);
}

}  // namespace kirto::test
