#include "formats/gif/reference_gif_encoder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "color/reference_palette.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

uint8 Low(int64 value) {
    return static_cast<uint8>(value & 255);
}

void Put16(Bytes* bytes, int64 value) {
    bytes->push_back(Low(value));
    bytes->push_back(Low(value >> 8));
}

void PutText(Bytes* bytes, const std::string& text) {
    bytes->insert(bytes->end(), text.begin(), text.end());
}

void PutTable(Bytes* bytes, const Palette& palette, int32 bits) {
    for (int32 i = 0; i < 1 << bits; ++i) {
        const rgb_color color = palette.ColorForIndex(i);
        bytes->insert(bytes->end(), {color.red, color.green, color.blue});
    }
}

const Palette& PaletteOf(const AnimationDocument& document, const Frame& frame) {
    return frame.local_palette ? *frame.palette : *document.Current()->palette;
}

// Where the pixels of a bitmap stand, one after the other in the order of the file.
class Traversal {
  public:
    Traversal(const BBitmap& bitmap, bool interlaced) : bitmap_(bitmap), interlaced_(interlaced) {}

    const uint8* Pixel() const {
        return bitmap_.Bits() + static_cast<size_t>(row_) * bitmap_.BytesPerRow() + offset_;
    }
    void Advance() {
        offset_ += 4;
        if (offset_ < bitmap_.BytesPerRow()) return;
        offset_ = 0;
        static constexpr int32 kSteps[] = {8, 8, 4, 2};
        static constexpr int32 kStarts[] = {0, 4, 2, 1};
        row_ += interlaced_ ? kSteps[pass_] : 1;
        while (interlaced_ && row_ >= bitmap_.Height() && pass_ < 3) {
            ++pass_;
            row_ = kStarts[pass_];
        }
    }

  private:
    const BBitmap& bitmap_;
    const bool interlaced_;
    int32 pass_ = 0;
    int32 row_ = 0;
    size_t offset_ = 0;
};

struct Pixel {
    int32 red = 0;
    int32 green = 0;
    int32 blue = 0;
    int32 alpha = 0;
};

Pixel PixelAt(const uint8* bytes, color_space space) {
    if (space == B_RGB32 || space == B_RGBA32) return {bytes[2], bytes[1], bytes[0], bytes[3]};
    if (space == B_RGB32_BIG || space == B_RGBA32_BIG) {
        return {bytes[1], bytes[2], bytes[3], bytes[0]};
    }
    return {};
}

uint8 Nearest(const Palette& palette, const Pixel& pixel) {
    if (palette.mode == kPaletteGreyscale) {
        return Low((pixel.red + 2 * pixel.green + pixel.blue) / 4);
    }
    return ReferenceNearest(palette.colors, palette.size,
                            {Low(pixel.red), Low(pixel.green), Low(pixel.blue), 255});
}

// One colour component's errors. Entry x + 1 of the row belongs to column x.
class ComponentErrors {
  public:
    explicit ComponentErrors(int32 width) : row_(static_cast<size_t>(width) + 2, 0) {}

    void ClearRow() { std::fill(row_.begin(), row_.end(), 0); }
    void ClearCarried() { carried_ = 0; }
    int32 Correct(int32 value) const { return std::clamp(value - carried_, 0, 255); }
    void Spread(size_t x, int32 chosen, int32 corrected) {
        const int64 error = chosen - corrected;
        carried_ = static_cast<int32>((error * 14336 + row_[x + 2]) >> 15);
        row_[x] += error * 6144;
        row_[x + 1] += error * 10240;
        row_[x + 2] = error * 2048;
    }

  private:
    std::vector<int64> row_;
    int32 carried_ = 0;
};

// Packs codes into sub-blocks.
class CodeOutput {
  public:
    explicit CodeOutput(Bytes* out) : out_(out) {}

    void Code(int32 code, int32 size) {
        buffer_ |= static_cast<uint64>(code) << bits_;
        bits_ += size;
        while (bits_ > 7)
            TakeByte();
        while (pending_.size() > 254)
            WriteBlock(255);
    }
    void Flush(int32 size) {
        bits_ += size;
        while (bits_ > 0)
            TakeByte();
        while (!pending_.empty())
            WriteBlock(std::min<size_t>(pending_.size(), 255));
    }

  private:
    void TakeByte() {
        pending_.push_back(static_cast<uint8>(buffer_));
        buffer_ >>= 8;
        bits_ -= 8;
    }
    void WriteBlock(size_t size) {
        const auto end = pending_.begin() + static_cast<std::ptrdiff_t>(size);
        out_->push_back(static_cast<uint8>(size));
        out_->insert(out_->end(), pending_.begin(), end);
        pending_.erase(pending_.begin(), end);
    }

    Bytes* out_;
    Bytes pending_;
    uint64 buffer_ = 0;
    int32 bits_ = 0;
};

int64 DelayField(const AnimationDocument& document, const Frame& frame) {
    double delay = 0;
    if (document.Current()->use_pause) delay = document.Current()->pause_length;
    if (frame.use_pause) delay = frame.pause_length;
    if (document.prefs.global_pauseinseconds) delay *= 100;
    return static_cast<int64>(delay < 0 ? std::ceil(delay) : std::floor(delay + 1e-6));
}

void PutHeader(Bytes* out, const AnimationDocument& document) {
    const Palette& palette = *document.Current()->palette;
    PutText(out, "GIF89a");
    Put16(out, document.Current()->width);
    Put16(out, document.Current()->height);
    out->insert(out->end(), {Low((palette.bits - 1) | 0xF0), Low(palette.background_index), 0});
    PutTable(out, palette, palette.bits);
    if (document.Current()->use_loop) {
        out->insert(out->end(), {0x21, 0xFF, 0x0B});
        PutText(out, "NETSCAPE2.0");
        out->insert(out->end(), {3, 1});
        Put16(out, document.Current()->loop_count);
        out->push_back(0);
    }
    if (document.prefs.animation_gifcomment) {
        const std::string comment = "Created by Kirto v1.4 by Morvik on BeOS";
        out->insert(out->end(), {0x21, 0xFE, Low(static_cast<int64>(comment.size()))});
        PutText(out, comment);
        out->push_back(0);
    }
}

void PutControlBlock(Bytes* out, const AnimationDocument& document, const Frame& frame) {
    const Palette& palette = *document.Current()->palette;
    int32 disposal = document.prefs.animation_gifdisposal;
    if (disposal != 0 && disposal != 1 && disposal != 2) disposal = 3;
    out->insert(out->end(), {0x21, 0xF9, 4});
    out->push_back(Low(disposal * 4 + (palette.use_transparent ? 1 : 0)));
    Put16(out, DelayField(document, frame));
    out->push_back(palette.use_transparent ? Low(palette.transparent_index) : uint8{0});
    out->push_back(0);
}

void PutImage(Bytes* out, const AnimationDocument& document, const Frame& frame) {
    const Palette& palette = PaletteOf(document, frame);
    const Bytes indices = ReferenceIndices(document, frame);
    const uint8 largest = *std::max_element(indices.begin(), indices.end());
    int32 bits = palette.bits;
    while (largest >= 1 << bits)
        ++bits;
    const bool local = frame.local_palette || bits > palette.bits;
    out->push_back(',');
    Put16(out, frame.x_offset);
    Put16(out, frame.y_offset);
    Put16(out, frame.width);
    Put16(out, frame.height);
    const int32 interlaced = document.prefs.animation_gifinterlaced ? 0x40 : 0;
    out->push_back(Low((local ? 0x80 | (bits - 1) : 0) | interlaced));
    if (local) PutTable(out, palette, bits);
    const Bytes data = ReferenceImageData(indices, bits == 1 ? 2 : bits);
    out->insert(out->end(), data.begin(), data.end());
}

}  // namespace

std::vector<uint8> ReferenceIndices(const AnimationDocument& document, const Frame& frame) {
    const Palette& palette = PaletteOf(document, frame);
    const bool interlaced = document.prefs.animation_gifinterlaced;
    const bool dithers = document.Current()->palette->dither && palette.mode != kPaletteGreyscale;
    const bool has_pixels = Is32Bit(frame.bitmap->ColorSpace());
    const size_t width = static_cast<size_t>(frame.width);
    std::vector<ComponentErrors> errors(3, ComponentErrors(frame.width));
    const auto bitmap = frame.bitmap->ToBitmap();
    Traversal traversal(*bitmap, interlaced);
    Bytes indices;
    for (size_t i = 0; i < width * static_cast<size_t>(frame.height); ++i) {
        Pixel pixel;
        if (has_pixels) pixel = PixelAt(traversal.Pixel(), frame.bitmap->ColorSpace());
        if (has_pixels) traversal.Advance();
        const size_t x = i % width;
        for (ComponentErrors& component : errors) {
            if (x == 0) component.ClearCarried();
            if (interlaced && x == width - 1) component.ClearRow();
        }
        if (pixel.alpha < 255) {
            indices.push_back(Low(document.Current()->palette->transparent_index));
            continue;
        }
        if (dithers) {
            pixel = {errors[0].Correct(pixel.red), errors[1].Correct(pixel.green),
                     errors[2].Correct(pixel.blue), 255};
        }
        const uint8 index = Nearest(palette, pixel);
        const rgb_color chosen = palette.ColorForIndex(index);
        errors[0].Spread(x, chosen.red, pixel.red);
        errors[1].Spread(x, chosen.green, pixel.green);
        errors[2].Spread(x, chosen.blue, pixel.blue);
        indices.push_back(index);
    }
    return indices;
}

std::vector<uint8> ReferenceImageData(const std::vector<uint8>& indices, int32 min_code_size) {
    const int32 clear = 1 << min_code_size;
    int32 size = min_code_size + 1;
    int32 largest = (1 << size) - 1;
    int32 next_free = clear + 2;
    std::map<std::pair<int32, uint8>, int32> strings;
    Bytes out = {Low(min_code_size)};
    CodeOutput output(&out);
    output.Code(clear, size);
    int32 prefix = indices[0];
    for (size_t i = 1; i < indices.size(); ++i) {
        const auto known = strings.find({prefix, indices[i]});
        if (known != strings.end()) {
            prefix = known->second;
            continue;
        }
        strings[{prefix, indices[i]}] = next_free;
        output.Code(prefix, size);
        if (next_free > largest) {
            ++size;
            if (size > 12) {
                output.Code(clear, 12);
                size = min_code_size + 1;
                strings.clear();
                next_free = clear + 1;
            }
            largest = (1 << size) - 1;
        }
        prefix = indices[i];
        ++next_free;
    }
    output.Code(prefix, size);
    output.Code(clear + 1, size);
    output.Flush(size);
    out.push_back(0);
    return out;
}

std::vector<uint8> EncodeReferenceGif(const AnimationDocument& document) {
    Bytes out;
    PutHeader(&out, document);
    for (const FramePointer& frame : document.Current()->frames) {
        PutControlBlock(&out, document, *frame);
        PutImage(&out, document, *frame);
    }
    out.push_back(';');
    return out;
}

}  // namespace kirto::test
