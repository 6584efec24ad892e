// Holds the windows to never waiting for the document's lock.
#include <gtest/gtest.h>
#include <string>

#include "house/source_tree.h"

namespace kirto::test {
namespace {

TEST(DocumentLock, IsOnlyTriedByWindows) {
    int tries = 0;
    for (const std::string folder : {"src/ui", "src/framework/qt", "src/main/editor"}) {
        for (const auto& source : FilesBelow(folder, {".h", ".cpp"})) {
            const std::string text = " " + ReadText(ProjectRoot() / folder / source);
            for (const std::string& name :
                 AllMatches(text, "([A-Za-z]*(ReaderScope|WriterScope|ReaderEnter|WriterEnter))")) {
                EXPECT_EQ(name, "TryReaderScope") << folder << "/" << source.string();
                ++tries;
            }
        }
    }
    EXPECT_GT(tries, 0);
}

}  // namespace
}  // namespace kirto::test
