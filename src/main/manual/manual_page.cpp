#include "main/manual/manual_page.h"

#include <cctype>

namespace kirto {

namespace {

// The text with nothing in it that the formatter would take for itself.
std::string Roff(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        if (escaped.empty() || escaped.back() == '\n') {
            if (c == '.' || c == '\'') escaped += "\\&";
        }
        if (c == '\\') {
            escaped += "\\e";
        } else if (c == '-') {
            escaped += "\\-";
        } else if (c == '~') {
            escaped += "\\(ti";
        } else {
            escaped += c;
        }
    }
    while (escaped.ends_with('\n'))
        escaped.pop_back();
    return escaped;
}

std::string UpperCase(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

std::string Paragraphs(const std::vector<std::string>& texts) {
    std::string page;
    for (const std::string& text : texts)
        page += ".PP\n" + Roff(text) + '\n';
    return page;
}

std::string Entry(const OptionText& option) {
    std::string page = ".TP\n\\fB" + Roff(option.name) + "\\fR";
    if (option.value) page += " \\fI" + Roff(option.value) + "\\fR";
    return page + '\n' + Roff(option.help) + ".\n";
}

}  // namespace

std::string ManualPage(const ProgramText& program) {
    std::string page = ".TH " + UpperCase(Roff(program.name)) +
                       " 1 \"\" \"Kirto " KIRTO_VERSION "\" \"User Commands\"\n";
    page += ".SH NAME\n" + Roff(program.name) + " \\- " + Roff(program.summary) + '\n';
    page += ".SH SYNOPSIS\n\\fB" + Roff(program.name) + "\\fR " + Roff(program.synopsis) + '\n';
    page += ".SH DESCRIPTION\n" + Paragraphs(program.description);
    page += ".SH OPTIONS\n";
    for (const auto& group : program.options)
        for (const OptionText& option : group)
            page += Entry(option);
    for (const auto& [heading, texts] : program.sections)
        page += ".SH " + heading + '\n' + Paragraphs(texts);
    page += ".SH EXAMPLES\n";
    for (const std::string& line : program.examples)
        page += ".PP\n.EX\n" + Roff(line) + "\n.EE\n";
    return page + ".SH SEE ALSO\n\\fB" + Roff(program.see_also) + "\\fR(1)\n";
}

}  // namespace kirto
