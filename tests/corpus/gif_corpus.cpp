#include "corpus/gif_corpus.h"

#include <gtest/gtest.h>

#include "base/md5.h"
#include "formats/gif/gif_load.h"

namespace kirto::test {

GifCorpusLoad::GifCorpusLoad(const std::vector<uint8>& bytes, bool full_frame,
                             uint64 memory_limit) {
    const DebugRecorder debug;
    prefs.animation_gifloadfullframe = full_frame;
    document.pixel_budget->SetLimit(memory_limit);
    const auto file = BFile::OnMemory(bytes);
    const GifLoad loader(file.get(), 0, document);
    failed = loader.failed;
    debug_text = debug.Text();
    EXPECT_EQ(loader.End(), document.FrameCount());
}

std::string GifCorpusLoad::Outcome() const {
    const int32 count = document.FrameCount();
    return std::string(failed ? "failed, " : "whole, ") + std::to_string(count) +
           (count == 1 ? " frame" : " frames");
}

std::vector<uint32> OpaquePixels(const Frame& frame) {
    std::vector<uint32> pixels = PixelsOf(*frame.bitmap);
    for (uint32& pixel : pixels) {
        if (pixel >> 24 != 255) pixel = 0;
    }
    return pixels;
}

std::string RgbaMd5(const std::vector<uint32>& pixels) {
    std::vector<uint8> bytes(pixels.size() * 4);
    uint8* byte = bytes.data();
    for (const uint32 pixel : pixels) {
        for (const int shift : {16, 8, 0, 24})
            *byte++ = static_cast<uint8>(pixel >> shift);
    }
    return Md5Hex(bytes.data(), bytes.size());
}

uint32 WebSafeColor(int32 index) {
    const rgb_color color = kWebSafeColors[static_cast<size_t>(index)];
    return static_cast<uint32>(color.red << 16 | color.green << 8 | color.blue);
}

void ExpectSoundList(const AnimationDocument& document) {
    const int32 count = document.FrameCount();
    EXPECT_EQ(document.Selected(), count > 0 ? 0 : -1);
    int32 visited = 0;
    for (const FramePointer& frame : document.Current()->frames) {
        ASSERT_EQ(frame, document.FrameAt(visited++));
        EXPECT_TRUE(frame->bitmap->HasRows());
        EXPECT_EQ(frame->bitmap->Width(), frame->width);
        EXPECT_EQ(frame->bitmap->Height(), frame->height);
    }
    EXPECT_EQ(visited, count);
}

std::map<std::string, std::vector<CorpusRow>> RawImages(const std::filesystem::path& folder) {
    std::map<std::string, std::vector<CorpusRow>> images;
    for (const CorpusRow& row : ReadCorpusTable(folder / "raw_images.tsv"))
        images[row.at("file")].push_back(row);
    return images;
}

}  // namespace kirto::test
