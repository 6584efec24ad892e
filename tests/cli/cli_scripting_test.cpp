// What scripts and schedulers need: standard streams, work done before, failures that programs
// read.
#include <filesystem>
#include <sstream>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

struct ScriptHome : CliHome {
    ScriptHome() { Write("three.gif", ThreeFrameGif()); }

    RunResult Shell(const std::string& line) const {
        return RunProgram("/bin/bash", {"-c", "cli=" KIRTO_CLI "; set -o pipefail; " + line});
    }
    void SetAge(const std::string& name, std::chrono::minutes age) const {
        fs::last_write_time(File(name), fs::file_time_type::clock::now() - age);
    }
};

// The lines, each of which is a JSON object.
std::vector<Json> ObjectsIn(const std::string& text) {
    std::vector<Json> objects;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        objects.push_back(Json::parse(line, nullptr, false));
        EXPECT_TRUE(objects.back().is_object()) << line;
    }
    return objects;
}

}  // namespace

TEST(Scripting, StandardInputAndOutputTakeThePlaceOfFiles) {
    const ScriptHome home;
    home.Run({"--open", "three.gif", "--reverse", "--save", "file.gif"});

    const RunResult piped =
        home.Shell("cat three.gif | $cli --quiet --open - --reverse --save - > piped.gif");

    EXPECT_EQ(piped.status, 0) << piped.err;
    EXPECT_EQ(ReadBytes(home.File("piped.gif")), ReadBytes(home.File("file.gif")));
}

TEST(Scripting, NothingTemporaryIsLeft) {
    ScriptHome home;
    fs::create_directory(home.File("temporary"));
    home.SetEnvironment("TMPDIR", home.File("temporary"));

    EXPECT_EQ(home.Shell("$cli --open - --save - < three.gif > out.gif").status, 0);

    EXPECT_TRUE(fs::is_empty(home.File("temporary")));
}

TEST(Scripting, WhatComesFromStandardInputIsCalledByItsSign) {
    const ScriptHome home;

    const RunResult result = home.Shell("$cli --quiet --open - --info < three.gif");

    EXPECT_EQ(result.out.substr(0, 9), "-: 2 x 1,") << result.err;
}

TEST(Scripting, StandardInputIsReadOnceAndInsertedAsOftenAsItIsNamed) {
    const ScriptHome home;

    const RunResult result =
        home.Shell("$cli --quiet --open - --insert-animation -@3 --info-json < three.gif");

    EXPECT_EQ(Json::parse(result.out)["frame_count"], 6) << result.err;
}

TEST(Scripting, AnAnimationIsNotMixedWithTextOnStandardOutput) {
    const ScriptHome home;
    for (const char* more : {"--info", "--info-json", "--verify", "--save=-"}) {
        const RunResult result = home.Run({"--open", "three.gif", "--save", "-", more});
        EXPECT_EQ(result.status, 2) << more;
        EXPECT_EQ(result.out, "");
    }
}

TEST(Scripting, AnAnimationIsNotSentToATerminal) {
    const ScriptHome home;

    const RunResult result =
        home.RunOnTerminal({"--quiet", "--open", "three.gif", "--save", "-"}, STDOUT_FILENO);

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "kirto-cli: --save -: Standard output is a terminal.\n");
}

TEST(Scripting, AFullDeviceBehindStandardOutputIsAFailure) {
    const ScriptHome home;

    EXPECT_EQ(home.RunInto("/dev/full", {"--open", "three.gif", "--save", "-"}).status, 1);
}

TEST(Scripting, WhatIsUpToDateIsLeftAlone) {
    const ScriptHome home;
    home.Write("out.gif", {1, 2, 3});
    home.SetAge("three.gif", std::chrono::minutes(2));
    home.SetAge("out.gif", std::chrono::minutes(1));
    const Arguments work = {"--if-newer", "--open", "three.gif", "--palette",
                            "web-safe",   "--save", "out.gif"};

    EXPECT_EQ(home.Run(work).status, 0);
    EXPECT_EQ(ReadBytes(home.File("out.gif")), (std::vector<uint8>{1, 2, 3}));

    home.SetAge("three.gif", std::chrono::minutes(0));
    EXPECT_EQ(home.Run(work).status, 0);
    EXPECT_GT(ReadBytes(home.File("out.gif")).size(), 3u);
}

TEST(Scripting, EveryFileThatIsReadMustBeOlder) {
    const ScriptHome home;
    home.Write("other.gif", ThreeFrameGif());
    home.Write("out.gif", {1});
    home.SetAge("three.gif", std::chrono::minutes(3));
    home.SetAge("out.gif", std::chrono::minutes(2));
    home.SetAge("other.gif", std::chrono::minutes(1));

    EXPECT_EQ(home.Run({"--if-newer", "--open", "three.gif", "--insert-animation", "other.gif@0",
                        "--save", "out.gif"})
                  .status,
              0);

    EXPECT_GT(ReadBytes(home.File("out.gif")).size(), 1u);
}

TEST(Scripting, AMissingInputIsAFailureAlsoWhereTheOutputIsThere) {
    const ScriptHome home;
    home.Write("out.gif", {1});

    EXPECT_EQ(home.Run({"--if-newer", "--open", "gone.gif", "--save", "out.gif"}).status, 1);
}

TEST(Scripting, FailuresAreObjectsAndTheLastOneHasTheStatus) {
    const ScriptHome home;
    home.Write("bad.gif", DamagedGif(1));

    const RunResult result = home.Run({"--json-errors", "--open", "bad.gif"});

    const std::vector<Json> lines = ObjectsIn(result.err);
    ASSERT_EQ(lines.size(), 2u) << result.err;
    EXPECT_EQ(lines[0]["program"], "kirto-cli");
    EXPECT_EQ(lines[0]["file"], "bad.gif");
    EXPECT_NE(lines[0]["message"].get<std::string>().find("corrupted"), std::string::npos);
    EXPECT_EQ(lines[1]["status"], result.status);
    EXPECT_EQ(lines[1]["temporary"], false);
}

TEST(Scripting, WrongUsageIsAnObjectToo) {
    const ScriptHome home;
    for (const Arguments& arguments :
         {Arguments{"--json-errors", "--nonsense"}, Arguments{"--json-errors"},
          Arguments{"--json-errors", "--open", "three.gif", "--width", "x"}}) {
        const RunResult result = home.Run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(ObjectsIn(result.err).back()["status"], 2);
    }
}

TEST(Scripting, WantOfMemoryEndsWithTheStatusForAnotherTry) {
    const ScriptHome home;

    const Arguments large = {"--memory-limit", "1",         "--retry-status", "75",       "--quiet",
                             "--open",         "three.gif", "--resize",       "4000x4000"};

    EXPECT_EQ(home.Run(large).status, 75);
    EXPECT_EQ(home.Run({"--retry-status", "75", "--open", "gone.gif"}).status, 1);
}

}  // namespace kirto::test
