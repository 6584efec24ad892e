#include "base/temporary_files.h"

#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "kit/file.h"
#include "support/test_support.h"

namespace kirto::test {

using ::testing::UnorderedElementsAre;

namespace {

namespace fs = std::filesystem;

class TemporaryFiles : public ::testing::Test {
  protected:
    ~TemporaryFiles() override { close(directory_); }

    // A file that last changed so many seconds ago.
    void MakeFile(const std::string& name, time_t seconds_ago) const {
        WriteBytes(folder_.File(name), {1});
        const timespec changed{time(nullptr) - seconds_ago, 0};
        const timespec times[2] = {changed, changed};
        ASSERT_EQ(utimensat(directory_, name.c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_.Path()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    TemporaryFolder folder_;
    const int directory_ = open(folder_.Path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
};

TEST_F(TemporaryFiles, StaleOnesAreRemoved) {
    MakeFile(".kirto-0123456789abcdef", 4000);

    RemoveStaleTemporaries(directory_);

    EXPECT_THAT(Names(), UnorderedElementsAre());
}

TEST_F(TemporaryFiles, ThoseOfTheLastHourStay) {
    MakeFile(".kirto-0123456789abcdef", 3000);

    RemoveStaleTemporaries(directory_);

    EXPECT_THAT(Names(), UnorderedElementsAre(".kirto-0123456789abcdef"));
}

TEST_F(TemporaryFiles, OldFilesOfOtherNamesStay) {
    const std::vector<std::string> names = {".kirto-", ".kirto-0123456789abcdeg", "kirto.gif",
                                            ".kirto-0123456789abcdef0", ".kirto-0123456789abcde"};
    for (const std::string& name : names)
        MakeFile(name, 4000);

    RemoveStaleTemporaries(directory_);

    EXPECT_THAT(Names(), ::testing::UnorderedElementsAreArray(names));
}

TEST_F(TemporaryFiles, FoldersAndLinksOfSuchNamesStay) {
    fs::create_directory(folder_.File(".kirto-0000000000000000"));
    fs::create_symlink("nowhere", folder_.File(".kirto-1111111111111111"));
    const timespec times[2] = {{1, 0}, {1, 0}};
    for (const char* name : {".kirto-0000000000000000", ".kirto-1111111111111111"})
        ASSERT_EQ(utimensat(directory_, name, times, AT_SYMLINK_NOFOLLOW), 0);

    RemoveStaleTemporaries(directory_);

    EXPECT_THAT(Names(),
                UnorderedElementsAre(".kirto-0000000000000000", ".kirto-1111111111111111"));
}

TEST_F(TemporaryFiles, OfOtherUsersStay) {
    MakeFile(".kirto-0123456789abcdef", 4000);
    if (chown(folder_.File(".kirto-0123456789abcdef").c_str(), geteuid() + 1, getegid()) != 0) {
        GTEST_SKIP() << "files can't be given away here";
    }

    RemoveStaleTemporaries(directory_);

    EXPECT_THAT(Names(), UnorderedElementsAre(".kirto-0123456789abcdef"));
}

TEST_F(TemporaryFiles, AreRemovedBesideAFilesTarget) {
    MakeFile(".kirto-0123456789abcdef", 4000);

    BFile::CreateReplacing(folder_.File("new.gif"))->RemoveLeftovers();

    EXPECT_THAT(Names(), UnorderedElementsAre());
}

}  // namespace

}  // namespace kirto::test
