// Runs the command-line program as a user would, in a home folder of its own.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <unistd.h>
#include <vector>

#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

using Arguments = std::vector<std::string>;
using Json = nlohmann::ordered_json;

struct RunResult {
    int status = -1;  // the exit status, or -1 for an end by a signal
    std::string out;
    std::string err;
};

// A home folder without settings and a folder for files, both gone with the object. Programs find
// them as $HOME and as their working folder.
class CliHome {
  public:
    CliHome();

    // Runs kirto-cli with the arguments.
    RunResult Run(const Arguments& arguments) const;
    // As Run, with a terminal as standard error or standard output; that text is what the terminal
    // was sent.
    RunResult RunOnTerminal(const Arguments& arguments, int stream = STDERR_FILENO) const;
    // As Run, with standard output going to the file at path.
    RunResult RunInto(const std::string& path, const Arguments& arguments) const;
    // Runs another program.
    RunResult RunProgram(const std::string& program, const Arguments& arguments) const;

    // Starts another program and returns its process, which the caller waits for. What it writes is
    // thrown away.
    int StartProgram(const std::string& program, const Arguments& arguments) const;

    // Runs with --info-json at the end, expects success, and returns what was printed.
    Json Info(Arguments arguments) const;

    // The path of a file in the working folder.
    std::string File(const std::string& name) const { return files_.File(name); }
    // Writes such a file and returns its name.
    std::string Write(const std::string& name, const std::vector<uint8>& bytes) const;
    std::string ConfigFile() const { return home_.File("config/Kirto_settings"); }
    std::string HomeFile(const std::string& name) const { return home_.File(name); }
    // Of the programs run from now on.
    void SetEnvironment(const std::string& name, const std::string& value);

  private:
    // What becomes of a program's standard output and error: descriptors that the parent keeps.
    int Start(const std::string& program, const Arguments& arguments, int out, int err) const;

    TemporaryFolder home_;
    TemporaryFolder files_;
    std::vector<std::pair<std::string, std::string>> environment_;
};

// 2 x 1 pixels in black, white, red and blue; three frames "frame0000" and on with pauses 10, 10
// and 20 hundredths, for ever.
std::vector<uint8> ThreeFrameGif();
// A GIF that breaks off after so many whole frames of 2 x 1 pixels.
std::vector<uint8> DamagedGif(int32 whole_frames);
// 2 x 1 pixels, two frames.
std::vector<uint8> TwoFrameFli();

// The frames' names in an --info-json object.
std::vector<std::string> NamesIn(const Json& info);

}  // namespace kirto::test
