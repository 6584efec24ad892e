#include "kit_qt/roster_fixture.h"

#include <QBuffer>
#include <filesystem>
#include <random>

#include "kit/decoding/decoding_roster.h"

namespace kirto::test {

namespace {

void AppendBig32(Bytes* bytes, uint32 value) {
    for (const int shift : {24, 16, 8, 0})
        bytes->push_back(static_cast<uint8>(value >> shift));
}

uint32 Crc(const Bytes& bytes) {
    uint32 crc = 0xFFFFFFFF;
    for (const uint8 byte : bytes) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

}  // namespace

std::string ForeignPluginFolder() {
    return std::filesystem::temp_directory_path().string();
}

translator_id QtTranslatorRosterTest::Translator(const std::string& extension) const {
    for (const ImageFormat& format : KnownImageFormats()) {
        std::string name;
        if (format.format.extensions.front() == extension &&
            roster_.GetTranslatorInfo(format.id, &name)) {
            return format.id;
        }
    }
    return 0;
}

bool QtTranslatorRosterTest::Reads(const std::string& extension) const {
    return !roster_.InputFormats(Translator(extension)).empty();
}

bool QtTranslatorRosterTest::Writes(const std::string& extension) const {
    const auto formats = roster_.OutputFormats(Translator(extension));
    return !formats.empty() && formats.back().type != B_TRANSLATOR_BITMAP;
}

Bytes QtTranslatorRosterTest::Write(const std::string& extension, const BBitmap& picture,
                                    const BMessage& settings) {
    const translator_id id = Translator(extension);
    const auto file = BFile::OnMemory();
    const uint32 type = id == 0 ? 0 : roster_.OutputFormats(id).back().type;
    EXPECT_EQ(roster_.Translate(picture, id, type, settings, *file), B_OK) << extension;
    return file->Memory();
}

status_t QtTranslatorRosterTest::WriteTo(BFile& file, const std::string& extension,
                                         const BBitmap& picture) {
    const translator_id id = Translator(extension);
    return roster_.Translate(picture, id, roster_.OutputFormats(id).back().type, {}, file);
}

Reading QtTranslatorRosterTest::Read(const Bytes& bytes, std::shared_ptr<PixelBudget> budget) {
    Reading reading;
    const auto file = BFile::OnMemory(bytes);
    const uint64 left = budget ? budget->Left() : PixelBudget::DefaultLimit();
    reading.status = roster_.Translate(*file, std::move(budget), &reading.bitmap);
    EXPECT_EQ(reading.status == B_OK, reading.bitmap != nullptr);
    ExpectSameElsewhere(*file, left, reading);
    return reading;
}

Reading QtTranslatorRosterTest::ReadFile(const std::string& path) {
    Reading reading;
    BFile file(path, B_READ_ONLY);
    reading.status = roster_.Translate(file, nullptr, &reading.bitmap);
    ExpectSameElsewhere(file, PixelBudget::DefaultLimit(), reading);
    return reading;
}

void QtTranslatorRosterTest::ExpectSameElsewhere(BFile& file, uint64 bytes_left,
                                                 const Reading& reading) {
    // Its processes are kept from test to test.
    static QtTranslatorRoster others;
    static DecodingRoster roster(KIRTO_DECODE, others);
    Reading elsewhere;
    elsewhere.status =
        roster.Translate(file, std::make_shared<PixelBudget>(bytes_left), &elsewhere.bitmap);
    EXPECT_EQ(elsewhere.status, reading.status);
    if (!reading.bitmap || !elsewhere.bitmap) return;
    EXPECT_EQ(elsewhere.Space(), reading.Space());
    EXPECT_TRUE(elsewhere.Argb() == reading.Argb());
}

Reading QtTranslatorRosterTest::Copy(const std::string& extension, const BBitmap& picture,
                                     const BMessage& settings) {
    return Read(Write(extension, picture, settings));
}

Bytes FileOf(const QImage& image, const char* qt_format, int quality) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, qt_format, quality)) << qt_format;
    return {buffer.data().begin(), buffer.data().end()};
}

Bytes BytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

void AppendChunk(Bytes* png, const std::string& type, const Bytes& data) {
    Bytes checked = BytesOf(type);
    checked.insert(checked.end(), data.begin(), data.end());
    AppendBig32(png, static_cast<uint32>(data.size()));
    png->insert(png->end(), checked.begin(), checked.end());
    AppendBig32(png, Crc(checked));
}

Bytes PngHeader(uint32 width, uint32 height) {
    Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Bytes header;
    AppendBig32(&header, width);
    AppendBig32(&header, height);
    header.insert(header.end(), {8, 2, 0, 0, 0});
    AppendChunk(&png, "IHDR", header);
    AppendChunk(&png, "IDAT", {0x78, 0x9C, 3, 0, 0, 0, 0, 1});
    AppendChunk(&png, "IEND", {});
    return png;
}

std::shared_ptr<BBitmap> Photograph(int32 width, int32 height) {
    std::minstd_rand random(1);
    Pixels argb;
    for (int32 y = 0; y < height; ++y) {
        for (int32 x = 0; x < width; ++x) {
            const auto level =
                static_cast<uint32>((x * 3 + y * 5) % 200) + static_cast<uint32>(random() % 16);
            argb.push_back(0xFF000000 | level << 16 | (255 - level) << 8 | (level / 2));
        }
    }
    return PictureOf(width, height, argb);
}

BMessage NumberSetting(const char* name, int32 value) {
    BMessage settings;
    settings.AddInt32(name, value);
    return settings;
}

BMessage FlagSetting(const char* name, bool value) {
    BMessage settings;
    settings.AddBool(name, value);
    return settings;
}

}  // namespace kirto::test
