// hostile_torture KIRTO_CLI short|whole|beside
//
// Lets kirto-cli open hostile files, as defined and as browsers do, and demands of each that it is
// opened or refused with a message, within the time and the memory of the constants below, and that
// twice as much of anything takes little more than twice the time. The short form has fewer and
// smaller files and looks at no clock. Beside other programs it demands nothing, and prints what
// each takes of the GIF files that have much of one thing.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "support/hostile_files.h"
#include "torture/watched_run.h"

namespace kirto::test {
namespace {

constexpr double kMostSeconds = 5;
constexpr int64 kMostKibibytes = int64{512} * 1024;
constexpr double kMostGrowth = 2.5;
// Below this a time says more about the machine than about the file.
constexpr double kLeastSeconds = 1;
// Of the same, the quickest of which counts.
constexpr int kMoreTries = 2;
// The memory that frames may take; the rest of the limit is the program's.
constexpr char kFrameMebibytes[] = "256";

class HostileTorture {
  public:
    HostileTorture(std::string program, bool whole)
        : program_(std::move(program)),
          whole_(whole),
          folder_(std::filesystem::temp_directory_path() /
                  ("hostile-torture-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(folder_);
        setenv("XDG_CONFIG_HOME", folder_.c_str(), 1);
        setenv("XDG_STATE_HOME", folder_.c_str(), 1);
    }
    ~HostileTorture() { std::filesystem::remove_all(folder_); }
    HostileTorture(const HostileTorture&) = delete;
    HostileTorture& operator=(const HostileTorture&) = delete;

    void Take(const HostileFile& file) {
        const std::filesystem::path path = Write(file.name, file.bytes);
        for (const bool faithful : {false, true})
            Open(path, faithful);
        std::filesystem::remove(path);
    }

    void Take(const HostileSeries& series) {
        const int32 count = whole_ ? series.count : (series.count + 99) / 100;
        const std::filesystem::path half = Write("half-" + series.name, series.bytes(count / 2));
        const std::filesystem::path path = Write(series.name, series.bytes(count));
        for (const bool faithful : {false, true}) {
            WatchedRun before = Open(half, faithful);
            WatchedRun run = Open(path, faithful);
            // What else the machine does slows one and not the other.
            for (int again = 0; whole_ && again < kMoreTries && Grows(before, run); ++again) {
                before = Quicker(before, Open(half, faithful));
                run = Quicker(run, Open(path, faithful));
            }
            if (whole_) {
                std::printf("%-32s %-9s exit %d %7.2f s %5lld MiB  %s\n", series.name.c_str(),
                            faithful ? "browsers" : "defined", run.status, run.seconds,
                            static_cast<long long>(run.kibibytes / 1024), FirstLine(run).c_str());
                if (Grows(before, run))
                    Report(path, "twice as much takes more than 2.5 times the time", run);
            }
        }
        std::filesystem::remove(half);
        std::filesystem::remove(path);
    }

    // Adds the row of the table, and begins another.
    int EndRow(const char* what) {
        std::printf("%s: %d opened, %d findings\n", what, opened_, found_);
        if (const char* table = std::getenv("KIRTO_TORTURE_TABLE")) {
            std::ofstream(table, std::ios::app)
                << what << '\t' << opened_ << '\t' << found_ << '\n';
        }
        const int found = found_;
        opened_ = found_ = 0;
        return found;
    }

  private:
    static bool Grows(const WatchedRun& before, const WatchedRun& run) {
        return run.seconds > kLeastSeconds && run.seconds > kMostGrowth * before.seconds;
    }

    static WatchedRun Quicker(const WatchedRun& one, const WatchedRun& other) {
        return other.seconds < one.seconds ? other : one;
    }

    static std::string FirstLine(const WatchedRun& run) {
        return run.message.substr(0, run.message.find('\n'));
    }

    std::filesystem::path Write(const std::string& name, const std::vector<uint8>& bytes) const {
        std::filesystem::path path = folder_ / name;
        std::ofstream file(path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        return path;
    }

    WatchedRun Open(const std::filesystem::path& path, bool faithful) {
        std::vector<std::string> command{program_, "--quiet", "--memory-limit", kFrameMebibytes};
        if (faithful) command.emplace_back("--faithful");
        command.insert(command.end(), {"--open", path.string()});
        WatchedRun run = WatchedRun::Of(command, {});
        for (int again = 0; whole_ && again < kMoreTries && run.seconds > kMostSeconds; ++again)
            run = Quicker(run, WatchedRun::Of(command, {}));
        ++opened_;
        if (run.status != 0 && run.status != 1) {
            Report(path, "is neither opened nor refused", run);
        } else if (run.status == 1 && run.message.empty()) {
            Report(path, "is refused without a word", run);
        } else if (run.kibibytes > kMostKibibytes) {
            Report(path, "takes too much memory", run);
        } else if (whole_ && run.seconds > kMostSeconds) {
            Report(path, "takes too long", run);
        }
        return run;
    }

    void Report(const std::filesystem::path& path, const char* what, const WatchedRun& run) {
        ++found_;
        std::printf("FAILED: %s %s: exit %d, %.2f s, %lld MiB, %s\n", path.filename().c_str(), what,
                    run.status, run.seconds, static_cast<long long>(run.kibibytes / 1024),
                    FirstLine(run).c_str());
    }

    const std::string program_;
    const bool whole_;
    const std::filesystem::path folder_;
    int opened_ = 0;
    int found_ = 0;
};

int Main(const char* program, bool whole) {
    HostileTorture torture(program, whole);
    const auto take = [&](const HostileFile& file) { torture.Take(file); };
    for (const HostileSeries& series : HostileGifSeries())
        torture.Take(series);
    int found = torture.EndRow("GIF files that have much of one thing");
    for (const HostileSeries& series : HostileFliSeries())
        torture.Take(series);
    found += torture.EndRow("FLI files that have much of one thing");
    ForEachHostileGif(!whole, take);
    found += torture.EndRow("GIF files with numbers at the edges");
    ForEachHostileFli(!whole, take);
    found += torture.EndRow("FLI files with numbers at the edges");
    return found == 0 ? 0 : 1;
}

// One of the programs that read a file whole without writing one.
struct Reader {
    std::vector<std::string> command;  // the file's path follows
    std::vector<std::string> rest;     // behind it
};

std::string Taken(const WatchedRun& run) {
    char text[64];
    if (run.status < 0) {
        std::snprintf(text, sizeof text, "killed, %lld MiB",
                      static_cast<long long>(run.kibibytes / 1024));
    } else {
        std::snprintf(text, sizeof text, "%s, %.1f s, %lld MiB",
                      run.status == 0 ? "read" : "refused", run.seconds,
                      static_cast<long long>(run.kibibytes / 1024));
    }
    return text;
}

// kirto-cli, gifsicle, ImageMagick and ffmpeg, a column each. Ten seconds and 4 GiB are what each
// of them may take.
int Compare(const std::string& program) {
    const Reader readers[] = {{{program, "--quiet", "--faithful", "--open"}, {}},
                              {{"/usr/bin/gifsicle", "--info"}, {}},
                              {{"/usr/bin/identify"}, {}},
                              {{"/usr/bin/ffmpeg", "-v", "error", "-i"}, {"-f", "null", "-"}}};
    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("hostile-" + std::to_string(getpid()) + ".gif");
    for (const HostileSeries& series : HostileGifSeries()) {
        {
            const std::vector<uint8> bytes = series.bytes(series.count);
            std::ofstream(path, std::ios::binary)
                .write(reinterpret_cast<const char*>(bytes.data()),
                       static_cast<std::streamsize>(bytes.size()));
        }
        std::printf("| %d %s |", series.count, series.name.c_str());
        for (const Reader& reader : readers) {
            std::vector<std::string> command = reader.command;
            command.push_back(path.string());
            command.insert(command.end(), reader.rest.begin(), reader.rest.end());
            std::printf(" %s |", Taken(WatchedRun::Of(command, {10, uint64{4} << 30})).c_str());
        }
        std::printf("\n");
    }
    std::filesystem::remove(path);
    return 0;
}

}  // namespace
}  // namespace kirto::test

int main(int count, char** arguments) {
    if (count != 3) return 2;
    // A run that is stopped has told of what it did.
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const std::string form = arguments[2];
    if (form == "beside") return kirto::test::Compare(arguments[1]);
    return kirto::test::Main(arguments[1], form == "whole");
}
