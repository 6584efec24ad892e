#include "animation/frame.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr uint32 kRed = 0xFFFF0000;
constexpr uint32 kBlue = 0xFF0000FF;

// Reads every file that is there as one given picture, or fails with a given status.
class OnePictureRoster : public BTranslatorRoster {
  public:
    status_t status = B_OK;
    std::shared_ptr<BBitmap> picture;
    std::shared_ptr<PixelBudget> budget;  // what was passed last

    status_t Translate(BFile& source, std::shared_ptr<PixelBudget> pixel_budget,
                       std::shared_ptr<BBitmap>* result) override {
        budget = std::move(pixel_budget);
        if (source.InitCheck() != B_OK) return source.InitCheck();
        *result = picture;
        return status;
    }
    status_t Translate(const BBitmap&, translator_id, uint32, const BMessage&, BFile&) override {
        return B_NO_TRANSLATOR;
    }
    std::vector<translator_id> Translators() const override { return {}; }
    bool GetTranslatorInfo(translator_id, std::string*) const override { return false; }
    std::vector<translation_format> InputFormats(translator_id) const override { return {}; }
    std::vector<translation_format> OutputFormats(translator_id) const override { return {}; }
    BMessage DefaultSettings(translator_id) const override { return {}; }
};

// A file for the roster, and frames made from it.
struct ImageFile {
    TemporaryFolder folder;
    std::string path = folder.File("picture.png");
    OnePictureRoster roster;
    std::shared_ptr<PixelBudget> budget = std::make_shared<PixelBudget>();

    explicit ImageFile(std::shared_ptr<BBitmap> picture) {
        roster.picture = std::move(picture);
        WriteBytes(path, {'p', 'n', 'g'});
    }
    std::unique_ptr<Frame> Load(const std::string& name = "picture.png", int32 index = 4) {
        return std::make_unique<Frame>(path.c_str(), name, index, roster, budget);
    }
};

void ExpectNoPlaceAndNoPause(const Frame& frame) {
    EXPECT_EQ(frame.x_offset, 0);
    EXPECT_EQ(frame.y_offset, 0);
    EXPECT_EQ(frame.pause_length, 0.0);
    EXPECT_FALSE(frame.use_pause);
    EXPECT_FALSE(frame.local_palette);
    EXPECT_EQ(frame.next, nullptr);
}

}  // namespace

TEST(Frame, WithoutArgumentsIsBlankAndWebSafe) {
    const Frame frame;

    EXPECT_FALSE(frame.init_failed);
    EXPECT_EQ(frame.name, "");
    EXPECT_EQ(frame.width, 0);
    EXPECT_EQ(frame.height, 0);
    EXPECT_EQ(frame.index, 0);
    EXPECT_EQ(frame.bitmap, nullptr);
    ExpectNoPlaceAndNoPause(frame);
    EXPECT_EQ(frame.palette->mode, kPaletteWebSafe);
}

TEST(Frame, TakesItsWidthBeforeItsHeight) {
    const Frame frame("tile", 320, 240, 3);

    EXPECT_FALSE(frame.init_failed);
    EXPECT_EQ(frame.name, "tile");
    EXPECT_EQ(frame.width, 320);
    EXPECT_EQ(frame.height, 240);
    EXPECT_EQ(frame.index, 3);
    EXPECT_EQ(frame.bitmap, nullptr);
    ExpectNoPlaceAndNoPause(frame);
    EXPECT_EQ(frame.palette->mode, kPaletteWebSafe);
}

TEST(Frame, FromAnImageFileHoldsThePictureAsItWasDelivered) {
    ImageFile file(PictureOf(2, 1, {kRed, kBlue}, B_RGBA32_BIG));

    const auto frame = file.Load("picture.png", 4);

    EXPECT_FALSE(frame->init_failed);
    EXPECT_EQ(frame->bitmap, file.roster.picture);
    EXPECT_EQ(frame->bitmap->ColorSpace(), B_RGBA32_BIG);
    EXPECT_EQ(frame->name, "picture.png");
    EXPECT_EQ(frame->width, 2);
    EXPECT_EQ(frame->height, 1);
    EXPECT_EQ(frame->index, 4);
    ExpectNoPlaceAndNoPause(*frame);
}

TEST(Frame, WithPictureBoundsTo99And49Is100By50) {
    ImageFile file(std::make_shared<BBitmap>(BRect(0, 0, 99, 49), B_RGB32));

    const auto frame = file.Load();

    EXPECT_EQ(frame->width, 100);
    EXPECT_EQ(frame->height, 50);
}

TEST(Frame, CountsPixelsOfBoundsThatAreOffTheOriginOrBetweenPixels) {
    ImageFile moved(std::make_shared<BBitmap>(BRect(10, 20, 109, 69), B_RGB32));
    ImageFile uneven(std::make_shared<BBitmap>(BRect(0, 0, 98.5F, 48.25F), B_RGB32));

    const auto first = moved.Load();
    const auto second = uneven.Load();

    EXPECT_EQ(first->width, 100);
    EXPECT_EQ(first->height, 50);
    EXPECT_EQ(second->width, 100);
    EXPECT_EQ(second->height, 50);
}

TEST(Frame, FromAnImageFileGetsThePicturesOwnPalette) {
    ImageFile file(PictureOf(3, 1, {kBlue, kRed, kRed}));

    const auto frame = file.Load();

    EXPECT_EQ(frame->palette->mode, kPaletteOptimal);
    EXPECT_EQ(frame->palette->unique_colors, 2);
    EXPECT_EQ(frame->palette->ColorForIndex(0), (rgb_color{255, 0, 0, 255}));
    EXPECT_EQ(frame->palette->ColorForIndex(1), (rgb_color{0, 0, 255, 255}));
}

TEST(Frame, HandsTheDocumentsBudgetToTheTranslators) {
    ImageFile file(PictureOf(1, 1, {kRed}));

    file.Load();

    EXPECT_EQ(file.roster.budget, file.budget);
}

TEST(Frame, OfAFileThatNoTranslatorReadsHasNeitherPictureNorPalette) {
    ImageFile file(nullptr);
    file.roster.status = B_NO_TRANSLATOR;

    auto frame = file.Load("notes.txt");

    EXPECT_TRUE(frame->init_failed);
    EXPECT_EQ(frame->bitmap, nullptr);
    EXPECT_EQ(frame->palette, nullptr);
    EXPECT_EQ(frame->name, "notes.txt");
    frame.reset();
}

TEST(Frame, OfAMissingFileHasNeitherPictureNorPalette) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    file.path = file.folder.File("missing.png");

    const auto frame = file.Load();

    EXPECT_TRUE(frame->init_failed);
    EXPECT_EQ(frame->bitmap, nullptr);
    EXPECT_EQ(frame->palette, nullptr);
}

TEST(Frame, DropsThePictureOfATranslationThatFailedHalfWay) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    file.roster.status = B_IO_ERROR;

    const auto frame = file.Load();

    EXPECT_TRUE(frame->init_failed);
    EXPECT_EQ(frame->bitmap, nullptr);
}

TEST(Frame, FailsWithoutAWordWhenThereIsNoMemoryForItsPalette) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    const AlertRecorder alerts;
    const DebugRecorder debug;
    const AllocationFault fault(1);

    const Frame blank;
    const Frame sized("frame", 1, 1, 0);
    const auto loaded = file.Load();

    for (const Frame* frame : {&blank, &sized, static_cast<const Frame*>(loaded.get())}) {
        EXPECT_TRUE(frame->init_failed);
        EXPECT_EQ(frame->palette, nullptr);
    }
    EXPECT_EQ(debug.Text(), "");
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST(Frame, IsWebSafeWhenThereIsNoMemoryToCountItsColours) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    const AlertRecorder alerts;
    const AllocationFault fault(2);

    const auto frame = file.Load();

    EXPECT_FALSE(frame->init_failed);
    EXPECT_EQ(frame->palette->mode, kPaletteWebSafe);
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{"WARNING [] Out of memory. | OK"});
}

TEST(Frame, IsDeletedWithoutTouchingTheNextOne) {
    auto second = std::make_unique<Frame>("second", 1, 1, 1);
    second->bitmap = PictureOf(1, 1, {kRed});
    auto first = std::make_unique<Frame>("first", 1, 1, 0);
    first->next = second.get();

    first.reset();

    EXPECT_EQ(second->name, "second");
    EXPECT_EQ(PixelsOf(*second->bitmap), std::vector<uint32>{kRed});
}

TEST(Frame, LeavesItsPictureToWhoeverStillShowsIt) {
    auto frame = std::make_unique<Frame>("frame", 1, 1, 0);
    frame->bitmap = PictureOf(1, 1, {kBlue});
    const std::shared_ptr<const BBitmap> shown = frame->bitmap;

    frame.reset();

    EXPECT_EQ(PixelsOf(*shown), std::vector<uint32>{kBlue});
}

TEST(Frame, CutsALongNameAfterAWholeCharacter) {
    const std::string fits(255, 'n');
    const std::string umlaut = "\xC3\xA4";

    EXPECT_EQ(Frame(fits, 1, 1, 0).name, fits);
    EXPECT_EQ(Frame(fits + "n", 1, 1, 0).name, fits);
    EXPECT_EQ(Frame(std::string(254, 'n') + umlaut, 1, 1, 0).name, std::string(254, 'n'));
    EXPECT_EQ(Frame(std::string(253, 'n') + umlaut, 1, 1, 0).name, std::string(253, 'n') + umlaut);
}

TEST(Frame, CutsTheNameOfALongFile) {
    ImageFile file(PictureOf(1, 1, {kRed}));

    const auto frame = file.Load(std::string(300, 'x'));

    EXPECT_EQ(frame->name, std::string(255, 'x'));
}

}  // namespace kirto::test
