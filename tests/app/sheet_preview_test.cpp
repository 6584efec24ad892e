#include "app/sheet_preview.h"

#include <gtest/gtest.h>

#include "support/fake_roster.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr uint32 kSeen = 0xFF123456;

// A sheet without a description, transparent but for the first so many pixels.
PreviewedSheet SheetOf(int32 width, int32 height, size_t seen) {
    std::vector<uint32> pixels(static_cast<size_t>(width) * static_cast<size_t>(height), 0);
    std::fill_n(pixels.begin(), seen, kSeen);
    return {PictureOf(width, height, pixels, B_RGBA32), {}};
}

TileGrid Sized(int32 width, int32 height, int32 margin, int32 spacing) {
    TileGrid grid;
    grid.tile_width = width;
    grid.tile_height = height;
    grid.margin = margin;
    grid.spacing = spacing;
    return grid;
}

struct PreviewFiles : TemporaryFolder {
    std::optional<PreviewedSheet> Read(const std::string& name) {
        return ReadSheetToShow(
            entry_ref(File(name)), roster, [] { return false; }, &text);
    }
    void WriteText(const std::string& name, const std::string& content) const {
        WriteBytes(File(name), {content.begin(), content.end()});
    }

    FakeRoster roster;
    std::string text = "before";
};

}  // namespace

TEST(SheetPreview, TellsWhereTilesLie) {
    const SheetCutting cutting = CuttingOf(SheetOf(9, 5, 0), Sized(3, 2, 1, 2));

    EXPECT_EQ(cutting.text, "9 × 5 pixels: 1 row and 2 columns of 3 × 2 pixels.");
    ASSERT_EQ(cutting.tiles.size(), 2u);
    EXPECT_EQ(cutting.tiles[1].place.left, 6);
    EXPECT_EQ(cutting.tiles[1].place.top, 1);
    EXPECT_EQ(cutting.tiles[1].place.width, 3);
    EXPECT_EQ(cutting.tiles[1].place.height, 2);
    EXPECT_FALSE(cutting.tiles[1].skipped);
}

TEST(SheetPreview, TellsWhichTilesAreSkipped) {
    TileGrid grid;
    grid.rows = 1;
    grid.columns = 3;
    grid.skip_empty = true;

    const SheetCutting cutting = CuttingOf(SheetOf(3, 1, 1), grid);

    EXPECT_EQ(cutting.text,
              "3 × 1 pixels: 1 row and 3 columns of 1 × 1 pixels, 1 frame without the empty ones.");
    ASSERT_EQ(cutting.tiles.size(), 3u);
    EXPECT_FALSE(cutting.tiles[0].skipped);
    EXPECT_TRUE(cutting.tiles[1].skipped);
    EXPECT_TRUE(cutting.tiles[2].skipped);
}

TEST(SheetPreview, TellsOfGridsThatCanNotBe) {
    EXPECT_EQ(CuttingOf(SheetOf(3, 1, 0), TileGrid()).text,
              "3 × 1 pixels: rows or columns are missing.");
    const SheetCutting cutting = CuttingOf(SheetOf(3, 1, 0), Sized(4, 1, 0, 0));
    EXPECT_EQ(cutting.text, "3 × 1 pixels: no tile has room.");
    EXPECT_TRUE(cutting.tiles.empty());
}

TEST(SheetPreview, ShowsNoTilesWhereThereAreTooMany) {
    const PreviewedSheet sheet = SheetOf(256, 128, 0);

    EXPECT_EQ(CuttingOf(sheet, Sized(1, 2, 0, 0)).tiles.size(), size_t{1} << 14);
    EXPECT_TRUE(CuttingOf(sheet, Sized(1, 1, 0, 0)).tiles.empty());
    EXPECT_EQ(CuttingOf(sheet, Sized(1, 1, 0, 0)).text,
              "256 × 128 pixels: 128 rows and 256 columns of 1 × 1 pixels.");
}

TEST(SheetPreview, ReadsThePictureThatATextIsAbout) {
    PreviewFiles files;
    WriteBytes(files.File("walk.png"), RawPicture(*PictureOf(4, 1, {1, 2, 3, 4})));
    files.WriteText("walk.json",
                    R"({"frames": [{"frame": {"x": 1, "y": 0, "w": 2, "h": 1}}], "meta": {}})");
    files.WriteText("wide.json", R"({"frames": [{"frame": {"x": 3, "y": 0, "w": 2, "h": 1}}],
                                     "meta": {"image": "walk.png"}})");

    const auto sheet = files.Read("walk.json");
    const auto wide = files.Read("wide.json");

    ASSERT_TRUE(sheet && wide);
    EXPECT_EQ(sheet->picture->Width(), 4);
    const SheetCutting cutting = CuttingOf(*sheet, TileGrid());
    EXPECT_EQ(cutting.text, "4 × 1 pixels: 1 frame as the text says.");
    ASSERT_EQ(cutting.tiles.size(), 1u);
    EXPECT_EQ(cutting.tiles[0].place.left, 1);
    EXPECT_EQ(CuttingOf(*wide, TileGrid()).text,
              "4 × 1 pixels: a frame of the text is not on the picture.");
}

TEST(SheetPreview, ReadsNothingThatCanNotBeInserted) {
    PreviewFiles files;
    files.WriteText("none.json", "{}");
    files.WriteText("none.raw", "none");

    for (const char* name : {"none.json", "none.raw", "missing.raw", ""}) {
        EXPECT_FALSE(files.Read(name)) << name;
        EXPECT_EQ(files.text, "") << name;
    }
    files.roster.read_status = B_NO_MEMORY;
    EXPECT_FALSE(files.Read("none.raw"));
    EXPECT_EQ(files.text, "This image is too large to be shown here.");
}

}  // namespace kirto::test
