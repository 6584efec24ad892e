// kirto-fuzz-seeds FOLDER: writes seeds for the harnesses of the decoders, FOLDER/HARNESS/NAME,
// beside those that are kept for what they once found. The same files every time.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "support/hostile_files.h"
#include "support/random_fli.h"
#include "support/random_gif.h"

namespace {

using Bytes = std::vector<uint8>;

constexpr uint32 kSound = 40;  // files at random, and as many that are damaged
constexpr size_t kMostBytes = 4096;
constexpr size_t kCodeBytes = 400;
constexpr uint32 kCodeSeeds = 24;
constexpr int kDamages = 4;  // bytes at most that are changed in one file

class SeedFolder {
  public:
    explicit SeedFolder(std::filesystem::path folder) : folder_(std::move(folder)) {
        std::filesystem::create_directories(folder_);
    }

    // Long ones only slow the harness down.
    void Add(const std::string& name, const Bytes& bytes) {
        if (bytes.size() > kMostBytes) return;
        std::ofstream file(folder_ / name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        if (file.flush()) ++count_;
    }
    int Count() const { return count_; }

  private:
    const std::filesystem::path folder_;
    int count_ = 0;
};

// Some bytes are others, or the end is missing.
Bytes Damaged(Bytes bytes, uint32 seed) {
    std::mt19937 random(seed);
    if (random() % 4 == 0) bytes.resize(random() % bytes.size());
    for (uint32 i = random() % kDamages; i < kDamages && !bytes.empty(); ++i)
        bytes[random() % bytes.size()] = static_cast<uint8>(random());
    return bytes;
}

// The first byte says how the file is meant.
Bytes WithFirst(uint8 first, const Bytes& bytes) {
    Bytes with{first};
    with.insert(with.end(), bytes.begin(), bytes.end());
    return with;
}

int AddGifs(const std::filesystem::path& folder) {
    SeedFolder seeds(folder / "gif_load");
    for (uint32 i = 0; i < kSound; ++i) {
        const Bytes gif = kirto::test::RandomGif(i);
        const auto first = static_cast<uint8>(i % 2);
        seeds.Add("sound-" + std::to_string(i), WithFirst(first, gif));
        seeds.Add("damaged-" + std::to_string(i), WithFirst(first, Damaged(gif, i)));
    }
    kirto::test::ForEachHostileGif(true, [&](const kirto::test::HostileFile& file) {
        seeds.Add(file.name, WithFirst(static_cast<uint8>(seeds.Count() % 2), file.bytes));
    });
    return seeds.Count();
}

int AddFlis(const std::filesystem::path& folder) {
    SeedFolder seeds(folder / "fli_load");
    for (uint32 i = 0; i < kSound; ++i) {
        const Bytes fli = kirto::test::RandomFli(i);
        seeds.Add("sound-" + std::to_string(i), fli);
        seeds.Add("damaged-" + std::to_string(i), Damaged(fli, i));
    }
    kirto::test::ForEachHostileFli(
        true, [&](const kirto::test::HostileFile& file) { seeds.Add(file.name, file.bytes); });
    return seeds.Count();
}

int AddCodes(const std::filesystem::path& folder) {
    SeedFolder seeds(folder / "gif_codes");
    for (uint32 i = 0; i < kCodeSeeds; ++i) {
        std::mt19937 random(i);
        Bytes bytes(kCodeBytes);
        for (uint8& byte : bytes)
            byte = static_cast<uint8>(random());
        bytes[0] = static_cast<uint8>(i);
        seeds.Add("random-" + std::to_string(i), bytes);
    }
    return seeds.Count();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: kirto-fuzz-seeds FOLDER\n");
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::remove_all(folder);
    const int count = AddGifs(folder) + AddFlis(folder) + AddCodes(folder);
    std::printf("%d seeds\n", count);
    return 0;
}
