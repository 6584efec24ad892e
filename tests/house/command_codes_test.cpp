// Holds the headers of command codes against each other.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "house/source_tree.h"

namespace kirto::test {
namespace {

TEST(CommandCodes, NoTwoAreEqual) {
    std::map<std::string, std::string> header_of;
    for (const auto& header : FilesBelow("src", {"command_codes.h"})) {
        const std::string text = ReadText(ProjectRoot() / "src" / header);
        for (const std::string& code : AllMatches(text, "= FourCharCode\\(\"([^\"]*)\"\\)")) {
            const auto [known, is_new] = header_of.emplace(code, header.string());
            EXPECT_TRUE(is_new) << code << " of " << header << " is also in " << known->second;
        }
    }
    EXPECT_FALSE(header_of.empty());
}

TEST(CommandCodes, StandInTheirOwnHeaders) {
    for (const auto& source : FilesBelow("src", {".h", ".cpp"})) {
        // The kit's own codes and types.
        const std::string path = source.string();
        if (path.starts_with("base/") || path.starts_with("kit/")) continue;
        if (path == "resources/resources.h") continue;
        if (source.filename().string().ends_with("command_codes.h")) continue;
        const std::string text = ReadText(ProjectRoot() / "src" / source);
        EXPECT_TRUE(AllMatches(text, "(FourCharCode\\()").empty()) << source;
    }
}

TEST(CommandCodes, OfThePreferencesAreEachSentByOneControlOfTheLayout) {
    std::map<std::string, int> controls;
    for (const std::string& code :
         AllMatches(ReadText(ProjectRoot() / "resources/preferences_window.toml"),
                    "message = \"([^\"]*)\"")) {
        EXPECT_EQ(++controls[code], 1) << code;
    }
    const std::vector<std::string> answered =
        AllMatches(ReadText(ProjectRoot() / "src/ui/dialogs/preferences_command_codes.h"),
                   "= FourCharCode\\(\"([^\"]*)\"\\)");
    EXPECT_FALSE(answered.empty());
    for (const std::string& code : answered) {
        EXPECT_TRUE(controls.contains(code)) << code;
    }
}

TEST(CommandCodes, OfThePreferencesAreAllAnswered) {
    const std::vector<std::string> used =
        AllMatches(ReadText(ProjectRoot() / "src/ui/dialogs/preferences_window.cpp"),
                   "kirto::(kPrefs[A-Za-z]+)");
    for (const std::string& name :
         AllMatches(ReadText(ProjectRoot() / "src/ui/dialogs/preferences_command_codes.h"),
                    "(kPrefs[A-Za-z]+) = ")) {
        EXPECT_NE(std::find(used.begin(), used.end(), name), used.end()) << name;
    }
}

}  // namespace
}  // namespace kirto::test
