#include "ui/export/export_presets.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

struct ExportPresetsTest : testing::Test {
    const TemporaryFolder folder;
    const QString path = QString::fromStdString(folder.File("exports.ini"));

    static ExportWish SmallWebp() {
        ExportWish wish;
        wish.settings.format = ExportFormat::kWebp;
        wish.settings.quality = 30;
        wish.settings.scale = 50;
        wish.kilobytes = 700;
        return wish;
    }
};

}  // namespace

TEST_F(ExportPresetsTest, BringsThreeOfItsOwn) {
    const ExportPresets presets(path);
    EXPECT_EQ(presets.Names(), (QStringList{"Chat 8 MB", "E-mail 1 MB", "Documentation"}));
    EXPECT_EQ(presets.Find("Chat 8 MB")->kilobytes, 8000);
    EXPECT_EQ(presets.Find("E-mail 1 MB")->settings.colors, 128);
    EXPECT_EQ(presets.Find("Documentation")->settings.format, ExportFormat::kWebp);
    EXPECT_FALSE(presets.Find("Documentation")->settings.quality);
}

TEST_F(ExportPresetsTest, KeepsThoseOfTheUser) {
    EXPECT_TRUE(ExportPresets(path).Store("mine \xC3\xA4", SmallWebp()));
    ExportPresets presets(path);
    EXPECT_EQ(presets.Find("mine \xC3\xA4"), SmallWebp());
    EXPECT_TRUE(presets.IsOwn("mine \xC3\xA4"));
    EXPECT_TRUE(presets.Remove("mine \xC3\xA4"));
    EXPECT_FALSE(presets.Find("mine \xC3\xA4"));
    EXPECT_EQ(presets.Names().size(), 3);
}

TEST_F(ExportPresetsTest, RefusesNamesThatItCantKeep) {
    ExportPresets presets(path);
    for (const char* name : {"", "a/b", "a\\b", "Chat 8 MB"})
        EXPECT_FALSE(presets.Store(name, SmallWebp())) << name;
    EXPECT_FALSE(presets.Remove("Chat 8 MB"));
    EXPECT_FALSE(presets.Remove("nobody's"));
}

TEST_F(ExportPresetsTest, RemembersTheLastOfEachFormat) {
    ExportWish gif;
    gif.settings.colors = 16;
    ExportPresets(path).StoreLast(SmallWebp());
    ExportPresets(path).StoreLast(gif);
    const ExportPresets presets(path);
    EXPECT_EQ(presets.Last().settings.colors, 16);
    EXPECT_EQ(presets.Last(ExportFormat::kWebp), SmallWebp());
    EXPECT_EQ(presets.Last(ExportFormat::kApng).settings.format, ExportFormat::kApng);
}

TEST_F(ExportPresetsTest, ReadsNothingFromOtherTexts) {
    for (const char* text : {"", "BMP", "GIF colors=1", "GIF fit=0", "GIF fit=x", "GIF other=1",
                             "colors=4", "GIF format=sheet", "Sheet image=a/b"})
        EXPECT_FALSE(ExportPresets::Parse(text)) << text;
    EXPECT_EQ(ExportPresets::Parse(ExportPresets::TextOf(SmallWebp())), SmallWebp());
}

TEST_F(ExportPresetsTest, ReadsTextsOfFewerChoicesThanThereAreNow) {
    const auto wish = ExportPresets::Parse(
        "GIF colors=64 loss=0 scale=100 every=1 table=each dither=ordered quality=80 matte=ffffff");
    ASSERT_TRUE(wish);
    EXPECT_EQ(wish->settings.dither, AdaptiveDither::kOrdered);
    EXPECT_EQ(wish->settings.strength, 100);
    EXPECT_EQ(wish->settings.areas, FrameAreas::kChanged);
}

TEST_F(ExportPresetsTest, KeepsTheChoicesOfSheets) {
    ExportWish sheet;
    sheet.settings.format = ExportFormat::kSheet;
    sheet.settings.columns = 4;
    sheet.settings.image = "webp";
    EXPECT_EQ(ExportPresets::Parse(ExportPresets::TextOf(sheet)), sheet);
}

}  // namespace kirto::test
