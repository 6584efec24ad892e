#include "ui/thumbnails/targa_file.h"

#include <gtest/gtest.h>
#include <sys/xattr.h>

#include "support/full_disk.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {
namespace {

TEST(TargaFile, IsNamedLikeTheFrame) {
    EXPECT_EQ(TargaFileName("frame0001"), "frame0001.tga");
    EXPECT_EQ(TargaFileName("picture.png"), "picture.png.tga");
    EXPECT_EQ(TargaFileName("picture.tga"), "picture.tga");
    EXPECT_EQ(TargaFileName("PICTURE.TGA"), "PICTURE.TGA");
    EXPECT_EQ(TargaFileName("a/b/c"), "a_b_c.tga");
    EXPECT_EQ(TargaFileName(".tga"), ".tga.tga");
    EXPECT_EQ(TargaFileName(""), "frame.tga");
}

TEST(TargaFile, HasANameThatFitsAFile) {
    const std::string name = TargaFileName(std::string(250, 'x') + "\xC3\xA4\xC3\xA4");
    EXPECT_EQ(name, std::string(250, 'x') + ".tga");
    EXPECT_EQ(TargaFileName(std::string(255, 'x')).size(), 255u);
}

TEST(TargaFile, IsWrittenThroughTheRosterWithItsMimeType) {
    const TemporaryFolder folder;
    TargaRoster roster;
    const auto picture = PictureOf(2, 1, {0xFF102030, 0xFF405060});
    const std::string path = folder.File("a.tga");
    ASSERT_TRUE(WriteTargaFile(*picture, path, roster));
    EXPECT_EQ(ReadBytes(path), RawPicture(*picture));
    char type[64] = {};
    const bool has_attributes = setxattr(path.c_str(), "user.try", "x", 1, 0) == 0;
    const auto size = getxattr(path.c_str(), "user.mime_type", type, sizeof type);
    EXPECT_EQ(std::string(type, size > 0 ? static_cast<size_t>(size) : 0),
              has_attributes ? "image/x-targa" : "");
}

TEST(TargaFile, LeavesWhatWasThereWhenItCanNotBeWritten) {
    const TemporaryFolder folder;
    TargaRoster roster;
    const auto picture = PictureOf(1, 1, {0xFF102030});
    const std::string path = folder.File("a.tga");
    WriteBytes(path, {1, 2, 3});
    roster.write_status = B_IO_ERROR;
    EXPECT_FALSE(WriteTargaFile(*picture, path, roster));
    roster.write_status = B_OK;
    roster.has_targa = false;
    EXPECT_FALSE(WriteTargaFile(*picture, path, roster));
    roster.has_targa = true;
    EXPECT_FALSE(WriteTargaFile(*picture, folder.File("none/a.tga"), roster));
    {
        const FullDisk full;
        EXPECT_FALSE(WriteTargaFile(*picture, path, roster));
    }
    EXPECT_EQ(ReadBytes(path), (std::vector<uint8>{1, 2, 3}));
}

}  // namespace
}  // namespace kirto::test
