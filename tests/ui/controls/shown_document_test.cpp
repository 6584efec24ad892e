#include "ui/controls/shown_document.h"

#include <gtest/gtest.h>

#include "document/document_scope.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

class ShownDocuments : public ::testing::Test {
  protected:
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    ShownDocument shown;
};

TEST_F(ShownDocuments, ShowAnEmptyAnimationBeforeTheFirstTake) {
    EXPECT_EQ(shown.State().file_name, "untitled");
    EXPECT_EQ(shown.FrameCount(), 0);
    EXPECT_EQ(shown.Selected(), -1);
    EXPECT_EQ(shown.FirstFrame(), nullptr);
    EXPECT_EQ(shown.CurrentFrame(), nullptr);
    EXPECT_EQ(shown.Settings().global_width, Prefs(Prefs::BuiltIn{}).global_width);
}

TEST_F(ShownDocuments, TakeTheDocumentAsItIsNow) {
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    AppendFrame(document, PictureOf(2, 1, {0xFF000001, 0xFF000002}), "two");
    document.Select(1);
    EditOf(document)->width = 11;
    document.SetFile("/some/folder", "some.gif");
    document.SetModified(true);

    shown.Take(document);

    EXPECT_EQ(shown.Current().width, 11);
    EXPECT_EQ(shown.State().file_name, "some.gif");
    EXPECT_EQ(shown.State().file_directory, "/some/folder");
    EXPECT_TRUE(shown.State().modified);
    EXPECT_EQ(shown.FrameCount(), 2);
    EXPECT_EQ(shown.Selected(), 1);
    EXPECT_EQ(shown.FirstFrame()->name, "one");
    EXPECT_EQ(shown.CurrentFrame()->name, "two");
}

TEST_F(ShownDocuments, ShareFramesAndPaletteWithTheDocument) {
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");

    shown.Take(document);

    EXPECT_EQ(shown.CurrentFrame(), document.CurrentFrame());
    EXPECT_EQ(shown.Current().palette, document.Current()->palette);
}

TEST_F(ShownDocuments, StayTheSameUntilTheNextTake) {
    const FrameHandle frame = AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    shown.Take(document);

    frame->x_offset = 5;
    EditOf(document)->width = 77;
    EXPECT_EQ(shown.CurrentFrame()->x_offset, 0);
    EXPECT_NE(shown.Current().width, 77);
    document.Reset();
    EXPECT_EQ(PixelsOf(*shown.FirstFrame()->bitmap), std::vector<uint32>{0xFF000001});

    shown.Take(document);
    EXPECT_EQ(shown.FrameCount(), 0);
    EXPECT_EQ(shown.CurrentFrame(), nullptr);
}

TEST_F(ShownDocuments, TakeTheSettingsOnceTheyArePublished) {
    fixture.prefs.thumbnail_heightvalue = 55;
    document.PublishSettings();
    shown.Take(document);

    fixture.prefs.thumbnail_heightvalue = 66;
    shown.Take(document);
    EXPECT_EQ(shown.Settings().thumbnail_heightvalue, 55);

    document.PublishSettings();
    shown.Take(document);
    EXPECT_EQ(shown.Settings().thumbnail_heightvalue, 66);
}

TEST_F(ShownDocuments, TakeTheNewestStateAlthoughAReaderOrAWriterIsInside) {
    EditOf(document)->width = 11;
    {
        const WriterScope writer(document);
        shown.Take(document);
    }
    EXPECT_EQ(shown.Current().width, 11);

    EditOf(document)->width = 12;
    {
        const ReaderScope reader(document);
        shown.Take(document);
    }
    EXPECT_EQ(shown.Current().width, 12);
}

TEST_F(ShownDocuments, ResetToTheDefaultsOfTheSettings) {
    Prefs& prefs = fixture.prefs;
    prefs.global_width = 21;
    prefs.global_usepause = true;
    prefs.global_pauselength = 2.5;
    prefs.palette_mapping = kPaletteGreyscale;
    prefs.palette_backgroundindex = 25;
    document.PublishSettings();
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    document.SetFile("/some/folder", "some.gif");
    document.SetModified(true);
    shown.Take(document);

    shown.Reset();

    EXPECT_EQ(shown.State().file_name, "untitled");
    EXPECT_EQ(shown.State().file_directory, "");
    EXPECT_FALSE(shown.State().modified);
    EXPECT_EQ(shown.FrameCount(), 0);
    EXPECT_EQ(shown.Selected(), -1);
    EXPECT_EQ(shown.Current().width, 21);
    EXPECT_TRUE(shown.Current().use_pause);
    EXPECT_EQ(shown.Current().pause_length, 2.5);
    EXPECT_EQ(shown.Current().palette->mode, kPaletteGreyscale);
    EXPECT_EQ(shown.Current().palette->background_index, 25);
    EXPECT_EQ(shown.Settings().global_width, 21);
}

TEST_F(ShownDocuments, HaveNoEditToUndoWhenTheyAreReset) {
    document.BeginStep();
    AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "one");
    document.EndStep("Insert Frame");
    shown.Take(document);
    EXPECT_EQ(shown.State().undo_name, "Insert Frame");

    shown.Reset();

    EXPECT_EQ(shown.State().undo_name, "");
}

}  // namespace

}  // namespace kirto::test
