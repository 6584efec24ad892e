#include "support/random_fli.h"

#include <algorithm>
#include <random>

#include "support/fli_builder.h"

namespace kirto::test {

namespace {

constexpr int32 kUnknownChunk = 77;
constexpr uint16 kPrefix = 0xF100;
constexpr int32 kMostPackets = 4;

class FliMaker {
  public:
    explicit FliMaker(uint32 seed)
        : random_(seed), width_(1 + Below(24)), height_(1 + Below(16)), old_(Below(3) == 0) {}

    std::vector<uint8> Make() {
        FliBuilder file(width_, height_, old_ ? FliBuilder::kFli : FliBuilder::kFlc, Below(200));
        const int32 frames = 1 + Below(5);
        for (int32 i = 0; i < frames; ++i) {
            if (Below(8) == 0) file.Record(kPrefix).Chunk(1, Noise(Below(9)));
            if (Below(8) == 0) file.Record(FliBuilder::kSkipped);
            file.Record();
            if (i == 0) AddColors(file, {{0, Colors(256)}});
            if (Below(4) == 0) AddColors(file, SomeColors());
            for (int32 chunks = Below(3) + (i == 0); chunks > 0; --chunks)
                AddPicture(file, i == 0);
        }
        return file.FrameCount(frames);
    }

  private:
    int32 Below(int32 end) { return static_cast<int32>(random_() % static_cast<uint32>(end)); }
    std::vector<uint8> Noise(int32 count) {
        std::vector<uint8> bytes(static_cast<size_t>(count));
        for (uint8& byte : bytes)
            byte = static_cast<uint8>(random_());
        return bytes;
    }
    // Rows with runs, as drawings have them.
    std::vector<uint8> Pixels() {
        std::vector<uint8> pixels = Noise(width_ * height_);
        for (size_t i = 1; i < pixels.size(); ++i) {
            if (Below(3) != 0) pixels[i] = pixels[i - 1];
        }
        return pixels;
    }

    std::vector<uint32> Colors(int32 count) {
        std::vector<uint32> colors(static_cast<size_t>(count));
        for (uint32& color : colors)
            color = static_cast<uint32>(random_()) & (old_ ? 0x3F3F3F : 0xFFFFFF);
        return colors;
    }
    std::vector<FliColorPacket> SomeColors() {
        std::vector<FliColorPacket> packets(static_cast<size_t>(1 + Below(3)));
        for (FliColorPacket& packet : packets)
            packet = {Below(8), Colors(1 + Below(60))};
        return packets;
    }
    void AddColors(FliBuilder& file, const std::vector<FliColorPacket>& packets) {
        old_ ? file.Color64(packets) : file.Color256(packets);
    }

    void AddPicture(FliBuilder& file, bool first) {
        switch (Below(first ? 3 : 7)) {
            case 0:
            case 1:
                file.BrunOf(Pixels());
                break;
            case 2:
                file.Copy(Pixels());
                break;
            case 3:
                AddLc(file);
                break;
            case 4:
                old_ ? AddLc(file) : AddDelta(file);
                break;
            case 5:
                file.Black();
                break;
            default:
                file.Chunk(kUnknownChunk, Noise(Below(20)));
                break;
        }
    }

    // Packets that stay within a row. unit: bytes that a count counts.
    FliLine Line(int32 unit) {
        FliLine line;
        int32 x = 0;
        while (static_cast<int32>(line.size()) < kMostPackets) {
            FliPacket packet;
            packet.skip = Below(4);
            const int32 room = (width_ - x - packet.skip) / unit;
            if (room < 1) break;
            const int32 count = 1 + Below(room);
            const bool run = Below(2) == 0;
            packet.count = run ? -count : count;
            packet.data = Noise(run ? unit : count * unit);
            x += packet.skip + count * unit;
            line.push_back(packet);
        }
        return line;
    }

    void AddLc(FliBuilder& file) {
        const int32 first = Below(height_);
        std::vector<FliLine> lines(static_cast<size_t>(1 + Below(height_ - first)));
        for (FliLine& line : lines)
            line = Line(1);
        file.Lc(first, lines);
    }

    void AddDelta(FliBuilder& file) {
        std::vector<FliDeltaLine> lines;
        for (int32 y = 0; y < height_; ++y) {
            FliDeltaLine line;
            const int32 skipped = Below(3);
            if (skipped > 0 && y + skipped < height_) {
                line.words.push_back(-skipped);
                y += skipped;
            }
            // The last pixel of a row of words and a half.
            if (width_ % 2 != 0 && Below(2) == 0) line.words.push_back(0x8000 | Below(256));
            line.packets = Line(2);
            lines.push_back(line);
        }
        file.Delta(lines);
    }

    std::mt19937 random_;
    const int32 width_;
    const int32 height_;
    const bool old_;  // FLI, with colors of six bits
};

}  // namespace

std::vector<uint8> RandomFli(uint32 seed) {
    return FliMaker(seed).Make();
}

}  // namespace kirto::test
