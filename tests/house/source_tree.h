// Reads the project's own files, for the tests that check how they relate to each other.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kirto::test {

// The root of the checkout.
std::filesystem::path ProjectRoot();

// The text of a file; a failed read fails the test.
std::string ReadText(const std::filesystem::path& path);
std::vector<std::string> LinesOf(const std::filesystem::path& path);

// The regular files below the folder of the checkout whose names end so, as sorted paths relative
// to that folder.
std::vector<std::filesystem::path> FilesBelow(const std::string& folder,
                                              const std::vector<std::string>& endings);

// Every text that the first group of the regular expression (POSIX, extended; it matches at least
// one character) matches in the text, in order.
std::vector<std::string> AllMatches(const std::string& text, const std::string& expression);

}  // namespace kirto::test
