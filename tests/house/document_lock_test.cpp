// Holds the sources to leaving the document's lock to the document.
#include <gtest/gtest.h>
#include <string>

#include "house/source_tree.h"

namespace kirto::test {
namespace {

TEST(DocumentLock, IsTakenOnlyWhereTheDocumentIsPublished) {
    int uses = 0;
    for (const auto& source : FilesBelow("src", {".h", ".cpp"})) {
        const std::string text = ReadText(ProjectRoot() / "src" / source);
        const bool is_the_documents = source.string().starts_with("document/");
        for (const std::string& name :
             AllMatches(text, "((Reader|Writer)(Scope|Enter|Exit)|frame_sem|reader_count)")) {
            EXPECT_TRUE(is_the_documents) << "src/" << source.string() << " names " << name;
            ++uses;
        }
    }
    EXPECT_GT(uses, 0);
}

}  // namespace
}  // namespace kirto::test
