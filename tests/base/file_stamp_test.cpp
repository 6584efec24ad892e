#include "base/file_stamp.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

class FileStampTest : public ::testing::Test {
  protected:
    void SetUp() override { WriteBytes(path_, {'o', 'l', 'd'}); }
    std::optional<FileStamp> Stamp() const { return FileStamp::Of(path_); }

    TemporaryFolder folder_;
    const std::string path_ = folder_.File("file");
};

TEST_F(FileStampTest, StaysTheSameWhileNobodyWrites) {
    ASSERT_TRUE(Stamp());
    EXPECT_EQ(Stamp(), Stamp());
}

TEST_F(FileStampTest, IsNothingWithoutAFile) {
    EXPECT_FALSE(FileStamp::Of(folder_.File("missing")));
    EXPECT_FALSE(FileStamp::Of(""));
}

TEST_F(FileStampTest, TellsAnotherSize) {
    const auto before = Stamp();
    WriteBytes(path_, {'l', 'o', 'n', 'g', 'e', 'r'});
    EXPECT_NE(Stamp(), before);
}

TEST_F(FileStampTest, TellsAnotherTimeOfChange) {
    const auto before = Stamp();
    const timespec times[2] = {{1, 0}, {1, 1}};
    ASSERT_EQ(utimensat(AT_FDCWD, path_.c_str(), times, 0), 0);
    EXPECT_NE(Stamp(), before);
}

TEST_F(FileStampTest, TellsAnotherFileOfTheSameSizeAndTime) {
    const timespec times[2] = {{1, 0}, {1, 0}};
    const std::string other = folder_.File("other");
    WriteBytes(other, {'n', 'e', 'w'});
    ASSERT_EQ(utimensat(AT_FDCWD, path_.c_str(), times, 0), 0);
    ASSERT_EQ(utimensat(AT_FDCWD, other.c_str(), times, 0), 0);
    const auto before = Stamp();
    std::filesystem::rename(other, path_);
    EXPECT_NE(Stamp(), before);
}

TEST_F(FileStampTest, LooksAtTheFileBehindALink) {
    std::filesystem::create_symlink(path_, folder_.File("link"));
    EXPECT_EQ(FileStamp::Of(folder_.File("link")), Stamp());
}

}  // namespace

}  // namespace kirto::test
