#include <filesystem>
#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "app/recovery/crash_recovery.h"
#include "support/same_animation.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

constexpr auto kFarAway = std::chrono::hours(1);
constexpr int32 kDiscard = 0;
constexpr int32 kLater = 1;

// The application beside what an editor has left that did not come to its end.
class KirtoRecovery : public KirtoFixture {
  protected:
    // The application goes before what it uses.
    ~KirtoRecovery() override { app_.reset(); }

    // A document of two frames, as an editor wrote it that was killed afterward.
    void LeaveDocument(const std::string& name, const std::string& directory = "/pictures") {
        DocumentFixture left;
        AppendFrame(left.document, PictureOf(2, 1, {0xFF102030, 0xFF405060}), "one");
        AppendFrame(left.document, PictureOf(1, 1, {0xFF708090}), "two");
        left.document.SetFile(directory, name);
        left.document.SetModified(true);
        left_ = left.document.CurrentState();
        RecoveryStore store(Folder(), ++start_);
        ASSERT_EQ(store.Write(*left_), B_OK);
        left_path_ = store.OwnPath();
    }
    void StartWithRecovery() {
        recovery_.emplace(Folder(), kFarAway);
        Make();
        recovery_->Watch(*app_);
        app_->UseRecovery(*recovery_);
        Run();
    }
    std::string Folder() const { return File("recovery"); }
    Lines Copies() const {
        Lines names;
        for (const auto& entry : fs::directory_iterator(Folder())) {
            if (entry.path().extension() == ".recovery") names.push_back(entry.path());
        }
        return names;
    }

    std::shared_ptr<const DocumentState> left_;
    std::string left_path_;
    int64 start_ = 0;
    std::optional<CrashRecovery> recovery_;
};

TEST_F(KirtoRecovery, OffersWhatAnEditorHasLeftWithItsNameAndItsSize) {
    LeaveDocument("walk.gif");
    StartWithRecovery();
    desktop_.Answer({kLater});

    EXPECT_EQ(Do(kOfferRecovery), "");

    const Lines lines = TakeLines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("The editor ended unexpectedly. \"walk.gif\" (2 frame(s), "),
              std::string::npos)
        << lines[0];
    EXPECT_TRUE(lines[0].ends_with(") can be recovered. | Discard | Later | Recover")) << lines[0];
    EXPECT_TRUE(fs::exists(left_path_));
    EXPECT_EQ(app_->FrameCount(), 0);
}

TEST_F(KirtoRecovery, RestoresTheDocumentAsModifiedUnderItsNameAndWithoutEdits) {
    LeaveDocument("walk.gif");
    StartWithRecovery();
    Append({"before"});
    Do(kRemoveFrame);
    ASSERT_EQ(app_->CurrentState()->undo_steps, 1);
    app_->SetModified(false);

    EXPECT_EQ(Do(kOfferRecovery), "tvff auda aued");

    const auto state = app_->CurrentState();
    EXPECT_TRUE(SameAnimation(*state->animation, *left_->animation));
    EXPECT_EQ(state->file_directory, "/pictures");
    EXPECT_EQ(state->file_name, "walk.gif");
    EXPECT_TRUE(state->modified);
    EXPECT_EQ(state->undo_steps, 0);
}

TEST_F(KirtoRecovery, SavesARecoveredDocumentToItsFileUnaskedWhereThatIsOlderThanTheCopy) {
    Write("walk.gif", {'o', 'l', 'd'});
    fs::last_write_time(File("walk.gif"), fs::file_time_type::clock::now() - std::chrono::hours(1));
    LeaveDocument("walk.gif", folder_.Path());
    StartWithRecovery();
    Do(kOfferRecovery);
    TakeLines();

    Do(kSaveAgain);

    EXPECT_EQ(TakeLines(), Lines{"panel save made"});
    EXPECT_EQ(ReadBytes(File("walk.gif")).at(0), 'G');
}

TEST_F(KirtoRecovery, AsksBeforeARecoveredDocumentReplacesAFileThatIsNewerThanTheCopy) {
    LeaveDocument("walk.gif", folder_.Path());
    Write("walk.gif", {'n', 'e', 'w'});
    fs::last_write_time(File("walk.gif"), fs::file_time_type::clock::now() + std::chrono::hours(1));
    StartWithRecovery();
    Do(kOfferRecovery);
    TakeLines();

    Do(kSaveAgain);

    EXPECT_EQ(TakeLines().size(), 3u);
    EXPECT_EQ(ReadBytes(File("walk.gif")).at(0), 'n');
}

TEST_F(KirtoRecovery, ARecoveredDocumentIsModifiedAlsoAfterItsEditsWereUndone) {
    LeaveDocument("walk.gif");
    StartWithRecovery();
    Do(kOfferRecovery);

    Do(kRemoveFrame);
    Do(kUndo);

    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(app_->FrameCount(), 2);
}

TEST_F(KirtoRecovery, ARecoveredDocumentIsKeptAsACopyOfThisEditor) {
    LeaveDocument("walk.gif");
    StartWithRecovery();

    Do(kOfferRecovery);

    const Lines copies = Copies();
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_NE(copies[0], left_path_);
}

TEST_F(KirtoRecovery, ADiscardedDocumentIsGone) {
    LeaveDocument("walk.gif");
    StartWithRecovery();
    desktop_.Answer({kDiscard});

    Do(kOfferRecovery);

    EXPECT_EQ(Copies(), Lines{});
    EXPECT_EQ(app_->FrameCount(), 0);
}

TEST_F(KirtoRecovery, OffersNoMoreDocumentsThanOneCanBeRecovered) {
    LeaveDocument("one.gif");
    LeaveDocument("two.gif");
    StartWithRecovery();

    Do(kOfferRecovery);

    EXPECT_EQ(TakeLines().size(), 1u);
    EXPECT_EQ(Copies().size(), 2u);  // of this editor, and the other one
}

TEST_F(KirtoRecovery, ADamagedCopyIsReportedPutAsideAndChangesNothing) {
    LeaveDocument("walk.gif");
    std::vector<uint8> bytes = ReadBytes(left_path_);
    bytes[bytes.size() - 1] ^= 0xFF;
    WriteBytes(left_path_, bytes);
    StartWithRecovery();
    Append({"mine"});

    Do(kOfferRecovery);

    const Lines lines = TakeLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1], WarningLine("The animation can't be recovered because its copy was "
                                    "damaged. The copy has been put aside."));
    EXPECT_EQ(Names(), Lines{"[mine]"});
    EXPECT_FALSE(fs::exists(left_path_));
    EXPECT_TRUE(fs::exists(left_path_ + ".damaged"));
}

TEST_F(KirtoRecovery, UnsavedChangesAreNotReplacedAndTheCopyStays) {
    LeaveDocument("walk.gif");
    StartWithRecovery();
    Append({"mine"});
    app_->SetModified(true);

    Do(kOfferRecovery);

    const Lines lines = TakeLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1],
              WarningLine("The animation can't be recovered because the open one has unsaved "
                          "changes. It will be offered again when the editor is started next."));
    EXPECT_EQ(Names(), Lines{"[mine]"});
    EXPECT_TRUE(fs::exists(left_path_));
}

TEST_F(KirtoRecovery, AnEditIsCopiedAndTheCopyGoesWithTheLastCall) {
    StartWithRecovery();
    Append({"mine"});
    app_->SetModified(true);

    EXPECT_EQ(recovery_->WriteNow(), B_OK);
    EXPECT_EQ(Copies().size(), 1u);

    app_->Quit();
    app_->SetObserver(nullptr);
    recovery_->Remove();
    EXPECT_EQ(Copies(), Lines{});
}

TEST_F(KirtoRecovery, WithoutAnythingLeftNobodyIsAsked) {
    StartWithRecovery();

    EXPECT_EQ(Do(kOfferRecovery), "");

    EXPECT_EQ(TakeLines(), Lines{});
}

}  // namespace

}  // namespace kirto::test
