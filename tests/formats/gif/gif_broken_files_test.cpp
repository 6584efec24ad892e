// Broken files, each with what must become of it. The files are text; they say why they are broken.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>

#include "formats/gif/gif_load_fixture.h"
#include "support/commented_bytes.h"
#include "support/source_folder.h"

namespace kirto::test {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::Optional;
using testing::SizeIs;

TEST(CommentedBytes, AreHexDigitsTextAndRepetitions) {
    EXPECT_THAT(AssembleBytes("4c 00*3  # a comment 11\n\n  'it # is'#x\nFF"),
                Optional(ElementsAre(0x4C, 0, 0, 0, 'i', 't', ' ', '#', ' ', 'i', 's', 0xFF)));
    EXPECT_THAT(AssembleBytes(""), Optional(SizeIs(0)));
}

TEST(CommentedBytes, OtherWordsAreRefused) {
    for (const char* text : {"4", "4C1", "G0", "'open", "00*", "00*x", "4C, 00", "'a''b'"})
        EXPECT_EQ(AssembleBytes(text), std::nullopt) << text;
}

TEST(CommentedBytes, NotesAreFoundByTheirKey) {
    EXPECT_THAT(NotesIn("# a: 1\n00 # a: 2\n# b: 3\n# a: 4 5", "a"), ElementsAre("1", "4 5"));
}

// A file's name without its ending.
class GifBrokenFiles : public GifLoadTest, public testing::WithParamInterface<std::string> {
  protected:
    // What came out of loading, in the words of the files.
    std::string Outcome(const std::vector<uint8>& bytes, bool full_frame) {
        document.Reset();
        prefs.animation_gifloadfullframe = full_frame;
        const bool whole = Load(bytes);
        const int32 count = document.FrameCount();
        return std::string(whole ? "whole, " : "failed, ") + std::to_string(count) +
               (count == 1 ? " frame" : " frames");
    }
};

const fs::path kFolder = SourceFolder() / "tests/data/gif-broken";

std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kFolder))
        names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST_P(GifBrokenFiles, EndAsTheySay) {
    const std::vector<uint8> file = ReadBytes(kFolder / (GetParam() + ".txt"));
    const std::string text(file.begin(), file.end());
    const auto bytes = AssembleBytes(text);
    ASSERT_TRUE(bytes.has_value());
    std::string lines;
    for (const std::string& line : NotesIn(text, "prints"))
        lines += line + "\n";

    for (const bool full_frame : {false, true}) {
        std::vector<std::string> expected = NotesIn(text, "expect");
        const std::string key = full_frame ? "expect full-frame" : "expect raw";
        if (expected.empty()) expected = NotesIn(text, key);
        EXPECT_THAT(expected, ElementsAre(Outcome(*bytes, full_frame))) << key;
        EXPECT_EQ(debug_text, lines) << key;
    }
}

std::string TestNameOf(const testing::TestParamInfo<std::string>& file) {
    std::string name = file.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, GifBrokenFiles, testing::ValuesIn(Names()), TestNameOf);

}  // namespace
}  // namespace kirto::test
