#include "ui/file_panels/sheet_view.h"

#include <QLabel>
#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>

#include "base/abandonable.h"
#include "support/fake_roster.h"
#include "support/test_support.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

constexpr uint32 kSheetGreen = 0xFF00C000;

// Reads nothing until it is let.
struct WaitingRoster : FakeRoster {
    std::mutex mutex;
    std::condition_variable changed;
    bool let = false;
    int reading = 0;

    using FakeRoster::Translate;

    status_t Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                       std::shared_ptr<BBitmap>* result) override {
        {
            std::unique_lock lock(mutex);
            ++reading;
            changed.notify_all();
            changed.wait(lock, [this] { return let; });
        }
        return FakeRoster::Translate(source, std::move(budget), result);
    }
    void WaitUntilReading() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return reading > 0; });
    }
    void Let() {
        const std::lock_guard lock(mutex);
        let = true;
        changed.notify_all();
    }
};

struct SheetViewTest : ::testing::Test {
    SheetViewTest() {
        std::vector<uint32> pixels(20 * 8, kSheetGreen);
        // The last tile of 8 x 8 pixels with a spacing of 4 is empty.
        for (size_t i = 0; i < pixels.size(); ++i)
            if (i % 20 >= 12) pixels[i] = 0;
        WriteBytes(folder.File("sheet.raw"), RawPicture(*PictureOf(20, 8, pixels, B_RGBA32)));
        grid.tile_width = 8;
        grid.tile_height = 8;
        grid.spacing = 4;
    }

    void Make(BTranslatorRoster& roster) {
        view = std::make_unique<SheetView>(roster, nullptr);
        view->resize(400, view->height());
        view->show();
    }
    QString Text() const { return Named<QLabel>(*view, "SheetText")->text(); }
    void ShowSheet() {
        view->ShowSheet(folder.File("sheet.raw"), grid);
        EXPECT_TRUE(WaitFor([this] { return Text().contains("pixels"); }));
    }
    // What is painted in the middle of that part of the sheet.
    QRgb PaintedAt(const QImage& image, const TilePlace& part) const {
        const QPointF middle = view->PlaceOf(part).center() * image.devicePixelRatio();
        return image.pixel(middle.toPoint());
    }
    QImage Grabbed() const { return view->grab().toImage(); }

    TemporaryFolder folder;
    TileGrid grid;
    std::unique_ptr<SheetView> view;
};

// Only the widget's own color, apart from the text.
bool IsPlain(const QImage& image) {
    for (int y = 0; y < image.height() / 2; ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0)) return false;
    return true;
}

}  // namespace

TEST_F(SheetViewTest, ShowsNothingWithoutAFile) {
    FakeRoster roster;
    Make(roster);
    EXPECT_TRUE(IsPlain(Grabbed()));

    ShowSheet();
    EXPECT_FALSE(IsPlain(Grabbed()));
    view->ShowSheet("", grid);

    EXPECT_EQ(Text(), "");
    EXPECT_TRUE(IsPlain(Grabbed()));
}

TEST_F(SheetViewTest, DrawsLinesAroundTilesAndDarkensWhatIsBetweenThem) {
    FakeRoster roster;
    Make(roster);
    ShowSheet();

    const QImage image = Grabbed();

    EXPECT_EQ(PaintedAt(image, {4, 4, 1, 1}), kSheetGreen);
    const QPoint corner =
        (view->PlaceOf({0, 0, 8, 8}).topLeft() * image.devicePixelRatio()).toPoint();
    EXPECT_EQ(image.pixel(corner), view->palette().highlight().color().rgb());
    EXPECT_LT(qGreen(PaintedAt(image, {9, 4, 1, 1})), qGreen(kSheetGreen) / 2 + 1);
    EXPECT_GT(qGreen(PaintedAt(image, {9, 4, 1, 1})), 0);
}

TEST_F(SheetViewTest, DarkensTilesThatAreSkipped) {
    FakeRoster roster;
    Make(roster);
    ShowSheet();
    const TilePlace empty = {12, 0, 8, 8};
    const auto brightness = [this, empty] {
        const QRect place = view->PlaceOf(empty).toAlignedRect().adjusted(4, 4, -4, -4);
        const QImage part = Grabbed().copy(place);
        int64 sum = 0;
        for (int y = 0; y < part.height(); ++y)
            for (int x = 0; x < part.width(); ++x)
                sum += qGray(part.pixel(x, y));
        return sum;
    };
    const int64 before = brightness();

    grid.skip_empty = true;
    view->ShowSheet(folder.File("sheet.raw"), grid);

    EXPECT_TRUE(WaitFor([this] { return Text().contains("1 frame without the empty ones"); }));
    EXPECT_LT(brightness(), before * 3 / 4);
}

TEST_F(SheetViewTest, FollowsTheGrid) {
    FakeRoster roster;
    Make(roster);
    ShowSheet();

    grid.spacing = 0;
    view->ShowSheet(folder.File("sheet.raw"), grid);

    EXPECT_TRUE(WaitFor([this] { return Text().contains("1 row and 2 columns"); }));
    EXPECT_TRUE(WaitFor([this] { return PaintedAt(Grabbed(), {9, 4, 1, 1}) == kSheetGreen; }));
}

TEST_F(SheetViewTest, TellsThoseWhoCanNotSeeIt) {
    FakeRoster roster;
    Make(roster);
    ShowSheet();
    EXPECT_EQ(view->accessibleName(), "Sheet");
    EXPECT_EQ(view->accessibleDescription(), "20 × 8 pixels: 1 row and 2 columns of 8 × 8 pixels.");
}

TEST_F(SheetViewTest, WaitsForNoImageThatIsBeingRead) {
    WaitingRoster roster;
    Make(roster);
    view->ShowSheet(folder.File("sheet.raw"), grid);
    roster.WaitUntilReading();
    EXPECT_TRUE(IsPlain(Grabbed()));

    view->ShowSheet(folder.File("other.raw"), grid);
    view.reset();

    roster.Let();
    EXPECT_TRUE(WaitForAbandoned(std::chrono::seconds(30)));
}

TEST_F(SheetViewTest, ShowsTheLatestOfSeveralFiles) {
    WriteBytes(folder.File("last.raw"), RawPicture(*PictureOf(1, 1, {kSheetGreen}, B_RGBA32)));
    WaitingRoster roster;
    Make(roster);
    view->ShowSheet(folder.File("sheet.raw"), grid);
    roster.WaitUntilReading();

    grid.tile_width = 1;
    grid.tile_height = 1;
    view->ShowSheet(folder.File("last.raw"), grid);
    roster.Let();

    EXPECT_TRUE(WaitFor([this] { return Text().startsWith("1 × 1 pixels"); }));
    EXPECT_TRUE(WaitForAbandoned(std::chrono::seconds(30)));
}

}  // namespace kirto::test
