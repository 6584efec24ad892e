// Reading image files of many kinds.
#include <QColorSpace>

#include "kit_qt/roster_fixture.h"
#include "support/gif_builder.h"

namespace kirto::test {

namespace {

// A JPEG of 16 x 8 pixels, red at the left and blue at the right, that asks to be turned.
Bytes TurnedJpeg(uint8 orientation) {
    QImage image(16, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < 8; ++y) {
        for (int x = 8; x < 16; ++x)
            image.setPixel(x, y, qRgb(0, 0, 255));
    }
    Bytes jpeg = FileOf(image, "jpeg", 100);
    const Bytes tag = {
        0xFF, 0xE1, 0,   34,  // application data, its length
        'E',  'x',  'i', 'f', 0, 0, 'I', 'I', 42,          0, 8, 0,
        0,    0,                                                     // little-endian, table at 8
        1,    0,                                                     // one entry
        0x12, 0x01, 3,   0,   1, 0, 0,   0,   orientation, 0, 0, 0,  // the orientation, a short
        0,    0,    0,   0};                                         // no further table
    jpeg.insert(jpeg.begin() + 2, tag.begin(), tag.end());
    return jpeg;
}

bool IsRed(uint32 argb) {
    return (argb >> 16 & 255) > 200 && (argb & 255) < 60;
}

bool IsBlue(uint32 argb) {
    return (argb >> 16 & 255) < 60 && (argb & 255) > 200;
}

}  // namespace

TEST_F(QtTranslatorRosterTest, TurnsPicturesAsTheirFilesAsk) {
    const Reading plain = Read(TurnedJpeg(1));
    const Reading turned = Read(TurnedJpeg(6));
    const Reading mirrored = Read(TurnedJpeg(2));

    ASSERT_EQ(turned.status, B_OK);
    EXPECT_EQ(plain.bitmap->Width(), 16);
    EXPECT_EQ(turned.bitmap->Width(), 8);
    EXPECT_EQ(turned.bitmap->Height(), 16);
    EXPECT_EQ(turned.Space(), B_RGB32);
    EXPECT_TRUE(IsRed(plain.Argb().front()));
    EXPECT_TRUE(IsRed(turned.Argb().front()));
    EXPECT_TRUE(IsRed(turned.Argb()[7]));
    EXPECT_TRUE(IsBlue(turned.Argb().back()));
    EXPECT_TRUE(IsBlue(mirrored.Argb().front()));
}

TEST_F(QtTranslatorRosterTest, ReadsIndexedColoursWithTransparency) {
    QImage image(3, 1, QImage::Format_Indexed8);
    image.setColorTable({0x00112233, 0x80445566, 0xFF778899});
    for (int x = 0; x < 3; ++x)
        image.setPixel(x, 0, static_cast<uint>(x));

    const Reading reading = Read(FileOf(image, "png"));

    EXPECT_EQ(reading.Space(), B_RGBA32);
    EXPECT_EQ(reading.Argb(), (Pixels{0x00112233, 0x80445566, 0xFF778899}));
}

TEST_F(QtTranslatorRosterTest, ReadsIndexedColoursWithoutTransparency) {
    QImage image(2, 1, QImage::Format_Indexed8);
    image.setColorTable({0xFF112233, 0xFF445566});
    image.setPixel(0, 0, 0);
    image.setPixel(1, 0, 1);

    const Reading reading = Read(FileOf(image, "png"));

    EXPECT_EQ(reading.Space(), B_RGB32);
    EXPECT_EQ(reading.Argb(), (Pixels{0xFF112233, 0xFF445566}));
}

TEST_F(QtTranslatorRosterTest, ReadsSixteenBitsAChannelByTheirHighOnes) {
    QImage image(2, 1, QImage::Format_RGBA64);
    image.setPixelColor(0, 0, QColor::fromRgba64(0x0A0A, 0x1414, 0x1E1E, 0xFFFF));
    image.setPixelColor(1, 0, QColor::fromRgba64(0xFFFF, 0x0000, 0x8080, 0x8080));

    const Reading reading = Read(FileOf(image, "png"));

    EXPECT_EQ(reading.Space(), B_RGBA32);
    EXPECT_EQ(reading.Argb(), (Pixels{0xFF0A141E, 0x80FF0080}));
}

TEST_F(QtTranslatorRosterTest, ReadsSixteenBitsAChannelWithinABudgetOfEight) {
    QImage image(1000, 1000, QImage::Format_RGBA64);
    image.fill(Qt::red);

    const auto budget = std::make_shared<PixelBudget>(4000000 + PixelBudget::kFrameCost);
    const Reading reading = Read(FileOf(image, "png"), budget);

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.Argb().back(), 0xFFFF0000);
}

TEST_F(QtTranslatorRosterTest, ReadsGrey) {
    QImage image(3, 1, QImage::Format_Grayscale8);
    const uint8 levels[] = {0, 100, 255};
    std::copy(levels, levels + 3, image.scanLine(0));
    for (const char* format : {"png", "bmp", "jpeg"}) {
        const Reading reading = Read(FileOf(image, format, format[0] == 'j' ? 100 : -1));
        EXPECT_EQ(reading.Space(), B_RGB32) << format;
        EXPECT_EQ(reading.Argb().front(), 0xFF000000) << format;
        EXPECT_EQ(reading.Argb().back(), 0xFFFFFFFF) << format;
    }
}

TEST_F(QtTranslatorRosterTest, ReadsBlackAndWhite) {
    const Reading reading = Read(BytesOf("P1\n2 1\n0 1\n"));

    EXPECT_EQ(reading.Space(), B_RGB32);
    EXPECT_EQ(reading.Argb(), (Pixels{0xFFFFFFFF, 0xFF000000}));
}

TEST_F(QtTranslatorRosterTest, LeavesColoursAloneWhateverTheFilesProfile) {
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0xFF336699);
    for (const QColorSpace::NamedColorSpace space :
         {QColorSpace::SRgb, QColorSpace::SRgbLinear, QColorSpace::DisplayP3}) {
        image.setColorSpace(space);
        EXPECT_EQ(Read(FileOf(image, "png")).Argb(), Pixels{0xFF336699});
    }
}

TEST_F(QtTranslatorRosterTest, ReadsTheFirstPictureOfAnAnimation) {
    GifBuilder gif(2, 1, {0x000000, 0xFFFFFF, 0xFF0000, 0x0000FF});
    for (const uint8 index : {uint8{2}, uint8{3}}) {
        GifBuilder::Image image;
        image.width = 2;
        image.indices = {index, 1};
        image.min_code_size = 2;
        gif.Control(0, 10).Add(image);
    }

    const Reading reading = Read(gif.Trailer());

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.Argb(), (Pixels{0xFFFF0000, 0xFFFFFFFF}));
}

TEST_F(QtTranslatorRosterTest, DrawsADrawingInItsOwnSize) {
    if (!Reads("svg")) GTEST_SKIP() << "no SVG plugin";
    const Reading reading =
        Read(BytesOf("<svg xmlns='http://www.w3.org/2000/svg' width='7' height='5'>"
                     "<rect width='7' height='3' fill='#ff0000'/></svg>"));

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.bitmap->Width(), 7);
    EXPECT_EQ(reading.bitmap->Height(), 5);
    EXPECT_EQ(reading.Space(), B_RGBA32);
    EXPECT_EQ(reading.Argb().front(), 0xFFFF0000);
    EXPECT_EQ(reading.Argb().back(), 0x00000000U);
}

TEST_F(QtTranslatorRosterTest, ReadsTargaOfKindsThatQtDoesNot) {
    Bytes packed(18);
    packed[2] = 10;
    packed[12] = 3;
    packed[14] = 1;
    packed[16] = 24;
    packed.insert(packed.end(), {0x82, 1, 2, 3});

    const Reading reading = Read(packed);

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.Argb(), (Pixels{0xFF030201, 0xFF030201, 0xFF030201}));
}

TEST_F(QtTranslatorRosterTest, GoesByTheContentAndNotByTheName) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("picture.jpg"), Write("png", *PictureOf(1, 1, {0xFF336699})));

    const Reading reading = ReadFile(folder.File("picture.jpg"));

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.Argb(), Pixels{0xFF336699});
}

TEST_F(QtTranslatorRosterTest, ReadsAFileFromItsStartWhereverItStood) {
    const auto file = BFile::OnMemory(Write("png", *PictureOf(1, 1, {0xFF336699})));
    file->Seek(20, SEEK_FROM_START);
    std::shared_ptr<BBitmap> bitmap;

    EXPECT_EQ(roster_.Translate(*file, nullptr, &bitmap), B_OK);
}

TEST_F(QtTranslatorRosterTest, TellsWhyAFileCanNotBeOpened) {
    const TemporaryFolder folder;

    EXPECT_EQ(ReadFile(folder.File("missing.png")).status, B_ENTRY_NOT_FOUND);
    EXPECT_EQ(ReadFile(folder.Path()).status, B_NOT_ALLOWED);
}

}  // namespace kirto::test
