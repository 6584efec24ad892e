#include "formats/export/export_settings.h"

#include <gtest/gtest.h>

namespace kirto::test {

TEST(ExportSettings, ReadsEachChoice) {
    ExportSettings settings;
    for (const char* text : {"colors=64", "loss=40", "scale=50", "every=2", "table=one",
                             "dither=ordered", "quality=80", "matte=0080ff", "strength=30",
                             "areas=whole", "columns=8", "padding=2", "image=webp"})
        EXPECT_EQ(ReadExportChoice(text, &settings), "") << text;
    EXPECT_EQ(TextOf(settings),
              "colors=64 loss=40 scale=50 every=2 strength=30 columns=8 padding=2 table=one "
              "areas=whole dither=ordered "
              "quality=80 "
              "matte=0080ff image=webp");
}

TEST(ExportSettings, TheTextOfSettingsReadsAsTheSame) {
    ExportSettings settings;
    settings.colors = 2;
    settings.quality = 0;
    settings.dither = AdaptiveDither::kErrorDiffusion;
    ExportSettings read;
    std::string text = TextOf(settings);
    while (!text.empty()) {
        const size_t end = std::min(text.find(' '), text.size() - 1);
        const std::string choice = text.substr(0, text[end] == ' ' ? end : end + 1);
        EXPECT_EQ(ReadExportChoice(choice, &read), "");
        text.erase(0, end + 1);
    }
    EXPECT_TRUE(read == settings);
}

TEST(ExportSettings, SaysWhichValuesThereAre) {
    ExportSettings settings;
    for (const auto& [text, problem] : {
             std::pair("colors=1", "colors is to be 2 to 256."),
             std::pair("colors=257", "colors is to be 2 to 256."),
             std::pair("colors=many", "colors is to be 2 to 256."),
             std::pair("loss=-1", "loss is to be 0 to 200."),
             std::pair("scale=0", "scale is to be 1 to 400."),
             std::pair("every=101", "every is to be 1 to 100."),
             std::pair("strength=101", "strength is to be 0 to 100."),
             std::pair("table=two", "table is to be one or each."),
             std::pair("areas=all", "areas is to be changed or whole."),
             std::pair("dither=", "dither is to be none, diffusion or ordered."),
             std::pair("quality=101", "quality is to be 0 to 100, or lossless."),
             std::pair("columns=-1", "columns is to be 0 to 10000."),
             std::pair("padding=1001", "padding is to be 0 to 1000."),
             std::pair("format=gif", "format is to be sheet, images or file."),
             std::pair("image=a b", "image is to be the extension of an image file, such as png."),
             std::pair("image=", "image is to be the extension of an image file, such as png."),
             std::pair("matte=#123456", "matte is to be a color RRGGBB."),
         })
        EXPECT_EQ(ReadExportChoice(text, &settings), problem);
    EXPECT_TRUE(settings == ExportSettings());
}

TEST(ExportSettings, NamesTheChoicesWhereThereIsNoSuchOne) {
    ExportSettings settings;
    for (const char* text : {"", "colours=3", "colors", "=3"})
        EXPECT_EQ(
            ReadExportChoice(text, &settings),
            "The choices are NAME=VALUE; the names are colors, loss, scale, every, "
            "strength, columns, padding, table, areas, dither, quality, matte, image, format.");
}

TEST(ExportSettings, SheetsAndImagesAreChosenByNameAndLeftAgain) {
    ExportSettings settings;
    settings.format = ExportFormat::kWebp;
    EXPECT_EQ(ReadExportChoice("format=file", &settings), "");
    EXPECT_EQ(settings.format, ExportFormat::kWebp);
    EXPECT_EQ(ReadExportChoice("format=sheet", &settings), "");
    EXPECT_EQ(settings.format, ExportFormat::kSheet);
    EXPECT_EQ(ReadExportChoice("format=images", &settings), "");
    EXPECT_EQ(settings.format, ExportFormat::kImages);
    EXPECT_EQ(ReadExportChoice("format=file", &settings), "");
    EXPECT_FALSE(HasPictures(settings.format));
}

TEST(ExportSettings, TheFormatIsThatOfTheExtension) {
    EXPECT_EQ(ExportFormatOf("a.GIF"), ExportFormat::kGif);
    EXPECT_EQ(ExportFormatOf("folder.gif/a.webp"), ExportFormat::kWebp);
    EXPECT_EQ(ExportFormatOf("a.png"), ExportFormat::kApng);
    EXPECT_EQ(ExportFormatOf("a.apng"), ExportFormat::kApng);
    EXPECT_EQ(ExportFormatOf("a.mp4"), ExportFormat::kMp4);
    EXPECT_EQ(ExportFormatOf("a.webm"), ExportFormat::kWebm);
    EXPECT_EQ(ExportFormatOf("a.bmp"), std::nullopt);
    EXPECT_EQ(ExportFormatOf("gif"), std::nullopt);
}

TEST(ExportSettings, SizesAreBytesThousandsOrOfTwoToTheTenth) {
    EXPECT_EQ(ParseByteSize("500000"), 500000u);
    EXPECT_EQ(ParseByteSize("7B"), 7u);
    EXPECT_EQ(ParseByteSize("500KB"), 500000u);
    EXPECT_EQ(ParseByteSize("8MB"), 8000000u);
    EXPECT_EQ(ParseByteSize("2KiB"), 2048u);
    EXPECT_EQ(ParseByteSize("8MiB"), 8388608u);
    for (const char* text : {"", "KB", "0", "-1KB", "1.5MB", "5 KB", "20000000000000MB", "scale"})
        EXPECT_EQ(ParseByteSize(text), std::nullopt) << text;
}

}  // namespace kirto::test
