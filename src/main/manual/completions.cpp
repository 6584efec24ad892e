#include "main/manual/completions.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace kirto {

namespace {

std::vector<OptionText> AllOptions(const ProgramText& program) {
    std::vector<OptionText> options;
    for (const auto& group : program.options)
        options.insert(options.end(), group.begin(), group.end());
    return options;
}

bool IsWord(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) {
        return std::islower(c) != 0 || std::isdigit(c) != 0 || c == '-';
    });
}

// The words that the value may be, with spaces between them: "on off" of "on|off", "off" of
// "N|off". Empty for any other value.
std::string WordsOf(const OptionText& option) {
    const std::string value = option.value ? option.value : "";
    if (value.find('|') == std::string::npos) return {};
    std::string words;
    for (size_t start = 0; start <= value.size();) {
        const size_t end = std::min(value.find('|', start), value.size());
        const std::string word = value.substr(start, end - start);
        if (IsWord(word)) words += (words.empty() ? "" : " ") + word;
        start = end + 1;
    }
    return words;
}

// Between single quotes; an apostrophe in the text is put as the shell wants it there.
std::string Quoted(const std::string& text, const std::string& apostrophe) {
    std::string quoted = "'";
    for (const char c : text) {
        if (c == '\'') {
            quoted += apostrophe;
        } else {
            quoted += c;
        }
    }
    return quoted + "'";
}

// As zsh has it in a specification, where some characters stand for themselves behind a backslash.
std::string ZshText(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '[' || c == ']' || c == ':' || c == '\\') escaped += '\\';
        escaped += c;
    }
    return escaped;
}

}  // namespace

std::string BashCompletion(const ProgramText& program) {
    std::string names;
    std::string cases;
    for (const OptionText& option : AllOptions(program)) {
        names += (names.empty() ? "" : " ") + std::string(option.name);
        const std::string words = WordsOf(option);
        if (words.empty()) continue;
        cases += "        " + std::string(option.name) + ") words=" + Quoted(words, "") + " ;;\n";
    }
    const std::string function = "_" + std::string(program.name == "kirto" ? "kirto" : "kirto_cli");
    return function +
           "() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} "
           "words=''\n"
           "    case $before in\n" +
           cases + "    esac\n    if [[ $word == -* ]]; then\n        words=" + Quoted(names, "") +
           "\n    fi\n"
           "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$word\")\n"
           "}\ncomplete -o default -F " +
           function + " " + program.name + "\n";
}

std::string ZshCompletion(const ProgramText& program) {
    std::string text = "#compdef " + program.name + "\n_arguments \\\n";
    for (const OptionText& option : AllOptions(program)) {
        std::string item = std::string("*") + option.name + "[" + ZshText(option.help) + "]";
        const std::string words = WordsOf(option);
        if (option.value) {
            item += ":" + ZshText(option.value) + ":" +
                    (words.empty() ? std::string("_files") : "(" + words + ")");
        }
        text += "    " + Quoted(item, "'\\''") + " \\\n";
    }
    return text + "    '*:file:_files'\n";
}

std::string FishCompletion(const ProgramText& program) {
    std::string text;
    for (const OptionText& option : AllOptions(program)) {
        text += "complete -c " + program.name + " -l " + std::string(option.name).substr(2);
        const std::string words = WordsOf(option);
        if (option.value && option.value[0] != '[') text += " -r";
        if (!words.empty()) text += " -a " + Quoted(words, "\\'");
        text += " -d " + Quoted(option.help, "\\'") + "\n";
    }
    return text;
}

}  // namespace kirto
