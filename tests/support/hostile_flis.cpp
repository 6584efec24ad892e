#include "support/fli_builder.h"
#include "support/hostile_files.h"

namespace kirto::test {

namespace {

constexpr int32 kBlack = 13;
constexpr int32 kUnknown = 99;

// A sound frame and that many records, all alike: one is built, and its bytes are repeated.
std::vector<uint8> Records(int32 side, int32 count, const std::function<void(FliBuilder&)>& add) {
    FliBuilder builder(side, side);
    builder.Record().Black();
    const size_t head = builder.Data().size();
    add(builder);
    std::vector<uint8> bytes = builder;
    const std::vector<uint8> record(bytes.begin() + static_cast<std::ptrdiff_t>(head), bytes.end());
    bytes.reserve(head + record.size() * static_cast<size_t>(count));
    for (int32 i = 1; i < count; ++i)
        bytes.insert(bytes.end(), record.begin(), record.end());
    // The header can't count them all.
    bytes[6] = bytes[7] = 0xFF;
    return bytes;
}

// A picture of 4096 x 4096 with many colors, and that many records that change what they are.
std::vector<uint8> RecoloredRecords(int32 count) {
    constexpr int32 kSide = 4096;
    std::vector<uint8> indices(size_t{kSide} * kSide);
    for (size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<uint8>(i * i >> 5);
    FliBuilder builder(kSide, kSide);
    builder.Record().Copy(indices);
    for (int32 i = 0; i < count; ++i)
        builder.Record().Color256({{0, {static_cast<uint32>(i), 0xFFFFFF}}});
    return builder;
}

void AddChunks(FliBuilder& builder, int32 count) {
    builder.Record();
    for (int32 i = 0; i < count; ++i)
        builder.Black();
}

std::vector<uint8> OneChunk(int32 type, const std::vector<uint8>& data, int64 size) {
    FliBuilder builder(64, 64);
    builder.Record().Black().Chunk(type, data);
    if (size >= 0) builder.ChunkSize(size);
    return builder.Record();
}

std::vector<uint8> OneRecord(int64 size, int32 chunks) {
    FliBuilder builder(64, 64);
    return builder.Record().Black().RecordSize(size).ChunkCount(chunks).Record();
}

std::vector<uint8> Sized(int32 width, int32 height, uint16 magic) {
    FliBuilder builder(width, height, magic);
    return builder.Record().Black().Record();
}

// Packets at the edges of what their two bytes can say, in each kind of chunk.
void ForEachPacket(bool few, const std::function<void(const HostileFile& file)>& take) {
    const std::vector<uint8> some{0, 127, 128, 255};
    for (const int32 type : {4, 7, 11, 12, 13, 15, 16, 18, kUnknown}) {
        for (const uint8 first : some) {
            for (const uint8 second : some) {
                if (few && first != second) continue;
                std::vector<uint8> data{1, 0};
                for (int32 i = 0; i < 200; ++i)
                    data.insert(data.end(), {first, second});
                take({"chunk-" + std::to_string(type) + "-of-" + std::to_string(first) + "-" +
                          std::to_string(second) + ".flc",
                      OneChunk(type, data, -1)});
            }
        }
    }
}

}  // namespace

std::vector<HostileSeries> HostileFliSeries() {
    return {
        {"records-of-64x64.flc", 1000000,
         [](int32 n) { return Records(64, n, [](FliBuilder& b) { b.Record().Black(); }); }},
        {"records-of-4096x4096.flc", 100000,
         [](int32 n) { return Records(4096, n, [](FliBuilder& b) { b.Record().Black(); }); }},
        {"dots-on-black-of-4096x4096.flc", 100000,
         [](int32 n) {
             return Records(4096, n, [](FliBuilder& b) {
                 b.Record().Black().Lc(0, {{{0, 1, {7}}}});
             });
         }},
        {"recolored-records-of-4096x4096.flc", 2000, RecoloredRecords},
        {"records-of-1x1.flc", 1000000,
         [](int32 n) { return Records(1, n, [](FliBuilder& b) { b.Record().Black(); }); }},
        {"empty-records.flc", 1000000,
         [](int32 n) { return Records(64, n, [](FliBuilder& b) { b.Record(); }); }},
        {"chunks-in-records.flc", 100,
         [](int32 n) { return Records(64, n, [](FliBuilder& b) { AddChunks(b, 10000); }); }},
        {"skipped-records.flc", 1000000,
         [](int32 n) {
             return Records(64, n, [](FliBuilder& b) { b.Record(FliBuilder::kSkipped); });
         }},
    };
}

void ForEachHostileFli(bool few, const std::function<void(const HostileFile& file)>& take) {
    std::vector<int32> sides{0, 1, 65535};
    if (!few) sides = {0, 1, 2, 7, 8, 9, 255, 256, 32767, 32768, 65535};
    for (const uint16 magic : {FliBuilder::kFli, FliBuilder::kFlc}) {
        for (const int32 width : sides) {
            for (const int32 height : sides) {
                take({std::to_string(width) + "x" + std::to_string(height) +
                          (magic == FliBuilder::kFli ? ".fli" : ".flc"),
                      Sized(width, height, magic)});
            }
        }
    }
    const std::vector<int64> sizes{0,  1,     5,     6,          7,          15,        16,
                                   17, 65535, 65536, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    for (const int64 size : sizes) {
        for (const int32 chunks : {0, 1, 2, 65535}) {
            take({"record-size-" + std::to_string(size) + "-chunks-" + std::to_string(chunks) +
                      ".flc",
                  OneRecord(size, chunks)});
        }
        take({"chunk-size-" + std::to_string(size) + ".flc", OneChunk(kBlack, {}, size)});
    }
    ForEachPacket(few, take);
}

}  // namespace kirto::test
