// Holds the headers of command codes against each other.
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
        if (source.string().starts_with("platform/")) continue;  // the kit's own codes and types
        if (source.filename().string().ends_with("command_codes.h")) continue;
        const std::string text = ReadText(ProjectRoot() / "src" / source);
        EXPECT_TRUE(AllMatches(text, "(FourCharCode\\()").empty()) << source;
    }
}

}  // namespace
}  // namespace kirto::test
