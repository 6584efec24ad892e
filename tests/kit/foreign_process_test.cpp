#include "kit/foreign_process.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace kirto::test {

namespace {

using Result = ForeignProcess::Result;

struct ShellScript {
    explicit ShellScript(const std::string& script, ForeignProcess::Limits limits = {},
                         std::function<bool()> stopped = {}, bool with_input = false)
        : process(limits, std::move(stopped)) {
        started = process.Start("/bin/sh", {"-c", script}, with_input);
    }

    std::string Read(size_t size) {
        std::vector<uint8> bytes(size);
        size_t count = 0;
        result = process.Read(bytes, &count);
        return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
    }

    ForeignProcess process;
    bool started = false;
    Result result = Result::kDone;
};

// As the kernel abbreviates it; 0 for none.
char StateOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string number, name;
    char state = 0;
    file >> number >> name >> state;
    return state;
}

}  // namespace

TEST(ForeignProcess, GivesItsOutputErrorTextAndStatus) {
    ShellScript script("printf abc; printf wrong >&2; exit 3");
    ASSERT_TRUE(script.started);
    EXPECT_EQ(script.Read(2), "ab");
    EXPECT_EQ(script.result, Result::kDone);
    EXPECT_EQ(script.Read(2), "c");
    EXPECT_EQ(script.result, Result::kEnd);
    EXPECT_EQ(script.process.Finish(), 3);
    EXPECT_EQ(script.process.ErrorText(), "wrong");
}

TEST(ForeignProcess, WritesIntoTheFileThatItIsGiven) {
    std::FILE* const file = std::tmpfile();
    ASSERT_TRUE(file);
    ForeignProcess::Limits limits;
    limits.file_size = 100;
    ForeignProcess process(limits);
    process.SendOutputTo(fileno(file));
    ASSERT_TRUE(process.Start("/bin/sh", {"-c", "cat; printf abc"}, true));
    const std::vector<uint8> input(5, 'x');
    EXPECT_EQ(process.Write(input), Result::kDone);
    EXPECT_EQ(process.Finish(), 0);
    std::string text(9, 0);
    text.resize(static_cast<size_t>(pread(fileno(file), text.data(), text.size(), 0)));
    EXPECT_EQ(text, "xxxxxabc");
    std::fclose(file);
}

TEST(ForeignProcess, PassesArgumentsAsTheyAre) {
    ForeignProcess process({});
    const std::string argument = "a'b $(x) `y` *";
    ASSERT_TRUE(process.Start("/usr/bin/printf", {"%s", argument}));
    std::vector<uint8> bytes(argument.size() + 1);
    size_t count = 0;
    EXPECT_EQ(process.Read(bytes, &count), Result::kEnd);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end() - 1), argument);
}

TEST(ForeignProcess, HasAnEmptyInputWithoutAWriter) {
    ShellScript script("cat");
    EXPECT_EQ(script.Read(1), "");
    EXPECT_EQ(script.process.Finish(), 0);
}

TEST(ForeignProcess, TakesMoreThanAPipeHoldsWhileItAnswers) {
    ShellScript script("cat", {}, {}, true);
    const std::string text(ForeignProcess::kMostPending / 2, 'x');
    const std::span<const char> bytes(text);
    EXPECT_EQ(script.process.Write({reinterpret_cast<const uint8*>(bytes.data()), bytes.size()}),
              Result::kDone);
    script.process.CloseInput();
    EXPECT_EQ(script.Read(text.size()), text);
    EXPECT_EQ(script.process.Finish(), 0);
}

TEST(ForeignProcess, FloodsWhoeverOnlyWritesToIt) {
    ShellScript script("yes", {}, {}, true);
    const std::vector<uint8> bytes(size_t{1} << 22);
    EXPECT_EQ(script.process.Write(bytes), Result::kFlooded);
}

TEST(ForeignProcess, EndsTheWriteWhenItDies) {
    ShellScript script("exit 0", {}, {}, true);
    const std::vector<uint8> bytes(size_t{1} << 22);
    EXPECT_EQ(script.process.Write(bytes), Result::kEnd);
}

TEST(ForeignProcess, IsGivenUpWhenItHangs) {
    ForeignProcess::Limits limits;
    limits.silence = std::chrono::milliseconds(1);
    ShellScript script("sleep 1000", limits);
    script.Read(1);
    EXPECT_EQ(script.result, Result::kSilent);
    EXPECT_EQ(script.process.Finish(), std::nullopt);
}

TEST(ForeignProcess, IsKilledWithItsChildrenWhenStopped) {
    bool stopped = false;
    ShellScript script("sleep 1000 & echo $!; wait", {}, [&stopped] { return stopped; });
    std::string text;
    while (!text.ends_with('\n'))
        text += script.Read(1);
    stopped = true;
    script.Read(1);
    EXPECT_EQ(script.result, Result::kStopped);
    EXPECT_EQ(script.process.Finish(), std::nullopt);
    const pid_t sleeper = std::stoi(text);
    // A zombie at most, until whoever inherits it reaps it.
    while (kill(sleeper, 0) == 0 && StateOf(sleeper) != 'Z') {
    }
}

TEST(ForeignProcess, KeepsTheEndOfAFloodOfErrors) {
    ShellScript script("head -c 1000000 /dev/zero | tr '\\0' x >&2; printf last >&2; printf y");
    EXPECT_EQ(script.Read(1), "y");
    EXPECT_EQ(script.process.Finish(), 0);
    EXPECT_LE(script.process.ErrorText().size(), ForeignProcess::kMostErrorText);
    EXPECT_TRUE(script.process.ErrorText().ends_with("last"));
}

TEST(ForeignProcess, WritesNoFiles) {
    const std::string name = testing::TempDir() + "foreign_process_file";
    ShellScript script("echo x > '" + name + "'");
    EXPECT_NE(script.process.Finish(), 0);
    unlink(name.c_str());
}

TEST(ForeignProcess, IsLookedForInWholePathsOnly) {
    EXPECT_TRUE(FindProgram("sh"));
    EXPECT_FALSE(FindProgram("no-such-program"));
}

}  // namespace kirto::test
