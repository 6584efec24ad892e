// Registers the benchmarks of one animation. Names are STEP/ANIMATION/WHO; each reports pixels a
// second and the CPU time an output pixel.
#pragma once

#include <benchmark/benchmark.h>
#include <functional>

#include "animations.h"
#include "base/types.h"

namespace kirto::bench {

// The counter of the CPU time, in seconds, that each output pixel takes.
inline constexpr char kTimePerPixel[] = "time/px";

void RegisterDecodeBenchmarks(BenchAnimation& animation);
void RegisterEncodeBenchmarks(BenchAnimation& animation);
void RegisterColorBenchmarks(BenchAnimation& animation);

// Does the work once and returns the pixels that it put out; 0 where it failed.
using Work = std::function<int64()>;
// Registers a benchmark. prepare is called before the clock starts, each time the benchmark is run;
// it returns the work, or nothing when there is a reason not to measure it.
void Register(const char* step, const BenchAnimation& animation, const char* who,
              const std::function<Work()>& prepare);

}  // namespace kirto::bench
