// Standard input and output in place of files. What reads and writes animations wants files that it
// may go to and fro in, so what comes and goes lies in temporary ones meanwhile.
#pragma once

#include <optional>
#include <string>

namespace kirto {

// True for "-", and for "-@N" as the value of an option that inserts.
bool IsStandardStream(const std::string& value);

// The folder of the file that StandardInput makes.
inline constexpr const char* kStandardInputFolder = "/proc/self/fd";

// Standard input, read to its end when it is first asked for. Used by one thread.
class StandardInput {
  public:
    StandardInput() = default;
    ~StandardInput();
    StandardInput(const StandardInput&) = delete;
    StandardInput& operator=(const StandardInput&) = delete;

    // The path of a file with all of it, which nobody else can name and which goes with the
    // process, however that ends. Nothing, with errno set, where it can't be read or kept; a signal
    // ends the reading, too.
    std::optional<std::string> Path();

  private:
    bool Read();

    int descriptor_ = -1;
};

// A folder for one file that is then sent to standard output; both are gone with the object.
class StandardOutput {
  public:
    StandardOutput();
    ~StandardOutput();
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;

    // Where the file is to be written; empty where the folder can't be made.
    const std::string& Path() const { return path_; }
    // Sends the file. False when it can't be read; that standard output takes it is to be seen when
    // it is flushed.
    bool Send() const;

  private:
    std::string folder_;
    std::string path_;
};

}  // namespace kirto
