// Frames dragged out of the thumbnails, and files dropped on them.
#include <QApplication>
#include <QDropEvent>
#include <fstream>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {
namespace {

constexpr char kTargaAlert[] =
    "WARNING [] The file could not be saved because the Targa translator is either missing or "
    "failed. | OK";

// What a drag was begun with.
struct BegunDrag {
    std::unique_ptr<FrameDrag> data;
    QImage image;
    BPoint grab;

    ThumbDrawingView::DragStarter Starter() {
        return [this](std::unique_ptr<FrameDrag> drag, const QImage& picture, BPoint point) {
            data = std::move(drag);
            image = picture;
            grab = point;
        };
    }
};

BMessage MessageIn(const QMimeData& data) {
    const QByteArray bytes = data.data(kDragMessageType);
    const std::vector<uint8> flattened(bytes.begin(), bytes.end());
    BMessage message;
    message.Unflatten(flattened.data(), flattened.size());
    return message;
}

std::unique_ptr<QMimeData> Files(const QList<QUrl>& urls) {
    auto data = std::make_unique<QMimeData>();
    data->setUrls(urls);
    return data;
}

// True when the grid takes it.
bool DragOver(ThumbDrawingView& grid, const QMimeData& data, QPoint point) {
    QDragEnterEvent enter(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&grid, &enter);
    // Moves go to whoever took the drag last, so none is sent when nobody did.
    if (!enter.isAccepted()) return false;
    QDragMoveEvent move(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
    move.ignore();
    QApplication::sendEvent(&grid, &move);
    EXPECT_TRUE(move.isAccepted());
    return true;
}

Qt::DropAction Drop(ThumbDrawingView& grid, const QMimeData& data, QPoint point) {
    QDropEvent event(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&grid, &event);
    return event.dropAction();
}

void Leave(ThumbDrawingView& grid) {
    QDragLeaveEvent event;
    QApplication::sendEvent(&grid, &event);
}

TEST(ThumbDrawingViewDrag, StartsWithAHalfTransparentImageOfTheThumbnail) {
    ThumbnailFixture fixture({FrameOf(200, 100, 0xFFFF0000)});
    BegunDrag begun;
    fixture.Grid().SetDragStarter(begun.Starter());
    fixture.Grid().DragToTracker({7, 9});
    ASSERT_NE(begun.data, nullptr);
    EXPECT_EQ(begun.grab, BPoint(7, 9));
    EXPECT_EQ(begun.image.size(), QSize(200, 100));
    for (int y = 0; y < begun.image.height(); ++y) {
        for (int x = 0; x < begun.image.width(); ++x)
            ASSERT_EQ(begun.image.pixel(x, y), 0x7FFF0000u);
    }
}

TEST(ThumbDrawingViewDrag, MakesTransparentPixelsHalfTransparentToo) {
    ThumbnailFixture fixture({FrameOf(10, 10, 0x00000000)});
    BegunDrag begun;
    fixture.Grid().SetDragStarter(begun.Starter());
    fixture.Grid().DragToTracker({0, 0});
    for (int x = 0; x < begun.image.width(); ++x)
        ASSERT_EQ(qAlpha(begun.image.pixel(x, 50)), 127);
}

TEST(ThumbDrawingViewDrag, CarriesAMessageThatSaysWhereItBegan) {
    ThumbnailFixture fixture({FrameOf(10, 10, 0xFFFF0000, "my frame")});
    BegunDrag begun;
    fixture.Grid().SetDragStarter(begun.Starter());
    fixture.Grid().DragToTracker({0, 0});
    BMessage expected(B_SIMPLE_DATA);
    expected.AddInt32("be:actions", 0x44444350);
    expected.AddString("be:clip_name", "my frame");
    expected.AddString("be:types", "application/octet-stream");
    expected.AddString("be:filetypes", "application/octet-stream");
    expected.AddInt32("Kirto", 1);
    EXPECT_EQ(MessageIn(*begun.data), expected);
}

TEST(ThumbDrawingViewDrag, StartsForAll32BitPicturesAndNoOthers) {
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG, B_CMAP8, B_RGB24,
                                    B_RGB16, B_GRAY8, B_GRAY1}) {
        const auto frame = std::make_shared<Frame>("frame", 10, 10);
        frame->bitmap = Picture::Of(std::make_shared<BBitmap>(BRect(0, 0, 9, 9), space));
        ThumbnailFixture fixture({frame});
        BegunDrag begun;
        fixture.Grid().SetDragStarter(begun.Starter());
        fixture.Grid().DragToTracker({0, 0});
        EXPECT_EQ(begun.data != nullptr, Is32Bit(space)) << space;
    }
}

TEST(ThumbDrawingViewDrag, DoesNotStartWithoutFrames) {
    ThumbnailFixture fixture({});
    BegunDrag begun;
    fixture.Grid().SetDragStarter(begun.Starter());
    fixture.Grid().DragToTracker({0, 0});
    EXPECT_EQ(begun.data, nullptr);
}

TEST(ThumbDrawingViewDrag, HasAPictureOfBoundedSizeUnderThePointer) {
    ThumbnailFixture fixture({FrameOf(4000, 1)});
    BegunDrag begun;
    fixture.Grid().SetDragStarter(begun.Starter());
    fixture.Grid().DragToTracker({0, 0});
    EXPECT_EQ(begun.image.size(), QSize(2048, 100));
}

TEST(ThumbDrawingViewDrag, LeavesATargaFileThatIsGoneWithTheView) {
    std::string path;
    {
        ThumbnailFixture fixture({FrameOf(2, 2, 0xFFFF0000, "red")});
        BegunDrag begun;
        fixture.Grid().SetDragStarter(begun.Starter());
        fixture.Grid().DragToTracker({0, 0});
        ASSERT_EQ(begun.data->urls().size(), 1);
        path = begun.data->urls().first().toLocalFile().toStdString();
        EXPECT_EQ(entry_ref(path).Leaf(), "red.tga");
        EXPECT_EQ(ReadBytes(path), RawPicture(*fixture.shown.Frames().At(0)->bitmap));
        fixture.Grid().DragToTracker({0, 0});
        EXPECT_NE(begun.data->urls().first().toLocalFile().toStdString(), path);
    }
    EXPECT_FALSE(std::ifstream(path).good());
}

TEST(ThumbDrawingViewDrag, GivesNoFileWhenTheViewIsGone) {
    BegunDrag begun;
    {
        ThumbnailFixture fixture({FrameOf(2, 2)});
        fixture.Grid().SetDragStarter(begun.Starter());
        fixture.Grid().DragToTracker({0, 0});
    }
    EXPECT_TRUE(begun.data->urls().isEmpty());
}

BMessage CopyTo(const std::string& directory, const std::string& name) {
    BMessage message(B_COPY_TARGET);
    message.AddRef("directory", entry_ref(directory));
    message.AddString("name", name);
    return message;
}

TEST(ThumbDrawingViewDrag, SavesTheCurrentFrameWhereTheTargetAsks) {
    const TemporaryFolder folder;
    ThumbnailFixture fixture({FrameOf(2, 2, 0xFFFF0000), FrameOf(2, 2, 0xFF00FF00)}, 1);
    BMessage message = CopyTo(folder.Path(), "green.tga");
    fixture.Grid().MessageReceived(&message);
    EXPECT_EQ(ReadBytes(folder.File("green.tga")),
              RawPicture(*fixture.shown.Frames().At(1)->bitmap));
}

TEST(ThumbDrawingViewDrag, SavesNothingWithoutDirectoryNameOrFrame) {
    const TemporaryFolder folder;
    const AlertRecorder alerts;
    ThumbnailFixture fixture(SameFrames(1, 2, 2));
    BMessage no_name = CopyTo(folder.Path(), "a.tga");
    no_name.RemoveName("name");
    EXPECT_FALSE(fixture.Grid().SaveToTracker(&no_name));
    BMessage no_directory = CopyTo(folder.Path(), "a.tga");
    no_directory.RemoveName("directory");
    EXPECT_FALSE(fixture.Grid().SaveToTracker(&no_directory));
    ThumbnailFixture empty({});
    BMessage no_frame = CopyTo(folder.Path(), "a.tga");
    EXPECT_FALSE(empty.Grid().SaveToTracker(&no_frame));
    HandleEvents();
    EXPECT_TRUE(alerts.Lines().empty());
    EXPECT_FALSE(std::ifstream(folder.File("a.tga")).good());
}

TEST(ThumbDrawingViewDrag, TellsTheUserWhenThereIsNoTargaTranslatorOrItFails) {
    const TemporaryFolder folder;
    const AlertRecorder alerts;
    ThumbnailFixture fixture(SameFrames(1, 2, 2));
    BMessage message = CopyTo(folder.Path(), "a.tga");
    fixture.roster.has_targa = false;
    EXPECT_FALSE(fixture.Grid().SaveToTracker(&message));
    HandleEvents();
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kTargaAlert});
    fixture.roster.has_targa = true;
    fixture.roster.write_status = B_IO_ERROR;
    EXPECT_FALSE(fixture.Grid().SaveToTracker(&message));
    HandleEvents();
    EXPECT_EQ(alerts.Lines(), (std::vector<std::string>{kTargaAlert, kTargaAlert}));
}

TEST(ThumbDrawingViewDrag, TellsOfAFailureOnlyWhenTheDragIsOver) {
    const AlertRecorder alerts;
    ThumbnailFixture fixture(SameFrames(1, 2, 2));
    fixture.roster.has_targa = false;
    bool begun = false;
    fixture.Grid().SetDragStarter([&](std::unique_ptr<FrameDrag> drag, const QImage&, BPoint) {
        begun = true;
        EXPECT_TRUE(drag->urls().isEmpty());
        HandleEvents();
        EXPECT_TRUE(alerts.Lines().empty());
    });
    fixture.Grid().DragToTracker({0, 0});
    HandleEvents();
    EXPECT_TRUE(begun);
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kTargaAlert});
}

TEST(ThumbDrawingViewDrag, SurvivesTheViewsEndDuringADrag) {
    ThumbnailFixture fixture(SameFrames(1, 2, 2));
    bool begun = false;
    fixture.Grid().SetDragStarter([&](auto&&...) {
        begun = true;
        fixture.view.reset();
    });
    fixture.Grid().DragToTracker({0, 0});
    EXPECT_TRUE(begun);
}

TEST(ThumbDrawingViewDrag, ShowsABarWhereFilesWouldGo) {
    ThumbnailFixture fixture(SameFrames(4, 100, 100), 1);
    const auto files = Files({QUrl("file:///a.png")});
    EXPECT_EQ(fixture.Grid().DropPosition(), -1);
    EXPECT_TRUE(DragOver(fixture.Grid(), *files, fixture.MiddleOf(1)));
    EXPECT_EQ(fixture.Grid().DropPosition(), 1);
    const QImage image = fixture.Grid().grab().toImage();
    const QRgb bar = fixture.Grid().palette().color(QPalette::Highlight).rgb();
    EXPECT_NE(image.pixel(104, 50), bar);
    EXPECT_EQ(image.pixel(105, 50), bar);
    EXPECT_EQ(image.pixel(107, 50), bar);
    EXPECT_NE(image.pixel(108, 50), bar);
    // The current frame's line is not to be mistaken for it.
    EXPECT_NE(image.pixel(209, 50), bar);
    Leave(fixture.Grid());
    EXPECT_EQ(fixture.Grid().DropPosition(), -1);
    EXPECT_EQ(fixture.Grid().grab().toImage().pixel(209, 50), bar);
}

TEST(ThumbDrawingViewDrag, SendsAllDroppedFilesToTheWindowWithTheirPlace) {
    ThumbnailFixture fixture(SameFrames(4, 100, 100));
    const auto files = Files({QUrl("file:///a.png"), QUrl("file:///b.png")});
    DragOver(fixture.Grid(), *files, fixture.MiddleOf(1));
    EXPECT_EQ(Drop(fixture.Grid(), *files, fixture.MiddleOf(1)), Qt::CopyAction);
    BMessage expected(B_SIMPLE_DATA);
    expected.AddRef("refs", entry_ref("/a.png"));
    expected.AddRef("refs", entry_ref("/b.png"));
    expected.AddInt32("position", 1);
    EXPECT_EQ(fixture.window->Messages(), std::vector<BMessage>{expected});
    EXPECT_EQ(fixture.Grid().DropPosition(), -1);
}

int32 DroppedPosition(ThumbnailFixture& fixture, QPoint point) {
    fixture.window->TakeTranscript();
    const auto files = Files({QUrl("file:///a.png")});
    DragOver(fixture.Grid(), *files, point);
    Drop(fixture.Grid(), *files, point);
    int32 position = -2;
    const std::vector<BMessage> messages = fixture.window->Messages();
    if (messages.size() == 1) messages[0].FindInt32("position", &position);
    return position;
}

TEST(ThumbDrawingViewDrag, InsertsAtTheNextRowsStartRightOfARowAndAtTheEndBelowAll) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100), 0, {400, 500});
    ASSERT_EQ(fixture.Grid().Layout().At(3).left, 4);
    const int right = static_cast<int>(fixture.Grid().Layout().At(2).right) + 8;
    EXPECT_EQ(DroppedPosition(fixture, {right, 50}), 3);
    EXPECT_EQ(DroppedPosition(fixture, {right, 300}), 5);
    EXPECT_EQ(DroppedPosition(fixture, {50, 300}), 5);
    EXPECT_EQ(DroppedPosition(fixture, {50, 1}), 0);
}

TEST(ThumbDrawingViewDrag, InsertsAtTheStartWithoutFrames) {
    ThumbnailFixture fixture({});
    EXPECT_EQ(DroppedPosition(fixture, {200, 200}), 0);
    const auto files = Files({QUrl("file:///a.png")});
    DragOver(fixture.Grid(), *files, {200, 200});
    const QImage image = fixture.Grid().grab().toImage();
    const QRgb bar = fixture.Grid().palette().color(QPalette::Highlight).rgb();
    EXPECT_EQ(image.pixel(1, 2), bar);
    EXPECT_EQ(image.pixel(3, 101), bar);
    EXPECT_NE(image.pixel(4, 50), bar);
    EXPECT_NE(image.pixel(2, 102), bar);
    Leave(fixture.Grid());
}

TEST(ThumbDrawingViewDrag, DoesNothingButSayHowWhenAThumbnailIsDraggedBackOntoTheGrid) {
    ThumbnailFixture fixture(SameFrames(4, 100, 100));
    BegunDrag begun;
    fixture.Grid().SetDragStarter(begun.Starter());
    fixture.Grid().DragToTracker({0, 0});
    // Taken all the same, or it would go to the window.
    EXPECT_TRUE(DragOver(fixture.Grid(), *begun.data, fixture.MiddleOf(2)));
    EXPECT_EQ(fixture.Grid().DropPosition(), -1);
    EXPECT_EQ(Drop(fixture.Grid(), *begun.data, fixture.MiddleOf(2)), Qt::IgnoreAction);
    EXPECT_EQ(fixture.Grid().DropPosition(), -1);
    EXPECT_EQ(fixture.window->Transcript(),
              "svup(Status: Shift moves the frame, Ctrl+Shift copies it)");
}

TEST(ThumbDrawingViewDrag, LeavesEverythingButFilesOfThisMachineAlone) {
    ThumbnailFixture fixture(SameFrames(4, 100, 100));
    QMimeData text;
    text.setText("text");
    EXPECT_FALSE(DragOver(fixture.Grid(), text, fixture.MiddleOf(2)));
    const auto files = Files({QUrl("https://example.org/a.png")});
    EXPECT_TRUE(DragOver(fixture.Grid(), *files, fixture.MiddleOf(2)));
    Drop(fixture.Grid(), *files, fixture.MiddleOf(2));
    EXPECT_EQ(fixture.window->Transcript(), "");
    EXPECT_EQ(fixture.Grid().DropPosition(), -1);
}

}  // namespace
}  // namespace kirto::test
