#include "effects/fade.h"

#include <gtest/gtest.h>
#include <limits>

#include "base/text.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr int32 kMostFrames = std::numeric_limits<int32>::max();
constexpr FadeMode kModes[] = {FadeMode::kToColor, FadeMode::kFromColor, FadeMode::kToNext,
                               FadeMode::kFromPrevious};
constexpr rgb_color kBlack{0, 0, 0, 255};

using Pixels = std::vector<uint32>;
using NameList = std::vector<std::string>;

// The frames' names in order, with the current one in brackets.
NameList Names(const AnimationDocument& document) {
    NameList names;
    for (const FramePointer& frame : document.Current()->frames) {
        const bool current = static_cast<int32>(names.size()) == document.Selected();
        names.push_back(current ? "[" + frame->name + "]" : frame->name);
    }
    return names;
}

Pixels PixelsOfFrame(const AnimationDocument& document, int32 index) {
    return PixelsOf(*document.FrameAt(index)->bitmap);
}

// Three frames of one pixel, the middle one current.
struct ThreeShades : DocumentFixture {
    int32 name_base = 0;

    ThreeShades() {
        AppendFrame(document, PictureOf(1, 1, {0xFF000000}), "dark");
        AppendFrame(document, PictureOf(1, 1, {0x80646464}), "grey");
        AppendFrame(document, PictureOf(1, 1, {0xFFC8C8C8}), "light");
        document.Select(1);
        port->TakeTranscript();
    }

    void Run(FadeMode mode, int32 count, rgb_color color = kBlack) {
        Fade(document, mode, count, color, &name_base);
    }
};

TEST(FadeFactor, GrowsToTheWholeColourWhenFadingToIt) {
    EXPECT_EQ(FadeFactor(FadeMode::kToColor, 0, 4), 0.25f);
    EXPECT_EQ(FadeFactor(FadeMode::kToColor, 1, 4), 0.5f);
    EXPECT_EQ(FadeFactor(FadeMode::kToColor, 2, 4), 0.75f);
    EXPECT_EQ(FadeFactor(FadeMode::kToColor, 3, 4), 1.0f);
}

TEST(FadeFactor, StartsWithoutTheFrameWhenFadingFromAColour) {
    EXPECT_EQ(FadeFactor(FadeMode::kFromColor, 0, 4), 0.0f);
    EXPECT_EQ(FadeFactor(FadeMode::kFromColor, 1, 4), 0.25f);
    EXPECT_EQ(FadeFactor(FadeMode::kFromColor, 2, 4), 0.5f);
    EXPECT_EQ(FadeFactor(FadeMode::kFromColor, 3, 4), 0.75f);
}

TEST(FadeFactor, RepeatsNeitherEndBetweenFrames) {
    EXPECT_EQ(FadeFactor(FadeMode::kToNext, 0, 1), 0.5f);
    EXPECT_EQ(FadeFactor(FadeMode::kToNext, 0, 3), 0.75f);
    EXPECT_EQ(FadeFactor(FadeMode::kToNext, 2, 3), 0.25f);
    EXPECT_EQ(FadeFactor(FadeMode::kFromPrevious, 0, 1), 0.5f);
    EXPECT_EQ(FadeFactor(FadeMode::kFromPrevious, 0, 3), 0.25f);
    EXPECT_EQ(FadeFactor(FadeMode::kFromPrevious, 2, 3), 0.75f);
}

TEST(FadeFactor, IsTheExactFractionRoundedToSinglePrecision) {
    for (int32 count = 1; count <= 100; ++count) {
        for (int32 i = 0; i < count; ++i) {
            const long double step = i;
            const long double steps = count;
            EXPECT_EQ(FadeFactor(FadeMode::kToColor, i, count),
                      static_cast<float>((step + 1) / steps));
            EXPECT_EQ(FadeFactor(FadeMode::kFromColor, i, count), static_cast<float>(step / steps));
            EXPECT_EQ(FadeFactor(FadeMode::kToNext, i, count),
                      static_cast<float>(1 - (step + 1) / (steps + 1)));
            EXPECT_EQ(FadeFactor(FadeMode::kFromPrevious, i, count),
                      static_cast<float>((step + 1) / (steps + 1)));
        }
    }
}

TEST(FadeFactor, StaysAShareForAnyCount) {
    for (const FadeMode mode : kModes) {
        for (const int32 i : {0, kMostFrames - 1}) {
            const float f = FadeFactor(mode, i, kMostFrames);
            EXPECT_GE(f, 0.0f);
            EXPECT_LE(f, 1.0f);
        }
    }
}

TEST(Fade, ToAColourFollowsTheCurrentFrameAndEndsInTheColour) {
    ThreeShades fixture;

    fixture.Run(FadeMode::kToColor, 4, {200, 0, 100, 255});

    EXPECT_EQ(Names(fixture.document), (NameList{"dark", "[grey]", "fade0000", "fade0001",
                                                 "fade0002", "fade0003", "light"}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 2), (Pixels{0x807D4B64}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 3), (Pixels{0x80963264}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 4), (Pixels{0x80AF1964}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 5), (Pixels{0x80C80064}));
}

TEST(Fade, FromAColourComesBeforeTheCurrentFrameAndStartsWithTheColour) {
    ThreeShades fixture;

    fixture.Run(FadeMode::kFromColor, 4, {200, 0, 100, 255});

    EXPECT_EQ(Names(fixture.document), (NameList{"dark", "[fade0000]", "fade0001", "fade0002",
                                                 "fade0003", "grey", "light"}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 1), (Pixels{0x80C80064}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 2), (Pixels{0x80AF1964}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 3), (Pixels{0x80963264}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 4), (Pixels{0x807D4B64}));
}

TEST(Fade, ToTheNextFrameComesBetweenBoth) {
    ThreeShades fixture;

    fixture.Run(FadeMode::kToNext, 3);

    EXPECT_EQ(Names(fixture.document),
              (NameList{"dark", "[grey]", "fade0000", "fade0001", "fade0002", "light"}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 2), (Pixels{0x807D7D7D}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 3), (Pixels{0x80969696}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 4), (Pixels{0x80AFAFAF}));
}

TEST(Fade, FromThePreviousFrameComesBetweenBoth) {
    ThreeShades fixture;

    fixture.Run(FadeMode::kFromPrevious, 3);

    EXPECT_EQ(Names(fixture.document),
              (NameList{"dark", "[fade0000]", "fade0001", "fade0002", "grey", "light"}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 1), (Pixels{0x80191919}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 2), (Pixels{0x80323232}));
    EXPECT_EQ(PixelsOfFrame(fixture.document, 3), (Pixels{0x804B4B4B}));
}

TEST(Fade, OfOneFrameBetweenFramesIsHalfWay) {
    for (const FadeMode mode : {FadeMode::kToNext, FadeMode::kFromPrevious}) {
        ThreeShades fixture;
        fixture.Run(mode, 1);
        const bool to_next = mode == FadeMode::kToNext;
        EXPECT_EQ(PixelsOfFrame(fixture.document, to_next ? 2 : 1),
                  (Pixels{to_next ? 0x80969696 : 0x80323232}));
    }
}

TEST(Fade, PostsItsProgressAndEachInsertion) {
    ThreeShades fixture;

    fixture.Run(FadeMode::kToColor, 2);

    EXPECT_EQ(fixture.port->Transcript(),
              "svup(Status: generating frame 1 of 2...) auns "
              "svup(Status: generating frame 2 of 2...) auns");
}

TEST(Fade, MarksTheDocumentModifiedAndNamesTheNextFadeAHundredFurther) {
    ThreeShades fixture;

    fixture.Run(FadeMode::kToColor, 1);
    EXPECT_TRUE(fixture.document.Modified());
    EXPECT_EQ(fixture.name_base, 100);
    fixture.Run(FadeMode::kFromColor, 1);

    EXPECT_EQ(fixture.name_base, 200);
    EXPECT_EQ(Names(fixture.document),
              (NameList{"dark", "[fade0100]", "grey", "fade0000", "light"}));
}

TEST(Fade, OfNoFramesRunsToItsEndAtOnce) {
    for (const int32 count : {0, -1, std::numeric_limits<int32>::min()}) {
        ThreeShades fixture;
        fixture.Run(FadeMode::kToColor, count);
        EXPECT_EQ(fixture.document.FrameCount(), 3);
        EXPECT_TRUE(fixture.document.Modified());
        EXPECT_EQ(fixture.name_base, 100);
        EXPECT_EQ(fixture.port->Transcript(), "");
    }
}

TEST(Fade, GivesNewFramesTheCurrentOnesSizeAndAPaletteOfTheirOwnColours) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(2, 1, {0xFF0A0A0A, 0xFF141414}), "frame");
    FrameEditOf(fixture.document, 0)->x_offset = 5;
    FrameEditOf(fixture.document, 0)->use_pause = true;
    int32 name_base = 0;

    Fade(fixture.document, FadeMode::kFromColor, 1, {1, 2, 3, 255}, &name_base);

    const Frame& frame = *fixture.document.FirstFrame();
    EXPECT_EQ(frame.width, 2);
    EXPECT_EQ(frame.height, 1);
    EXPECT_EQ(frame.x_offset, 0);
    EXPECT_FALSE(frame.use_pause);
    EXPECT_FALSE(frame.local_palette);
    EXPECT_EQ(frame.bitmap->ColorSpace(), B_RGB32);
    EXPECT_EQ(frame.palette->mode, kPaletteOptimal);
    EXPECT_EQ(frame.palette->unique_colors, 1);
    EXPECT_EQ(frame.palette->ColorForIndex(0), (rgb_color{1, 2, 3, 255}));
}

TEST(Fade, TurnsBigEndianFramesIntoLittleEndianOnes) {
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(1, 1, {0x40102030}, B_RGB32_BIG), "big");
    AppendFrame(fixture.document, PictureOf(1, 1, {0xFF305070}, B_RGBA32_BIG), "bigger");
    int32 name_base = 0;

    Fade(fixture.document, FadeMode::kToColor, 2, {0, 0, 0, 255}, &name_base);
    EXPECT_EQ(PixelsOfFrame(fixture.document, 1), (Pixels{0x40081018}));
    fixture.document.Select(3);
    Fade(fixture.document, FadeMode::kFromPrevious, 1, {}, &name_base);

    EXPECT_EQ(PixelsOfFrame(fixture.document, 3), (Pixels{0xFF182838}));
    EXPECT_EQ(fixture.document.FrameAt(3)->bitmap->ColorSpace(), B_RGB32);
}

TEST(Fade, KeepsTheCurrentPixelsWhereTheNeighbourHasNone) {
    DocumentFixture fixture;
    AppendFrame(fixture.document,
                PictureOf(3, 2,
                          {0xFF000064, 0xFF000064, 0x0A000064,  //
                           0xFF000064, 0xFF000064, 0x0B000064}),
                "large");
    AppendFrame(fixture.document, PictureOf(2, 1, {0xFF0000C8, 0xFF0000C8}), "small");
    int32 name_base = 0;

    Fade(fixture.document, FadeMode::kToNext, 1, {}, &name_base);

    EXPECT_EQ(PixelsOfFrame(fixture.document, 1), (Pixels{0xFF000096, 0xFF000096, 0x0A000064,  //
                                                          0xFF000064, 0xFF000064, 0x0B000064}));
}

TEST(Fade, LeavesOutWhatALargerNeighbourHasMore) {
    DocumentFixture fixture;
    AppendFrame(fixture.document,
                PictureOf(3, 2,
                          {0xFFC80000, 0xFF64C800, 0xFF000000,  //
                           0xFF6400C8, 0xFF000064, 0xFF000000}),
                "large");
    AppendFrame(fixture.document, PictureOf(2, 1, {0xFF000000, 0xFF000000}), "wide");
    fixture.document.Select(1);
    int32 name_base = 0;

    Fade(fixture.document, FadeMode::kFromPrevious, 1, {}, &name_base);

    EXPECT_EQ(fixture.document.FrameAt(1)->width, 2);
    EXPECT_EQ(fixture.document.FrameAt(1)->height, 1);
    EXPECT_EQ(PixelsOfFrame(fixture.document, 1), (Pixels{0xFF640000, 0xFF326400}));
}

TEST(Fade, DoesNothingWithoutACurrentFrame) {
    for (const FadeMode mode : kModes) {
        DocumentFixture fixture;
        int32 name_base = 0;

        Fade(fixture.document, mode, 3, kBlack, &name_base);

        EXPECT_EQ(fixture.document.FrameCount(), 0);
        EXPECT_FALSE(fixture.document.Modified());
        EXPECT_EQ(name_base, 0);
        EXPECT_EQ(fixture.port->Transcript(), "");
    }
}

TEST(Fade, DoesNothingBeyondTheEndsOfTheAnimation) {
    for (const auto& [mode, current] :
         {std::pair{FadeMode::kToNext, 2}, std::pair{FadeMode::kFromPrevious, 0}}) {
        ThreeShades fixture;
        fixture.document.Select(current);

        fixture.Run(mode, 3);

        EXPECT_EQ(fixture.document.FrameCount(), 3);
        EXPECT_FALSE(fixture.document.Modified());
        EXPECT_EQ(fixture.name_base, 0);
        EXPECT_EQ(fixture.port->Transcript(), "");
    }
}

TEST(Fade, DoesNothingWithPicturesThatAreNot32Bit) {
    for (const int32 odd_one : {1, 2}) {
        ThreeShades fixture;
        FrameEditOf(fixture.document, odd_one)->bitmap =
            Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(1, 1), B_CMAP8));

        fixture.Run(FadeMode::kToNext, 3);

        EXPECT_EQ(fixture.document.FrameCount(), 3);
        EXPECT_FALSE(fixture.document.Modified());
    }
}

TEST(Fade, StopsWithOutOfMemoryAndKeepsTheFramesInsertedSoFar) {
    // A fade of three frames that ends at each of its allocations in turn.
    int32 stopped_fades = 0;
    for (int64 failing = 1;; ++failing) {
        ThreeShades fixture;
        AlertRecorder alerts;
        int64 calls = 0;
        {
            const AllocationFault fault(failing);
            fixture.Run(FadeMode::kToNext, 3);
            calls = fault.Calls();
        }
        const int32 inserted = fixture.document.FrameCount() - 3;
        ASSERT_EQ(fixture.document.Modified(), inserted == 3);
        ASSERT_EQ(fixture.name_base, inserted == 3 ? 100 : 0);
        if (calls < failing) break;
        ASSERT_FALSE(alerts.Lines().empty());
        for (const std::string& line : alerts.Lines())
            ASSERT_EQ(line, "WARNING [] Out of memory. | OK");
        if (inserted < 3) ++stopped_fades;
    }
    // Palette and pixels of three frames; too little memory to count colours is no reason to stop.
    EXPECT_GE(stopped_fades, 6);
}

TEST(Fade, ReportsMemoryOnlyAfterTheStatusOfAFrameThatCouldBeMade) {
    const auto transcript_with_fault = [](int64 failing) {
        DocumentFixture fixture;
        AppendFrame(fixture.document, PictureOf(2, 1, {0xFF0A0A0A, 0xFF141414}), "frame");
        fixture.port->TakeTranscript();
        AlertRecorder alerts;
        int32 name_base = 0;
        const AllocationFault fault(failing);
        Fade(fixture.document, FadeMode::kToColor, 2, {0, 0, 0, 255}, &name_base);
        EXPECT_EQ(alerts.Lines(), std::vector<std::string>{"WARNING [] Out of memory. | OK"});
        return fixture.port->Transcript();
    };
    EXPECT_EQ(transcript_with_fault(1), "");
    EXPECT_EQ(transcript_with_fault(2), "svup(Status: generating frame 1 of 2...)");
}

TEST(Fade, StopsWhereTheDocumentsPixelMemoryEnds) {
    ThreeShades fixture;
    AlertRecorder alerts;
    fixture.document.pixel_budget->SetLimit(2 * (4 + PixelBudget::kFrameCost));

    fixture.Run(FadeMode::kToColor, kMostFrames);

    EXPECT_EQ(fixture.document.FrameCount(), 5);
    EXPECT_FALSE(fixture.document.Modified());
    EXPECT_EQ(fixture.name_base, 0);
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{"WARNING [] Out of memory. | OK"});
}

TEST(Fade, EndsBeforeItsNextFrameWhenAskedToStop) {
    ThreeShades fixture;
    fixture.document.RequestStop();

    fixture.Run(FadeMode::kToColor, 3);

    EXPECT_EQ(fixture.document.FrameCount(), 3);
    EXPECT_EQ(fixture.port->Transcript(), "");
}

}  // namespace

}  // namespace kirto::test
