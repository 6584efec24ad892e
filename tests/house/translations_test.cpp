// Holds the translations of the windows against the texts of the sources.
#include <cstdlib>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <string>
#include <toml++/toml.h>
#include <vector>

#include "house/source_tree.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolder = "resources/languages";

std::string Plain(std::string text) {
    const std::pair<const char*, const char*> entities[] = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}};
    for (const auto& [entity, character] : entities) {
        for (size_t at = text.find(entity); at != std::string::npos;
             at = text.find(entity, at + 1))
            text.replace(at, std::string_view(entity).size(), character);
    }
    return text;
}

struct Text {
    std::string source;
    std::vector<std::string> translations;  // several where they depend on a count
    bool unfinished = false;
};

// A text element's content, or none.
std::string Element(const std::string& message, const std::string& name) {
    const size_t start = message.find("<" + name + ">");
    if (start == std::string::npos) return {};
    const size_t content = start + name.size() + 2;
    return Plain(message.substr(content, message.find("</" + name + ">") - content));
}

std::vector<std::string> Forms(const std::string& message) {
    std::vector<std::string> forms;
    const std::string opening = "<numerusform>";
    for (size_t at = message.find(opening); at != std::string::npos;
         at = message.find(opening, at + 1)) {
        const size_t content = at + opening.size();
        forms.push_back(Plain(message.substr(content, message.find('<', content) - content)));
    }
    if (forms.empty()) forms.push_back(Element(message, "translation"));
    return forms;
}

std::vector<Text> TextsIn(const fs::path& path) {
    const std::string file = ReadText(ProjectRoot() / path);
    std::vector<Text> texts;
    for (size_t at = file.find("<message"); at != std::string::npos;
         at = file.find("<message", at + 1)) {
        const std::string message = file.substr(at, file.find("</message>", at) - at);
        texts.push_back({Element(message, "source"), Forms(message),
                         message.find("type=\"unfinished\"") != std::string::npos});
    }
    return texts;
}

std::vector<fs::path> Languages() {
    std::vector<fs::path> languages;
    for (const fs::path& path : FilesBelow(kFolder, {".ts"}))
        languages.push_back(fs::path(kFolder) / path);
    return languages;
}

// "%1" and "%L1" are the same place.
std::set<std::string> PlacesIn(const std::string& text) {
    static const std::regex kPlace("%L?([1-9n])");
    std::set<std::string> places;
    for (std::sregex_iterator match(text.begin(), text.end(), kPlace), end; match != end; ++match)
        places.insert((*match)[1]);
    return places;
}

size_t KeysIn(const std::string& text) {
    static const std::regex kKey("&[^&\\s]");
    return static_cast<size_t>(
        std::distance(std::sregex_iterator(text.begin(), text.end(), kKey), {}));
}

TEST(Translations, ThereAreFourLanguagesWithAllTexts) {
    ASSERT_EQ(Languages().size(), 4u);
    for (const fs::path& path : Languages()) {
        const std::vector<Text> texts = TextsIn(path);
        EXPECT_GT(texts.size(), 700u);
        for (const Text& text : texts) {
            EXPECT_FALSE(text.unfinished) << path << ": " << text.source;
            for (const std::string& translation : text.translations)
                EXPECT_FALSE(translation.empty()) << path << ": " << text.source;
        }
    }
}

TEST(Translations, HaveThePlacesOfTheirTexts) {
    for (const fs::path& path : Languages()) {
        for (const Text& text : TextsIn(path)) {
            // Where it depends on a count, the text itself is that for 1.
            if (text.translations.size() > 1) continue;
            const std::string& translation = text.translations.front();
            if (PlacesIn(translation).count("n") != 0) continue;
            EXPECT_EQ(PlacesIn(translation), PlacesIn(text.source)) << path << ": " << text.source;
        }
    }
}

TEST(Translations, HaveAKeyWhereTheirTextHasOne) {
    for (const fs::path& path : Languages()) {
        for (const Text& text : TextsIn(path)) {
            EXPECT_EQ(KeysIn(text.translations.front()), KeysIn(text.source))
                << path << ": " << text.source;
        }
    }
}

TEST(Translations, AreOfTheTextsThatTheSourcesHave) {
    const bool installed = fs::exists("/usr/lib/qt6/bin/lupdate");
    if (!installed) GTEST_SKIP() << "lupdate is not installed";
    const TemporaryFolder folder;
    for (const fs::path& path : Languages())
        fs::copy_file(ProjectRoot() / path, fs::path(folder.Path()) / path.filename());
    const std::string command = "'" + (ProjectRoot() / kFolder / "update.sh").string() + "' '" +
                                folder.Path() + "' >/dev/null 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0);
    for (const fs::path& path : Languages()) {
        EXPECT_TRUE(ReadText(fs::path(folder.Path()) / path.filename()) ==
                    ReadText(ProjectRoot() / path))
            << path << " is out of date; ./dev languages mends that";
    }
}

// Texts that a layout shows.
void AddLabels(const toml::table& view, std::set<std::string>* labels) {
    for (const char* key : {"title", "label"}) {
        const auto text = view[key].value<std::string>();
        if (text && !text->empty()) labels->insert(*text);
    }
    for (const char* key : {"views", "tabs"}) {
        const toml::array* children = view[key].as_array();
        for (size_t i = 0; children && i < children->size(); ++i)
            AddLabels(*children->get(i)->as_table(), labels);
    }
}

TEST(Translations, KnowTheTextsOfTheLayouts) {
    std::set<std::string> labels;
    AddLabels(toml::parse_file((ProjectRoot() / "resources/preferences_window.toml").string()),
              &labels);
    EXPECT_GT(labels.size(), 40u);
    const std::string known = ReadText(ProjectRoot() / "src/resources/qt/layout_texts.cpp");
    for (std::string label : labels) {
        for (size_t at = label.find('"'); at != std::string::npos; at = label.find('"', at + 2))
            label.insert(at, "\\");
        // The formatter breaks long literals.
        const std::string start = label.substr(0, 60);
        EXPECT_NE(known.find("\"" + start), std::string::npos) << label;
    }
}

}  // namespace
}  // namespace kirto::test
