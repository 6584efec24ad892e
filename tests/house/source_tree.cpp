#include "house/source_tree.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex.h>
#include <sstream>

#include "support/source_folder.h"

namespace kirto::test {

namespace fs = std::filesystem;

fs::path ProjectRoot() {
    return SourceFolder();
}

std::string ReadText(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_TRUE(stream.good()) << path << " can't be read";
    return text;
}

std::vector<std::string> LinesOf(const fs::path& path) {
    std::istringstream stream(ReadText(path));
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::vector<fs::path> FilesBelow(const std::string& folder,
                                 const std::vector<std::string>& endings) {
    const fs::path root = ProjectRoot() / folder;
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const std::string name = entry.path().filename().string();
        const auto ends_so = [&](const std::string& ending) { return name.ends_with(ending); };
        if (!entry.is_regular_file()) continue;
        if (!std::any_of(endings.begin(), endings.end(), ends_so)) continue;
        files.push_back(fs::relative(entry.path(), root));
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<std::string> AllMatches(const std::string& text, const std::string& expression) {
    std::vector<std::string> matches;
    regex_t regex;
    if (regcomp(&regex, expression.c_str(), REG_EXTENDED) != 0) {
        ADD_FAILURE() << expression << " is not a regular expression";
        return matches;
    }
    const char* rest = text.c_str();
    regmatch_t groups[2];
    for (int flags = 0; regexec(&regex, rest, 2, groups, flags) == 0; flags = REG_NOTBOL) {
        matches.emplace_back(rest + groups[1].rm_so, rest + groups[1].rm_eo);
        rest += groups[0].rm_eo;
    }
    regfree(&regex);
    return matches;
}

}  // namespace kirto::test
