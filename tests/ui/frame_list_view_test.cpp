#include "ui/frame_list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <gtest/gtest.h>

#include "ui/frame_area_fixture.h"

namespace kirto::test {
namespace {

struct ListFixture {
    std::shared_ptr<PortRecorder> window = std::make_shared<PortRecorder>();
    ShownDocument shown;
    std::unique_ptr<FrameListView> view;

    explicit ListFixture(std::vector<FrameSnapshot> frames, int32 selected = 0) {
        shown.frames = std::move(frames);
        shown.selected = shown.frames.empty() ? -1 : selected;
        view = std::make_unique<FrameListView>(shown, BMessenger(window));
        view->resize(700, 400);
        view->show();
        HandleEvents();
    }
    FrameList& List() { return *view->List(); }
    FramePreview& Preview() {
        return *static_cast<FramePreview*>(view->findChild<QWidget*>("Preview"));
    }
    QString Title() { return view->findChild<QLabel*>("Title")->text(); }
    std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (int i = 0; i < List().count(); ++i)
            rows.push_back(List().item(i)->text().toStdString());
        return rows;
    }
    // Shows a frame of that size in a preview of the other size.
    QString TitleOf(int32 width, int32 height, QSize preview) {
        shown.frames = {FrameOf(width, height)};
        shown.selected = 0;
        view->UpdateDisplay();
        Preview().setFixedSize(preview);
        HandleEvents();
        return Title();
    }
};

void Press(QWidget& widget, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

TEST(FrameListView, ListsFramesByIndexAndName) {
    ListFixture fixture({FrameOf(1, 1, 0, "a"), FrameOf(1, 1, 0, "b.png")}, 1);
    EXPECT_EQ(fixture.Rows(),
              (std::vector<std::string>{"frame #0000    a", "frame #0001    b.png"}));
    EXPECT_EQ(fixture.List().CurrentSelection(), 1);
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(FrameListView, FollowsTheFramesWithoutSendingAnything) {
    ListFixture fixture({FrameOf(1, 1, 0, "a"), FrameOf(1, 1, 0, "b"), FrameOf(1, 1, 0, "c")}, 2);
    fixture.shown.frames[0].name = "z";
    fixture.shown.frames.pop_back();
    fixture.shown.selected = 0;
    fixture.view->UpdateDisplay();
    EXPECT_EQ(fixture.Rows(), (std::vector<std::string>{"frame #0000    z", "frame #0001    b"}));
    EXPECT_EQ(fixture.List().CurrentSelection(), 0);
    fixture.shown.frames.push_back(FrameOf(1, 1, 0, "new"));
    fixture.view->UpdateDisplay();
    EXPECT_EQ(fixture.Rows().back(), "frame #0002    new");
    fixture.shown.frames.clear();
    fixture.shown.selected = -1;
    fixture.view->UpdateDisplay();
    EXPECT_TRUE(fixture.Rows().empty());
    EXPECT_EQ(fixture.List().CurrentSelection(), -1);
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(FrameListView, TouchesOnlyTheRowsThatChange) {
    ListFixture fixture(SameFrames(3000, 1, 1));
    int changes = 0;
    QObject::connect(&fixture.List(), &QListWidget::itemChanged, [&] { ++changes; });
    fixture.view->UpdateDisplay();
    EXPECT_EQ(changes, 0);
    fixture.shown.frames[7].name = "other";
    fixture.view->UpdateDisplay();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(fixture.Rows()[7], "frame #0007    other");
}

TEST(FrameList, TellsTheWindowWhichRowTheUserSelects) {
    ListFixture fixture(SameFrames(3, 1, 1));
    Press(fixture.List(), Qt::Key_Down);
    EXPECT_EQ(fixture.List().CurrentSelection(), 1);
    EXPECT_EQ(fixture.window->TakeTranscript(), "flsl");
    fixture.List().clearSelection();
    EXPECT_EQ(fixture.List().CurrentSelection(), -1);
    EXPECT_EQ(fixture.window->TakeTranscript(), "flsl");
}

TEST(FrameList, InsertsAndRemovesWithTheirKeys) {
    ListFixture fixture(SameFrames(3, 1, 1));
    Press(fixture.List(), Qt::Key_Insert);
    Press(fixture.List(), Qt::Key_Delete);
    EXPECT_EQ(fixture.window->Transcript(), "awfi awfr");
}

TEST(FrameListView, HasButtonsForTheFramesCommands) {
    ListFixture fixture(SameFrames(1, 1, 1));
    for (const auto& [name, label] :
         {std::pair("Insert", "Insert"), std::pair("Remove", "Remove"),
          std::pair("MoveUp", "Move Up"), std::pair("MoveDown", "Move Down")}) {
        auto* button = fixture.view->findChild<QPushButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        EXPECT_EQ(button->text(), label);
        button->click();
    }
    EXPECT_EQ(fixture.window->Transcript(), "awfi awfr awfu awfd");
}

TEST(FrameListView, TellsTheScaleOfThePreview) {
    ListFixture fixture({});
    EXPECT_EQ(fixture.Title(), "Preview: 100%");
    EXPECT_EQ(fixture.TitleOf(200, 100, {200, 300}), "Preview: 100%");
    EXPECT_EQ(fixture.TitleOf(200, 100, {100, 300}), "Preview: 50%");
    EXPECT_EQ(fixture.TitleOf(100, 100, {129, 300}), "Preview: 129%");
    EXPECT_EQ(fixture.TitleOf(100, 100, {300, 129}), "Preview: 129%");
    EXPECT_EQ(fixture.TitleOf(3, 7, {100, 100}), "Preview: 1433%");
    EXPECT_EQ(fixture.TitleOf(1000, 1000, {129, 300}), "Preview: 12%");
}

TEST(FrameListView, ShowsTheCurrentFrameAsLargeAsFits) {
    ListFixture fixture({});
    fixture.TitleOf(100, 100, {300, 100});
    EXPECT_EQ(fixture.Preview().PictureArea(), BRect(100, 0, 199, 99));
    const QImage image = fixture.Preview().grab().toImage();
    EXPECT_EQ(image.pixel(100, 0), 0xFF336699u);
    EXPECT_EQ(image.pixel(199, 99), 0xFF336699u);
    EXPECT_NE(image.pixel(99, 50), 0xFF336699u);
    EXPECT_NE(image.pixel(200, 50), 0xFF336699u);
}

TEST(FrameListView, ShowsWhatIsBehindTransparentPixelsAsTheSettingsSay) {
    ListFixture fixture({FrameOf(10, 10, 0)});
    const QImage checkered = fixture.Preview().grab().toImage();
    fixture.shown.prefs.thumbnail_drawtransparent = false;
    fixture.view->UpdateDisplay();
    const QImage grey = fixture.Preview().grab().toImage();
    const BRect area = fixture.Preview().PictureArea();
    const QPoint corner(static_cast<int>(area.left) + 1, static_cast<int>(area.top) + 1);
    EXPECT_NE(checkered.pixel(corner), checkered.pixel(corner + QPoint(6, 0)));
    EXPECT_EQ(grey.pixel(corner), grey.pixel(corner + QPoint(6, 0)));
}

TEST(FrameListView, IsEmptyWhenItIsReset) {
    ListFixture fixture(SameFrames(3, 10, 10));
    fixture.view->ResetDisplay();
    EXPECT_TRUE(fixture.Rows().empty());
    EXPECT_FALSE(fixture.Preview().PictureArea().IsValid());
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(FrameListView, GivesTheListTheFocusAndNamesItsViews) {
    ListFixture fixture({});
    EXPECT_EQ(fixture.view->focusProxy(), &fixture.List());
    EXPECT_EQ(fixture.view->objectName(), "FrameListView");
    EXPECT_EQ(fixture.List().objectName(), "FrameList");
    EXPECT_EQ(fixture.List().accessibleName(), "Frames");
    EXPECT_EQ(fixture.Preview().accessibleName(), "Preview");
}

}  // namespace
}  // namespace kirto::test
