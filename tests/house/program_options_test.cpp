// Holds the documents against what the programs say about themselves.
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "house/source_tree.h"

namespace kirto::test {
namespace {

// What a command prints on standard output.
std::string OutputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    if (!pipe) return output;
    for (int byte = std::fgetc(pipe.get()); byte != EOF; byte = std::fgetc(pipe.get())) {
        output.push_back(static_cast<char>(byte));
    }
    return output;
}

std::set<std::string> OptionsIn(const std::string& text) {
    const std::vector<std::string> options = AllMatches(text, "(--[a-z][a-z-]*)");
    return {options.begin(), options.end()};
}

// The part of the README below a heading, up to the next one.
std::string Section(const std::string& readme, const std::string& heading) {
    const size_t start = readme.find("\n## " + heading + "\n");
    if (start == std::string::npos) return {};
    return readme.substr(start, readme.find("\n## ", start + 1) - start);
}

std::set<std::string> OptionsOf(const std::string& program) {
    return OptionsIn(OutputOf("'" + program + "' --help"));
}

TEST(ProgramOptions, TheirPageNamesExactlyThoseOfKirtoCli) {
    const std::set<std::string> options = OptionsOf(KIRTO_CLI);
    EXPECT_EQ(options.count("--save"), 1u);
    EXPECT_EQ(OptionsIn(ReadText(ProjectRoot() / "docs/options.md")), options);
}

TEST(ProgramOptions, TheReadmeNamesExactlyThoseOfTheEditor) {
    const std::set<std::string> options = OptionsOf(KIRTO_EDITOR);
    EXPECT_EQ(options.count("--screenshot"), 1u);
    EXPECT_EQ(OptionsIn(Section(ReadText(ProjectRoot() / "README.md"), "kirto")), options);
}

}  // namespace
}  // namespace kirto::test
