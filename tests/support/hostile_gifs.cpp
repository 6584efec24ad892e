#include "support/gif_builder.h"
#include "support/hostile_files.h"

namespace kirto::test {

namespace {

const std::vector<uint32> kTwoColors{0x000000, 0xFFFFFF};

std::vector<uint8> Repeated(GifBuilder start, const std::vector<uint8>& part, int32 count,
                            const std::vector<uint8>& end) {
    std::vector<uint8> bytes = start;
    bytes.reserve(bytes.size() + part.size() * static_cast<size_t>(count) + end.size());
    for (int32 i = 0; i < count; ++i)
        bytes.insert(bytes.end(), part.begin(), part.end());
    bytes.insert(bytes.end(), end.begin(), end.end());
    return bytes;
}

// The bytes of a builder's blocks, without those of the file's head.
std::vector<uint8> BlocksOf(const std::function<void(GifBuilder&)>& add) {
    GifBuilder builder(1, 1);
    const size_t head = builder.Data().size();
    add(builder);
    return {builder.Data().begin() + static_cast<std::ptrdiff_t>(head), builder.Data().end()};
}

GifBuilder::Image Dot() {
    return {.indices = {1}, .local_table = {}, .min_code_size = 2};
}

std::vector<uint8> Trailed(std::vector<uint8> bytes) {
    bytes.push_back(0x3B);
    return bytes;
}

// So many images of one pixel on a canvas of that side.
std::vector<uint8> Frames(int32 side, int32 count) {
    return Repeated({side, side, kTwoColors}, BlocksOf([](GifBuilder& b) { b.Add(Dot()); }), count,
                    {0x3B});
}

std::vector<uint8> FramesWithTables(int32 count) {
    GifBuilder::Image image{
        .indices = {1}, .local_table = std::vector<uint32>(256, 0x123456), .min_code_size = 8};
    return Repeated({1, 1}, BlocksOf([&](GifBuilder& b) { b.Add(image); }), count, {0x3B});
}

// Images that are one pixel wide, as high as can be and end after a pixel: memory is asked for, but
// the file has nothing to put into it.
std::vector<uint8> CutHighFrames(int32 count) {
    const GifBuilder::Image image{.width = 1,
                                  .height = 65535,
                                  .indices = {},
                                  .local_table = {},
                                  .interlaced = true,
                                  .min_code_size = 2};
    return Repeated({1, 65535, kTwoColors}, BlocksOf([&](GifBuilder& b) {
                        b.AddCodes(image, {4, 1, 5});
                    }),
                    count, {0x3B});
}

// An image whose data are that byte, each in a sub-block of its own.
std::vector<uint8> OneByteBlocks(uint8 byte, int32 count) {
    GifBuilder start(64, 64, kTwoColors);
    start.Bytes({0x2C, 0, 0, 0, 0, 64, 0, 64, 0, 0, 7});
    return Repeated(start, {1, byte}, count, {0, 0x3B});
}

std::vector<uint8> Comments(int32 mebibytes) {
    std::vector<uint8> block(256, 'x');
    block[0] = 255;
    GifBuilder start(64, 64, kTwoColors);
    start.Bytes({0x21, 0xFE});
    return Repeated(start, block, mebibytes * 4096,
                    BlocksOf([](GifBuilder& b) { b.Bytes({0}).Add(Dot()).Trailer(); }));
}

std::vector<uint8> Blocks(int32 count, const std::function<void(GifBuilder&)>& add) {
    return Repeated({64, 64, kTwoColors}, BlocksOf(add), count,
                    BlocksOf([](GifBuilder& b) { b.Add(Dot()).Trailer(); }));
}

std::vector<uint8> SizedGif(int32 width, int32 height, int32 code_size, bool interlaced) {
    GifBuilder builder(width, height, kTwoColors);
    const GifBuilder::Image image{.width = width,
                                  .height = height,
                                  .indices = {},
                                  .local_table = {},
                                  .interlaced = interlaced,
                                  .min_code_size = code_size};
    return Trailed(builder.AddData(image, std::vector<uint8>(300, 0)));
}

std::vector<uint8> PlacedGif(int32 x, int32 y, int32 width, int32 height) {
    GifBuilder builder(64, 64, kTwoColors);
    const GifBuilder::Image image{.x = x,
                                  .y = y,
                                  .width = width,
                                  .height = height,
                                  .indices = {},
                                  .local_table = {},
                                  .min_code_size = 2};
    return Trailed(builder.AddCodes(image, {4, 1, 1, 5}));
}

}  // namespace

std::vector<HostileSeries> HostileGifSeries() {
    return {
        {"frames-on-64x64.gif", 1000000, [](int32 n) { return Frames(64, n); }},
        {"frames-on-4096x4096.gif", 100000, [](int32 n) { return Frames(4096, n); }},
        {"frames-of-1x1.gif", 1000000, [](int32 n) { return Frames(1, n); }},
        {"frames-with-tables.gif", 100000, FramesWithTables},
        {"cut-frames-of-1x65535.gif", 100000, CutHighFrames},
        {"sub-blocks-of-one-byte.gif", 10000000, [](int32 n) { return OneByteBlocks(0, n); }},
        {"clear-codes.gif", 10000000, [](int32 n) { return OneByteBlocks(0x80, n); }},
        {"mebibytes-of-comments.gif", 100, Comments},
        {"empty-comments.gif", 1000000,
         [](int32 n) { return Blocks(n, [](GifBuilder& b) { b.Comment(""); }); }},
        {"controls-without-image.gif", 1000000,
         [](int32 n) { return Blocks(n, [](GifBuilder& b) { b.Control(1, 1, 1); }); }},
        {"loop-blocks.gif", 1000000,
         [](int32 n) { return Blocks(n, [](GifBuilder& b) { b.Loop(1); }); }},
        {"unknown-blocks.gif", 1000000,
         [](int32 n) { return Blocks(n, [](GifBuilder& b) {
                           b.Bytes({0x21, 0x77, 1, 0, 0});
                       }); }},
        {"zeros-between-blocks.gif", 10000000,
         [](int32 n) { return Blocks(n, [](GifBuilder& b) { b.Bytes({0}); }); }},
    };
}

void ForEachHostileGif(bool few, const std::function<void(const HostileFile& file)>& take) {
    const std::vector<int32> all_sides{0, 1, 2, 7, 8, 9, 255, 256, 65535};
    const std::vector<int32> sides = few ? std::vector<int32>{0, 1, 65535} : all_sides;
    std::vector<int32> code_sizes{0, 1, 8, 11, 12, 255};
    if (!few) code_sizes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 127, 128, 255};
    for (const int32 width : sides) {
        for (const int32 height : sides) {
            const std::string size = std::to_string(width) + "x" + std::to_string(height);
            for (const int32 code_size : code_sizes) {
                take({size + "-code-size-" + std::to_string(code_size) + ".gif",
                      SizedGif(width, height, code_size, (code_size & 1) != 0)});
            }
        }
    }
    std::vector<int32> places{0, 63, 65535};
    if (!few) places = {0, 1, 63, 64, 65, 32767, 32768, 65534, 65535};
    for (const int32 x : places) {
        for (const int32 y : places) {
            for (const int32 side : {1, 64, 65535}) {
                take({"at-" + std::to_string(x) + "-" + std::to_string(y) + "-side-" +
                          std::to_string(side) + ".gif",
                      PlacedGif(x, y, side, 64)});
            }
        }
    }
}

}  // namespace kirto::test
