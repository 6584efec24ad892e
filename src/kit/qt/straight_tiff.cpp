#include "kit/qt/straight_tiff.h"

#include <algorithm>
// Keeps the library from declaring integer types of the names that the kit uses.
#define TIFF_DISABLE_DEPRECATED
#include <tiffio.h>

namespace kirto {

namespace {

BFile& FileOf(thandle_t handle) {
    return *static_cast<BFile*>(handle);
}

tmsize_t ReadBytes(thandle_t handle, void* buffer, tmsize_t size) {
    return static_cast<tmsize_t>(FileOf(handle).Read(buffer, static_cast<size_t>(size)));
}

tmsize_t WriteNothing(thandle_t, void*, tmsize_t) {
    return -1;
}

toff_t SeekTo(thandle_t handle, toff_t offset, int whence) {
    const seek_mode mode = whence == SEEK_SET   ? SEEK_FROM_START
                           : whence == SEEK_CUR ? SEEK_FROM_CURRENT
                                                : SEEK_FROM_END;
    return static_cast<toff_t>(FileOf(handle).Seek(static_cast<int64>(offset), mode));
}

int LeaveOpen(thandle_t) {
    return 0;
}

toff_t SizeOf(thandle_t handle) {
    return static_cast<toff_t>(FileOf(handle).Size());
}

struct TiffClose {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffPointer = std::unique_ptr<TIFF, TiffClose>;

uint16 Tag(TIFF* tiff, uint32 tag) {
    uint16 value = 0;
    TIFFGetFieldDefaulted(tiff, tag, &value);
    return value;
}

bool HasStraightAlpha(TIFF* tiff) {
    uint16 count = 0;
    uint16* kinds = nullptr;
    if (!TIFFGetField(tiff, TIFFTAG_EXTRASAMPLES, &count, &kinds)) return false;
    return count == 1 && kinds && kinds[0] == EXTRASAMPLE_UNASSALPHA;
}

bool IsStraightRgba(TIFF* tiff) {
    return !TIFFIsTiled(tiff) && Tag(tiff, TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_RGB &&
           Tag(tiff, TIFFTAG_SAMPLESPERPIXEL) == 4 && Tag(tiff, TIFFTAG_BITSPERSAMPLE) == 8 &&
           Tag(tiff, TIFFTAG_PLANARCONFIG) == PLANARCONFIG_CONTIG &&
           Tag(tiff, TIFFTAG_ORIENTATION) == ORIENTATION_TOPLEFT && HasStraightAlpha(tiff);
}

TiffPointer OpenTiff(BFile& source) {
    // What is wrong with a file is for the caller to say, once.
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    source.Seek(0, SEEK_FROM_START);
    // "m": the file is never mapped.
    return TiffPointer(TIFFClientOpen("", "rm", &source, ReadBytes, WriteNothing, SeekTo, LeaveOpen,
                                      SizeOf, nullptr, nullptr));
}

}  // namespace

status_t ReadStraightTiff(BFile& source, std::shared_ptr<PixelBudget> budget,
                          std::shared_ptr<BBitmap>* result) {
    const TiffPointer tiff = OpenTiff(source);
    uint32 width = 0;
    uint32 height = 0;
    if (!tiff || !IsStraightRgba(tiff.get()) ||
        !TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width) ||
        !TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height) ||
        std::max(width, height) > 65535 ||
        TIFFScanlineSize(tiff.get()) != static_cast<tmsize_t>(width) * 4) {
        return B_BAD_DATA;
    }
    auto bitmap = std::make_shared<BBitmap>(
        BRect::OfSize(static_cast<int32>(width), static_cast<int32>(height)), B_RGBA32,
        std::move(budget));
    if (bitmap->InitCheck() != B_OK) return B_NO_MEMORY;
    for (int32 y = 0; y < bitmap->Height(); ++y) {
        uint8* row = bitmap->Row(y);
        if (TIFFReadScanline(tiff.get(), row, static_cast<uint32>(y), 0) != 1) return B_BAD_DATA;
        for (uint8* pixel = row; pixel < row + bitmap->BytesPerRow(); pixel += 4) {
            std::swap(pixel[0], pixel[2]);
        }
    }
    *result = std::move(bitmap);
    return B_OK;
}

}  // namespace kirto
