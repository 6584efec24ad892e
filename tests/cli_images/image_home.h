// Folders with pictures for the program, and a look at the pictures it writes.
#pragma once

#include <gtest/gtest.h>
#include <optional>

#include "cli/cli_run.h"

namespace kirto::test {

// Colours as 0xRRGGBB, or 0xRRGGBBAA where that is said, row by row.
using Colors = std::vector<uint32>;

// width x height pixels as a PPM file.
std::vector<uint8> Ppm(int32 width, int32 height, const Colors& colors);
// The same as a PAM file with alpha; the colours are 0xRRGGBBAA.
std::vector<uint8> Pam(int32 width, int32 height, const Colors& colors);

class ImageHome : public CliHome {
  public:
    // Runs and expects success without a word.
    void Succeed(const Arguments& arguments) const;
    // Runs and expects one line and this exit status.
    void Fail(const Arguments& arguments, const std::string& line, int status) const;
    // The pixels of each frame as the program itself writes them to PPM files.
    std::vector<Colors> Frames(Arguments arguments) const;
    // Runs a line of the shell in the working folder.
    RunResult Shell(const std::string& line) const;
    // The pixels of an image file as ImageMagick reads them, 0xRRGGBBAA; none if it can't.
    std::optional<Colors> Seen(const std::string& name) const;
    // The names of all files in the working folder, sorted.
    std::vector<std::string> Files(const std::string& folder = ".") const;
};

bool HasImageMagick();

}  // namespace kirto::test
