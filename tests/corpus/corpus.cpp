#include "corpus/corpus.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/source_folder.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> Cells(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, '\t');)
        cells.push_back(cell);
    return cells;
}

}  // namespace

std::optional<fs::path> CorpusFolder() {
    const char* named = std::getenv("KIRTO_CORPUS");
    const fs::path folder = named ? fs::path(named) : SourceFolder() / "../shared/corpus";
    if (!fs::exists(folder / "MANIFEST.tsv")) return std::nullopt;
    return folder;
}

std::vector<CorpusRow> ReadCorpusTable(const fs::path& path) {
    std::ifstream stream(path);
    std::string line;
    std::getline(stream, line);
    const std::vector<std::string> names = Cells(line);
    std::vector<CorpusRow> rows;
    while (std::getline(stream, line)) {
        const std::vector<std::string> cells = Cells(line);
        CorpusRow row;
        for (size_t i = 0; i < names.size(); ++i)
            row[names[i]] = i < cells.size() ? cells[i] : "";
        rows.push_back(row);
    }
    return rows;
}

}  // namespace kirto::test
