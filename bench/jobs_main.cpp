// kirto_bench_jobs [--repeat N] [--digest] JOB ARGUMENT...: does one job and prints what it took.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "jobs.h"

namespace kirto::bench {

std::vector<uint8> ReadFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = stream ? static_cast<std::streamoff>(stream.tellg()) : 0;
    std::vector<uint8> bytes(static_cast<size_t>(size));
    stream.seekg(0);
    stream.read(reinterpret_cast<char*>(bytes.data()), size);
    return bytes;
}

bool WriteFile(const std::string& path, const std::vector<uint8>& bytes) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()),
                 static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return stream.good();
}

namespace {

int Usage() {
    std::fputs("usage: kirto_bench_jobs [--repeat N] [--digest] JOB ARGUMENT...\n\n", stderr);
    for (const auto jobs : {ReadingJobs(), WritingJobs(), EditingJobs()}) {
        for (const Job& job : jobs)
            std::fprintf(stderr, "  %s %s\n", job.name, job.arguments);
    }
    return 2;
}

size_t CountArguments(const Job& job) {
    const std::string arguments = job.arguments;
    return static_cast<size_t>(std::count(arguments.begin(), arguments.end(), ' ')) + 1;
}

const Job* FindJob(const Arguments& arguments) {
    for (const auto jobs : {ReadingJobs(), WritingJobs(), EditingJobs()}) {
        for (const Job& job : jobs) {
            if (job.name == arguments[0] && CountArguments(job) + 1 == arguments.size()) {
                return &job;
            }
        }
    }
    return nullptr;
}

int RunJob(Arguments arguments) {
    int32 repeats = 1;
    if (arguments.size() > 2 && arguments[0] == "--repeat") {
        repeats = std::max(std::stoi(arguments[1]), 1);
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    const bool digest = !arguments.empty() && arguments[0] == "--digest";
    if (digest) arguments.erase(arguments.begin());
    const Job* job = arguments.empty() ? nullptr : FindJob(arguments);
    if (!job) return Usage();
    Measurement measurement(repeats, digest);
    arguments.erase(arguments.begin());
    if (!job->run(arguments, measurement)) {
        std::fprintf(stderr, "kirto_bench_jobs: %s has failed\n", job->name);
        return 1;
    }
    measurement.Print();
    return 0;
}

}  // namespace

}  // namespace kirto::bench

int main(int argc, char** argv) {
    return kirto::bench::RunJob(kirto::bench::Arguments(argv + 1, argv + argc));
}
