#include "cli_images/image_home.h"

#include <algorithm>
#include <filesystem>

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

std::vector<uint8> WithPixels(const std::string& header, const Colors& colors, int highest_shift) {
    std::vector<uint8> bytes(header.begin(), header.end());
    for (const uint32 color : colors) {
        for (int shift = highest_shift; shift >= 0; shift -= 8)
            bytes.push_back(static_cast<uint8>(color >> shift));
    }
    return bytes;
}

// The last count * channels bytes as colours.
Colors ColorsAtEnd(const std::vector<uint8>& bytes, size_t start, size_t channels) {
    Colors colors;
    for (size_t i = start; i + channels <= bytes.size(); i += channels) {
        uint32 color = 0;
        for (size_t j = 0; j < channels; ++j)
            color = color << 8 | bytes[i + j];
        colors.push_back(color);
    }
    return colors;
}

// Where a binary PPM's pixels begin: behind its third line.
size_t PixelsOfPpm(const std::vector<uint8>& bytes) {
    auto place = bytes.begin();
    for (int line = 0; line < 3 && place != bytes.end(); ++line) {
        place = std::find(place, bytes.end(), '\n');
        if (place != bytes.end()) ++place;
    }
    return static_cast<size_t>(place - bytes.begin());
}

}  // namespace

std::vector<uint8> Ppm(int32 width, int32 height, const Colors& colors) {
    return WithPixels("P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n",
                      colors, 16);
}

std::vector<uint8> Pam(int32 width, int32 height, const Colors& colors) {
    return WithPixels("P7\nWIDTH " + std::to_string(width) + "\nHEIGHT " + std::to_string(height) +
                          "\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n",
                      colors, 24);
}

void ImageHome::Succeed(const Arguments& arguments) const {
    const RunResult result = Run(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
}

void ImageHome::Fail(const Arguments& arguments, const std::string& line, int status) const {
    const RunResult result = Run(arguments);
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(result.err, "kirto-cli: " + line + "\n");
}

std::vector<Colors> ImageHome::Frames(Arguments arguments) const {
    fs::remove_all(File("frames"));
    fs::create_directory(File("frames"));
    arguments.insert(arguments.end(), {"--save-sequence", "frames/f.ppm"});
    Succeed(arguments);
    std::vector<Colors> frames;
    for (const std::string& name : Files("frames")) {
        const std::vector<uint8> bytes = ReadBytes(File("frames/" + name));
        frames.push_back(ColorsAtEnd(bytes, PixelsOfPpm(bytes), 3));
    }
    return frames;
}

RunResult ImageHome::Shell(const std::string& line) const {
    return RunProgram("/bin/sh", {"-c", line});
}

std::optional<Colors> ImageHome::Seen(const std::string& name) const {
    fs::remove(HomeFile("seen.rgba"));
    const RunResult result =
        RunProgram("/usr/bin/convert", {name, "-depth", "8", "rgba:" + HomeFile("seen.rgba")});
    if (result.status != 0) return std::nullopt;
    return ColorsAtEnd(ReadBytes(HomeFile("seen.rgba")), 0, 4);
}

std::vector<std::string> ImageHome::Files(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(File(folder)))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

bool HasImageMagick() {
    return fs::exists("/usr/bin/convert") && fs::exists("/usr/bin/identify");
}

}  // namespace kirto::test
