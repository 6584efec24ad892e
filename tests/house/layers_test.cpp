// Holds the sources against the table of layers in ARCHITECTURE.md.
#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "house/source_tree.h"

namespace kirto::test {
namespace {

namespace fs = std::filesystem;

struct Layer {
    std::string folder;
    std::string target;             // empty for the programs and for rooms of a library
    std::set<std::string> allowed;  // folders that may be included, besides its own
};

std::vector<std::string> CodeWords(const std::string& cell) {
    return AllMatches(cell, "`([^`]+)`");
}

// The cells of a table's row; empty for any other line.
std::vector<std::string> CellsOf(const std::string& line) {
    std::vector<std::string> cells;
    if (!line.starts_with('|')) return cells;
    for (size_t start = 1; start < line.size();) {
        const size_t end = std::min(line.find('|', start), line.size());
        cells.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return cells;
}

// The rows "| `folder` | `library` | `folder`, `folder` |", from the top.
std::vector<Layer> ReadLayers() {
    std::vector<Layer> layers;
    bool inside = false;
    for (const std::string& line : LinesOf(ProjectRoot() / "ARCHITECTURE.md")) {
        const std::vector<std::string> cells = CellsOf(line);
        const bool is_row = cells.size() == 3;
        if (is_row && cells[0] == " Folder ") inside = true;
        if (!is_row) inside = false;
        if (!inside || CodeWords(cells[0]).size() != 1) continue;
        const std::vector<std::string> library = CodeWords(cells[1]);
        const std::vector<std::string> allowed = CodeWords(cells[2]);
        layers.push_back({CodeWords(cells[0])[0],
                          library.empty() ? "" : library[0],
                          {allowed.begin(), allowed.end()}});
    }
    return layers;
}

// The row of a folder, or null.
const Layer* RowOf(const std::string& folder, const std::vector<Layer>& layers) {
    for (const Layer& layer : layers) {
        if (layer.folder == folder) return &layer;
    }
    return nullptr;
}

// The row of the innermost folder that a path lies in, or null.
const Layer* LayerOf(const fs::path& path, const std::vector<Layer>& layers) {
    for (fs::path folder = path.parent_path(); !folder.empty(); folder = folder.parent_path()) {
        if (const Layer* layer = RowOf(folder.string(), layers)) return layer;
    }
    return nullptr;
}

// The row of the folder whose library a room without one of its own is part of, or null.
const Layer* HouseOf(const Layer& room, const std::vector<Layer>& layers) {
    if (!room.target.empty()) return nullptr;
    return RowOf(fs::path(room.folder).parent_path().string(), layers);
}

// A row that names a house names its rooms. A room may include what its house may, but not the
// house itself, which may include its rooms.
bool MayInclude(const Layer& from, const Layer& to, const std::vector<Layer>& layers) {
    const Layer* house = HouseOf(from, layers);
    const auto names = [&](const std::string& folder) {
        return from.allowed.count(folder) > 0 || (house && house->allowed.count(folder) > 0);
    };
    if (&from == &to || names(to.folder)) return true;
    const Layer* target_house = HouseOf(to, layers);
    return target_house && (target_house == &from || names(target_house->folder));
}

std::vector<fs::path> Sources() {
    return FilesBelow("src", {".h", ".cpp"});
}

// What the source's lines "#include ..." match as the expression's first group.
std::vector<std::string> IncludesOf(const fs::path& source, const std::string& expression) {
    std::vector<std::string> includes;
    for (const std::string& line : LinesOf(ProjectRoot() / "src" / source)) {
        if (!line.starts_with("#include ")) continue;
        const auto found = AllMatches(line, "^#include " + expression);
        includes.insert(includes.end(), found.begin(), found.end());
    }
    return includes;
}

std::vector<std::string> OwnIncludesOf(const fs::path& source) {
    return IncludesOf(source, "\"([^\"]+)\"");
}

TEST(Layers, EveryFolderOfTheSourcesHasARow) {
    const std::vector<Layer> layers = ReadLayers();
    for (const fs::path& source : Sources()) {
        EXPECT_NE(LayerOf(source, layers), nullptr) << "src/" << source.string();
    }
}

TEST(Layers, EveryRowIsAFolderOfTheSources) {
    for (const Layer& layer : ReadLayers()) {
        EXPECT_TRUE(fs::is_directory(ProjectRoot() / "src" / layer.folder)) << layer.folder;
    }
}

TEST(Layers, ARowAllowsOnlyFoldersOfTheRowsAboveIt) {
    std::set<std::string> above;
    for (const Layer& layer : ReadLayers()) {
        for (const std::string& allowed : layer.allowed) {
            EXPECT_EQ(above.count(allowed), 1u) << layer.folder << " and " << allowed;
        }
        EXPECT_TRUE(above.insert(layer.folder).second) << layer.folder << " has two rows";
    }
}

TEST(Layers, AFolderIncludesOnlyItselfAndWhatItsRowAllows) {
    const std::vector<Layer> layers = ReadLayers();
    size_t checked = 0;
    for (const fs::path& source : Sources()) {
        const Layer* layer = LayerOf(source, layers);
        ASSERT_NE(layer, nullptr) << source;
        for (const std::string& include : OwnIncludesOf(source)) {
            const Layer* target = LayerOf(include, layers);
            EXPECT_TRUE(target && MayInclude(*layer, *target, layers))
                << "src/" << source.string() << " includes \"" << include << '"';
            ++checked;
        }
    }
    EXPECT_GT(checked, 0u);
}

TEST(Layers, IncludesInQuotesNameFilesFromTheRootOfTheSources) {
    for (const fs::path& source : Sources()) {
        for (const std::string& include : OwnIncludesOf(source)) {
            EXPECT_TRUE(fs::is_regular_file(ProjectRoot() / "src" / include))
                << "src/" << source.string() << " includes \"" << include << '"';
        }
    }
}

TEST(Layers, LibrariesAreLinkedOnlyToThoseThatTheirFolderMayInclude) {
    const std::vector<Layer> layers = ReadLayers();
    for (const Layer& layer : layers) {
        if (layer.target.empty()) continue;
        const std::string text = ReadText(ProjectRoot() / "src" / layer.folder / "CMakeLists.txt");
        EXPECT_EQ(AllMatches(text, "_library\\(([a-z_]+)"), std::vector{layer.target});
        std::set<std::string> allowed;
        for (const std::string& folder : layer.allowed) {
            if (const Layer* below = RowOf(folder, layers)) allowed.insert(below->target);
        }
        for (const std::string& depends : AllMatches(text, "DEPENDS([^)]*)\\)")) {
            for (const std::string& library : AllMatches(depends, "([a-z_]+)")) {
                EXPECT_EQ(allowed.count(library), 1u) << layer.target << " uses " << library;
            }
        }
    }
}

TEST(Layers, OnlyTheFarSideOfTheKitAndTheWindowsSeeQt) {
    for (const fs::path& source : Sources()) {
        const bool sees_qt = !IncludesOf(source, "<(Q[A-Zt][^>]*)>").empty();
        const std::string path = source.string();
        const bool may_see_qt = path.find("/qt/") != std::string::npos || path.starts_with("ui/") ||
                                path.starts_with("main/");
        EXPECT_TRUE(may_see_qt || !sees_qt) << "src/" << path << " includes Qt";
    }
}

}  // namespace
}  // namespace kirto::test
