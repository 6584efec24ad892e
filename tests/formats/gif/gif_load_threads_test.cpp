// What is loaded, and what is said about it, with any number of threads.
#include <gtest/gtest.h>
#include <random>

#include "formats/gif/gif_load.h"
#include "support/gif_builder.h"
#include "support/meant_picture.h"
#include "support/same_animation.h"
#include "support/stopping_recorder.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

// All that comes of loading a file.
struct LoadedByThreads {
    std::shared_ptr<const Animation> animation;
    bool failed = false;
    bool out_of_memory = false;
    std::string messages;
    std::string debug_lines;
    std::vector<std::string> alerts;
};

LoadedByThreads LoadBy(const Bytes& bytes, int32 thread_count, bool full_frame, uint64 limit,
                       const std::string& stop_at) {
    const ScopedThreads threads(thread_count);
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_gifloadfullframe = full_frame;
    const auto port = std::make_shared<StoppingRecorder>();
    AnimationDocument document(prefs, BMessenger(port));
    document.pixel_budget->SetLimit(limit);
    if (!stop_at.empty()) port->StopAt(document, stop_at);
    const DebugRecorder debug;
    const AlertRecorder alerts;
    const auto file = BFile::OnMemory(bytes);
    document.work.Begin();
    const GifLoad load(file.get(), 0, document);
    document.work.End();
    return {document.Current(),     load.failed,  load.out_of_memory,
            port->TakeTranscript(), debug.Text(), alerts.Lines()};
}

void ExpectTheSameLoadOfAnyNumberOfThreads(const Bytes& bytes, bool full_frame = true,
                                           uint64 limit = PixelBudget::DefaultLimit(),
                                           const std::string& stop_at = "") {
    const LoadedByThreads alone = LoadBy(bytes, 1, full_frame, limit, stop_at);
    for (const int32 threads : kThreadCounts) {
        const LoadedByThreads loaded = LoadBy(bytes, threads, full_frame, limit, stop_at);
        ASSERT_TRUE(SameAnimation(*loaded.animation, *alone.animation)) << threads;
        ASSERT_EQ(loaded.failed, alone.failed) << threads;
        ASSERT_EQ(loaded.out_of_memory, alone.out_of_memory) << threads;
        ASSERT_EQ(loaded.messages, alone.messages) << threads;
        ASSERT_EQ(loaded.debug_lines, alone.debug_lines) << threads;
        ASSERT_EQ(loaded.alerts, alone.alerts) << threads;
    }
}

Bytes RandomFile(uint32 seed) {
    DocumentStyle style;
    style.max_frames = 100;  // more than are decoded in one go
    style.transparency = true;
    return MadeUpAnimation(style, seed).Save();
}

}  // namespace

TEST(GifLoadThreads, TheirNumberMakesNoDifference) {
    for (uint32 seed = 1; seed <= 30; ++seed) {
        const Bytes bytes = RandomFile(seed);
        for (const bool full_frame : {true, false})
            ASSERT_NO_FATAL_FAILURE(ExpectTheSameLoadOfAnyNumberOfThreads(bytes, full_frame))
                << seed;
    }
}

TEST(GifLoadThreads, TheirNumberMakesNoDifferenceToDamagedFiles) {
    std::mt19937 random(5);
    for (uint32 seed = 1; seed <= 40; ++seed) {
        Bytes bytes = RandomFile(seed);
        for (int32 change = 0; change < 5; ++change)
            bytes[13 + random() % (bytes.size() - 13)] = static_cast<uint8>(random());
        if (seed % 2 == 0) bytes.resize(13 + random() % (bytes.size() - 13));
        ASSERT_NO_FATAL_FAILURE(ExpectTheSameLoadOfAnyNumberOfThreads(bytes)) << seed;
    }
}

TEST(GifLoadThreads, TheirNumberMakesNoDifferenceWhereMemoryEnds) {
    for (uint32 seed = 1; seed <= 10; ++seed) {
        const Bytes bytes = RandomFile(seed);
        for (const uint64 limit : {0U, 3000U, 9000U, 20000U})
            ASSERT_NO_FATAL_FAILURE(ExpectTheSameLoadOfAnyNumberOfThreads(bytes, true, limit))
                << seed;
    }
}

TEST(GifLoadThreads, TheirNumberMakesNoDifferenceToAFileOfManyBlocks) {
    GifBuilder gif(2, 2, {0x000000, 0xFFFFFF});
    for (int32 image = 0; image < 5; ++image) {
        for (int32 block = 0; block < 300; ++block) {
            gif.Comment("comment " + std::to_string(block) + "\nof two lines").Loop(block);
            gif.Control(block % 4, block, block % 3 - 1);
        }
        GifBuilder::Image added;
        added.x = image % 2;
        added.indices = {1};
        added.min_code_size = 2 + image % 2 * 7;
        gif.Add(added);
    }
    ExpectTheSameLoadOfAnyNumberOfThreads(gif.Trailer());
}

TEST(GifLoadThreads, TheirNumberMakesNoDifferenceToImagesThatCoverTheScreen) {
    // Their indices are counted where they are decoded, unless some may be transparent.
    std::mt19937 random(9);
    for (const int32 transparent_from : {0, 5, 99}) {
        GifBuilder gif(30, 150, {0x000000, 0xFFFFFF, 0x123456, 0x654321});
        for (int32 image = 0; image < 70; ++image) {
            gif.Control(0, 1, image >= transparent_from ? 2 : -1);
            GifBuilder::Image added;
            added.width = 30;
            added.height = 150;
            added.indices.resize(30 * 150);
            for (auto& index : added.indices)
                index = static_cast<uint8>(random() % 4);
            added.interlaced = image % 3 == 0;
            gif.Add(added);
        }
        const Bytes bytes = gif.Trailer();
        for (const bool full_frame : {true, false})
            ASSERT_NO_FATAL_FAILURE(ExpectTheSameLoadOfAnyNumberOfThreads(bytes, full_frame));
    }
}

TEST(GifLoadThreads, AStopKeepsTheFramesBeforeIt) {
    const Bytes bytes = RandomFile(7);
    const LoadedByThreads whole = LoadBy(bytes, 1, true, PixelBudget::DefaultLimit(), "");
    const int32 count = whole.animation->frames.Size();
    ASSERT_GT(count, 3);
    for (const int32 threads : kThreadCounts) {
        const LoadedByThreads stopped =
            LoadBy(bytes, threads, true, PixelBudget::DefaultLimit(), "Status: loading frame 3...");
        EXPECT_TRUE(stopped.failed);
        EXPECT_EQ(stopped.animation->frames.Size(), 2) << threads;
    }
}

}  // namespace kirto::test
