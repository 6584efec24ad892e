// Arbitrary bytes as the codes of a GIF image: the decoder gives what a plain one gives. The first
// byte chooses the code size and whether the rest are the codes' own bits or choices among codes,
// which reach strings of every length sooner than bits do.
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <span>

#include "base/debug_line.h"
#include "formats/gif/gif_index_writer.h"
#include "formats/gif/gif_lzw_decoder.h"
#include "support/gif_builder.h"
#include "support/reference_gif_decoder.h"

namespace {

using kirto::test::GifBuilder;

// With the largest code size so many codes fill the table, and the plain decoder is quick.
constexpr size_t kMostBytes = 2304;

void Check(bool holds) {
    if (!holds) std::abort();
}

// A code for each byte, most of which a decoder knows at that point: colors, strings old and new,
// the string that the code itself completes, and now and then one that can't be yet.
std::vector<int32> SpelledCodes(std::span<const uint8> choices, int32 min_code_size) {
    const int32 clear = 1 << min_code_size;
    int32 next = clear + 2;
    bool first = true;
    std::vector<int32> codes;
    for (const uint8 choice : choices) {
        int32 code = choice % clear;
        if (choice >= 250) {
            code = choice == 255 ? clear + 1 : clear;
        } else if (choice >= 240) {
            code = std::min(next + choice - 240, 4095);
        } else if (choice >= 64) {
            code = std::max(next - 1 - (choice - 64), 0);
        }
        if (code == clear) {
            next = clear + 2;
            first = true;
        } else if (first) {
            first = false;
        } else {
            next = std::min(next + 1, 4096);
        }
        codes.push_back(code);
    }
    return codes;
}

void CompareDecoders(const std::vector<uint8>& blocks, int32 min_code_size) {
    const kirto::test::ReferencePixels plain =
        kirto::test::DecodeReferenceLzw(blocks, min_code_size);
    const auto room = static_cast<int32>(plain.indices.size()) + 1;
    std::vector<uint8> row(static_cast<size_t>(room));
    kirto::GifIndexWriter writer(row.data(), room, 1, false);
    const auto file = BFile::OnMemory(blocks);
    kirto::Work work;
    kirto::WatchedInput input(*file, work);
    kirto::GifImageData data;
    data.Read(input, blocks.size());
    const auto decoder = std::make_unique<kirto::GifLzwDecoder>(data, min_code_size);
    Check(decoder->Decode(writer, work, file->Size()) == plain.success);
    const std::vector<int32> lengths = writer.RowLengths();
    Check(lengths.size() == 1 && lengths[0] == room - 1);
    Check(std::equal(plain.indices.begin(), plain.indices.end(), row.begin()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    kirto::InstallDebugSink([](const std::string&) {});
    const int32 min_code_size = 2 + (data[0] >> 1) % 10;
    const std::span<const uint8> rest{data + 1, std::min(size - 1, kMostBytes)};
    if ((data[0] & 1) != 0) {
        CompareDecoders(GifBuilder::SubBlocks({rest.begin(), rest.end()}), min_code_size);
    } else {
        const std::vector<int32> codes = SpelledCodes(rest, min_code_size);
        CompareDecoders(GifBuilder::SubBlocks(GifBuilder::PackCodes(min_code_size, codes)),
                        min_code_size);
    }
    return 0;
}
