// Writing pictures, and reading back what was written.
#include "kit/qt/qt_translator_roster.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <algorithm>
#include <thread>

#include "kit_qt/roster_fixture.h"

namespace kirto::test {

namespace {

// Colours that premultiplying would destroy.
const Pixels kSeeThrough = {0x00123456, 0x01FF8040, 0x80C86432, 0xFE010203, 0xFF0A141E, 0x7FFFFFFF};
const Pixels kOpaque = {0xFF123456, 0xFFFF8040, 0xFFC86432, 0xFF010203, 0xFF0A141E, 0xFFFFFFFF};

}  // namespace

TEST_F(QtTranslatorRosterTest, ListsTranslatorsAscendingWithNamesAndFormats) {
    const std::vector<translator_id> ids = roster_.Translators();

    EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
    EXPECT_EQ(ids, roster_.Translators());
    for (const translator_id id : ids) {
        std::string name;
        EXPECT_TRUE(roster_.GetTranslatorInfo(id, &name));
        EXPECT_FALSE(name.empty());
        EXPECT_FALSE(roster_.InputFormats(id).empty() && roster_.OutputFormats(id).empty());
    }
    for (const char* extension : {"png", "jpg", "bmp", "tga"}) {
        EXPECT_TRUE(Reads(extension) && Writes(extension)) << extension;
    }
}

TEST_F(QtTranslatorRosterTest, TellsWhatATranslatorReadsAndWrites) {
    const translator_id png = Translator("png");

    ASSERT_EQ(roster_.InputFormats(png).size(), 1U);
    EXPECT_EQ(roster_.InputFormats(png)[0].mime, "image/png");
    ASSERT_EQ(roster_.OutputFormats(png).size(), 2U);
    EXPECT_EQ(roster_.OutputFormats(png)[0].type, B_TRANSLATOR_BITMAP);
    EXPECT_EQ(roster_.OutputFormats(png)[1].type, FourCharCode("PNG "));
    EXPECT_TRUE(Reads("gif"));
    EXPECT_FALSE(Writes("gif"));
    EXPECT_EQ(roster_.OutputFormats(Translator("gif")).size(), 1U);
}

TEST_F(QtTranslatorRosterTest, GivesDefaultSettingsOfWhatItWrites) {
    int32 number = 0;
    bool flag = false;

    EXPECT_EQ(roster_.DefaultSettings(Translator("jpg")).FindInt32("quality", &number), B_OK);
    EXPECT_EQ(number, 90);
    EXPECT_EQ(roster_.DefaultSettings(Translator("png")).FindInt32("compression", &number), B_OK);
    EXPECT_EQ(number, 6);
    EXPECT_EQ(roster_.DefaultSettings(Translator("tga")).FindBool("rle", &flag), B_OK);
    EXPECT_TRUE(flag);
    EXPECT_EQ(roster_.DefaultSettings(Translator("gif")).FindInt32("quality", &number),
              B_NAME_NOT_FOUND);
}

TEST_F(QtTranslatorRosterTest, KnowsNothingOfOtherIds) {
    std::string name = "before";
    const auto picture = PictureOf(1, 1, {0xFF000000});
    const auto file = BFile::OnMemory();
    for (const translator_id id : {0U, 24U, 999U, 0xFFFFFFFFU}) {
        EXPECT_FALSE(roster_.GetTranslatorInfo(id, &name));
        EXPECT_TRUE(roster_.InputFormats(id).empty());
        EXPECT_TRUE(roster_.OutputFormats(id).empty());
        EXPECT_EQ(roster_.Translate(*picture, id, FourCharCode("PNG "), {}, *file),
                  B_NO_TRANSLATOR);
    }
    EXPECT_EQ(name, "before");
    EXPECT_EQ(file->Size(), 0);
}

TEST_F(QtTranslatorRosterTest, WritesOnlyTheFormatsOfATranslator) {
    const auto picture = PictureOf(1, 1, {0xFF000000});
    const auto file = BFile::OnMemory();
    for (const uint32 type : {0U, B_TRANSLATOR_BITMAP, FourCharCode("JPEG")}) {
        EXPECT_EQ(roster_.Translate(*picture, Translator("png"), type, {}, *file), B_NO_TRANSLATOR);
    }
    EXPECT_EQ(roster_.Translate(*picture, Translator("gif"), FourCharCode("GIF "), {}, *file),
              B_NO_TRANSLATOR);
}

TEST_F(QtTranslatorRosterTest, RefusesPicturesThatAreNot32BitOrHaveNoPixels) {
    const auto file = BFile::OnMemory();
    for (const color_space space : {B_CMAP8, B_RGB24, B_RGB16, B_GRAY8}) {
        const BBitmap picture(BRect::OfSize(2, 2), space);
        EXPECT_EQ(WriteTo(*file, "png", picture), B_BAD_TYPE);
        EXPECT_EQ(WriteTo(*file, "tga", picture), B_BAD_TYPE);
    }
    EXPECT_EQ(WriteTo(*file, "png", BBitmap(BRect::OfSize(0, 0), B_RGB32)), B_BAD_TYPE);
}

TEST_F(QtTranslatorRosterTest, KeepsEveryPixelAndItsAlpha) {
    const auto picture = PictureOf(3, 2, kSeeThrough, B_RGBA32);
    for (const char* extension : {"png", "tga", "tiff"}) {
        if (!Writes(extension)) continue;
        const Reading copy = Copy(extension, *picture);
        ASSERT_EQ(copy.status, B_OK) << extension;
        EXPECT_EQ(copy.Space(), B_RGBA32) << extension;
        EXPECT_EQ(copy.Argb(), kSeeThrough) << extension;
    }
}

TEST_F(QtTranslatorRosterTest, ReadsATiffOfNoStraightAlphaAllTheSame) {
    if (!Writes("tiff")) GTEST_SKIP() << "no TIFF plugin";

    const Reading copy = Copy("tiff", *PictureOf(2, 1, {0xFF102030, 0xFF405060}));

    ASSERT_EQ(copy.status, B_OK);
    EXPECT_EQ(copy.Space(), B_RGB32);
    EXPECT_EQ(copy.Argb(), (std::vector<uint32>{0xFF102030, 0xFF405060}));
}

TEST_F(QtTranslatorRosterTest, RefusesATiffOfStraightAlphaThatIsCutShort) {
    if (!Writes("tiff")) GTEST_SKIP() << "no TIFF plugin";
    const Bytes whole = Write("tiff", *PictureOf(3, 2, kSeeThrough, B_RGBA32));

    for (size_t size = 0; size < whole.size(); ++size) {
        const Reading reading = Read({whole.begin(), whole.begin() + static_cast<int64>(size)});
        EXPECT_TRUE(reading.status != B_OK || reading.Argb() == kSeeThrough) << size;
    }
}

TEST_F(QtTranslatorRosterTest, RefusesATiffOfStraightAlphaPastTheBudget) {
    if (!Writes("tiff")) GTEST_SKIP() << "no TIFF plugin";
    const auto file = BFile::OnMemory(Write("tiff", *PictureOf(3, 2, kSeeThrough, B_RGBA32)));
    std::shared_ptr<BBitmap> result;

    EXPECT_EQ(roster_.Translate(*file, std::make_shared<PixelBudget>(3 * 2 * 4 - 1), &result),
              B_NO_MEMORY);
    EXPECT_EQ(result, nullptr);
}

TEST_F(QtTranslatorRosterTest, KeepsEveryOpaquePixelAndWritesNoAlphaForNothing) {
    for (const color_space space : {B_RGB32, B_RGBA32}) {
        const auto picture = PictureOf(3, 2, kOpaque, space);
        for (const char* extension : {"png", "tiff", "bmp", "tga", "ppm"}) {
            if (!Writes(extension)) continue;
            const Reading copy = Copy(extension, *picture);
            ASSERT_EQ(copy.status, B_OK) << extension;
            EXPECT_EQ(copy.Space(), B_RGB32) << extension;
            EXPECT_EQ(copy.Argb(), kOpaque) << extension;
        }
    }
}

TEST_F(QtTranslatorRosterTest, KeepsTheColoursOfABmpWithoutItsAlpha) {
    Pixels opaque = kSeeThrough;
    for (uint32& pixel : opaque)
        pixel |= 0xFF000000;

    const Reading copy = Copy("bmp", *PictureOf(3, 2, kSeeThrough, B_RGBA32));

    EXPECT_EQ(copy.Space(), B_RGB32);
    EXPECT_EQ(copy.Argb(), opaque);
}

TEST_F(QtTranslatorRosterTest, WritesTransparentPixelsOfAPictureWithoutAlphaChannel) {
    for (const char* extension : {"png", "tga"}) {
        const Reading copy = Copy(extension, *PictureOf(3, 2, kSeeThrough, B_RGB32));
        EXPECT_EQ(copy.Space(), B_RGBA32);
        EXPECT_EQ(copy.Argb(), kSeeThrough);
    }
}

TEST_F(QtTranslatorRosterTest, WritesPicturesInTheOtherByteOrder) {
    for (const color_space space : {B_RGB32_BIG, B_RGBA32_BIG}) {
        for (const char* extension : {"png", "tga"}) {
            EXPECT_EQ(Copy(extension, *PictureOf(3, 2, kSeeThrough, space)).Argb(), kSeeThrough);
            EXPECT_EQ(Copy(extension, *PictureOf(3, 2, kOpaque, space)).Argb(), kOpaque);
        }
    }
}

TEST_F(QtTranslatorRosterTest, WritesSmallerFilesOfLesserQuality) {
    const auto picture = Photograph(64, 64);
    for (const char* extension : {"jpg", "webp"}) {
        if (!Writes(extension)) continue;
        const auto size = [&](int32 quality) {
            BMessage settings = NumberSetting("quality", quality);
            settings.AddBool("lossless", false);
            return Write(extension, *picture, settings).size();
        };
        EXPECT_LT(size(10), size(60)) << extension;
        EXPECT_LT(size(60), size(95)) << extension;
        EXPECT_EQ(size(-5), size(0)) << extension;
        EXPECT_EQ(size(1000), size(100)) << extension;
    }
}

TEST_F(QtTranslatorRosterTest, WritesLosslessWebPAsItStandsUnlessToldOtherwise) {
    if (!Writes("webp")) GTEST_SKIP() << "no WebP plugin";
    const auto picture = Photograph(64, 64);
    BMessage lossy = NumberSetting("quality", 100);
    lossy.AddBool("lossless", false);

    EXPECT_EQ(Copy("webp", *picture).Argb(), PixelsOf(*picture));
    EXPECT_EQ(Copy("webp", *picture, FlagSetting("lossless", true)).Argb(), PixelsOf(*picture));
    EXPECT_NE(Copy("webp", *picture, lossy).Argb(), PixelsOf(*picture));
}

TEST_F(QtTranslatorRosterTest, KeepsAlphaInWebP) {
    if (!Writes("webp")) GTEST_SKIP() << "no WebP plugin";

    const Pixels copy = Copy("webp", *PictureOf(3, 2, kSeeThrough, B_RGBA32)).Argb();

    EXPECT_EQ(copy[0] >> 24, 0U);
    EXPECT_TRUE(std::equal(copy.begin() + 1, copy.end(), kSeeThrough.begin() + 1));
}

TEST_F(QtTranslatorRosterTest, CompressesPngMoreAtEachHigherLevelAndKeepsThePixels) {
    const auto picture = Photograph(200, 200);
    std::vector<size_t> sizes;
    for (int32 level = 0; level <= 9; ++level) {
        const Bytes file = Write("png", *picture, NumberSetting("compression", level));
        EXPECT_EQ(Read(file).Argb(), PixelsOf(*picture)) << level;
        sizes.push_back(file.size());
    }
    EXPECT_GT(sizes[0], size_t{200} * 200 * 3);
    EXPECT_LT(sizes[1], sizes[0]);
    EXPECT_LT(sizes[9], sizes[1]);
    EXPECT_EQ(Write("png", *picture).size(), sizes[6]);
    EXPECT_EQ(Write("png", *picture, NumberSetting("compression", 50)).size(), sizes[9]);
    EXPECT_EQ(Write("png", *picture, NumberSetting("compression", -1)).size(), sizes[0]);
}

TEST_F(QtTranslatorRosterTest, WritesTheCompressionLevelIntoThePngsDataHeader) {
    // The two top bits of zlib's second byte: fastest, fast, default, best.
    const std::vector<std::pair<int32, int>> levels = {{1, 0}, {2, 1}, {5, 1}, {6, 2}, {7, 3}};
    const auto picture = Photograph(200, 200);
    for (const auto& [level, flag] : levels) {
        const Bytes file = Write("png", *picture, NumberSetting("compression", level));
        const std::string type = "IDAT";
        const auto data = std::search(file.begin(), file.end(), type.begin(), type.end());
        ASSERT_LT(data, file.end() - 6);
        EXPECT_EQ(data[5] >> 6, flag) << level;
    }
}

TEST_F(QtTranslatorRosterTest, CompressesTiffUnlessToldOtherwise) {
    if (!Writes("tiff")) GTEST_SKIP() << "no TIFF plugin";
    const auto picture = PictureOf(100, 100, Pixels(10000, 0xFF336699));

    const Bytes packed = Write("tiff", *picture);
    const Bytes plain = Write("tiff", *picture, FlagSetting("compression", false));

    EXPECT_LT(packed.size(), 5000U);
    EXPECT_GT(plain.size(), 30000U);
    EXPECT_EQ(Read(packed).Argb(), PixelsOf(*picture));
    EXPECT_EQ(Read(plain).Argb(), PixelsOf(*picture));
}

TEST_F(QtTranslatorRosterTest, PacksTargaUnlessToldOtherwise) {
    const auto picture = PictureOf(100, 100, Pixels(10000, 0xFF336699));

    const Bytes packed = Write("tga", *picture);
    const Bytes plain = Write("tga", *picture, FlagSetting("rle", false));

    EXPECT_LT(packed.size(), 1000U);
    EXPECT_EQ(plain.size(), 30018U);
    EXPECT_EQ(Read(packed).Argb(), Read(plain).Argb());
}

TEST_F(QtTranslatorRosterTest, TakesDefaultsForSettingsOfTheWrongKind) {
    const auto picture = Photograph(50, 50);

    EXPECT_EQ(Write("png", *picture, FlagSetting("compression", false)).size(),
              Write("png", *picture).size());
    EXPECT_EQ(Write("tga", *picture, NumberSetting("rle", 0)).size(),
              Write("tga", *picture).size());
}

TEST_F(QtTranslatorRosterTest, TellsThatAFileCanNotBeWritten) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("read_only"), {1, 2, 3});
    const auto picture = Photograph(64, 64);
    for (const translator_id id : roster_.Translators()) {
        const std::vector<translation_format> formats = roster_.OutputFormats(id);
        if (formats.back().type == B_TRANSLATOR_BITMAP) continue;
        BFile file(folder.File("read_only"), B_READ_ONLY);
        EXPECT_NE(roster_.Translate(*picture, id, formats.back().type, {}, file), B_OK)
            << formats.back().name;
        EXPECT_NE(file.WriteStatus(), B_OK) << formats.back().name;
    }
}

TEST_F(QtTranslatorRosterTest, WritesWhileAnotherThreadReads) {
    const auto picture = PictureOf(3, 2, kSeeThrough);
    for (const char* extension : {"png", "tga"}) {
        const Bytes bytes = Write(extension, *picture);
        int32 whole_readings = 0;
        std::thread reader([&] {
            for (int i = 0; i < 50; ++i)
                whole_readings += Read(bytes).Argb() == kSeeThrough;
        });
        for (int i = 0; i < 50; ++i)
            EXPECT_EQ(Write(extension, *picture), bytes);
        reader.join();
        EXPECT_EQ(whole_readings, 50);
    }
}

TEST_F(QtTranslatorRosterTest, LooksForPluginsInQtsOwnFolderOnly) {
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_PLUGIN_PATH"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORM_PLUGIN_PATH"));
    EXPECT_EQ(QCoreApplication::libraryPaths(),
              QStringList{QLibraryInfo::path(QLibraryInfo::PluginsPath)});
}

}  // namespace kirto::test
