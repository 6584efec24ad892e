#include <filesystem>
#include <gtest/gtest.h>

#include "base/md5.h"
#include "cli/cli_run.h"
#include "support/fake_video_programs.h"

namespace kirto::test {

namespace {

constexpr const char* kDamaged =
    "The animation can't be opened because it was corrupted or unreadable.";
constexpr const char* kOutOfMemoryHint =
    "Out of memory. Use --memory-limit to let frames take more.";
constexpr const char* kUnsupported =
    "The animation can't be opened because this file type is unsupported.";

// The arguments fail with exactly this line.
void ExpectFailed(const CliHome& home, const Arguments& arguments, const std::string& line) {
    const RunResult result = home.Run(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "kirto-cli: " + line + "\n");
    EXPECT_EQ(result.out, "");
}

std::vector<std::string> KeysOf(const Json& object) {
    std::vector<std::string> keys;
    for (const auto& item : object.items())
        keys.push_back(item.key());
    return keys;
}

}  // namespace

TEST(KirtoCli, DescribesAnimationsAsJson) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const Json info = home.Info({"--open", "three.gif", "--select", "2"});

    EXPECT_EQ(KeysOf(info),
              (Arguments{"file_name", "global_width", "global_height", "use_loop", "loop_count",
                         "use_pause_global", "pause_length_global", "modified", "selected",
                         "frame_count", "global_palette", "frames"}));
    EXPECT_EQ(info["file_name"], "three.gif");
    EXPECT_EQ(info["global_width"], 2);
    EXPECT_EQ(info["global_height"], 1);
    EXPECT_EQ(info["use_loop"], true);
    EXPECT_EQ(info["loop_count"], 0);
    EXPECT_EQ(info["use_pause_global"], true);
    EXPECT_EQ(info["pause_length_global"], 10.0);
    EXPECT_EQ(info["modified"], false);
    EXPECT_EQ(info["selected"], 2);
    EXPECT_EQ(info["frame_count"], 3);
    EXPECT_EQ(info["frames"].size(), 3U);
}

TEST(KirtoCli, DescribesPalettesAsJson) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const Json palette = home.Info({"--open", "three.gif"})["global_palette"];

    EXPECT_EQ(palette, (Json{{"mode", kPaletteFromFile},
                             {"size", 4},
                             {"bits", 2},
                             {"unique_colors", 0},
                             {"background_index", 0},
                             {"transparent_index", 0},
                             {"use_transparent", false},
                             {"dither", false},
                             {"colors", {"000000", "ffffff", "ff0000", "0000ff"}}}));
}

TEST(KirtoCli, DescribesFramesAsJson) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    const std::vector<uint8> red_and_blue = {0, 0, 255, 255, 255, 0, 0, 255};

    Json frame = home.Info({"--open", "three.gif"})["frames"][2];
    const Json palette = frame["palette"];
    frame.erase("palette");

    EXPECT_EQ(frame, (Json{{"index", 2},
                           {"name", "frame0002"},
                           {"width", 2},
                           {"height", 1},
                           {"x_offset", 0},
                           {"y_offset", 0},
                           {"pause_length", 20.0},
                           {"use_pause", true},
                           {"local_palette", false},
                           {"md5", Md5Hex(red_and_blue.data(), red_and_blue.size())}}));
    EXPECT_EQ(palette["mode"], kPaletteOptimal);
    EXPECT_EQ(palette["unique_colors"], 2);
    EXPECT_EQ(palette["colors"].size(), palette["size"]);
}

TEST(KirtoCli, DescribesAnEmptyAnimationByTheDefaults) {
    const CliHome home;

    const Json info = home.Info({});

    EXPECT_EQ(info["file_name"], "untitled");
    EXPECT_EQ(info["global_width"], 320);
    EXPECT_EQ(info["global_height"], 240);
    EXPECT_EQ(info["pause_length_global"], 100.0);
    EXPECT_EQ(info["selected"], -1);
    EXPECT_EQ(info["frame_count"], 0);
    EXPECT_EQ(info["frames"], Json::array());
    EXPECT_EQ(info["global_palette"]["size"], 216);
    EXPECT_EQ(info["global_palette"]["colors"][1], "ffffcc");
}

TEST(KirtoCli, ReplacesBytesThatJsonCanNotHold) {
    const CliHome home;
    home.Write("caf\xE9.gif", ThreeFrameGif());

    EXPECT_EQ(home.Info({"--open", "caf\xE9.gif"})["file_name"], "caf\xEF\xBF\xBD.gif");
}

TEST(KirtoCli, DescribesAnimationsForPeople) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const RunResult result = home.Run({"--open", "three.gif", "--select", "1", "--frame-palette",
                                       "system", "--transparent", "3", "--dither", "on", "--info"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out,
              "three.gif: 2 x 1, 3 frame(s), modified\n"
              "loop: 0 (forever)\n"
              "pause: 10.00 hundredths\n"
              "palette: from a file, 4 colors, background 0, transparent 3, dithered\n"
              "     0  frame0000                2 x 1 at 0,0  pause off  global palette\n"
              "*    1  frame0001                2 x 1 at 0,0  pause off  system\n"
              "     2  frame0002                2 x 1 at 0,0  pause 20.00 hundredths  global "
              "palette\n");
}

TEST(KirtoCli, NamesTheKindOfPaletteAndTheUnitOfPauses) {
    const CliHome home;
    const std::pair<const char*, const char*> kinds[] = {{"web-safe", "web safe, 216"},
                                                         {"system", "system, 256"},
                                                         {"greyscale", "greyscale, 256"},
                                                         {"first-frame", "first frame, 216"},
                                                         {"current-frame", "current frame, 216"}};
    for (const auto& [name, text] : kinds) {
        const RunResult result = home.Run({"--set", "global_pauseinseconds=true", "--loop", "3",
                                           "--pause", "1.5", "--palette", name, "--info"});
        EXPECT_EQ(result.out,
                  "untitled: 320 x 240, 0 frame(s), modified\nloop: 3\npause: 1.50 s\n"
                  "palette: " +
                      std::string(text) + " colors, background 0, transparent off\n");
    }
    EXPECT_EQ(home.Run({"--loop", "off", "--pause", "off", "--info"}).out,
              "untitled: 320 x 240, 0 frame(s), modified\nloop: off\npause: off\n"
              "palette: web safe, 216 colors, background 0, transparent off\n");
    home.Write("three.gif", ThreeFrameGif());
    EXPECT_NE(home.Run({"--open", "three.gif", "--frame-palette", "optimal", "--info"})
                  .out.find("*    0  frame0000                2 x 1 at 0,0  pause off  optimal\n"),
              std::string::npos);
}

TEST(KirtoCli, OpensAnimationsByNameAndByTheirFirstBytes) {
    const CliHome home;
    for (const char* name : {"three.gif", "three.GIF.bak", "three", "three.txt"}) {
        home.Write(name, ThreeFrameGif());
        EXPECT_EQ(home.Info({"--open", name})["frame_count"], 3) << name;
    }
    for (const char* name : {"two.fli", "two.FLC", "two", "two.png"}) {
        home.Write(name, TwoFrameFli());
        const Json info = home.Info({"--open", name});
        EXPECT_GE(info["frame_count"], 1) << name;
        EXPECT_EQ(info["use_loop"], true);
        EXPECT_EQ(info["loop_count"], 0);
    }
}

TEST(KirtoCli, BelievesANameBeforeTheFirstBytes) {
    const CliHome home;
    home.Write("two.gif", TwoFrameFli());
    home.Write("three.flc", ThreeFrameGif());

    ExpectFailed(home, {"--quiet", "--open", "two.gif"}, "two.gif: " + std::string(kDamaged));
    ExpectFailed(home, {"--open", "three.flc"}, "three.flc: " + std::string(kDamaged));
}

TEST(KirtoCli, OpensOneAnimationInPlaceOfTheOther) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    home.Write("two.fli", TwoFrameFli());

    const Json info = home.Info({"--open", "two.fli", "--open", "three.gif"});

    EXPECT_EQ(info["frame_count"], 3);
    EXPECT_EQ(info["file_name"], "three.gif");
    EXPECT_EQ(info["modified"], false);
}

TEST(KirtoCli, FailsToOpenWhatIsNoAnimation) {
    const CliHome home;
    home.Write("notes.txt", {'h', 'e', 'l', 'l', 'o'});
    home.Write("empty", {});

    ExpectFailed(home, {"--open", "notes.txt"}, "notes.txt: " + std::string(kUnsupported));
    ExpectFailed(home, {"--open", "empty"}, "empty: " + std::string(kUnsupported));
    ExpectFailed(home, {"--open", "missing.gif"}, "missing.gif: No such file or attribute.");
    ExpectFailed(home, {"--open", "."}, ".: Operation not allowed.");
    ExpectFailed(home, {"--insert-animation", "notes.txt@0"},
                 "notes.txt: " + std::string(kUnsupported));
    ExpectFailed(home, {"--insert-animation", "missing.gif@0"},
                 "missing.gif: No such file or attribute.");
}

TEST(KirtoCli, DiscardsADamagedAnimationAndFails) {
    const CliHome home;
    home.Write("damaged.gif", DamagedGif(2));

    ExpectFailed(home, {"--open", "damaged.gif", "--save", "new.gif", "--info"},
                 "damaged.gif: " + std::string(kDamaged));

    EXPECT_FALSE(std::filesystem::exists(home.File("new.gif")));
}

TEST(KirtoCli, ReadsAsBrowsersDoFromWhereItIsToldTo) {
    const CliHome home;
    home.Write("damaged.gif", DamagedGif(2));

    for (const Arguments& told : {Arguments{"--faithful"}, {"--set", "animation_faithful=true"}}) {
        Arguments arguments = told;
        arguments.insert(arguments.end(), {"--open", "damaged.gif"});
        EXPECT_EQ(home.Info(arguments)["frame_count"], 2);
    }
    ExpectFailed(home, {"--open", "damaged.gif", "--faithful"},
                 "damaged.gif: " + std::string(kDamaged));
}

TEST(KirtoCli, SalvagesWhatIsBeforeTheDamageWhereItIsToldTo) {
    const CliHome home;
    home.Write("damaged.gif", DamagedGif(2));

    const RunResult result = home.Run({"--open", "damaged.gif", "--info-json", "--salvage"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "kirto-cli: damaged.gif: " + std::string(kDamaged) + "\n");
    const Json info = Json::parse(result.out);
    EXPECT_EQ(NamesIn(info), (Arguments{"frame0000", "frame0001"}));
    EXPECT_EQ(info["file_name"], "untitled");
    EXPECT_EQ(info["modified"], false);
    // The loader's own values: pauses are shared out only after a sound load.
    EXPECT_EQ(info["use_pause_global"], false);
    EXPECT_EQ(info["frames"][0]["pause_length"], 10.0);
}

TEST(KirtoCli, InsertsAnimationsSoThatTheirFirstFrameIsFrameN) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const Json info =
        home.Info({"--open", "three.gif", "--select", "2", "--insert-animation", "three.gif@1"});

    EXPECT_EQ(NamesIn(info), (Arguments{"frame0000", "frame0001", "frame0002", "frame0003",
                                        "frame0001", "frame0002"}));
    EXPECT_EQ(info["selected"], 2);
    EXPECT_EQ(info["modified"], true);
    EXPECT_EQ(info["file_name"], "three.gif");
}

TEST(KirtoCli, AppendsAnAnimationInsertedPastTheEndAndPutsOthersFirst) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    home.Write("a@b.fli", TwoFrameFli());

    EXPECT_EQ(NamesIn(home.Info({"--open", "three.gif", "--insert-animation", "three.gif@99"}))[3],
              "frame0003");
    EXPECT_EQ(NamesIn(home.Info({"--open", "three.gif", "--insert-animation", "three.gif@-5"}))[3],
              "frame0000");
    EXPECT_GE(home.Info({"--insert-animation", "a@b.fli@0"})["frame_count"], 1);
}

TEST(KirtoCli, RefusesToInsertAnAnimationWithoutAPlace) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    for (const std::string value : {"three.gif", "three.gif@", "three.gif@x", "@"}) {
        const RunResult result = home.Run({"--insert-animation", value});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.err,
                  "kirto-cli: --insert-animation: \"" + value + "\": expected FILE@N.\n");
    }
}

TEST(KirtoCli, DropsEverythingWhenADamagedAnimationIsInserted) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    home.Write("damaged.gif", DamagedGif(1));

    ExpectFailed(home, {"--open", "three.gif", "--insert-animation", "damaged.gif@1", "--info"},
                 "damaged.gif: " + std::string(kDamaged));
    const RunResult salvaged = home.Run(
        {"--salvage", "--open", "three.gif", "--insert-animation", "damaged.gif@1", "--info-json"});
    EXPECT_EQ(salvaged.status, 0);
    EXPECT_EQ(Json::parse(salvaged.out)["frame_count"], 4);
}

TEST(KirtoCli, SavesAnimations) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const Json saved =
        home.Info({"--open", "three.gif", "--reverse", "--width", "3", "--save", "new.gif"});
    const Json opened = home.Info({"--quiet", "--open", "new.gif"});

    EXPECT_EQ(saved["modified"], false);
    EXPECT_EQ(saved["file_name"], "new.gif");
    EXPECT_EQ(opened["global_width"], 3);
    EXPECT_EQ(opened["frame_count"], 3);
    EXPECT_EQ(opened["frames"][0]["pause_length"], 20.0);
}

TEST(KirtoCli, SavesToAbsolutePathsAndOverTheFileItCameFrom) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    EXPECT_EQ(home.Run({"--open", "three.gif", "--remove", "--save", "three.gif"}).status, 0);
    EXPECT_EQ(home.Run({"--open", "three.gif", "--save", home.File("copy.gif")}).status, 0);

    EXPECT_EQ(home.Info({"--open", "copy.gif"})["frame_count"], 2);
}

TEST(KirtoCli, DoesNotSaveAFrameLargerThanTheAnimation) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    home.Write("old.gif", {'o', 'l', 'd'});

    ExpectFailed(home, {"--open", "three.gif", "--width", "1", "--save", "old.gif"},
                 "old.gif: The animation can't be saved because one of the frames has a larger "
                 "size than the animation.");

    EXPECT_EQ(ReadBytes(home.File("old.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
}

TEST(KirtoCli, DoesNotSaveWhereNoFileCanBeMade) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    for (const std::string place : {"missing/new.gif", ".", "/dev/null", "three.gif/new.gif"}) {
        ExpectFailed(home, {"--open", "three.gif", "--save", place},
                     place +
                         ": The animation can't be saved because the file could not be created "
                         "at this location.");
    }
}

TEST(KirtoCli, SavesUnderNoOtherNameThanItWasGiven) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    for (const std::string& place : {std::string(252, 'n') + ".gif", std::string("name.gif/")}) {
        ExpectFailed(home, {"--open", "three.gif", "--save", place},
                     place +
                         ": The animation can't be saved because the file could not be created "
                         "at this location.");
    }
    EXPECT_FALSE(std::filesystem::exists(home.File("name.gif")));
    EXPECT_FALSE(std::filesystem::exists(home.File(std::string(252, 'n') + ".gi")));
    EXPECT_EQ(home.Run({"--open", "three.gif", "--save", std::string(251, 'n') + ".gif"}).status,
              0);
}

TEST(KirtoCli, RefusesToSaveSizesThatAGifHasNoRoomFor) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    ExpectFailed(home, {"--open", "three.gif", "--width", "65536", "--save", "new.gif"},
                 "new.gif: The animation can't be saved because Width is not between 0 and 65535.");

    EXPECT_FALSE(std::filesystem::exists(home.File("new.gif")));
}

TEST(KirtoCli, TellsOfNumbersThatAGifCutsShort) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const RunResult result =
        home.Run({"--open", "three.gif", "--loop", "65537", "--save", "new.gif"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "kirto-cli: new.gif: Saved, but loop count 65537 was saved as 1.\n");
    EXPECT_EQ(home.Info({"--open", "new.gif"})["loop_count"], 1);
}

TEST(KirtoCli, OverwritesAFileThatHasChangedWithoutAsking) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    home.Write("old.gif", {'o', 'l', 'd'});

    const RunResult result =
        home.Run({"--open", "three.gif", "--save", "old.gif", "--save", "old.gif"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
}

TEST(KirtoCli, FailsOnATinyFileThatAsksForAHugePicture) {
    const CliHome home;
    home.Write("huge.gif", {'G',  'I',  'F',  '8',  '9', 'a', 0xFF, 0xFF, 0xFF, 0xFF, 0x80, 0,
                            0,    0,    0,    0,    255, 255, 255,  0x2C, 0,    0,    0,    0,
                            0xFF, 0xFF, 0xFF, 0xFF, 0,   2,   2,    0x44, 1,    0,    0x3B});

    ExpectFailed(
        home, {"--open", "huge.gif"},
        std::string("huge.gif: ") + kOutOfMemoryHint + "\nkirto-cli: huge.gif: " + kDamaged);
}

TEST(KirtoCli, StopsAtItsMemoryLimit) {
    const CliHome home;
    GifBuilder gif(500, 500, {0x000000, 0xFFFFFF});
    for (size_t i = 0; i < 5; ++i) {
        GifBuilder::Image image;
        image.width = image.height = 500;
        for (size_t pixel = 0; pixel < 500 * 500; ++pixel)
            image.indices.push_back(static_cast<uint8>((pixel + i) % 2));
        image.min_code_size = 2;
        gif.Add(image);
    }
    home.Write("large.gif", gif.Trailer());

    // A frame of 500 x 500 pixels of two colors takes 250,000 bytes.
    ExpectFailed(
        home, {"--memory-limit", "1", "--open", "large.gif"},
        std::string("large.gif: ") + kOutOfMemoryHint + "\nkirto-cli: large.gif: " + kDamaged);
    const RunResult salvaged =
        home.Run({"--open", "large.gif", "--info-json", "--memory-limit", "1", "--salvage"});
    EXPECT_EQ(salvaged.status, 0);
    EXPECT_EQ(Json::parse(salvaged.out)["frame_count"], 4);
    EXPECT_EQ(home.Info({"--memory-limit", "2", "--open", "large.gif"})["frame_count"], 5);
}

TEST(KirtoCli, CountsFramesOfOnePixelForMoreThanThatPixel) {
    const CliHome home;
    GifBuilder gif(1, 1, {0x000000, 0xFFFFFF});
    for (int32 i = 0; i < 600; ++i) {
        GifBuilder::Image image;
        image.indices = {1};
        image.min_code_size = 2;
        gif.Add(image);
    }
    home.Write("many.gif", gif.Trailer());

    EXPECT_EQ(home.Run({"--memory-limit", "1", "--open", "many.gif"}).status, 1);
    EXPECT_EQ(home.Info({"--memory-limit", "2", "--open", "many.gif"})["frame_count"], 600);
}

TEST(KirtoCli, TakesThePartOfAVideoThatIsAskedFor) {
    const FakeVideoPrograms programs;
    const CliHome home;
    home.Write("clip.mp4", {1});

    const Json opened = home.Info({"--open", "clip.mp4", "--video", FakeVideoPrograms::kPart});
    EXPECT_EQ(opened["global_width"], 2);
    EXPECT_EQ(opened["frame_count"], 4);

    const Json inserted = home.Info({"--insert-animation", "clip.mp4@0", "--video", ":x1"});
    EXPECT_EQ(inserted["frames"][0]["width"], 2);
    EXPECT_EQ(home.Info({"--open", "clip.mp4"})["frame_count"], 20);
}

TEST(KirtoCli, RefusesPartsOfVideosThatAreNone) {
    const FakeVideoPrograms programs;
    const CliHome home;
    home.Write("clip.mp4", {1});
    home.Write("three.gif", ThreeFrameGif());
    const auto expect_refused = [&](const Arguments& arguments, const std::string& line) {
        const RunResult result = home.Run(arguments);
        EXPECT_EQ(result.status, 2) << line;
        EXPECT_EQ(result.err, "kirto-cli: --video: " + line + "\n");
    };

    expect_refused({"--open", "clip.mp4", "--video", "2-1"},
                   "\"2-1\": expected [START][-END][@RATE][:WxH][,crop=WxH+X+Y].");
    expect_refused({"--open", "three.gif", "--video", "0-1"}, "\"three.gif\" is no video.");
    expect_refused({"--video", "0-1"}, "expected behind --open or --insert-animation.");
    ExpectFailed(home, {"--quiet", "--open", "clip.mp4", "--video", "2-3"},
                 "clip.mp4: The video can't be opened because the chosen part is not in it.");
}

}  // namespace kirto::test
