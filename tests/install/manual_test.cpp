// The manual pages and the shells' completions, held against --help and read by other programs.
#include <regex>
#include <set>

#include "cli/cli_run.h"

namespace kirto::test {

namespace {

struct Program {
    const char* name;
    const char* path;
};

constexpr Program kPrograms[] = {{"kirto", KIRTO_EDITOR}, {"kirto-cli", KIRTO_CLI}};

struct ManualHome : CliHome {
    RunResult Shell(const std::string& line) const { return RunProgram("/bin/bash", {"-c", line}); }
    static std::string Made(const Program& program, const char* ending) {
        return std::string(KIRTO_BUILD_FOLDER "/manual/") + program.name + ending;
    }
    static std::string TextOf(const Program& program, const char* ending) {
        const std::vector<uint8> bytes = ReadBytes(Made(program, ending));
        return {bytes.begin(), bytes.end()};
    }
};

std::set<std::string> Found(const std::string& text, const std::string& expression) {
    const std::regex wanted(expression);
    std::set<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), wanted), end; match != end; ++match)
        found.insert((*match)[1]);
    return found;
}

// Those that begin a line of --help.
std::set<std::string> OptionsOf(const ManualHome& home, const Program& program) {
    return Found(home.RunProgram(program.path, {"--help"}).out, "\n  --([a-z-]+)");
}

}  // namespace

TEST(Manual, DescribesExactlyTheOptionsOfTheHelp) {
    const ManualHome home;
    for (const Program& program : kPrograms) {
        std::string page = ManualHome::TextOf(program, ".1");
        page = std::regex_replace(page, std::regex(R"(\\-)"), "-");
        const std::set<std::string> options = OptionsOf(home, program);
        EXPECT_EQ(options.count("help"), 1u);
        EXPECT_EQ(Found(page, R"(\.TP\n\\fB--([a-z-]+))"), options) << program.name;
    }
}

TEST(Manual, CompletionsKnowExactlyTheOptionsOfTheHelp) {
    const ManualHome home;
    for (const Program& program : kPrograms) {
        const std::set<std::string> options = OptionsOf(home, program);
        EXPECT_EQ(Found(ManualHome::TextOf(program, ".fish"), " -l ([a-z-]+)"), options);
        EXPECT_EQ(Found(ManualHome::TextOf(program, ".zsh"), R"('\*--([a-z-]+)\[)"), options);
        EXPECT_EQ(Found(ManualHome::TextOf(program, ".bash"), "[' ]--([a-z-]+)"), options);
    }
}

TEST(Manual, IsFormattedWithoutAWarning) {
    const ManualHome home;
    for (const Program& program : kPrograms) {
        const RunResult result = home.Shell("MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z " +
                                            ManualHome::Made(program, ".1") + " >/dev/null");
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "") << program.name;
    }
}

TEST(Manual, BashCompletesOptionsAndTheirWords) {
    const ManualHome home;
    const std::string load = "source " + ManualHome::Made(kPrograms[1], ".bash") + "; ";
    const std::string show = "; _kirto_cli; echo \"${COMPREPLY[@]}\"";

    EXPECT_EQ(home.Shell(load + "COMP_WORDS=(kirto-cli --dith) COMP_CWORD=1" + show).out,
              "--dither\n");
    EXPECT_EQ(home.Shell(load + "COMP_WORDS=(kirto-cli --dither o) COMP_CWORD=2" + show).out,
              "on off\n");
}

TEST(Manual, TheOtherShellsReadTheirCompletions) {
    const ManualHome home;
    for (const Program& program : kPrograms) {
        const RunResult zsh = home.Shell("zsh -n " + ManualHome::Made(program, ".zsh"));
        EXPECT_EQ(zsh.status, 0) << zsh.err;
    }
    const RunResult fish = home.Shell("fish -c 'source " + ManualHome::Made(kPrograms[1], ".fish") +
                                      "; complete -C \"kirto-cli --dither o\"' | cut -f 1");
    EXPECT_EQ(fish.out, "off\non\n") << fish.err;
}

}  // namespace kirto::test
