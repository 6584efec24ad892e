// Holds the README against what kirto-cli says about itself.
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

TEST(CliOptions, TheReadmeNamesExactlyTheOptionsOfKirtoCli) {
    const std::set<std::string> options = OptionsIn(OutputOf("'" KIRTO_CLI "' --help"));
    EXPECT_EQ(options.count("--save"), 1u);
    EXPECT_EQ(OptionsIn(ReadText(ProjectRoot() / "README.md")), options);
}

}  // namespace
}  // namespace kirto::test
