#include <gtest/gtest.h>
#include <thread>

#include "document/animation_document.h"
#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr const char* kPaletteAlert =
    "WARNING [] The palette can't be loaded because the file was corrupted or unreadable. | OK";

// A document whose settings ask for a palette from a file.
struct PaletteFileFixture : DocumentFixture {
    TemporaryFolder folder;

    PaletteFileFixture() {
        prefs.palette_mapping = kPaletteFromFile;
        prefs.palette_filename = folder.File("palette.gif");
    }
    void WritePalette() {
        WriteBytes(prefs.palette_filename, GifBuilder(1, 1, {0x112233, 0x445566}).Trailer());
    }
};

// While an alert is up, reads the document on a thread of its own.
class ReadingPresenter : public AlertPresenter {
  public:
    explicit ReadingPresenter(AnimationDocument& document)
        : document_(document), previous_(InstallAlertPresenter(this)) {}
    ~ReadingPresenter() override { InstallAlertPresenter(previous_); }

    int32 Present(const BAlert&) override {
        std::thread([this] {
            const auto state = document_.CurrentState();
            seen_mode = state->animation->palette->mode;
            seen_frames = state->animation->frames.Size();
            lock_is_free = try_acquire_sem(document_.frame_sem) == B_OK;
            if (lock_is_free) release_sem(document_.frame_sem);
        }).join();
        ++shown;
        return 0;
    }

    int32 shown = 0;
    int32 seen_mode = -1;
    int32 seen_frames = -1;
    bool lock_is_free = false;

  private:
    AnimationDocument& document_;
    AlertPresenter* previous_;
};

}  // namespace

TEST(AnimationDocument, IsEmptyUntitledAndUnmodifiedAtFirst) {
    const DocumentFixture fixture;
    const AnimationDocument& document = fixture.document;

    EXPECT_EQ(document.FrameCount(), 0);
    EXPECT_EQ(document.FirstFrame(), nullptr);
    EXPECT_EQ(document.CurrentFrame(), nullptr);
    EXPECT_EQ(document.Selected(), -1);
    EXPECT_FALSE(document.Modified());
    EXPECT_EQ(document.CurrentState()->file_name, "untitled");
    EXPECT_EQ(document.CurrentState()->file_directory, "");
    EXPECT_EQ(document.reader_count, 0);
    EXPECT_EQ(fixture.port->Transcript(), "");
}

TEST(AnimationDocument, SaysSoWhenItGetsNoSemaphoreAndGoesOn) {
    Prefs prefs{Prefs::BuiltIn{}};
    const DebugRecorder debug;
    std::unique_ptr<AnimationDocument> document;
    {
        const AllocationFault fault(1);
        document = std::make_unique<AnimationDocument>(prefs);
    }

    EXPECT_EQ(debug.Text(), "Kirto::Kirto() - Create sem died\n");
    EXPECT_EQ(document->Current()->width, 320);
    AppendFrame(*document, PictureOf(1, 1, {0}), "frame");
    EXPECT_EQ(document->FrameCount(), 1);
}

TEST(AnimationDocument, DeletesEveryFrameAtAReset) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    for (int32 i = 0; i < 3; ++i) {
        AppendFrame(document,
                    std::make_shared<BBitmap>(BRect::OfSize(2, 2), B_RGB32, document.pixel_budget),
                    "frame");
    }
    document.Select(2);
    document.SetModified(true);
    document.SetFile("/films", "movie.gif");

    document.Reset();

    EXPECT_EQ(document.FrameCount(), 0);
    EXPECT_EQ(document.FirstFrame(), nullptr);
    EXPECT_EQ(document.FrameAt(0), nullptr);
    EXPECT_EQ(document.Selected(), -1);
    EXPECT_FALSE(document.Modified());
    EXPECT_EQ(document.CurrentState()->file_name, "untitled");
    EXPECT_EQ(document.CurrentState()->file_directory, "");
    EXPECT_EQ(document.pixel_budget->Used(), 0U);
}

TEST(AnimationDocument, TakesItsPropertiesFromTheSettingsAtAReset) {
    DocumentFixture fixture;
    Prefs& prefs = fixture.prefs;
    prefs.global_width = 11;
    prefs.global_height = 22;
    prefs.global_usepause = false;
    prefs.global_useloop = false;
    prefs.global_pauselength = 3.5;
    prefs.global_loopcount = 4;
    AnimationDocument& document = fixture.document;

    document.Reset();

    EXPECT_EQ(document.Current()->width, 11);
    EXPECT_EQ(document.Current()->height, 22);
    EXPECT_FALSE(document.Current()->use_pause);
    EXPECT_FALSE(document.Current()->use_loop);
    EXPECT_EQ(document.Current()->pause_length, 3.5);
    EXPECT_EQ(document.Current()->loop_count, 4);
}

TEST(AnimationDocument, SetsThePaletteThatTheSettingsNameAtAReset) {
    for (const int32 kind : {kPaletteWebSafe, kPaletteSystem, kPaletteGreyscale}) {
        DocumentFixture fixture;
        fixture.prefs.palette_mapping = kind;

        fixture.document.Reset();

        EXPECT_EQ(fixture.document.Current()->palette->mode, kind);
        EXPECT_EQ(fixture.document.Current()->palette->colors, Palette(kind).colors);
        EXPECT_EQ(fixture.port->Transcript(), "");
    }
}

TEST(AnimationDocument, CopiesThePaletteSettingsAtAReset) {
    DocumentFixture fixture;
    Prefs& prefs = fixture.prefs;
    prefs.palette_usetransparent = true;
    prefs.palette_transparentindex = 7;
    prefs.palette_backgroundindex = 8;
    prefs.palette_dither = true;

    fixture.document.Reset();

    const Palette& palette = *fixture.document.Current()->palette;
    EXPECT_TRUE(palette.use_transparent);
    EXPECT_EQ(palette.transparent_index, 7);
    EXPECT_EQ(palette.background_index, 8);
    EXPECT_TRUE(palette.dither);
}

TEST(AnimationDocument, LoadsThePaletteFileThatTheSettingsNameAtAReset) {
    PaletteFileFixture fixture;
    fixture.WritePalette();
    const AlertRecorder alerts;

    fixture.document.Reset();

    const Palette& palette = *fixture.document.Current()->palette;
    EXPECT_EQ(palette.mode, kPaletteFromFile);
    EXPECT_EQ(palette.size, 2);
    EXPECT_EQ(palette.ColorForIndex(1), (rgb_color{0x44, 0x55, 0x66, 255}));
    EXPECT_TRUE(alerts.Lines().empty());
    EXPECT_EQ(fixture.port->Transcript(), "");
}

TEST(AnimationDocument, WarnsOfAnUnreadablePaletteFileAndIsWebSafe) {
    PaletteFileFixture fixture;
    fixture.prefs.palette_dither = true;
    const AlertRecorder alerts;

    fixture.document.Reset();

    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kPaletteAlert});
    EXPECT_EQ(fixture.document.Current()->palette->mode, kPaletteWebSafe);
    EXPECT_EQ(fixture.document.Current()->palette->colors, kWebSafeColors);
    EXPECT_TRUE(fixture.document.Current()->palette->dither);
    EXPECT_EQ(fixture.port->Transcript(), "auda");
}

TEST(AnimationDocument, LeavesNothingOfAPaletteFileThatEndsEarly) {
    PaletteFileFixture fixture;
    std::vector<uint8> bytes = GifBuilder(1, 1, {0x112233, 0x445566});
    bytes.pop_back();
    WriteBytes(fixture.prefs.palette_filename, bytes);
    const AlertRecorder alerts;

    fixture.document.Reset();

    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kPaletteAlert});
    EXPECT_EQ(fixture.document.Current()->palette->colors, kWebSafeColors);
    EXPECT_EQ(fixture.document.Current()->palette->size, kWebSafeSize);
}

TEST(AnimationDocument, ShowsThePaletteWarningWhileOthersReadTheDocumentThatIsReset) {
    PaletteFileFixture fixture;
    AppendFrame(fixture.document, PictureOf(1, 1, {0}), "frame");
    PaletteEditOf(fixture.document)->Set(kPaletteGreyscale);
    ReadingPresenter presenter(fixture.document);

    fixture.document.Reset();

    EXPECT_EQ(presenter.shown, 1);
    EXPECT_EQ(presenter.seen_mode, kPaletteWebSafe);
    EXPECT_EQ(presenter.seen_frames, 0);
    EXPECT_TRUE(presenter.lock_is_free);
}

TEST(AnimationDocument, DithersNoGreysAtAReset) {
    DocumentFixture fixture;
    fixture.prefs.palette_mapping = kPaletteGreyscale;
    fixture.prefs.palette_dither = true;

    fixture.document.Reset();
    EXPECT_FALSE(fixture.document.Current()->palette->dither);
    fixture.prefs.palette_mapping = kPaletteSystem;
    fixture.document.Reset();

    EXPECT_TRUE(fixture.document.Current()->palette->dither);
}

}  // namespace kirto::test
