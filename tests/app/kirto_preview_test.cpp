#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "app/kirto_fixture.h"
#include "support/full_disk.h"
#include "support/ordinary_user.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kNoPreview =
    "The animation can't be previewed because a temporary file could not be created.";

class KirtoPreview : public KirtoFixture {};

TEST_F(KirtoPreview, WritesAFileThatOnlyTheUserCanRead) {
    Start();
    Append({"one"});
    app_->SetModified(true);

    EXPECT_EQ(Do(kPreview), "svup(Status: writing frame 1 of 1...) auda");

    struct stat info {};
    ASSERT_EQ(stat(File("kirtotemp.gif").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0600u);
    EXPECT_EQ(ReadBytes(File("kirtotemp.gif")).at(0), 'G');
    EXPECT_EQ(FolderContent(), Lines{"kirtotemp.gif"});
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoPreview, ReplacesALinkInItsPlaceAndLeavesTheTargetAlone) {
    Write("precious.gif", {'o', 'l', 'd'});
    fs::create_symlink(File("precious.gif"), File("kirtotemp.gif"));
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_FALSE(fs::is_symlink(File("kirtotemp.gif")));
    EXPECT_EQ(ReadBytes(File("kirtotemp.gif")).at(0), 'G');
    EXPECT_EQ(ReadBytes(File("precious.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
}

TEST_F(KirtoPreview, ReplacesThePreviewBefore) {
    Write("kirtotemp.gif", {'o', 'l', 'd'});
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_EQ(ReadBytes(File("kirtotemp.gif")).at(0), 'G');
}

TEST_F(KirtoPreview, FallsBackToTheHomeFolderAndTheSettingSaysSo) {
    prefs_.misc_tempfilelocation = File("missing");
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_EQ(prefs_.misc_tempfilelocation, folder_.Path());
    EXPECT_EQ(TakeLines(), Lines{"browser " + File("kirtotemp.gif")});
}

TEST_F(KirtoPreview, FallsBackToTheHomeFolderWhenTheFolderCantBeOpened) {
    fs::permissions(folder_.Path(), fs::perms::all);
    fs::create_directory(File("closed"));
    fs::permissions(File("closed"), fs::perms::none);
    prefs_.misc_tempfilelocation = File("closed");
    Start();
    Append({"one"});
    {
        const OrdinaryUser user;
        Do(kPreview);
    }

    EXPECT_EQ(prefs_.misc_tempfilelocation, folder_.Path());
    EXPECT_EQ(TakeLines(), Lines{"browser " + File("kirtotemp.gif")});
}

TEST_F(KirtoPreview, NeverReachesTheBrowserAsAnOption) {
    fs::create_directory(File("-folder"));
    prefs_.misc_tempfilelocation = "-folder";
    Start();
    Append({"one"});
    const fs::path before = fs::current_path();
    fs::current_path(folder_.Path());

    Do(kPreview);

    fs::current_path(before);
    EXPECT_EQ(TakeLines(), Lines{"browser " + File("-folder/kirtotemp.gif")});
}

TEST_F(KirtoPreview, RefusesFramesLargerThanTheAnimation) {
    prefs_.misc_tempfilelocation = File("missing");
    Start();
    Append({"one"});
    EditOf(*app_)->width = 0;
    app_->AnimationDocument::SetFile(folder_.Path(), "kept.gif");

    EXPECT_EQ(Do(kPreview), "auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine("The animation can't be previewed because one of the "
                                             "frames has a larger size than the animation.")});
    EXPECT_EQ(app_->CurrentState()->file_name, "kept.gif");
    EXPECT_EQ(app_->CurrentState()->file_directory, folder_.Path());
    EXPECT_EQ(prefs_.misc_tempfilelocation, File("missing"));
}

TEST_F(KirtoPreview, RefusesSizesThatAGifHasNoRoomFor) {
    Start();
    Append({"one"});
    EditOf(*app_)->width = 65536;

    Do(kPreview);

    EXPECT_EQ(TakeLines(), Lines{WarningLine("The animation can't be previewed because Width is "
                                             "not between 0 and 65535.")});
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoPreview, TellsWhenItCantBeWritten) {
    Start();
    Append({"one"});
    {
        const FullDisk disk;
        Do(kPreview);
    }

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNoPreview)});
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoPreview, TellsWhenItsFolderRefusesIt) {
    fs::create_directory(File("kirtotemp.gif"));
    Write("kirtotemp.gif/full", {1});
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNoPreview)});
    EXPECT_EQ(FolderContent(), Lines{"kirtotemp.gif"});
}

TEST_F(KirtoPreview, LetsThePaletteFollowItsFrameFirst) {
    Start();
    Append({"one"});
    PaletteEditOf(*app_)->Set(kPaletteCurrentFrame);

    Do(kPreview);

    EXPECT_EQ(app_->Current()->palette->ColorForIndex(0), (rgb_color{0x64, 0x64, 0x64, 255}));
}

TEST_F(KirtoPreview, AskedToStopShowsNothing) {
    Start();
    Append({"one"});
    app_->RequestStop();

    Do(kPreview);

    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoPreview, IsRemovedAtTheEnd) {
    Start();
    Append({"one"});
    Do(kPreview);

    app_.reset();

    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoPreview, IsRemovedFromEveryFolderThatHadOne) {
    fs::create_directory(File("other"));
    Start();
    Append({"one"});
    Do(kPreview);
    prefs_.misc_tempfilelocation = File("other");
    Do(kPreview);

    app_.reset();

    EXPECT_EQ(FolderContent(), Lines{"other"});
    EXPECT_TRUE(fs::is_empty(File("other")));
}

TEST_F(KirtoPreview, IsLeftAloneWhereSomebodyElseHasReplacedIt) {
    Start();
    Append({"one"});
    Do(kPreview);
    Write("other.gif", {'n', 'e', 'w'});
    fs::rename(File("other.gif"), File("kirtotemp.gif"));

    app_.reset();

    EXPECT_EQ(ReadBytes(File("kirtotemp.gif")), (std::vector<uint8>{'n', 'e', 'w'}));
}

}  // namespace

}  // namespace kirto::test
