#include "ui/dialogs/picture_dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSpinBox>
#include <gtest/gtest.h>
#include <limits>

#include "document/command_codes.h"
#include "support/fake_roster.h"
#include "ui/controls/picture_area.h"
#include "ui/dialogs/frames_dialogs.h"
#include "ui/dialogs/picture_area_dialogs.h"
#include "ui/dialogs/sheet_dialog.h"
#include "ui/dialogs/text_dialog.h"
#include "ui/thumbnails/frame_area_fixture.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

class PictureDialogs : public ::testing::Test {
  protected:
    PictureDialogs() {
        animation.width = 80;
        animation.height = 60;
        InsertFrame(animation, 0, FrameOf(80, 60, 0xFF123456));
        InsertFrame(animation, 1, FrameOf(80, 60));
    }

    template <typename Control>
    Control& Find(const char* name) {
        return *Named<Control>(parent, name);
    }
    QPushButton& Ok() {
        return *parent.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }
    int32 Number(const char* field) const {
        int32 number = -99;
        received.FindInt32(field, &number);
        return number;
    }
    PictureArea& Area() { return Find<PictureArea>("PictureArea"); }
    void Mouse(QEvent::Type type, int x, int y) {
        const QPointF place = Area().PlaceOf({x, y, 1, 1}).center();
        QMouseEvent event(type, place, Area().mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&Area(), &event);
    }
    void Draw(int left, int top, int right, int bottom) {
        Mouse(QEvent::MouseButtonPress, left, top);
        Mouse(QEvent::MouseMove, right, bottom);
    }

    QWidget parent;
    Animation animation;
    BMessage received;
    FormDialog::Receiver receive = [this](const BMessage& command) { received = command; };
};

TEST_F(PictureDialogs, ResizeInTheRatioOfTheAnimation) {
    AskForSize(animation, &parent, receive);
    Find<QSpinBox>("Width").setValue(40);
    EXPECT_EQ(Find<QSpinBox>("Height").value(), 30);
    Find<QComboBox>("Filter").setCurrentIndex(0);
    Ok().click();

    EXPECT_EQ(received.what, kResizeAnimation);
    EXPECT_EQ(Number("width"), 40);
    EXPECT_EQ(Number("height"), 30);
    EXPECT_EQ(Number("filter"), 0);
}

TEST_F(PictureDialogs, ResizeByPercent) {
    AskForSize(animation, &parent, receive);
    Find<QSpinBox>("Percent").setValue(150);

    EXPECT_EQ(Find<QSpinBox>("Width").value(), 120);
    EXPECT_EQ(Find<QSpinBox>("Height").value(), 90);
}

TEST_F(PictureDialogs, ResizeAnimationsAsLargeAsNumbersGo) {
    animation.width = std::numeric_limits<int32>::max();
    animation.height = 1;
    AskForSize(animation, &parent, receive);
    Find<QSpinBox>("Height").setValue(2);
    EXPECT_EQ(Find<QSpinBox>("Width").value(), 65535);
    Find<QSpinBox>("Percent").setValue(10000);
    EXPECT_EQ(Find<QSpinBox>("Width").value(), 65535);
}

TEST_F(PictureDialogs, ResizeToAnyRatio) {
    AskForSize(animation, &parent, receive);
    Find<QCheckBox>("Ratio").setChecked(false);
    Find<QSpinBox>("Width").setValue(40);

    EXPECT_EQ(Find<QSpinBox>("Height").value(), 60);
}

TEST_F(PictureDialogs, CropToWhatIsDrawn) {
    AskForCrop(animation, &parent, receive);
    EXPECT_FALSE(Ok().isEnabled());
    Draw(10, 20, 29, 49);
    EXPECT_TRUE(Ok().isEnabled());
    Ok().click();

    EXPECT_EQ(received.what, kCropAnimation);
    EXPECT_EQ(Number("left"), 10);
    EXPECT_EQ(Number("top"), 20);
    EXPECT_EQ(Number("width"), 20);
    EXPECT_EQ(Number("height"), 30);
}

TEST_F(PictureDialogs, LeaveRoomForThePictureBelowWordsOfManyLines) {
    QFont large = parent.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    parent.setFont(large);
    parent.show();
    AskForCrop(animation, &parent, receive);
    auto& dialog = *parent.findChild<QDialog*>();
    dialog.resize(1, 1);
    HandleEvents();

    EXPECT_LE(Find<QLabel>("Scope").geometry().bottom(), Area().geometry().top());
    EXPECT_LE(Area().geometry().bottom(), Find<QSpinBox>("Left").geometry().top());
}

TEST_F(PictureDialogs, CropWithinTheCanvasInAnyDirection) {
    AskForCrop(animation, &parent, receive);
    Draw(29, 49, -50, -50);

    EXPECT_EQ(Find<QSpinBox>("Left").value(), 0);
    EXPECT_EQ(Find<QSpinBox>("Top").value(), 0);
    EXPECT_EQ(Find<QSpinBox>("Width").value(), 30);
    EXPECT_EQ(Find<QSpinBox>("Height").value(), 50);
}

TEST_F(PictureDialogs, CropInARatio) {
    AskForCrop(animation, &parent, receive);
    Find<QComboBox>("Ratio").setCurrentIndex(1);
    Draw(10, 10, 39, 29);

    EXPECT_EQ(Find<QSpinBox>("Width").value(), 20);
    EXPECT_EQ(Find<QSpinBox>("Height").value(), 20);
}

TEST_F(PictureDialogs, CropByWhatIsFound) {
    AskForCrop(animation, &parent, receive);
    Find<QPushButton>("TrimToChanges").click();

    EXPECT_EQ(received.what, kCropAnimation);
    EXPECT_EQ(Number("trim"), 1);
}

TEST_F(PictureDialogs, SetTheCanvasWithAnAnchor) {
    AskForCanvas(animation, &parent, receive);
    Find<QSpinBox>("Width").setValue(100);
    Find<QComboBox>("Anchor").setCurrentIndex(8);
    Ok().click();

    EXPECT_EQ(received.what, kSetCanvasSize);
    EXPECT_EQ(Number("width"), 100);
    EXPECT_EQ(Number("height"), 60);
    EXPECT_EQ(Number("anchor"), 8);
}

TEST_F(PictureDialogs, FitFramesWithAFilterWhereTheyAreScaled) {
    AskForFit(animation, &parent, receive);
    EXPECT_TRUE(Find<QComboBox>("Filter").isEnabled());
    Find<QComboBox>("Fit").setCurrentIndex(1);
    EXPECT_FALSE(Find<QComboBox>("Filter").isEnabled());
    Ok().click();

    EXPECT_EQ(received.what, kFitFrames);
    EXPECT_EQ(Number("fit"), 1);
}

TEST_F(PictureDialogs, AdjustColorsAndOpacity) {
    AskForColors(animation, &parent, receive);
    Find<QSpinBox>("Contrast").setValue(-20);
    Find<QCheckBox>("Greyscale").setChecked(true);
    Ok().click();
    bool greyscale = false;
    EXPECT_EQ(Number("contrast"), -20);
    EXPECT_EQ(received.FindBool("greyscale", &greyscale), B_OK);
    EXPECT_TRUE(greyscale);
    HandleEvents();

    AskForOpacity(animation, &parent, receive);
    Find<QSpinBox>("Percent").setValue(40);
    Ok().click();
    EXPECT_EQ(received.what, kSetOpacity);
    EXPECT_EQ(Number("percent"), 40);
}

TEST_F(PictureDialogs, MakeTheColorTransparentThatIsClicked) {
    AskForTransparentColor(animation, &parent, receive);
    EXPECT_FALSE(Ok().isEnabled());
    Mouse(QEvent::MouseButtonPress, 5, 5);
    EXPECT_EQ(Find<QLineEdit>("Color").text(), "#123456");
    Find<QSpinBox>("Tolerance").setValue(9);
    Ok().click();

    EXPECT_EQ(received.what, kMakeTransparent);
    EXPECT_EQ(Number("color"), 0x12345600);
    EXPECT_EQ(Number("tolerance"), 9);
}

TEST_F(PictureDialogs, OverlayOnlyAFileThatIsThere) {
    const TemporaryFolder folder;
    const QString path = QString::fromStdString(folder.Path() + "/logo.png");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    AskForOverlay(animation, &parent, receive);
    EXPECT_FALSE(Ok().isEnabled());
    Find<QLineEdit>("File").setText(path);
    EXPECT_TRUE(Ok().isEnabled());
    Find<QSpinBox>("X").setValue(-3);
    Ok().click();

    entry_ref ref;
    EXPECT_EQ(received.what, kOverlayImage);
    EXPECT_EQ(received.FindRef("refs", &ref), B_OK);
    EXPECT_EQ(Number("x"), -3);
}

TEST_F(PictureDialogs, DrawTextWhereItIsPlaced) {
    AskForText(animation, &parent, receive);
    EXPECT_FALSE(Ok().isEnabled());
    Find<QLineEdit>("Text").setText("Hi");
    EXPECT_TRUE(Ok().isEnabled());
    EXPECT_GT(Find<QSpinBox>("Y").value(), 30) << "Near the lower edge, until it is placed.";
    Mouse(QEvent::MouseButtonPress, 5, 6);
    Find<QSpinBox>("FadeIn").setValue(1);
    Ok().click();

    std::string_view image;
    EXPECT_EQ(received.what, kDrawText);
    EXPECT_EQ(received.FindData("image", B_RAW_TYPE, 0, &image), B_OK);
    EXPECT_EQ(Number("x"), 5);
    EXPECT_EQ(Number("y"), 6);
    EXPECT_EQ(Number("fade_in"), 1);
}

TEST_F(PictureDialogs, DrawNoTextInAColorThatIsNone) {
    AskForText(animation, &parent, receive);
    Find<QLineEdit>("Text").setText("Hi");
    Find<QLineEdit>("Color").setText("#12");

    EXPECT_FALSE(Ok().isEnabled());
}

// Whatever it is asked for, it writes PNG files.
struct PngRoster : FakeRoster {
    std::vector<translation_format> OutputFormats(translator_id) const override {
        return {{1, "image/png", "PNG image", {"png"}}};
    }
};

TEST_F(PictureDialogs, ExportASheetToAnAbsolutePlace) {
    const PngRoster roster;
    AskForSheet(animation, roster, &parent, receive);
    Find<QLineEdit>("File").setText("sheet.png");
    EXPECT_FALSE(Ok().isEnabled());
    Find<QLineEdit>("File").setText("/some/sheet.png");
    Find<QSpinBox>("Padding").setValue(2);
    Ok().click();

    std::string name;
    EXPECT_EQ(received.what, kSaveSheet);
    EXPECT_EQ(received.FindString("name", &name), B_OK);
    EXPECT_EQ(name, "sheet.png");
    EXPECT_EQ(Number("columns"), 0);
    EXPECT_EQ(Number("padding"), 2);
}

TEST_F(PictureDialogs, ExportNoSheetWithoutAWriterOfPngFiles) {
    const FakeRoster roster;
    AskForSheet(animation, roster, &parent, receive);
    Find<QLineEdit>("File").setText("/some/sheet.png");

    EXPECT_FALSE(Ok().isEnabled());
}

// Each number at its ends, each choice, and a rectangle from corner to corner.
void UseAllOf(QDialog& dialog) {
    for (QComboBox* box : dialog.findChildren<QComboBox*>()) {
        for (int i = box->count() - 1; i >= 0; --i)
            box->setCurrentIndex(i);
    }
    for (QSpinBox* box : dialog.findChildren<QSpinBox*>()) {
        box->setValue(box->minimum());
        box->stepUp();
        box->setValue(box->maximum());
    }
    for (QDoubleSpinBox* box : dialog.findChildren<QDoubleSpinBox*>()) {
        box->setValue(box->minimum());
        box->setValue(box->maximum());
    }
}

TEST_F(PictureDialogs, TakeAnimationsAsFarAwayAndLargeAsNumbersGo) {
    constexpr int32 kFarthest = std::numeric_limits<int32>::max();
    Frame far = *animation.FirstFrame();
    far.x_offset = kFarthest;
    far.y_offset = kFarthest;
    animation.frames.Insert(1, std::make_shared<const Frame>(far));
    SelectFrames(animation, FrameSet::Of(0, 2), 1);
    animation.width = kFarthest;
    animation.height = kFarthest;
    animation.loop_count = kFarthest;
    parent.show();
    for (const auto& ask :
         {AskForSize, AskForCanvas, AskForCrop, AskForFit, AskForColors, AskForOpacity,
          AskForOverlay, AskForTransparentColor, AskForText, AskForEveryNth, AskForRange,
          AskForFrame, AskForDropping, AskForTolerance, AskForPlace}) {
        ask(animation, &parent, receive);
        auto* dialog = parent.findChild<QDialog*>();
        ASSERT_TRUE(dialog);
        UseAllOf(*dialog);
        if (parent.findChild<QWidget*>("PictureArea")) {
            Draw(0, 0, 65534, 65534);
            Draw(65534, 65534, 0, 0);
        }
        HandleEvents();
        received = BMessage();
        if (Ok().isEnabled()) {
            Ok().click();
            EXPECT_NE(received.what, 0u) << dialog->objectName().toStdString();
        }
        delete dialog;
    }
}

TEST_F(PictureDialogs, SayWhichFramesTheyWorkOn) {
    const auto scope = [this] {
        const std::string text = Find<QLabel>("Scope").text().toStdString();
        delete parent.findChild<QDialog*>();
        return text;
    };
    AskForOpacity(animation, &parent, receive);
    EXPECT_EQ(scope(), "Works on the current frame, the only one that is selected.");
    SelectFrames(animation, FrameSet::Of(0, 1), 0);
    AskForOpacity(animation, &parent, receive);
    EXPECT_EQ(scope(), "Works on the 2 selected frames.");
    AskForSize(animation, &parent, receive);
    EXPECT_EQ(scope(), "Works on all frames and the canvas.");
}

}  // namespace

}  // namespace kirto::test
