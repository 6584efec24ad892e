// The resource file as it is built, and the program that makes it.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "kit/message.h"
#include "main/rsrc/text_icon.h"
#include "resources/resources.h"
#include "support/source_folder.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

const std::string kManifestPath = SourceFolder() / "resources/kirto.toml";

// kirto.rsrc, opened once a test.
class ResourceFile : public ::testing::Test {
  protected:
    ResourceFile() : file_(KIRTO_RSRC_FILE, B_READ_ONLY), resources_(&file_) {}

    void SetUp() override { ASSERT_EQ(resources_.InitCheck(), B_OK); }

    // The bytes of the resource, which must have this name.
    Bytes Content(type_code type, int32 id, std::string_view name) {
        for (const auto& resource : resources_.Resources()) {
            if (resource.type != type || resource.id != id) continue;
            EXPECT_EQ(resource.name, name);
            return {resource.bytes.begin(), resource.bytes.end()};
        }
        ADD_FAILURE() << "no resource " << CodeText(type) << ' ' << id;
        return {};
    }

    BFile file_;
    BResources resources_;
};

std::string TextOf(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

// How many of the pixels are seen.
size_t OpaquePixels(const Bytes& icon) {
    return icon.size() -
           static_cast<size_t>(std::count(icon.begin(), icon.end(), kTransparentIconIndex));
}

int RunTool(const std::string& arguments) {
    const int status = std::system(("'" KIRTO_RSRC_TOOL "' " + arguments + " 2>/dev/null").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

TEST_F(ResourceFile, HoldsEightResources) {
    EXPECT_EQ(resources_.Resources().size(), 8u);
    const Bytes bytes = ReadBytes(KIRTO_RSRC_FILE);
    EXPECT_EQ(ReadLittle32(&bytes[4]), 8u);
    EXPECT_EQ(ReadLittle32(&bytes[12]), 0x644u);
}

TEST_F(ResourceFile, HoldsThePreferencesWindow) {
    const Bytes bytes = Content(FourCharCode("ARCV"), 0, "PreferencesWindow");
    BMessage archive;
    ASSERT_EQ(archive.Unflatten(bytes.data(), bytes.size()), B_OK);
    std::string text;
    EXPECT_EQ(archive.FindString("class", &text), B_OK);
    EXPECT_EQ(text, "BWindow");
    EXPECT_EQ(archive.FindString("_title", &text), B_OK);
    EXPECT_EQ(text, "Preferences");
    BRect frame;
    EXPECT_EQ(archive.FindRect("_frame", &frame), B_OK);
    EXPECT_EQ(frame, BRect(171, 21, 571, 334));
}

TEST_F(ResourceFile, HoldsTheIcons) {
    const Bytes large = Content(FourCharCode("ICON"), 101, "BEOS:L:STD_ICON");
    EXPECT_EQ(large.size(), 1024u);
    EXPECT_GT(OpaquePixels(large), 300u);
    EXPECT_LT(OpaquePixels(large), 1024u);
    const Bytes mini = Content(FourCharCode("MICN"), 101, "BEOS:M:STD_ICON");
    EXPECT_EQ(mini.size(), 256u);
    EXPECT_GT(OpaquePixels(mini), 75u);
    EXPECT_LT(OpaquePixels(mini), 256u);
}

TEST_F(ResourceFile, HoldsTheFileTypes) {
    const Bytes bytes = Content(FourCharCode("MSGG"), 1, "BEOS:FILE_TYPES");
    BMessage message;
    ASSERT_EQ(message.Unflatten(bytes.data(), bytes.size()), B_OK);
    std::vector<std::string> types(3);
    ASSERT_EQ(message.CountItems("types"), 3);
    for (int32 i = 0; i < 3; ++i)
        EXPECT_EQ(message.FindString("types", &types[static_cast<size_t>(i)], i), B_OK);
    EXPECT_EQ(types, (std::vector<std::string>{"image", "video/x-fli", "video/x-flc"}));
}

TEST_F(ResourceFile, HoldsTheSignatureAndTheType) {
    EXPECT_EQ(TextOf(Content(FourCharCode("MIMS"), 1, "BEOS:APP_SIG")),
              std::string("application/x-vnd.Tavon-Kirto") + '\0');
    EXPECT_EQ(TextOf(Content(FourCharCode("MIMS"), 2, "BEOS:TYPE")),
              std::string("application/x-vnd.Be-elfexecutable") + '\0');
}

TEST_F(ResourceFile, HoldsTheVersion) {
    const Bytes bytes = Content(FourCharCode("APPV"), 1, "BEOS:APP_VERSION");
    ASSERT_EQ(bytes.size(), 680u);
    const uint32 numbers[] = {1, 4, 0, 5, 0};
    for (size_t i = 0; i < 5; ++i)
        EXPECT_EQ(ReadLittle32(&bytes[i * 4]), numbers[i]);
    EXPECT_STREQ(reinterpret_cast<const char*>(&bytes[20]), "Kirto by Morvik");
    const std::string text = reinterpret_cast<const char*>(&bytes[84]);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    EXPECT_TRUE(
        std::all_of(bytes.begin() + 340, bytes.end(), [](uint8 byte) { return byte == 0; }));
}

TEST_F(ResourceFile, HoldsTheFlags) {
    EXPECT_EQ(Content(FourCharCode("APPF"), 1, "BEOS:APP_FLAGS"), Bytes(4));
}

TEST(ResourceTool, MakesTheSameFileAgain) {
    const TemporaryFolder folder;
    const std::string target = folder.File("again.rsrc");
    EXPECT_EQ(RunTool("'" + kManifestPath + "' '" + target + "'"), 0);
    EXPECT_EQ(ReadBytes(target), ReadBytes(KIRTO_RSRC_FILE));
}

TEST(ResourceTool, FailsWithoutTouchingTheTargetWhereTheSourcesAreWrong) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("kirto.toml"), {'x'});
    WriteBytes(folder.File("old.rsrc"), {1, 2});
    EXPECT_EQ(RunTool("'" + folder.File("kirto.toml") + "' '" + folder.File("old.rsrc") + "'"), 1);
    EXPECT_EQ(ReadBytes(folder.File("old.rsrc")), (Bytes{1, 2}));
}

TEST(ResourceTool, FailsWhereTheTargetCantBeWritten) {
    const TemporaryFolder folder;
    const std::string target = folder.File("absent/kirto.rsrc");
    EXPECT_EQ(RunTool("'" + kManifestPath + "' '" + target + "'"), 1);
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST(ResourceTool, TellsHowItIsUsed) {
    EXPECT_EQ(RunTool(""), 2);
    EXPECT_EQ(RunTool("one two three"), 2);
}

}  // namespace kirto::test
