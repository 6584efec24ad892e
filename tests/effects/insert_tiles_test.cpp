#include "effects/insert_tiles.h"

#include <gtest/gtest.h>
#include <limits>

#include "base/text.h"
#include "support/fake_roster.h"
#include "support/random_document.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Lines = std::vector<std::string>;
using Pixels = std::vector<uint32>;

constexpr int32 kHuge = std::numeric_limits<int32>::max();
constexpr const char* kTilesOutOfMemory = "WARNING [] Out of memory. | OK";
constexpr const char* kIllegalGrid =
    "WARNING [] This frame can't be inserted because the number of rows or columns is illegal. | "
    "OK";
constexpr color_space kSheetSpaces[] = {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG};

// A picture whose pixels are numbered from 0 in reading order.
std::shared_ptr<BBitmap> NumberedPicture(int32 width, int32 height, color_space space = B_RGB32) {
    Pixels pixels(static_cast<size_t>(width * height));
    for (size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = static_cast<uint32>(i);
    return PictureOf(width, height, pixels, space);
}

struct TilesFixture : DocumentFixture {
    TemporaryFolder folder;
    FakeRoster roster;
    AlertRecorder alerts;

    void Insert(const std::shared_ptr<BBitmap>& picture, const TileGrid& grid) {
        WriteSheet(*picture);
        InsertSheet(grid);
    }
    void WriteSheet(const BBitmap& picture) const {
        WriteBytes(folder.File("sheet.raw"), RawPicture(picture));
    }
    void InsertSheet(const TileGrid& grid) {
        const entry_ref ref(folder.File("sheet.raw"));
        InsertTiles(document, &ref, grid, roster);
    }
    void AppendOld(int32 count) {
        for (int32 i = 0; i < count; ++i)
            AppendFrame(document, PictureOf(1, 1, {0}), "old");
        port->TakeTranscript();
    }

    Lines Names() const {
        Lines names;
        for (const FramePointer& frame : document.Current()->frames)
            names.push_back(frame->name);
        return names;
    }
    // The first pixel of each frame.
    Pixels Corners() const {
        Pixels corners;
        for (const FramePointer& frame : document.Current()->frames) {
            corners.push_back(PixelsOf(*frame->bitmap).front());
        }
        return corners;
    }
};

// The pixel at (x, y), byte by byte.
std::vector<uint8> PixelBytes(const BBitmap& bitmap, int32 x, int32 y) {
    const uint8* pixel = bitmap.Row(y) + static_cast<size_t>(x) * 4;
    return {pixel, pixel + 4};
}

TEST(InsertTiles, CutsRowByRow) {
    TilesFixture fixture;

    fixture.Insert(NumberedPicture(3, 2), {2, 3, false});

    EXPECT_EQ(fixture.Names(), (Lines{"tiled0000", "tiled0001", "tiled0002", "tiled0003",
                                      "tiled0004", "tiled0005"}));
    EXPECT_EQ(fixture.Corners(), (Pixels{0, 1, 2, 3, 4, 5}));
}

TEST(InsertTiles, CutsColumnByColumn) {
    TilesFixture fixture;

    fixture.Insert(NumberedPicture(3, 2), {2, 3, true});

    EXPECT_EQ(fixture.Names(), (Lines{"tiled0000", "tiled0001", "tiled0002", "tiled0003",
                                      "tiled0004", "tiled0005"}));
    EXPECT_EQ(fixture.Corners(), (Pixels{0, 3, 1, 4, 2, 5}));
}

TEST(InsertTiles, LeavesOutThePixelsThatMakeNoWholeTile) {
    TilesFixture fixture;

    fixture.Insert(NumberedPicture(100, 50), {3, 4, false});

    ASSERT_EQ(fixture.document.FrameCount(), 12);
    for (const FramePointer& frame : fixture.document.Current()->frames) {
        EXPECT_EQ(frame->width, 25);
        EXPECT_EQ(frame->height, 16);
        EXPECT_EQ(frame->bitmap->Width(), 25);
        EXPECT_EQ(frame->bitmap->Height(), 16);
    }
    EXPECT_EQ(fixture.Corners().back(), 32u * 100 + 75);
}

TEST(InsertTiles, PostsItsProgressAndEachInsertion) {
    TilesFixture fixture;

    fixture.Insert(NumberedPicture(2, 1), {1, 2, false});

    EXPECT_EQ(fixture.port->Transcript(),
              "svup(Status: loading tile 1 of 2...) tvff auns "
              "svup(Status: loading tile 2 of 2...) auns");
    EXPECT_TRUE(fixture.document.Modified());
    EXPECT_EQ(fixture.alerts.Lines(), Lines{});
}

TEST(InsertTiles, InsertsBehindTheCurrentFrame) {
    TilesFixture fixture;
    fixture.AppendOld(4);
    fixture.document.Select(2);

    fixture.Insert(NumberedPicture(2, 1), {1, 2, false});

    EXPECT_EQ(fixture.Names(), (Lines{"old", "old", "old", "tiled0000", "tiled0001", "old"}));
    EXPECT_EQ(fixture.document.Selected(), 2);
}

TEST(InsertTiles, NumbersTheTilesOfEachPictureFromZero) {
    TilesFixture fixture;

    fixture.Insert(NumberedPicture(2, 1), {1, 2, false});
    fixture.Insert(NumberedPicture(1, 1), {1, 1, false});

    EXPECT_EQ(fixture.Names(), (Lines{"tiled0000", "tiled0000", "tiled0001"}));
}

TEST(InsertTiles, GivesTheAnimationTheTilesSizeWhereTheFirstTileIsItsFirstFrame) {
    TilesFixture fixture;

    fixture.Insert(NumberedPicture(9, 4), {2, 3, false});
    EXPECT_EQ(fixture.document.Current()->width, 3);
    EXPECT_EQ(fixture.document.Current()->height, 2);
    fixture.Insert(NumberedPicture(9, 4), {1, 1, false});

    EXPECT_EQ(fixture.document.Current()->width, 3);
    EXPECT_EQ(fixture.document.Current()->height, 2);
}

TEST(InsertTiles, KeepsTheAnimationsSizeWhereTheSettingsSaySo) {
    TilesFixture fixture;
    fixture.prefs.global_setdimensions = false;

    fixture.Insert(NumberedPicture(9, 4), {2, 3, false});

    EXPECT_EQ(fixture.document.Current()->width, 320);
    EXPECT_EQ(fixture.document.Current()->height, 240);
}

TEST(InsertTiles, GivesEachTileThePaletteOfItsColours) {
    TilesFixture fixture;

    fixture.Insert(PictureOf(2, 2, {0xFF112233, 0xFF445566, 0xFF112233, 0xFF778899}), {1, 2});

    EXPECT_EQ(fixture.document.FrameAt(0)->palette->unique_colors, 1);
    EXPECT_EQ(fixture.document.FrameAt(1)->palette->unique_colors, 2);
    EXPECT_FALSE(fixture.document.FrameAt(1)->local_palette);
}

TEST(InsertTiles, RefusesGridsWithoutRowsOrColumns) {
    for (const TileGrid& grid :
         {TileGrid{0, 2}, TileGrid{2, 0}, TileGrid{-1, 2}, TileGrid{2, -1}}) {
        TilesFixture fixture;
        fixture.Insert(NumberedPicture(4, 4), grid);
        EXPECT_EQ(fixture.alerts.Lines(), Lines{kIllegalGrid});
        EXPECT_EQ(fixture.document.FrameCount(), 0);
        EXPECT_FALSE(fixture.document.Modified());
        EXPECT_EQ(fixture.port->Transcript(), "");
    }
}

TEST(InsertTiles, RefusesMoreRowsOrColumnsThanPixels) {
    for (const TileGrid& grid :
         {TileGrid{5, 1}, TileGrid{1, 4}, TileGrid{kHuge, kHuge}, TileGrid{kHuge, 1}}) {
        TilesFixture fixture;
        fixture.Insert(NumberedPicture(3, 4), grid);
        EXPECT_EQ(fixture.alerts.Lines(), Lines{kIllegalGrid});
        EXPECT_EQ(fixture.document.FrameCount(), 0);
        EXPECT_FALSE(fixture.document.Modified());
    }
}

TEST(InsertTiles, CutsDownToSinglePixels) {
    TilesFixture fixture;

    fixture.Insert(NumberedPicture(3, 4), {4, 3, false});

    EXPECT_EQ(fixture.Corners(), (Pixels{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST(InsertTiles, SaysThatTheGridIsIllegalEvenWithoutAFile) {
    TilesFixture fixture;

    InsertTiles(fixture.document, nullptr, {0, 0}, fixture.roster);

    EXPECT_EQ(fixture.alerts.Lines(), Lines{kIllegalGrid});
}

TEST(InsertTiles, DoesNothingWithoutAFile) {
    TilesFixture fixture;

    InsertTiles(fixture.document, nullptr, {1, 1}, fixture.roster);

    EXPECT_EQ(fixture.alerts.Lines(), Lines{});
    EXPECT_FALSE(fixture.document.Modified());
    EXPECT_EQ(fixture.port->Transcript(), "");
}

TEST(InsertTiles, NamesAFileThatNoTranslatorReads) {
    TilesFixture fixture;
    WriteBytes(fixture.folder.File("notes.txt"), {'n', 'o'});
    for (const std::string name : {"notes.txt", "missing.raw"}) {
        const entry_ref ref(fixture.folder.File(name));
        InsertTiles(fixture.document, &ref, {1, 1}, fixture.roster);
    }

    EXPECT_EQ(fixture.alerts.Lines(),
              (Lines{"WARNING [] This file can't be inserted because this file type is "
                     "unsupported: notes.txt | OK",
                     "WARNING [] This file can't be inserted because this file type is "
                     "unsupported: missing.raw | OK"}));
    EXPECT_FALSE(fixture.document.Modified());
}

TEST(InsertTiles, RefusesPicturesThatAreNot32Bit) {
    for (const color_space space : {B_CMAP8, B_GRAY8, B_RGB16, B_RGB24, B_GRAY1}) {
        TilesFixture fixture;
        fixture.Insert(std::make_shared<BBitmap>(BRect::OfSize(4, 4), space), {1, 1});
        EXPECT_EQ(fixture.alerts.Lines(),
                  Lines{"WARNING [] This file can't be inserted because the color space is "
                        "unsupported. | OK"});
        EXPECT_EQ(fixture.document.FrameCount(), 0);
        EXPECT_FALSE(fixture.document.Modified());
    }
}

TEST(InsertTiles, AgreesWithAPlainCutInEveryColourSpace) {
    SeededChoices choices(1);
    for (int round = 0; round < 24; ++round) {
        const int32 width = choices.Between(1, 30);
        const int32 height = choices.Between(1, 30);
        const color_space space = kSheetSpaces[round % 4];
        TileGrid grid;
        grid.rows = choices.Between(1, std::min(5, height));
        grid.columns = choices.Between(1, std::min(5, width));
        grid.column_by_column = choices.OneIn(2);
        const auto picture = NumberedPicture(width, height, space);
        TilesFixture fixture;

        fixture.Insert(picture, grid);

        const int32 tile_width = width / grid.columns;
        const int32 tile_height = height / grid.rows;
        ASSERT_EQ(fixture.document.FrameCount(), grid.rows * grid.columns);
        int32 k = 0;
        const int32 outer_count = grid.column_by_column ? grid.columns : grid.rows;
        const int32 inner_count = grid.column_by_column ? grid.rows : grid.columns;
        for (int32 outer = 0; outer < outer_count; ++outer) {
            for (int32 inner = 0; inner < inner_count; ++inner) {
                const int32 left = (grid.column_by_column ? outer : inner) * tile_width;
                const int32 top = (grid.column_by_column ? inner : outer) * tile_height;
                const auto tile = fixture.document.FrameAt(k++)->bitmap->ToBitmap();
                ASSERT_EQ(tile->ColorSpace(), space);
                ASSERT_EQ(tile->Width(), tile_width);
                ASSERT_EQ(tile->Height(), tile_height);
                for (int32 y = 0; y < tile_height; ++y) {
                    for (int32 x = 0; x < tile_width; ++x) {
                        ASSERT_EQ(PixelBytes(*tile, x, y), PixelBytes(*picture, left + x, top + y));
                    }
                }
            }
        }
    }
}

TEST(InsertTiles, StopsWithOutOfMemoryAndKeepsTheTilesInsertedSoFar) {
    int32 stopped = 0;
    for (int64 failing = 1;; ++failing) {
        TilesFixture fixture;
        fixture.WriteSheet(*NumberedPicture(3, 1));
        int64 calls = 0;
        {
            const AllocationFault fault(failing);
            fixture.InsertSheet({1, 3});
            calls = fault.Calls();
        }
        const int32 inserted = fixture.document.FrameCount();
        ASSERT_EQ(fixture.document.Modified(), inserted == 3);
        if (calls < failing) break;
        const Lines lines = fixture.alerts.Lines();
        ASSERT_FALSE(lines.empty());
        // All allocations from the failing one on fail; the first are those of reading
        // the picture.
        if (failing <= 2) continue;
        for (const std::string& line : lines)
            ASSERT_EQ(line, kTilesOutOfMemory);
        if (inserted < 3) ++stopped;
    }
    // Palette and pixels of three tiles; too little memory to count colours is no reason to stop.
    EXPECT_GE(stopped, 6);
}

TEST(InsertTiles, StopsWhereTheDocumentsPixelMemoryEnds) {
    TilesFixture fixture;
    // The picture, and two of its four tiles.
    fixture.document.pixel_budget->SetLimit((4 + 2) * 4 + 3 * PixelBudget::kFrameCost);

    fixture.Insert(NumberedPicture(4, 1), {1, 4});

    EXPECT_EQ(fixture.Names(), (Lines{"tiled0000", "tiled0001"}));
    EXPECT_FALSE(fixture.document.Modified());
    EXPECT_EQ(fixture.alerts.Lines(), Lines{kTilesOutOfMemory});
    EXPECT_EQ(fixture.port->Transcript(),
              "svup(Status: loading tile 1 of 4...) tvff auns "
              "svup(Status: loading tile 2 of 4...) auns "
              "svup(Status: loading tile 3 of 4...)");
}

TEST(InsertTiles, CallsAPictureBeyondTheMemoryNoUnsupportedOne) {
    TilesFixture fixture;
    fixture.document.pixel_budget->SetLimit(PixelBudget::kFrameCost);

    fixture.Insert(NumberedPicture(4, 1), {1, 4});

    EXPECT_EQ(fixture.Names(), Lines{});
    EXPECT_EQ(fixture.alerts.Lines(), Lines{kTilesOutOfMemory});
}

TEST(InsertTiles, EndsBeforeTheNextTileWhenAskedToStop) {
    TilesFixture fixture;
    fixture.document.RequestStop();

    fixture.Insert(NumberedPicture(4, 1), {1, 4});

    EXPECT_EQ(fixture.document.FrameCount(), 0);
}

}  // namespace

}  // namespace kirto::test
