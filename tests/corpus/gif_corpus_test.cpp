// The sound GIF files of the corpus: every image must have the pixels that the tables say, except
// where the decoder differs on purpose.
#include "corpus/gif_corpus.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "base/md5.h"
#include "corpus/corpus.h"
#include "support/reference_gif_decoder.h"

namespace kirto::test {
namespace {

// Files that are refused on purpose, with the frames that are kept and the line that says why.
struct Refused {
    std::string outcome;
    std::string line;
};

const std::map<std::string, Refused> kRefused = {
    // A code size below the palette's depth.
    {"gif/image__any-disposal.gif",
     {"failed, 0 frames",
      "GifLoad::ReadGifImageData() - Code_size should be 3, but was in fact 2\n"}},
    {"gif/tk__deferredClearCode.gif",
     {"failed, 0 frames",
      "GifLoad::ReadGifImageData() - Code_size should be 8, but was in fact 4\n"}},
    {"gif/wuffs__animated-red-blue.gif",
     {"failed, 1 frame",
      "GifLoad::ReadGifImageData() - Code_size should be 8, but was in fact 2\n"}},
    // An image larger than the screen.
    {"gif/wuffs__frame-out-of-bounds.gif",
     {"failed, 0 frames",
      "GifLoad::ReadGifImageHeader() - Local dimensions exceed global dimensions\n"}},
};

// Files whose images look different on purpose.
enum class Difference {
    kNoTable,      // without any colour table the web-safe colours are used, and not black
    kCodeSizeOne,  // a code size of 1 is treated as 2
};

const std::map<std::string, Difference> kDifferent = {
    {"gif/Pillow__no_palette.gif", Difference::kNoTable},
    {"gif/image-gif__set_hsts.gif", Difference::kCodeSizeOne},
};

bool Applies(Difference difference, const ReferenceImage& image) {
    return difference == Difference::kNoTable ? image.table.empty() : image.code_size == 1;
}

// Files whose loop count is another than the manifest's on purpose.
const std::map<std::string, std::string> kOtherLoops = {
    // Of several loop blocks the manifest gives the first, the decoder takes the last.
    {"gif/Pillow__duplicate_number_of_loops.gif", "3"},
    {"gif/wuffs__multiple-loop-counts.gif", "40"},
    // Only the common identifier makes a loop block.
    {"gif/pygif__loop-animexts.gif", "-"},
};

// The pixels that an image must have by our own rules: a transparent index stays in force for the
// images after it, and entries past the table read hold the web-safe colours of a new document.
std::vector<uint32> PixelsByOurRules(const ReferenceImage& image, int32 transparent) {
    std::vector<uint32> pixels;
    for (const int32 index : image.indices) {
        if (index < 0 || index == transparent) {
            pixels.push_back(0);
        } else if (static_cast<size_t>(index) < image.table.size()) {
            pixels.push_back(0xFF000000 | image.table[static_cast<size_t>(index)]);
        } else {
            pixels.push_back(0xFF000000 | WebSafeColor(index));
        }
    }
    return pixels;
}

std::string IndexMd5(const ReferenceImage& image) {
    std::vector<uint8> bytes;
    for (const int32 index : image.indices)
        bytes.push_back(static_cast<uint8>(std::max(index, 0)));
    return Md5Hex(bytes.data(), bytes.size());
}

void ExpectPlaceOf(const Frame& frame, CorpusRow& row) {
    EXPECT_EQ(std::to_string(frame.x_offset), row["x"]);
    EXPECT_EQ(std::to_string(frame.y_offset), row["y"]);
    EXPECT_EQ(std::to_string(frame.width), row["w"]);
    EXPECT_EQ(std::to_string(frame.height), row["h"]);
    const std::string delay = row["delay_cs"] == "-" ? "0" : row["delay_cs"];
    EXPECT_EQ(frame.pause_length, std::stod(delay));
    EXPECT_EQ(frame.use_pause, delay != "0");
}

class GifCorpus : public testing::Test {
  protected:
    void SetUp() override {
        folder_ = CorpusFolder();
        if (!folder_) GTEST_SKIP() << "no corpus here";
        for (const CorpusRow& row : ReadCorpusTable(*folder_ / "MANIFEST.tsv")) {
            if (row.at("format") == "gif") files_.push_back(row.at("file"));
        }
        rows_ = RawImages(*folder_);
    }

    // Compares every frame of a file that is read whole; counts those that are as the table says.
    size_t CompareFile(const std::string& file) {
        const std::vector<uint8> bytes = ReadBytes(*folder_ / file);
        GifCorpusLoad load(bytes, false);
        EXPECT_FALSE(load.failed);
        const ReferenceGif reference = DecodeReferenceGif(bytes);
        std::vector<CorpusRow>& rows = rows_[file];
        const size_t count = static_cast<size_t>(load.document.FrameCount());
        EXPECT_EQ(count, rows.size());
        EXPECT_EQ(count, reference.images.size());
        if (count != rows.size() || count != reference.images.size()) return 0;

        size_t equal = 0;
        int32 transparent = -1;
        for (size_t i = 0; i < count; ++i) {
            SCOPED_TRACE("image " + std::to_string(i));
            const Frame& frame = *load.document.FrameAt(static_cast<int32>(i));
            const ReferenceImage& image = reference.images[i];
            if (image.transparent >= 0) transparent = image.transparent;
            ExpectPlaceOf(frame, rows[i]);
            const std::vector<uint32> pixels = OpaquePixels(frame);
            EXPECT_TRUE(pixels == PixelsByOurRules(image, transparent));
            const auto different = kDifferent.find(file);
            if (different != kDifferent.end()) {
                EXPECT_TRUE(Applies(different->second, image));
                EXPECT_NE(RgbaMd5(pixels), rows[i]["rgba_md5"]);
                continue;
            }
            EXPECT_EQ(RgbaMd5(pixels), rows[i]["rgba_md5"]);
            if (rows[i]["index_md5"] != "-") {
                EXPECT_EQ(IndexMd5(image), rows[i]["index_md5"]);
            }
            ++equal;
        }
        return equal;
    }

    std::optional<std::filesystem::path> folder_;
    std::vector<std::string> files_;
    std::map<std::string, std::vector<CorpusRow>> rows_;
};

TEST_F(GifCorpus, EveryImageHasThePixelsOfTheTables) {
    size_t equal = 0;
    for (const std::string& file : files_) {
        SCOPED_TRACE(file);
        if (!kRefused.count(file)) equal += CompareFile(file);
    }
    // 776 images; 15 are in files that are refused, 3 are different.
    EXPECT_EQ(equal, 758u);
}

TEST_F(GifCorpus, FilesThatAreRefusedOnPurposeAreStillRefused) {
    for (const auto& [file, refused] : kRefused) {
        SCOPED_TRACE(file);
        const GifCorpusLoad load(ReadBytes(*folder_ / file), false);
        EXPECT_EQ(load.Outcome(), refused.outcome);
        EXPECT_EQ(load.debug_text, refused.line);
    }
}

TEST_F(GifCorpus, SizeAndLoopCountAreThoseOfTheManifest) {
    for (CorpusRow row : ReadCorpusTable(*folder_ / "MANIFEST.tsv")) {
        const std::string file = row["file"];
        if (row["format"] != "gif" || kRefused.count(file)) continue;
        SCOPED_TRACE(file);
        const GifCorpusLoad load(ReadBytes(*folder_ / file), false);
        EXPECT_EQ(std::to_string(load.document.Current()->width), row["width"]);
        EXPECT_EQ(std::to_string(load.document.Current()->height), row["height"]);
        const auto other = kOtherLoops.find(file);
        const std::string expected = other == kOtherLoops.end() ? row["loop"] : other->second;
        EXPECT_TRUE(other == kOtherLoops.end() || row["loop"] != expected);
        EXPECT_EQ(load.document.Current()->use_loop
                      ? std::to_string(load.document.Current()->loop_count)
                      : "-",
                  expected);
    }
}

TEST_F(GifCorpus, AtFullSizeEveryFrameIsAsLargeAsTheScreen) {
    for (const std::string& file : files_) {
        SCOPED_TRACE(file);
        const GifCorpusLoad load(ReadBytes(*folder_ / file), true);
        EXPECT_EQ(load.failed, kRefused.count(file) > 0);
        ExpectSoundList(load.document);
        for (const FramePointer& frame : load.document.Current()->frames) {
            EXPECT_EQ(frame->width, load.document.Current()->width);
            EXPECT_EQ(frame->height, load.document.Current()->height);
        }
    }
}

}  // namespace
}  // namespace kirto::test
