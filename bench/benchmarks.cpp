#include "benchmarks.h"

#include <string>

namespace kirto::bench {

namespace {

void Measure(benchmark::State& state, const std::function<Work()>& prepare) {
    const Work work = prepare();
    if (!work) {
        state.SkipWithError("its result is not the expected one");
        return;
    }
    int64 pixels = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        const int64 done = work();
        if (done == 0) {
            state.SkipWithError("it failed");
            return;
        }
        pixels += done;
    }
    state.SetItemsProcessed(pixels);
    state.counters[kTimePerPixel] = benchmark::Counter(
        static_cast<double>(pixels), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

}  // namespace

void Register(const char* step, const BenchAnimation& animation, const char* who,
              const std::function<Work()>& prepare) {
    const std::string name = std::string(step) + '/' + animation.Name() + '/' + who;
    // The whole process is measured, so that work on other threads counts.
    benchmark::RegisterBenchmark(name.c_str(), Measure, prepare)
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime();
}

}  // namespace kirto::bench
