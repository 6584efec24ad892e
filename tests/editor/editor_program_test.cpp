#include <filesystem>
#include <gtest/gtest.h>

#include "base/byte_order.h"
#include "cli/cli_run.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

// The editor as a program, without a screen.
class EditorProgram : public ::testing::Test {
  protected:
    EditorProgram() { home.SetEnvironment("QT_QPA_PLATFORM", "offscreen"); }

    RunResult Run(const Arguments& arguments) const {
        return home.RunProgram(KIRTO_EDITOR, arguments);
    }
    // Width and height of a PNG file; 0 x 0 for anything else.
    std::pair<uint32, uint32> SizeOfPng(const std::string& name) const {
        const std::vector<uint8> bytes = ReadBytes(home.File(name));
        if (bytes.size() < 24 || bytes[0] != 0x89 || bytes[1] != 'P') return {0, 0};
        const auto big32 = [&](size_t at) {
            return static_cast<uint32>(bytes[at] << 24 | bytes[at + 1] << 16 | bytes[at + 2] << 8 |
                                       bytes[at + 3]);
        };
        return {big32(16), big32(20)};
    }

    CliHome home;
};

TEST_F(EditorProgram, WritesAPictureOfTheWindowThatShowsTheFile) {
    home.Write("three.gif", ThreeFrameGif());

    const RunResult empty = Run({"--screenshot", "empty.png"});
    const RunResult result = Run({"--screenshot", "out.png", "three.gif"});

    EXPECT_EQ(empty.status, 0) << empty.err;
    EXPECT_EQ(result.status, 0) << result.err;
    const auto [width, height] = SizeOfPng("out.png");
    EXPECT_GE(width, 550u);
    EXPECT_GE(height, 400u);
    EXPECT_NE(ReadBytes(home.File("out.png")), ReadBytes(home.File("empty.png")));
}

TEST_F(EditorProgram, WritesAPictureOfAnInsertedImageWithoutAskingToSaveIt) {
    home.Write("image.ppm", {'P', '6', ' ', '1', ' ', '1', ' ', '2', '5', '5', '\n', 1, 2, 3});

    const RunResult result = Run({"--screenshot", "out.png", "image.ppm"});

    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_GE(SizeOfPng("out.png").first, 550u);
}

TEST_F(EditorProgram, SaysThatAPictureCanNotBeWritten) {
    const RunResult result = Run({"--screenshot", "nowhere/out.png"});

    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("kirto: nowhere/out.png can't be written.\n"), std::string::npos)
        << result.err;
}

TEST_F(EditorProgram, PrintsAnAlertInsteadOfWaitingForAnAnswerToItAndFails) {
    home.Write("damaged.gif", DamagedGif(1));

    const RunResult result = Run({"--screenshot", "out.png", "damaged.gif"});

    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("kirto: The animation can't be opened because it was corrupted or "
                              "unreadable."),
              std::string::npos)
        << result.err;
}

TEST_F(EditorProgram, FailsWithoutItsResources) {
    const fs::path alone = home.File("kirto");
    fs::copy_file(KIRTO_EDITOR, alone);

    const RunResult result = home.RunProgram(alone, {"--screenshot", "out.png"});

    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("kirto: Resource file open error!\n"), std::string::npos)
        << result.err;
}

TEST_F(EditorProgram, PrintsHelpAndVersionWithoutAScreen) {
    home.SetEnvironment("QT_QPA_PLATFORM", "none-of-these");

    EXPECT_EQ(Run({"--help"}).status, 0);
    const RunResult version = Run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "kirto " KIRTO_VERSION_TEXT "\n");
}

TEST_F(EditorProgram, EndsWithStatusTwoOnWrongUsage) {
    const RunResult result = Run({"--unknown"});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.err.find("--unknown"), std::string::npos) << result.err;
}

TEST_F(EditorProgram, UnderstandsTheToolkitsOptions) {
    EXPECT_EQ(Run({"-style", "fusion", "--screenshot", "out.png"}).status, 0);
}

TEST_F(EditorProgram, CreatesTheSettingsFile) {
    Run({"--screenshot", "out.png"});

    EXPECT_TRUE(fs::exists(home.ConfigFile()));
}

}  // namespace

}  // namespace kirto::test
