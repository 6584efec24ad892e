#pragma once

#include <cstdio>
#include <mutex>
#include <string>
#include <string_view>

namespace kirto {

// Where the program's lines go: word for word into files and pipes. A terminal gets whole lines as
// TerminalText: a line goes on over line breaks within the texts that make it up, which show as an
// indented line, until a text ends in a line break. So no name and no comment can pass for a line
// of the program. Thread-safe.
class LineOutput {
  public:
    // stream: not owned.
    explicit LineOutput(std::FILE* stream);
    ~LineOutput() { EndLine(); }
    LineOutput(const LineOutput&) = delete;
    LineOutput& operator=(const LineOutput&) = delete;

    void Write(std::string_view text);
    // Shows what a terminal has not been sent of a line that has no end.
    void EndLine();
    bool IsTerminal() const { return terminal_; }

  private:
    void Show();

    std::FILE* const stream_;
    const bool terminal_;
    std::mutex mutex_;
    std::string line_;    // on a terminal: the line so far, as much of it as can be shown
    size_t dropped_ = 0;  // bytes of the line that are not kept
};

}  // namespace kirto
