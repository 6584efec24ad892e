// Ctrl-C in the middle of long work.
#include <filesystem>

#include "cli_images/image_home.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

// A picture whose many colours make every frame costly.
std::vector<uint8> CostlyPicture() {
    Colors colors;
    for (uint32 i = 0; i < 200 * 150; ++i)
        colors.push_back(i * 2654435761U >> 8);
    return Ppm(200, 150, colors);
}

struct LongWork : ImageHome {
    LongWork() {
        fs::create_directory(File("in"));
        fs::create_directory(File("out"));
        Write("in/picture.ppm", CostlyPicture());
    }
    // Runs the program, sends it SIGINT once the condition of the shell holds for $pid, and returns
    // its end.
    RunResult Interrupt(const std::string& arguments, const std::string& condition) const {
        return Shell(KIRTO_CLI " " + arguments + " & pid=$!; while kill -0 $pid && ! (" +
                     condition + ") 2>/dev/null; do sleep 0.01; done; kill -INT $pid; wait $pid");
    }
};

// True once the program has a file of the folder open.
std::string HasOpen(const std::string& folder) {
    return "ls -l /proc/$pid/fd | grep -q \"$PWD/" + folder + "/\"";
}

}  // namespace

TEST(KirtoCliImages, LeavesWholeFilesWhenASequenceIsInterrupted) {
    const LongWork home;

    const RunResult result =
        home.Interrupt("--insert in/picture.ppm --fade to-color:40 --save-sequence out/f.png",
                       "test -e out/f0000.png");

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "kirto-cli: Stopped.\n");
    const std::vector<std::string> files = home.Files("out");
    EXPECT_LT(files.size(), 41U);
    for (const std::string& name : files) {
        EXPECT_EQ(name.substr(0, 2) + name.substr(5), "f0.png") << name;
        EXPECT_EQ(home.Info({"--insert", "out/" + name})["global_width"], 200);
    }
}

TEST(KirtoCliImages, KeepsTheOldFileWhenASaveIsInterrupted) {
    const LongWork home;
    home.Write("out/old.gif", {1, 2, 3});

    const RunResult result = home.Interrupt(
        "--insert in/picture.ppm --fade to-color:40 --save out/old.gif", HasOpen("out"));

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "kirto-cli: Stopped.\n");
    EXPECT_EQ(ReadBytes(home.File("out/old.gif")), (std::vector<uint8>{1, 2, 3}));
    EXPECT_EQ(home.Files("out"), Arguments{"old.gif"});
}

TEST(KirtoCliImages, SavesNothingWhenALoadIsInterrupted) {
    const LongWork home;
    home.Succeed({"--insert", "in/picture.ppm", "--fade", "to-color:40", "--save", "in/long.gif"});
    const std::vector<uint8> before = ReadBytes(home.File("in/long.gif"));

    const RunResult result = home.Interrupt(
        "--quiet --open in/long.gif --insert-animation in/long.gif@0 --insert-animation "
        "in/long.gif@0 --save out/new.gif",
        HasOpen("in"));

    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("Stopped.\n"), std::string::npos);
    EXPECT_EQ(ReadBytes(home.File("in/long.gif")), before);
    EXPECT_TRUE(home.Files("out").empty());
}

}  // namespace kirto::test
