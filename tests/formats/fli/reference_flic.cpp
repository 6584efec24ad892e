#include "formats/fli/reference_flic.h"

namespace kirto::test {

namespace {

class Decoder {
  public:
    Decoder(const std::vector<uint8>& file, const FlicDialect& dialect, const FlicPalette& palette)
        : file_(file), dialect_(dialect), palette_(palette), width_(At16(8)), height_(At16(10)) {
        Black();
    }

    std::vector<FlicFrame> Decode() {
        std::vector<FlicFrame> frames;
        for (size_t record = 128; record + 16 <= file_.size();) {
            const size_t size = At32(record);
            if (size < 16) break;
            if (At16(record + 4) == 0xF1FA) frames.push_back(DecodeRecord(record));
            record += size;
        }
        return frames;
    }

  private:
    uint32 At8(size_t offset) const { return offset < file_.size() ? file_[offset] : 0; }
    uint32 At16(size_t offset) const { return At8(offset) | At8(offset + 1) << 8; }
    uint32 At32(size_t offset) const { return At16(offset) | At16(offset + 2) << 16; }
    // Reads at the cursor.
    uint32 U8() { return At8(cursor_++); }
    int32 S8() { return static_cast<int8>(U8()); }
    uint32 U16() {
        const uint32 low = U8();
        return low | U8() << 8;
    }

    FlicFrame DecodeRecord(size_t record) {
        FlicFrame frame;
        frame.chunk_count = static_cast<int32>(At16(record + 6));
        size_t chunk = record + 16;
        for (int32 i = 0; i < frame.chunk_count; ++i) {
            cursor_ = chunk + 6;
            DecodeChunk(At16(chunk + 4));
            chunk += At32(chunk);
        }
        frame.indices = indices_;
        frame.colors = drawn_;
        for (size_t i = 0; i < indices_.size() && !dialect_.colors_as_drawn; ++i)
            frame.colors[i] = palette_[indices_[i]];
        return frame;
    }

    void DecodeChunk(uint32 type) {
        if (type == 4) Colors(false);
        if (type == 11) Colors(true);
        if (type == 12) Lc();
        if (type == 7) Delta();
        if (type == 13) Black();
        if (type == 15) Brun();
        for (size_t i = 0; type == 16 && i < width_ * height_; ++i)
            Set(i % width_, i / width_, U8());
    }

    uint32 Component(bool six_bits) {
        const uint32 value = U8();
        if (!six_bits) return value;
        return (dialect_.components_times_four ? value * 4 : value << 2 | value >> 4) & 0xFF;
    }

    void Colors(bool six_bits) {
        size_t entry = 0;
        for (uint32 packets = U16(); packets > 0; --packets) {
            entry += U8();
            const uint32 count = U8();
            for (uint32 i = 0; i < (count == 0 ? 256 : count); ++i, ++entry) {
                const uint32 red = Component(six_bits);
                const uint32 green = Component(six_bits);
                const uint32 blue = Component(six_bits);
                if (entry < 256) palette_[entry] = red << 16 | green << 8 | blue;
            }
        }
    }

    void Lc() {
        size_t y = U16();
        for (uint32 lines = U16(); lines > 0; --lines, ++y) {
            size_t x = 0;
            for (uint32 packets = U8(); packets > 0; --packets) {
                x += U8();
                const int32 count = S8();
                const uint32 repeated = count < 0 ? U8() : 0;
                for (int32 i = 0; i < (count < 0 ? -count : count); ++i)
                    Set(x++, y, count < 0 ? repeated : U8());
            }
        }
    }

    void Delta() {
        size_t y = 0;
        for (uint32 lines = U16(); lines > 0;) {
            const uint32 word = U16();
            if (word >= 0xC000 || (word >= 0x8000 && dialect_.every_negative_word_skips)) {
                y += 0x10000 - word;
            } else if (word >= 0x8000) {
                Set(width_ - 1, y, word & 0xFF);
            } else {
                DeltaLine(y++, word);
                --lines;
            }
        }
    }

    void DeltaLine(size_t y, uint32 packets) {
        size_t x = 0;
        for (; packets > 0; --packets) {
            x += U8();
            const int32 count = S8();
            const size_t pair = cursor_;
            for (int32 i = 0; i < (count < 0 ? -count : count); ++i) {
                if (count < 0) cursor_ = pair;
                Set(x++, y, U8());
                Set(x++, y, U8());
            }
        }
    }

    // Where runs continue, a row is as long as its packets; else it ends where it is full, whatever
    // its count of packets says (wide rows need more than that byte can count).
    void Brun() {
        size_t x = 0;
        for (size_t y = 0; y < height_; ++y) {
            uint32 packets = U8();
            if (!dialect_.runs_continue) x = 0;
            while (dialect_.runs_continue ? packets-- > 0 : x < width_) {
                const int32 count = S8();
                const uint32 repeated = count < 0 ? 0 : U8();
                for (int32 i = 0; i < (count < 0 ? -count : count); ++i)
                    Set(x++, dialect_.runs_continue ? 0 : y, count < 0 ? U8() : repeated);
            }
        }
    }

    void Black() {
        indices_.assign(width_ * height_, 0);
        drawn_.assign(width_ * height_, dialect_.black_is_black ? 0 : palette_[0]);
    }

    void Set(size_t x, size_t y, uint32 index) {
        if (dialect_.runs_continue) {
            y += x / width_;
            x %= width_;
        }
        if (x >= width_ || y >= height_) return;
        indices_[y * width_ + x] = static_cast<uint8>(index);
        drawn_[y * width_ + x] = palette_[index];
    }

    const std::vector<uint8>& file_;
    const FlicDialect dialect_;
    FlicPalette palette_;
    const size_t width_;
    const size_t height_;
    std::vector<uint8> indices_;
    std::vector<uint32> drawn_;
    size_t cursor_ = 0;
};

}  // namespace

std::vector<FlicFrame> DecodeFlic(const std::vector<uint8>& file, const FlicDialect& dialect,
                                  const FlicPalette& palette) {
    return Decoder(file, dialect, palette).Decode();
}

}  // namespace kirto::test
