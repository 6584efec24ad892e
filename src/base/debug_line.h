// Internal failures are printed, not shown: one line made of the class and method name, a dash and
// the text. All of them pass through DebugLine.
#pragma once

#include <functional>
#include <string>

namespace kirto {

// Formats like printf and hands the text to the installed sink. The text brings its own newline.
// Thread-safe.
[[gnu::format(printf, 1, 2)]] void DebugLine(const char* format, ...);

// While alive, what its thread prints stays here, for somebody who works ahead of his turn. The one
// made last counts; they end in the reverse order.
class DebugLineCapture {
  public:
    DebugLineCapture();
    ~DebugLineCapture();
    DebugLineCapture(const DebugLineCapture&) = delete;
    DebugLineCapture& operator=(const DebugLineCapture&) = delete;

    // What was printed so far.
    std::string Take();

  private:
    std::string text_;
    std::string* const before_;
};

// Called by one thread at a time; must not itself print debug lines.
using DebugSink = std::function<void(const std::string& text)>;

// Installs where debug lines go and returns what was installed before. An empty sink means standard
// output, the default.
DebugSink InstallDebugSink(DebugSink sink);

}  // namespace kirto
