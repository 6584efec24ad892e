#include <filesystem>
#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

void ExpectUsageError(const RunResult& result, const std::string& reason) {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find(reason), std::string::npos) << result.err;
}

}  // namespace

TEST(KirtoCli, PrintsItsVersion) {
    const CliHome home;

    const RunResult result = home.Run({"--version"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "kirto-cli " KIRTO_VERSION_TEXT "\n");
    EXPECT_EQ(result.err, "");
}

TEST(KirtoCli, NamesEveryOptionInItsHelp) {
    const CliHome home;

    const RunResult result = home.Run({"--help"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    for (const char* text : {"--set KEY=VALUE",
                             "--faithful",
                             "--open FILE",
                             "--insert-animation FILE@N",
                             "--select FRAMES",
                             "--remove",
                             "--move-up",
                             "--move-down",
                             "--reverse",
                             "--width N",
                             "--height N",
                             "--loop N|off",
                             "--resize WxH|Wx|xH|N%[:FILTER]",
                             "--crop WxH+X+Y|transparent|changes",
                             "--canvas WxH[:ANCHOR]",
                             "--rotate 90|180|270",
                             "--flip h|v",
                             "--fit scale|pad|crop",
                             "--adjust NAME=N[,...]",
                             "--greyscale",
                             "--opacity N%",
                             "--overlay FILE[@X,Y[:N%]]",
                             "--text TEXT[,NAME=VALUE...]",
                             "--make-transparent RRGGBB[:TOLERANCE]",
                             "--save-frame FILE.EXT",
                             "--save-sheet FILE.png[,columns=N][,padding=N][,pot]",
                             "--pause X|off",
                             "--palette web-safe|system|greyscale|first-frame|current-frame|FILE",
                             "--dither on|off",
                             "--transparent N|off",
                             "--background N",
                             "--frame-offset X,Y",
                             "--frame-pause X|off",
                             "--frame-palette off|web-safe|system|greyscale|optimal|FILE",
                             "--salvage",
                             "--if-newer",
                             "--json-errors",
                             "--retry-status N",
                             "--verify",
                             "--save FILE.gif",
                             "--info",
                             "--info-json",
                             "--quiet",
                             "--memory-limit MIB",
                             "--threads N",
                             "--help",
                             "--version",
                             "Exit status: 0 success, 1 failure, 2 wrong usage."}) {
        EXPECT_NE(result.out.find(text), std::string::npos) << text;
    }
}

TEST(KirtoCli, ShowsItsHelpAsAnErrorWhenThereIsNothingToDo) {
    const CliHome home;

    ExpectUsageError(home.Run({}), "--open FILE");
    ExpectUsageError(home.Run({"--quiet", "--salvage"}), "--open FILE");
}

TEST(KirtoCli, RefusesWhatItDoesNotKnow) {
    const CliHome home;

    ExpectUsageError(home.Run({"--nonsense"}), "--nonsense");
    ExpectUsageError(home.Run({"--info", "surplus"}), "surplus");
    ExpectUsageError(home.Run({"--open", "a.gif", "b.gif"}), "b.gif");
    ExpectUsageError(home.Run({"--open"}), "--open");
    ExpectUsageError(home.Run({"--info", "--width"}), "--width");
}

TEST(KirtoCli, RefusesMemoryLimitsThatAreNone) {
    const CliHome home;

    for (const char* limit : {"0", "-1", "x", "", "1073741825", "99999999999999999999"}) {
        ExpectUsageError(home.Run({"--memory-limit", limit, "--info"}), "--memory-limit");
    }
}

TEST(KirtoCli, RefusesNumbersOfThreadsThatAreNone) {
    const CliHome home;

    for (const char* number : {"0", "-1", "65", "x", "2x", "", "99999999999999999999"}) {
        ExpectUsageError(home.Run({"--threads", number, "--info"}), "--threads");
    }
}

TEST(KirtoCli, CarriesNothingOutWhenTheUsageIsWrong) {
    const CliHome home;

    ExpectUsageError(home.Run({"--save", "new.gif", "--nonsense"}), "--nonsense");

    EXPECT_FALSE(std::filesystem::exists(home.File("new.gif")));
}

TEST(KirtoCli, AcceptsValuesThatLookLikeOptions) {
    const CliHome home;
    home.Write("--odd.gif", ThreeFrameGif());

    EXPECT_EQ(home.Info({"--open=--odd.gif"})["frame_count"], 3);
    ExpectUsageError(home.Run({"--width", "-5"}), "kirto-cli: Width can't be less than 0.\n");
    ExpectUsageError(home.Run({"--width=-5"}), "kirto-cli: Width can't be less than 0.\n");
}

TEST(KirtoCli, TakesFileNamesAsTheyAre) {
    const CliHome home;
    for (const char* name : {"[1,2].gif", "[1,2]", "{}", "a=b.gif", "a b.gif", "%%", "\"q\".gif",
                             "'q'.gif", "a,b.gif", "\xFF.gif", "./-"}) {
        home.Write(name, ThreeFrameGif());
        EXPECT_EQ(home.Info({"--open", name})["frame_count"], 3) << name;
    }
}

TEST(KirtoCli, KeepsTheOrderOfRepeatedOptions) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const Json info = home.Info({"--open", "three.gif", "--select", "0", "--move-down", "--select",
                                 "2", "--remove", "--width", "7", "--width", "8"});

    EXPECT_EQ(NamesIn(info), (Arguments{"frame0001", "frame0000"}));
    EXPECT_EQ(info["global_width"], 8);
}

TEST(KirtoCli, LeavesTheRestUndoneAfterAFailure) {
    const CliHome home;
    home.Write("three.gif", ThreeFrameGif());

    const RunResult failed =
        home.Run({"--open", "three.gif", "--select", "7", "--save", "new.gif", "--info"});
    const RunResult refused =
        home.Run({"--open", "three.gif", "--height", "-1", "--save", "new.gif", "--info"});

    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.err, "kirto-cli: There is no frame 7; the animation has 3 frame(s).\n");
    EXPECT_EQ(failed.out, "");
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err, "kirto-cli: Height can't be less than 0.\n");
    EXPECT_EQ(refused.out, "");
    EXPECT_FALSE(std::filesystem::exists(home.File("new.gif")));
}

}  // namespace kirto::test
