// Runs FliLoad over FLI and FLC files from elsewhere, whose frames an independent decoder
// described.
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "base/md5.h"
#include "corpus/corpus.h"
#include "formats/fli/fli_load.h"
#include "formats/fli/reference_flic.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

namespace fs = std::filesystem;

// A file whose frames differ from most players' on purpose, and in what.
struct Deviation {
    FlicDialect dialect;
    const char* reason;
};

const std::map<std::string, Deviation>& Deviations() {
    static constexpr FlicDialect kSixBits = {.components_times_four = true};
    static constexpr FlicDialect kAsDrawn = {.colors_as_drawn = true};
    static constexpr FlicDialect kSkips = {.every_negative_word_skips = true};
    static constexpr FlicDialect kBrun = {
        .colors_as_drawn = true, .runs_continue = true, .black_is_black = true};
    static const char* const kSixBitsReason = "components of COLOR 64 are times 4, 63 becomes 252";
    static const char* const kAsDrawnReason = "a palette change does not recolour drawn pixels";
    static const char* const kSkipsReason = "DELTA words with the top bits 10 skip lines";
    static const char* const kBrunReason = "the packet count of a BRUN row is trusted";
    static const std::map<std::string, Deviation> deviations = {
        {"flic/Assets__BiremeFidget.flc", {kAsDrawn, kAsDrawnReason}},
        {"flic/Assets__ESFidget.flc", {kAsDrawn, kAsDrawnReason}},
        {"flic/Pillow__a.fli", {kSixBits, kSixBitsReason}},
        {"flic/SecondReality__PRAX4.fli", {kSixBits, kSixBitsReason}},
        {"flic/seeds__test2.fli", {kSixBits, kSixBitsReason}},
        {"flic/serenity__serenity.fli", {kSixBits, kSixBitsReason}},
        {"flic/synth-flc-1x1.flc", {kSkips, kSkipsReason}},
        {"flic/synth-flc-brun-count-zero.flc", {kBrun, kBrunReason}},
        {"flic/synth-flc-brun-over-255-packets.flc", {kBrun, kBrunReason}},
        {"flic/synth-flc-lc-in-flc.flc", {kSixBits, kSixBitsReason}},
        {"flic/synth-flc-odd-width-ss2.flc", {kSkips, kSkipsReason}},
        {"flic/synth-flc-palette-after-pixels.flc", {kAsDrawn, kAsDrawnReason}},
        {"flic/synth-flc-palette-cycle.flc", {kAsDrawn, kAsDrawnReason}},
        {"flic/synth-flc-palette-packets.flc", {kAsDrawn, kAsDrawnReason}},
        {"flic/synth-fli-brun-lc-ring.fli", {kSixBits, kSixBitsReason}},
        {"flic/synth-fli-copy-black.fli",
         {{.components_times_four = true, .colors_as_drawn = true, .black_is_black = true},
          "COLOR 64 is times 4, and BLACK chunks draw black, whatever the palette's entry 0"}},
    };
    return deviations;
}

// Files that start with a record of another type than frames, which FliLoad refuses.
bool StartsWithPrefixRecord(const std::vector<uint8>& bytes) {
    return bytes.size() > 134 && ReadLittle16(&bytes[132]) == 0xF100;
}

std::string Md5Of(const std::vector<uint8>& bytes) {
    return Md5Hex(bytes.data(), bytes.size());
}

// As the table has it: red, green, blue, 255.
std::string Md5OfColors(const std::vector<uint32>& colors) {
    std::vector<uint8> bytes;
    bytes.reserve(colors.size() * 4);
    for (const uint32 color : colors) {
        for (const int shift : {16, 8, 0})
            bytes.push_back(static_cast<uint8>(color >> shift));
        bytes.push_back(255);
    }
    return Md5Of(bytes);
}

FlicPalette EntriesOf(const Palette& palette) {
    FlicPalette entries{};
    for (size_t i = 0; i < entries.size(); ++i) {
        const rgb_color& color = palette.colors[i];
        entries[i] = static_cast<uint32>(color.red << 16 | color.green << 8 | color.blue);
    }
    return entries;
}

// A frame's pixels without their alpha, which is checked.
std::vector<uint32> ColorsOf(const Frame& frame) {
    std::vector<uint32> colors = PixelsOf(*frame.bitmap);
    bool opaque = true;
    for (uint32& color : colors) {
        opaque = opaque && color >> 24 == 255;
        color &= 0xFFFFFF;
    }
    EXPECT_TRUE(opaque);
    return colors;
}

class FlicCorpus : public testing::Test {
  protected:
    void SetUp() override {
        const std::optional<fs::path> folder = CorpusFolder();
        if (!folder) GTEST_SKIP() << "no corpus of animations";
        folder_ = *folder;
        for (CorpusRow& row : ReadCorpusTable(folder_ / "flic_frames.tsv")) {
            const std::string file = row["file"];
            files_[file].push_back(std::move(row));
        }
        ASSERT_FALSE(files_.empty());
    }

    std::vector<uint8> Bytes(const std::string& file) const {
        return ReadBytes((folder_ / file).string());
    }

    fs::path folder_;
    std::map<std::string, std::vector<CorpusRow>> files_;  // the frames' rows by file
};

// Shows that the plain decoder is right where it follows most players, so that the next test may
// hold FliLoad against it with single differences switched on.
TEST_F(FlicCorpus, ThePlainDecoderGivesTheFramesOfTheTable) {
    for (const auto& [file, rows] : files_) {
        const std::vector<FlicFrame> frames = DecodeFlic(Bytes(file), {});
        ASSERT_EQ(frames.size(), rows.size()) << file;
        for (size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(Md5Of(frames[i].indices), rows[i].at("index_md5")) << file << " " << i;
            EXPECT_EQ(Md5OfColors(frames[i].colors), rows[i].at("rgba_md5")) << file << " " << i;
        }
    }
}

TEST_F(FlicCorpus, EachFrameIsThatOfMostPlayersButForNamedDifferences) {
    for (const auto& [file, rows] : files_) {
        SCOPED_TRACE(file);
        const std::vector<uint8> bytes = Bytes(file);
        if (StartsWithPrefixRecord(bytes)) continue;
        DocumentFixture fixture;
        const auto found = Deviations().find(file);
        const bool deviates = found != Deviations().end();
        const std::vector<FlicFrame> expected =
            DecodeFlic(bytes, deviates ? found->second.dialect : FlicDialect{},
                       EntriesOf(*fixture.document.Current()->palette));
        const DebugRecorder lines;

        const auto memory = BFile::OnMemory(bytes);
        const FliLoad loader(memory.get(), 0, fixture.document);

        EXPECT_FALSE(loader.failed);
        const size_t records = ReadLittle16(&bytes[6]);
        int32 position = 0;
        bool differs = false;
        for (size_t i = 0; i < records; ++i) {
            if (expected[i].chunk_count == 0) continue;
            const FramePointer frame = fixture.document.FrameAt(position++);
            ASSERT_NE(frame, nullptr) << "record " << i;
            const std::vector<uint32> colors = ColorsOf(*frame);
            EXPECT_EQ(colors, expected[i].colors) << "record " << i;
            differs = differs || Md5OfColors(colors) != rows[i].at("rgba_md5");
        }
        EXPECT_EQ(position, fixture.document.FrameCount());
        EXPECT_EQ(differs, deviates) << (deviates ? found->second.reason : "");
    }
}

TEST_F(FlicCorpus, FilesThatStartWithAPrefixRecordAreRefused) {
    int32 refused = 0;
    for (const auto& [file, rows] : files_) {
        const std::vector<uint8> bytes = Bytes(file);
        if (!StartsWithPrefixRecord(bytes)) continue;
        DocumentFixture fixture;
        const DebugRecorder lines;

        const auto memory = BFile::OnMemory(bytes);
        const FliLoad loader(memory.get(), 0, fixture.document);

        EXPECT_TRUE(loader.failed) << file;
        EXPECT_EQ(lines.Text(),
                  "FliLoad::ReadFliFrameHeader() - Wrong magic number in FLI frame\n");
        EXPECT_EQ(fixture.document.FrameCount(), 0) << file;
        ++refused;
    }
    EXPECT_GT(refused, 0);
}

TEST_F(FlicCorpus, ByTheRulesOfPlayersEachFrameIsThatOfTheTable) {
    for (const auto& [file, rows] : files_) {
        SCOPED_TRACE(file);
        const std::vector<uint8> bytes = Bytes(file);
        DocumentFixture fixture;
        fixture.prefs.animation_faithful = true;
        const DebugRecorder lines;

        const auto memory = BFile::OnMemory(bytes);
        const FliLoad loader(memory.get(), 0, fixture.document);

        EXPECT_FALSE(loader.failed);
        const double pause = fixture.document.Current()->pause_length;
        // A frame that repeats the one before makes it longer.
        std::vector<std::string> shown;
        for (const FramePointer& frame : fixture.document.Current()->frames) {
            const double length = frame->use_pause ? frame->pause_length : pause;
            const std::string digest = Md5OfColors(ColorsOf(*frame));
            const int64 count = pause > 0 ? std::llround(length / pause) : 1;
            shown.insert(shown.end(), static_cast<size_t>(count), digest);
        }
        // What comes behind the frames that the header counts leads back to the first.
        std::vector<std::string> expected;
        for (size_t i = 0; i < ReadLittle16(&bytes[6]); ++i)
            expected.push_back(rows[i].at("rgba_md5"));
        EXPECT_EQ(shown, expected);
    }
}

TEST_F(FlicCorpus, DamagedFilesEndAndKeepWhatIsSound) {
    int32 count = 0;
    for (CorpusRow& row : ReadCorpusTable(folder_ / "corrupt/MANIFEST.tsv")) {
        const std::string file = row["file"];
        if (row["format"] != "fli" && row["format"] != "flc") continue;
        SCOPED_TRACE(file);
        DocumentFixture fixture;
        const DebugRecorder lines;

        const auto memory = BFile::OnMemory(Bytes("corrupt/" + file));
        const FliLoad loader(memory.get(), 0, fixture.document);

        const std::string expectation = row["expect"];
        if (expectation == "reject") {
            EXPECT_TRUE(loader.failed);
            EXPECT_EQ(fixture.document.FrameCount(), 0);
        } else if (expectation == "partial") {
            EXPECT_TRUE(loader.failed || fixture.document.FrameCount() > 0);
        } else if (expectation == "tolerate") {
            EXPECT_GT(fixture.document.FrameCount(), 0);
        }
        EXPECT_EQ(loader.End(), fixture.document.FrameCount());
        ++count;
    }
    EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace kirto::test
