#include "random_picture.h"

#include "picture/picture_builder.h"

namespace kirto::test {

int32 RandomBelow(int32 limit, std::mt19937& random) {
    return std::uniform_int_distribution<int32>(0, limit - 1)(random);
}

PlainPicture PlainOf(const Picture& picture) {
    PlainPicture plain{picture.Width(), picture.Height(), {}};
    plain.pixels.resize(static_cast<size_t>(plain.width) * static_cast<size_t>(plain.height));
    for (int32 y = 0; y < plain.height; ++y)
        picture.ReadRow(y, reinterpret_cast<uint8*>(&plain.At(0, y)));
    return plain;
}

PlainPicture RandomPicture(int32 width, int32 height, int32 colors, std::mt19937& random) {
    std::vector<uint32> table(static_cast<size_t>(colors));
    for (uint32& pixel : table)
        pixel = static_cast<uint32>(random());
    PlainPicture plain{width, height, {}};
    const size_t size = static_cast<size_t>(width) * static_cast<size_t>(height);
    while (plain.pixels.size() < size) {
        const size_t run = static_cast<size_t>(RandomBelow(4, random)) + 1;
        plain.pixels.insert(plain.pixels.end(), run,
                            table[static_cast<size_t>(RandomBelow(colors, random))]);
    }
    plain.pixels.resize(size);
    return plain;
}

std::shared_ptr<const Picture> Built(const PlainPicture& plain,
                                     std::shared_ptr<const Picture> earlier) {
    PictureBuilder builder(plain.width, plain.height, B_RGB32, nullptr, std::move(earlier));
    for (int32 y = 0; y < plain.height; ++y) {
        const size_t first = static_cast<size_t>(y) * static_cast<size_t>(plain.width);
        builder.AddRow(reinterpret_cast<const uint8*>(&plain.pixels[first]));
    }
    return builder.Take();
}

}  // namespace kirto::test
