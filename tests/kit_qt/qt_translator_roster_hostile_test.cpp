// Files that are damaged, or made to do harm.
#include <algorithm>
#include <random>

#include "kit_qt/roster_fixture.h"

namespace kirto::test {

TEST_F(QtTranslatorRosterTest, RefusesAHugePictureByTheSizeInItsHeader) {
    const auto budget = std::make_shared<PixelBudget>(uint64{1} << 30);

    EXPECT_EQ(Read(PngHeader(60000, 60000), budget).status, B_NO_MEMORY);
    EXPECT_EQ(Read(PngHeader(60000, 60000)).status, B_NO_MEMORY);
    EXPECT_EQ(Read(BytesOf("P6\n30000 30000\n255\n"), budget).status, B_NO_MEMORY);
    EXPECT_EQ(budget->Used(), 0U);
}

TEST_F(QtTranslatorRosterTest, AllowsPicturesOverQtsOwnCeiling) {
    QImage image(6000, 6000, QImage::Format_Mono);
    image.fill(0);

    const Reading reading = Read(FileOf(image, "png"));

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.bitmap->Width(), 6000);
}

TEST_F(QtTranslatorRosterTest, ReadsExactlyWhatTheBudgetAllows) {
    constexpr uint64 kNeeded = 400 + PixelBudget::kFrameCost;
    const auto picture = PictureOf(10, 10, Pixels(100, 0xFF336699));
    for (const char* extension : {"png", "jpg", "webp", "tiff", "bmp", "tga", "ppm", "ico"}) {
        if (!Writes(extension)) continue;
        const Bytes file = Write(extension, *picture);
        const auto enough = std::make_shared<PixelBudget>(kNeeded);
        const auto too_small = std::make_shared<PixelBudget>(kNeeded - 1);
        const Reading reading = Read(file, enough);
        EXPECT_EQ(reading.status, B_OK) << extension;
        EXPECT_EQ(enough->Used(), kNeeded) << extension;
        EXPECT_EQ(Read(file, enough).status, B_NO_MEMORY) << extension;
        EXPECT_EQ(Read(file, too_small).status, B_NO_MEMORY) << extension;
        EXPECT_EQ(too_small->Used(), 0U) << extension;
    }
}

TEST_F(QtTranslatorRosterTest, RefusesADrawingThatAsksForAHugePicture) {
    if (!Reads("svg")) GTEST_SKIP() << "no SVG plugin";
    const auto budget = std::make_shared<PixelBudget>(uint64{1} << 20);

    const Reading reading = Read(BytesOf("<svg xmlns='http://www.w3.org/2000/svg' width='30000' "
                                         "height='30000'><rect width='9' height='9'/></svg>"),
                                 budget);

    EXPECT_NE(reading.status, B_OK);
}

TEST_F(QtTranslatorRosterTest, SurvivesDrawingsOfDeeplyNestedGroups) {
    if (!Reads("svg")) GTEST_SKIP() << "no SVG plugin";
    std::string text = "<svg xmlns='http://www.w3.org/2000/svg' width='3' height='3'>";
    for (int i = 0; i < 140000; ++i)
        text += "<g>";
    text += "<rect width='3' height='3'/>";
    for (int i = 0; i < 140000; ++i)
        text += "</g>";

    Read(BytesOf(text + "</svg>"));
}

TEST_F(QtTranslatorRosterTest, RefusesDrawingsOfMoreThanAMegabyte) {
    if (!Reads("svg")) GTEST_SKIP() << "no SVG plugin";
    std::string text = "<svg xmlns='http://www.w3.org/2000/svg' width='3' height='3'>";
    const std::string space(1 << 20, ' ');

    EXPECT_EQ(Read(BytesOf(text + "</svg>")).status, B_OK);
    EXPECT_EQ(Read(BytesOf(text + space + "</svg>")).status, B_NO_TRANSLATOR);
}

TEST_F(QtTranslatorRosterTest, HoldsAPictureInMemoryOnceWhereItsPixelsAreAsInTheFile) {
    QImage image(4200, 4200, QImage::Format_RGB32);
    image.fill(Qt::red);
    constexpr uint64 kBesidePixels = 4096;
    const auto exact = std::make_shared<PixelBudget>(uint64{4200} * 4200 * 4 + kBesidePixels);
    for (const char* format : {"png", "jpeg", "bmp"}) {
        EXPECT_EQ(Read(FileOf(image, format), exact).status, B_OK) << format;
    }
    EXPECT_EQ(exact->Used(), 0U);
}

TEST_F(QtTranslatorRosterTest, RefusesPicturesThatDecodingHoldsInMemoryTooOftenForTheCeiling) {
    QImage image(3000, 3000, QImage::Format_RGBA64);
    image.fill(Qt::red);
    const Bytes file = FileOf(image, "png");
    const uint64 bytes = uint64{3000} * 3000 * 4;

    EXPECT_EQ(Read(file, std::make_shared<PixelBudget>(bytes)).status, B_NO_MEMORY);
    EXPECT_EQ(Read(file, std::make_shared<PixelBudget>(bytes * 3)).status, B_OK);
}

TEST_F(QtTranslatorRosterTest, RefusesAnimationsOfMoreThanAMegabyte) {
    Bytes mng = {0x8A, 'M', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AppendChunk(&mng, "MHDR", Bytes(28, 1));
    mng.resize(2 << 20);

    EXPECT_EQ(Read(mng).status, B_NO_TRANSLATOR);
}

TEST_F(QtTranslatorRosterTest, SurvivesFilesThatAreCutShort) {
    const auto picture = Photograph(20, 20);
    for (const ImageFormat& format : KnownImageFormats()) {
        const std::string& extension = format.format.extensions.front();
        if (!Writes(extension)) continue;
        const Bytes whole = Write(extension, *picture);
        const size_t step = std::max<size_t>(1, whole.size() / 60);
        for (size_t size = 0; size < whole.size(); size += step) {
            const Reading reading = Read({whole.begin(), whole.begin() + static_cast<long>(size)});
            EXPECT_FALSE(size < 8 && reading.status == B_OK) << extension << ' ' << size;
        }
    }
}

TEST_F(QtTranslatorRosterTest, SurvivesDamagedFiles) {
    const auto picture = Photograph(20, 20);
    std::minstd_rand random(7);
    const auto budget = std::make_shared<PixelBudget>(uint64{1} << 24);
    for (const ImageFormat& format : KnownImageFormats()) {
        const std::string& extension = format.format.extensions.front();
        if (!Writes(extension)) continue;
        const Bytes whole = Write(extension, *picture);
        for (int i = 0; i < 60; ++i) {
            Bytes damaged = whole;
            for (int j = 0; j < 4; ++j) {
                const size_t reach = j < 2 ? std::min<size_t>(64, damaged.size()) : damaged.size();
                damaged[random() % reach] = static_cast<uint8>(random());
            }
            SCOPED_TRACE(extension);
            Read(damaged, budget);
        }
    }
    EXPECT_EQ(budget->Used(), 0U);
}

TEST_F(QtTranslatorRosterTest, RefusesWhatIsNoImage) {
    std::minstd_rand random(3);
    Bytes noise(5000);
    for (int i = 0; i < 100; ++i) {
        std::generate(noise.begin(), noise.end(), [&] { return static_cast<uint8>(random()); });
        // No Targa file by its first bytes.
        noise[1] = 7;
        EXPECT_EQ(Read(noise).status, B_NO_TRANSLATOR);
    }
    EXPECT_EQ(Read({}).status, B_NO_TRANSLATOR);
    EXPECT_EQ(Read(BytesOf("Hello, this is a text.\n")).status, B_NO_TRANSLATOR);
    EXPECT_EQ(Read(Bytes(100000)).status, B_NO_TRANSLATOR);
}

TEST_F(QtTranslatorRosterTest, RefusesTargaFilesThatAreNotWhole) {
    Bytes targa = Write("tga", *Photograph(20, 20), FlagSetting("rle", false));
    for (const size_t size : {17U, 18U, 100U, 1217U}) {
        EXPECT_EQ(Read({targa.begin(), targa.begin() + static_cast<long>(size)}).status,
                  B_NO_TRANSLATOR);
    }
    EXPECT_EQ(Read(targa).status, B_OK);
    targa[13] = 0xFF;
    EXPECT_EQ(Read(targa).status, B_NO_TRANSLATOR);
}

}  // namespace kirto::test
