// The collection of animation files that the corpus tests run over. It is not part of the project:
// it lies in the folder that the environment variable KIRTO_CORPUS names, or in ../shared/corpus
// beside the checkout, and where it is absent those tests are skipped.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kirto::test {

std::optional<std::filesystem::path> CorpusFolder();

// One row of a table: the values by the names of their columns. "-" stands for none.
using CorpusRow = std::map<std::string, std::string>;

// A tab-separated table whose first line names the columns.
std::vector<CorpusRow> ReadCorpusTable(const std::filesystem::path& path);

}  // namespace kirto::test
