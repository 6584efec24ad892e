#include "resources/window_layout.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <toml++/toml.h>

#include "base/text.h"
#include "resources/window_archive.h"

namespace kirto {

namespace {

// A word of the source and the number that it stands for in the archive.
struct Word {
    std::string_view word;
    int32 number;
};

constexpr Word kTypes[] = {{"titled", kTitledWindow}, {"modal", kModalWindow}};
constexpr Word kFlags[] = {{"not resizable", kNotResizable}, {"not zoomable", kNotZoomable}};
constexpr Word kFrameworkFlags[] = {{"centered", kCentered}};

// Turns the tables of a source into archives. Each step is false after an error, whose text stays.
class LayoutCompiler {
  public:
    bool MakeWindow(const toml::table& table, BMessage* archive);
    // "LINE: what is wrong".
    const std::string& Error() const { return error_; }

  private:
    using Keys = std::initializer_list<std::string_view>;

    bool Fail(const toml::node& node, const std::string& text);
    bool Expect(const toml::table& table, Keys required, Keys optional);

    // Each takes over one key, where it is there.
    bool AddText(const toml::table& table, const char* key, const char* field, BMessage* archive);
    bool AddNumber(const toml::table& table, const char* key, const char* field, BMessage* archive);
    bool AddFlags(const toml::table& table, const char* key, const char* field,
                  std::span<const Word> words, BMessage* archive);
    bool AddFrame(const toml::table& table, BMessage* archive);
    bool AddType(const toml::table& table, BMessage* archive);
    bool AddLimits(const toml::table& table, BMessage* archive);
    bool AddCommand(const toml::table& table, BMessage* archive);
    bool AddViews(const toml::table& table, const char* key, const char* field, BMessage* archive);

    bool MakeView(const toml::table& table, BMessage* archive);
    bool ReadNumbers(const toml::table& table, const char* key, std::span<float> numbers);
    bool ReadWord(const toml::node& node, std::span<const Word> words, int32* number);

    std::string error_;
};

bool LayoutCompiler::Fail(const toml::node& node, const std::string& text) {
    error_ = Format("%u: %s", static_cast<unsigned>(node.source().begin.line), text.c_str());
    return false;
}

bool LayoutCompiler::Expect(const toml::table& table, Keys required, Keys optional) {
    for (const auto& [key, value] : table) {
        const auto is_key = [&key = key](std::string_view known) { return key.str() == known; };
        if (std::any_of(required.begin(), required.end(), is_key)) continue;
        if (std::any_of(optional.begin(), optional.end(), is_key)) continue;
        return Fail(value, "\"" + std::string(key.str()) + "\" is not allowed here.");
    }
    for (const std::string_view key : required) {
        if (!table.contains(key)) {
            return Fail(table, "\"" + std::string(key) + "\" is missing.");
        }
    }
    return true;
}

bool LayoutCompiler::AddText(const toml::table& table, const char* key, const char* field,
                             BMessage* archive) {
    const toml::node* node = table.get(key);
    if (!node) return true;
    if (!node->is_string()) return Fail(*node, Format("\"%s\" must be a string.", key));
    archive->AddString(field, node->value_or(std::string_view()));
    return true;
}

bool LayoutCompiler::AddNumber(const toml::table& table, const char* key, const char* field,
                               BMessage* archive) {
    const toml::node* node = table.get(key);
    if (!node) return true;
    if (!node->is_number()) return Fail(*node, Format("\"%s\" must be a number.", key));
    archive->AddFloat(field, node->value_or(0.0f));
    return true;
}

bool LayoutCompiler::ReadWord(const toml::node& node, std::span<const Word> words, int32* number) {
    const std::string text = node.value_or(std::string());
    for (const Word& word : words) {
        if (word.word != text) continue;
        *number = word.number;
        return true;
    }
    return Fail(node, Format("\"%s\" is not a valid value here.", text.c_str()));
}

bool LayoutCompiler::AddFlags(const toml::table& table, const char* key, const char* field,
                              std::span<const Word> words, BMessage* archive) {
    int32 flags = 0;
    if (const toml::node* node = table.get(key)) {
        const toml::array* array = node->as_array();
        if (!array) return Fail(*node, Format("\"%s\" must be an array of strings.", key));
        for (const toml::node& word : *array) {
            int32 flag = 0;
            if (!ReadWord(word, words, &flag)) return false;
            flags |= flag;
        }
    }
    archive->AddInt32(field, flags);
    return true;
}

bool LayoutCompiler::ReadNumbers(const toml::table& table, const char* key,
                                 std::span<float> numbers) {
    const toml::array* array = table.get_as<toml::array>(key);
    const auto is_number = [](const toml::node& node) { return node.is_number(); };
    if (!array || array->size() != numbers.size() ||
        !std::all_of(array->begin(), array->end(), is_number)) {
        return Fail(*table.get(key), Format("\"%s\" must be %u numbers.", key,
                                            static_cast<unsigned>(numbers.size())));
    }
    for (size_t i = 0; i < numbers.size(); ++i) {
        numbers[i] = array->get(i)->value_or(0.0f);
    }
    return true;
}

bool LayoutCompiler::AddFrame(const toml::table& table, BMessage* archive) {
    std::array<float, 4> edges = {};
    if (!ReadNumbers(table, "frame", edges)) return false;
    const BRect frame(edges[0], edges[1], edges[2], edges[3]);
    if (!frame.IsValid()) {
        return Fail(*table.get("frame"), "\"frame\" must be left, top, right and bottom.");
    }
    archive->AddRect(kArchiveFrame, frame);
    return true;
}

bool LayoutCompiler::AddType(const toml::table& table, BMessage* archive) {
    int32 type = kTitledWindow;
    const toml::node* node = table.get("type");
    if (node && !ReadWord(*node, kTypes, &type)) return false;
    archive->AddInt32(kArchiveType, type);
    archive->AddInt32(kArchiveLook, kTitledLook);
    archive->AddInt32(kArchiveFeel, type == kModalWindow ? kModalFeel : kNormalFeel);
    return true;
}

bool LayoutCompiler::AddLimits(const toml::table& table, BMessage* archive) {
    const char* const fields[] = {kArchiveMinWidth, kArchiveMaxWidth, kArchiveMinHeight,
                                  kArchiveMaxHeight};
    if (!table.contains("limits")) return true;
    std::array<float, 4> limits = {};
    if (!ReadNumbers(table, "limits", limits)) return false;
    if (limits[0] > limits[1] || limits[2] > limits[3]) {
        return Fail(*table.get("limits"),
                    "\"limits\" must be minimum and maximum width, minimum and maximum height.");
    }
    for (size_t i = 0; i < limits.size(); ++i) {
        archive->AddFloat(kArchiveSizeLimits, limits[i]);
        archive->AddFloat(fields[i], limits[i]);
    }
    return true;
}

bool LayoutCompiler::AddCommand(const toml::table& table, BMessage* archive) {
    const toml::node* node = table.get("message");
    if (!node) return true;
    const std::string text = node->value_or(std::string());
    const auto is_printable = [](char c) { return c > ' ' && c <= '~'; };
    if (text.size() != 4 || !std::all_of(text.begin(), text.end(), is_printable)) {
        return Fail(*node, "\"message\" must be the four characters of a command code.");
    }
    BMessage command;
    for (const char c : text) {
        command.what = (command.what << 8) | static_cast<uint8>(c);
    }
    archive->AddMessage(kArchiveMessage, command);
    return true;
}

bool LayoutCompiler::AddViews(const toml::table& table, const char* key, const char* field,
                              BMessage* archive) {
    const toml::node* node = table.get(key);
    if (!node) return true;
    const toml::array* array = node->as_array();
    if (!array) return Fail(*node, Format("\"%s\" must be an array of tables.", key));
    for (const toml::node& element : *array) {
        const toml::table* view = element.as_table();
        if (!view) return Fail(element, Format("\"%s\" must be an array of tables.", key));
        BMessage view_archive;
        if (!MakeView(*view, &view_archive)) return false;
        if (archive->AddMessage(field, view_archive) != B_OK) {
            return Fail(element, "Views are nested too deeply.");
        }
    }
    return true;
}

bool LayoutCompiler::MakeView(const toml::table& table, BMessage* archive) {
    if (!Expect(table, {"class", "name", "frame"},
                {"label", "message", "divider", "views", "tabs"})) {
        return false;
    }
    if (!AddText(table, "class", kArchiveClass, archive) ||
        !AddText(table, "name", kArchiveName, archive) || !AddFrame(table, archive) ||
        !AddText(table, "label", kArchiveLabel, archive) || !AddCommand(table, archive) ||
        !AddNumber(table, "divider", kArchiveDivider, archive) ||
        !AddViews(table, "views", kArchiveViews, archive) ||
        !AddViews(table, "tabs", kArchiveTabViews, archive)) {
        return false;
    }
    BMessage shown;
    for (int32 i = 0; archive->FindMessage(kArchiveTabViews, &shown, i) == B_OK; ++i) {
        std::string label;
        shown.FindString(kArchiveName, &label);
        BMessage tab;
        tab.AddString(kArchiveClass, "BTab");
        tab.AddString(kArchiveLabel, label);
        archive->AddMessage(kArchiveTabs, tab);
    }
    return true;
}

bool LayoutCompiler::MakeWindow(const toml::table& table, BMessage* archive) {
    return Expect(table, {"class", "name", "title", "frame", "views"},
                  {"type", "flags", "framework_flags", "font_height", "limits"}) &&
           AddText(table, "class", kArchiveClass, archive) &&
           AddText(table, "name", kArchiveName, archive) &&
           AddText(table, "title", kArchiveTitle, archive) && AddFrame(table, archive) &&
           AddType(table, archive) && AddFlags(table, "flags", kArchiveFlags, kFlags, archive) &&
           AddFlags(table, "framework_flags", kArchiveFrameworkFlags, kFrameworkFlags, archive) &&
           AddNumber(table, "font_height", kArchiveFontHeight, archive) &&
           AddLimits(table, archive) && AddViews(table, "views", kArchiveViews, archive);
}

}  // namespace

bool CompileWindowLayout(const std::string& path, BMessage* archive, std::string* error) {
    try {
        BMessage window;
        LayoutCompiler compiler;
        if (compiler.MakeWindow(toml::parse_file(path), &window)) {
            *archive = std::move(window);
            return true;
        }
        *error = path + ":" + compiler.Error();
    } catch (const toml::parse_error& failure) {
        *error =
            Format("%s:%u: %s.", path.c_str(), static_cast<unsigned>(failure.source().begin.line),
                   std::string(failure.description()).c_str());
    }
    return false;
}

}  // namespace kirto
