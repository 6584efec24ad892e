#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

// A home with "three.gif", and what becomes of that animation.
struct EditHome : CliHome {
    EditHome() { Write("three.gif", ThreeFrameGif()); }

    Json Edited(const Arguments& edits) const { return Info(Opened(edits)); }
    RunResult RunEdits(const Arguments& edits) const { return Run(Opened(edits)); }

    static Arguments Opened(const Arguments& edits) {
        Arguments arguments = {"--open", "three.gif"};
        arguments.insert(arguments.end(), edits.begin(), edits.end());
        return arguments;
    }
};

// The edits are refused with exactly this line and exit status.
void ExpectRefused(const Arguments& edits, const std::string& line, int status = 2) {
    const EditHome home;
    const RunResult result = home.RunEdits(edits);
    EXPECT_EQ(result.status, status) << edits.front() << " " << edits.back();
    EXPECT_EQ(result.err, "kirto-cli: " + line + "\n");
    EXPECT_EQ(result.out, "");
}

}  // namespace

TEST(KirtoCli, SelectsFrames) {
    const EditHome home;

    EXPECT_EQ(home.Edited({})["selected"], 0);
    EXPECT_EQ(home.Edited({"--select", "2"})["selected"], 2);
    EXPECT_EQ(home.Edited({"--select", "0"})["selected"], 0);
    EXPECT_EQ(home.Edited({"--select", "-1"})["selected"], 2);
    EXPECT_EQ(home.Edited({"--select", "2"})["modified"], false);
}

TEST(KirtoCli, SelectsOnlyFramesThatAreThere) {
    ExpectRefused({"--select", "3"}, "There is no frame 3; the animation has 3 frame(s).", 1);
    ExpectRefused({"--select", "-4"}, "There is no frame -4; the animation has 3 frame(s).", 1);
    ExpectRefused({"--select", "1-3"},
                  "There are not all frames of \"1-3\"; the animation has 3 frame(s).", 1);
    for (const std::string text : {"one", "", "1-", "0-2/0"}) {
        ExpectRefused({"--select", text}, "--select: \"" + text +
                                              "\" is not a list of frames such as 3, 0-9, 0,4,7 "
                                              "or all.");
    }
}

TEST(KirtoCli, RemovesTheCurrentFrame) {
    const EditHome home;

    const Json info = home.Edited({"--select", "1", "--remove"});

    EXPECT_EQ(NamesIn(info), (Arguments{"frame0000", "frame0002"}));
    EXPECT_EQ(info["selected"], 1);
    EXPECT_EQ(info["modified"], true);
    EXPECT_EQ(home.Edited({"--remove", "--remove", "--remove", "--remove"})["selected"], -1);
}

TEST(KirtoCli, MovesTheCurrentFrame) {
    const EditHome home;

    const Json up = home.Edited({"--select", "2", "--move-up"});
    EXPECT_EQ(NamesIn(up), (Arguments{"frame0000", "frame0002", "frame0001"}));
    EXPECT_EQ(up["selected"], 1);
    const Json down = home.Edited({"--move-down"});
    EXPECT_EQ(NamesIn(down), (Arguments{"frame0001", "frame0000", "frame0002"}));
    EXPECT_EQ(down["selected"], 1);
    EXPECT_EQ(home.Edited({"--move-up"})["modified"], false);
}

TEST(KirtoCli, ReversesTheFrames) {
    const EditHome home;

    const Json info = home.Edited({"--reverse"});

    EXPECT_EQ(NamesIn(info), (Arguments{"frame0002", "frame0001", "frame0000"}));
    EXPECT_EQ(info["selected"], 0);
    EXPECT_EQ(info["modified"], false);
}

TEST(KirtoCli, SetsTheAnimationsNumbers) {
    const EditHome home;

    const Json info = home.Edited({"--width", "640", "--height", "0", "--loop", "5", "--pause",
                                   "2.5", "--transparent", "3", "--background", "2"});

    EXPECT_EQ(info["global_width"], 640);
    EXPECT_EQ(info["global_height"], 0);
    EXPECT_EQ(info["use_loop"], true);
    EXPECT_EQ(info["loop_count"], 5);
    EXPECT_EQ(info["use_pause_global"], true);
    EXPECT_EQ(info["pause_length_global"], 2.5);
    EXPECT_EQ(info["global_palette"]["use_transparent"], true);
    EXPECT_EQ(info["global_palette"]["transparent_index"], 3);
    EXPECT_EQ(info["global_palette"]["background_index"], 2);
    EXPECT_EQ(info["modified"], true);
}

TEST(KirtoCli, MarksTheAnimationModifiedByEachChange) {
    const EditHome home;
    const Arguments changes[] = {{"--width", "2"},
                                 {"--height", "1"},
                                 {"--loop", "0"},
                                 {"--loop", "off"},
                                 {"--pause", "10"},
                                 {"--pause", "off"},
                                 {"--palette", "system"},
                                 {"--dither", "off"},
                                 {"--transparent", "0"},
                                 {"--transparent", "off"},
                                 {"--background", "0"},
                                 {"--frame-offset", "0,0"},
                                 {"--frame-pause", "0"},
                                 {"--frame-pause", "off"},
                                 {"--frame-palette", "off"},
                                 {"--frame-palette", "optimal"}};
    for (const Arguments& change : changes) {
        EXPECT_EQ(home.Edited(change)["modified"], true) << change[0] << " " << change[1];
    }
}

TEST(KirtoCli, KeepsTheNumberOfWhatIsTurnedOff) {
    const EditHome home;

    const Json info = home.Edited({"--loop", "5", "--loop", "off", "--pause", "7", "--pause", "off",
                                   "--transparent", "3", "--transparent", "off", "--frame-pause",
                                   "9", "--frame-pause", "off"});

    EXPECT_EQ(info["use_loop"], false);
    EXPECT_EQ(info["loop_count"], 5);
    EXPECT_EQ(info["use_pause_global"], false);
    EXPECT_EQ(info["pause_length_global"], 7.0);
    EXPECT_EQ(info["global_palette"]["use_transparent"], false);
    EXPECT_EQ(info["global_palette"]["transparent_index"], 3);
    EXPECT_EQ(info["frames"][0]["use_pause"], false);
    EXPECT_EQ(info["frames"][0]["pause_length"], 9.0);
}

TEST(KirtoCli, RefusesNumbersOutOfRangeAsTheWindowDoes) {
    ExpectRefused({"--width", "-1"}, "Width can't be less than 0.");
    ExpectRefused({"--height", "-1"}, "Height can't be less than 0.");
    ExpectRefused({"--loop", "-1"}, "Loop count can't be less than 0.");
    ExpectRefused({"--pause", "-0.01"}, "Pause length can't be less than 0.00.");
    ExpectRefused({"--background", "-1"}, "Background index can't be less than 0.");
    ExpectRefused({"--background", "4"}, "Background index can't be greater than 3.");
    ExpectRefused({"--transparent", "-1"}, "Transparent index can't be less than 0.");
    ExpectRefused({"--transparent", "4"}, "Transparent index can't be greater than 3.");
    ExpectRefused({"--palette", "system", "--transparent", "256"},
                  "Transparent index can't be greater than 255.");
    ExpectRefused({"--frame-offset", "-1,0"}, "XOffset can't be less than 0.");
    ExpectRefused({"--frame-offset", "0,-1"}, "YOffset can't be less than 0.");
    ExpectRefused({"--frame-pause", "-3"}, "Pause length can't be less than 0.00.");
}

TEST(KirtoCli, RefusesTextsThatAreNoNumbers) {
    ExpectRefused({"--width", "10px"}, "Width: \"10px\" is not a whole number.");
    ExpectRefused({"--height", "1.5"}, "Height: \"1.5\" is not a whole number.");
    ExpectRefused({"--loop", "on"}, "Loop count: \"on\" is not a whole number.");
    ExpectRefused({"--loop", "99999999999"}, "Loop count: \"99999999999\" is not a whole number.");
    ExpectRefused({"--background", ""}, "Background index: \"\" is not a whole number.");
    ExpectRefused({"--pause", "ten"}, "Pause length: \"ten\" is not a number.");
    ExpectRefused({"--pause", "nan"}, "Pause length: \"nan\" is not a number.");
    ExpectRefused({"--frame-pause", "inf"}, "Pause length: \"inf\" is not a number.");
    ExpectRefused({"--frame-offset", "5"}, "--frame-offset: \"5\": expected X,Y.");
    ExpectRefused({"--frame-offset", "5,"}, "YOffset: \"\" is not a whole number.");
    ExpectRefused({"--frame-offset", "5,6,7"}, "YOffset: \"6,7\" is not a whole number.");
}

TEST(KirtoCli, ChoosesTheAnimationsPalette) {
    const EditHome home;
    const std::pair<const char*, int32> kinds[] = {{"web-safe", kPaletteWebSafe},
                                                   {"system", kPaletteSystem},
                                                   {"greyscale", kPaletteGreyscale},
                                                   {"first-frame", kPaletteFirstFrame},
                                                   {"current-frame", kPaletteCurrentFrame}};
    for (const auto& [name, kind] : kinds) {
        const Json palette = home.Edited({"--palette", name})["global_palette"];
        EXPECT_EQ(palette["mode"], kind) << name;
        EXPECT_EQ(palette["bits"], 8) << name;
    }
}

TEST(KirtoCli, TakesThePaletteFromAFile) {
    const EditHome home;
    home.Write("colours.gif", GifBuilder(1, 1, {0x112233, 0x445566}).Trailer());

    const Json palette = home.Edited({"--palette", "colours.gif"})["global_palette"];

    EXPECT_EQ(palette["mode"], kPaletteFromFile);
    EXPECT_EQ(palette["colors"], (Json{"112233", "445566"}));
}

TEST(KirtoCli, FailsWhenAPaletteFileCanNotBeRead) {
    const std::string reason =
        ": The palette can't be loaded because the file was corrupted or unreadable.";
    ExpectRefused({"--palette", "missing.gif"}, "missing.gif" + reason, 1);
    ExpectRefused({"--palette", "websafe"}, "websafe" + reason, 1);
    ExpectRefused({"--frame-palette", "missing.gif"}, "missing.gif" + reason, 1);
}

TEST(KirtoCli, LetsAFollowingPaletteFollowWhenItSaves) {
    const EditHome home;

    const Json info = home.Edited(
        {"--palette", "current-frame", "--select", "2", "--save", "new.gif", "--open", "new.gif"});

    const Json& colors = info["global_palette"]["colors"];
    EXPECT_EQ(colors.size(), 2U);
    EXPECT_EQ(std::count(colors.begin(), colors.end(), "ff0000"), 1);
    EXPECT_EQ(std::count(colors.begin(), colors.end(), "0000ff"), 1);
}

TEST(KirtoCli, TurnsDitheringOnAndOff) {
    const EditHome home;

    EXPECT_EQ(home.Edited({"--dither", "on"})["global_palette"]["dither"], true);
    EXPECT_EQ(home.Edited({"--dither", "on", "--dither", "off"})["global_palette"]["dither"],
              false);
    ExpectRefused({"--dither", "maybe"}, "--dither: \"maybe\": expected on or off.");
}

TEST(KirtoCli, NeverDithersAGreyscalePalette) {
    const EditHome home;

    EXPECT_EQ(home.Edited({"--dither", "on", "--palette", "greyscale"})["global_palette"]["dither"],
              false);
    EXPECT_EQ(home.Edited({"--dither", "on", "--palette", "system"})["global_palette"]["dither"],
              true);
}

TEST(KirtoCli, ChangesOnlyTheCurrentFrame) {
    const EditHome home;

    const Json info = home.Edited({"--select", "1", "--frame-offset", "12,34", "--frame-pause",
                                   "5.25", "--frame-palette", "system"});

    const Json& frame = info["frames"][1];
    EXPECT_EQ(frame["x_offset"], 12);
    EXPECT_EQ(frame["y_offset"], 34);
    EXPECT_EQ(frame["use_pause"], true);
    EXPECT_EQ(frame["pause_length"], 5.25);
    EXPECT_EQ(frame["local_palette"], true);
    EXPECT_EQ(frame["palette"]["mode"], kPaletteSystem);
    for (const size_t other : {size_t{0}, size_t{2}}) {
        EXPECT_EQ(info["frames"][other], home.Edited({})["frames"][other]);
    }
}

TEST(KirtoCli, ChoosesTheFramesPalette) {
    const EditHome home;
    home.Write("colours.gif", GifBuilder(1, 1, {0x112233, 0x445566}).Trailer());
    const std::pair<const char*, int32> kinds[] = {{"web-safe", kPaletteWebSafe},
                                                   {"system", kPaletteSystem},
                                                   {"greyscale", kPaletteGreyscale},
                                                   {"optimal", kPaletteOptimal},
                                                   {"colours.gif", kPaletteFromFile}};
    for (const auto& [name, kind] : kinds) {
        const Json frame = home.Edited({"--frame-palette", name})["frames"][0];
        EXPECT_EQ(frame["local_palette"], true) << name;
        EXPECT_EQ(frame["palette"]["mode"], kind) << name;
    }
}

TEST(KirtoCli, KeepsTheKindOfAFramePaletteThatIsTurnedOff) {
    const EditHome home;

    const Json frame =
        home.Edited({"--frame-palette", "system", "--frame-palette", "off"})["frames"][0];

    EXPECT_EQ(frame["local_palette"], false);
    EXPECT_EQ(frame["palette"]["mode"], kPaletteSystem);
}

TEST(KirtoCli, RefusesAnOffsetOfOneNumberAlsoWithoutAFrame) {
    const CliHome home;

    const RunResult result = home.Run({"--frame-offset", "3"});

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "kirto-cli: --frame-offset: \"3\": expected X,Y.\n");
}

TEST(KirtoCli, FailsToChangeAFrameWhereThereIsNone) {
    const CliHome home;
    for (const Arguments& edit :
         {Arguments{"--frame-offset", "1,1"}, Arguments{"--frame-pause", "1"},
          Arguments{"--frame-pause", "off"}, Arguments{"--frame-palette", "system"},
          Arguments{"--frame-palette", "off"}}) {
        const RunResult result = home.Run(edit);
        EXPECT_EQ(result.status, 1) << edit[0];
        EXPECT_EQ(result.err, "kirto-cli: There is no current frame.\n");
    }
}

TEST(KirtoCli, WritesAndSaysTheSameWithAnyNumberOfThreads) {
    CliHome home;
    home.Write("three.gif", ThreeFrameGif());
    const auto save = [&home](const Arguments& first) {
        Arguments arguments = first;
        arguments.insert(arguments.end(),
                         {"--open", "three.gif", "--fade", "to-next:30", "--save", "new.gif"});
        const RunResult result = home.RunOnTerminal(arguments);
        EXPECT_EQ(result.status, 0);
        return std::pair(result.err, ReadBytes(home.File("new.gif")));
    };
    const auto alone = save({"--threads", "1"});
    EXPECT_NE(alone.first.find("writing frame 33 of 33"), std::string::npos) << alone.first;

    for (const char* number : {"2", "3", "64"})
        EXPECT_EQ(save({"--threads", number}), alone) << number;
    for (const char* number : {"1", "3", "1000", "some"}) {
        home.SetEnvironment("KIRTO_THREADS", number);
        EXPECT_EQ(save({}), alone) << number;
    }
}

}  // namespace kirto::test
