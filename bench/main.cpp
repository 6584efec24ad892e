// kirto_bench: measures decoding, encoding and colour mapping on computed animations, next to other
// codecs where those were found at build time. Takes the options of Google Benchmark.
#include "base/debug_line.h"
#include "benchmarks.h"
#include "comparison_reporter.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    // GifLoad tells of every comment that it meets.
    kirto::InstallDebugSink([](const std::string&) {});
    const auto animations = kirto::bench::AllAnimations();
    for (const auto& animation : animations)
        kirto::bench::RegisterDecodeBenchmarks(*animation);
    for (const auto& animation : animations)
        kirto::bench::RegisterEncodeBenchmarks(*animation);
    for (const auto& animation : animations)
        kirto::bench::RegisterColorBenchmarks(*animation);
    kirto::bench::ComparisonReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
