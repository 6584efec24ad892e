#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSlider>

#include "support/environment.h"
#include "ui/dialogs/colors_window.h"
#include "ui/dialogs/fade_window.h"
#include "ui/dialogs/preferences_window.h"
#include "ui/shell/kirto_window_fixture.h"
#include "ui/thumbnails/frame_list.h"
#include "ui/thumbnails/thumb_drawing_view.h"

namespace kirto::test {

namespace {

class KirtoWindowCommands : public KirtoWindowFixture {
  protected:
    void OpenWithFrames(int32 count) {
        for (int32 i = 0; i < count; ++i)
            AddFrame();
        Open();
    }
    QString HeightLabel() { return Find<QLabel>("FrameHeight").text(); }
    int Height() { return Find<QSlider>("Slider").value(); }
    // Drops files on the part of the window that is no grid.
    bool Drop(QMimeData& data) {
        const QPoint place(5, 5);
        QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted()) return false;
        EXPECT_EQ(enter.dropAction(), Qt::CopyAction) << "The files stay where they are.";
        QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &drop);
        HandleEvents();
        return true;
    }
};

TEST_F(KirtoWindowCommands, SaveDoesNothingUnlessThereAreChangesOfFrames) {
    AddFrame();
    Open();
    Do(kMenuSave);
    document.RemoveFrame();
    document.SetModified(true);
    Do(kUpdateAll);
    Do(kMenuSave);

    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(panels.TakeLines(), Lines{});
}

TEST_F(KirtoWindowCommands, SaveSavesToTheFileThatTheDocumentHas) {
    AddFrame();
    document.SetModified(true);
    document.SetFile({}, "some.gif");
    Open();

    Do(kMenuSave);

    EXPECT_EQ(Posted(), "asav");
    EXPECT_EQ(panels.TakeLines(), Lines{});
    EXPECT_EQ(window->PendingCommand(), 0u);
}

TEST_F(KirtoWindowCommands, SaveAsksForANameForAnUntitledDocument) {
    AddFrame();
    document.SetModified(true);
    Open();

    Do(kMenuSave);

    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(panels.TakeLines(), (Lines{"save text=", "save shown"}));
}

TEST_F(KirtoWindowCommands, SaveAsShowsTheSavePanelWithAnEmptyNameAlsoForAnUnmodifiedDocument) {
    OpenWithFrames(1);

    Do(kMenuSaveAs);

    EXPECT_EQ(panels.TakeLines(), (Lines{"save text=", "save shown"}));
}

TEST_F(KirtoWindowCommands, SaveAsShowsTheSavePanelInTheDocumentsFolderAndProposesItsName) {
    document.SetFile("/some/folder", "some.gif");
    OpenWithFrames(1);

    Do(kMenuSaveAs);

    EXPECT_EQ(panels.TakeLines(), (Lines{"save directory=/some/folder",
                                         "save text=", "save proposed=some.gif", "save shown"}));
}

TEST_F(KirtoWindowCommands, SaveAsDoesNothingWithoutFrames) {
    Open();

    Do(kMenuSaveAs);

    EXPECT_EQ(panels.TakeLines(), Lines{});
}

TEST_F(KirtoWindowCommands, AboutTellsNameAndVersion) {
    Open();
    const AlertRecorder alerts;

    Do(B_ABOUT_REQUESTED);

    ASSERT_EQ(alerts.Lines().size(), 1u);
    const std::string line = alerts.Lines().front();
    EXPECT_TRUE(line.starts_with("INFO [] Kirto v1.4\n")) << line;
    EXPECT_NE(line.find("\nPlease send in bug reports and feature requests.\n"), line.npos);
    EXPECT_TRUE(line.ends_with("about dithering. | OK")) << line;
}

TEST_F(KirtoWindowCommands, PreviewIsForwardedWhenThereIsAFrame) {
    OpenWithFrames(1);

    Do(kPreview);

    EXPECT_EQ(Posted(), "awvp");
}

TEST_F(KirtoWindowCommands, PreviewAndFadeEffectsDoNothingWithoutFrames) {
    Open();

    Do(kPreview);
    Do(kMenuFadeEffects);

    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(window->findChild<FadeWindow*>(), nullptr);
}

TEST_F(KirtoWindowCommands, FadeEffectsOpensItsWindow) {
    OpenWithFrames(1);

    Do(kMenuFadeEffects);

    auto* fade = window->findChild<FadeWindow*>();
    ASSERT_NE(fade, nullptr);
    EXPECT_TRUE(fade->isVisible());
    EXPECT_GE(fade->width(), 350);
    EXPECT_GE(fade->height(), 135);
    // Within the decoration, which the window does not know beforehand.
    const QPoint center = QGuiApplication::primaryScreen()->geometry().center();
    EXPECT_LE((fade->geometry().center() - center).manhattanLength(), 8);
    fade->close();
    HandleEvents();
}

TEST_F(KirtoWindowCommands, InsertAndInsertTiledShowTheirPanels) {
    Open();

    Do(kMenuInsert);
    Do(kMenuInsertTiled);

    EXPECT_EQ(panels.TakeLines(), (Lines{"insert shown", "insert tiled shown"}));
}

TEST_F(KirtoWindowCommands, EditsOfFramesAreForwardedAndCounted) {
    OpenWithFrames(2);
    int32 number = 0;
    for (const uint32 code :
         {kRemoveFrame, kMoveFrameUp, kMoveFrameDown, kReverseFrames, uint32{B_SIMPLE_DATA}}) {
        Do(code);
        EXPECT_EQ(LastPosted().what, code);
        EXPECT_EQ(document.changes_waiting, ++number);
    }
    EXPECT_EQ(Posted(), "awfr awfu awfd awfv DATA");
}

TEST_F(KirtoWindowCommands, PastingFromAnEmptyClipboardDoesNothing) {
    OpenWithFrames(1);
    QGuiApplication::clipboard()->clear();

    Do(kMenuPaste);

    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowCommands, UndoAndRedoAreForwardedAndCounted) {
    OpenWithFrames(1);

    Do(kUndo);
    EXPECT_EQ(LastPosted().what, kUndo);
    EXPECT_EQ(document.changes_waiting, 1);
    Do(kRedo);
    EXPECT_EQ(LastPosted().what, kRedo);
    EXPECT_EQ(document.changes_waiting, 2);
}

TEST_F(KirtoWindowCommands, AForwardedMessageKeepsItsFields) {
    Open();
    BMessage drop(B_SIMPLE_DATA);
    drop.AddRef("refs", entry_ref("/some/file"));
    drop.AddInt32("position", 3);

    Do(drop);

    entry_ref ref;
    int32 position = 0;
    EXPECT_EQ(LastPosted().FindRef("refs", &ref), B_OK);
    EXPECT_EQ(ref.path, "/some/file");
    EXPECT_EQ(LastPosted().FindInt32("position", &position), B_OK);
    EXPECT_EQ(position, 3);
}

TEST_F(KirtoWindowCommands, FilesDroppedOnTheWindowAreForwarded) {
    Open();
    QMimeData data;
    data.setUrls({QUrl("file:///some/a%20file.gif"), QUrl("https://example.org/b.gif"),
                  QUrl("file:///c.png")});

    EXPECT_TRUE(Drop(data));

    ASSERT_EQ(application->Transcript(), "DATA");
    entry_ref first;
    entry_ref second;
    EXPECT_EQ(LastPosted().CountItems("refs"), 2);
    EXPECT_EQ(LastPosted().FindRef("refs", &first, 0), B_OK);
    EXPECT_EQ(LastPosted().FindRef("refs", &second, 1), B_OK);
    EXPECT_EQ(first.path, "/c.png");
    EXPECT_EQ(second.path, "/some/a file.gif");
}

TEST_F(KirtoWindowCommands, FilesDroppedTogetherComeInTheOrderOfTheirNumbers) {
    Open();
    QMimeData data;
    data.setUrls({QUrl("file:///10.png"), QUrl("file:///9.png"), QUrl("file:///1.png")});

    EXPECT_TRUE(Drop(data));

    std::string order;
    entry_ref ref;
    for (int32 i = 0; LastPosted().FindRef("refs", &ref, i) == B_OK; ++i)
        order += ref.path;
    EXPECT_EQ(order, "/1.png/9.png/10.png");
}

TEST_F(KirtoWindowCommands, OtherDropsAreIgnored) {
    Open();
    QMimeData text;
    text.setText("text");
    QMimeData web;
    web.setUrls({QUrl("https://example.org/b.gif")});

    EXPECT_FALSE(Drop(text));
    EXPECT_TRUE(Drop(web));

    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowCommands, PreferencesOpenOnceAndComeToTheFront) {
    Open();

    Do(kMenuPreferences);
    Do(kMenuPreferences);

    const auto windows = window->findChildren<PreferencesWindow*>();
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(windows.front()->isVisible());
    windows.front()->close();
    HandleEvents();
    EXPECT_EQ(window->findChild<PreferencesWindow*>(), nullptr);
}

TEST_F(KirtoWindowCommands, PreferencesCanBeOpenedAtATab) {
    Open();

    window->ShowPreferences("Animation");

    auto* preferences = window->findChild<PreferencesWindow*>();
    ASSERT_NE(preferences, nullptr);
    EXPECT_EQ(preferences->findChild<QTabWidget*>()->currentWidget()->objectName(), "Animation");
}

TEST_F(KirtoWindowCommands, ThumbnailModeIsTheFirstUnlessTheSettingsSayOtherwise) {
    for (const int32 mode : {0, 1, 7}) {
        prefs.misc_preferredmode = mode;
        Open();
        const bool list = mode == 1;
        EXPECT_EQ(window->ShowsFrameList(), list);
        EXPECT_EQ(Find<QWidget>("FrameListView").isVisible(), list);
        EXPECT_EQ(Find<QWidget>("ThumbnailView").isVisible(), !list);
        EXPECT_EQ(Find<QAbstractButton>("FramelistMode").isChecked(), list);
        EXPECT_EQ(Find<QAbstractButton>("ThumbnailMode").isChecked(), !list);
        EXPECT_EQ(window->focusWidget()->objectName(), list ? "FrameList" : "ThumbDrawingView");
    }
}

TEST_F(KirtoWindowCommands, ToggleModeSwitchesForthAndBackWithRadioButtonsAndFocus) {
    Open();
    for (const bool list : {true, false, true}) {
        Do(kToggleMode);
        EXPECT_EQ(Find<QWidget>("FrameListView").isVisible(), list);
        EXPECT_EQ(Find<QWidget>("ThumbnailView").isVisible(), !list);
        EXPECT_EQ(Find<QAbstractButton>("FramelistMode").isChecked(), list);
        EXPECT_EQ(Find<QAbstractButton>("ThumbnailMode").isChecked(), !list);
        EXPECT_EQ(window->focusWidget()->objectName(), list ? "FrameList" : "ThumbDrawingView");
    }
}

TEST_F(KirtoWindowCommands, TheRadioButtonsChooseTheMode) {
    Open();

    Find<QAbstractButton>("FramelistMode").click();
    HandleEvents();
    EXPECT_TRUE(window->ShowsFrameList());
    EXPECT_EQ(window->focusWidget()->objectName(), "FrameList");
    Find<QAbstractButton>("ThumbnailMode").click();
    HandleEvents();
    EXPECT_FALSE(window->ShowsFrameList());
    EXPECT_EQ(window->focusWidget()->objectName(), "ThumbDrawingView");
}

TEST_F(KirtoWindowCommands, ChoosingTheModeThatIsShownDoesNothing) {
    Open();
    Find<QWidget>("Width").setFocus();

    Do(kThumbnailMode);

    EXPECT_FALSE(window->ShowsFrameList());
    EXPECT_EQ(window->focusWidget()->objectName(), "Width");
}

TEST_F(KirtoWindowCommands, TheSliderSetsTheThumbnailsHeight) {
    Open();

    Find<QSlider>("Slider").setValue(150);
    HandleEvents();

    EXPECT_EQ(HeightLabel(), "Thumbnail height: 150");
    EXPECT_EQ(Find<ThumbDrawingView>("ThumbDrawingView").ThumbnailHeight(), 150);
}

TEST_F(KirtoWindowCommands, TheHeightStaysWithinTheSettingsBounds) {
    prefs.thumbnail_minheight = 40;
    prefs.thumbnail_maxheight = 200;
    Open();
    for (const auto& [height, expected] :
         {std::pair{100, 100}, std::pair{40, 40}, std::pair{39, 40}, std::pair{0, 40},
          std::pair{-5, 40}, std::pair{200, 200}, std::pair{201, 200}, std::pair{100000, 200}}) {
        window->SetThumbnailHeight(height);
        EXPECT_EQ(Height(), expected) << height;
        EXPECT_EQ(HeightLabel(), QString("Thumbnail height: %1").arg(expected));
        EXPECT_EQ(Find<ThumbDrawingView>("ThumbDrawingView").ThumbnailHeight(), expected);
    }
}

TEST_F(KirtoWindowCommands, TheUpperBoundHoldsWhereTheBoundsCross) {
    prefs.thumbnail_minheight = 200;
    prefs.thumbnail_maxheight = 40;
    Open();

    window->SetThumbnailHeight(100);

    EXPECT_EQ(HeightLabel(), "Thumbnail height: 40");
}

TEST_F(KirtoWindowCommands, PresetsTakeTheHeightOfAFrame) {
    AddFrame(1, 101);
    AddFrame(1, 151);
    Open();
    document.Select(1);
    Do(kUpdateFrames);
    for (const auto& [code, height] :
         {std::pair{kThumbnailFirstFull, 101}, std::pair{kThumbnailFirstHalf, 50},
          std::pair{kThumbnailCurrentFull, 151}, std::pair{kThumbnailCurrentHalf, 75}}) {
        Do(code);
        EXPECT_EQ(Height(), height) << CodeText(code);
        EXPECT_EQ(HeightLabel(), QString("Thumbnail height: %1").arg(height));
    }
}

TEST_F(KirtoWindowCommands, PresetsStayWithinTheSettingsBounds) {
    prefs.thumbnail_minheight = 60;
    prefs.thumbnail_maxheight = 90;
    AddFrame(1, 101);
    Open();

    Do(kThumbnailFirstHalf);
    EXPECT_EQ(Height(), 60);
    Do(kThumbnailFirstFull);
    EXPECT_EQ(Height(), 90);
}

TEST_F(KirtoWindowCommands, PresetsOfFramesDoNothingWithoutFrames) {
    Open();
    Find<QSlider>("Slider").setValue(150);
    HandleEvents();

    for (const uint32 code :
         {kThumbnailFirstFull, kThumbnailFirstHalf, kThumbnailCurrentFull, kThumbnailCurrentHalf}) {
        Do(code);
        EXPECT_EQ(Height(), 150) << CodeText(code);
    }
}

TEST_F(KirtoWindowCommands, FitMakesThumbnailsAsHighAsAllOfThemAreInSight) {
    prefs.thumbnail_maxheight = 4000;
    for (int i = 0; i < 5; ++i)
        AddFrame(4, 3);
    Open();

    Do(kThumbnailFit);

    auto& grid = Find<ThumbDrawingView>("ThumbDrawingView");
    const int sight = grid.parentWidget()->height();
    EXPECT_LE(grid.Layout().ContentHeight(), sight);
    EXPECT_EQ(grid.height(), sight);
    window->SetThumbnailHeight(Height() + 1);
    EXPECT_GT(grid.Layout().ContentHeight(), sight);
}

TEST_F(KirtoWindowCommands, HidesTheLabelsOfThumbnailsAndShowsThemAgain) {
    Open();
    const auto& grid = Find<ThumbDrawingView>("ThumbDrawingView");
    EXPECT_TRUE(grid.ShowsLabels());
    Do(kShowLabels);
    EXPECT_FALSE(grid.ShowsLabels());
    EXPECT_EQ(window->menuBar()->findChild<QAction*>("Labels")->text(), "Show Frame &Labels");
    Do(kShowLabels);
    EXPECT_TRUE(grid.ShowsLabels());
}

TEST_F(KirtoWindowCommands, ShowsTheColorsInOneWindowThatFollowsTheDocument) {
    Open();
    Do(kShowColors);
    Do(kShowColors);
    EXPECT_EQ(window->findChildren<ColorsWindow*>().size(), 1);
    const auto& colors = Find<ColorsWindow>("ColorsWindow");
    EXPECT_TRUE(colors.isVisible());
    EXPECT_EQ(colors.swatches->Count(), 0);
    AddFrame();
    Do(kUpdateAll);
    EXPECT_TRUE(QTest::qWaitFor([&] { return colors.swatches->Count() == 256; }));
}

TEST_F(KirtoWindowCommands, RemembersWhetherThumbnailsHaveLabelsWithThePlaceOfTheWindow) {
    const ScopedEnvironment configuration("XDG_CONFIG_HOME", folder.Path().c_str());
    prefs.misc_savewindowdimensions = true;
    Open();
    Do(kShowLabels);
    Do(B_QUIT_REQUESTED);

    Open();

    EXPECT_FALSE(Find<ThumbDrawingView>("ThumbDrawingView").ShowsLabels());
}

TEST_F(KirtoWindowCommands, ThePresetOfTheSettingsNeedsNoFrame) {
    prefs.thumbnail_heightvalue = 77;
    Open();

    Do(kThumbnailPreset);

    EXPECT_EQ(Height(), 77);
}

TEST_F(KirtoWindowCommands, APresetTakesFramesThatTheWindowHasNotShownYet) {
    Open();
    AddFrame(1, 131);

    Do(kThumbnailFirstFull);

    EXPECT_EQ(Height(), 131);
    EXPECT_EQ(Find<QListWidget>("FrameList").count(), 1);
}

TEST_F(KirtoWindowCommands, SelectingInTheListSelectsTheFrame) {
    OpenWithFrames(3);
    Do(kFrameListMode);

    Find<QListWidget>("FrameList").setCurrentRow(2);
    HandleEvents();

    int32 number = -1;
    EXPECT_EQ(LastPosted().FindInt32("number", &number), B_OK);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(Posted(), "aslt");
}

TEST_F(KirtoWindowCommands, SelectingNothingInTheListSelectsMinusOne) {
    Open();

    Do(kFrameListSelection);

    int32 number = 0;
    EXPECT_EQ(LastPosted().FindInt32("number", &number), B_OK);
    EXPECT_EQ(number, -1);
}

TEST_F(KirtoWindowCommands, TheListsButtonsAreCommands) {
    OpenWithFrames(2);
    Do(kFrameListMode);

    for (const char* name : {"Insert", "Remove", "MoveUp", "MoveDown"})
        Find<QPushButton>("FrameListView", name).click();
    HandleEvents();

    EXPECT_EQ(panels.TakeLines(), Lines{"insert shown"});
    EXPECT_EQ(Posted(), "awfr awfu awfd");
}

TEST_F(KirtoWindowCommands, MenuItemsAreCommands) {
    OpenWithFrames(2);

    for (QAction* menu : window->menuBar()->actions()) {
        for (QAction* item : menu->menu()->actions()) {
            const QString label = item->text().remove('&');
            if (label == "Remove" || label == "Reverse All" || label == "Insert...")
                item->trigger();
        }
    }
    HandleEvents();

    EXPECT_EQ(Posted(), "awfr awfv");
    EXPECT_EQ(panels.TakeLines(), Lines{"insert shown"});
}

TEST_F(KirtoWindowCommands, UnknownCommandsAreIgnored) {
    Open();

    Do(FourCharCode("what"));

    EXPECT_EQ(Posted(), "");
}

}  // namespace

}  // namespace kirto::test
