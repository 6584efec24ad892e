#include "desktop/qt/mime_types.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "support/test_support.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

struct MimeTypesTest : testing::Test {
    TemporaryFolder folder;

    std::string Write(const std::string& name, const std::string& text) const {
        WriteBytes(folder.File(name), {text.begin(), text.end()});
        return folder.File(name);
    }
};

// Sets the attribute as another program would; false where the file system has none.
bool SetAttribute(const std::string& path, const std::string& value) {
    return setxattr(path.c_str(), "user.mime_type", value.data(), value.size(), 0) == 0;
}

}  // namespace

TEST_F(MimeTypesTest, TellsAFileByItsName) {
    EXPECT_EQ(MimeTypeOf(Write("a.gif", "")), "image/gif");
    EXPECT_EQ(MimeTypeOf(Write("a.gif.png", "GIF89a")), "image/png");
    EXPECT_EQ(MimeTypeOf(Write("a.TGA", "")), "image/x-tga");
}

TEST_F(MimeTypesTest, TellsAFileByItsContentWhereTheNameSaysNothing) {
    EXPECT_EQ(MimeTypeOf(Write("picture", "GIF89a")), "image/gif");
    EXPECT_EQ(MimeTypeOf(Write("picture2", "\x89PNG\r\n\x1a\n")), "image/png");
}

TEST_F(MimeTypesTest, CallsAllOfTheFliFamilyByOneName) {
    EXPECT_EQ(MimeTypeOf(Write("a.fli", "")), "video/x-fli");
    EXPECT_EQ(MimeTypeOf(Write("a.flc", "")), "video/x-fli");
}

TEST_F(MimeTypesTest, BelievesTheAttributeBeforeTheName) {
    const std::string path = Write("a.png", "");
    if (!SetAttribute(path, "image/gif")) GTEST_SKIP() << "no attributes on this file system";

    EXPECT_EQ(MimeTypeOf(path), "image/gif");
    SetAttribute(path, std::string("video/x-flc\0", 12));
    EXPECT_EQ(MimeTypeOf(path), "video/x-flc");
    SetAttribute(path, "video/x-flic");
    EXPECT_EQ(MimeTypeOf(path), "video/x-fli");
    SetAttribute(path, "video/fli");
    EXPECT_EQ(MimeTypeOf(path), "video/x-fli");
}

TEST_F(MimeTypesTest, PassesOverAttributesThatAreNoType) {
    const std::string path = Write("a.png", "");
    if (!SetAttribute(path, "")) GTEST_SKIP() << "no attributes on this file system";

    EXPECT_EQ(MimeTypeOf(path), "image/png");
    for (const std::string& value :
         {std::string("image/\ngif"), std::string("image/gif image"), std::string(1, '\0'),
          std::string("image/\xff"), std::string(256, 'x')}) {
        ASSERT_TRUE(SetAttribute(path, value));
        EXPECT_EQ(MimeTypeOf(path), "image/png") << value;
    }
    ASSERT_TRUE(SetAttribute(path, std::string(255, 'x')));
    EXPECT_EQ(MimeTypeOf(path), std::string(255, 'x'));
}

TEST_F(MimeTypesTest, KnowsFoldersAndNothingElseThatIsNoFile) {
    mkfifo(folder.File("pipe.gif").c_str(), 0600);

    EXPECT_EQ(MimeTypeOf(folder.Path()), "inode/directory");
    EXPECT_EQ(MimeTypeOf(folder.File("pipe.gif")), "");
    EXPECT_EQ(MimeTypeOf("/dev/null"), "");
    EXPECT_EQ(MimeTypeOf(folder.File("missing.gif")), "");
}

TEST_F(MimeTypesTest, SaysNothingOfAFileThatNobodyKnows) {
    EXPECT_EQ(MimeTypeOf(Write("unknown", std::string("\x01\x02\xfe\xff\0\0", 6))), "");
}

TEST_F(MimeTypesTest, FollowsLinks) {
    Write("a.png", "");
    fs::create_symlink("a.png", folder.File("link"));
    fs::create_symlink("missing", folder.File("dangling.gif"));

    EXPECT_EQ(MimeTypeOf(folder.File("dangling.gif")), "");
    EXPECT_EQ(MimeTypeOf(folder.File("link")), MimeTypeOf(Write("empty", "")));
}

TEST_F(MimeTypesTest, FindsFilesByTheBytesOfTheirNames) {
    EXPECT_EQ(MimeTypeOf(Write("\xff.gif", "")), "image/gif");
    EXPECT_EQ(MimeTypeOf(Write("\xff\xfe", "GIF89a")), "image/gif");
}

}  // namespace kirto::test
