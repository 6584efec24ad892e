#include "main/rsrc/resource_compiler.h"

#include <gtest/gtest.h>
#include <regex>

#include "kit/message.h"
#include "main/rsrc/text_icon.h"
#include "resources/resources.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

Bytes BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

std::string IconOf(int32 side) {
    const std::string number = std::to_string(side);
    std::string text = "\"" + number + " " + number + " 1 1\", \". c None\"";
    for (int32 row = 0; row < side; ++row)
        text += ", \"" + std::string(static_cast<size_t>(side), '.') + "\"";
    return text;
}

constexpr const char* kManifest = R"(
signature = "application/x-test"
type = "application/x-type"
file_types = ["image"]
flags = 3
[icons]
large = "large.xpm"
mini = "mini.xpm"
[version]
major = 1
middle = 2
minor = 3
variety = 4
internal = 5
short = "short text"
long = "long text"
[windows]
"First.Window" = "window.toml"
Second = "window.toml"
)";

constexpr const char* kWindow = R"(
class = "BWindow"
name = "Window"
title = "A window"
type = "titled"
frame = [0, 0, 10, 10]
limits = [0, 100, 0, 100]
flags = []
framework_flags = []
font_height = 12.0
views = []
)";

// A folder of sources, with the manifest changed by the test.
struct Sources {
    Sources() {
        Write("large.xpm", IconOf(32));
        Write("mini.xpm", IconOf(16));
        Write("window.toml", kWindow);
        Write("kirto.toml", kManifest);
    }

    void Write(const std::string& name, std::string_view text) const {
        WriteBytes(folder.File(name), BytesOf(text));
    }
    // With a piece of the manifest replaced.
    void Replace(const std::string& piece, const std::string& by) const {
        std::string text = kManifest;
        const size_t found = text.find(piece);
        ASSERT_NE(found, std::string::npos) << piece;
        Write("kirto.toml", text.replace(found, piece.size(), by));
    }
    // The compiler's error, with the folder's path as "DIR".
    std::string Error() const {
        const ResourceCompiler compiler(Manifest());
        EXPECT_TRUE(compiler.Container().empty());
        std::string error = compiler.Error();
        const size_t found = error.find(folder.Path());
        return found == std::string::npos ? error
                                          : error.replace(found, folder.Path().size(), "DIR");
    }
    std::string Manifest() const { return folder.File("kirto.toml"); }

    TemporaryFolder folder;
};

}  // namespace

TEST(ResourceCompiler, MakesTheResourcesInTheirOrder) {
    const Sources sources;
    const ResourceCompiler compiler(sources.Manifest());
    ASSERT_EQ(compiler.Error(), "");
    const auto file = BFile::OnMemory(compiler.Container());
    const BResources resources(file.get());
    ASSERT_EQ(resources.InitCheck(), B_OK);
    std::vector<std::string> lines;
    for (const auto& resource : resources.Resources()) {
        lines.push_back(CodeText(resource.type) + " " + std::to_string(resource.id) + " " +
                        std::string(resource.name));
    }
    EXPECT_EQ(lines,
              (std::vector<std::string>{
                  "ARCV 0 First.Window", "ARCV 1 Second", "ICON 101 BEOS:L:STD_ICON",
                  "MICN 101 BEOS:M:STD_ICON", "MSGG 1 BEOS:FILE_TYPES", "MIMS 1 BEOS:APP_SIG",
                  "MIMS 2 BEOS:TYPE", "APPV 1 BEOS:APP_VERSION", "APPF 1 BEOS:APP_FLAGS"}));
}

TEST(ResourceCompiler, FillsTheVersionRecord) {
    const Sources sources;
    const ResourceCompiler compiler(sources.Manifest());
    const auto file = BFile::OnMemory(compiler.Container());
    const BResources resources(file.get());
    const auto version = resources.FindResource(kVersionType, 1);
    ASSERT_TRUE(version.has_value());
    ASSERT_EQ(version->size(), 680u);
    for (uint32 i = 0; i < 5; ++i)
        EXPECT_EQ(ReadLittle32(&(*version)[i * 4]), i + 1);
    EXPECT_STREQ(reinterpret_cast<const char*>(&(*version)[20]), "short text");
    EXPECT_STREQ(reinterpret_cast<const char*>(&(*version)[84]), "long text");
    const auto flags = resources.FindResource(kFlagsType, 1);
    EXPECT_EQ(Bytes(flags->begin(), flags->end()), (Bytes{3, 0, 0, 0}));
}

TEST(ResourceCompiler, SaysWhichSourceCantBeRead) {
    const Sources sources;
    std::filesystem::remove(sources.folder.File("mini.xpm"));
    EXPECT_EQ(sources.Error(), "DIR/mini.xpm: can't be read");
    sources.Write("mini.xpm", std::string((1 << 20) + 1, ' '));
    EXPECT_EQ(sources.Error(), "DIR/mini.xpm: can't be read");
    std::filesystem::remove(sources.Manifest());
    EXPECT_EQ(sources.Error(), "DIR/kirto.toml: can't be read");
}

TEST(ResourceCompiler, SaysWhereTheManifestIsNoToml) {
    const Sources sources;
    sources.Replace("flags = 3", "flags 3");
    EXPECT_TRUE(std::regex_search(sources.Error(), std::regex("^DIR/kirto.toml:5: .")))
        << sources.Error();
}

TEST(ResourceCompiler, SaysWhatTheManifestLacks) {
    const Sources sources;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"signature = ", "no string \"signature\""},
        {"type = ", "no string \"type\""},
        {"file_types = ", "no array \"file_types\""},
        {"flags = ", "no 32-bit number \"flags\""},
        {"large = ", "no string \"icons.large\""},
        {"mini = ", "no string \"icons.mini\""},
        {"variety = ", "no 32-bit number \"version.variety\""},
        {"short = ", "no string \"version.short\""},
        {"long = ", "no string \"version.long\""},
        {"[windows]", "no table \"windows\""},
    };
    for (const auto& [piece, error] : cases) {
        const bool is_table = piece[0] == '[';
        sources.Replace("\n" + piece, is_table ? "\n[other]" : "\nother = ");
        EXPECT_EQ(sources.Error(), "DIR/kirto.toml: " + error);
    }
}

TEST(ResourceCompiler, SaysWhichValueIsOfTheWrongKind) {
    const Sources sources;
    sources.Replace("\"First.Window\" = \"window.toml\"", "\"First.Window\" = 1");
    EXPECT_EQ(sources.Error(), "DIR/kirto.toml: no file for the window \"First.Window\"");
    sources.Replace("[\"image\"]", "[\"image\", 1]");
    EXPECT_EQ(sources.Error(), "DIR/kirto.toml: \"file_types\" may hold strings only");
    sources.Replace("major = 1", "major = -1");
    EXPECT_EQ(sources.Error(), "DIR/kirto.toml: no 32-bit number \"version.major\"");
    sources.Replace("major = 1", "major = 4294967296");
    EXPECT_EQ(sources.Error(), "DIR/kirto.toml: no 32-bit number \"version.major\"");
}

TEST(ResourceCompiler, RefusesVersionTextsThatDontFitTheirFields) {
    const Sources sources;
    const std::string error = "DIR/kirto.toml: a text of \"version\" is too long";
    sources.Replace("short text", std::string(64, 's'));
    EXPECT_EQ(sources.Error(), error);
    sources.Replace("long text", std::string(256, 'l'));
    EXPECT_EQ(sources.Error(), error);
    sources.Replace("short text", std::string(63, 's'));
    EXPECT_EQ(ResourceCompiler(sources.Manifest()).Error(), "");
    sources.Replace("long text", std::string(255, 'l'));
    EXPECT_EQ(ResourceCompiler(sources.Manifest()).Error(), "");
}

TEST(ResourceCompiler, RefusesWindowNamesWithAZeroByte) {
    const Sources sources;
    sources.Replace("Second", "\"Sec\\u0000ond\"");
    EXPECT_EQ(sources.Error(), "DIR/kirto.toml: \"" + std::string("Sec\0ond", 7) +
                                   "\" is not a valid resource name");
}

TEST(ResourceCompiler, PassesOnWhatIsWrongWithAnIconOrALayout) {
    const Sources sources;
    sources.Write("large.xpm", IconOf(16));
    EXPECT_EQ(sources.Error(),
              "DIR/large.xpm: not an XPM image of 32 x 32 with one character per pixel");
    sources.Write("window.toml", "class = 1\n");
    EXPECT_TRUE(std::regex_search(sources.Error(), std::regex("DIR/window.toml")))
        << sources.Error();
}

}  // namespace kirto::test
