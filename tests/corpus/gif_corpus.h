// What the tests over the corpus' sound and broken GIF files share.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "corpus/corpus.h"
#include "support/test_support.h"

namespace kirto::test {

// One GIF loaded into a fresh document of built-in settings.
struct GifCorpusLoad : DocumentFixture {
    GifCorpusLoad(const std::vector<uint8>& bytes, bool full_frame,
                  uint64 memory_limit = uint64{1} << 30);

    // "whole, 3 frames" or "failed, 1 frame".
    std::string Outcome() const;

    bool failed = false;
    std::string debug_text;
};

// The frame's pixels as 0xAARRGGBB; those that are not opaque as 0.
std::vector<uint32> OpaquePixels(const Frame& frame);
// The digest of such pixels as bytes red, green, blue, alpha.
std::string RgbaMd5(const std::vector<uint32>& pixels);
// 0xRRGGBB.
uint32 WebSafeColor(int32 index);

// Expects what holds for every list of frames: count, numbers, links, selection.
void ExpectSoundList(const AnimationDocument& document);

// The rows of raw_images.tsv by file, in the order of the images.
std::map<std::string, std::vector<CorpusRow>> RawImages(const std::filesystem::path& folder);

}  // namespace kirto::test
