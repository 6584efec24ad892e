#include "comparison_reporter.h"

#include <algorithm>
#include <iterator>
#include <ostream>

#include "base/text.h"
#include "benchmarks.h"

namespace kirto::bench {

namespace {

constexpr char kOwnName[] = "kirto";

// Of a benchmark that is repeated only the median counts, of any other its one result.
bool Counts(const benchmark::BenchmarkReporter::Run& run) {
    if (run.run_type == benchmark::BenchmarkReporter::Run::RT_Aggregate) {
        return run.aggregate_name == "median";
    }
    return run.error_occurred || run.repetitions <= 1;
}

// What the peers do in place of the work: a decoder for our loader, else the same.
std::string PeerWork(const std::string& work) {
    const std::string load = "load/";
    return work.compare(0, load.size(), load) == 0 ? "decode/" + work.substr(load.size()) : work;
}

}  // namespace

void ComparisonReporter::ReportRuns(const std::vector<Run>& runs) {
    std::vector<Run> shown;
    std::copy_if(runs.begin(), runs.end(), std::back_inserter(shown), Counts);
    for (const Run& run : shown) {
        const auto counter = run.counters.find(kTimePerPixel);
        if (counter == run.counters.end()) continue;
        const std::string name = run.run_name.function_name;
        const size_t slash = name.rfind('/');
        const std::string work = name.substr(0, slash);
        const std::string who = name.substr(slash + 1);
        times_[name] = counter->second.value * 1e9;
        std::vector<std::string>& list = who == kOwnName ? works_ : peers_;
        const std::string& entry = who == kOwnName ? work : who;
        if (std::find(list.begin(), list.end(), entry) == list.end()) list.push_back(entry);
    }
    if (!shown.empty()) ConsoleReporter::ReportRuns(shown);
}

void ComparisonReporter::Finalize() {
    ConsoleReporter::Finalize();
    std::ostream& out = GetOutputStream();
    out << "\nCPU time in ns an output pixel; in brackets, Kirto's time as a multiple of the "
           "peer's.\n\n";
    out << Format("| %-22s | %8s |", "step/animation", kOwnName);
    for (const std::string& peer : peers_)
        out << Format(" %-18s |", peer.c_str());
    out << "\n|---|---|";
    for (size_t i = 0; i < peers_.size(); ++i)
        out << "---|";
    out << '\n';
    for (const std::string& work : works_)
        PrintRow(work, times_.at(work + '/' + kOwnName));
}

void ComparisonReporter::PrintRow(const std::string& work, double own) const {
    std::ostream& out = GetOutputStream();
    out << Format("| %-22s | %8.2f |", work.c_str(), own);
    for (const std::string& peer : peers_) {
        const auto time = times_.find(PeerWork(work) + '/' + peer);
        std::string cell;
        if (time != times_.end()) cell = Format("%.2f (%.1f x)", time->second, own / time->second);
        out << Format(" %-18s |", cell.c_str());
    }
    out << '\n';
}

}  // namespace kirto::bench
