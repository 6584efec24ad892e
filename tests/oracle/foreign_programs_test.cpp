// What gifsicle and ffmpeg make of the files that we write. Each program is run once over all of
// them.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

#include "base/text.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/fli/fli_load.h"
#include "oracle/giflib_reader.h"
#include "support/meant_picture.h"
#include "support/random_fli.h"
#include "support/shown_animation.h"

namespace kirto::test {

namespace {

constexpr uint32 kFileCount = 60;

// Runs a command line; true when it ended with 0. What it printed, also as errors, is in *output.
bool RunCommand(const std::string& command, std::string* output) {
    output->clear();
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    if (!pipe) return false;
    char buffer[4096];
    for (size_t count = 0; (count = fread(buffer, 1, sizeof(buffer), pipe)) > 0;)
        output->append(buffer, count);
    const int status = pclose(pipe);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool IsInstalled(const std::string& program) {
    std::string ignored;
    return RunCommand("command -v " + program, &ignored);
}

// Animations of which nothing is disposed, saved as 0.gif, 1.gif, ... in a folder.
class SavedAnimations {
  public:
    explicit SavedAnimations(DocumentStyle style) {
        style.max_side = 24;
        style.opaque_start = true;
        for (uint32 i = 0; i < kFileCount; ++i) {
            animations_.push_back(std::make_unique<MadeUpAnimation>(style, 5000 + i));
            // Transparent pixels show what lies below; readers differ in what they dispose of.
            animations_.back()->prefs.animation_gifdisposal = static_cast<int32>(i % 2);
            WriteBytes(Path(i, ".gif"), animations_.back()->Save());
        }
    }
    const AnimationDocument& Document(uint32 i) const { return animations_[i]->document; }
    std::string Path(uint32 i, const std::string& ending) const {
        return folder_.File(std::to_string(i) + ending);
    }
    // The paths of all, each behind a space.
    std::string Paths(const std::string& ending) const {
        std::string paths;
        for (uint32 i = 0; i < kFileCount; ++i)
            paths += " " + Path(i, ending);
        return paths;
    }

  private:
    TemporaryFolder folder_;
    std::vector<std::unique_ptr<MadeUpAnimation>> animations_;
};

DocumentStyle WithoutLocalPalettes() {
    DocumentStyle style;
    style.local_palettes = false;
    return style;
}

TEST(Gifsicle, DescribesEveryFileWithoutAWarning) {
    if (!IsInstalled("gifsicle")) GTEST_SKIP() << "gifsicle is not installed";
    const SavedAnimations saved{DocumentStyle()};
    const std::string errors = saved.Path(0, ".errors");
    std::string output;
    ASSERT_TRUE(RunCommand("(gifsicle --info" + saved.Paths(".gif") + ") 2>" + errors, &output))
        << output;
    EXPECT_TRUE(ReadBytes(errors).empty());
    for (uint32 i = 0; i < kFileCount; ++i) {
        const AnimationDocument& document = saved.Document(i);
        const std::string expected =
            Format("* %s %d image%s\n  logical screen %dx%d\n", saved.Path(i, ".gif").c_str(),
                   document.FrameCount(), document.FrameCount() == 1 ? "" : "s",
                   document.Current()->width, document.Current()->height);
        EXPECT_TRUE(Contains(output, expected)) << expected;
    }
}

TEST(Gifsicle, UnfoldsEveryFileToTheCanvasesThatWereMeant) {
    if (!IsInstalled("gifsicle")) GTEST_SKIP() << "gifsicle is not installed";
#ifdef KIRTO_HAVE_GIFLIB
    // It does not unfold files with local palettes.
    const SavedAnimations saved(WithoutLocalPalettes());
    std::string output;
    ASSERT_TRUE(RunCommand("gifsicle --unoptimize --batch" + saved.Paths(".gif"), &output))
        << output;
    EXPECT_EQ(output, "");
    for (uint32 i = 0; i < kFileCount; ++i) {
        const std::vector<uint8> bytes = ReadBytes(saved.Path(i, ".gif"));
        const Slurped unfolded(bytes);
        ASSERT_TRUE(unfolded.Complete()) << "file " << i;
        const std::vector<Pixels> meant = MeantCanvases(saved.Document(i));
        ASSERT_EQ(static_cast<size_t>(unfolded.Gif().ImageCount), meant.size());
        for (int32 frame = 0; frame < unfolded.Gif().ImageCount; ++frame) {
            ASSERT_TRUE(unfolded.ImagePixels(frame) == meant[static_cast<size_t>(frame)])
                << "file " << i << ", frame " << frame;
        }
    }
#else
    GTEST_SKIP() << "giflib, which reads what gifsicle writes, was not there at build time";
#endif
}

// What ffmpeg shows of each file, frame by frame, as 0xAARRGGBB. level: of what it must not say.
std::vector<Pixels> DecodedByFfmpeg(const std::vector<std::string>& paths,
                                    const std::string& level = "warning") {
    std::string command = "ffmpeg -nostdin -y -v " + level;
    for (const std::string& path : paths) {
        // All pauses are read as equally short: it takes a low bit rate for a mistake.
        if (path.ends_with(".gif")) command += " -max_gif_delay 2 -default_delay 2";
        command += " -i " + path;
    }
    for (size_t i = 0; i < paths.size(); ++i) {
        command += Format(" -map %zu -fps_mode passthrough -f rawvideo -pix_fmt bgra ", i) +
                   paths[i] + ".raw";
    }
    std::string output;
    EXPECT_TRUE(RunCommand(command, &output)) << output;
    EXPECT_EQ(output, "");
    std::vector<Pixels> decoded;
    for (const std::string& path : paths) {
        const std::vector<uint8> raw = ReadBytes(path + ".raw");
        Pixels pixels;
        for (size_t byte = 0; byte + 4 <= raw.size(); byte += 4) {
            pixels.push_back(ReadLittle32(&raw[byte]));
        }
        decoded.push_back(std::move(pixels));
    }
    return decoded;
}

TEST(Ffmpeg, DecodesEveryFileToTheCanvasesThatWereMeant) {
    if (!IsInstalled("ffmpeg")) GTEST_SKIP() << "ffmpeg is not installed";
    const SavedAnimations saved{DocumentStyle()};
    std::vector<std::string> paths;
    for (uint32 i = 0; i < kFileCount; ++i)
        paths.push_back(saved.Path(i, ".gif"));
    const std::vector<Pixels> decoded = DecodedByFfmpeg(paths);
    for (uint32 i = 0; i < kFileCount; ++i) {
        Pixels meant;
        for (const Pixels& canvas : MeantCanvases(saved.Document(i)))
            meant.insert(meant.end(), canvas.begin(), canvas.end());
        ASSERT_TRUE(decoded[i] == meant) << "file " << i;
    }
}

// Fills what an image clears, and what the first one leaves out, with the background color, where
// browsers show nothing.
bool FfmpegPlaysAsBrowsers(const ShownFrame& frame) {
    return std::find(frame.pixels.begin(), frame.pixels.end(), 0U) == frame.pixels.end();
}

TEST(Ffmpeg, ShowsWhatIsSavedFaithfully) {
    if (!IsInstalled("ffmpeg")) GTEST_SKIP() << "ffmpeg is not installed";
    const TemporaryFolder folder;
    std::vector<std::string> paths;
    std::vector<Pixels> meant;
    for (uint32 seed = 1; seed <= 700; ++seed) {
        SeededChoices choices(seed);
        DocumentFixture made;
        FillWithScenes(choices, 40, made.document);
        const std::vector<ShownFrame> frames = ShownFrames(*made.document.Current());
        if (!std::all_of(frames.begin(), frames.end(), [](const ShownFrame& frame) {
                return frame.promised && FfmpegPlaysAsBrowsers(frame);
            }))
            continue;
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        const FaithfulGifSave save(file, made.document);
        paths.push_back(folder.File(std::to_string(seed) + ".gif"));
        WriteBytes(paths.back(), file->Memory());
        meant.emplace_back();
        for (const ShownFrame& frame : frames)
            meant.back().insert(meant.back().end(), frame.pixels.begin(), frame.pixels.end());
    }
    EXPECT_GT(paths.size(), 100u);
    const std::vector<Pixels> decoded = DecodedByFfmpeg(paths);
    for (size_t i = 0; i < paths.size(); ++i)
        EXPECT_TRUE(decoded[i] == meant[i]) << paths[i];
}

// Frames of so many pixels, each but once where it is shown several times in a row.
std::vector<Pixels> WithoutRepeats(const Pixels& frames, size_t pixels) {
    std::vector<Pixels> different;
    for (size_t at = 0; at + pixels <= frames.size(); at += pixels) {
        const auto first = frames.begin() + static_cast<std::ptrdiff_t>(at);
        Pixels frame(first, first + static_cast<std::ptrdiff_t>(pixels));
        if (different.empty() || different.back() != frame) different.push_back(std::move(frame));
    }
    return different;
}

// The different frames of a file as players show them.
std::vector<Pixels> ShownOfFli(const std::vector<uint8>& bytes) {
    DocumentFixture read;
    read.prefs.animation_faithful = true;
    const auto file = BFile::OnMemory(bytes);
    const FliLoad loader(file.get(), 0, read.document);
    std::vector<Pixels> shown;
    for (const ShownFrame& frame : ShownFrames(*read.document.Current()))
        if (shown.empty() || shown.back() != frame.pixels) shown.push_back(frame.pixels);
    return shown;
}

// ffmpeg refuses whole pictures of other widths, as it counts bytes that it takes for padding.
bool FfmpegReads(const std::vector<uint8>& fli) {
    constexpr size_t kWidthAt = 8;
    return fli[kWidthAt] % 4 == 0;
}

TEST(Ffmpeg, PlaysFliAndFlcFilesAsWeReadThem) {
    if (!IsInstalled("ffmpeg")) GTEST_SKIP() << "ffmpeg is not installed";
    const TemporaryFolder folder;
    std::vector<std::string> paths;
    std::vector<std::vector<uint8>> files;
    for (uint32 seed = 0; paths.size() < 100; ++seed) {
        const std::vector<uint8> bytes = RandomFli(seed);
        if (!FfmpegReads(bytes)) continue;
        paths.push_back(folder.File(std::to_string(seed) + ".flc"));
        WriteBytes(paths.back(), bytes);
        files.push_back(bytes);
    }
    // It takes chunks that it does not know for errors.
    const std::vector<Pixels> decoded = DecodedByFfmpeg(paths, "fatal");
    for (size_t i = 0; i < paths.size(); ++i) {
        const std::vector<Pixels> shown = ShownOfFli(files[i]);
        ASSERT_FALSE(shown.empty()) << paths[i];
        EXPECT_TRUE(WithoutRepeats(decoded[i], shown[0].size()) == shown) << paths[i];
    }
}

}  // namespace

}  // namespace kirto::test
