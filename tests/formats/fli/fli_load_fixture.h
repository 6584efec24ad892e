// What the tests of FliLoad share.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "formats/fli/fli_load.h"
#include "support/colors.h"
#include "support/fli_builder.h"
#include "support/test_support.h"

namespace kirto::test {

using Pixels = std::vector<uint32>;

// Entries 0 to 4: black, red, green, blue, white.
inline const std::vector<FliColorPacket> kColors = {
    {0, {0, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF}}};

// What became of a file.
struct Load {
    int32 end = 0;
    bool failed = false;
    std::string lines;
};

inline Load LoadInto(AnimationDocument& document, std::vector<uint8> bytes, int32 start = 0) {
    const DebugRecorder recorder;
    const auto file = BFile::OnMemory(std::move(bytes));
    const FliLoad loader(file.get(), start, document);
    return {loader.End(), loader.failed, recorder.Text()};
}

class FliLoadTest : public testing::Test {
  protected:
    Load LoadFile(std::vector<uint8> bytes, int32 start = 0) {
        return LoadInto(document_, std::move(bytes), start);
    }

    Pixels PixelsAt(int32 position) const {
        const FramePointer frame = document_.FrameAt(position);
        return frame ? PixelsOf(*frame->bitmap) : Pixels{};
    }

    uint32 GlobalEntry(size_t i) const { return EntryOf(*document_.Current()->palette, i); }
    uint32 LocalEntry(int32 position, size_t i) const {
        return EntryOf(*document_.FrameAt(position)->palette, i);
    }

    DocumentFixture fixture_;
    AnimationDocument& document_ = fixture_.document;

  private:
    static uint32 EntryOf(const Palette& palette, size_t i) {
        const rgb_color& color = palette.colors[i];
        const uint32 red = color.red;
        const uint32 green = color.green;
        return uint32{color.alpha} << 24 | red << 16 | green << 8 | color.blue;
    }
};

// A file of one frame: the colours, then what the test adds.
inline FliBuilder OneFrame(int32 width, int32 height) {
    return FliBuilder(width, height).Record().Color256(kColors);
}

}  // namespace kirto::test
