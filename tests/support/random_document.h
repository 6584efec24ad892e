// Documents made of arbitrary choices, for comparing what is written and read with references.
#pragma once

#include <random>
#include <vector>

#include "document/animation_document.h"
#include "settings/prefs.h"

namespace kirto::test {

// Where a made-up document takes its choices from.
class ChoiceSource {
  public:
    virtual ~ChoiceSource() = default;
    // Any number from 0 to bound - 1; bound is 1 or more.
    virtual uint32 Below(uint32 bound) = 0;

    bool OneIn(uint32 count) { return Below(count) == 0; }
    // From first to last.
    int32 Between(int32 first, int32 last) {
        return first + static_cast<int32>(Below(static_cast<uint32>(last - first + 1)));
    }
};

// The same choices for the same seed, everywhere.
class SeededChoices : public ChoiceSource {
  public:
    explicit SeededChoices(uint32 seed) : engine_(seed) {}
    uint32 Below(uint32 bound) override { return static_cast<uint32>(engine_() % bound); }

  private:
    std::mt19937 engine_;
};

// Choices spelled by bytes, two a choice where one is too few; all 0 when the bytes are used up.
class ByteChoices : public ChoiceSource {
  public:
    ByteChoices(const uint8* bytes, size_t size) : bytes_(bytes), left_(size) {}
    uint32 Below(uint32 bound) override;
    bool UsedUp() const { return left_ == 0; }

  private:
    uint32 Next();

    const uint8* bytes_;
    size_t left_;
};

// What a made-up document may be like.
struct DocumentStyle {
    int32 max_side = 40;   // of canvas and frames, pixels
    int32 max_frames = 4;  // at least one is made
    // Opaque pixels have exactly a colour of the palette that their frame is written with, one that
    // comes back as it is; else any colours.
    bool fitting_colors = true;
    bool transparency = true;    // pixels with alpha below 255; only with fitting settings
    bool local_palettes = true;  // frames with a palette of their own
    bool opaque_start = false;   // the first frame covers the canvas and has no transparent pixel
    // Also what a file can't bring back: transparent pixels though transparency is off, other
    // colour spaces, frames off the canvas, numbers beyond their fields.
    bool oddities = false;
};

// Settings of every kind for writing and reading; the rest keeps its built-in values.
void ChooseSettings(ChoiceSource& choices, const DocumentStyle& style, Prefs* prefs);
// Properties, palette and frames. The document is empty.
void FillDocument(ChoiceSource& choices, const DocumentStyle& style, AnimationDocument& document);

// The hundredths of a second that a frame is shown.
int32 DelayOf(const AnimationDocument& document, const Frame& frame);

}  // namespace kirto::test
