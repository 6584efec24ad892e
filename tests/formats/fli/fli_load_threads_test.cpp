// What is loaded, and what is said about it, with any number of threads.
#include <gtest/gtest.h>
#include <random>

#include "formats/fli/fli_load.h"
#include "formats/fli/random_flic.h"
#include "support/fli_builder.h"
#include "support/same_animation.h"
#include "support/stopping_recorder.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

struct Circumstances {
    bool players = false;  // their rules
    uint64 limit = PixelBudget::DefaultLimit();
    std::string stop_at;
    int32 frames_before = 0;  // that the document has
};

// All that comes of loading a file.
struct Loaded {
    std::shared_ptr<const Animation> animation;
    int32 end = 0;
    bool failed = false;
    bool out_of_memory = false;
    std::string messages;
    std::string debug_lines;
    std::vector<std::string> alerts;
};

Loaded Load(const Bytes& bytes, int32 thread_count, const Circumstances& in) {
    const ScopedThreads threads(thread_count);
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_faithful = in.players;
    const auto port = std::make_shared<StoppingRecorder>();
    AnimationDocument document(prefs, BMessenger(port));
    for (int32 i = 0; i < in.frames_before; ++i)
        FliLoad(BFile::OnMemory(RandomFlic(1).Make()).get(), document.FrameCount(), document);
    document.pixel_budget->SetLimit(in.limit);
    if (!in.stop_at.empty()) port->StopAt(document, in.stop_at);
    const DebugRecorder debug;
    const AlertRecorder alerts;
    const auto file = BFile::OnMemory(bytes);
    document.work.Begin();
    const FliLoad load(file.get(), document.FrameCount(), document);
    document.work.End();
    return {document.Current(),     load.End(),   load.failed,   load.out_of_memory,
            port->TakeTranscript(), debug.Text(), alerts.Lines()};
}

void ExpectTheSameOfAnyNumberOfThreads(const Bytes& bytes, const Circumstances& in = {}) {
    const Loaded alone = Load(bytes, 1, in);
    for (const int32 threads : kThreadCounts) {
        const Loaded loaded = Load(bytes, threads, in);
        ASSERT_TRUE(SameAnimation(*loaded.animation, *alone.animation)) << threads;
        ASSERT_EQ(loaded.end, alone.end) << threads;
        ASSERT_EQ(loaded.failed, alone.failed) << threads;
        ASSERT_EQ(loaded.out_of_memory, alone.out_of_memory) << threads;
        ASSERT_EQ(loaded.messages, alone.messages) << threads;
        ASSERT_EQ(loaded.debug_lines, alone.debug_lines) << threads;
        ASSERT_EQ(loaded.alerts, alone.alerts) << threads;
    }
}

}  // namespace

TEST(FliLoadThreads, TheirNumberMakesNoDifference) {
    for (uint32 seed = 1; seed <= 60; ++seed) {
        const Bytes bytes = RandomFlic(seed).Make();
        for (const bool players : {false, true}) {
            for (const int32 before : {0, 2}) {
                Circumstances in;
                in.players = players;
                in.frames_before = before;
                ASSERT_NO_FATAL_FAILURE(ExpectTheSameOfAnyNumberOfThreads(bytes, in)) << seed;
            }
        }
    }
}

TEST(FliLoadThreads, TheirNumberMakesNoDifferenceToDamagedFiles) {
    std::mt19937 random(5);
    for (uint32 seed = 1; seed <= 60; ++seed) {
        Bytes bytes = RandomFlic(seed).Make();
        for (int32 change = 0; change < 3; ++change)
            bytes[128 + random() % (bytes.size() - 128)] = static_cast<uint8>(random());
        if (seed % 3 == 0) bytes.resize(128 + random() % (bytes.size() - 128));
        Circumstances in;
        in.players = seed % 2 == 0;
        ASSERT_NO_FATAL_FAILURE(ExpectTheSameOfAnyNumberOfThreads(bytes, in)) << seed;
    }
}

TEST(FliLoadThreads, TheirNumberMakesNoDifferenceWhereMemoryEnds) {
    for (uint32 seed = 1; seed <= 20; ++seed) {
        for (const uint64 limit : {0U, 2500U, 5000U, 9000U, 20000U}) {
            Circumstances in;
            in.limit = limit;
            ASSERT_NO_FATAL_FAILURE(ExpectTheSameOfAnyNumberOfThreads(RandomFlic(seed).Make(), in))
                << seed;
        }
    }
}

TEST(FliLoadThreads, TheirNumberMakesNoDifferenceWhereTheWorkIsStopped) {
    FliBuilder fli(8, 8);
    for (int32 frame = 0; frame < 12; ++frame)
        fli.Record().Chunk(99, {1, 2}).BrunOf(Bytes(64, static_cast<uint8>(frame)));
    for (const int32 at : {1, 2, 7, 12}) {
        Circumstances in;
        in.stop_at = "Status: loading frame " + std::to_string(at) + " of 12...";
        ASSERT_NO_FATAL_FAILURE(ExpectTheSameOfAnyNumberOfThreads(fli, in)) << at;
    }
}

}  // namespace kirto::test
