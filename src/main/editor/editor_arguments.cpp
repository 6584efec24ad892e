#include "main/editor/editor_arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>

namespace kirto {

namespace {

constexpr int kExitDone = 0;
constexpr int kExitUsage = 2;

constexpr const char* kFooter =
    "A file that is an animation (GIF, FLI, FLC) is opened; images are inserted as frames.\n"
    "The toolkit's options, such as -style NAME and -platform NAME, are understood as well.";

}  // namespace

std::optional<int> ParseArguments(int argc, const char* const* argv, EditorArguments* arguments) {
    CLI::App app("Edits frame animations.", "kirto");
    app.footer(kFooter);
    app.set_version_flag("--version", "kirto " KIRTO_VERSION, "Print the version");
    app.set_help_flag("--help", "Print this help");
    app.get_formatter()->column_width(36);
    app.add_option("--screenshot", arguments->screenshot,
                   "Write a picture of the window with the files, and exit")
        ->type_name("PNG");
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
