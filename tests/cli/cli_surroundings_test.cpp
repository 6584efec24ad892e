#include <filesystem>
#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

std::vector<uint8> BytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

std::string FileText(const std::string& path) {
    const std::vector<uint8> bytes = ReadBytes(path);
    return {bytes.begin(), bytes.end()};
}

std::vector<uint8> GifWithComment() {
    return GifBuilder(2, 1, {0, 0xFFFFFF}).Comment("hello").Trailer();
}

// The arguments are refused with exactly this line.
void ExpectUsageRefused(const Arguments& arguments, const std::string& line) {
    const RunResult result = CliHome().Run(arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "kirto-cli: " + line + "\n");
}

}  // namespace

TEST(KirtoCli, SetsSettingsForOneRun) {
    const CliHome home;

    const Json info = home.Info({"--set", "global_width=11", "--set", "global_useloop=false",
                                 "--set", "global_pauselength=2.5", "--set", "palette_mapping=1"});

    EXPECT_EQ(info["global_width"], 11);
    EXPECT_EQ(info["use_loop"], false);
    EXPECT_EQ(info["pause_length_global"], 2.5);
    EXPECT_EQ(info["global_palette"]["mode"], kPaletteSystem);
    EXPECT_EQ(home.Info({})["global_width"], 320);
}

TEST(KirtoCli, SetsSettingsFromTheirPlaceOn) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const Json info = home.Info(
        {"--width", "5", "--set", "global_height=7", "--set", "global_pauseinseconds=true"});
    const Json opened =
        home.Info({"--width", "5", "--set", "global_pauseinseconds=true", "--open", "three.gif"});

    EXPECT_EQ(info["global_height"], 240);
    EXPECT_EQ(opened["pause_length_global"], 0.1);
    EXPECT_EQ(opened["frames"][2]["pause_length"], 0.2);
}

TEST(KirtoCli, TakesSettingsWhoseValueHoldsAnEqualsSign) {
    const CliHome home;
    home.Write("a=b.gif", GifBuilder(1, 1, {0x112233, 0x445566}).Trailer());

    const Json info =
        home.Info({"--set", "palette_mapping=7", "--set", "palette_filename=a=b.gif"});

    EXPECT_EQ(info["global_palette"]["colors"], (Json{"112233", "445566"}));
}

TEST(KirtoCli, RefusesSettingsThatAreNone) {
    ExpectUsageRefused({"--set", "global_width"}, "--set: \"global_width\": expected KEY=VALUE.");
    ExpectUsageRefused({"--set", "=5"}, "--set: There is no setting named \"\".");
    ExpectUsageRefused({"--set", "speed=5"}, "--set: There is no setting named \"speed\".");
    ExpectUsageRefused({"--set", "global_width=wide"},
                       "--set: global_width: \"wide\" is not a whole number.");
    ExpectUsageRefused({"--set", "palette_dither=on"},
                       "--set: palette_dither: \"on\" is neither true nor false.");
}

TEST(KirtoCli, ReadsTheUsersSettings) {
    const CliHome home;
    home.Info({});
    std::string settings = FileText(home.ConfigFile());
    const size_t width = settings.find("320");
    ASSERT_NE(width, std::string::npos) << settings;
    settings.replace(width, 3, "111");
    WriteBytes(home.ConfigFile(), BytesOf(settings));

    EXPECT_EQ(home.Info({})["global_width"], 111);
    EXPECT_EQ(FileText(home.ConfigFile()), settings);
}

TEST(KirtoCli, PutsADamagedSettingsFileAsideAndGoesOn) {
    const CliHome home;
    const std::string damaged = "this = is [ no settings file";
    fs::create_directories(fs::path(home.ConfigFile()).parent_path());
    WriteBytes(home.ConfigFile(), BytesOf(damaged));

    const RunResult result = home.Run({"--quiet", "--info"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "kirto-cli: The settings file was damaged. It has been put aside as \"" +
                              home.ConfigFile() +
                              ".damaged\", and default values will be used instead.\n");
    EXPECT_EQ(FileText(home.ConfigFile() + ".damaged"), damaged);
    EXPECT_EQ(home.Run({"--info"}).err, "");
}

TEST(KirtoCli, GoesOnWithDefaultsWhereNoSettingsFileCanBe) {
    const CliHome home;
    WriteBytes(home.HomeFile("config"), {'x'});

    const RunResult result = home.Run({"--quiet", "--info-json"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err,
              "kirto-cli: Unable to open or create a settings file. Default values will be used "
              "instead, but may not be saved.\n");
    EXPECT_EQ(Json::parse(result.out)["global_width"], 320);
}

TEST(KirtoCli, GoesOnWhenThePaletteOfTheSettingsCanNotBeLoaded) {
    const CliHome home;

    const RunResult result = home.Run(
        {"--set", "palette_mapping=7", "--set", "palette_filename=missing.gif", "--info-json"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err,
              "kirto-cli: The palette can't be loaded because the file was corrupted or "
              "unreadable.\n");
    EXPECT_EQ(Json::parse(result.out)["global_palette"]["mode"], kPaletteWebSafe);
}

TEST(KirtoCli, OpensAnAnimationThoughThePaletteOfTheSettingsCanNotBeLoaded) {
    const CliHome home;
    WriteBytes(home.File("a.gif"), GifWithComment());

    const RunResult result =
        home.Run({"--quiet", "--set", "palette_mapping=7", "--set", "palette_filename=missing.gif",
                  "--open", home.File("a.gif"), "--info-json"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Json::parse(result.out)["file_name"], "a.gif");
}

TEST(KirtoCli, SendsDebugLinesToStandardError) {
    const CliHome home;
    home.Write("comment.gif", GifWithComment());

    const RunResult result = home.Run({"--open", "comment.gif", "--info-json"});

    EXPECT_EQ(result.err, "GifLoad::ReadGifCommentBlock() - Found:\nhello\n");
    EXPECT_TRUE(Json::accept(result.out));
}

TEST(KirtoCli, KeepsDebugLinesBackWhenItIsToBeQuiet) {
    const CliHome home;
    home.Write("comment.gif", GifWithComment());

    EXPECT_EQ(home.Run({"--open", "comment.gif", "--info", "--quiet"}).err, "");
}

TEST(KirtoCli, TellsOfFailuresEvenWhenItIsToBeQuiet) {
    const CliHome home;

    EXPECT_EQ(home.Run({"--quiet", "--select", "0"}).err,
              "kirto-cli: There is no frame 0; the animation has 0 frame(s).\n");
}

TEST(KirtoCli, ShowsItsProgressOnATerminal) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const RunResult result = home.RunOnTerminal({"--open", "three.gif", "--save", "new.gif"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err,
              "\r\033[KStatus: loading frame 1..."
              "\r\033[KStatus: loading frame 2..."
              "\r\033[KStatus: loading frame 3..."
              "\r\033[K"
              "\r\033[KStatus: writing frame 1 of 3..."
              "\r\033[KStatus: writing frame 2 of 3..."
              "\r\033[KStatus: writing frame 3 of 3..."
              "\r\033[K");
}

TEST(KirtoCli, ClearsItsProgressBeforeOtherLines) {
    const CliHome home;
    std::vector<uint8> bytes = DamagedGif(1);
    const std::vector<uint8> comment = {0x21, 0xFE, 2, 'h', 'i', 0};
    bytes.insert(bytes.end() - 3, comment.begin(), comment.end());
    home.Write("damaged.gif", bytes);

    const RunResult result = home.RunOnTerminal({"--open", "damaged.gif"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "\r\033[KStatus: loading frame 1..."
              "\r\033[KGifLoad::ReadGifCommentBlock() - Found:\r\n"
              "    hi\r\n"
              "\r\033[KStatus: loading frame 2..."
              "\r\033[Kkirto-cli: damaged.gif: The animation can't be opened because it was "
              "corrupted or unreadable.\r\n");
}

TEST(KirtoCli, ShowsNoControlCharactersOnATerminal) {
    CliHome home;
    std::vector<uint8> bytes = ThreeFrameGif();
    const std::vector<uint8> comment = {0x21, 0xFE, 4, '\x1b', ']', '0', ';', 0};
    bytes.insert(bytes.end() - 1, comment.begin(), comment.end());
    home.Write("a\x1b\nb.gif", bytes);

    const RunResult errors =
        home.RunOnTerminal({"--open", "a\x1b\nb.gif", "--open", "missing\x1b\n.gif"});

    EXPECT_EQ(errors.status, 1);
    EXPECT_NE(errors.err.find("Found:\r\n    \\x1b]0;\r\n"), std::string::npos) << errors.err;
    EXPECT_NE(errors.err.find("kirto-cli: missing\\x1b\\x0a.gif: "), std::string::npos);
    const std::string info =
        home.RunOnTerminal({"--quiet", "--open", "a\x1b\nb.gif", "--info"}, STDOUT_FILENO).out;
    EXPECT_EQ(info.find("a\\x1b\\x0ab.gif: 2 x 1, "), 0U) << info;
    const std::string usage = home.RunOnTerminal({"a\x1b[2J.gif"}).err;
    EXPECT_EQ(usage.find("The following argument was not expected: a\\x1b[2J.gif\r\n"), 0U)
        << usage;
}

TEST(KirtoCli, PrintsJsonOnATerminalWithoutControlCharacters) {
    const CliHome home;
    home.Write("a\x7f\xc2\x9b\x31.gif", ThreeFrameGif());

    const std::string text =
        home.RunOnTerminal({"--quiet", "--open", "a\x7f\xc2\x9b\x31.gif", "--info-json"},
                           STDOUT_FILENO)
            .out;

    EXPECT_EQ(text.find('\x7f'), std::string::npos);
    EXPECT_EQ(text.find('\x9b'), std::string::npos);
    EXPECT_EQ(Json::parse(text)["file_name"], "a\x7f\xc2\x9b\x31.gif");
}

TEST(KirtoCli, WritesDebugLinesWordForWordIntoFiles) {
    const CliHome home;
    std::vector<uint8> bytes = ThreeFrameGif();
    const std::vector<uint8> comment = {0x21, 0xFE, 3, '\x1b', '\n', 'c', 0};
    bytes.insert(bytes.end() - 1, comment.begin(), comment.end());
    home.Write("three.gif", bytes);

    EXPECT_EQ(home.Run({"--open", "three.gif"}).err,
              "GifLoad::ReadGifCommentBlock() - Found:\n\x1b\nc\n");
}

TEST(KirtoCli, ShowsNoProgressWhenItIsToBeQuiet) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    EXPECT_EQ(home.RunOnTerminal({"--quiet", "--open", "three.gif"}).err, "");
}

TEST(KirtoCli, FailsWhenItsResultCanNotBeWritten) {
    const CliHome home;

    for (const char* option : {"--info", "--info-json"}) {
        const RunResult result = home.RunInto("/dev/full", {option});
        EXPECT_EQ(result.status, 1) << option;
        EXPECT_EQ(result.err, "kirto-cli: standard output can't be written.\n");
    }
}

TEST(KirtoSample, WritesAnAnimationOf24Frames) {
    const CliHome home;

    const RunResult sample = home.RunProgram(KIRTO_SAMPLE, {"sample.gif"});

    EXPECT_EQ(sample.status, 0);
    EXPECT_EQ(sample.out + sample.err, "");
    const Json info = home.Info({"--open", "sample.gif"});
    EXPECT_EQ(info["frame_count"], 24);
    EXPECT_EQ(info["global_width"], info["frames"][0]["width"]);
    EXPECT_NE(info["frames"][0]["md5"], info["frames"][6]["md5"]);
}

TEST(KirtoSample, WritesPicturesToInsert) {
    const CliHome home;

    const RunResult sample = home.RunProgram(KIRTO_SAMPLE, {"--pictures", "."});

    EXPECT_EQ(sample.status, 0);
    const Json info = home.Info(
        {"--insert", "dawn.tga", "--insert", "noon.tga", "--insert-tiled", "wheel-4x3.tga,3,4"});
    EXPECT_EQ(info["frame_count"], 14);
}

TEST(KirtoSample, TellsItsUsageAndItsFailures) {
    const CliHome home;

    const RunResult usage = home.RunProgram(KIRTO_SAMPLE, {});
    const RunResult failure = home.RunProgram(KIRTO_SAMPLE, {"missing/sample.gif"});

    EXPECT_EQ(usage.status, 2);
    EXPECT_EQ(usage.err.find("usage: kirto-sample FILE.gif\n"), 0U);
    EXPECT_EQ(failure.status, 1);
    EXPECT_EQ(failure.err, "kirto-sample: missing/sample.gif can't be written.\n");
}

}  // namespace kirto::test
