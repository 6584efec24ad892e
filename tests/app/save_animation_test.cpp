#include "app/save_animation.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "app/open_animation.h"
#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

const std::vector<uint8> kOldBytes = {'o', 'l', 'd'};

// A document of one frame and a folder to save it to.
struct SaveFixture : DocumentFixture {
    TemporaryFolder folder;
    std::string path = folder.File("movie.gif");

    SaveFixture() {
        EditOf(document)->width = 2;
        EditOf(document)->height = 1;
        AppendFrame(document, PictureOf(2, 1, {kRed, kBlue}), "frame");
        document.SetModified(true);
    }
    SaveResult Save() { return SaveTo(path); }
    SaveResult SaveTo(const std::string& target) { return SaveAnimatedGif(document, target); }
    SaveResult SavePreview() { return SavePreviewGif(document, path); }
    size_t EntriesInFolder() const {
        const fs::directory_iterator entries(folder.Path());
        return static_cast<size_t>(std::distance(begin(entries), end(entries)));
    }
};

// A document opened from a saved file.
struct Reopened : DocumentFixture {
    explicit Reopened(const std::string& path) {
        const DebugRecorder comments;
        BFile file(path, B_READ_ONLY);
        EXPECT_TRUE(OpenGif(&file, 0, document));
    }
};

// While it lives, files of this process grow no further than so many bytes.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : previous_handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        rlimit limit = previous_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previous_handler_);
    }

  private:
    rlimit previous_{};
    void (*previous_handler_)(int);
};

}  // namespace

TEST(SaveAnimatedGif, WritesAFileThatOpensAgain) {
    SaveFixture fixture;

    EXPECT_EQ(fixture.Save(), SaveResult::kSaved);

    const Reopened again(fixture.path);
    EXPECT_EQ(again.document.FrameCount(), 1);
    EXPECT_EQ(PixelsOf(*again.document.FirstFrame()->bitmap), (std::vector<uint32>{kRed, kBlue}));
}

TEST(SaveAnimatedGif, PostsItsProgressAndChangesNothingElse) {
    SaveFixture fixture;
    const std::string before = fixture.port->Transcript();

    fixture.Save();

    EXPECT_EQ(fixture.port->Transcript(), before + " svup(Status: writing frame 1 of 1...)");
    EXPECT_TRUE(fixture.document.Modified());
    EXPECT_EQ(fixture.document.CurrentState()->file_name, "untitled");
}

TEST(SaveAnimatedGif, ReplacesTheFileThatWasThere) {
    SaveFixture fixture;
    WriteBytes(fixture.path, kOldBytes);

    EXPECT_EQ(fixture.Save(), SaveResult::kSaved);

    const std::vector<uint8> bytes = ReadBytes(fixture.path);
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 6), "GIF89a");
    EXPECT_EQ(fixture.EntriesInFolder(), 1U);
}

TEST(SaveAnimatedGif, WritesThroughALinkToTheFileBehindIt) {
    SaveFixture fixture;
    const std::string link = fixture.folder.File("link.gif");
    WriteBytes(fixture.path, kOldBytes);
    fs::create_symlink("movie.gif", link);

    EXPECT_EQ(fixture.SaveTo(link), SaveResult::kSaved);

    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_FALSE(fs::is_symlink(fixture.path));
    EXPECT_NE(ReadBytes(fixture.path), kOldBytes);
    EXPECT_EQ(ReadBytes(link), ReadBytes(fixture.path));
}

TEST(SaveAnimatedGif, WritesNothingWhileAFrameIsLargerThanTheCanvas) {
    for (const bool too_wide : {true, false}) {
        SaveFixture fixture;
        WriteBytes(fixture.path, kOldBytes);
        fixture.document.Change([too_wide](Animation& animation) {
            (too_wide ? animation.width : animation.height) -= 1;
        });

        EXPECT_EQ(fixture.Save(), SaveResult::kFrameTooLarge);

        EXPECT_EQ(ReadBytes(fixture.path), kOldBytes);
        EXPECT_EQ(fixture.EntriesInFolder(), 1U);
    }
}

TEST(SaveAnimatedGif, AllowsFramesThatOverhangTheCanvas) {
    SaveFixture fixture;
    FrameEditOf(fixture.document, 0)->x_offset = 1;

    EXPECT_EQ(fixture.Save(), SaveResult::kSaved);
}

TEST(SaveAnimatedGif, CanNotBeCreatedWhereNoFileCanBe) {
    SaveFixture fixture;

    EXPECT_EQ(fixture.SaveTo(fixture.folder.File("missing/movie.gif")),
              SaveResult::kFileNotCreated);
    EXPECT_EQ(fixture.SaveTo(fixture.folder.Path()), SaveResult::kFileNotCreated);
    EXPECT_EQ(fixture.SaveTo("/dev/null"), SaveResult::kFileNotCreated);
    EXPECT_EQ(fixture.SaveTo(""), SaveResult::kFileNotCreated);

    EXPECT_EQ(fixture.EntriesInFolder(), 0U);
}

TEST(SaveAnimatedGif, LeavesTheOldFileWhenWritingFails) {
    SaveFixture fixture;
    WriteBytes(fixture.path, kOldBytes);
    {
        const FileSizeLimit limit(64);
        EXPECT_EQ(fixture.Save(), SaveResult::kWriteFailed);
    }

    EXPECT_EQ(ReadBytes(fixture.path), kOldBytes);
    EXPECT_EQ(fixture.EntriesInFolder(), 1U);
}

TEST(SaveAnimatedGif, LeavesTheOldFileWhenItWasToldToStop) {
    SaveFixture fixture;
    WriteBytes(fixture.path, kOldBytes);
    fixture.document.RequestStop();

    EXPECT_EQ(fixture.Save(), SaveResult::kStopped);

    EXPECT_EQ(ReadBytes(fixture.path), kOldBytes);
    EXPECT_EQ(fixture.EntriesInFolder(), 1U);
}

TEST(SaveAnimatedGif, RemovesWhatAKilledSaveHasLeft) {
    SaveFixture fixture;
    const std::string leftover = fixture.folder.File(".kirto-0123456789abcdef");
    WriteBytes(leftover, kOldBytes);
    fs::last_write_time(leftover, fs::file_time_type::clock::now() - std::chrono::hours(2));

    EXPECT_EQ(fixture.Save(), SaveResult::kSaved);

    EXPECT_EQ(fixture.EntriesInFolder(), 1U);
}

TEST(SaveAnimatedGif, WritesAnAnimationWithoutFrames) {
    SaveFixture fixture;
    fixture.document.RemoveFrame();

    EXPECT_EQ(fixture.Save(), SaveResult::kSaved);

    const Reopened again(fixture.path);
    EXPECT_EQ(again.document.FrameCount(), 0);
    EXPECT_EQ(again.document.Current()->width, 2);
}

TEST(SavePreviewGif, WritesAFileThatOnlyTheUserCanRead) {
    SaveFixture fixture;

    EXPECT_EQ(fixture.SavePreview(), SaveResult::kSaved);

    EXPECT_EQ(fs::status(fixture.path).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(Reopened(fixture.path).document.FrameCount(), 1);
}

TEST(SavePreviewGif, ReplacesALinkAndLeavesTheFileBehindIt) {
    SaveFixture fixture;
    const std::string target = fixture.folder.File("precious.txt");
    WriteBytes(target, kOldBytes);
    fs::create_symlink(target, fixture.path);

    EXPECT_EQ(fixture.SavePreview(), SaveResult::kSaved);

    EXPECT_FALSE(fs::is_symlink(fixture.path));
    EXPECT_EQ(ReadBytes(target), kOldBytes);
}

TEST(SavePreviewGif, CanNotBeCreatedInAMissingFolder) {
    SaveFixture fixture;
    fixture.path = fixture.folder.File("missing/preview.gif");

    EXPECT_EQ(fixture.SavePreview(), SaveResult::kFileNotCreated);
}

TEST(SaveAnimation, OfColorsThatNoPaletteHasIsExactOnceItIsFaithful) {
    SaveFixture saved;
    AppendFrame(saved.document, PictureOf(2, 1, {0xFF123456, 0}), "odd");
    std::string loss = "unknown";
    saved.document.prefs.animation_faithful = true;
    ASSERT_EQ(SaveAnimatedGif(saved.document, saved.path, &loss), SaveResult::kSaved);
    EXPECT_EQ(loss, "");

    Reopened reopened(saved.path);
    EXPECT_EQ(PixelsOf(*reopened.document.FrameAt(0)->bitmap), (std::vector<uint32>{kRed, kBlue}));
    EXPECT_EQ(PixelColor(reopened.document.FrameAt(1)->bitmap.get(), 0, 0),
              (rgb_color{0x12, 0x34, 0x56, 255}));
}

TEST(SaveAnimation, OfTooManyColorsTellsHowNearItIs) {
    SaveFixture saved;
    std::vector<uint32> argb;
    for (uint32 i = 0; i < 600; ++i)
        argb.push_back(0xFF000000 | i * 300);
    EditOf(saved.document)->width = 600;
    AppendFrame(saved.document, PictureOf(600, 1, argb), "many");
    std::string loss;
    saved.document.prefs.animation_faithful = true;
    ASSERT_EQ(SaveAnimatedGif(saved.document, saved.path, &loss), SaveResult::kSaved);
    EXPECT_NE(loss.find("% of the pixels got another color, by "), std::string::npos) << loss;
}

TEST(SaveAnimation, AFaithfulOneThatIsStoppedLeavesTheOldFile) {
    SaveFixture saved;
    WriteBytes(saved.path, kOldBytes);
    saved.document.prefs.animation_faithful = true;
    saved.document.RequestStop();
    EXPECT_EQ(saved.Save(), SaveResult::kStopped);
    EXPECT_EQ(ReadBytes(saved.path), kOldBytes);
    EXPECT_EQ(saved.EntriesInFolder(), 1u);
}

TEST(SaveAnimation, AFaithfulOneThatTheDiskHasNoRoomForLeavesTheOldFile) {
    SaveFixture saved;
    WriteBytes(saved.path, kOldBytes);
    saved.document.prefs.animation_faithful = true;
    const FileSizeLimit limit(10);
    EXPECT_EQ(saved.Save(), SaveResult::kWriteFailed);
    EXPECT_EQ(ReadBytes(saved.path), kOldBytes);
}

}  // namespace kirto::test
