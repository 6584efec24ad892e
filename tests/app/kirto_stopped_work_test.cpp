#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>

#include "app/kirto_fixture.h"
#include "base/abandonable.h"
#include "support/fli_builder.h"
#include "support/port_watcher.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using namespace std::chrono_literals;

// A picture format whose reader and writer do not come to an end until they are released.
class StuckRoster : public FakeRoster {
  public:
    status_t Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                       std::shared_ptr<BBitmap>* result) override {
        Wait();
        return FakeRoster::Translate(source, std::move(budget), result);
    }
    status_t Translate(const BBitmap& source, translator_id translator, uint32 format,
                       const BMessage& settings, BFile& destination) override {
        Wait();
        return FakeRoster::Translate(source, translator, format, settings, destination);
    }

    // So many pictures go through before the roster gets stuck.
    void LetThrough(int pictures) { let_through_ = pictures; }
    void WaitUntilStuck() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return stuck_; });
    }
    void Release() {
        const std::lock_guard lock(mutex_);
        released_ = true;
        changed_.notify_all();
    }

  private:
    void Wait() {
        std::unique_lock lock(mutex_);
        if (let_through_-- > 0) return;
        stuck_ = true;
        changed_.notify_all();
        changed_.wait(lock, [this] { return released_; });
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    int let_through_ = 0;
    bool stuck_ = false;
    bool released_ = false;
};

// Passes messages on and stops the application's work at a status text.
class StoppingPort : public MessagePort {
  public:
    StoppingPort(Kirto& application, std::shared_ptr<MessagePort> next, std::string text)
        : application_(application), next_(std::move(next)), text_(std::move(text)) {}

    status_t Post(BMessage message, handler_token handler) override {
        std::string text;
        if (message.FindString("text", &text) == B_OK && text == text_) {
            application_.work.Stop(application_.work.Running());
        }
        return next_->Post(std::move(message), handler);
    }
    bool IsOpen() const override { return true; }

  private:
    Kirto& application_;
    const std::shared_ptr<MessagePort> next_;
    const std::string text_;
};

class KirtoStoppedWork : public KirtoFixture {
  protected:
    void StopAt(const std::string& status) {
        app_->window =
            BMessenger(std::make_shared<StoppingPort>(*app_, desktop_.window, "Status: " + status));
    }
    void WritePictures(const Lines& names) {
        for (const std::string& name : names)
            Write(name, RawPicture(*PictureOf(2, 2, {1, 2, 3, 4})));
    }
    BMessage Fade(int32 count) {
        BMessage fade(kFadeToColor);
        fade.AddInt32("count", count);
        fade.AddInt32("color", 0);
        return fade;
    }
};

TEST_F(KirtoStoppedWork, KeepsWhatWasReadOfAFileAsAStepThatCanBeUndone) {
    Write("anim.gif", GifOf({10, 20, 10, 10}));
    Start();
    Append({"old"});
    StopAt("loading frame 3...");

    const std::string transcript = Do(Files(kOpenFile, {"anim.gif"}));

    EXPECT_TRUE(transcript.ends_with("svup(Status: canceled, 2 new frame(s) kept)")) << transcript;
    EXPECT_EQ(Names(), (Lines{"[frame0000]", "frame0001"}));
    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_FALSE(app_->HasUnsavedChanges());
    EXPECT_EQ(app_->CurrentState()->undo_name, "Open");

    Do(kUndo);
    EXPECT_EQ(Names(), Lines{});
    Do(kRedo);
    EXPECT_EQ(Names(), (Lines{"[frame0000]", "frame0001"}));
    EXPECT_FALSE(app_->HasUnsavedChanges());
}

TEST_F(KirtoStoppedWork, SharesOutThePausesOfWhatWasRead) {
    Write("anim.gif", GifOf({10, 20, 10, 10}));
    prefs_.global_pauseinseconds = true;
    Start();
    StopAt("loading frame 3...");

    Do(Files(kOpenFile, {"anim.gif"}));

    EXPECT_EQ(app_->FrameAt(1)->pause_length, 0.2);
}

TEST_F(KirtoStoppedWork, KeepsWhatWasInsertedOfAnAnimation) {
    Write("anim.gif", GifOf({10, 20, 10}));
    Start();
    Append({"old"});
    StopAt("loading frame 3...");
    BMessage insert = Files(kOpenFile, {"anim.gif"});
    insert.AddBool("reset", false);
    insert.AddInt32("position", 1);

    Do(insert);

    EXPECT_EQ(app_->FrameCount(), 2);
    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->undo_name, "Insert Animation");
}

TEST_F(KirtoStoppedWork, KeepsWhatWasReadOfAFlic) {
    FliBuilder flic(2, 1);
    for (int i = 0; i < 3; ++i)
        flic.Record().Color256({{0, {0x010203}}}).Copy({0, 0});
    Write("anim.flc", flic);
    Start();
    StopAt("loading frame 2 of 3...");

    Do(Files(kOpenFile, {"anim.flc"}));

    EXPECT_EQ(app_->FrameCount(), 1);
    EXPECT_TRUE(app_->Current()->use_loop);
    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoStoppedWork, KeepsTheImagesThatWereInserted) {
    WritePictures({"a", "b", "c"});
    Start();
    StopAt("loading frame 3 of 3...");

    const std::string transcript = Do(Files(kInsertFiles, {"a", "b", "c"}));

    EXPECT_TRUE(transcript.ends_with("svup(Status: canceled, 2 new frame(s) kept)")) << transcript;
    EXPECT_EQ(Names(), (Lines{"a", "[b]"}));
    Do(kUndo);
    EXPECT_EQ(Names(), Lines{});
}

TEST_F(KirtoStoppedWork, KeepsTheTilesThatWereCut) {
    WritePictures({"sheet"});
    desktop_.fields.rows = "2";
    desktop_.fields.columns = "2";
    Start();
    StopAt("loading tile 4 of 4...");

    const std::string transcript = Do(Files(kInsertTiledFile, {"sheet"}));

    EXPECT_TRUE(transcript.ends_with("svup(Status: canceled, 3 new frame(s) kept)")) << transcript;
    EXPECT_EQ(app_->FrameCount(), 3);
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoStoppedWork, KeepsTheFramesThatAFadeHasMade) {
    Start();
    Append({"one"});
    StopAt("generating frame 3 of 5...");

    const std::string transcript = Do(Fade(5));

    EXPECT_TRUE(transcript.ends_with("svup(Status: canceled, 2 new frame(s) kept)")) << transcript;
    EXPECT_EQ(Names(), (Lines{"[one]", "fade0000", "fade0001"}));
    Do(kUndo);
    EXPECT_EQ(Names(), Lines{"[one]"});
}

TEST_F(KirtoStoppedWork, ChangesNothingWhereNothingIsComplete) {
    Start();
    Append({"one"});
    StopAt("generating frame 1 of 5...");

    Do(Fade(5));

    EXPECT_EQ(Names(), Lines{"[one]"});
    EXPECT_FALSE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->undo_name, "");
}

TEST_F(KirtoStoppedWork, LeavesTheOldFileWhereASaveIsStopped) {
    Write("out.gif", {'o', 'l', 'd'});
    Start();
    Append({"one", "two"});
    app_->SetModified(true);
    StopAt("writing frame 2 of 2...");

    const std::string transcript = Do(SaveTo(folder_.Path(), "out.gif"));

    EXPECT_TRUE(transcript.ends_with(
        "auda svup(Status: saving was canceled, the file is as it was before)"))
        << transcript;
    EXPECT_EQ(ReadBytes(File("out.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
    EXPECT_EQ(FolderContent(), Lines{"out.gif"});
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoStoppedWork, ASaveToTheCurrentFileThatIsStoppedCanBeMadeAgainUnasked) {
    Start();
    Append({"one", "two"});
    Do(SaveTo(folder_.Path(), "out.gif"));
    TakeLines();
    const BMessenger window = app_->window;
    StopAt("writing frame 2 of 2...");
    Do(kSaveAgain);
    app_->window = window;
    TakeLines();

    Do(kSaveAgain);

    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoStoppedWork, TheFormatOfASaveThatIsStoppedIsNotTheDocuments) {
    Start();
    Append({"one", "two"});
    Do(SaveTo(folder_.Path(), "out.gif"));
    // What the panel's menu shows when it is closed.
    desktop_.fields.output_format = FakeRoster::kRaw;
    app_->GetSaveFilePanel();
    app_->RequestStop();
    Do(SaveTo(folder_.Path(), "movie.raw", FakeRoster::kRaw));
    app_->work.AllowAll();

    EXPECT_EQ(desktop_.fields.output_format, 0u);
    EXPECT_EQ(app_->CurrentState()->file_name, "out.gif");
    Do(kSaveAgain);
    EXPECT_EQ(FolderContent(), Lines{"out.gif"});
}

TEST_F(KirtoStoppedWork, ThePreviewIsNotShown) {
    Start();
    Append({"one"});
    StopAt("writing frame 1 of 1...");

    const std::string transcript = Do(kPreview);

    EXPECT_TRUE(transcript.ends_with("svup(Status: the preview was canceled)")) << transcript;
    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoStoppedWork, AStopThatComesTooLateStopsNothingElse) {
    WritePictures({"a"});
    Start();
    uint64 piece = 0;
    app_->window = BMessenger(std::make_shared<PortWatcher>(
        [&](uint32) { piece = std::max(piece, app_->work.Running()); }));
    Do(Files(kInsertFiles, {"a"}));
    ASSERT_NE(piece, 0u);

    app_->work.Stop(piece);
    Do(Files(kInsertFiles, {"a"}));

    EXPECT_EQ(app_->FrameCount(), 2);
}

TEST_F(KirtoStoppedWork, WhenTheWindowWantsToCloseWorkIsAllowedAgainOnceAllIsStopped) {
    WritePictures({"a", "b"});
    Start();
    app_->RequestStop();

    app_->PostMessage(Files(kInsertFiles, {"a"}));
    app_->PostMessage(kQuitWhenDone);
    const std::string transcript = Do(Files(kInsertFiles, {"b"}));

    EXPECT_NE(transcript.find("awqd"), std::string::npos);
    EXPECT_EQ(Names(), Lines{"[b]"});
}

// The same where the work is somebody else's code, which nobody can stop.
class KirtoWorkOfOthers : public KirtoStoppedWork {
  protected:
    // Destroyed after the application.
    ~KirtoWorkOfOthers() override {
        stuck_.Release();
        EXPECT_TRUE(WaitForAbandoned(10s));
    }
    void StartStuck() {
        app_ = std::make_unique<Kirto>(prefs_, desktop_, stuck_);
        app_->AddHandler(&barrier_);
        Run();
        WaitUntilIdle();
        desktop_.window->TakeTranscript();
        TakeLines();
    }
    // Posts the command, and stops it when the roster is stuck.
    std::string DoAndStop(const BMessage& command) {
        app_->PostMessage(command);
        stuck_.WaitUntilStuck();
        app_->work.Stop(app_->work.Running());
        WaitUntilIdle();
        return desktop_.window->TakeTranscript();
    }

    StuckRoster stuck_;

  private:
    // The roster counts the pictures in their order.
    const ScopedThreads threads_{1};
};

TEST_F(KirtoWorkOfOthers, AnImageThatIsStillBeingReadIsLeftOut) {
    WritePictures({"a", "b"});
    stuck_.LetThrough(1);
    StartStuck();

    const std::string transcript = DoAndStop(Files(kInsertFiles, {"a", "b"}));

    EXPECT_TRUE(transcript.ends_with("svup(Status: canceled, 1 new frame(s) kept)")) << transcript;
    EXPECT_EQ(Names(), Lines{"[a]"});
}

TEST_F(KirtoWorkOfOthers, AnImageThatIsStillBeingPastedIsLeftOut) {
    StartStuck();
    const std::vector<uint8> image = RawPicture(*PictureOf(2, 2, {1, 2, 3, 4}));
    BMessage paste(kPasteFrames);
    paste.AddData("bytes", B_RAW_TYPE, image.data(), image.size());
    paste.AddString("type", "image/png");

    const std::string transcript = DoAndStop(paste);

    EXPECT_TRUE(transcript.ends_with("svup(Status: canceled, 0 new frame(s) kept)")) << transcript;
    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(Names(), Lines{});
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoWorkOfOthers, ATileSheetThatIsStillBeingReadIsLeftOut) {
    WritePictures({"sheet"});
    desktop_.fields.rows = "2";
    desktop_.fields.columns = "2";
    StartStuck();

    const std::string transcript = DoAndStop(Files(kInsertTiledFile, {"sheet"}));

    EXPECT_TRUE(transcript.ends_with("svup(Status: canceled, 0 new frame(s) kept)")) << transcript;
    EXPECT_EQ(TakeLines(), Lines{"panel insert tiled made"});
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoWorkOfOthers, AFileThatIsStillBeingWrittenIsNotThere) {
    stuck_.LetThrough(1);
    StartStuck();
    Append({"one", "two", "three"});

    const std::string transcript =
        DoAndStop(SaveTo(folder_.Path(), "movie.raw", StuckRoster::kRaw));

    EXPECT_TRUE(transcript.ends_with("svup(Status: saving was canceled, 1 of 3 file(s) written)"))
        << transcript;
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    stuck_.Release();
    EXPECT_TRUE(WaitForAbandoned(10s));
    EXPECT_EQ(FolderContent(), Lines{"movie0000.raw"});
}

TEST_F(KirtoWorkOfOthers, TellsHowFarTheWorkIsOnceItTakesLong) {
    WritePictures({"a", "b"});
    stuck_.LetThrough(1);
    StartStuck();
    std::mutex mutex;
    std::condition_variable told;
    bool is_told = false;
    app_->window = BMessenger(std::make_shared<PortWatcher>([&](uint32 code) {
        desktop_.window->Post(BMessage(code), 0);
        const std::lock_guard lock(mutex);
        is_told = is_told || code == kWorkProgress;
        told.notify_all();
    }));

    app_->PostMessage(Files(kInsertFiles, {"a", "b"}));
    {
        std::unique_lock lock(mutex);
        told.wait(lock, [&] { return is_told; });
    }
    stuck_.Release();
    WaitUntilIdle();

    EXPECT_EQ(app_->FrameCount(), 2);
    // The last one says that it is over.
    EXPECT_TRUE(desktop_.window->TakeTranscript().ends_with("auda awrk"));
}

}  // namespace

}  // namespace kirto::test
