// Image sequences, and what another program reads in them.
#include <algorithm>
#include <filesystem>
#include <sstream>

#include "cli_images/image_home.h"

namespace kirto::test {

namespace {

const Colors kClear = {0x12345600, 0xFF804001, 0xC8643280, 0x010203FE, 0x0A141EFF, 0xFFFFFF7F};
const Colors kSolid = {0x123456FF, 0xFF8040FF, 0xC86432FF, 0x010203FF, 0x0A141EFF, 0xFFFFFFFF};

// A PNG file of 3 x 2 pixels with alpha, and one of 16 x 16 opaque pixels, to insert.
struct SequenceHome : ImageHome {
    SequenceHome() {
        Write("clear.pam", Pam(3, 2, kClear));
        Write("solid.pam", Pam(3, 2, kSolid));
        Write("square.ppm", Ppm(16, 16, Colors(256, 0x4080C0)));
        if (HasImageMagick()) {
            EXPECT_EQ(Shell("for f in clear solid; do /usr/bin/convert $f.pam $f.png; done").status,
                      0);
        }
    }
};

Colors WithoutAlpha(Colors colors) {
    for (uint32& color : colors)
        color |= 0xFF;
    return colors;
}

// The extensions of the formats that --list-formats says can be written.
std::vector<std::string> WritableExtensions(const ImageHome& home) {
    std::istringstream lines(home.Run({"--list-formats"}).out);
    std::vector<std::string> extensions;
    for (std::string line; std::getline(lines, line);) {
        if (line.find("write") == std::string::npos) continue;
        std::istringstream words(line.substr(line.find(" .")));
        std::string extension;
        words >> extension;
        extensions.push_back(extension);
    }
    return extensions;
}

// Where ImageMagick can't tell the format by the extension or the content.
std::string ReaderPrefix(const std::string& extension) {
    return extension == ".wbmp" || extension == ".cur" || extension == ".icns"
               ? extension.substr(1) + ":"
               : "";
}

}  // namespace

TEST(KirtoCliImages, NamesAndReadsBackASequenceOfEveryWritableFormat) {
    const SequenceHome home;
    const std::vector<std::string> extensions = WritableExtensions(home);
    for (const char* extension : {".png", ".jpg", ".bmp", ".tga"})
        EXPECT_EQ(std::count(extensions.begin(), extensions.end(), extension), 1) << extension;
    for (const std::string& extension : extensions) {
        home.Succeed({"--insert", "square.ppm", "--insert", "square.ppm", "--save-sequence",
                      "out" + extension});
        for (const std::string& name : {"out0000" + extension, "out0001" + extension}) {
            EXPECT_FALSE(ReadBytes(home.File(name)).empty()) << name;
            if (!HasImageMagick() || extension == ".icns") continue;
            const RunResult seen = home.RunProgram(
                "/usr/bin/identify", {"-format", "%w %h\n", ReaderPrefix(extension) + name});
            EXPECT_EQ(seen.out, "16 16\n") << name << ' ' << seen.err;
        }
    }
}

TEST(KirtoCliImages, WritesEveryPixelOfExactFormats) {
    if (!HasImageMagick()) GTEST_SKIP() << "no ImageMagick";
    const SequenceHome home;
    for (const std::string extension : {".png", ".tiff", ".tga"}) {
        home.Succeed({"--insert", "clear.png", "--insert", "solid.png", "--save-sequence",
                      "out" + extension});
        EXPECT_EQ(home.Seen("out0000" + extension), kClear) << extension;
        EXPECT_EQ(home.Seen("out0001" + extension), kSolid) << extension;
    }
    home.Succeed({"--insert", "clear.png", "--insert", "solid.png", "--save-sequence", "out.bmp"});
    EXPECT_EQ(home.Seen("out0000.bmp"), WithoutAlpha(kClear));
    EXPECT_EQ(home.Seen("out0001.bmp"), kSolid);
}

TEST(KirtoCliImages, PutsTheNumberBeforeTheFirstDotOfAName) {
    const SequenceHome home;

    home.Succeed({"--insert", "square.ppm", "--save-sequence", "a.b.png"});
    home.Succeed({"--format", "tga", "--insert", "square.ppm", "--save-sequence", "plain"});

    const std::vector<std::string> files = home.Files();
    EXPECT_EQ(std::count(files.begin(), files.end(), "a0000.b.png"), 1);
    EXPECT_EQ(std::count(files.begin(), files.end(), "plain0000"), 1);
}

TEST(KirtoCliImages, WritesTheFormatItIsToldWhateverTheExtension) {
    const SequenceHome home;

    home.Succeed({"--format", "BMP", "--insert", "square.ppm", "--save-sequence", "out.png"});
    home.Succeed({"--format", "PNG image", "--insert", "square.ppm", "--save-sequence", "out.bmp"});

    EXPECT_EQ(ReadBytes(home.File("out0000.png"))[0], 'B');
    EXPECT_EQ(ReadBytes(home.File("out0000.bmp"))[1], 'P');
}

TEST(KirtoCliImages, RefusesFormatsThatItDoesNotWrite) {
    const SequenceHome home;
    for (const std::string format : {"nonsense", "gif", "."}) {
        home.Fail({"--format", format, "--insert", "square.ppm", "--save-sequence", "out.png"},
                  "--save-sequence: There is no format \"" + format +
                      "\" to write; --list-formats names them.",
                  2);
    }
    home.Fail({"--insert", "square.ppm", "--save-sequence", "out"},
              "--save-sequence: There is no format \"\" to write; --list-formats names them.", 2);
}

TEST(KirtoCliImages, FailsWhereNoFileCanBeMade) {
    const SequenceHome home;

    home.Fail({"--insert", "square.ppm", "--save-sequence", "missing/out.png"},
              "missing/out.png: The animation can't be saved because the file could not be created "
              "at this location.",
              1);
}

TEST(KirtoCliImages, FailsOnPicturesThatTheFormatCanNotHold) {
    const SequenceHome home;
    const std::vector<std::string> extensions = WritableExtensions(home);
    if (std::count(extensions.begin(), extensions.end(), ".webp") == 0) GTEST_SKIP() << "no WebP";
    home.Write("wide.ppm", Ppm(20000, 1, Colors(20000, 0x336699)));

    home.Fail({"--insert", "wide.ppm", "--save-sequence", "out.webp"},
              "out.webp: The animation can't be saved because the selected translator is not "
              "valid.",
              1);

    EXPECT_FALSE(std::filesystem::exists(home.File("out0000.webp")));
}

TEST(KirtoCliImages, SavesTheCurrentFrameAloneUnderTheNameThatIsGiven) {
    const SequenceHome home;
    home.Write("small.ppm", Ppm(1, 1, {0x102030}));
    home.Succeed({"--insert", "small.ppm", "--insert", "square.ppm", "--select", "1",
                  "--save-frame", "one.png"});

    EXPECT_EQ(home.Frames({"--insert", "one.png"}), home.Frames({"--insert", "square.ppm"}));
    EXPECT_FALSE(std::filesystem::exists(home.File("one0000.png")));
}

TEST(KirtoCliImages, SavesAFrameWithoutAnExtensionInTheFormatThatIsNamed) {
    const SequenceHome home;
    home.Succeed({"--insert", "square.ppm", "--format", "PNG", "--save-frame", "thumbnail"});

    const std::vector<uint8> bytes = ReadBytes(home.File("thumbnail"));
    ASSERT_GE(bytes.size(), 4u);
    EXPECT_EQ(std::string(bytes.begin() + 1, bytes.begin() + 4), "PNG");
}

TEST(KirtoCliImages, SavesNoFrameThatThereIsNot) {
    const SequenceHome home;
    home.Fail({"--save-frame", "none.png"}, "There is no current frame.", 1);
    home.Fail({"--insert", "square.ppm", "--save-frame", "none"},
              "--save-frame: There is no format \"\" to write; --list-formats names them.", 2);
    home.Fail({"--insert", "square.ppm", "--save-frame", "nowhere/one.png"},
              "nowhere/one.png: The animation can't be saved because the file could not be created "
              "at this location.",
              1);
}

}  // namespace kirto::test
