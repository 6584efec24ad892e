#include "kit/image_header.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kirto::test {

namespace {

using namespace std::string_literals;

ImageHeader HeaderOf(const std::string& bytes) {
    const auto file = BFile::OnMemory({bytes.begin(), bytes.end()});
    return ReadImageHeader(*file);
}

std::string Big32(uint32 value) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0})
        bytes += static_cast<char>(value >> shift);
    return bytes;
}

std::string Chunk(const std::string& type, const std::string& data) {
    return Big32(static_cast<uint32>(data.size())) + type + data + Big32(0);
}

std::string Mng(const std::string& chunks) {
    return "\x8AMNG\r\n\x1A\n" + Chunk("MHDR", Big32(10) + Big32(20) + std::string(20, '\0')) +
           chunks;
}

// A JPEG with two segments before the frame that the marker starts.
std::string Jpeg(char marker) {
    return "\xFF\xD8\xFF\xE0\0\4ab\xFF\xFF\xFE\0\3c\xFF"s + marker + "\0\x11\x08\1\2\3\4\3"s +
           std::string(9, '\0');
}

}  // namespace

TEST(ImageHeader, TellsFormatAndSizeOfEveryKindOfFile) {
    struct Case {
        const char* format;
        std::string bytes;
        uint64 width;
        uint64 height;
    };
    const std::vector<Case> cases = {
        {"png", "\x89PNG\r\n\x1A\n" + Chunk("IHDR", Big32(70000) + Big32(3)), 70000, 3},
        {"jpeg", Jpeg('\xC0'), 0x304, 0x102},
        {"jpeg", Jpeg('\xC2'), 0x304, 0x102},
        {"gif", "GIF89a\1\2\3\4"s, 0x201, 0x403},
        {"gif", "GIF87a\0\0\0\0"s, 0, 0},
        {"bmp", "BM"s + std::string(12, 'x') + "\x28\0\0\0\5\0\0\0\6\0\0\0"s, 5, 6},
        {"bmp", "BM"s + std::string(12, 'x') + "\x28\0\0\0\5\0\0\0\xFA\xFF\xFF\xFF"s, 5, 6},
        {"bmp", "BM"s + std::string(12, 'x') + "\x0C\0\0\0\5\0\6\0"s, 5, 6},
        {"webp", "RIFFxxxxWEBPVP8Xxxxxxxxx\4\0\0\5\0\0"s, 5, 6},
        {"webp", "RIFFxxxxWEBPVP8Lxxxx\x2F\4\x40\1\0"s, 5, 6},
        {"webp", "RIFFxxxxWEBPVP8 xxxxxxxxxx\5\0\6\0"s, 5, 6},
        {"tiff", "II*\0\x08\0\0\0\2\0\0\1\3\0\1\0\0\0\5\0\0\0\1\1\4\0\1\0\0\0\6\0\0\0"s, 5, 6},
        {"tiff", "MM\0*\0\0\0\x08\0\2\1\0\0\3\0\0\0\1\0\5\0\0\1\1\0\4\0\0\0\1\0\0\0\6"s, 5, 6},
        {"tiff",
         "II+\0\x08\0\0\0\x10\0\0\0\0\0\0\0\2\0\0\0\0\0\0\0"
         "\0\1\3\0\1\0\0\0\0\0\0\0\5\0\0\0\0\0\0\0\1\1\4\0\1\0\0\0\0\0\0\0\6\0\0\0\0\0\0\0"s,
         5, 6},
        {"mng", Mng({}), 10, 20},
        {"pbm", "P4\n# 9 9\n5 6\n", 5, 6},
        {"pgm", "P2 5 # a\n6", 5, 6},
        {"ppm", "P6\n5\n6\n255\n", 5, 6},
        {"xpm", "/* XPM */\nstatic char* a[] = {\n\"5 6 2 1\",", 5, 6},
        {"xbm", "#define a_width 5\n#define a_height 6\n", 5, 6},
        {"ico", "\0\0\1\0\1\0"s, 0, 0},
        {"ico", "\0\0\2\0\1\0"s, 0, 0},
        {"icns", "icns\0\0\0\x08"s, 0, 0},
        {"avif",
         "\0\0\0\x0C"
         "ftypavif----ispe\0\0\0\0"s +
             Big32(5) + Big32(6),
         5, 6},
        {"heif",
         "\0\0\0\x0C"
         "ftypheic----ispe\0\0\0\0"s +
             Big32(5) + Big32(6),
         5, 6},
        {"jp2", "\0\0\0\x0CjP  ----ihdr"s + Big32(6) + Big32(5), 5, 6},
        {"jxl", "\xFF\x0A\x28\0\x14\0"s, 11, 6},
        {"jxl", "\xFF\x0A\xC5\0"s, 32, 24},
        {"svg", "<svg/>", 0, 0},
        {"svg", "\xEF\xBB\xBF \n<?xml", 0, 0},
        {"svg", "\x1F\x8B\x08"s, 0, 0},
        {"wbmp", "\0\0\x81\2\1"s + std::string(17, 'x'), 130, 1},
    };
    for (const Case& each : cases) {
        const ImageHeader header = HeaderOf(each.bytes);

        EXPECT_STREQ(header.format, each.format);
        EXPECT_EQ(header.width, each.width) << each.format;
        EXPECT_EQ(header.height, each.height) << each.format;
    }
}

TEST(ImageHeader, KnowsNoOtherFiles) {
    const std::string cases[] = {{},
                                 "text",
                                 "<html>",
                                 "P7\n5 6\n",
                                 "P65 6",
                                 "\x89PNG\r\n\x1A\n",
                                 "\xFF\xD8\xFF\xDA",
                                 "BM",
                                 "RIFFxxxxWAVE",
                                 "II*\0\0\0\0\0"s,
                                 "II*\0\xFF\xFF\xFF\xFF"s,
                                 "\0\0\5\0"s,
                                 "\0\0\5\7x"s,
                                 std::string(1000, '\0')};
    for (const std::string& bytes : cases)
        EXPECT_STREQ(HeaderOf(bytes).format, "") << bytes;
}

TEST(ImageHeader, CountsTheCoefficientsThatProgressivePicturesKeep) {
    EXPECT_EQ(HeaderOf(Jpeg('\xC0')).working_bytes, 0U);
    EXPECT_EQ(HeaderOf(Jpeg('\xC2')).working_bytes, uint64{0x304} * 0x102 * 3 * 2);
}

TEST(ImageHeader, CountsEveryPictureOfAnAnimation) {
    const std::string picture = Chunk("IHDR", Big32(1000) + Big32(1000) + "\x08\2\0\0\0"s);

    EXPECT_EQ(HeaderOf(Mng({})).working_bytes, 4U * 2 * 10 * 20);
    EXPECT_EQ(HeaderOf(Mng(picture + picture)).working_bytes, 4U * (2 * 10 * 20 + 2000000));
}

TEST(ImageHeader, RefusesContainersWithVeryManyPackedTexts) {
    std::string texts;
    for (int i = 0; i < 8; ++i)
        texts += Chunk("zTXt", "a");

    EXPECT_STREQ(HeaderOf(Mng(texts)).format, "mng");
    EXPECT_STREQ(HeaderOf(Mng(texts + Chunk("iTXt", "a"))).format, "");
    EXPECT_STREQ(HeaderOf("\0\0\1\0\1\0"s + texts + "zTXt").format, "");
    EXPECT_STREQ(HeaderOf("icns" + texts + "zTXt").format, "");
}

TEST(ImageHeader, CountsNoFurtherThanItCanMultiply) {
    const ImageHeader header = HeaderOf("P6\n18446744073709551615 18446744073709551615\n255\n");

    EXPECT_EQ(header.Pixels(), ImageHeader::kMostPixels);
}

}  // namespace kirto::test
