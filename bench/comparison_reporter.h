#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace kirto::bench {

// Shows the median of each benchmark as it comes in, and at the end a table of all steps: Kirto's
// nanoseconds an output pixel, and each peer's with how many times as long as the peer Kirto takes.
// Columns are separated as in Markdown.
class ComparisonReporter : public benchmark::ConsoleReporter {
  public:
    ComparisonReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

  private:
    void PrintRow(const std::string& work, double own) const;

    std::vector<std::string> works_;       // "STEP/ANIMATION" of Kirto's benchmarks, in order
    std::vector<std::string> peers_;       // in the order in which they were met
    std::map<std::string, double> times_;  // ns/px by "STEP/ANIMATION/WHO"
};

}  // namespace kirto::bench
