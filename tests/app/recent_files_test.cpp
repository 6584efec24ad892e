#include "app/recent_files.h"

#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>

#include "app/kirto_fixture.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Recent = std::vector<RecentFile>;

class RecentFilesTest : public ::testing::Test {
  protected:
    std::string Folder() const { return folder_.File("state/kirto"); }
    std::string ListPath() const { return Folder() + "/recent"; }
    Recent ReadFrom(const std::string& text) {
        WriteBytes(folder_.File("recent"), {text.begin(), text.end()});
        return RecentFiles(folder_.Path()).Read();
    }

    TemporaryFolder folder_;
};

TEST_F(RecentFilesTest, HasTheLatestFirstAndEachFileOnce) {
    RecentFiles files(Folder());
    EXPECT_TRUE(files.Read().empty());

    EXPECT_TRUE(files.Add({"/a.gif", 1}));
    EXPECT_TRUE(files.Add({"/b.gif", 2}));
    EXPECT_TRUE(files.Add({"/a.gif", 3}));

    EXPECT_EQ(files.Read(), (Recent{{"/a.gif", 3}, {"/b.gif", 2}}));
}

TEST_F(RecentFilesTest, ForgetsWhatIsBeyondTwelve) {
    RecentFiles files(Folder());
    for (int i = 0; i < 14; ++i)
        files.Add({"/" + std::to_string(i) + ".gif", i});

    const Recent read = files.Read();
    ASSERT_EQ(read.size(), RecentFiles::kMost);
    EXPECT_EQ(read.front().path, "/13.gif");
    EXPECT_EQ(read.back().path, "/2.gif");
}

TEST_F(RecentFilesTest, KeepsEveryName) {
    RecentFiles files(Folder());
    const std::string path = "/100% new\nline %0A %25, \xC3\xA4 and \xFF.gif";
    files.Add({path, 5});

    EXPECT_EQ(files.Read(), (Recent{{path, 5}}));
}

TEST_F(RecentFilesTest, CanBeReadByTheUserAlone) {
    RecentFiles(Folder()).Add({"/a.gif", 1});
    struct stat info;
    ASSERT_EQ(stat(ListPath().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
}

TEST_F(RecentFilesTest, IsClearedAndGoesOn) {
    RecentFiles files(Folder());
    EXPECT_TRUE(files.Clear());
    files.Add({"/a.gif", 1});
    EXPECT_TRUE(files.Clear());
    EXPECT_TRUE(files.Read().empty());
    files.Add({"/b.gif", 2});
    EXPECT_EQ(files.Read().size(), 1u);
}

TEST_F(RecentFilesTest, LeavesOutLinesThatAreDamaged) {
    EXPECT_EQ(ReadFrom("7 /a.gif\nnonsense\n-1 /b.gif\n9 relative.gif\n99999999999999999999 /c\n\n"
                       "8 /d.gif"),
              (Recent{{"/a.gif", 7}, {"/d.gif", 8}}));
}

TEST_F(RecentFilesTest, ReadsWhateverLiesThere) {
    std::minstd_rand random(3);
    for (int round = 0; round < 200; ++round) {
        std::string text = "7 /a.gif\n8 /b.gif\n";
        for (int i = 0; i < 6; ++i)
            text[random() % text.size()] = static_cast<char>(random());
        EXPECT_LE(ReadFrom(text).size(), RecentFiles::kMost);
    }
    EXPECT_TRUE(ReadFrom(std::string(1 << 20, '7')).empty());
}

TEST_F(RecentFilesTest, SaysWhenItCanNotBeWritten) {
    WriteBytes(folder_.File("file"), {});
    EXPECT_FALSE(RecentFiles(folder_.File("file/kirto")).Add({"/a.gif", 1}));
}

class KirtoRemembers : public KirtoFixture {};

TEST_F(KirtoRemembers, AnimationsThatAreOpened) {
    Write("anim.gif", GifOf({10}));
    Start();
    Do(Files(B_REFS_RECEIVED, {"anim.gif"}));

    EXPECT_EQ(desktop_.TakeRemembered(), Lines{File("anim.gif")});
}

TEST_F(KirtoRemembers, WhereTheDocumentWasSavedAsAnAnimation) {
    Start();
    Append({"frame"});
    Do(SaveTo(folder_.Path(), "saved.gif"));

    EXPECT_EQ(desktop_.TakeRemembered(), Lines{File("saved.gif")});
}

TEST_F(KirtoRemembers, NothingThatCanNotBeOpened) {
    Write("anim.gif", {'n', 'o'});
    Start();
    Do(Files(B_REFS_RECEIVED, {"anim.gif"}));

    EXPECT_EQ(desktop_.TakeRemembered(), Lines{});
}

}  // namespace

}  // namespace kirto::test
