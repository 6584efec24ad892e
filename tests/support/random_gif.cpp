#include "support/random_gif.h"

#include <algorithm>
#include <bit>
#include <map>
#include <random>
#include <string>

#include "support/gif_builder.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

constexpr int32 kMaxCodes = 4096;

// The data of an image, compressed, with a clear code when the table is full or at random.
class DataMaker {
  public:
    DataMaker(int32 min_code_size, std::mt19937& random)
        : random_(random), min_(min_code_size), clear_(1 << min_code_size) {}

    Bytes Make(const Bytes& indices) {
        // The first code need not be a clear.
        Clear(random_() % 4 != 0);
        int32 string = -1;
        for (const uint8 index : indices) {
            const auto known = strings_.find({string, index});
            if (string < 0) {
                string = index;
            } else if (known != strings_.end()) {
                string = known->second;
            } else {
                Put(string);
                if (next_ < kMaxCodes) {
                    strings_[{string, index}] = next_++;
                } else if (random_() % 64 == 0) {
                    Clear(true);
                }
                string = index;
            }
        }
        if (string >= 0) Put(string);
        Put(clear_ + 1);
        if (bits_ > 0) bytes_.push_back(static_cast<uint8>(buffer_));
        return bytes_;
    }

  private:
    void Clear(bool written) {
        if (written) Write(clear_);
        strings_.clear();
        next_ = clear_ + 2;
        size_ = min_ + 1;
        decoder_next_ = clear_ + 1;
    }
    // Bits grow as the decoder's table does, which is one string behind.
    void Put(int32 code) {
        Write(code);
        if (decoder_next_ < kMaxCodes) ++decoder_next_;
        if (decoder_next_ >> size_ != 0 && size_ < 12) ++size_;
    }
    void Write(int32 code) {
        buffer_ |= static_cast<uint64>(code) << bits_;
        for (bits_ += size_; bits_ >= 8; bits_ -= 8, buffer_ >>= 8)
            bytes_.push_back(static_cast<uint8>(buffer_));
    }

    std::mt19937& random_;
    const int32 min_;
    const int32 clear_;
    std::map<std::pair<int32, uint8>, int32> strings_;
    int32 next_ = 0;
    int32 decoder_next_ = 0;
    int32 size_ = min_ + 1;
    uint64 buffer_ = 0;
    int32 bits_ = 0;
    Bytes bytes_;
};

class GifMaker {
  public:
    explicit GifMaker(uint32 seed)
        : random_(seed), width_(1 + Below(40)), height_(1 + Below(40)), global_(MaybeTable(9)) {}

    Bytes Make() {
        GifBuilder gif(width_, height_, global_, static_cast<uint8>(Below(256)),
                       OneIn(4) ? "GIF87a" : "GIF89a");
        AddLoop(gif);
        for (int32 left = 1 + Below(8); left > 0; --left)
            AddImage(gif);
        gif.Trailer();
        return gif;
    }

  private:
    int32 Below(int32 limit) { return static_cast<int32>(random_() % static_cast<uint32>(limit)); }
    bool OneIn(int32 n) { return Below(n) == 0; }

    // A table, but once in so many times none.
    std::vector<uint32> MaybeTable(int32 none) {
        if (OneIn(none)) return {};
        std::vector<uint32> table(size_t{2} << Below(8));
        for (uint32& color : table)
            color = static_cast<uint32>(random_()) & 0xFFFFFF;
        return table;
    }

    void AddLoop(GifBuilder& gif) {
        static const std::string kNames[] = {"NETSCAPE2.0", "ANIMEXTS1.0", "KIRTOTEST10"};
        for (int32 left = Below(3); left > 0; --left) {
            const std::string& name = kNames[Below(3)];
            gif.Bytes({0x21, 0xFF, 11}).Bytes({name.begin(), name.end()});
            const uint8 number = OneIn(5) ? 2 : 1;
            gif.Bytes({3, number, static_cast<uint8>(Below(4)), static_cast<uint8>(Below(2)), 0});
        }
    }

    void AddControl(GifBuilder& gif, int32 colors) {
        const int32 disposal = OneIn(10) ? Below(8) : Below(4);
        const int32 delay = OneIn(3) ? 0 : Below(30);
        gif.Control(disposal, delay, OneIn(2) ? -1 : Below(std::min(colors + 1, 256)));
    }

    GifBuilder::Image MakePlace() {
        GifBuilder::Image image;
        image.width = width_;
        image.height = height_;
        if (OneIn(3)) return image;
        image.x = Below(width_);
        image.y = Below(height_);
        const bool overhangs = OneIn(4);
        image.width = 1 + Below(overhangs ? width_ + 10 : width_ - image.x);
        image.height = 1 + Below(overhangs ? height_ + 10 : height_ - image.y);
        if (OneIn(20)) image.x += width_;
        return image;
    }

    // In runs, as pictures are; the order is that of the data.
    Bytes MakeIndices(const GifBuilder::Image& image, int32 colors) {
        Bytes indices(static_cast<size_t>(image.width) * static_cast<size_t>(image.height));
        uint8 index = 0;
        const int32 run = 1 + Below(20);
        for (uint8& each : indices) {
            if (OneIn(run)) index = static_cast<uint8>(Below(colors));
            each = index;
        }
        return indices;
    }

    void AddImage(GifBuilder& gif) {
        GifBuilder::Image image = MakePlace();
        if (OneIn(3)) image.local_table = MaybeTable(4);
        image.interlaced = OneIn(3);
        const size_t entries =
            image.local_table.empty() ? global_.size() : image.local_table.size();
        const int32 colors = OneIn(4) ? 1 + Below(4) : std::max(2, static_cast<int32>(entries));
        const int32 needed = static_cast<int32>(std::bit_width(static_cast<uint32>(colors - 1)));
        image.min_code_size = std::max(needed, OneIn(3) ? 1 : 2);
        if (OneIn(4)) image.min_code_size += Below(9 - image.min_code_size);
        // Indices without an entry are black.
        const int32 used = OneIn(6) ? 1 << image.min_code_size : colors;
        image.indices = MakeIndices(image, used);
        if (OneIn(5)) gif.Comment("an image of " + std::to_string(used) + " colors");
        if (!OneIn(5)) AddControl(gif, colors);
        gif.AddData(image, DataMaker(image.min_code_size, random_).Make(image.indices));
    }

    std::mt19937 random_;
    const int32 width_;
    const int32 height_;
    const std::vector<uint32> global_;
};

}  // namespace

Bytes RandomGif(uint32 seed) {
    return GifMaker(seed).Make();
}

}  // namespace kirto::test
