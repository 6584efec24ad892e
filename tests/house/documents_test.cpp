// Holds the documents against the files that they point at.
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "house/source_tree.h"

namespace kirto::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Documents() {
    std::vector<fs::path> documents = {"ARCHITECTURE.md", "CHANGELOG.md", "CONTRIBUTING.md",
                                       "README.md"};
    for (const fs::path& path : FilesBelow("docs", {".md"}))
        documents.push_back("docs" / path);
    return documents;
}

TEST(Documents, LinksLeadToFilesOfTheProject) {
    for (const fs::path& document : Documents()) {
        const fs::path folder = (ProjectRoot() / document).parent_path();
        for (const std::string& link :
             AllMatches(ReadText(ProjectRoot() / document), "\\]\\(([^)#]+)[^)]*\\)")) {
            if (link.find("://") != std::string::npos) continue;
            EXPECT_TRUE(fs::exists(folder / link)) << document << " links to " << link;
        }
    }
}

TEST(Documents, FilesInCodeQuotesExist) {
    // Paths of the project in code quotes: `src/document/frame.h`, `tests/house/`, `docs/...`.
    for (const fs::path& document : Documents()) {
        for (const std::string& path :
             AllMatches(ReadText(ProjectRoot() / document),
                        "`((src|tests|fuzz|docs|bench)/[A-Za-z0-9_./-]*)`")) {
            EXPECT_TRUE(fs::exists(ProjectRoot() / path)) << document << " names " << path;
        }
    }
}

}  // namespace
}  // namespace kirto::test
