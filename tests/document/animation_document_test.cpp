#include "document/animation_document.h"

#include <gtest/gtest.h>

#include "document/document_checks.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

// A document of the frames "one", "two", "three" of which one is selected, unmodified.
struct ThreeFrames : DocumentFixture {
    explicit ThreeFrames(int32 current = 0) {
        for (const char* name : {"one", "two", "three"}) {
            Insert(document, name, document.FrameCount());
        }
        document.Select(current);
        document.SetModified(false);
    }
};

}  // namespace

TEST(AnimationDocument, SelectsTheFirstFrameAndPostsTheThumbnailSizeBeforeTheRefresh) {
    DocumentFixture fixture;

    EXPECT_TRUE(Insert(fixture.document, "one", 0));

    EXPECT_EQ(fixture.document.FrameCount(), 1);
    EXPECT_EQ(fixture.document.Selected(), 0);
    EXPECT_FALSE(fixture.document.Modified());
    EXPECT_EQ(fixture.port->Transcript(), "tvff auns");
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, PostsTheThumbnailSizeThatTheSettingsAskFor) {
    const std::pair<int32, std::string> cases[] = {
        {0, "tvff auns"}, {1, "tvfh auns"}, {2, "tvpv auns"}, {3, "auns"}, {-1, "auns"}};
    for (const auto& [setting, transcript] : cases) {
        DocumentFixture fixture;
        fixture.prefs.thumbnail_height = setting;

        Insert(fixture.document, "one", 0);

        EXPECT_EQ(fixture.port->Transcript(), transcript) << "setting " << setting;
    }
}

TEST(AnimationDocument, PostsOnlyTheRefreshForLaterFrames) {
    DocumentFixture fixture;

    Insert(fixture.document, "one", 0);
    Insert(fixture.document, "two", 1);
    Insert(fixture.document, "zero", 0);

    EXPECT_EQ(fixture.port->Transcript(), "tvff auns auns auns");
}

TEST(AnimationDocument, PostsTheThumbnailSizeAgainForTheFirstFrameAfterAReset) {
    DocumentFixture fixture;
    Insert(fixture.document, "one", 0);
    fixture.document.Reset();

    Insert(fixture.document, "one", 0);

    EXPECT_EQ(fixture.port->Transcript(), "tvff auns tvff auns");
}

TEST(AnimationDocument, WorksWithoutAWindow) {
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document(prefs);

    EXPECT_TRUE(Insert(document, "one", 0));

    EXPECT_EQ(Names(document), NameList{"one"});
}

TEST(AnimationDocument, AppendsAFrameWhosePositionIsTheCount) {
    ThreeFrames fixture;

    EXPECT_TRUE(Insert(fixture.document, "four", 3));

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "two", "three", "four"}));
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, InsertsNoFrameOutsideTheList) {
    ThreeFrames fixture;
    const std::string before = fixture.port->Transcript();

    EXPECT_FALSE(Insert(fixture.document, "four", 4));
    EXPECT_FALSE(Insert(fixture.document, "minus", -1));

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "two", "three"}));
    EXPECT_EQ(fixture.port->Transcript(), before);
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, InsertsBetweenFrames) {
    ThreeFrames fixture;

    EXPECT_TRUE(Insert(fixture.document, "new", 1));

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "new", "two", "three"}));
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, KeepsTheSelectedNumberWhenAFrameComesInBefore) {
    ThreeFrames fixture(2);

    EXPECT_TRUE(Insert(fixture.document, "new", 0));

    EXPECT_EQ(fixture.document.Selected(), 2);
    EXPECT_EQ(fixture.document.CurrentFrame()->name, "two");
    EXPECT_FALSE(fixture.document.Modified());
}

TEST(AnimationDocument, MakesAFrameInsertedAsCurrentTheCurrentOne) {
    ThreeFrames fixture;

    fixture.document.InsertFrameAsCurrent(1, MakeFrame("new"));

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "new", "two", "three"}));
    EXPECT_EQ(fixture.document.Selected(), 1);
    EXPECT_TRUE(fixture.document.Modified());
    EXPECT_EQ(fixture.document.Current()->width, 320);
    EXPECT_EQ(fixture.port->Transcript(), "tvff auns auns auns auns");
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, ClampsThePositionOfAFrameInsertedAsCurrent) {
    ThreeFrames fixture;

    fixture.document.InsertFrameAsCurrent(99, MakeFrame("last"));
    EXPECT_EQ(fixture.document.Selected(), 3);
    fixture.document.InsertFrameAsCurrent(-7, MakeFrame("first"));
    EXPECT_EQ(fixture.document.Selected(), 0);

    EXPECT_EQ(Names(fixture.document), (NameList{"first", "one", "two", "three", "last"}));
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, TakesItsSizeFromTheFirstFrameInsertedAsCurrentWhereTheSettingsSaySo) {
    for (const bool set_dimensions : {true, false}) {
        DocumentFixture fixture;
        fixture.prefs.global_setdimensions = set_dimensions;
        Frame frame = MakeFrame("one");
        frame.width = 40;
        frame.height = 30;

        fixture.document.InsertFrameAsCurrent(5, frame);

        EXPECT_EQ(fixture.document.Current()->width, set_dimensions ? 40 : 320);
        EXPECT_EQ(fixture.document.Current()->height, set_dimensions ? 30 : 240);
        EXPECT_EQ(fixture.document.Selected(), 0);
        EXPECT_EQ(fixture.port->Transcript(), "tvff auns");
    }
}

TEST(AnimationDocument, SelectsTheNewLastFrameAfterTheLastIsRemoved) {
    ThreeFrames fixture(2);

    fixture.document.RemoveFrame();

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "two"}));
    EXPECT_EQ(fixture.document.Selected(), 1);
    EXPECT_TRUE(fixture.document.Modified());
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, SelectsTheFollowingFrameAfterOneIsRemoved) {
    ThreeFrames fixture(1);

    fixture.document.RemoveFrame();

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "three"}));
    EXPECT_EQ(fixture.document.Selected(), 1);
    EXPECT_EQ(fixture.document.CurrentFrame()->name, "three");
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, RemovesTheFirstFrame) {
    ThreeFrames fixture(0);

    fixture.document.RemoveFrame();

    EXPECT_EQ(Names(fixture.document), (NameList{"two", "three"}));
    EXPECT_EQ(fixture.document.Selected(), 0);
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, SelectsNothingAfterTheOnlyFrameIsRemoved) {
    DocumentFixture fixture;
    Insert(fixture.document, "one", 0);

    fixture.document.RemoveFrame();

    EXPECT_EQ(fixture.document.Selected(), -1);
    EXPECT_EQ(fixture.document.FrameCount(), 0);
    EXPECT_TRUE(fixture.document.Modified());
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, RemovesNothingFromAnEmptyList) {
    DocumentFixture fixture;

    fixture.document.RemoveFrame();

    EXPECT_FALSE(fixture.document.Modified());
    EXPECT_EQ(fixture.document.Selected(), -1);
}

TEST(AnimationDocument, PostsNothingWhenFramesAreRemovedMovedReversedOrSelected) {
    ThreeFrames fixture;
    const std::string before = fixture.port->Transcript();

    fixture.document.MoveFrame(false);
    fixture.document.ReverseFrames();
    fixture.document.Select(2);
    fixture.document.RemoveFrame();

    EXPECT_EQ(fixture.port->Transcript(), before);
}

TEST(AnimationDocument, DoesNotMoveTheFirstFrameUp) {
    ThreeFrames fixture(0);

    fixture.document.MoveFrame(true);

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "two", "three"}));
    EXPECT_EQ(fixture.document.Selected(), 0);
    EXPECT_FALSE(fixture.document.Modified());
}

TEST(AnimationDocument, DoesNotMoveTheLastFrameDown) {
    ThreeFrames fixture(2);

    fixture.document.MoveFrame(false);

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "two", "three"}));
    EXPECT_EQ(fixture.document.Selected(), 2);
    EXPECT_FALSE(fixture.document.Modified());
}

TEST(AnimationDocument, MovesNothingInAnEmptyList) {
    DocumentFixture fixture;

    fixture.document.MoveFrame(true);
    fixture.document.MoveFrame(false);

    EXPECT_FALSE(fixture.document.Modified());
    EXPECT_EQ(fixture.document.Selected(), -1);
}

TEST(AnimationDocument, FollowsAFrameThatMovesUp) {
    ThreeFrames fixture(2);
    const FramePointer moved = fixture.document.CurrentFrame();

    fixture.document.MoveFrame(true);

    EXPECT_EQ(Names(fixture.document), (NameList{"one", "three", "two"}));
    EXPECT_EQ(fixture.document.CurrentFrame(), moved);
    EXPECT_TRUE(fixture.document.Modified());
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, FollowsAFrameThatMovesDown) {
    ThreeFrames fixture(0);
    const FramePointer moved = fixture.document.CurrentFrame();

    fixture.document.MoveFrame(false);

    EXPECT_EQ(Names(fixture.document), (NameList{"two", "one", "three"}));
    EXPECT_EQ(fixture.document.CurrentFrame(), moved);
    EXPECT_TRUE(fixture.document.Modified());
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, ReversesTheOrderButNeitherTheSelectedNumberNorModified) {
    ThreeFrames fixture(0);

    fixture.document.ReverseFrames();

    EXPECT_EQ(Names(fixture.document), (NameList{"three", "two", "one"}));
    EXPECT_EQ(fixture.document.Selected(), 0);
    EXPECT_EQ(fixture.document.CurrentFrame()->name, "three");
    EXPECT_FALSE(fixture.document.Modified());
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, ReversesNothingBelowTwoFrames) {
    DocumentFixture fixture;

    fixture.document.ReverseFrames();
    Insert(fixture.document, "one", 0);
    fixture.document.ReverseFrames();

    EXPECT_EQ(Names(fixture.document), NameList{"one"});
    ExpectConsistent(fixture.document);
}

TEST(AnimationDocument, SelectsOnlyAnotherFrameThatIsThere) {
    ThreeFrames fixture(1);

    EXPECT_FALSE(fixture.document.Select(1));
    EXPECT_FALSE(fixture.document.Select(3));
    EXPECT_FALSE(fixture.document.Select(-1));
    EXPECT_EQ(fixture.document.Selected(), 1);
    EXPECT_TRUE(fixture.document.Select(2));
    EXPECT_EQ(fixture.document.Selected(), 2);
}

TEST(AnimationDocument, HasNoFrameAtItsCount) {
    const ThreeFrames fixture;

    EXPECT_EQ(fixture.document.FrameAt(3), nullptr);
    EXPECT_EQ(fixture.document.FrameAt(-1), nullptr);
    EXPECT_EQ(fixture.document.FrameAt(2)->name, "three");
}

TEST(AnimationDocument, LetsThePaletteFollowTheFirstOrTheCurrentFrame) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    AppendFrame(document, PictureOf(1, 1, {0xFF010203}), "one");
    AppendFrame(document, PictureOf(1, 1, {0xFF040506}), "two");
    document.Select(1);

    PaletteEditOf(document)->Set(kPaletteFirstFrame);
    document.UpdateGlobalPalette();
    EXPECT_EQ(document.Current()->palette->ColorForIndex(0), (rgb_color{1, 2, 3, 255}));

    PaletteEditOf(document)->Set(kPaletteCurrentFrame);
    document.UpdateGlobalPalette();
    EXPECT_EQ(document.Current()->palette->ColorForIndex(0), (rgb_color{4, 5, 6, 255}));
}

TEST(AnimationDocument, KeepsAFollowingPaletteWhileThereAreNoFrames) {
    DocumentFixture fixture;
    PaletteEditOf(fixture.document)->Set(kPaletteFirstFrame);

    fixture.document.UpdateGlobalPalette();

    EXPECT_EQ(fixture.document.Current()->palette->colors, kWebSafeColors);
}

TEST(AnimationDocument, IsModifiedAndUnmodifiedOnDemand) {
    DocumentFixture fixture;

    fixture.document.SetModified(true);
    EXPECT_TRUE(fixture.document.Modified());
    fixture.document.SetModified(false);
    EXPECT_FALSE(fixture.document.Modified());
    EXPECT_EQ(fixture.port->Transcript(), "");
}

TEST(AnimationDocument, PostsStatusTexts) {
    DocumentFixture fixture;

    fixture.document.PostStatus("Status: loading frame 1...");

    EXPECT_EQ(fixture.port->Transcript(), "svup(Status: loading frame 1...)");
}

}  // namespace kirto::test
