#include "base/core_text.h"
#include "effects/pictures/edit_pictures.h"

#include <gtest/gtest.h>

#include "effects/pictures/canvas_pixels.h"
#include "effects/pictures/color_edit.h"
#include "effects/pictures/color_maps.h"
#include "effects/pictures/crop_edit.h"
#include "effects/pictures/fit_edit.h"
#include "effects/pictures/overlay_edit.h"
#include "effects/pictures/resize_edit.h"
#include "effects/pictures/turn_edit.h"
#include "support/same_animation.h"
#include "support/stopping_recorder.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using EditPointer = std::unique_ptr<const PictureEdit>;

constexpr int32 kKinds = 6;

EditPointer AnyEdit(ChoiceSource& choices, int32 kind, const Animation& before) {
    const auto filter = static_cast<ScaleFilter>(choices.Below(3));
    const int32 width = choices.Between(1, 40);
    const int32 height = choices.Between(1, 40);
    switch (kind) {
        case 0:
            return std::make_unique<ResizeEdit>(before, width, height, filter);
        case 1:
            return std::make_unique<CropEdit>(PlaneRect{-3, 2, width, height});
        case 2:
            return std::make_unique<TurnEdit>(static_cast<Turn>(choices.Below(5)));
        case 3:
            return std::make_unique<FitEdit>(static_cast<Fit>(choices.Below(3)), filter);
        case 4:
            return std::make_unique<ColorEdit>(
                std::make_unique<AdjustmentMap>(ColorAdjustment{20, -10, 30, false}), "Status: adjusting frame %1 of %2...");
        default:
            return std::make_unique<OverlayEdit>(
                FramePictureOf(4, 3, std::vector<uint32>(12, 0x80123456), B_RGBA32),
                choices.Between(-5, 20), choices.Between(-5, 20), OverlayFading{80, 1, 1}, before,
                FrameSet::AllOf(before.frames.Size()));
    }
}

// A made-up document to which an edit is applied.
struct EditRun {
    EditRun(uint32 seed, int32 kind, int32 thread_count, int64 bytes_left = -1,
            bool stops = false) {
        const ScopedThreads threads(thread_count);
        SeededChoices choices(seed);
        FillSomehow(choices, document);
        before = document.Current();
        const EditPointer edit = AnyEdit(choices, kind, *before);
        port->TakeTranscript();
        if (stops) port->StopAt(document, CoreText::With(edit->Status(), {"2", "3"}));
        if (bytes_left >= 0) {
            document.pixel_budget->SetLimit(document.pixel_budget->Used() +
                                            static_cast<uint64>(bytes_left));
        }
        document.work.Begin();
        end = EditPictures(document, *edit, FrameSet::AllOf(document.FrameCount()));
        document.work.End();
        messages = port->TakeTranscript();
    }

    Prefs prefs{Prefs::BuiltIn{}};
    std::shared_ptr<StoppingRecorder> port = std::make_shared<StoppingRecorder>();
    AnimationDocument document{prefs, BMessenger(port)};
    AlertRecorder alerts;
    std::shared_ptr<const Animation> before;
    EditEnd end = EditEnd::kDone;
    std::string messages;
};

testing::AssertionResult Same(const EditRun& a, const EditRun& b) {
    if (a.end != b.end || a.messages != b.messages || a.alerts.Lines() != b.alerts.Lines() ||
        a.document.Modified() != b.document.Modified()) {
        return testing::AssertionFailure() << "another end";
    }
    return SameAnimation(*a.document.Current(), *b.document.Current());
}

TEST(EditPictures, TheNumberOfThreadsMakesNoDifference) {
    for (int32 kind = 0; kind < kKinds; ++kind) {
        for (uint32 seed = 1; seed <= 12; ++seed) {
            const EditRun alone(seed, kind, 1);
            EXPECT_EQ(alone.end, EditEnd::kDone);
            for (const int32 threads : kThreadCounts)
                ASSERT_TRUE(Same(EditRun(seed, kind, threads), alone)) << kind << ',' << seed;
        }
    }
}

TEST(EditPictures, ChangesNothingWhenMemoryRunsOut) {
    int32 ran_out = 0;
    for (int32 kind = 0; kind < kKinds; ++kind) {
        for (uint32 seed = 1; seed <= 8; ++seed) {
            const EditRun alone(seed, kind, 1, 5000);
            if (alone.end == EditEnd::kOutOfMemory) {
                ++ran_out;
                EXPECT_EQ(alone.document.Current(), alone.before);
                EXPECT_EQ(alone.alerts.Lines(),
                          std::vector<std::string>{"WARNING [] Out of memory. | OK"});
                EXPECT_FALSE(alone.document.Modified());
            }
            for (const int32 threads : kThreadCounts)
                ASSERT_TRUE(Same(EditRun(seed, kind, threads, 5000), alone)) << kind << ',' << seed;
        }
    }
    EXPECT_GT(ran_out, 10);
}

TEST(EditPictures, ChangesNothingWhenStopped) {
    int32 stopped = 0;
    for (int32 kind = 0; kind < kKinds; ++kind) {
        for (uint32 seed = 1; seed <= 8; ++seed) {
            const EditRun alone(seed, kind, 1, -1, true);
            if (alone.end == EditEnd::kStopped) {
                ++stopped;
                EXPECT_EQ(alone.document.Current(), alone.before);
                EXPECT_TRUE(alone.alerts.Lines().empty());
            }
            for (const int32 threads : kThreadCounts) {
                ASSERT_TRUE(Same(EditRun(seed, kind, threads, -1, true), alone))
                    << kind << ',' << seed;
            }
        }
    }
    EXPECT_GT(stopped, 5);
}

TEST(EditPictures, SurvivesTheFailureOfAnyAllocation) {
    for (int32 kind = 0; kind < kKinds; ++kind) {
        bool done = false;
        for (int64 failing = 1; !done; ++failing) {
            ASSERT_LT(failing, 2000);
            DocumentFixture fixture;
            SeededChoices choices(7);
            FillSomehow(choices, fixture.document);
            const auto before = fixture.document.Current();
            const EditPointer edit = AnyEdit(choices, kind, *before);
            const AlertRecorder alerts;
            const AllocationFault fault(failing);
            done = EditPictures(fixture.document, *edit,
                                FrameSet::AllOf(fixture.document.FrameCount())) == EditEnd::kDone;
            if (!done) {
                EXPECT_EQ(fixture.document.Current(), before);
            }
        }
    }
}

TEST(EditPictures, LetsFramesThatShowTheSamePictureShareWhatComesOfIt) {
    DocumentFixture fixture;
    SeededChoices choices(3);
    AppendFrame(fixture.document, PictureOf(2, 1, {1, 2}), "a");
    Frame copy = *fixture.document.FrameAt(0);
    copy.id = Frame().id;
    copy.x_offset = 3;
    fixture.document.InsertFrame(1, copy);
    EditOf(fixture.document)->width = 5;
    EditOf(fixture.document)->height = 1;
    fixture.port->TakeTranscript();
    EditPictures(fixture.document, TurnEdit(Turn::kHalf), FrameSet::AllOf(2));
    EXPECT_EQ(fixture.document.FrameAt(0)->bitmap, fixture.document.FrameAt(1)->bitmap);
    EXPECT_EQ(fixture.document.FrameAt(1)->x_offset, 0);
    EXPECT_EQ(fixture.port->TakeTranscript(), "svup(Status: turning frame 1 of 1...)");
}

TEST(EditPictures, LetsPicturesShareTheStripsThatTheyHaveInCommon) {
    DocumentFixture fixture;
    std::vector<uint32> pixels(40 * 200);
    for (size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = 0xFF000000 | static_cast<uint32>(i % 7);
    AppendFrame(fixture.document, PictureOf(40, 200, pixels), "a");
    pixels.back() = 0xFF123456;
    AppendFrame(fixture.document, PictureOf(40, 200, pixels), "b");
    EditOf(fixture.document)->width = 40;
    EditOf(fixture.document)->height = 200;
    EditPictures(fixture.document, TurnEdit(Turn::kFlipAcross), FrameSet::AllOf(2));
    const auto& a = fixture.document.FrameAt(0)->bitmap->AllStrips();
    const auto& b = fixture.document.FrameAt(1)->bitmap->AllStrips();
    EXPECT_EQ(a.front(), b.front());
    EXPECT_NE(a.back(), b.back());
}

TEST(EditPictures, WorksOnTheNamedFramesOnly) {
    DocumentFixture fixture;
    for (const char* name : {"a", "b", "c"})
        AppendFrame(fixture.document, PictureOf(1, 1, {0xFF102030}), name);
    EditOf(fixture.document)->width = 1;
    EditOf(fixture.document)->height = 1;
    const auto before = fixture.document.Current();
    EditPictures(fixture.document, ColorEdit(std::make_unique<OpacityMap>(50), "Status: fading frame %1 of %2..."),
                 FrameSet::Of(0, 2, 2));
    EXPECT_EQ(PixelsOf(*fixture.document.FrameAt(0)->bitmap).front(), 0x80102030);
    EXPECT_EQ(fixture.document.FrameAt(1), before->frames.At(1));
    EXPECT_EQ(PixelsOf(*fixture.document.FrameAt(2)->bitmap).front(), 0x80102030);
    EXPECT_TRUE(fixture.document.Modified());
}

TEST(EditPictures, GivesFramesWithAnOptimalPaletteOneOfTheNewColors) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(1, 1, {0xFF404040}), "a");
    ASSERT_EQ(fixture.document.FrameAt(0)->palette->mode, kPaletteOptimal);
    EditOf(fixture.document)->width = 1;
    EditOf(fixture.document)->height = 1;
    FramePaletteEditOf(fixture.document, 0)->dither = true;
    Frame other("b", 1, 1);
    other.bitmap = fixture.document.FrameAt(0)->bitmap;
    fixture.document.InsertFrame(1, other);
    EditPictures(fixture.document,
                 ColorEdit(std::make_unique<AdjustmentMap>(ColorAdjustment{100, 0, 0, false}), ""),
                 FrameSet::AllOf(2));
    const Palette& palette = *fixture.document.FrameAt(0)->palette;
    EXPECT_EQ(palette.colors[0].red, 255);
    EXPECT_TRUE(palette.dither);
    EXPECT_EQ(fixture.document.FrameAt(1)->palette->mode, kPaletteWebSafe);
}

TEST(EditPictures, DoesNothingWithoutACanvas) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(1, 1, {1}), "a");
    EditOf(fixture.document)->width = 0;
    const auto before = fixture.document.Current();
    EXPECT_EQ(EditPictures(fixture.document, CropEdit({0, 0, 5, 5}), FrameSet::AllOf(1)),
              EditEnd::kDone);
    EXPECT_EQ(fixture.document.Current(), before);
}

}  // namespace

}  // namespace kirto::test
