#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "color/builtin_palettes.h"
#include "color/sf_hash.h"
#include "kit/file.h"
#include "picture/picture.h"

namespace kirto {

// The kinds of palette, as stored in Palette::mode and in the setting "palette_mapping".
enum PaletteMode : int32 {
    kPaletteWebSafe = 0,
    kPaletteSystem = 1,
    kPaletteGreyscale = 2,
    kPaletteFirstFrame = 3,    // optimal for the animation's first frame, computed when needed
    kPaletteCurrentFrame = 4,  // optimal for the current frame, computed when needed
    kPaletteOptimal = 6,       // optimal for a given picture
    kPaletteFromFile = 7,
    kPaletteAwaitingFile = 8,  // a file was asked for but none is loaded
};

}  // namespace kirto

// At most 256 colors that a picture is reduced to when it is written as GIF, with the encoding
// settings that go with them. A plain value without a lock: whoever owns it (document, frame) says
// who may touch it when.
class Palette {
  public:
    kirto::ColorTable colors{};  // every entry written by this class is opaque
    const kirto::ColorTable* web_safe = &kirto::kWebSafeColors;
    int32 mode = 0;           // a kirto::PaletteMode
    int32 size = 0;           // entries in use, from index 0
    int32 bits = 0;           // index width, 1 to 8
    int32 unique_colors = 0;  // distinct colors the last optimal build found
    int32 background_index = 0;
    int32 transparent_index = 0;
    bool use_transparent = false;
    bool dither = false;  // cleared when the kind becomes greyscale

    // Web safe.
    Palette() : Palette(kirto::kPaletteWebSafe) {}
    explicit Palette(int32 kind) { Set(kind); }
    // Optimal for the picture, or web safe when it can't be built.
    explicit Palette(const kirto::Picture* picture) { Set(picture); }

    // Stores the kind and bits = 8. Kinds 0, 1 and 2 also fill the entries and the size; the others
    // leave them as they were.
    void Set(int32 kind);
    // Kind 6 with the picture's most frequent colors; on failure web safe.
    // The three that look at each pixel end early, as failures, when the work is stopped.
    void Set(const kirto::Picture* picture, const kirto::Work* work = nullptr);
    // The same without a word, for a thread that must not say anything: B_OK, or the reason of the
    // failure for TellOfFailure.
    status_t SetOptimal(const kirto::Picture* picture, const kirto::Work* work = nullptr);
    // Says what Set says: that memory ran out (B_NO_MEMORY) or that the picture is not 32-bit
    // (B_BAD_TYPE). The rest needs no word.
    static void TellOfFailure(status_t status);
    // Kind 7 with the color table of a GIF or FLI file, recognized by "gif", "GIF", "fli" or "FLI"
    // anywhere in the path, in that order. On failure kind 8 and false; entries may be partly
    // overwritten.
    bool Set(const char* path);

    // Read the color table from the file's position on. False on short or unsuitable data.
    bool StripGif(BFile* file);
    bool StripFli(BFile* file);

    // colors[index]; opaque black outside 0..255. The size is not consulted.
    rgb_color ColorForIndex(int32 index) const;

    // The entry below size nearest to the color by the sum of absolute differences, the lowest
    // index among equals; 0 without entries. The grey ramp answers (red + 2 green + blue) / 4
    // whatever its entries hold. Alpha is ignored.
    uint8 IndexForColor(rgb_color color) const;
    uint8 IndexForColor(uint8 red, uint8 green, uint8 blue) const;

    // The picture's most frequent colors in falling order, 2^bits of them (opaque black where
    // there are fewer); sets unique_colors, bits and size. Nothing on failure: out of memory (the
    // user is told) or a picture that is not 32-bit.
    std::optional<std::vector<rgb_color>> MakeNearestColorPalette(
        const kirto::Picture* picture, const kirto::Work* work = nullptr);
    // Each color of the picture with its number of pixels, in 65,536 buckets, for iteration; null
    // on failure, as above.
    std::unique_ptr<SFHash> BuildHashtable(const kirto::Picture* picture) const;
    // Distinct colors in the picture; 0 on failure.
    int32 CountUniqueColors(const kirto::Picture* picture, const kirto::Work* work = nullptr) const;

    // Recomputes kind 3 from the first frame's picture, kind 4 from the current frame's. Null
    // pictures and other kinds change nothing; false then.
    bool UpdateIfNeeded(const kirto::Picture* first_frame, const kirto::Picture* current_frame,
                        const kirto::Work* work = nullptr);

    // Gives the palette kind 0, 1 or 2 when all 256 entries equal that built-in table; otherwise
    // the kind stays. Entries, size and bits stay.
    void RecogniseBuiltIn();

    bool operator==(const Palette&) const = default;

  private:
    status_t FindNearestColors(const kirto::Picture* picture, const kirto::Work* work,
                               std::optional<std::vector<rgb_color>>* result);
    // Greys are never dithered: clears the flag.
    void SetKind(int32 kind);
    bool ReadTriples(BFile* file, int32 count);
};
