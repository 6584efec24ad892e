#include "base/line_output.h"

#include <array>
#include <gtest/gtest.h>
#include <pty.h>
#include <thread>
#include <unistd.h>

#include "support/test_support.h"

namespace kirto::test {
namespace {

// What a terminal is sent; line breaks arrive as "\r\n".
class Terminal {
  public:
    Terminal() {
        int program_side = -1;
        EXPECT_EQ(openpty(&terminal_, &program_side, nullptr, nullptr, nullptr), 0);
        stream = fdopen(program_side, "w");
    }
    ~Terminal() {
        std::fclose(stream);
        close(terminal_);
    }
    // All that was written; it may arrive in pieces.
    std::string Text() {
        constexpr char kEnd = '\x7f';
        std::fputc(kEnd, stream);
        std::fflush(stream);
        std::string text;
        while (!text.ends_with(kEnd))
            text += Read();
        text.pop_back();
        return text;
    }
    std::string Read() const {
        std::array<char, 4096> buffer;
        const ssize_t size = read(terminal_, buffer.data(), buffer.size());
        return size > 0 ? std::string(buffer.data(), static_cast<size_t>(size)) : "";
    }

    std::FILE* stream = nullptr;

  private:
    int terminal_ = -1;
};

TEST(LineOutput, IndentsLinesWithinALineOnATerminal) {
    Terminal terminal;
    LineOutput output(terminal.stream);
    output.Write("Found:\nhi\x1b\nkirto-cli: done.\n");
    EXPECT_EQ(terminal.Text(), "Found:\r\n    hi\\x1b\r\n    kirto-cli: done.\r\n");
}

TEST(LineOutput, TakesALineInPieces) {
    Terminal terminal;
    LineOutput output(terminal.stream);
    output.Write("Found:");
    output.Write("\nGr\xc3");
    output.Write(
        "\xbc\xc3\x9f"
        "e");
    output.Write("\n");
    EXPECT_EQ(terminal.Text(),
              "Found:\r\n    Gr\xc3\xbc\xc3\x9f"
              "e\r\n");
}

TEST(LineOutput, ShortensALongLineOfPieces) {
    Terminal terminal;
    LineOutput output(terminal.stream);
    // A terminal takes only so much before somebody reads.
    std::thread writer([&] {
        for (int i = 0; i < 100; ++i)
            output.Write(std::string(100, '\r'));
        output.Write("\n");
        std::fflush(terminal.stream);
    });
    std::string expected;
    for (int i = 0; i < 4096; ++i)
        expected += "\\x0d";
    std::string text;
    while (!text.ends_with('\n'))
        text += terminal.Read();
    writer.join();
    EXPECT_EQ(text, expected + "... (5904 bytes more)\r\n");
}

TEST(LineOutput, EndsALineThatHasNoEnd) {
    Terminal terminal;
    LineOutput output(terminal.stream);
    output.Write("Found:");
    output.EndLine();
    output.EndLine();
    EXPECT_EQ(terminal.Text(), "Found:\r\n");
}

TEST(LineOutput, WritesWordForWordIntoFiles) {
    const TemporaryFolder folder;
    const std::string text = "Found:\nhi\x1b\n" + std::string(10'000, 'a');
    std::FILE* file = std::fopen(folder.File("lines").c_str(), "w");
    ASSERT_NE(file, nullptr);
    LineOutput output(file);
    output.Write(text);
    output.EndLine();
    std::fclose(file);
    const std::vector<uint8> bytes = ReadBytes(folder.File("lines"));
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), text);
}

}  // namespace
}  // namespace kirto::test
