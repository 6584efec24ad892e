#include "animation/frame.h"

#include <functional>
#include <gtest/gtest.h>

#include "animation/gif_source.h"
#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

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

// A file for the roster, and what is made of it.
struct ImageFile {
    TemporaryFolder folder;
    std::string path = folder.File("picture.png");
    OnePictureRoster roster;
    std::shared_ptr<PixelBudget> budget = std::make_shared<PixelBudget>();

    explicit ImageFile(std::shared_ptr<BBitmap> picture) {
        roster.picture = std::move(picture);
        WriteBytes(path, {'p', 'n', 'g'});
    }
    // The frame of the file; a blank one, and the status, where that fails.
    Frame Load(const std::string& name = "picture.png") {
        FrameImage image = ReadFrameImage(path, roster, budget, nullptr);
        Palette::TellOfFailure(image.palette_status);
        status = image.status;
        return status == B_OK ? Frame(name, std::move(image)) : Frame();
    }

    status_t status = B_ERROR;
};

void ExpectNoPlaceAndNoPause(const Frame& frame) {
    EXPECT_EQ(frame.x_offset, 0);
    EXPECT_EQ(frame.y_offset, 0);
    EXPECT_EQ(frame.pause_length, 0.0);
    EXPECT_FALSE(frame.use_pause);
    EXPECT_FALSE(frame.local_palette);
}

}  // namespace

TEST(Frame, WithoutArgumentsIsBlankAndWebSafe) {
    const Frame frame;

    EXPECT_EQ(frame.name, "");
    EXPECT_EQ(frame.width, 0);
    EXPECT_EQ(frame.height, 0);
    EXPECT_EQ(frame.bitmap, nullptr);
    ExpectNoPlaceAndNoPause(frame);
    EXPECT_EQ(frame.palette->mode, kPaletteWebSafe);
}

TEST(Frame, TakesItsWidthBeforeItsHeight) {
    const Frame frame("tile", 320, 240);

    EXPECT_EQ(frame.name, "tile");
    EXPECT_EQ(frame.width, 320);
    EXPECT_EQ(frame.height, 240);
    EXPECT_EQ(frame.bitmap, nullptr);
    ExpectNoPlaceAndNoPause(frame);
    EXPECT_EQ(frame.palette->mode, kPaletteWebSafe);
}

TEST(Frame, FromAnImageFileHoldsThePictureAsItWasDelivered) {
    ImageFile file(PictureOf(2, 1, {kRed, kBlue}, B_RGBA32_BIG));

    const Frame frame = file.Load("picture.png");

    EXPECT_EQ(file.status, B_OK);
    EXPECT_EQ(PixelsOf(*frame.bitmap), PixelsOf(*file.roster.picture));
    EXPECT_EQ(frame.bitmap->ColorSpace(), B_RGBA32_BIG);
    EXPECT_EQ(frame.name, "picture.png");
    EXPECT_EQ(frame.width, 2);
    EXPECT_EQ(frame.height, 1);
    ExpectNoPlaceAndNoPause(frame);
}

TEST(Frame, WithPictureBoundsTo99And49Is100By50) {
    ImageFile file(std::make_shared<BBitmap>(BRect(0, 0, 99, 49), B_RGB32));

    const Frame frame = file.Load();

    EXPECT_EQ(frame.width, 100);
    EXPECT_EQ(frame.height, 50);
}

TEST(Frame, CountsPixelsOfBoundsThatAreOffTheOriginOrBetweenPixels) {
    ImageFile moved(std::make_shared<BBitmap>(BRect(10, 20, 109, 69), B_RGB32));
    ImageFile uneven(std::make_shared<BBitmap>(BRect(0, 0, 98.5F, 48.25F), B_RGB32));

    const Frame first = moved.Load();
    const Frame second = uneven.Load();

    EXPECT_EQ(first.width, 100);
    EXPECT_EQ(first.height, 50);
    EXPECT_EQ(second.width, 100);
    EXPECT_EQ(second.height, 50);
}

TEST(Frame, FromAnImageFileGetsThePicturesOwnPalette) {
    ImageFile file(PictureOf(3, 1, {kBlue, kRed, kRed}));

    const Frame frame = file.Load();

    EXPECT_EQ(frame.palette->mode, kPaletteOptimal);
    EXPECT_EQ(frame.palette->unique_colors, 2);
    EXPECT_EQ(frame.palette->ColorForIndex(0), (rgb_color{255, 0, 0, 255}));
    EXPECT_EQ(frame.palette->ColorForIndex(1), (rgb_color{0, 0, 255, 255}));
}

TEST(Frame, HandsTheDocumentsBudgetToTheTranslators) {
    ImageFile file(PictureOf(1, 1, {kRed}));

    file.Load();

    EXPECT_EQ(file.roster.budget, file.budget);
}

TEST(Frame, OfAFileThatNoTranslatorReadsIsNotMade) {
    ImageFile file(nullptr);
    file.roster.status = B_NO_TRANSLATOR;

    const Frame frame = file.Load("notes.txt");

    EXPECT_EQ(file.status, B_NO_TRANSLATOR);
    EXPECT_EQ(frame.bitmap, nullptr);
    EXPECT_EQ(frame.name, "");
}

TEST(Frame, OfAMissingFileIsNotMade) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    file.path = file.folder.File("missing.png");

    const Frame frame = file.Load();

    EXPECT_EQ(file.status, B_ENTRY_NOT_FOUND);
    EXPECT_EQ(frame.bitmap, nullptr);
}

TEST(Frame, DropsThePictureOfATranslationThatFailedHalfWay) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    file.roster.status = B_IO_ERROR;

    const Frame frame = file.Load();

    EXPECT_EQ(file.status, B_IO_ERROR);
    EXPECT_EQ(frame.bitmap, nullptr);
}

TEST(Frame, TellsThatTranslatorsLackMemoryForItsPicture) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    file.roster.status = B_NO_MEMORY;

    file.Load();

    EXPECT_EQ(file.status, B_NO_MEMORY);
}

TEST(Frame, FailsWithoutAWordWhenThereIsNoMemoryForItsPalette) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    const AlertRecorder alerts;
    const DebugRecorder debug;
    const AllocationFault fault(1);

    const Frame frame = file.Load();

    EXPECT_EQ(file.status, B_NO_MEMORY);
    EXPECT_EQ(frame.bitmap, nullptr);
    EXPECT_EQ(debug.Text(), "");
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST(Frame, IsWebSafeWhenThereIsNoMemoryToCountItsColours) {
    ImageFile file(PictureOf(1, 1, {kRed}));
    const AlertRecorder alerts;
    const AllocationFault fault(2);

    const Frame frame = file.Load();

    EXPECT_EQ(file.status, B_OK);
    EXPECT_EQ(frame.palette->mode, kPaletteWebSafe);
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{"WARNING [] Out of memory. | OK"});
}

TEST(Frame, LeavesItsPictureToWhoeverStillShowsIt) {
    auto frame = std::make_unique<Frame>("frame", 1, 1);
    frame->bitmap = FramePictureOf(1, 1, {kBlue});
    const std::shared_ptr<const Picture> shown = frame->bitmap;

    frame.reset();

    EXPECT_EQ(PixelsOf(*shown), std::vector<uint32>{kBlue});
}

TEST(Frame, HasAnIdOfItsOwnThatItsCopiesKeep) {
    const Frame first;
    const Frame second("frame", 1, 1);
    Frame copy = first;
    copy.SetName("copy");

    EXPECT_NE(first.id, 0U);
    EXPECT_NE(first.id, second.id);
    EXPECT_EQ(copy.id, first.id);
}

TEST(Frame, EqualsACopyUntilAnyOfItsFieldsChanges) {
    const Frame frame("frame", 1, 1);
    const std::function<void(Frame&)> edits[] = {
        [](Frame& f) { f.id = Frame().id; },
        [](Frame& f) { f.bitmap = FramePictureOf(1, 1, {0}); },
        [](Frame& f) { f.name = "other"; },
        [](Frame& f) { f.height = 2; },
        [](Frame& f) { f.width = 2; },
        [](Frame& f) { f.x_offset = 2; },
        [](Frame& f) { f.y_offset = 2; },
        [](Frame& f) { f.pause_length = 2; },
        [](Frame& f) { f.local_palette = true; },
        [](Frame& f) { f.use_pause = true; },
        [](Frame& f) { f.source = std::make_shared<const GifSource>(); },
        [](Frame& f) { f.palette = SharePalette(Palette(kPaletteGreyscale)); }};
    for (const auto& edit : edits) {
        Frame copy = frame;
        EXPECT_EQ(copy, frame);
        edit(copy);
        EXPECT_FALSE(copy == frame) << "edit " << &edit - edits;
    }
}

TEST(Frame, EqualsACopyThatIsMarkedDamaged) {
    const Frame frame;
    Frame copy = frame;
    copy.damaged = true;
    EXPECT_EQ(copy, frame);
}

TEST(Frame, EqualsAFrameWhosePaletteIsTheSameInAnotherPlace) {
    const Frame frame;
    Frame copy = frame;
    copy.palette = SharePalette(*frame.palette);

    EXPECT_NE(copy.palette, frame.palette);
    EXPECT_EQ(copy, frame);
}

TEST(Frame, CutsALongNameAfterAWholeCharacter) {
    const std::string fits(255, 'n');
    const std::string umlaut = "\xC3\xA4";

    EXPECT_EQ(Frame(fits, 1, 1).name, fits);
    EXPECT_EQ(Frame(fits + "n", 1, 1).name, fits);
    EXPECT_EQ(Frame(std::string(254, 'n') + umlaut, 1, 1).name, std::string(254, 'n'));
    EXPECT_EQ(Frame(std::string(253, 'n') + umlaut, 1, 1).name, std::string(253, 'n') + umlaut);
}

TEST(Frame, CutsTheNameOfALongFile) {
    ImageFile file(PictureOf(1, 1, {kRed}));

    const Frame frame = file.Load(std::string(300, 'x'));

    EXPECT_EQ(frame.name, std::string(255, 'x'));
}

}  // namespace kirto::test
