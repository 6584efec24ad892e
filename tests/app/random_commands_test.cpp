// Drives the running application with random commands while other threads read the document as
// windows do. Made for ThreadSanitizer, and a test of the list's invariants everywhere.
#include <atomic>
#include <gtest/gtest.h>
#include <iterator>
#include <thread>

#include "app/kirto_fixture.h"
#include "document/document_scope.h"
#include "support/random_document.h"

namespace kirto::test {

namespace {

constexpr int32 kBatches = 20;
constexpr int32 kCommandsPerBatch = 1000;
constexpr int32 kReaders = 3;
// A stream of readers without pauses would keep the writer out for ever.
constexpr bigtime_t kReaderPause = 2000;  // microseconds
constexpr int32 kManyFrames = 60;

const Lines kAnimations = {"anim.gif", "broken.gif", "anim.flc", "notes.txt"};
const Lines kImages = {"one.raw", "two.raw", "notes.txt"};

template <typename Container>
const auto& OneOf(ChoiceSource& choices, const Container& values) {
    return *std::next(std::begin(values), choices.Below(static_cast<uint32>(std::size(values))));
}

uint64 SumOf(const Palette& palette) {
    return static_cast<uint64>(palette.mode) + static_cast<uint64>(palette.size) +
           palette.colors.front().red + palette.colors.back().blue + (palette.dither ? 1 : 0);
}

uint64 SumOf(const Frame& frame) {
    const std::vector<uint32> pixels = PixelsOf(*frame.bitmap);
    return frame.name.size() + static_cast<uint64>(frame.width + frame.x_offset) +
           static_cast<uint64>(frame.pause_length) + (frame.use_pause ? 1 : 0) + pixels.front() +
           pixels.back() + SumOf(*frame.palette);
}

// Reads all that a window shows, and checks the list on the way. The sum keeps the reads from being
// left out.
uint64 ReadDocument(const AnimationDocument& document) {
    const auto state = document.CurrentState();
    const Animation& animation = *state->animation;
    uint64 sum = state->file_name.size() + state->file_directory.size() + state->undo_name.size() +
                 static_cast<uint64>(animation.width + animation.height) +
                 static_cast<uint64>(animation.loop_count) +
                 static_cast<uint64>(animation.pause_length) + (state->modified ? 1 : 0) +
                 (animation.use_loop ? 1 : 0) + (animation.use_pause ? 1 : 0) +
                 SumOf(*animation.palette) + state->settings->misc_tempfilelocation.size() +
                 state->settings->palette_filename.size() +
                 static_cast<uint64>(state->settings->global_width);
    int32 visited = 0;
    for (const FramePointer& frame : animation.frames) {
        EXPECT_EQ(animation.frames.At(visited), frame);
        ++visited;
        sum += SumOf(*frame);
    }
    EXPECT_EQ(animation.frames.Size(), visited);
    EXPECT_GE(animation.selected, visited == 0 ? -1 : 0);
    EXPECT_LT(animation.selected, visited == 0 ? 0 : visited);
    EXPECT_EQ(animation.Selection().Contains(animation.selected), visited > 0);
    EXPECT_LT(animation.Selection().Last(), std::max(visited, 1));
    return sum;
}

// Threads that read the document for as long as it lives.
class Readers {
  public:
    explicit Readers(AnimationDocument& document) {
        for (int32 i = 0; i < kReaders; ++i)
            threads_.emplace_back([this, &document, i] { Read(document, i == 0); });
    }
    ~Readers() {
        done_ = true;
        for (std::thread& thread : threads_)
            thread.join();
    }
    uint64 Reads() const { return reads_; }

  private:
    // One of them enters the lock, which keeps the writer out meanwhile; nobody has to.
    void Read(AnimationDocument& document, bool locks) {
        while (!done_) {
            if (locks) {
                const ReaderScope reader(document);
                Count(ReadDocument(document));
            } else {
                Count(ReadDocument(document));
            }
            snooze(kReaderPause);
        }
    }
    void Count(uint64 sum) {
        sum_ += sum;
        ++reads_;
    }

    std::atomic<bool> done_ = false;
    std::atomic<uint64> reads_ = 0;
    std::atomic<uint64> sum_ = 0;
    std::vector<std::thread> threads_;
};

class RandomCommands : public KirtoFixture, public ::testing::WithParamInterface<uint32> {
  protected:
    void WriteFiles() const {
        Write("anim.gif", GifOf({10, 10, 20}));
        std::vector<uint8> broken = GifOf({5, 0});
        broken.resize(broken.size() - 5);
        Write("broken.gif", broken);
        Write("anim.flc", SmallFlc());
        Write("one.raw", RawPicture(*PictureOf(2, 1, {0xFF0000FF, 0x00FF0000})));
        Write("two.raw", RawPicture(*PictureOf(1, 3, {1, 2, 3}, B_RGBA32_BIG)));
        Write("notes.txt", {'n', 'o'});
    }

    BMessage NextCommand() {
        // Most commands only move things about; those that make palettes take a while.
        if (choices_.OneIn(40)) return LongCommand();
        if (choices_.OneIn(600)) return SavingCommand();
        static constexpr uint32 kCodes[] = {kSelectFrame,   kSelectFrame,    kSelectFrame,
                                            kMoveFrameUp,   kMoveFrameDown,  kMoveFrameUp,
                                            kReverseFrames, kMoveFrameDown,  kFrameWebSafe,
                                            kFrameSystem,   kFrameGreyscale, B_CANCEL};
        if (choices_.OneIn(120)) return BMessage(kRemoveFrame);
        if (choices_.OneIn(8)) return Arrangement();
        if (choices_.OneIn(10)) return PictureCommand();
        if (choices_.OneIn(3000)) return BMessage(kResetDocument);
        if (choices_.OneIn(50)) return BMessage(choices_.Below(1u << 31));
        if (choices_.OneIn(3)) return PanelEdit();
        if (choices_.OneIn(8)) return BMessage(choices_.OneIn(3) ? kRedo : kUndo);
        BMessage message(OneOf(choices_, kCodes));
        if (message.what == kSelectFrame) message.AddInt32("number", choices_.Between(-2, 20));
        if (message.what == B_CANCEL) message.AddPointer("source", AnyPanel());
        return message;
    }

    // Most of them find several frames selected.
    BMessage Arrangement() {
        static constexpr uint32 kCodes[] = {
            kSelectFrames, kSelectFrames,    kSelectFrames,     kMoveFramesTo,  kMoveFramesTo,
            kCopyFramesTo, kDuplicateFrames, kRemoveDuplicates, kDropEveryNth,  kDropEveryNth,
            kSetPauses,    kSetPauses,       kStartAtCurrent,   kForwardAndBack};
        BMessage message(OneOf(choices_, kCodes));
        // Copies would make more and more of them.
        const bool copies = message.what == kCopyFramesTo || message.what == kDuplicateFrames ||
                            message.what == kForwardAndBack;
        if (copies && !choices_.OneIn(6)) message.what = kDropEveryNth;
        message.AddString("frames", OneOf(choices_, Lines{"0-2", "all", "1,3", "0--1/2", "none"}));
        message.AddString("pause", OneOf(choices_, Lines{"7", "40ms", "20fps", "50%", "no"}));
        message.AddInt32("position", choices_.Between(-1, 12));
        message.AddInt32("number", choices_.Between(0, 4));
        message.AddBool("all", choices_.OneIn(4));
        message.AddBool("own", choices_.OneIn(2));
        return message;
    }

    // Sides stay small, whatever else happens to them.
    BMessage PictureCommand() {
        static constexpr uint32 kCodes[] = {
            kResizeAnimation, kCropAnimation, kSetCanvasSize, kRotateAnimation, kFlipAnimation,
            kFitFrames,       kAdjustColors,  kSetOpacity,    kMakeTransparent, kOverlayImage};
        const uint32 code = OneOf(choices_, kCodes);
        BMessage message =
            code == kOverlayImage ? Files(code, {OneOf(choices_, kImages)}) : BMessage(code);
        for (const char* field : {"width", "height"})
            message.AddInt32(field, choices_.Between(0, 12));
        for (const char* field : {"left", "top", "x", "y"})
            message.AddInt32(field, choices_.Between(-3, 9));
        if (choices_.OneIn(4)) message.AddInt32("trim", choices_.Between(0, 1));
        for (const char* field : {"filter", "fit"})
            message.AddInt32(field, choices_.Between(0, 3));
        message.AddInt32("anchor", choices_.Between(0, 9));
        message.AddInt32("quarters", choices_.Between(0, 4));
        message.AddBool("across", choices_.OneIn(2));
        for (const char* field : {"brightness", "contrast", "saturation"})
            message.AddInt32(field, choices_.Between(-101, 101));
        message.AddInt32("percent", choices_.Between(0, 101));
        message.AddInt32("tolerance", choices_.Between(0, 256));
        message.AddInt32("color", static_cast<int32>(choices_.Below(1u << 31)));
        return message;
    }

    BMessage PanelEdit() {
        static constexpr uint32 kCodes[] = {
            kSetWidth,           kUsePause,       kSetPauseLength,     kPaletteToSystem,
            kPaletteToGreyscale, kSetDither,      kFrameSetXOffset,    kFrameSetPauseLength,
            kFrameUsePalette,    kUseTransparent, kFramePaletteToFile, kSetLoopCount};
        BMessage message(OneOf(choices_, kCodes));
        // Under one name, so that each code finds its type; some find none.
        switch (choices_.Below(3)) {
            case 0:
                message.AddInt32("value", choices_.Between(2, 20));
                break;
            case 1:
                message.AddDouble("value", choices_.Between(0, 50));
                break;
            default:
                message.AddBool("value", choices_.OneIn(2));
                break;
        }
        return message;
    }

    BMessage LongCommand() {
        static constexpr uint32 kCodes[] = {
            kOpenFile,    kInsertFiles, kInsertTiledFile, B_SIMPLE_DATA,     B_REFS_RECEIVED,
            kFadeToColor, kFadeToNext,  kFadeFromColor,   kFadeFromPrevious, kFrameOptimal};
        const uint32 code = OneOf(choices_, kCodes);
        const bool of_animations = code == kOpenFile || (code != kInsertFiles && choices_.OneIn(2));
        BMessage message = Files(code, {OneOf(choices_, of_animations ? kAnimations : kImages)});
        if (choices_.OneIn(10)) message = BMessage(code);
        if (choices_.OneIn(2)) message.AddInt32("position", choices_.Between(-3, 12));
        if (!choices_.OneIn(10)) message.AddBool("reset", choices_.OneIn(10));
        message.AddInt32("count", choices_.Between(-1, 3));
        if (choices_.OneIn(3)) message.AddInt32("tile_width", choices_.Between(-1, 2));
        if (choices_.OneIn(3)) message.AddInt32("tile_height", choices_.Between(0, 2));
        if (choices_.OneIn(3)) message.AddInt32("margin", choices_.Between(-1, 1));
        if (choices_.OneIn(3)) message.AddInt32("spacing", choices_.Between(-1, 1));
        message.AddBool("skip_empty", choices_.OneIn(3));
        message.AddInt32("color", static_cast<int32>(choices_.Below(1u << 31)));
        return message;
    }

    BMessage SavingCommand() {
        if (choices_.OneIn(3)) return BMessage(kPreview);
        if (choices_.OneIn(3)) return BMessage(kSaveAgain);
        if (choices_.OneIn(3)) return StoringCommand();
        if (choices_.OneIn(2)) return SheetCommand();
        return SaveTo(choices_.OneIn(8) ? File("missing") : folder_.Path(), "out.gif",
                      choices_.Between(0, FakeRoster::kReadOnly));
    }

    BMessage SheetCommand() {
        BMessage message = SaveTo(folder_.Path(), "sheet.raw", choices_.Between(0, 2));
        message.what = kSaveSheet;
        message.AddInt32("columns", choices_.Between(-1, 3));
        message.AddInt32("padding", choices_.Between(-1, 3));
        message.AddBool("power_of_two", choices_.OneIn(2));
        return message;
    }

    BMessage StoringCommand() {
        Prefs changed{Prefs::BuiltIn{}};
        changed.global_width = choices_.Between(1, 500);
        changed.palette_filename = std::string(choices_.Below(200), 'p');
        changed.misc_tempfilelocation = choices_.OneIn(2) ? folder_.Path() : File("missing");
        BMessage message(kStoreSettings);
        changed.AddTo(&message);
        return message;
    }

    const FilePanel* AnyPanel() {
        return OneOf(choices_, std::vector<const FilePanel*>{open_panel_, save_panel_, nullptr});
    }

    // What a user does between commands, while the application is idle.
    void ChangeCircumstances() {
        // Saving may have written over the files, and a reset leaves little to move about.
        WriteFiles();
        if (app_->FrameCount() > kManyFrames) Do(kResetDocument);
        if (app_->FrameCount() < 3) Append({"one", "two", "three", "four", "five", "six"});
        std::vector<int32> answers(kCommandsPerBatch);
        for (int32& answer : answers)
            answer = choices_.OneIn(6) ? 1 : choices_.OneIn(2) ? 0 : 2;
        desktop_.Answer(answers);
        desktop_.fields = {choices_.Below(2), choices_.OneIn(4) ? "" : "1", "2", choices_.OneIn(2)};
        prefs_.thumbnail_height = choices_.Between(0, 3);
        prefs_.palette_mapping = choices_.OneIn(5) ? kPaletteFromFile : choices_.Between(0, 2);
        prefs_.palette_filename = File(OneOf(choices_, kAnimations));
        prefs_.animation_gifloadfullframe = choices_.OneIn(2);
        prefs_.global_pauseinseconds = choices_.OneIn(2);
        prefs_.global_setdimensions = choices_.OneIn(2);
        if (choices_.OneIn(4)) PaletteEditOf(*app_)->Set(choices_.Between(0, 8));
        if (choices_.OneIn(4) && app_->CurrentFrame()) {
            FramePaletteEditOf(*app_, app_->Selected())->Set(kPaletteAwaitingFile);
        }
    }

    ScopedEnvironment configuration_{"XDG_CONFIG_HOME", folder_.Path().c_str()};
    SeededChoices choices_{GetParam()};
    const FilePanel* open_panel_ = nullptr;
    const FilePanel* save_panel_ = nullptr;
};

TEST_P(RandomCommands, KeepTheDocumentWholeForEveryReader) {
    Start();
    open_panel_ = app_->GetOpenFilePanel();
    save_panel_ = app_->GetSaveFilePanel();
    app_->GetInsertTiledFilePanel();
    const Readers readers(*app_);

    for (int32 batch = 0; batch < kBatches && !HasFailure(); ++batch) {
        ChangeCircumstances();
        for (int32 i = 0; i < kCommandsPerBatch; ++i)
            app_->PostMessage(NextCommand());
        Do(kReverseFrames);
        TakeLines();
        ReadDocument(*app_);
    }

    EXPECT_GT(readers.Reads(), 0u);
}

// What an edit of the history was made of.
struct Edit {
    std::shared_ptr<const Animation> before;
    std::shared_ptr<const Animation> after;
};

// Follows the history from outside: what each edit found and left.
class EditLog {
  public:
    explicit EditLog(Kirto& app) : app_(app) {}

    // Carries the command out, which is none of the history's own.
    void Do(BMessage command) {
        const auto before = app_.CurrentState();
        app_.MessageReceived(&command);
        const auto after = app_.CurrentState();
        const auto steps = static_cast<size_t>(after->undo_steps);
        if (steps == edits_.size() + 1) {
            edits_.push_back({before->animation, after->animation});
        } else if (steps == 0) {
            edits_.clear();
        } else if (before->animation != after->animation &&
                   (command.what == kOpenFile || command.what == B_CANCEL)) {
            // A palette's file belongs to the edit that asked for it.
            edits_.back().after = after->animation;
        }
        ASSERT_EQ(steps, edits_.size());
    }
    // Undoes so many edits, or as many as there are, and redoes them again.
    void GoBackAndForth(size_t count) {
        count = std::min(count, edits_.size());
        for (size_t i = 0; i < count; ++i) {
            ASSERT_TRUE(app_.Undo());
            ASSERT_EQ(*app_.Current(), *edits_[edits_.size() - 1 - i].before) << "edit " << i;
        }
        for (size_t i = count; i > 0; --i) {
            ASSERT_TRUE(app_.Redo());
            ASSERT_EQ(*app_.Current(), *edits_[edits_.size() - i].after) << "edit " << i;
        }
    }
    size_t Count() const { return edits_.size(); }

  private:
    Kirto& app_;
    std::vector<Edit> edits_;
};

TEST_P(RandomCommands, AreUndoneAndRedoneExactly) {
    constexpr int32 kCommands = 50000;
    constexpr int32 kFewFrames = 30;
    Make();
    open_panel_ = app_->GetOpenFilePanel();
    save_panel_ = app_->GetSaveFilePanel();
    WriteFiles();
    desktop_.fields = {0, "1", "2", false};
    Append({"one", "two", "three", "four", "five", "six"});
    app_->StartHistory();
    EditLog log(*app_);
    size_t most = 0;

    for (int32 i = 0; i < kCommands && !HasFatalFailure(); ++i) {
        BMessage command = NextCommand();
        if (command.what == kUndo || command.what == kRedo) continue;
        // Frames would grow without end where most commands insert, and files be overwritten.
        if (app_->FrameCount() > kFewFrames) command = BMessage(kRemoveFrame);
        if (i % 5000 == 0) WriteFiles();
        log.Do(command);
        if (choices_.OneIn(200)) log.GoBackAndForth(choices_.Below(100));
        most = std::max(most, log.Count());
        if (i % 1000 == 0) TakeLines();
    }
    log.GoBackAndForth(log.Count());

    EXPECT_GT(most, 500u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomCommands, ::testing::Values(1u, 2u, 3u, 4u, 5u));

}  // namespace

}  // namespace kirto::test
