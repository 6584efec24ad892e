#include "base/terminal_text.h"

#include <gtest/gtest.h>

namespace kirto::test {
namespace {

TEST(TerminalText, ShowsControlCharactersAsTheirNumbers) {
    EXPECT_EQ(TerminalText("a\x1b]0;title\x07z"), "a\\x1b]0;title\\x07z");
    EXPECT_EQ(TerminalText("one\ntwo\r\t\x7f"), "one\\x0atwo\\x0d\\x09\\x7f");
    EXPECT_EQ(TerminalText(std::string_view("\0", 1)), "\\x00");
}

TEST(TerminalText, ShowsTheSecondSetOfControlCharactersAsNumbers) {
    EXPECT_EQ(TerminalText("\xc2\x9b"
                           "31m"),
              "\\xc2\\x9b"
              "31m");
    EXPECT_EQ(TerminalText("\x9b"
                           "31m"),
              "\\x9b"
              "31m");
}

TEST(TerminalText, LeavesOtherCharactersAsTheyAre) {
    const std::string text =
        "Gr\xc3\xbc\xc3\x9f"
        "e \xc2\xa0 \xf0\x9f\x98\x80 \\x1b ~";
    EXPECT_EQ(TerminalText(text), text);
    EXPECT_EQ(TerminalText(""), "");
}

TEST(TerminalText, ShowsBytesThatAreNotUtf8AsNumbers) {
    EXPECT_EQ(TerminalText("a\xff\xe9z"), "a\\xff\\xe9z");
}

TEST(TerminalText, ShortensLongTexts) {
    EXPECT_EQ(TerminalText(std::string(4096, 'a')), std::string(4096, 'a'));
    EXPECT_EQ(TerminalText(std::string(100'000'000, 'a')),
              std::string(4096, 'a') + "... (99995904 bytes more)");
    EXPECT_EQ(TerminalText(std::string(4095, 'a') + "\xc3\xbc"),
              std::string(4095, 'a') + "... (2 bytes more)");
}

TEST(TerminalText, CountsWhatWasLeftOutBefore) {
    EXPECT_EQ(TerminalText("a\nb", "\n  ", 7), "a\n  b... (7 bytes more)");
}

}  // namespace
}  // namespace kirto::test
