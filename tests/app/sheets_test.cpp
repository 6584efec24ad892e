// Sheets that the application writes, and frames that it makes of sheets.
#include <gtest/gtest.h>
#include <string>

#include "app/kirto_fixture.h"
#include "document/command_codes.h"
#include "formats/sheet/sheet_description.h"

namespace kirto::test {

namespace {

using Pixels = std::vector<uint32>;

constexpr uint32 kA = 0xFF0000AA;
constexpr uint32 kB = 0xFF0000BB;
constexpr uint32 kC = 0xFF0000CC;

class Sheets : public KirtoFixture {
  protected:
    Sheets() {
        Make();
        app_->GetInsertTiledFilePanel();
        TakeLines();
    }

    void Carry(BMessage message) { app_->MessageReceived(&message); }
    // Three frames: 2 x 1 pixels, a smaller one that stands at the right, and one off the canvas.
    void MakeFrames() {
        AppendFrame(*app_, PictureOf(2, 1, {kA, kB}), "a");
        AppendFrame(*app_, PictureOf(1, 1, {kC}), "b")->x_offset = 1;
        AppendFrame(*app_, PictureOf(1, 1, {kC}), "c")->x_offset = 5;
        EditOf(*app_)->width = 2;
        EditOf(*app_)->height = 1;
        EditOf(*app_)->use_pause = true;
        EditOf(*app_)->pause_length = 7;
    }
    BMessage SheetTo(const std::string& name, int32 columns, int32 padding) const {
        BMessage message = SaveTo(folder_.Path(), name, FakeRoster::kRaw);
        message.what = kSaveSheet;
        message.AddInt32("columns", columns);
        message.AddInt32("padding", padding);
        return message;
    }
    Pixels PixelsIn(const std::string& name) {
        BFile file(File(name), B_READ_ONLY);
        std::shared_ptr<BBitmap> picture;
        EXPECT_EQ(roster_.Translate(file, nullptr, &picture), B_OK);
        return picture ? PixelsOf(*picture) : Pixels();
    }
    SheetDescription Described(const std::string& name) const {
        const std::vector<uint8> bytes = ReadBytes(File(name));
        const auto read = ReadSheetDescription(std::string(bytes.begin(), bytes.end()));
        EXPECT_TRUE(read);
        return read.value_or(SheetDescription());
    }
    void WriteText(const std::string& name, const std::string& text) const {
        Write(name, std::vector<uint8>(text.begin(), text.end()));
    }
    // The pixels of all frames.
    std::vector<Pixels> Frames() const {
        std::vector<Pixels> frames;
        for (const FramePointer& frame : app_->Current()->frames)
            frames.push_back(PixelsOf(*frame->bitmap));
        return frames;
    }
};

TEST_F(Sheets, HaveTheFramesSideBySide) {
    MakeFrames();
    Carry(SheetTo("sheet.raw", 2, 1));

    EXPECT_EQ(PixelsIn("sheet.raw"), (Pixels{kA, kB, 0, kC, 0,  //
                                             0, 0, 0, 0, 0,     //
                                             0, 0, 0, 0, 0}));
    const SheetDescription sheet = Described("sheet.json");
    EXPECT_EQ(sheet.image, "sheet.raw");
    ASSERT_EQ(sheet.frames.size(), 3u);
    EXPECT_EQ(sheet.frames[1].left, 3);
    EXPECT_EQ(sheet.frames[1].x_offset, 1);
    EXPECT_EQ(sheet.frames[1].whole_width, 2);
    EXPECT_EQ(sheet.frames[1].milliseconds, 70);
    EXPECT_EQ(sheet.frames[2].top, 2);
    EXPECT_EQ(TakeLines(), Lines());
}

TEST_F(Sheets, HaveTheSelectedFramesWhereSeveralAre) {
    MakeFrames();
    BMessage select(kSelectFrames);
    select.AddString("frames", "1-2");
    Carry(select);
    BMessage save = SheetTo("sheet.raw", 0, 0);
    save.AddBool("power_of_two", true);
    Carry(save);

    EXPECT_EQ(PixelsIn("sheet.raw"), (Pixels{kC, 0}));
}

TEST_F(Sheets, HaveSidesThatArePowersOfTwoWhereAskedFor) {
    MakeFrames();
    BMessage save = SheetTo("sheet.raw", 1, 0);
    save.AddBool("power_of_two", true);
    Carry(save);

    EXPECT_EQ(PixelsIn("sheet.raw").size(), 2u * 4u);
}

TEST_F(Sheets, ComeBackAsTheFramesThatTheyWereMadeOf) {
    MakeFrames();
    Carry(SheetTo("sheet.raw", 2, 3));
    const auto before = app_->Current();
    Carry(BMessage(kResetDocument));
    Carry(Files(kInsertTiledFile, {"sheet.json"}));

    const auto after = app_->Current();
    EXPECT_EQ(after->width, 2);
    ASSERT_EQ(after->frames.Size(), 3);
    EXPECT_EQ(Frames(), (std::vector<Pixels>{{kA, kB}, {kC}, {0}}));
    for (int32 i = 0; i < 2; ++i) {
        EXPECT_EQ(after->frames.At(i)->name, before->frames.At(i)->name);
        EXPECT_EQ(after->frames.At(i)->x_offset, before->frames.At(i)->x_offset);
        EXPECT_EQ(after->frames.At(i)->pause_length, 7);
        EXPECT_TRUE(after->frames.At(i)->use_pause);
    }
    EXPECT_EQ(app_->CurrentState()->undo_name, "Insert Tiled");
}

TEST_F(Sheets, AreNotWrittenWithoutFramesOrAsLargeAsThat) {
    Carry(SheetTo("sheet.raw", 1, 0));
    EXPECT_EQ(TakeLines(), Lines{"WARNING [] There is no frame to save. | OK"});
    MakeFrames();
    Carry(SheetTo("sheet.raw", 3, 20000));
    EXPECT_EQ(TakeLines(),
              Lines{"WARNING [] The sheet can't be saved because it would be too large. | OK"});
    BMessage elsewhere = SheetTo("missing/sheet.raw", 1, 0);
    Carry(elsewhere);
    EXPECT_EQ(TakeLines().size(), 1u);
    BMessage unknown = SheetTo("sheet.raw", 1, 0);
    unknown.RemoveName("translator_id");
    unknown.AddInt64("translator_id", FakeRoster::kReadOnly);
    Carry(unknown);
    EXPECT_EQ(TakeLines().size(), 1u);
    EXPECT_TRUE(ReadBytes(File("sheet.raw")).empty());
    EXPECT_TRUE(ReadBytes(File("sheet.json")).empty());
}

TEST_F(Sheets, TellOfTextsThatDoNotDescribeThem) {
    WriteText("a.json", "{}");
    Carry(Files(kInsertTiledFile, {"a.json"}));
    EXPECT_EQ(TakeLines(),
              Lines{"WARNING [] This file can't be inserted because it does not describe a sheet: "
                    "a.json | OK"});
    Write("b.raw", RawPicture(*PictureOf(1, 1, {kA})));
    WriteText("b.json", R"({"frames":[{"frame":{"x":0,"y":0,"w":2,"h":1}}],)"
                        R"("meta":{"image":"../elsewhere/b.raw"}})");
    Carry(Files(kInsertTiledFile, {"b.json"}));
    EXPECT_EQ(TakeLines(),
              Lines{"WARNING [] This file can't be inserted because a frame is not on the sheet: "
                    "b.json | OK"});
    EXPECT_EQ(app_->FrameCount(), 0);
}

// 5 x 3 pixels that are numbered; tiles of one pixel with one between them.
TEST_F(Sheets, AreCutByTheSizeOfATileWithMarginAndSpacing) {
    Pixels pixels;
    for (uint32 i = 0; i < 15; ++i)
        pixels.push_back(0xFF000000 | i);
    pixels[1 * 5 + 3] = 0;
    Write("s.raw", RawPicture(*PictureOf(5, 3, pixels, B_RGBA32)));
    BMessage message = Files(kInsertTiledFile, {"s.raw"});
    for (const char* field : {"tile_width", "tile_height", "margin", "spacing"})
        message.AddInt32(field, 1);
    Carry(message);
    EXPECT_EQ(Frames(), (std::vector<Pixels>{{0xFF000006}, {0}}));

    message.AddBool("skip_empty", true);
    Carry(BMessage(kResetDocument));
    Carry(message);
    EXPECT_EQ(Frames(), (std::vector<Pixels>{{0xFF000006}}));
}

TEST_F(Sheets, AreCutByRowsAndColumnsWithMarginAndSpacing) {
    Pixels pixels;
    for (uint32 i = 0; i < 7 * 3; ++i)
        pixels.push_back(0xFF000000 | i);
    Write("s.raw", RawPicture(*PictureOf(7, 3, pixels)));
    desktop_.fields = {0, "1", "2", false};
    BMessage message = Files(kInsertTiledFile, {"s.raw"});
    message.AddInt32("margin", 1);
    message.AddInt32("spacing", 1);
    Carry(message);
    EXPECT_EQ(Frames(), (std::vector<Pixels>{{0xFF000008, 0xFF000009}, {0xFF00000B, 0xFF00000C}}));
}

TEST_F(Sheets, AreNotCutWhereTilesHaveNoRoom) {
    Write("s.raw", RawPicture(*PictureOf(3, 3, Pixels(9, kA))));
    desktop_.fields = {0, "1", "2", false};
    for (const auto& [field, number] : std::vector<std::pair<const char*, int32>>{
             {"margin", 2}, {"margin", -1}, {"spacing", 3}, {"tile_width", -1}}) {
        BMessage message = Files(kInsertTiledFile, {"s.raw"});
        message.AddInt32(field, number);
        Carry(message);
        EXPECT_EQ(TakeLines(), Lines{"WARNING [] This frame can't be inserted because the number "
                                     "of rows or columns is illegal. | OK"})
            << field << ' ' << number;
    }
    EXPECT_EQ(app_->FrameCount(), 0);
}

}  // namespace

}  // namespace kirto::test
