// What the editor does where memory ends, whichever allocation finds none.
#include "app/refused_memory.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "app/kirto_fixture.h"
#include "support/fli_builder.h"
#include "support/same_animation.h"

namespace kirto::test {

namespace {

constexpr size_t kLarge = 64 << 10;
constexpr int32 kSide = 300;
constexpr char kAlert[] = "Out of memory.";
// Each 17th of all allocations is refused in its turn, but each one of the large ones.
constexpr int64 kStep = 17;

std::vector<uint8> Noise(uint32 seed, uint32 colors) {
    std::mt19937 random(seed);
    std::vector<uint8> indices(size_t{kSide} * kSide);
    for (uint8& index : indices)
        index = static_cast<uint8>(random() % colors);
    return indices;
}

std::vector<uint8> LargeGif() {
    GifBuilder gif(kSide, kSide, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
    for (uint32 i = 0; i < 3; ++i) {
        GifBuilder::Image image;
        image.width = image.height = kSide;
        image.indices = Noise(i, 4);
        image.min_code_size = 2;
        gif.Control(0, 10).Add(image);
    }
    return gif.Trailer();
}

std::vector<uint8> LargeFlc() {
    FliBuilder fli(kSide, kSide);
    fli.Record().Color256({{0, {0, 0xFF0000, 0x00FF00}}}).Copy(Noise(7, 3));
    return fli.Record().Copy(Noise(8, 3));
}

std::vector<uint8> LargeImage() {
    std::vector<uint32> pixels(size_t{kSide} * kSide);
    for (size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = 0xFF000000 | static_cast<uint32>(i * 2654435761U >> 8);
    return RawPicture(*PictureOf(kSide, kSide, pixels));
}

// Marks the application's thread, which is the one that it is handled on.
class Marker : public BHandler {
  public:
    void MessageReceived(BMessage*) override { RefusedMemory::MarkThread(); }
};

struct Operation {
    std::string name;
    bool faithful = false;
    // Posted before memory is refused, and what is tried.
    std::vector<BMessage> before;
    BMessage tried;
};

BMessage Sized(uint32 code, int32 width, int32 height) {
    BMessage message(code);
    message.AddInt32("width", width);
    message.AddInt32("height", height);
    return message;
}

BMessage Faded(uint32 code) {
    BMessage message(code);
    message.AddInt32("count", 3);
    message.AddInt32("color", 0x123456);
    return message;
}

class RefusedMemoryTest : public KirtoFixture {
  protected:
    // What an operation has left: of the document and of the folder.
    struct Outcome {
        std::shared_ptr<const Animation> animation;
        std::map<std::string, std::vector<uint8>> files;
        Lines lines;
    };

    BMessage Opened(const std::string& name) const {
        BMessage open = Files(kOpenFile, {name});
        open.AddBool("reset", true);
        return open;
    }

    std::vector<Operation> Operations() const {
        const BMessage open = Opened("large.gif");
        BMessage other = Sized(kResizeAnimation, 200, 250);
        other.AddInt32("filter", 2);
        return {{"open a GIF", false, {}, open},
                {"open a GIF as browsers do", true, {}, open},
                {"open an FLC", false, {}, Opened("large.flc")},
                {"open an FLC as players do", true, {}, Opened("large.flc")},
                {"insert images", false, {open}, Files(kInsertFiles, {"image.raw", "image.raw"})},
                {"insert tiles", false, {open}, Files(kInsertTiledFile, {"image.raw"})},
                {"fade to a color", false, {open}, Faded(kFadeToColor)},
                {"fade to the next", false, {open}, Faded(kFadeToNext)},
                {"resize", true, {open}, other},
                {"reverse", false, {open}, BMessage(kReverseFrames)},
                {"duplicate", false, {open}, BMessage(kDuplicateFrames)},
                {"remove", false, {open}, BMessage(kRemoveFrame)},
                {"undo", true, {open, other}, BMessage(kUndo)},
                {"redo", true, {open, other, BMessage(kUndo)}, BMessage(kRedo)},
                {"save", false, {open}, SaveTo(folder_.Path(), "out.gif")},
                {"save as browsers show it", true, {open}, SaveTo(folder_.Path(), "out.gif")},
                {"save a sequence", false, {open}, SaveTo(folder_.Path(), "out.raw", 1)}};
    }

    Outcome Now() {
        Outcome now;
        now.animation = app_->Current();
        now.lines = TakeLines();
        for (const std::string& name : FolderContent())
            now.files[name] = ReadBytes(File(name));
        return now;
    }

    void Prepare(const Operation& operation) {
        prefs_.animation_faithful = operation.faithful;
        for (const std::string& name : FolderContent())
            std::filesystem::remove_all(File(name));
        Write("large.gif", LargeGif());
        Write("large.flc", LargeFlc());
        Write("image.raw", LargeImage());
        Write("out.gif", {'o', 'l', 'd'});
        desktop_.fields.rows = desktop_.fields.columns = "2";
        Do(kResetDocument);
        for (const BMessage& message : operation.before)
            Do(message);
        TakeLines();
    }

    // The whole operation with memory refused that way; the number of allocations.
    int64 Try(const Operation& operation, const RefusedMemory::Which& which) {
        const RefusedMemory refused(which);
        Do(operation.tried);
        return RefusedMemory::Count();
    }

    static bool IsOneOf(const FramePointer& frame, const Animation& animation) {
        return std::any_of(
            animation.frames.begin(), animation.frames.end(), [&](const FramePointer& each) {
                return each->bitmap && frame->bitmap && SamePicture(*each->bitmap, *frame->bitmap);
            });
    }

    // Every frame is one that was there before or is there afterwards, and so is each file.
    static void ExpectWhole(const Outcome& before, const Outcome& after, const Outcome& now) {
        const int32 most =
            std::max(before.animation->frames.Size(), after.animation->frames.Size());
        EXPECT_LE(now.animation->frames.Size(), most);
        for (const FramePointer& frame : now.animation->frames) {
            ASSERT_TRUE(frame && frame->palette);
            EXPECT_TRUE(IsOneOf(frame, *before.animation) || IsOneOf(frame, *after.animation));
        }
        for (const auto& [name, bytes] : now.files) {
            const auto old_file = before.files.find(name);
            const auto new_file = after.files.find(name);
            const bool is_old = old_file != before.files.end() && old_file->second == bytes;
            const bool is_new = new_file != after.files.end() && new_file->second == bytes;
            EXPECT_TRUE(is_old || is_new) << name;
        }
        for (const auto& [name, bytes] : before.files)
            EXPECT_TRUE(now.files.contains(name)) << name << " is gone";
    }

    static bool IsDone(const Outcome& after, const Outcome& now) {
        // Names are numbered on and on.
        const auto alike = [](const FramePointer& a, const FramePointer& b) {
            return SamePicture(*a->bitmap, *b->bitmap) && a->pause_length == b->pause_length;
        };
        const Animation& want = *after.animation;
        const Animation& have = *now.animation;
        return have.width == want.width && have.height == want.height &&
               std::equal(have.frames.begin(), have.frames.end(), want.frames.begin(),
                          want.frames.end(), alike) &&
               now.files == after.files;
    }

    static bool SaysSo(const Outcome& now) {
        return std::any_of(now.lines.begin(), now.lines.end(), [](const std::string& line) {
            return line.find(kAlert) != std::string::npos;
        });
    }

    void TryAll(RefusedMemory::Which which, int64 step) {
        Start();
        Marker marker;
        app_->AddHandler(&marker);
        app_->PostMessage(BMessage(), marker);
        int64 tried = 0;
        for (const Operation& operation : Operations()) {
            Prepare(operation);
            const Outcome before = Now();
            RefusedMemory::Which none = which;
            none.first = 0;
            const int64 count = Try(operation, none);
            const Outcome after = Now();
            for (int64 n = 1; n <= count && !HasFailure(); n += step) {
                SCOPED_TRACE(operation.name + ", allocation " + std::to_string(n) + " of " +
                             std::to_string(count));
                Prepare(operation);
                which.first = n;
                Try(operation, which);
                ++tried;
                const Outcome now = Now();
                ExpectWhole(before, after, now);
                // Small memory that is never to be had again is not there for an alert either.
                const bool can_say = !which.all_later || which.least >= kLarge;
                EXPECT_TRUE(!can_say || IsDone(after, now) || SaysSo(now))
                    << testing::PrintToString(now.lines);
                Do(kUndo);
                Do(kRedo);
            }
        }
        RecordProperty("tried", std::to_string(tried));
        app_->RemoveHandler(&marker);
        app_->Quit();
    }
};

TEST_F(RefusedMemoryTest, ALargeAllocationThatFailsOnceIsToldAndLeavesTheDocumentWhole) {
    TryAll({.first = 0, .all_later = false, .least = kLarge, .marked_only = false}, 1);
}

TEST_F(RefusedMemoryTest, LargeAllocationsThatFailFromOneOnAreToldAndLeaveTheDocumentWhole) {
    TryAll({.first = 0, .all_later = true, .least = kLarge, .marked_only = false}, 1);
}

TEST_F(RefusedMemoryTest, AnyAllocationThatFailsOnceIsToldAndLeavesTheDocumentWhole) {
    TryAll({.first = 0, .all_later = false, .least = 1, .marked_only = true}, kStep);
}

TEST_F(RefusedMemoryTest, AllocationsThatFailFromOneOnLeaveTheDocumentWhole) {
    TryAll({.first = 0, .all_later = true, .least = 1, .marked_only = true}, kStep);
}

}  // namespace
}  // namespace kirto::test
