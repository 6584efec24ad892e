// The broken GIF files of the corpus: nothing crashes, what stands before the damage is kept, and
// no file takes more memory than a document may.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "corpus/corpus.h"
#include "corpus/gif_corpus.h"

namespace kirto::test {
namespace {

constexpr uint64 kMemoryLimit = uint64{512} << 20;

// This one has 20,000 images of one pixel; a tenth of them tells as much.
constexpr char kManyImages[] = "mut-x-bomb-20000-frames-1x1.gif";

// A file that ends otherwise than its manifest suggests, or has images that look otherwise, and
// why that is intended.
struct OnPurpose {
    std::string outcome;
    std::string different_images;  // their numbers, "0 3"
};

const std::map<std::string, OnPurpose> kOnPurpose = {
    // A control block is read as 6 bytes whatever its size byte says; what follows is out of step.
    {"mut-anim-gce-size-0.gif", {"failed, 0 frames", ""}},
    {"mut-anim-gce-size-3.gif", {"failed, 0 frames", ""}},
    {"mut-still-gce-size-0.gif", {"failed, 0 frames", ""}},
    {"mut-still-gce-size-3.gif", {"failed, 0 frames", ""}},
    {"real-serenity__bad_lzw_data.gif", {"failed, 0 frames", ""}},
    // Nor is its terminator looked at: the image behind it is read as it stands.
    {"mut-flipm-flip-04.gif", {"whole, 3 frames", "0"}},
    // The control block behind the loop block loses its introducer and is skipped as an unknown
    // block, so the images are all there; the other reader found only the last.
    {"mut-anim-loop-no-terminator.gif", {"whole, 4 frames", "0"}},
    // A picture without rows or columns can't be made.
    {"mut-anim-image-h0.gif", {"failed, 0 frames", ""}},
    {"mut-still-image-h0.gif", {"failed, 0 frames", ""}},
    {"mut-flipm-flip-11.gif", {"failed, 0 frames", ""}},
    {"real-go-fuzz-corpus__7af2b40ef9dabf2f0ad4e1b54862f2213f0de1a8-1.gif",
     {"failed, 0 frames", ""}},
    {"real-image-gif__issue-96-small-codesize.gif", {"failed, 0 frames", ""}},
    {"real-libsixel__poc5_encode_integer_overflow.gif", {"failed, 0 frames", ""}},
    // An image larger than the screen is refused.
    {"mut-anim-screen-0x0.gif", {"failed, 0 frames", ""}},
    {"mut-anim-screen-1x1.gif", {"failed, 0 frames", ""}},
    {"mut-still-screen-0x0.gif", {"failed, 0 frames", ""}},
    {"mut-still-screen-1x1.gif", {"failed, 0 frames", ""}},
    // Without a trailer, or without the last image's terminator, the load fails; every image that
    // had come to its end code is kept.
    {"mut-anim-missing-trailer.gif", {"failed, 4 frames", ""}},
    {"mut-still-missing-trailer.gif", {"failed, 1 frame", ""}},
    {"mut-anim-trunc-before-terminator.gif", {"failed, 4 frames", ""}},
    {"mut-still-trunc-before-terminator.gif", {"failed, 1 frame", ""}},
    // Data that ends with its terminator is an image, however few pixels came.
    {"mut-anim-lzw-half.gif", {"whole, 4 frames", ""}},
    {"mut-still-lzw-half.gif", {"whole, 1 frame", ""}},
    // A file without images is an empty animation.
    {"mut-x-only-header-and-trailer.gif", {"whole, 0 frames", ""}},
    // An index past the table is no black but what the palette holds there.
    {"mut-flipm-flip-00.gif", {"whole, 3 frames", "0"}},
    {"mut-flipm-flip-15.gif", {"failed, 1 frame", "0"}},
    {"real-fuzzing-corpus__801366.gif", {"whole, 9 frames", "3 4"}},
    {"real-libgd__unitialized_memory_read.gif", {"whole, 1 frame", "0"}},
    // A code beyond the next free one is taken for the next free one.
    {"mut-flipm-flip-21.gif", {"failed, 1 frame", "0"}},
    {"real-libvips__invalid_multiframe.gif", {"whole, 4 frames", "3"}},
};

std::vector<uint8> BytesOf(const std::filesystem::path& folder, const std::string& name) {
    std::vector<uint8> bytes = ReadBytes(folder / "corrupt" / name);
    if (name == kManyImages) bytes.resize(bytes.size() / 10);
    return bytes;
}

// The numbers of the images that do not look as the table says.
std::string DifferentImages(const AnimationDocument& document, std::vector<CorpusRow>& rows) {
    std::ostringstream numbers;
    for (size_t i = 0; i < rows.size(); ++i) {
        const FramePointer frame = document.FrameAt(static_cast<int32>(i));
        if (!frame || RgbaMd5(OpaquePixels(*frame)) == rows[i]["rgba_md5"]) continue;
        numbers << (numbers.str().empty() ? "" : " ") << i;
    }
    return numbers.str();
}

// True when the load ended as the manifest's row suggests.
bool AsSuggested(CorpusRow& row, const GifCorpusLoad& load, const std::string& different_images) {
    const int32 count = load.document.FrameCount();
    if (row["expect"] == "reject" && (!load.failed || count > 0)) return false;
    if (row["expect"] == "partial" && !load.failed) return false;
    if (row["expect"] == "tolerate" && load.failed) return false;
    const std::string complete = row["complete_images_giflib"];
    if (complete != "-" && count < std::stoi(complete)) return false;
    return different_images.empty();
}

class GifCorruptCorpus : public testing::Test {
  protected:
    void SetUp() override {
        folder_ = CorpusFolder();
        if (!folder_) GTEST_SKIP() << "no corpus here";
        for (const CorpusRow& row : ReadCorpusTable(*folder_ / "corrupt/MANIFEST.tsv")) {
            if (row.at("format") == "gif") manifest_.push_back(row);
        }
    }

    std::optional<std::filesystem::path> folder_;
    std::vector<CorpusRow> manifest_;
};

TEST_F(GifCorruptCorpus, ImagesBeforeTheDamageAreKeptOrLostOnPurpose) {
    std::map<std::string, std::vector<CorpusRow>> images = RawImages(*folder_);
    for (CorpusRow& row : manifest_) {
        const std::string name = row["file"];
        if (name == kManyImages) continue;
        SCOPED_TRACE(name);
        const GifCorpusLoad load(BytesOf(*folder_, name), false, kMemoryLimit);
        ExpectSoundList(load.document);
        const std::string different = DifferentImages(load.document, images["corrupt/" + name]);
        const auto intended = kOnPurpose.find(name);
        if (intended == kOnPurpose.end()) {
            EXPECT_TRUE(AsSuggested(row, load, different)) << load.Outcome() << " " << different;
        } else {
            EXPECT_FALSE(AsSuggested(row, load, different));
            EXPECT_EQ(load.Outcome(), intended->second.outcome);
            EXPECT_EQ(different, intended->second.different_images);
        }
    }
}

TEST_F(GifCorruptCorpus, AtFullSizeEveryFileEndsWithASoundList) {
    for (const CorpusRow& row : manifest_) {
        SCOPED_TRACE(row.at("file"));
        const GifCorpusLoad load(BytesOf(*folder_, row.at("file")), true, kMemoryLimit);
        ExpectSoundList(load.document);
        EXPECT_LE(load.document.pixel_budget->Used(), kMemoryLimit);
    }
}

TEST_F(GifCorruptCorpus, ThousandsOfImagesAreAllRead) {
    const GifCorpusLoad load(BytesOf(*folder_, kManyImages), false, kMemoryLimit);

    // 38 bytes stand before the images, 23 make an image: the cut lies within the 1,999th.
    EXPECT_TRUE(load.failed);
    EXPECT_EQ(load.document.FrameCount(), 1998);
    ExpectSoundList(load.document);
}

TEST_F(GifCorruptCorpus, FewBytesThatAskForManyPixelsAreRefused) {
    struct Bomb {
        const char* name;
        bool full_frame;
    };
    for (const Bomb& bomb : {Bomb{"mut-x-bomb-screen-65535-1x1.gif", true},
                             Bomb{"mut-x-bomb-image-65535-tiny-data.gif", true},
                             Bomb{"mut-x-bomb-image-65535-tiny-data.gif", false},
                             Bomb{"mut-x-bomb-screen-20000-100-frames.gif", true},
                             Bomb{"real-Pillow__decompression_bomb.gif", true},
                             Bomb{"real-Pillow__decompression_bomb.gif", false}}) {
        SCOPED_TRACE(bomb.name);
        const GifCorpusLoad load(BytesOf(*folder_, bomb.name), bomb.full_frame, kMemoryLimit);
        EXPECT_EQ(load.Outcome(), "failed, 0 frames");
        EXPECT_EQ(load.document.pixel_budget->Used(), 0u);
    }
}

}  // namespace
}  // namespace kirto::test
