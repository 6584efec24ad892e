// kirto_bench_files: writes the animations of the benchmarks as NAME.gif into a folder, for
// comparing whole programs.
#include <cstdio>
#include <fstream>
#include <string>

#include "animations.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: kirto_bench_files FOLDER\n", stderr);
        return 2;
    }
    for (const auto& animation : kirto::bench::AllAnimations()) {
        const std::string path = std::string(argv[1]) + '/' + animation->Name() + ".gif";
        const std::vector<uint8>& bytes = animation->File();
        std::ofstream stream(path, std::ios::binary);
        for (const uint8 byte : bytes)
            stream.put(static_cast<char>(byte));
        stream.close();
        if (stream.good()) continue;
        std::fprintf(stderr, "kirto_bench_files: %s can't be written.\n", path.c_str());
        return 1;
    }
    return 0;
}
