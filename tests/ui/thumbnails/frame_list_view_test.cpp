#include "ui/thumbnails/frame_list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {
namespace {

struct ListFixture {
    DocumentFixture document;
    std::shared_ptr<PortRecorder> window = std::make_shared<PortRecorder>();
    ShownDocument shown;
    std::unique_ptr<FrameListView> view;

    explicit ListFixture(const std::vector<FramePointer>& frames, int32 selected = 0) {
        ShowFrames(shown, document.document, frames, selected);
        view = std::make_unique<FrameListView>(shown, BMessenger(window));
        view->resize(700, 400);
        view->show();
        HandleEvents();
    }
    void Show(const std::vector<FramePointer>& frames, int32 selected = 0) {
        ShowFrames(shown, document.document, frames, selected);
        view->UpdateDisplay();
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
        Show({FrameOf(width, height)});
        Preview().setFixedSize(preview);
        HandleEvents();
        return Title();
    }
};

// The same frame after an edit.
FramePointer Renamed(const FramePointer& frame, const std::string& name) {
    auto renamed = std::make_shared<Frame>(*frame);
    renamed->SetName(name);
    return renamed;
}

std::vector<FramePointer> FramesNamed(const std::string& names) {
    std::vector<FramePointer> frames;
    for (const char name : names)
        frames.push_back(FrameOf(1, 1, 0, std::string(1, name)));
    return frames;
}

void PressOn(QWidget& widget, int key) {
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
    std::vector<FramePointer> frames = FramesNamed("abc");
    ListFixture fixture(frames, 2);
    frames[0] = Renamed(frames[0], "z");
    frames.pop_back();
    fixture.Show(frames);
    EXPECT_EQ(fixture.Rows(), (std::vector<std::string>{"frame #0000    z", "frame #0001    b"}));
    EXPECT_EQ(fixture.List().CurrentSelection(), 0);
    frames.push_back(FrameOf(1, 1, 0, "new"));
    fixture.Show(frames);
    EXPECT_EQ(fixture.Rows().back(), "frame #0002    new");
    fixture.Show({});
    EXPECT_TRUE(fixture.Rows().empty());
    EXPECT_EQ(fixture.List().CurrentSelection(), -1);
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(FrameListView, TouchesOnlyTheRowsThatChange) {
    std::vector<FramePointer> frames = SameFrames(3000, 1, 1);
    ListFixture fixture(frames);
    int changes = 0;
    QObject::connect(&fixture.List(), &QListWidget::itemChanged, [&] { ++changes; });
    fixture.view->UpdateDisplay();
    EXPECT_EQ(changes, 0);
    frames[7] = Renamed(frames[7], "other");
    fixture.Show(frames);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(fixture.Rows()[7], "frame #0007    other");
}

// What the list's views were told of its rows.
struct RowSpies {
    QSignalSpy changed;
    QSignalSpy inserted;
    QSignalSpy removed;

    explicit RowSpies(FrameList& list)
        : changed(list.model(), &QAbstractItemModel::dataChanged),
          inserted(list.model(), &QAbstractItemModel::rowsInserted),
          removed(list.model(), &QAbstractItemModel::rowsRemoved) {}
    std::string Counts() const {
        return std::to_string(changed.count()) + " changed, " + std::to_string(inserted.count()) +
               " inserted, " + std::to_string(removed.count()) + " removed";
    }
};

TEST(FrameList, TouchesNoRowInFrontOfAFrameThatIsInsertedInTheMiddle) {
    std::vector<FramePointer> frames = FramesNamed("abcd");
    ListFixture fixture(frames);
    const RowSpies spies(fixture.List());

    frames.insert(frames.begin() + 2, FrameOf(1, 1, 0, "new"));
    fixture.Show(frames);

    EXPECT_EQ(fixture.Rows(), (std::vector<std::string>{"frame #0000    a", "frame #0001    b",
                                                        "frame #0002    new", "frame #0003    c",
                                                        "frame #0004    d"}));
    EXPECT_EQ(spies.Counts(), "2 changed, 1 inserted, 0 removed");
}

TEST(FrameList, TouchesNoRowInFrontOfAFrameThatIsRemovedFromTheMiddle) {
    std::vector<FramePointer> frames = FramesNamed("abcde");
    ListFixture fixture(frames);
    const RowSpies spies(fixture.List());

    frames.erase(frames.begin() + 2);
    fixture.Show(frames);

    EXPECT_EQ(fixture.Rows(), (std::vector<std::string>{"frame #0000    a", "frame #0001    b",
                                                        "frame #0002    d", "frame #0003    e"}));
    EXPECT_EQ(spies.Counts(), "2 changed, 0 inserted, 1 removed");
}

TEST(FrameList, TouchesOnlyTheRowsOfFramesThatAreRenamedOrSwapped) {
    std::vector<FramePointer> frames = FramesNamed("abcdef");
    ListFixture fixture(frames);
    const RowSpies spies(fixture.List());

    frames[3] = Renamed(frames[3], "z");
    fixture.Show(frames);
    EXPECT_EQ(fixture.Rows()[3], "frame #0003    z");
    EXPECT_EQ(spies.Counts(), "1 changed, 0 inserted, 0 removed");

    std::swap(frames[1], frames[2]);
    fixture.Show(frames);
    EXPECT_EQ(fixture.Rows()[1], "frame #0001    c");
    EXPECT_EQ(fixture.Rows()[2], "frame #0002    b");
    EXPECT_EQ(spies.Counts(), "3 changed, 0 inserted, 0 removed");
}

TEST(FrameList, TouchesNoRowForAnEditThatItDoesNotShow) {
    std::vector<FramePointer> frames = FramesNamed("abc");
    ListFixture fixture(frames);
    const RowSpies spies(fixture.List());

    auto moved = std::make_shared<Frame>(*frames[1]);
    moved->x_offset = 5;
    frames[1] = moved;
    fixture.Show(frames, 2);

    EXPECT_EQ(fixture.List().CurrentSelection(), 2);
    EXPECT_EQ(spies.Counts(), "0 changed, 0 inserted, 0 removed");
}

TEST(FrameList, TellsTheWindowWhichRowTheUserSelects) {
    ListFixture fixture(SameFrames(3, 1, 1));
    PressOn(fixture.List(), Qt::Key_Down);
    EXPECT_EQ(fixture.List().CurrentSelection(), 1);
    EXPECT_EQ(fixture.window->TakeTranscript(), "flsl");
    fixture.List().clearSelection();
    EXPECT_EQ(fixture.List().CurrentSelection(), -1);
    EXPECT_EQ(fixture.window->TakeTranscript(), "flsl");
}

TEST(FrameList, InsertsAndRemovesWithTheirKeys) {
    ListFixture fixture(SameFrames(3, 1, 1));
    PressOn(fixture.List(), Qt::Key_Insert);
    PressOn(fixture.List(), Qt::Key_Delete);
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
    fixture.document.prefs.thumbnail_drawtransparent = false;
    fixture.document.document.PublishSettings();
    fixture.shown.Take(fixture.document.document);
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
