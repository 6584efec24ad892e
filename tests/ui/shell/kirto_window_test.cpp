#include "ui/shell/kirto_window.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QSlider>
#include <limits>
#include <thread>

#include "document/document_scope.h"
#include "ui/shell/kirto_window_fixture.h"
#include "ui/thumbnails/frame_list.h"

namespace kirto::test {

namespace {

// What the window looks like, and how it follows the document.
class KirtoWindowTest : public KirtoWindowFixture {
  protected:
    QString WidthText() { return Find<TextControl>("Width").text(); }
    bool IsEnabled(const QString& label) {
        for (const QAction* menu : window->menuBar()->actions()) {
            for (const QAction* item : menu->menu()->actions()) {
                if (item->text().remove('&') == label) return item->isEnabled();
            }
        }
        ADD_FAILURE() << "no " << label.toStdString();
        return false;
    }
};

TEST_F(KirtoWindowTest, HasTheTitleItIsGivenUntilTheApplicationSaysOtherwise) {
    document.SetFile({}, "some.gif");
    Open();
    EXPECT_EQ(window->windowTitle(), "Kirto - untitled");

    Do(kUpdateAll);

    EXPECT_EQ(window->windowTitle(), "Kirto - some.gif");
}

TEST_F(KirtoWindowTest, HasItsMenusAndPanels) {
    Open();

    EXPECT_EQ(window->objectName(), "KirtoWindow");
    for (const char* name : {"MenuBar", "GlobalView", "PaletteView", "StatusView", "LocalView",
                             "FrameListView", "ThumbnailView"}) {
        EXPECT_NE(window->findChild<QWidget*>(name), nullptr) << name;
    }
    EXPECT_EQ(window->PendingCommand(), 0u);
    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowTest, StandsWhereItIsTold) {
    Open(BRect(50, 60, 749, 659));

    EXPECT_EQ(window->geometry(), QRect(50, 60, 700, 600));
    EXPECT_EQ(window->ScreenPlace(), BRect(50, 60, 749, 659));
}

TEST_F(KirtoWindowTest, IsAtLeast550By400Pixels) {
    Open(BRect(0, 0, 99, 99));

    EXPECT_GE(window->width(), 550);
    EXPECT_GE(window->height(), 400);
    window->resize(10, 10);
    EXPECT_GE(window->width(), 550);
    EXPECT_GE(window->height(), 400);
}

TEST_F(KirtoWindowTest, SaysOfEachControlWhatItDoes) {
    AddFrame();
    Open();
    Do(kShowPlayer);
    for (const QWidget* control : window->findChildren<QWidget*>()) {
        // What shows frames has tips of its own for each of them; the fields in other controls are
        // named by the toolkit.
        const bool is_part = control->objectName().startsWith("qt_");
        const bool is_view = !qobject_cast<const QAbstractButton*>(control) &&
                             !qobject_cast<const QAbstractSlider*>(control) &&
                             !qobject_cast<const QAbstractSpinBox*>(control) &&
                             !qobject_cast<const QComboBox*>(control) &&
                             !qobject_cast<const QLineEdit*>(control);
        if (control->focusPolicy() == Qt::NoFocus || is_part || is_view) continue;
        EXPECT_NE(control->toolTip(), "") << control->objectName().toStdString();
    }
}

TEST_F(KirtoWindowTest, HasRoomForAllPanelsInTheMiddleOfTheScreenWhereNobodyHasPlacedIt) {
    Open(Prefs(Prefs::BuiltIn{}).misc_windowdimensions);

    const QScrollArea& area = Find<QScrollArea>("Panels");
    const QPoint middle = window->screen()->availableGeometry().center();
    const int title =
        window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window.get());
    EXPECT_LE((window->geometry().center() - middle).manhattanLength(), title);
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->geometry()));
    EXPECT_GE(area.viewport()->height(), area.widget()->minimumSizeHint().height());
    EXPECT_GT(Find<QWidget>("ThumbnailView").width(), area.width());
}

TEST_F(KirtoWindowTest, IsNoLargerThanTheScreensWhateverTheSettingsHold) {
    const QSize screens = QGuiApplication::primaryScreen()->availableVirtualSize();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const BRect& frame :
         {BRect(100, 80, 1e9F, 1e9F), BRect(-1e9F, -1e9F, 1e9F, 1e9F), BRect(0, 0, 3e38F, 3e38F),
          BRect(1e9F, 1e9F, -1e9F, -1e9F), BRect(nan, nan, nan, nan)}) {
        Open(frame);
        EXPECT_LE(window->width(), screens.width());
        EXPECT_LE(window->height(), screens.height());
        EXPECT_TRUE(window->screen()->availableGeometry().intersects(window->geometry()));
    }
}

TEST_F(KirtoWindowTest, StandsInTheMiddleOfTheScreenWhenItsPlaceIsOnNone) {
    Open(BRect(5000, 5000, 5599, 5499));

    const QRect screen = window->screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window->geometry().center()));
}

TEST_F(KirtoWindowTest, KnowsItsPlaceWhileItFillsTheScreen) {
    Open(BRect(50, 60, 749, 659));
    const BRect place = window->ScreenPlace();

    window->showMaximized();
    HandleEvents();

    EXPECT_EQ(window->ScreenPlace(), place);
}

TEST_F(KirtoWindowTest, ShowsTheDocumentAsSoonAsItOpens) {
    AddFrame();
    EditOf(document)->width = 77;
    document.SetModified(true);

    Open();

    EXPECT_EQ(WidthText(), "77");
    EXPECT_EQ(Find<QLabel>("FrameName").text(), "frame0");
    EXPECT_EQ(Find<QListWidget>("FrameList").count(), 1);
    EXPECT_EQ(StatusText(), "Status: 1 frame(s), modified");
}

TEST_F(KirtoWindowTest, ShowsEverythingOnAuda) {
    Open();
    document.SetFile({}, "some.gif");
    EditOf(document)->width = 77;
    PaletteEditOf(document)->dither = true;
    AddFrame();

    Do(kUpdateAll);

    EXPECT_EQ(window->windowTitle(), "Kirto - some.gif");
    EXPECT_EQ(WidthText(), "77");
    EXPECT_TRUE(Find<QAbstractButton>("Dither").isChecked());
    EXPECT_EQ(Find<QLabel>("FrameName").text(), "frame0");
    EXPECT_EQ(Find<QListWidget>("FrameList").count(), 1);
    EXPECT_EQ(StatusText(), "Status: 1 frame(s), unmodified");
}

TEST_F(KirtoWindowTest, ShowsEverythingWhenAnEditIsDone) {
    Open();
    EditOf(document)->width = 77;

    Do(kEditDone);

    EXPECT_EQ(WidthText(), "77");
}

TEST_F(KirtoWindowTest, ShowsFramesAndStatusOnAufr) {
    Open();
    document.SetFile({}, "some.gif");
    EditOf(document)->width = 77;
    AddFrame();

    Do(kUpdateFrames);

    EXPECT_EQ(Find<QLabel>("FrameName").text(), "frame0");
    EXPECT_EQ(Find<QListWidget>("FrameList").count(), 1);
    EXPECT_EQ(StatusText(), "Status: 1 frame(s), unmodified");
    EXPECT_EQ(window->windowTitle(), "Kirto - untitled");
    EXPECT_NE(WidthText(), "77");
}

TEST_F(KirtoWindowTest, ShowsFramesAloneOnAuns) {
    Open();
    AddFrame();

    Do(kUpdateFramesNoStatus);

    EXPECT_EQ(Find<QLabel>("FrameName").text(), "frame0");
    EXPECT_EQ(Find<QListWidget>("FrameList").count(), 1);
    EXPECT_EQ(StatusText(), "Status: 0 frame(s), unmodified");
}

TEST_F(KirtoWindowTest, ShowsAStatusText) {
    Open();
    BMessage status(kStatusUpdate);
    status.AddString("text", "Status: saving frame 5 of 20...");

    Do(status);

    EXPECT_EQ(StatusText(), "Status: saving frame 5 of 20...");
    Do(kStatusUpdate);
    EXPECT_EQ(StatusText(), "Status: saving frame 5 of 20...") << "A message without a text.";
}

TEST_F(KirtoWindowTest, EnablesWhatNeedsAFrameOnlyWhenThereIsOne) {
    Open();
    EXPECT_FALSE(IsEnabled("Remove"));
    EXPECT_TRUE(IsEnabled("Insert..."));

    AddFrame();
    Do(kUpdateFrames);
    EXPECT_TRUE(IsEnabled("Remove"));

    Do(kMenuNew);
    EXPECT_FALSE(IsEnabled("Remove"));
}

TEST_F(KirtoWindowTest, NamesTheEditsThatCanBeUndoneAndRedone) {
    Open();
    EXPECT_FALSE(IsEnabled("Undo"));
    EXPECT_FALSE(IsEnabled("Redo"));

    document.BeginStep();
    AddFrame();
    document.EndStep("Insert Frame");
    Do(kUpdateFrames);
    EXPECT_TRUE(IsEnabled("Undo Insert Frame"));
    EXPECT_FALSE(IsEnabled("Redo"));

    document.Undo();
    Do(kUpdateAll);
    EXPECT_FALSE(IsEnabled("Undo"));
    EXPECT_TRUE(IsEnabled("Redo Insert Frame"));

    window->ResetDisplay();
    EXPECT_FALSE(IsEnabled("Redo"));
}

TEST_F(KirtoWindowTest, ResetsAllPanelsToTheSettingsDefaults) {
    prefs.global_width = 21;
    AddFrame();
    EditOf(document)->width = 77;
    document.SetFile({}, "some.gif");
    Open();
    Do(kUpdateAll);

    window->ResetDisplay();

    EXPECT_EQ(window->windowTitle(), "Kirto - untitled");
    EXPECT_EQ(WidthText(), "21");
    EXPECT_EQ(Find<QLabel>("FrameName").text(), "None");
    EXPECT_EQ(Find<QListWidget>("FrameList").count(), 0);
    EXPECT_EQ(StatusText(), "Status: 0 frame(s), unmodified");
    window->UpdateDisplay();
    EXPECT_EQ(WidthText(), "77");
}

TEST_F(KirtoWindowTest, ShowsTheNewestStateAtOnceAlthoughAReaderOrAWriterIsInside) {
    Open();
    EditOf(document)->width = 77;
    {
        const WriterScope writer(document);
        Do(kUpdateAll);
    }
    EXPECT_EQ(WidthText(), "77");

    EditOf(document)->width = 78;
    {
        const ReaderScope reader(document);
        Do(kUpdateAll);
    }
    EXPECT_EQ(WidthText(), "78");
}

TEST_F(KirtoWindowTest, FollowsWithoutTheStatusLineWhereOnlyFramesChanged) {
    Open();
    BMessage status(kStatusUpdate);
    status.AddString("text", "Status: loading frame 2...");
    Do(status);
    AddFrame();

    Do(kUpdateFramesNoStatus);

    EXPECT_EQ(window->Shown().FrameCount(), 1);
    EXPECT_EQ(StatusText(), "Status: loading frame 2...");
}

TEST_F(KirtoWindowTest, FollowsAWriterInAnotherThread) {
    Open();
    std::thread writer([this] {
        for (int32 width = 1; width <= 200; ++width) {
            EditOf(document)->width = width;
            window->Messenger().SendMessage(kUpdateAll);
        }
    });

    EXPECT_TRUE(WaitFor([&] { return WidthText() == "200"; }));
    writer.join();
}

TEST_F(KirtoWindowTest, TakesSettingsOverThatChangedMeanwhile) {
    Open();
    prefs.thumbnail_minheight = 120;
    document.PublishSettings();

    Do(kUpdateAll);

    EXPECT_EQ(Find<QSlider>("Slider").minimum(), 120);
    EXPECT_EQ(Find<QSlider>("Slider").value(), 120);
}

TEST_F(KirtoWindowTest, LaysItsFramesOutForItsSize) {
    for (int32 i = 0; i < 20; ++i)
        AddFrame(100, 100);
    Open(BRect(0, 0, 799, 599));
    const QWidget& grid = Find<QWidget>("ThumbDrawingView");
    const int before = grid.height();

    window->resize(1600, 600);
    HandleEvents();

    EXPECT_LT(grid.height(), before) << "More thumbnails stand beside each other.";
}

TEST_F(KirtoWindowTest, IsReachedByNobodyOnceItIsGone) {
    Open();
    const BMessenger messenger = window->Messenger();
    messenger.SendMessage(kUpdateAll);

    window.reset();
    HandleEvents();

    EXPECT_FALSE(messenger.IsValid());
    EXPECT_EQ(messenger.SendMessage(kUpdateAll), B_NOT_ALLOWED);
}

}  // namespace

}  // namespace kirto::test
