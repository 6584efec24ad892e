#pragma once

#include <random>
#include <vector>

#include "support/fli_builder.h"

namespace kirto::test {

// Writes animations of random chunks: sound, but with runs that pass rows and pictures.
class RandomFlic {
  public:
    explicit RandomFlic(uint32 seed) : random_(seed) {}

    FliBuilder Make() {
        width_ = Below(12) + 1;
        height_ = Below(9) + 1;
        FliBuilder fli(width_, height_, Below(2) == 0 ? FliBuilder::kFli : FliBuilder::kFlc);
        for (int32 frames = Below(6) + 1; frames > 0; --frames) {
            fli.Record();
            for (int32 chunks = Below(4) + 1; chunks > 0; --chunks)
                AddChunk(&fli);
        }
        return fli;
    }

  private:
    int32 Below(int32 limit) { return static_cast<int32>(random_() % static_cast<uint32>(limit)); }

    std::vector<uint8> Indices(int32 count) {
        std::vector<uint8> indices;
        for (; count > 0; --count)
            indices.push_back(static_cast<uint8>(Below(256)));
        return indices;
    }

    std::vector<FliColorPacket> Colors() {
        std::vector<FliColorPacket> packets;
        for (int32 count = Below(4); count > 0; --count) {
            FliColorPacket packet{Below(100), {}};
            for (int32 colors = Below(80) + 1; colors > 0; --colors)
                packet.colors.push_back(static_cast<uint32>(random_()) & 0xFFFFFF);
            packets.push_back(packet);
        }
        return packets;
    }

    // unit: bytes a count counts. literal_sign: the sign of counts of literals.
    FliLine Line(int32 unit, int32 literal_sign) {
        FliLine packets;
        for (int32 left = Below(4); left > 0; --left) {
            const int32 count = Below(literal_sign < 0 ? 8 : 7) - 3;
            const bool literal = count * literal_sign > 0;
            const int32 size = count < 0 ? -count : count;
            const int32 values = count == 0 ? (literal_sign < 0 ? 1 : 0) : (literal ? size : 1);
            packets.push_back({Below(width_ + 1), count, Indices(values * unit)});
        }
        return packets;
    }

    std::vector<FliLine> Lines(int32 count, int32 literal_sign) {
        std::vector<FliLine> lines;
        for (; count > 0; --count)
            lines.push_back(Line(1, literal_sign));
        return lines;
    }

    std::vector<FliDeltaLine> DeltaLines() {
        std::vector<FliDeltaLine> lines;
        for (int32 count = Below(height_ + 1); count > 0; --count) {
            FliDeltaLine line{{}, Line(2, 1)};
            if (Below(3) == 0) line.words.push_back(-1 - Below(3));
            if (Below(20) == 0) line.words.push_back(0x8000 + Below(256));
            lines.push_back(line);
        }
        return lines;
    }

    void AddChunk(FliBuilder* fli) {
        switch (Below(9)) {
            case 0:
                fli->Color256(Colors());
                break;
            case 1:
                fli->Color64(Colors());
                break;
            case 2:
                fli->Lc(Below(height_), Lines(Below(height_ + 2), 1));
                break;
            case 3:
                fli->Brun(Lines(height_, -1));
                break;
            case 4:
                fli->BrunOf(Indices(width_ * height_));
                break;
            case 5:
                fli->Copy(Indices(width_ * height_));
                break;
            case 6:
                fli->Delta(DeltaLines());
                break;
            case 7:
                fli->Black();
                break;
            default:
                fli->Mini(Indices(Below(10)));
                break;
        }
    }

    std::mt19937 random_;
    int32 width_ = 1;
    int32 height_ = 1;
};

}  // namespace kirto::test
