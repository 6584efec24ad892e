#include "effects/make_pictures.h"

#include <gtest/gtest.h>
#include <optional>

#include "effects/fade.h"
#include "effects/insert_tiles.h"
#include "support/fake_roster.h"
#include "support/random_document.h"
#include "support/same_animation.h"
#include "support/stopping_recorder.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

constexpr rgb_color kColor{200, 30, 90, 255};

// What an effect does to a document.
struct Made {
    std::shared_ptr<const Animation> animation;
    bool complete = false;
    bool modified = false;
    int32 name_base = 0;
    std::string messages;
    std::string debug_lines;
    std::vector<std::string> alerts;
};

testing::AssertionResult Same(const Made& a, const Made& b) {
    if (a.complete != b.complete || a.modified != b.modified || a.name_base != b.name_base) {
        return testing::AssertionFailure() << "another end";
    }
    if (a.messages != b.messages) {
        return testing::AssertionFailure() << a.messages << "\nis not\n" << b.messages;
    }
    if (a.debug_lines != b.debug_lines || a.alerts != b.alerts) {
        return testing::AssertionFailure() << "other alerts or debug lines";
    }
    return SameAnimation(*a.animation, *b.animation);
}

// The circumstances of an effect.
struct Circumstances {
    uint32 seed = 0;
    std::optional<uint64> bytes_left;  // of the document's pixel memory
    std::string stop_at;               // a status text
};

// A made-up document to which an effect is applied by so many threads.
template <typename Effect>
Made Apply(const Circumstances& circumstances, int32 thread_count, const Effect& effect) {
    const ScopedThreads threads(thread_count);
    Prefs prefs{Prefs::BuiltIn{}};
    const auto port = std::make_shared<StoppingRecorder>();
    AnimationDocument document(prefs, BMessenger(port));
    SeededChoices choices(circumstances.seed);
    DocumentStyle style;
    style.fitting_colors = false;
    style.oddities = true;
    ChooseSettings(choices, style, &prefs);
    FillDocument(choices, style, document);
    document.Select(choices.Between(0, document.FrameCount() - 1));
    document.SetModified(false);
    port->TakeTranscript();
    port->StopAt(document, circumstances.stop_at);
    if (circumstances.bytes_left) {
        document.pixel_budget->SetLimit(document.pixel_budget->Used() + *circumstances.bytes_left);
    }

    const DebugRecorder debug;
    const AlertRecorder alerts;
    Made made;
    document.work.Begin();
    made.complete = effect(document, choices, &made.name_base);
    document.work.End();
    made.animation = document.Current();
    made.modified = document.Modified();
    made.messages = port->TakeTranscript();
    made.debug_lines = debug.Text();
    made.alerts = alerts.Lines();
    return made;
}

template <typename Effect>
void ExpectTheSameOfAnyNumberOfThreads(const Circumstances& circumstances, const Effect& effect) {
    const Made alone = Apply(circumstances, 1, effect);
    for (const int32 threads : kThreadCounts) {
        ASSERT_TRUE(Same(Apply(circumstances, threads, effect), alone))
            << "seed " << circumstances.seed << ", " << threads << " threads";
    }
}

bool FadeSomehow(AnimationDocument& document, ChoiceSource& choices, int32* name_base) {
    static constexpr FadeMode kModes[] = {FadeMode::kToColor, FadeMode::kFromColor,
                                          FadeMode::kToNext, FadeMode::kFromPrevious};
    return Fade(document, kModes[choices.Below(4)], 12, kColor, name_base);
}

// One picture of 12 x 5 pixels, however it is cut.
bool CutSomehow(AnimationDocument& document, ChoiceSource& choices, int32*) {
    std::vector<uint32> argb;
    for (int32 i = 0; i < 12 * 5; ++i)
        argb.push_back(choices.Below(1 << 16) * 65537);
    const TemporaryFolder folder;
    WriteBytes(folder.File("sheet.raw"), RawPicture(*PictureOf(12, 5, argb)));
    FakeRoster roster;
    const entry_ref ref(folder.File("sheet.raw"));
    return InsertTiles(document, &ref, {choices.Between(1, 5), choices.Between(1, 12), true},
                       roster);
}

TEST(MakePictures, TheNumberOfThreadsMakesNoDifferenceToFades) {
    for (uint32 seed = 1; seed <= 40; ++seed)
        ExpectTheSameOfAnyNumberOfThreads({seed, {}, {}}, FadeSomehow);
}

TEST(MakePictures, TheNumberOfThreadsMakesNoDifferenceToFadesThatAreStopped) {
    for (uint32 seed = 1; seed <= 30; ++seed) {
        ExpectTheSameOfAnyNumberOfThreads({seed, {}, "Status: generating frame 7 of 12..."},
                                          FadeSomehow);
    }
}

TEST(MakePictures, TheNumberOfThreadsMakesNoDifferenceToFadesThatRunOutOfMemory) {
    int32 ran_out = 0;
    for (uint32 seed = 1; seed <= 30; ++seed) {
        const Circumstances circumstances{seed, 6 * PixelBudget::kFrameCost + 4000, {}};
        ran_out += Apply(circumstances, 1, FadeSomehow).alerts.empty() ? 0 : 1;
        ExpectTheSameOfAnyNumberOfThreads(circumstances, FadeSomehow);
    }
    EXPECT_GE(ran_out, 10);
}

TEST(MakePictures, TheNumberOfThreadsMakesNoDifferenceToTiles) {
    for (uint32 seed = 1; seed <= 30; ++seed)
        ExpectTheSameOfAnyNumberOfThreads({seed, {}, {}}, CutSomehow);
}

TEST(MakePictures, TheNumberOfThreadsMakesNoDifferenceToTilesThatRunOutOfMemory) {
    for (uint32 seed = 1; seed <= 30; ++seed) {
        ExpectTheSameOfAnyNumberOfThreads({seed, 7 * PixelBudget::kFrameCost + 400, {}},
                                          CutSomehow);
    }
}

TEST(MakePictures, GivesEachPictureThePaletteOfItsColors) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        PictureSteps steps;
        steps.make = [](int32 i) {
            return FramePictureOf(1, 1, {0xFF000000 | static_cast<uint32>(i)});
        };
        int32 taken = 0;
        steps.take = [&](int32 i, std::optional<MadePicture> made) {
            EXPECT_EQ(i, taken++);
            EXPECT_EQ(made->palette.colors[0], (rgb_color{0, 0, static_cast<uint8>(i), 255}));
            EXPECT_EQ(made->palette_status, B_OK);
            return true;
        };
        Work work;

        EXPECT_EQ(MakePictures(20, steps, work), 20);
        EXPECT_EQ(taken, 20);
    }
}

TEST(MakePictures, CountsWhatWasTakenUntilMemoryRanOut) {
    for (const int32 count : kThreadCounts) {
        const ScopedThreads threads(count);
        PictureSteps steps;
        steps.make = [](int32 i) { return i < 5 ? FramePictureOf(1, 1, {0}) : nullptr; };
        steps.take = [](int32, std::optional<MadePicture> made) { return made.has_value(); };
        Work work;

        EXPECT_EQ(MakePictures(20, steps, work), 5);
    }
}

}  // namespace

}  // namespace kirto::test
