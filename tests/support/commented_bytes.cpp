#include "support/commented_bytes.h"

#include <regex>
#include <sstream>

namespace kirto::test {

namespace {

// Takes the words of a line off its front. False at one that is none.
bool AssembleLine(std::string line, std::vector<uint8>* bytes) {
    static const std::regex word(
        R"(^\s*(?:'([^']*)'|([0-9A-Fa-f]{2})(?:\*([0-9]{1,6}))?)(?=\s|#|$))");
    static const std::regex nothing_more(R"(^\s*(?:#.*)?$)");
    for (std::smatch match; std::regex_search(line, match, word); line = match.suffix()) {
        const std::string text = match[1];
        if (match[1].matched) bytes->insert(bytes->end(), text.begin(), text.end());
        if (!match[2].matched) continue;
        const size_t count = match[3].matched ? std::stoul(match[3]) : 1;
        bytes->insert(bytes->end(), count, static_cast<uint8>(std::stoul(match[2], nullptr, 16)));
    }
    return std::regex_match(line, nothing_more);
}

}  // namespace

std::optional<std::vector<uint8>> AssembleBytes(const std::string& text) {
    std::vector<uint8> bytes;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!AssembleLine(line, &bytes)) return std::nullopt;
    }
    return bytes;
}

std::vector<std::string> NotesIn(const std::string& text, const std::string& key) {
    const std::string start = "# " + key + ": ";
    std::vector<std::string> notes;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(start)) notes.push_back(line.substr(start.size()));
    }
    return notes;
}

}  // namespace kirto::test
