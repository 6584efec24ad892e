// The recipes by which others make a Flatpak and a container of the programs.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>

#include "support/source_folder.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

std::string RecipeText(const std::string& name) {
    std::ifstream file(SourceFolder() / name);
    std::ostringstream text;
    text << file.rdbuf();
    EXPECT_TRUE(file.good()) << name;
    return text.str();
}

// The words that look like packages between two texts.
std::set<std::string> PackagesBetween(const std::string& text, const std::string& start,
                                      const std::string& end) {
    const size_t from = text.find(start);
    EXPECT_NE(from, std::string::npos) << start;
    const size_t to = text.find(end, from);
    EXPECT_NE(to, std::string::npos) << end;
    std::istringstream words(text.substr(from + start.size(), to - from - start.size()));
    std::set<std::string> packages;
    for (std::string word; words >> word;) {
        if (word != "\\") packages.insert(word);
    }
    return packages;
}

}  // namespace

TEST(Recipes, TheFlatpaksModulesAreWholeAndTheirSourcesAreChecked) {
    const nlohmann::json manifest =
        nlohmann::json::parse(RecipeText("packaging/org.kirto.Kirto.flatpak.json"));

    EXPECT_EQ(manifest["id"], "org.kirto.Kirto");
    EXPECT_EQ(manifest["command"], "kirto");
    for (const nlohmann::json& module : manifest["modules"]) {
        ASSERT_FALSE(module["sources"].empty()) << module["name"];
        for (const nlohmann::json& source : module["sources"]) {
            if (source["type"] == "dir") {
                EXPECT_TRUE(
                    fs::equivalent(SourceFolder() / "packaging" / source["path"].get<std::string>(),
                                   SourceFolder()));
            } else {
                EXPECT_TRUE(std::regex_match(source["sha256"].get<std::string>(),
                                             std::regex("[0-9a-f]{64}")));
            }
        }
    }
    EXPECT_EQ(manifest["modules"].back()["name"], "kirto");
}

TEST(Recipes, TheContainerIsBuiltWithWhatTheProjectIsBuiltWith) {
    const std::set<std::string> known = PackagesBetween(RecipeText("dev"), "build_packages=(", ")");
    const std::set<std::string> named = PackagesBetween(RecipeText("packaging/Containerfile"),
                                                        "--no-install-recommends \\\n", "COPY");

    EXPECT_GE(named.size(), 10u);
    for (const std::string& package : named)
        EXPECT_EQ(known.count(package), 1u) << package;
}

}  // namespace kirto::test
