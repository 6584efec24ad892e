#include "kit/qt/image_format.h"

namespace kirto {

namespace {

BMessage Number(const char* name, int32 value) {
    BMessage settings;
    settings.AddInt32(name, value);
    return settings;
}

BMessage Flag(const char* name, bool value) {
    BMessage settings;
    settings.AddBool(name, value);
    return settings;
}

BMessage WebPSettings() {
    BMessage settings = Number("quality", 90);
    settings.AddBool("lossless", true);
    return settings;
}

}  // namespace

const std::vector<ImageFormat>& KnownImageFormats() {
    static const std::vector<ImageFormat> formats = {
        {1,
         "png",
         {FourCharCode("PNG "), "image/png", "PNG image", {"png"}},
         Number("compression", 6)},
        {2,
         "jpeg",
         {FourCharCode("JPEG"), "image/jpeg", "JPEG image", {"jpg", "jpeg"}},
         Number("quality", 90)},
        {3, "webp", {FourCharCode("WEBP"), "image/webp", "WebP image", {"webp"}}, WebPSettings()},
        {4,
         "tiff",
         {FourCharCode("TIFF"), "image/tiff", "TIFF image", {"tiff", "tif"}},
         Flag("compression", true)},
        {5, "bmp", {FourCharCode("BMP "), "image/bmp", "BMP image", {"bmp"}}, {}},
        {6, "", {B_TGA_FORMAT, "image/x-tga", "Targa image", {"tga"}}, Flag("rle", true)},
        {7, "gif", {FourCharCode("GIF "), "image/gif", "GIF image", {"gif"}}, {}},
        {8, "svg", {FourCharCode("SVG "), "image/svg+xml", "SVG drawing", {"svg"}}, {}},
        {9,
         "svgz",
         {FourCharCode("SVGZ"), "image/svg+xml-compressed", "Compressed SVG drawing", {"svgz"}},
         {}},
        {10,
         "ico",
         {FourCharCode("ICO "), "image/vnd.microsoft.icon", "Windows icon", {"ico"}},
         {}},
        {11, "cur", {FourCharCode("CUR "), "image/x-win-bitmap", "Windows cursor", {"cur"}}, {}},
        {12, "icns", {FourCharCode("ICNS"), "image/x-icns", "Icon container", {"icns"}}, {}},
        {13, "ppm", {FourCharCode("PPM "), "image/x-portable-pixmap", "PPM image", {"ppm"}}, {}},
        {14, "pgm", {FourCharCode("PGM "), "image/x-portable-graymap", "PGM image", {"pgm"}}, {}},
        {15, "pbm", {FourCharCode("PBM "), "image/x-portable-bitmap", "PBM image", {"pbm"}}, {}},
        {16, "xpm", {FourCharCode("XPM "), "image/x-xpixmap", "XPM image", {"xpm"}}, {}},
        {17, "xbm", {FourCharCode("XBM "), "image/x-xbitmap", "XBM image", {"xbm"}}, {}},
        {18, "wbmp", {FourCharCode("WBMP"), "image/vnd.wap.wbmp", "WBMP image", {"wbmp"}}, {}},
        {19, "jp2", {FourCharCode("JP2 "), "image/jp2", "JPEG 2000 image", {"jp2"}}, {}},
        {20, "mng", {FourCharCode("MNG "), "video/x-mng", "MNG animation", {"mng"}}, {}},
        {21,
         "avif",
         {FourCharCode("AVIF"), "image/avif", "AVIF image", {"avif"}},
         Number("quality", 90)},
        {22, "heif", {FourCharCode("HEIF"), "image/heif", "HEIF image", {"heif", "heic"}}, {}},
        {23,
         "jxl",
         {FourCharCode("JXL "), "image/jxl", "JPEG XL image", {"jxl"}},
         Number("quality", 90)},
    };
    return formats;
}

}  // namespace kirto
