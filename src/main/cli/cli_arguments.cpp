#include "main/cli/cli_arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <unistd.h>

#include "base/terminal_text.h"
#include "base/thread_count.h"
#include "main/cli/cli_options.h"
#include "main/cli/error_lines.h"
#include "main/cli/standard_streams.h"
#include "main/cli/up_to_date.h"

namespace kirto {

namespace {

constexpr int kLargestStatus = 125;  // above it, shells have meanings of their own

std::string HelpOf(const std::string& name) {
    return HelpIn(CliSettings(), name);
}

std::vector<CliOperation> InOrder(const CLI::App& app) {
    std::vector<CliOperation> operations;
    std::map<const CLI::Option*, size_t> used;
    for (const CLI::Option* option : app.parse_order()) {
        if (option->get_group() != "Operations") continue;
        const bool has_value = option->get_expected_max() > 0;
        operations.push_back(
            {option->get_name(), has_value ? option->results()[used[option]++] : std::string()});
    }
    return operations;
}

// The arguments in it may be file names that the shell has put there.
std::string UsageError(const CLI::App*, const CLI::Error& error) {
    const std::string text = error.what();
    const bool terminal = isatty(STDERR_FILENO) != 0;
    return (terminal ? TerminalText(text) : text) + "\nRun with --help for more information.\n";
}

void SayUsage(const std::string& reason, bool json) {
    if (json) {
        std::cerr << ErrorLine("", reason) << StatusLine(kExitUsage, false);
    } else {
        std::cerr << "kirto-cli: " << reason << '\n';
    }
}

// Help and the version were asked for, or the usage is wrong.
int EndOfParse(const CLI::App& app, const CLI::ParseError& error, int argc,
               const char* const* argv) {
    const bool usage = error.get_exit_code() != 0;
    const bool json = std::any_of(argv + 1, argv + argc, [](std::string_view argument) {
        return argument == "--json-errors";
    });
    if (usage && json) {
        SayUsage(error.what(), true);
        return kExitUsage;
    }
    app.exit(error);
    return usage ? kExitUsage : kExitDone;
}

// Whether an animation goes to standard output and something else would get in its way there.
bool MixesStandardOutput(const CliArguments& arguments) {
    static const std::set<std::string> kPrinters = {"--info", "--info-json", "--list-formats",
                                                    "--export"};
    int animations = 0;
    int texts = arguments.verify ? 1 : 0;
    for (const CliOperation& operation : arguments.operations) {
        if (operation.option == "--save" && IsStandardStream(operation.value)) ++animations;
        if (kPrinters.contains(operation.option)) ++texts;
    }
    return animations > 1 || (animations == 1 && texts > 0);
}

std::optional<int> EndBeforeOperations(const CLI::App& app, const CliArguments& arguments) {
    if (arguments.operations.empty()) {
        if (arguments.json_errors) {
            SayUsage("There is nothing to do.", true);
        } else {
            std::cerr << app.help();
        }
        return kExitUsage;
    }
    if (MixesStandardOutput(arguments)) {
        SayUsage("--save - needs standard output for itself.", arguments.json_errors);
        return kExitUsage;
    }
    if (arguments.if_newer && IsUpToDate(arguments.operations)) return kExitDone;
    return std::nullopt;
}

}  // namespace

std::optional<int> ParseArguments(int argc, const char* const* argv, CliArguments* arguments) {
    CLI::App app(kCliPurpose, "kirto-cli");
    app.footer("\n" + std::string(kCliOrder) +
               "Exit status: 0 success, 1 failure, 2 wrong usage.\n");
    app.failure_message(UsageError);
    app.set_version_flag("--version", "kirto-cli " KIRTO_VERSION, HelpOf("--version"));
    app.set_help_flag("--help", HelpOf("--help"));
    app.get_formatter()->column_width(36);
    for (const OptionText& text : CliOperations()) {
        if (text.value) {
            app.add_option(text.name, text.help)
                ->type_name(text.value)
                ->expected(text.value[0] == '[' ? 0 : 1, 1)
                ->take_all()
                ->allow_extra_args(false)
                ->group("Operations");
        } else {
            app.add_flag(text.name)->description(text.help)->group("Operations");
        }
    }
    app.add_flag("--salvage", arguments->salvage, HelpOf("--salvage"));
    app.add_flag("--verify", arguments->verify, HelpOf("--verify"));
    app.add_flag("--if-newer", arguments->if_newer, HelpOf("--if-newer"));
    app.add_flag("--json-errors", arguments->json_errors, HelpOf("--json-errors"));
    app.add_option("--retry-status", arguments->retry_status, HelpOf("--retry-status"))
        ->type_name("N")
        ->check(CLI::Range(1, kLargestStatus));
    app.add_flag("--quiet", arguments->quiet, HelpOf("--quiet"));
    app.add_option("--format", arguments->format, HelpOf("--format"))->type_name("NAME");
    uint64 mebibytes = 0;
    const CLI::Option* limit = app.add_option("--memory-limit", mebibytes, HelpOf("--memory-limit"))
                                   ->type_name("MIB")
                                   ->check(CLI::Range(uint64{1}, uint64{1} << 30));
    app.add_option("--threads", arguments->threads, HelpOf("--threads"))
        ->type_name("N")
        ->check(CLI::Range(1, kMostThreads));
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return EndOfParse(app, error, argc, argv);
    }
    arguments->operations = InOrder(app);
    arguments->quiet = arguments->quiet || arguments->json_errors;
    if (limit->count() > 0) arguments->memory_limit = mebibytes << 20;
    return EndBeforeOperations(app, *arguments);
}

}  // namespace kirto
