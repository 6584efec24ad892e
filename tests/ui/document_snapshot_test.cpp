#include <gtest/gtest.h>
#include <thread>

#include "document/document_scope.h"
#include "support/test_support.h"
#include "ui/shown_document.h"

namespace kirto::test {

namespace {

class ShownDocuments : public ::testing::Test {
  protected:
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    ShownDocument snapshot;
};

TEST_F(ShownDocuments, ShowAnEmptyAnimationBeforeTheFirstTake) {
    EXPECT_EQ(snapshot.file_name, "untitled");
    EXPECT_EQ(snapshot.FrameCount(), 0);
    EXPECT_EQ(snapshot.FirstFrame(), nullptr);
    EXPECT_EQ(snapshot.CurrentFrame(), nullptr);
    EXPECT_EQ(snapshot.prefs.global_width, Prefs(Prefs::BuiltIn{}).global_width);
}

TEST_F(ShownDocuments, TakeTheAnimationsProperties) {
    document.file_name = "some.gif";
    EditOf(document)->width = 11;
    EditOf(document)->height = 12;
    EditOf(document)->use_pause = true;
    EditOf(document)->pause_length = 1.5;
    EditOf(document)->use_loop = true;
    EditOf(document)->loop_count = 13;
    document.SetModified(true);

    ASSERT_TRUE(snapshot.Take(document));

    EXPECT_EQ(snapshot.file_name, "some.gif");
    EXPECT_EQ(snapshot.width, 11);
    EXPECT_EQ(snapshot.height, 12);
    EXPECT_TRUE(snapshot.use_pause);
    EXPECT_EQ(snapshot.pause_length, 1.5);
    EXPECT_TRUE(snapshot.use_loop);
    EXPECT_EQ(snapshot.loop_count, 13);
    EXPECT_TRUE(snapshot.modified);
}

TEST_F(ShownDocuments, TakeTheGlobalPalettesProperties) {
    Palette& palette = *document.Current()->palette;
    palette.mode = kPaletteGreyscale;
    palette.bits = 5;
    palette.background_index = 1;
    palette.transparent_index = 2;
    palette.use_transparent = true;
    palette.dither = true;

    ASSERT_TRUE(snapshot.Take(document));

    EXPECT_EQ(snapshot.palette_mode, kPaletteGreyscale);
    EXPECT_EQ(snapshot.palette_bits, 5);
    EXPECT_EQ(snapshot.background_index, 1);
    EXPECT_EQ(snapshot.transparent_index, 2);
    EXPECT_TRUE(snapshot.use_transparent);
    EXPECT_TRUE(snapshot.dither);
}

TEST_F(ShownDocuments, TakeFramesAndTheCurrentOnesProperties) {
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    Frame* second = AppendFrame(document, PictureOf(2, 1, {0xFF000001, 0xFF000002}), "two");
    document.Select(1);
    second->x_offset = 3;
    second->y_offset = 4;
    second->use_pause = true;
    second->pause_length = 0.5;
    second->local_palette = true;

    ASSERT_TRUE(snapshot.Take(document));

    ASSERT_EQ(snapshot.FrameCount(), 2);
    EXPECT_EQ(snapshot.FirstFrame()->name, "one");
    EXPECT_EQ(snapshot.selected, 1);
    ASSERT_NE(snapshot.CurrentFrame(), nullptr);
    EXPECT_EQ(snapshot.CurrentFrame()->name, "two");
    EXPECT_EQ(snapshot.CurrentFrame()->width, 2);
    EXPECT_EQ(snapshot.CurrentFrame()->height, 1);
    EXPECT_EQ(snapshot.CurrentFrame()->bitmap, second->bitmap);
    EXPECT_EQ(snapshot.current.x_offset, 3);
    EXPECT_EQ(snapshot.current.y_offset, 4);
    EXPECT_EQ(snapshot.current.unique_colors, 2);
    EXPECT_TRUE(snapshot.current.use_pause);
    EXPECT_EQ(snapshot.current.pause_length, 0.5);
    EXPECT_TRUE(snapshot.current.local_palette);
    EXPECT_EQ(snapshot.current.palette_mode, kPaletteOptimal);
}

TEST_F(ShownDocuments, ForgetFramesThatAreGone) {
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    FrameEditOf(document, document.Selected())->x_offset = 5;
    ASSERT_TRUE(snapshot.Take(document));
    document.RemoveFrame();

    ASSERT_TRUE(snapshot.Take(document));

    EXPECT_EQ(snapshot.FrameCount(), 0);
    EXPECT_EQ(snapshot.CurrentFrame(), nullptr);
    EXPECT_EQ(snapshot.current.x_offset, 0);
}

TEST_F(ShownDocuments, KeepPicturesAfterTheFramesAreGone) {
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    ASSERT_TRUE(snapshot.Take(document));

    document.Reset();

    EXPECT_EQ(PixelsOf(*snapshot.FirstFrame()->bitmap), std::vector<uint32>{0xFF000001});
}

TEST_F(ShownDocuments, TakeACopyOfTheSettings) {
    fixture.prefs.thumbnail_heightvalue = 55;
    ASSERT_TRUE(snapshot.Take(document));

    fixture.prefs.thumbnail_heightvalue = 66;

    EXPECT_EQ(snapshot.prefs.thumbnail_heightvalue, 55);
}

TEST_F(ShownDocuments, TakeNothingWhileAWriterIsInside) {
    EditOf(document)->width = 11;
    ASSERT_TRUE(snapshot.Take(document));
    bool taken = true;
    {
        const WriterScope writer(document);
        EditOf(document)->width = 12;
        std::thread([&] { taken = snapshot.Take(document); }).join();
    }

    EXPECT_FALSE(taken);
    EXPECT_EQ(snapshot.width, 11);
    EXPECT_TRUE(snapshot.Take(document));
    EXPECT_EQ(snapshot.width, 12);
}

TEST_F(ShownDocuments, LeaveTheLockAgain) {
    ASSERT_TRUE(snapshot.Take(document));

    EXPECT_EQ(document.reader_count, 0);
    document.SetModified(true);
    EXPECT_TRUE(document.Modified());
}

TEST_F(ShownDocuments, ResetToTheDefaultsOfTheSettings) {
    Prefs& prefs = fixture.prefs;
    prefs.global_width = 21;
    prefs.global_height = 22;
    prefs.global_usepause = true;
    prefs.global_pauselength = 2.5;
    prefs.global_useloop = true;
    prefs.global_loopcount = 23;
    prefs.palette_mapping = kPaletteGreyscale;
    prefs.palette_usetransparent = true;
    prefs.palette_transparentindex = 24;
    prefs.palette_backgroundindex = 25;
    prefs.palette_dither = true;
    document.file_name = "some.gif";
    document.SetModified(true);
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    ASSERT_TRUE(snapshot.Take(document));

    snapshot.Reset();

    EXPECT_EQ(snapshot.file_name, "untitled");
    EXPECT_FALSE(snapshot.modified);
    EXPECT_EQ(snapshot.FrameCount(), 0);
    EXPECT_EQ(snapshot.selected, -1);
    EXPECT_EQ(snapshot.width, 21);
    EXPECT_EQ(snapshot.height, 22);
    EXPECT_TRUE(snapshot.use_pause);
    EXPECT_EQ(snapshot.pause_length, 2.5);
    EXPECT_TRUE(snapshot.use_loop);
    EXPECT_EQ(snapshot.loop_count, 23);
    EXPECT_EQ(snapshot.palette_mode, kPaletteGreyscale);
    EXPECT_TRUE(snapshot.use_transparent);
    EXPECT_EQ(snapshot.transparent_index, 24);
    EXPECT_EQ(snapshot.background_index, 25);
    EXPECT_TRUE(snapshot.dither);
    EXPECT_EQ(snapshot.prefs.global_width, 21);
}

}  // namespace

}  // namespace kirto::test
