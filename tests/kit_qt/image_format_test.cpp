#include "kit/qt/image_format.h"

#include <gmock/gmock.h>
#include <set>

namespace kirto::test {

TEST(ImageFormat, KeepsTheIdsThatSettingsRememberFormatsBy) {
    std::vector<std::pair<translator_id, std::string>> ids;
    for (const ImageFormat& format : KnownImageFormats())
        ids.emplace_back(format.id, format.format.extensions.front());

    using Pair = std::pair<translator_id, std::string>;
    EXPECT_THAT(ids, testing::ElementsAre(
                         Pair{1, "png"}, Pair{2, "jpg"}, Pair{3, "webp"}, Pair{4, "tiff"},
                         Pair{5, "bmp"}, Pair{6, "tga"}, Pair{7, "gif"}, Pair{8, "svg"},
                         Pair{9, "svgz"}, Pair{10, "ico"}, Pair{11, "cur"}, Pair{12, "icns"},
                         Pair{13, "ppm"}, Pair{14, "pgm"}, Pair{15, "pbm"}, Pair{16, "xpm"},
                         Pair{17, "xbm"}, Pair{18, "wbmp"}, Pair{19, "jp2"}, Pair{20, "mng"},
                         Pair{21, "avif"}, Pair{22, "heif"}, Pair{23, "jxl"}));
}

TEST(ImageFormat, NamesEachFormatOnce) {
    std::set<uint32> types;
    std::set<std::string> names;
    std::set<std::string> qt_names;
    std::set<std::string> extensions;
    for (const ImageFormat& format : KnownImageFormats()) {
        EXPECT_NE(format.format.type, B_TRANSLATOR_BITMAP);
        EXPECT_FALSE(format.format.mime.empty());
        EXPECT_TRUE(types.insert(format.format.type).second) << format.id;
        EXPECT_TRUE(names.insert(format.format.name).second) << format.format.name;
        EXPECT_TRUE(qt_names.insert(format.qt_name).second) << format.qt_name;
        for (const std::string& extension : format.format.extensions)
            EXPECT_TRUE(extensions.insert(extension).second) << extension;
    }
}

TEST(ImageFormat, LeavesOnlyTargaToOthersThanQt) {
    for (const ImageFormat& format : KnownImageFormats()) {
        EXPECT_EQ(std::string(format.qt_name).empty(), format.format.mime == "image/x-tga");
    }
}

}  // namespace kirto::test
