#include "kit/qt/png_device.h"

#include "kit_qt/roster_fixture.h"

namespace kirto::test {

namespace {

// The chunks of a small picture, with these between its header and its pixels.
Bytes PngWith(const std::vector<std::string>& types) {
    const Bytes plain = FileOf(QImage(3, 2, QImage::Format_Mono), "png");
    constexpr long kHeaderEnd = 33;
    Bytes png(plain.begin(), plain.begin() + kHeaderEnd);
    for (const std::string& type : types)
        AppendChunk(&png, type, Bytes(10, 1));
    AppendChunk(&png, "IDAT", {2, 3});
    AppendChunk(&png, "IEND", {});
    return png;
}

Bytes Seen(const Bytes& png) {
    const auto file = BFile::OnMemory(png);
    PngDevice device(*file);
    const QByteArray bytes = device.readAll();
    EXPECT_EQ(bytes.size(), device.size());
    return {bytes.begin(), bytes.end()};
}

}  // namespace

TEST(PngDevice, ShowsAPlainFileAsItIs) {
    const Bytes png = PngWith({});

    EXPECT_EQ(Seen(png), png);
}

TEST(PngDevice, LeavesOutTextsAndProfiles) {
    EXPECT_EQ(Seen(PngWith({"zTXt", "iTXt", "tEXt", "iCCP", "eXIf", "abCd", "zTXt"})),
              Seen(PngWith({})));
}

TEST(PngDevice, KeepsColorsAndTransparencyAndWhatADecoderMustNotSkip) {
    for (const char* type : {"PLTE", "tRNS", "IDAT", "ABCD"}) {
        const Bytes png = PngWith({type});
        EXPECT_EQ(Seen(PngWith({"zTXt", type, "zTXt"})), png);
    }
}

TEST(PngDevice, CanBeReadInAnyOrderAndInSmallPieces) {
    const Bytes png = PngWith({"zTXt", "PLTE", "zTXt"});
    const auto file = BFile::OnMemory(png);
    PngDevice device(*file);
    const QByteArray whole = device.readAll();
    for (qint64 start : {qint64{40}, qint64{0}, qint64{30}, device.size() - 1}) {
        ASSERT_TRUE(device.seek(start));
        QByteArray pieces;
        while (!device.atEnd())
            pieces += device.read(7);
        EXPECT_EQ(pieces, whole.mid(start));
    }
}

TEST(PngDevice, EndsWhereAFileIsCutOff) {
    const Bytes png = PngWith({"PLTE"});
    for (size_t size = 0; size < png.size(); ++size) {
        const Bytes cut(png.begin(), png.begin() + static_cast<long>(size));
        const Bytes seen = Seen(cut);
        ASSERT_LE(seen.size(), cut.size());
        EXPECT_TRUE(std::equal(seen.begin(), seen.end(), cut.begin()));
    }
}

}  // namespace kirto::test
