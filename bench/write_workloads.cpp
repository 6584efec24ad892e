// kirto_bench_files FOLDER [--quick]: writes the files that the benchmarks read. Animations are
// NAME.gif and NAME.flc; pictures are photo0.ppm and so on, large.ppm and colors.ppm; clip.raw is
// an animation as it comes from a camera, in 4 bytes a pixel: blue, green, red and 255.
#include <atomic>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "flc_writer.h"
#include "peers.h"
#include "workloads.h"

namespace kirto::bench {

namespace {

bool WriteAnimation(const Workload& workload, const std::string& folder, bool quick) {
    const IndexedAnimation animation =
        Draw(workload, quick ? workload.quick_frames : workload.frames);
    const std::string path = folder + '/' + workload.name;
    if (workload.flc) return WriteFlc(animation, path + ".flc");
    return WriteWithGiflib(animation, path + ".gif");
}

bool WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return stream.good();
}

bool WritePicture(const std::string& path, Painter painter, int32 width, int32 height, int32 step) {
    std::string bytes = "P6 " + std::to_string(width) + ' ' + std::to_string(height) + " 255\n";
    for (int32 y = 0; y < height; ++y) {
        for (int32 x = 0; x < width; ++x) {
            const rgb_color color = painter(x, y, step);
            for (const uint8 component : {color.red, color.green, color.blue})
                bytes.push_back(static_cast<char>(component));
        }
    }
    return WriteBytes(path, bytes);
}

bool WriteClip(const std::string& path, int32 frames) {
    std::string bytes;
    for (int32 step = 0; step < frames; ++step) {
        for (int32 y = 0; y < 480; ++y) {
            for (int32 x = 0; x < 640; ++x) {
                const rgb_color color = PaintPhoto(x, y, step);
                for (const uint8 component : {color.blue, color.green, color.red, color.alpha})
                    bytes.push_back(static_cast<char>(component));
            }
        }
    }
    return WriteBytes(path, bytes);
}

using Task = std::function<bool()>;

std::vector<Task> AllFiles(const std::string& folder, bool quick) {
    std::vector<Task> tasks;
    for (const Workload& workload : Workloads())
        tasks.emplace_back(
            [&workload, folder, quick] { return WriteAnimation(workload, folder, quick); });
    for (int32 i = 0; i < (quick ? 4 : 10); ++i) {
        tasks.emplace_back([folder, i] {
            const std::string path = folder + "/photo" + std::to_string(i) + ".ppm";
            return WritePicture(path, PaintPhoto, 1920, 1080, i * 40);
        });
    }
    tasks.emplace_back(
        [folder] { return WritePicture(folder + "/large.ppm", PaintPhoto, 4000, 3000, 0); });
    tasks.emplace_back([folder] {
        return WritePicture(folder + "/colors.ppm", PaintColors, kColorsWidth, 1080, 1 << 21);
    });
    tasks.emplace_back([folder, quick] { return WriteClip(folder + "/clip.raw", quick ? 6 : 30); });
    return tasks;
}

// On two threads: painting takes its time.
bool WriteAll(const std::string& folder, bool quick) {
    const std::vector<Task> tasks = AllFiles(folder, quick);
    std::atomic<size_t> next = 0;
    std::atomic<bool> done = true;
    const auto write = [&] {
        for (size_t i = next++; i < tasks.size(); i = next++) {
            if (!tasks[i]()) done = false;
        }
    };
    std::thread other(write);
    write();
    other.join();
    return done;
}

}  // namespace

}  // namespace kirto::bench

int main(int argc, char** argv) {
    const bool quick = argc == 3 && std::strcmp(argv[2], "--quick") == 0;
    if (argc != 2 && !quick) {
        std::fputs("usage: kirto_bench_files FOLDER [--quick]\n", stderr);
        return 2;
    }
    if (kirto::bench::WriteAll(argv[1], quick)) return 0;
    std::fputs("kirto_bench_files: the files can't be written.\n", stderr);
    return 1;
}
