#include "main/editor/editor_arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <string_view>

#include "main/editor/editor_options.h"

namespace kirto {

namespace {

constexpr int kExitDone = 0;
constexpr int kExitUsage = 2;

std::string HelpOf(const std::string& name) {
    return HelpIn(EditorOptions(), name);
}

}  // namespace

std::optional<int> ParseArguments(int argc, const char* const* argv, EditorArguments* arguments) {
    CLI::App app(kEditorPurpose, "kirto");
    app.footer(kEditorFiles);
    app.set_version_flag("--version", "kirto " KIRTO_VERSION, HelpOf("--version"));
    app.set_help_flag("--help", HelpOf("--help"));
    app.get_formatter()->column_width(36);
    app.add_option("--screenshot", arguments->screenshot, HelpOf("--screenshot"))->type_name("PNG");
    app.add_option("files", arguments->files, "Files to open")->type_name("FILE");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kExitDone : kExitUsage;
    }
    return std::nullopt;
}

std::optional<int> ParseInformation(int argc, const char* const* argv) {
    // Behind two dashes there are only files.
    const char* const* end = std::find(argv + 1, argv + argc, std::string_view("--"));
    const char* const* found = std::find_if(argv + 1, end, [](std::string_view argument) {
        return argument == "--help" || argument == "--version";
    });
    if (found == end) return std::nullopt;
    const char* const asked[] = {argv[0], *found};
    EditorArguments arguments;
    return ParseArguments(2, asked, &arguments);
}

}  // namespace kirto
