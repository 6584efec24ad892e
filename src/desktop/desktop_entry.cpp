#include "desktop/desktop_entry.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "base/directories.h"
#include "base/text.h"

namespace kirto {

namespace {

using Keys = std::map<std::string, std::string>;

// In the order in which they are searched.
std::vector<std::string> DataFolders() {
    const char* home = std::getenv("XDG_DATA_HOME");
    const char* system = std::getenv("XDG_DATA_DIRS");
    std::vector<std::string> folders = {home && *home ? home : HomeDirectory() + "/.local/share"};
    std::istringstream list(system && *system ? system : "/usr/local/share:/usr/share");
    for (std::string folder; std::getline(list, folder, ':');)
        folders.push_back(folder);
    return folders;
}

std::string Trimmed(const std::string& text) {
    const size_t start = text.find_first_not_of(" \t\r");
    if (start == std::string::npos) return {};
    return text.substr(start, text.find_last_not_of(" \t\r") + 1 - start);
}

// The keys of the group "Desktop Entry"; false when the file can't be read.
bool ReadKeys(const std::string& path, Keys* keys) {
    std::ifstream file(path);
    if (!file) return false;
    bool inside = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('[')) inside = Trimmed(line) == "[Desktop Entry]";
        const size_t equals = line.find('=');
        if (!inside || line.starts_with('#') || equals == std::string::npos) continue;
        keys->emplace(Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)));
    }
    return true;
}

// The first description with the id. A dash in an id may stand for a folder.
bool FindEntry(const std::string& id, Keys* keys) {
    if (id.empty() || Contains(id, "/")) return false;
    for (const std::string& folder : DataFolders()) {
        std::string name = id;
        for (size_t dash = 0; dash != std::string::npos; dash = name.find('-', dash)) {
            if (dash != 0) name[dash] = '/';
            std::string path = folder;
            path.append("/applications/").append(name);
            if (ReadKeys(path, keys)) return true;
            ++dash;
        }
    }
    return false;
}

// The text that a description's value stands for.
std::string Unescaped(const std::string& value) {
    static const std::map<char, char> kEscapes = {
        {'s', ' '}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}};
    std::string text;
    for (size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        const char escaped = value[++i];
        const auto found = kEscapes.find(escaped);
        // "\\" is one backslash; before other characters the backslash stays for the quoting.
        if (found != kEscapes.end()) {
            text += found->second;
        } else {
            if (escaped != '\\') text += '\\';
            text += escaped;
        }
    }
    return text;
}

// Words separated by white space; what stands between double quotes belongs to one word, and there
// a backslash takes the meaning from the character after it.
std::vector<std::string> WordsOf(const std::string& command) {
    std::vector<std::string> words;
    bool quoted = false;
    bool in_word = false;
    for (size_t i = 0; i < command.size(); ++i) {
        const char c = command[i];
        if (!quoted && (c == ' ' || c == '\t' || c == '\n')) {
            in_word = false;
            continue;
        }
        if (!in_word) words.emplace_back();
        in_word = true;
        if (c == '"') {
            quoted = !quoted;
        } else if (quoted && c == '\\' && i + 1 < command.size()) {
            words.back() += command[++i];
        } else {
            words.back() += c;
        }
    }
    return words;
}

std::string FileUrl(const std::string& path) {
    static constexpr std::string_view kPlain = "/-._~";
    std::string url = "file://";
    for (const char c : path) {
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        const bool plain = letter || (c >= '0' && c <= '9') || Contains(kPlain, {&c, 1});
        url += plain ? std::string(1, c) : Format("%%%02X", static_cast<uint8>(c));
    }
    return url;
}

// The word with its field codes filled in. placed: whether the file was among them.
std::string Filled(const std::string& word, const std::string& file, bool* placed) {
    std::string text;
    for (size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%' || i + 1 == word.size()) {
            text += word[i];
            continue;
        }
        const char code = word[++i];
        if (code == '%') text += '%';
        if (code == 'f' || code == 'F') text += file;
        if (code == 'u' || code == 'U') text += FileUrl(file);
        *placed = *placed || Contains("fFuU", {&code, 1});
    }
    return text;
}

}  // namespace

std::vector<std::string> DesktopEntryCall(const std::string& id, const std::string& file) {
    Keys keys;
    if (!FindEntry(id, &keys)) return {};
    if (keys["Hidden"] == "true" || keys["Terminal"] == "true") return {};
    std::vector<std::string> call;
    bool placed = false;
    for (const std::string& word : WordsOf(Unescaped(keys["Exec"]))) {
        std::string argument = Filled(word, file, &placed);
        // What an icon or a name would have filled goes altogether.
        if (!argument.empty() || word.empty()) call.push_back(std::move(argument));
    }
    if (!call.empty() && !placed) call.push_back(file);
    return call;
}

}  // namespace kirto
