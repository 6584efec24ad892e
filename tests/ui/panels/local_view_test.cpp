#include "ui/panels/local_view.h"

#include <QAbstractItemView>

#include "ui/panels/view_fixture.h"

namespace kirto::test {

using Lines = std::vector<std::string>;

namespace {

class LocalViewTest : public ViewFixture {
  protected:
    FrameHandle AddFrame() {
        return AppendFrame(document, PictureOf(2, 1, {0xFF000001, 0xFF000002}), "frame0000");
    }
    void Update() {
        Take();
        panel.UpdateDisplay();
    }
    void ExpectEmpty() const {
        EXPECT_EQ(panel.frame_name->text(), "None");
        EXPECT_EQ(panel.frame_size->text(), "Unknown");
        EXPECT_EQ(panel.frame_colors->text(), "Unknown");
        EXPECT_EQ(panel.x_offset->text(), "0");
        EXPECT_EQ(panel.y_offset->text(), "0");
        EXPECT_EQ(panel.pause_length->text(), "0.00");
        EXPECT_FALSE(panel.pause->isChecked());
        EXPECT_FALSE(panel.palette->isChecked());
        for (const QWidget* control : std::initializer_list<QWidget*>{
                 panel.x_offset, panel.y_offset, panel.pause, panel.pause_length, panel.palette,
                 panel.palette_menu}) {
            EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
        }
    }

    LocalView panel{shown, window};
};

TEST_F(LocalViewTest, IsTitledCurrentFrame) {
    EXPECT_EQ(panel.title(), "Current Frame");
    EXPECT_EQ(panel.objectName(), "LocalView");
}

TEST_F(LocalViewTest, NamesItsControls) {
    EXPECT_EQ(panel.frame_name->objectName(), "FrameName");
    EXPECT_EQ(panel.frame_size->objectName(), "FrameSize");
    EXPECT_EQ(panel.frame_colors->objectName(), "FrameColors");
    EXPECT_EQ(panel.x_offset->objectName(), "XOffset");
    EXPECT_EQ(panel.y_offset->objectName(), "YOffset");
    EXPECT_EQ(panel.pause->objectName(), "Pause");
    EXPECT_EQ(panel.pause_length->objectName(), "Pause length");
    EXPECT_EQ(panel.palette->objectName(), "Palette");
    EXPECT_EQ(panel.palette_menu->objectName(), "PaletteMenuField");
    EXPECT_EQ(panel.palette_menu->view()->objectName(), "WhichPalette");
    EXPECT_EQ(panel.thumbnail_mode->objectName(), "ThumbnailMode");
    EXPECT_EQ(panel.frame_list_mode->objectName(), "FramelistMode");
    ASSERT_NE(panel.findChild<QLabel*>("ModeTitle"), nullptr);
    EXPECT_EQ(panel.findChild<QLabel*>("ModeTitle")->text(), "Mode");
}

TEST_F(LocalViewTest, LabelsItsControls) {
    EXPECT_EQ(panel.x_offset->accessibleName(), "X offset:");
    EXPECT_EQ(panel.y_offset->accessibleName(), "Y offset:");
    EXPECT_EQ(panel.pause->text(), "Use pause");
    EXPECT_EQ(panel.pause_length->accessibleName(), "Length:");
    EXPECT_EQ(panel.palette->text(), "Local palette");
    EXPECT_FALSE(panel.palette_menu->accessibleName().isEmpty());
    EXPECT_EQ(panel.thumbnail_mode->text(), "Thumbnail");
    EXPECT_EQ(panel.frame_list_mode->text(), "Frame list");
}

TEST_F(LocalViewTest, OffersTheKindsOfLocalPalette) {
    EXPECT_EQ(ItemsOf(*panel.palette_menu),
              (Lines{"BeOS system lvbp", "web safe lvwp", "greyscale lvgp", "optimal lvop",
                     "from a file lvfp"}));
}

TEST_F(LocalViewTest, SendsACommandForEachControl) {
    EXPECT_EQ(CommandOf(*panel.x_offset), "lvxo");
    EXPECT_EQ(CommandOf(*panel.y_offset), "lvyo");
    EXPECT_EQ(CommandOf(*panel.pause), "lvps");
    EXPECT_EQ(CommandOf(*panel.pause_length), "lvpl");
    EXPECT_EQ(CommandOf(*panel.palette), "lvlp");
    EXPECT_EQ(CommandOf(*panel.thumbnail_mode), "lvtm");
    EXPECT_EQ(CommandOf(*panel.frame_list_mode), "lvfm");
}

TEST_F(LocalViewTest, BeginsWithoutAFrame) {
    ExpectEmpty();
}

TEST_F(LocalViewTest, ShowsNoneAndUnknownWithoutACurrentFrame) {
    AddFrame()->use_pause = true;
    Update();
    document.RemoveFrame();

    Update();

    ExpectEmpty();
}

TEST_F(LocalViewTest, ShowsTheCurrentFrame) {
    const FrameHandle frame = AddFrame();
    frame->x_offset = 3;
    frame->y_offset = 4;
    frame->use_pause = true;
    frame->pause_length = 1.5;
    frame->local_palette = true;
    frame.Palette()->Set(kPaletteGreyscale);
    Update();

    EXPECT_EQ(panel.frame_name->text(), "frame0000");
    EXPECT_EQ(panel.frame_size->text(), "2 x 1");
    EXPECT_EQ(panel.frame_colors->text(), "2 colors");
    EXPECT_EQ(panel.x_offset->text(), "3");
    EXPECT_EQ(panel.y_offset->text(), "4");
    EXPECT_TRUE(panel.pause->isChecked());
    EXPECT_EQ(panel.pause_length->text(), "1.50");
    EXPECT_TRUE(panel.pause_length->isEnabled());
    EXPECT_TRUE(panel.palette->isChecked());
    EXPECT_TRUE(panel.palette_menu->isEnabled());
    EXPECT_EQ(panel.palette_menu->currentText(), "greyscale");
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(LocalViewTest, CountsTheColours) {
    const FrameHandle frame = AddFrame();
    for (const auto& [colors, text] : {std::pair{0, "Unknown"}, std::pair{1, "1 color"},
                                       std::pair{2, "2 colors"}, std::pair{300, "300 colors"}}) {
        frame.Palette()->unique_colors = colors;
        Update();
        EXPECT_EQ(panel.frame_colors->text(), text);
    }
}

TEST_F(LocalViewTest, EnablesWhatBelongsToABoxOnlyWhileItIsTicked) {
    AddFrame();
    Update();

    for (const QWidget* control : std::initializer_list<QWidget*>{panel.x_offset, panel.y_offset,
                                                                  panel.pause, panel.palette}) {
        EXPECT_TRUE(control->isEnabled()) << control->objectName().toStdString();
    }
    EXPECT_FALSE(panel.pause_length->isEnabled());
    EXPECT_FALSE(panel.palette_menu->isEnabled());
}

TEST_F(LocalViewTest, MarksTheLocalPalettesKind) {
    const FrameHandle frame = AddFrame();
    const std::pair<int32, const char*> kinds[] = {
        {kPaletteSystem, "BeOS system"},   {kPaletteWebSafe, "web safe"},
        {kPaletteGreyscale, "greyscale"},  {kPaletteOptimal, "optimal"},
        {kPaletteFromFile, "from a file"}, {kPaletteAwaitingFile, "from a file"},
    };
    for (const auto& [mode, label] : kinds) {
        frame.Palette()->mode = mode;
        Update();
        EXPECT_EQ(panel.palette_menu->currentText(), label) << mode;
    }
}

TEST_F(LocalViewTest, LeavesAFieldAloneWhileTheUserTypesInIt) {
    AddFrame();
    Update();
    panel.x_offset->setText("12");
    panel.x_offset->setModified(true);

    Update();

    EXPECT_EQ(panel.x_offset->text(), "12");
}

TEST_F(LocalViewTest, ShowsANameThatLooksLikeMarkupAsItIs) {
    AddFrame()->name = "<b>&name</b>";
    Update();

    EXPECT_EQ(panel.frame_name->text(), "<b>&name</b>");
    EXPECT_EQ(panel.frame_name->textFormat(), Qt::PlainText);
    EXPECT_EQ(panel.frame_name->toolTip(), "<p>&lt;b&gt;&amp;name&lt;/b&gt;</p>");
}

TEST_F(LocalViewTest, IsNotWidenedByALongName) {
    AddFrame();
    Update();
    const int before = panel.sizeHint().width();

    FrameEditOf(document, document.Selected())->name = std::string(250, 'w');
    Update();

    EXPECT_EQ(panel.sizeHint().width(), before);
    EXPECT_EQ(panel.minimumSizeHint().width(),
              panel.minimumSizeHint().boundedTo({before, 9999}).width());
}

TEST_F(LocalViewTest, ShowsTheModeWithoutSendingIt) {
    panel.ShowMode(true);
    EXPECT_TRUE(panel.frame_list_mode->isChecked());
    EXPECT_FALSE(panel.thumbnail_mode->isChecked());

    panel.ShowMode(false);
    EXPECT_FALSE(panel.frame_list_mode->isChecked());
    EXPECT_TRUE(panel.thumbnail_mode->isChecked());
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(LocalViewTest, TellsThePauseInOtherUnits) {
    const FrameHandle frame = AddFrame();
    frame->use_pause = true;
    frame->pause_length = 4;
    Update();
    EXPECT_EQ(panel.findChild<QLabel*>("PauseText")->text(), "40 ms, 25 fps");

    frame->pause_length = 0;
    Update();
    EXPECT_EQ(panel.findChild<QLabel*>("PauseText")->text(), "0 ms");
}

TEST_F(LocalViewTest, ShowsWhereSelectedFramesDiffer) {
    AddFrame();
    const FrameHandle second = AddFrame();
    second->use_pause = true;
    second->x_offset = 7;
    Animation next = *document.Current();
    SelectFrames(next, FrameSet::Of(0, 1), 0);
    document.Commit(next);
    Update();

    EXPECT_EQ(panel.pause->checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(panel.x_offset->text(), "");
    EXPECT_EQ(panel.x_offset->placeholderText(), "mixed");
    EXPECT_EQ(panel.y_offset->text(), "0");

    SelectFrame(next, 1);
    document.Commit(next);
    Update();

    EXPECT_EQ(panel.pause->checkState(), Qt::Checked);
    EXPECT_FALSE(panel.pause->isTristate());
    EXPECT_EQ(panel.x_offset->text(), "7");
}

}  // namespace

}  // namespace kirto::test
