#include "ui/export/export_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <tuple>

#include "support/colors.h"
#include "support/environment.h"
#include "support/fake_roster.h"
#include "support/test_support.h"
#include "ui/controls/color_button.h"
#include "ui/export/export_view.h"
#include "ui/player/picture_pane.h"
#include "ui/thumbnails/frame_area_fixture.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

// Of a red and a green frame of 8 x 4 pixels, each shown for a second.
struct ExportDialogTest : testing::Test {
    const TemporaryFolder folder;
    const ScopedEnvironment home{"HOME", folder.Path().c_str()};
    const ScopedEnvironment config{"XDG_CONFIG_HOME", folder.Path().c_str()};
    DocumentFixture fixture;
    FakeRoster roster;
    QPointer<ExportDialog> dialog;

    ExportDialogTest() {
        fixture.document.Change([](Animation& animation) {
            animation.width = 8;
            animation.height = 4;
            animation.use_pause = true;
            animation.pause_length = 100;
        });
        ShownDocument shown;
        ShowFrames(shown, fixture.document, {FrameOf(8, 4, kRed), FrameOf(8, 4, kGreen)}, 0);
        dialog =
            new ExportDialog({fixture.document.Current(), QString::fromStdString(folder.Path()),
                              "two", false, fixture.document.pixel_budget, roster},
                             nullptr);
        dialog->show();
    }
    ~ExportDialogTest() override { delete dialog; }

    bool IsDone() {
        return WaitFor([this] { return dialog->IsReady(); });
    }
    QString Text(const char* label) const { return Named<QLabel>(*dialog, label)->text(); }
    QSpinBox* Number(const char* name) const { return Named<QSpinBox>(*dialog, name); }
    QComboBox* Menu(const char* name) const { return Named<QComboBox>(*dialog, name); }
    ExportView* View() const { return Named<ExportView>(*dialog, "ExportView"); }
    bool Shows(PicturePane& pane, uint32 color) {
        return WaitFor([&] {
            const QImage image = pane.grab().toImage();
            return image.pixel(image.width() / 2, image.height() / 2) == color;
        });
    }
    std::string Write(const std::string& name) {
        std::string problem = "not over";
        dialog->Write(QString::fromStdString(folder.File(name)),
                      [&](const QString& text) { problem = text.toStdString(); });
        WaitFor([&] { return problem != "not over"; });
        return problem;
    }
    size_t SizeOf(const std::string& name) const {
        std::ifstream file(folder.File(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {}).size();
    }
};

}  // namespace

TEST_F(ExportDialogTest, ShowsBothAnimationsInStepAndTheSizeOfTheFile) {
    ASSERT_TRUE(IsDone());
    EXPECT_TRUE(Text("Size").endsWith(" bytes") || Text("Size").endsWith("kB"))
        << Text("Size").toStdString();
    View()->SetPlaying(false);
    View()->ShowTime(0);
    EXPECT_TRUE(Shows(View()->Original(), kRed));
    EXPECT_TRUE(Shows(View()->Result(), kRed));
    View()->ShowTime(1500);
    EXPECT_TRUE(Shows(View()->Original(), kGreen));
    EXPECT_TRUE(Shows(View()->Result(), kGreen));
}

TEST_F(ExportDialogTest, WritesWhatItShows) {
    ASSERT_TRUE(IsDone());
    EXPECT_EQ(Write("out.gif"), "");
    EXPECT_EQ(Named<QLabel>(*dialog, "Size")->toolTip(),
              QString("%1 bytes").arg(SizeOf("out.gif")));
}

TEST_F(ExportDialogTest, TellsWhatCantBeWritten) {
    ASSERT_TRUE(IsDone());
    EXPECT_NE(Write("missing/out.gif"), "");
}

TEST_F(ExportDialogTest, MakesTheFileAnewWhenAChoiceChanges) {
    ASSERT_TRUE(IsDone());
    const QString before = Text("Size");
    Number("Scale")->setValue(400);
    EXPECT_FALSE(dialog->IsReady());
    EXPECT_FALSE(Named<QPushButton>(*dialog, "Export")->isEnabled());
    ASSERT_TRUE(IsDone());
    EXPECT_NE(Text("Size"), before);
    EXPECT_TRUE(Named<QPushButton>(*dialog, "Export")->isEnabled());
}

TEST_F(ExportDialogTest, TakesTheLastOfManyChoices) {
    ASSERT_TRUE(IsDone());
    for (int scale = 101; scale < 140; ++scale)
        Number("Scale")->setValue(scale);
    Number("Scale")->setValue(100);
    ASSERT_TRUE(IsDone());
    View()->SetPlaying(false);
    EXPECT_EQ(Write("many.gif"), "");
    EXPECT_TRUE(IsDone());
}

TEST_F(ExportDialogTest, ShowsTheChoicesOfTheFormatOnly) {
    ASSERT_TRUE(IsDone());
    EXPECT_TRUE(Number("Colors")->isVisible());
    EXPECT_FALSE(Named<QSlider>(*dialog, "QualitySlider")->isVisible());
    Menu("Format")->setCurrentIndex(1);
    EXPECT_FALSE(Number("Colors")->isVisible());
    EXPECT_TRUE(Named<QCheckBox>(*dialog, "Lossless")->isChecked());
    EXPECT_FALSE(Named<QSlider>(*dialog, "QualitySlider")->isVisible());
    Named<QCheckBox>(*dialog, "Lossless")->click();
    EXPECT_TRUE(Named<QSlider>(*dialog, "QualitySlider")->isVisible());
}

TEST_F(ExportDialogTest, ShowsTheStrengthOfMixingWhereColorsAreMixed) {
    ASSERT_TRUE(IsDone());
    auto* strength = Named<QSlider>(*dialog, "StrengthSlider");
    EXPECT_FALSE(strength->isVisible());
    Menu("Dither")->setCurrentIndex(2);
    EXPECT_TRUE(strength->isVisible());
    strength->setValue(40);
    ASSERT_TRUE(IsDone());
    EXPECT_EQ(Write("mixed.gif"), "");
    EXPECT_EQ(ExportPresets().Last().settings.strength, 40);
    Menu("Format")->setCurrentIndex(2);
    EXPECT_FALSE(strength->isVisible());
    ASSERT_TRUE(IsDone());
}

TEST_F(ExportDialogTest, WritesWholeFramesWhereChangedAreasAreNotEnough) {
    ASSERT_TRUE(IsDone());
    auto* changed = Named<QCheckBox>(*dialog, "ChangedAreas");
    EXPECT_TRUE(changed->isChecked());
    changed->click();
    ASSERT_TRUE(IsDone());
    EXPECT_EQ(Write("whole.gif"), "");
    EXPECT_EQ(ExportPresets().Last().settings.areas, FrameAreas::kWhole);
    for (const auto& [format, shown] : {std::pair(0, true), {1, false}, {2, true}, {3, false}}) {
        Menu("Format")->setCurrentIndex(format);
        EXPECT_EQ(changed->isVisible(), shown) << format;
    }
    ASSERT_TRUE(IsDone());
}

TEST_F(ExportDialogTest, LaysSoftEdgesOnTheMatteThatIsChosen) {
    ASSERT_TRUE(IsDone());
    auto* matte = Named<ColorButton>(*dialog, "Matte");
    matte->click();
    auto* mixer = Named<QDialog>(*matte, "ChooseColor");
    Named<QSpinBox>(*mixer, "Blue")->setValue(0);
    mixer->accept();
    EXPECT_FALSE(dialog->IsReady());
    ASSERT_TRUE(IsDone());
    EXPECT_EQ(Write("matte.gif"), "");
    const rgb_color kept = ExportPresets().Last().settings.matte;
    EXPECT_EQ(std::tuple(kept.red, kept.green, kept.blue), std::tuple(255, 255, 0));
}

TEST_F(ExportDialogTest, ShowsTheMatteWhereTransparentPixelsAreLost) {
    auto* matte = Named<ColorButton>(*dialog, "Matte");
    for (const auto& [format, shown] : {std::pair(0, true), {1, false}, {2, false}, {3, true}}) {
        Menu("Format")->setCurrentIndex(format);
        EXPECT_EQ(matte->isVisible(), shown) << format;
    }
    ASSERT_TRUE(IsDone());
}

TEST_F(ExportDialogTest, WritesASheetWithItsTextAndShowsTheSizeOfBoth) {
    ASSERT_TRUE(IsDone());
    Menu("Format")->setCurrentIndex(5);
    EXPECT_TRUE(Number("Columns")->isVisible());
    EXPECT_FALSE(Number("Colors")->isVisible());
    Number("Columns")->setValue(1);
    Number("Padding")->setValue(3);
    ASSERT_TRUE(IsDone());
    EXPECT_EQ(Write("two.png"), "");
    EXPECT_EQ(Named<QLabel>(*dialog, "Size")->toolTip(),
              QString("%1 bytes").arg(SizeOf("two.png") + SizeOf("two.json")));
    const ExportSettings last = ExportPresets().Last().settings;
    EXPECT_EQ(last.format, ExportFormat::kSheet);
    EXPECT_EQ(last.columns, 1);
    EXPECT_EQ(last.padding, 3);
}

TEST_F(ExportDialogTest, PlaysNumberedImagesOfTheKindThatIsChosen) {
    ASSERT_TRUE(IsDone());
    Menu("Format")->setCurrentIndex(6);
    EXPECT_FALSE(Number("Columns")->isVisible());
    Menu("Image")->setCurrentIndex(Menu("Image")->findData("raw"));
    ASSERT_TRUE(IsDone());
    View()->SetPlaying(false);
    View()->ShowTime(1500);
    EXPECT_TRUE(Shows(View()->Result(), kGreen));
    EXPECT_EQ(Write("two.raw"), "");
    EXPECT_GT(SizeOf("two0001.raw"), 0u);
    EXPECT_EQ(ExportPresets().Last(ExportFormat::kImages).settings.image, "raw");
}

TEST_F(ExportDialogTest, TellsHowManyFilesWereWrittenWhereOneCanNotBe) {
    ASSERT_TRUE(IsDone());
    Menu("Format")->setCurrentIndex(6);
    ASSERT_TRUE(IsDone());
    std::filesystem::create_directory(folder.File("two0001.png"));
    EXPECT_TRUE(Write("two.png").ends_with(" 0 of 2 files were written."));
    EXPECT_EQ(SizeOf("two0000.png"), 0u);
}

TEST_F(ExportDialogTest, SaysWhatNothingCanWrite) {
    ASSERT_TRUE(IsDone());
    Menu("Format")->setCurrentIndex(1);
    ASSERT_TRUE(IsDone());
    EXPECT_EQ(Text("Size"), "No file");
    EXPECT_FALSE(Text("GivenUp").isEmpty());
    EXPECT_FALSE(Named<QPushButton>(*dialog, "Export")->isEnabled());
}

TEST_F(ExportDialogTest, ShowsPresetsAndForgetsTheirNameWhenAChoiceChanges) {
    ASSERT_TRUE(IsDone());
    const int chat = Menu("Preset")->findText("Chat 8 MB");
    Menu("Preset")->setCurrentIndex(chat);
    emit Menu("Preset")->activated(chat);
    EXPECT_TRUE(Named<QCheckBox>(*dialog, "Fits")->isChecked());
    EXPECT_EQ(Number("Kilobytes")->value(), 8000);
    EXPECT_EQ(Menu("Preset")->currentText(), "Chat 8 MB");
    Number("Colors")->setValue(9);
    EXPECT_EQ(Menu("Preset")->currentText(), "");
    ASSERT_TRUE(IsDone());
}

TEST_F(ExportDialogTest, RemembersTheLastChoicesOfEachFormat) {
    Number("Colors")->setValue(7);
    ASSERT_TRUE(IsDone());
    EXPECT_EQ(Write("out.gif"), "");
    EXPECT_EQ(ExportPresets().Last().settings.colors, 7);
}

TEST_F(ExportDialogTest, ZoomsAndMovesBothPicturesTogether) {
    ASSERT_TRUE(IsDone());
    View()->Original().SetZoom(16);
    EXPECT_EQ(View()->Result().Zoom(), 16);
    View()->Result().Fit();
    EXPECT_TRUE(View()->Original().IsFitted());
}

TEST_F(ExportDialogTest, CanBeClosedWhileItWorks) {
    Number("Scale")->setValue(399);
    delete dialog;
    QCoreApplication::processEvents();
}

}  // namespace kirto::test
