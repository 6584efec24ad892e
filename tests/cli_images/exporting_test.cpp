// kirto-cli --export.
#include <filesystem>

#include "cli_images/image_home.h"
#include "kit/foreign_process.h"

namespace kirto::test {

namespace {

struct Exporting : ImageHome {
    Exporting() { Write("three.gif", ThreeFrameGif()); }
};

}  // namespace

TEST(KirtoCliExport, WritesTheFormatOfTheExtensionAndSaysItsSize) {
    const Exporting home;
    for (const std::string name : {"out.gif", "out.webp", "out.png", "out.apng"}) {
        const RunResult result = home.Run({"--quiet", "--open", "three.gif", "--export", name});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        const auto size = std::filesystem::file_size(home.File(name));
        EXPECT_EQ(result.out, name + ": " + std::to_string(size) + " bytes\n");
        const Json info = home.Info({"--faithful", "--open", name});
        EXPECT_EQ(info["frames"].size(), 3u) << name;
        EXPECT_EQ(info["global_width"], 2) << name;
    }
}

TEST(KirtoCliExport, ChoicesHoldForTheExportsThatFollow) {
    const Exporting home;
    const RunResult result =
        home.Run({"--quiet", "--open", "three.gif", "--export", "all.png", "--export-set",
                  "every=2", "--export-set", "scale=200", "--export", "some.png"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(home.Info({"--open", "all.png"})["frames"].size(), 3u);
    const Json some = home.Info({"--open", "some.png"});
    EXPECT_EQ(some["frames"].size(), 2u);
    EXPECT_EQ(some["global_width"], 4);
}

TEST(KirtoCliExport, WritesSheetsThatComeBackByTheirText) {
    const Exporting home;
    for (const std::string ending : {"png", "webp"}) {
        const RunResult result = home.Run(
            {"--quiet", "--open", "three.gif", "--export-set", "format=sheet", "--export-set",
             "columns=2", "--export-set", "padding=1", "--export", "sheet." + ending});
        EXPECT_EQ(result.status, 0) << result.err;
        const auto size = std::filesystem::file_size(home.File("sheet." + ending)) +
                          std::filesystem::file_size(home.File("sheet.json"));
        EXPECT_EQ(result.out,
                  "sheet." + ending + ": 2 files, " + std::to_string(size) + " bytes\n");
        const Json info = home.Info({"--insert-tiled", "sheet.json"});
        EXPECT_EQ(info["frames"].size(), 3u) << ending;
        EXPECT_EQ(info["frames"][2]["pause_length"], 20.0);
        if (ending == "png") {
            EXPECT_EQ(home.Frames({"--insert-tiled", "sheet.json"}),
                      home.Frames({"--open", "three.gif"}));
        }
    }
}

TEST(KirtoCliExport, WritesNumberedImagesAndThenFilesByTheirNameAgain) {
    const Exporting home;
    const RunResult result = home.Run(
        {"--quiet", "--open", "three.gif", "--export-set", "format=images", "--export-set",
         "every=2", "--export", "walk.png", "--export-set", "format=file", "--export", "walk.gif"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(home.Files(),
              (std::vector<std::string>{"three.gif", "walk.gif", "walk0000.png", "walk0001.png"}));
    const auto frames = home.Frames({"--open", "three.gif"});
    EXPECT_EQ(home.Frames({"--insert", "walk0000.png", "--insert", "walk0001.png"}),
              (std::vector<Colors>{frames[0], frames[2]}));
}

TEST(KirtoCliExport, SaysWhichImagesCanNotBeWritten) {
    const Exporting home;
    home.Fail({"--open", "three.gif", "--export-set", "format=images", "--export", "walk.nothing"},
              "walk.nothing: There is nothing here that writes this image format.", 1);
    std::filesystem::create_directory(home.File("walk0001.png"));
    home.Fail({"--open", "three.gif", "--export-set", "format=images", "--export", "walk.png"},
              "walk.png: The animation can't be saved because the file could not be created at "
              "this location. 0 of 3 files were written.",
              1);
}

TEST(KirtoCliExport, WritesVideosThatComeBackWithTheirPauses) {
    Exporting home;
    if (!FindProgram("ffmpeg") || !FindProgram("ffprobe")) GTEST_SKIP() << "without ffmpeg";
    for (const std::string name : {"out.mp4", "out.webm"}) {
        const RunResult result = home.Run({"--quiet", "--open", "three.gif", "--export", name});
        EXPECT_EQ(result.status, 0) << result.err;
        // 100, 100 and 200 milliseconds at 10 pictures a second.
        EXPECT_EQ(home.Info({"--open", name})["frames"].size(), 4u) << name;
    }
}

TEST(KirtoCliExport, SaysWhatIsMissingForVideos) {
    Exporting home;
    home.SetEnvironment("PATH", "/nowhere");
    home.Fail({"--open", "three.gif", "--export", "out.mp4"},
              "out.mp4: The video can't be written because the program ffmpeg was not found. "
              "Install the package \"ffmpeg\".",
              1);
}

TEST(KirtoCliExport, ItsLineDoesNotMixWithAnAnimation) {
    const Exporting home;
    home.Fail({"--open", "three.gif", "--export", "out.png", "--save", "-"},
              "--save - needs standard output for itself.", 2);
}

TEST(KirtoCliExport, SaysWhatAGifHasNoRoomFor) {
    const Exporting home;
    const RunResult result =
        home.Run({"--quiet", "--open", "three.gif", "--loop", "70000", "--export", "out.gif"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err,
              "kirto-cli: out.gif: Exported, but loop count 70000 was saved as 4464.\n");
}

TEST(KirtoCliExport, RefusesChoicesAndNamesThatMeanNothing) {
    const Exporting home;
    home.Fail({"--export-set", "loss=300"}, "--export-set: \"loss=300\": loss is to be 0 to 200.",
              2);
    home.Fail({"--open", "three.gif", "--export", "out.bmp"},
              "--export: \"out.bmp\": expected .gif, .webp, .png, .mp4 or .webm.", 2);
}

TEST(KirtoCliExport, AFailureLeavesTheOldFile) {
    const Exporting home;
    home.Write("old.webp", {1, 2, 3});
    home.Fail({"--export", "old.webp"}, "old.webp: There is no frame to export.", 1);
    EXPECT_EQ(std::filesystem::file_size(home.File("old.webp")), 3u);
    EXPECT_EQ(home.Files(), (std::vector<std::string>{"old.webp", "three.gif"}));
}

TEST(KirtoCliExport, SaysWhatWasGivenUpForASize) {
    const Exporting home;
    const RunResult all =
        home.Run({"--quiet", "--open", "three.gif", "--fit", "1KB", "--export", "all.png"});
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(all.out.find("with"), std::string::npos) << all.out;

    const auto size = std::filesystem::file_size(home.File("all.png"));
    const RunResult less = home.Run({"--quiet", "--open", "three.gif", "--fit",
                                     std::to_string(size - 1), "--export", "less.png"});
    EXPECT_EQ(less.status, 0) << less.err;
    EXPECT_NE(less.out.find(" bytes, with scale="), std::string::npos) << less.out;
    EXPECT_LT(std::filesystem::file_size(home.File("less.png")), size);
}

TEST(KirtoCliExport, ASizeThatCanNotBeMetIsToldAndWritesNothing) {
    const Exporting home;
    const RunResult result =
        home.Run({"--quiet", "--open", "three.gif", "--fit", "10B", "--export", "tiny.gif"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err.rfind("kirto-cli: tiny.gif: The animation can't be made so small. The "
                               "smallest that was tried has ",
                               0),
              0u)
        << result.err;
    EXPECT_EQ(home.Files(), (std::vector<std::string>{"three.gif"}));
}

TEST(KirtoCliExport, AnUpToDateExportIsNotMadeAgain) {
    const Exporting home;
    const Arguments line = {"--quiet", "--if-newer", "--open", "three.gif", "--export", "out.png"};
    EXPECT_NE(home.Run(line).out, "");
    std::filesystem::last_write_time(
        home.File("out.png"),
        std::filesystem::last_write_time(home.File("three.gif")) + std::chrono::seconds(2));
    EXPECT_EQ(home.Run(line).out, "");
}

}  // namespace kirto::test
