// What is written, and what is said about it, with any number of threads.
#include <gtest/gtest.h>
#include <thread>

#include "base/allocation.h"
#include "formats/gif/gif_save.h"
#include "support/random_document.h"
#include "support/stopping_recorder.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

// All that comes of saving a document.
struct Saved {
    Bytes bytes;
    std::string messages;
    std::string debug_lines;
    std::vector<std::string> alerts;
    bool operator==(const Saved&) const = default;
};

struct MadeUpDocument {
    Prefs prefs{Prefs::BuiltIn{}};
    std::shared_ptr<StoppingRecorder> port = std::make_shared<StoppingRecorder>();
    AnimationDocument document{prefs, BMessenger(port)};

    MadeUpDocument(const DocumentStyle& style, uint32 seed) {
        SeededChoices choices(seed);
        ChooseSettings(choices, style, &prefs);
        FillDocument(choices, style, document);
        port->TakeTranscript();
    }

    Saved Save(int32 thread_count) {
        const ScopedThreads threads(thread_count);
        const DebugRecorder debug;
        const AlertRecorder alerts;
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        document.work.Begin();
        GifSave(file, document);
        document.work.End();
        return {file->Memory(), port->TakeTranscript(), debug.Text(), alerts.Lines()};
    }
};

void ExpectTheSameOfAnyNumberOfThreads(const DocumentStyle& style, uint32 first_seed,
                                       uint32 count) {
    for (uint32 seed = first_seed; seed < first_seed + count; ++seed) {
        MadeUpDocument made_up(style, seed);
        const Saved alone = made_up.Save(1);
        for (const int32 threads : kThreadCounts)
            ASSERT_TRUE(made_up.Save(threads) == alone) << "seed " << seed << ", " << threads;
    }
}

DocumentStyle ManyFrames() {
    DocumentStyle style;
    style.max_frames = 40;
    style.fitting_colors = false;
    return style;
}

TEST(GifSaveThreads, TheirNumberMakesNoDifference) {
    ExpectTheSameOfAnyNumberOfThreads(ManyFrames(), 1, 40);
}

TEST(GifSaveThreads, TheirNumberMakesNoDifferenceToOddDocuments) {
    DocumentStyle style = ManyFrames();
    style.oddities = true;
    ExpectTheSameOfAnyNumberOfThreads(style, 1001, 40);
}

TEST(GifSaveThreads, TheirNumberMakesNoDifferenceToLargerPictures) {
    DocumentStyle style = ManyFrames();
    style.max_side = 200;
    style.max_frames = 8;
    ExpectTheSameOfAnyNumberOfThreads(style, 2001, 6);
}

TEST(GifSaveThreads, TheirNumberMakesNoDifferenceToASaveThatIsStopped) {
    for (uint32 seed = 1; seed <= 20; ++seed) {
        MadeUpDocument made_up(ManyFrames(), seed);
        const int32 count = made_up.document.FrameCount();
        const int32 last = (count + 1) / 2;
        made_up.port->StopAt(made_up.document, "Status: writing frame " + std::to_string(last) +
                                                   " of " + std::to_string(count) + "...");
        const Saved alone = made_up.Save(1);
        ASSERT_TRUE(alone.messages.ends_with("frame " + std::to_string(last) + " of " +
                                             std::to_string(count) + "...)"));
        for (const int32 threads : kThreadCounts)
            ASSERT_TRUE(made_up.Save(threads) == alone) << "seed " << seed << ", " << threads;
    }
}

TEST(GifSaveThreads, TheirNumberMakesNoDifferenceToAFileThatTakesNothing) {
    MadeUpDocument made_up(ManyFrames(), 3);
    const TemporaryFolder folder;
    WriteBytes(folder.File("old.gif"), {1, 2, 3});
    std::vector<std::string> messages;
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        const auto file = std::make_shared<BFile>(folder.File("old.gif"), B_READ_ONLY);
        GifSave(file, made_up.document);
        EXPECT_EQ(file->WriteStatus(), B_NOT_ALLOWED);
        messages.push_back(made_up.port->TakeTranscript());
        EXPECT_EQ(messages.back(), messages.front());
    }
}

TEST(GifSaveThreads, LackMemoryForDitheringAllOrNone) {
    DocumentFixture fixture;
    // A gray halfway between two colors of the palette.
    for (int32 i = 0; i < 5; ++i) {
        AppendFrame(fixture.document, PictureOf(4, 4, std::vector<uint32>(16, 0xFF808080)), "gray");
    }
    const auto save = [&fixture] {
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        GifSave(file, fixture.document);
        return file->Memory();
    };
    const Bytes undithered = save();
    PaletteEditOf(fixture.document)->dither = true;
    const Bytes dithered = save();
    ASSERT_NE(dithered, undithered);
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        // An encoder takes three blocks.
        for (int32 call = 1; call <= 5 * 3 + 1; ++call) {
            const AllocationFault fault(call);
            EXPECT_EQ(save(), call <= 3 ? undithered : dithered) << "allocation " << call;
        }
    }
}

TEST(GifSaveThreads, CountTheRowsOfAllFrames) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(1, 3, {1, 2, 3}), "low");
    AppendFrame(fixture.document, PictureOf(1, 4, {1, 2, 3, 4}), "high");
    const auto animation = fixture.document.Current();
    Work work;
    work.Begin();
    SharedProgress progress(work, 7);
    std::vector<std::thread> threads;
    for (const FramePointer& frame : animation->frames) {
        threads.emplace_back([&animation, &progress, frame] {
            GifFrameEncoder(*animation, {}).Encode(*frame, progress);
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(progress.Done(), 7);
}

}  // namespace

}  // namespace kirto::test
