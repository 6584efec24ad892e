#include "ui/dialogs/video_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/fake_video_programs.h"
#include "ui/controls/picture_area.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

struct VideoDialogTest : testing::Test {
    const FakeVideoPrograms programs;
    QWidget window;
    QPointer<QDialog> dialog;
    std::optional<BMessage> command;  // that was received

    ~VideoDialogTest() override { delete dialog; }

    void Open(const std::string& name) {
        BMessage question(kAskAboutVideo);
        question.AddRef("refs", entry_ref("/videos/" + name));
        question.AddInt32("position", 7);
        AskForVideoPart(question, &window, [this](const BMessage& chosen) { command = chosen; });
        dialog = window.findChild<QDialog*>("InsertVideo");
    }
    // Waits until the video can be inserted.
    void OpenWhole() {
        Open("clip.mp4");
        ASSERT_TRUE(WaitFor([this] { return Ok()->isEnabled(); }));
    }
    QPushButton* Ok() const {
        return dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }
    QDoubleSpinBox* Real(const char* name) const { return Named<QDoubleSpinBox>(*dialog, name); }
    QSpinBox* Whole(const char* name) const { return Named<QSpinBox>(*dialog, name); }
    std::string Summary() const { return Named<QLabel>(*dialog, "Summary")->text().toStdString(); }
    // The part that "OK" asks for.
    std::string Part() {
        Ok()->click();
        std::string part = "none";
        if (command) command->FindString("video", &part);
        return part;
    }
};

}  // namespace

TEST_F(VideoDialogTest, OffersAllOfTheVideo) {
    OpenWhole();
    EXPECT_EQ(Real("FromTime")->value(), 0);
    EXPECT_EQ(Real("ToTime")->value(), 2);
    EXPECT_EQ(Real("Rate")->value(), 10);
    EXPECT_EQ(Whole("Width")->value(), 4);
    EXPECT_EQ(Summary(), "20 frames of 4 × 2 pixels, at most 1 MB.");
    EXPECT_EQ(Part(), "@10");
}

TEST_F(VideoDialogTest, KeepsTheRestOfTheCommand) {
    OpenWhole();
    Ok()->click();
    ASSERT_TRUE(command);
    int32 position = 0;
    EXPECT_EQ(command->what, kOpenFile);
    EXPECT_EQ(command->FindInt32("position", &position), B_OK);
    EXPECT_EQ(position, 7);
}

TEST_F(VideoDialogTest, AsksForWhatTheFieldsSay) {
    OpenWhole();
    Real("FromTime")->setValue(0.5);
    Real("ToTime")->setValue(1.5);
    Real("Rate")->setValue(4);
    Whole("CropLeft")->setValue(1);
    Whole("CropWidth")->setValue(3);
    Whole("Width")->setValue(6);
    EXPECT_EQ(Summary(), "4 frames of 6 × 4 pixels, at most 1 MB.");
    EXPECT_EQ(Part(), "0.5-1.5@4:6x,crop=3x2+1+0");
}

TEST_F(VideoDialogTest, MovesSlidersAndNumbersTogether) {
    OpenWhole();
    Named<QSlider>(*dialog, "FromSlider")->setValue(125);
    EXPECT_EQ(Real("FromTime")->value(), 1.25);
    Real("ToTime")->setValue(1.5);
    EXPECT_EQ(Named<QSlider>(*dialog, "ToSlider")->value(), 150);
}

TEST_F(VideoDialogTest, TakesTheOtherEndAlong) {
    OpenWhole();
    Real("ToTime")->setValue(1);
    Real("FromTime")->setValue(1.5);
    EXPECT_EQ(Real("ToTime")->value(), 1.5);
    EXPECT_FALSE(Ok()->isEnabled());
    Real("ToTime")->setValue(0.5);
    EXPECT_EQ(Real("FromTime")->value(), 0.5);
}

TEST_F(VideoDialogTest, KeepsTheScaleOfTheFramesWhenTheRectangleChanges) {
    OpenWhole();
    Whole("CropWidth")->setValue(3);
    EXPECT_EQ(Whole("Width")->value(), 3);
    Whole("Width")->setValue(6);
    Whole("CropWidth")->setValue(2);
    EXPECT_EQ(Whole("Width")->value(), 4);
    Whole("CropWidth")->setValue(4);
    EXPECT_EQ(Whole("Width")->value(), 8);
}

TEST_F(VideoDialogTest, RefusesARectangleBesideThePictures) {
    OpenWhole();
    Whole("CropLeft")->setValue(1);
    EXPECT_FALSE(Ok()->isEnabled());
    EXPECT_EQ(Summary(), "This part is not in the video.");
    Whole("CropWidth")->setValue(3);
    EXPECT_TRUE(Ok()->isEnabled());
}

TEST_F(VideoDialogTest, SaysWhyAVideoShowsNothing) {
    Open("broken.mp4");
    EXPECT_EQ(Summary(), "Reading the video...");
    ASSERT_TRUE(WaitFor([this] { return Summary() != "Reading the video..."; }));
    EXPECT_EQ(Summary(), "The animation can't be opened because it was corrupted or unreadable.");
    EXPECT_FALSE(Ok()->isEnabled());
}

TEST_F(VideoDialogTest, SaysWhichPackageReadsVideos) {
    const ScopedEnvironment nothing("PATH", "/nowhere");
    Open("clip.mp4");
    ASSERT_TRUE(WaitFor([this] { return Summary().find("\"ffmpeg\"") != std::string::npos; }));
}

TEST_F(VideoDialogTest, PlaysUntilItIsToldNotTo) {
    OpenWhole();
    auto* picture = Named<PictureArea>(*dialog, "PictureArea");
    dialog->show();
    EXPECT_EQ(picture->accessibleName(), "Picture");
    EXPECT_TRUE(Named<QCheckBox>(*dialog, "Play")->isChecked());
    QTimer* timer = dialog->findChild<QTimer*>("Playing");
    ASSERT_TRUE(timer);
    EXPECT_TRUE(timer->isActive());
    Named<QCheckBox>(*dialog, "Play")->click();
    EXPECT_FALSE(timer->isActive());
    Named<QCheckBox>(*dialog, "Play")->click();
    EXPECT_TRUE(timer->isActive());
}

TEST_F(VideoDialogTest, CanBeClosedWhileItReads) {
    Open("clip.mp4");
    delete dialog;
    QCoreApplication::processEvents();
    EXPECT_FALSE(command);
}

}  // namespace kirto::test
