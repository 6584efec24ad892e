// Builds GIF files byte by byte, sound or broken on purpose.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "base/types.h"

namespace kirto::test {

// Fluent writer of GIF bytes. Nothing is checked: what a test asks for is what it gets.
class GifBuilder {
  public:
    struct Image {
        int32 x = 0;
        int32 y = 0;
        int32 width = 1;
        int32 height = 1;
        std::vector<uint8> indices;       // in the order of the data
        std::vector<uint32> local_table;  // 0xRRGGBB, a power of two of them; empty: none
        bool interlaced = false;
        int32 min_code_size = 8;  // also the byte written
    };

    // Signature and screen descriptor. table: the global one, 0xRRGGBB, a power of two of entries;
    // empty: none.
    GifBuilder(int32 width, int32 height, const std::vector<uint32>& table = {},
               uint8 background = 0, const std::string& signature = "GIF89a");

    GifBuilder& Loop(int32 count);
    // transparent: -1 for none.
    GifBuilder& Control(int32 disposal, int32 delay, int32 transparent = -1);
    GifBuilder& Comment(const std::string& text);
    // Descriptor, local table and data in uncompressed form: a clear code before the code size
    // would grow, and an end code.
    GifBuilder& Add(const Image& image);
    // Descriptor and local table, then data made of exactly these codes.
    GifBuilder& AddCodes(const Image& image, const std::vector<int32>& codes);
    // Descriptor and local table, then this data in sub-blocks.
    GifBuilder& AddData(const Image& image, const std::vector<uint8>& data);
    GifBuilder& Bytes(const std::vector<uint8>& bytes);
    GifBuilder& Trailer();

    const std::vector<uint8>& Data() const { return bytes_; }
    operator std::vector<uint8>() const { return bytes_; }

    // Data sub-blocks (with terminator) of at most 255 bytes.
    static std::vector<uint8> SubBlocks(const std::vector<uint8>& data);
    // Packs codes as a GIF decoder will read them: sizes grow with the decoder's table, a clear
    // code resets them.
    static std::vector<uint8> PackCodes(int32 min_code_size, const std::vector<int32>& codes);

  private:
    void Put16(int32 value);
    void PutTable(const std::vector<uint32>& table);
    void PutDescriptor(const Image& image);

    std::vector<uint8> bytes_;
};

}  // namespace kirto::test
