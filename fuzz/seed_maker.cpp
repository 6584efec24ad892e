// kirto-fuzz-seeds FOLDER: writes seeds for the harnesses of the decoders, FOLDER/HARNESS/NAME,
// beside those that are kept for what they once found. The same files every time.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "support/fli_builder.h"
#include "support/gif_builder.h"
#include "support/hostile_files.h"
#include "support/random_fli.h"
#include "support/random_gif.h"

namespace {

using Bytes = std::vector<uint8>;
using kirto::test::FliBuilder;
using kirto::test::GifBuilder;

constexpr uint32 kSound = 40;  // files at random, and as many that are damaged
constexpr size_t kMostBytes = 4096;
constexpr size_t kCodeBytes = 400;
constexpr uint32 kCodeSeeds = 24;
constexpr size_t kLastOfFliHeader = 127;
// What says that a file is read as browsers or players do, and how an FLI file is read otherwise.
constexpr uint8 kFaithfulGif = 16;
constexpr uint8 kFaithfulFli = 8;
constexpr uint8 kTwiceFli = 2;
constexpr uint32 kWaysOfFlis = 16;
constexpr size_t kWrongAt[] = {4, 5, 8, 12};  // of a FLI file: magic, width, depth
constexpr int kDamages = 4;                   // bytes at most that are changed in one file

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

// As many files as it has bytes, each without its end. from: bytes that all of them have.
void AddCut(const Bytes& bytes, size_t from, const std::string& name, SeedFolder& seeds) {
    for (size_t size = from; size < bytes.size(); ++size)
        seeds.Add(name + std::to_string(size),
                  Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)));
}

// One of each kind of block.
Bytes GifOfAllBlocks() {
    GifBuilder gif(3, 2, {0xFF0000, 0x00FF00});
    gif.Loop(3).Comment("one\ntwo\n").Control(1, 5, 1);
    gif.Bytes({0x21, 0xFF, 3, 'a', 'b', 'c', 2, 1, 2, 0});  // an application's
    gif.Bytes({0x21, 0x01, 2, 0, 0, 1, 9, 0});              // a text's
    gif.Bytes({0x21, 0x77, 1, 5, 0});                       // unknown
    GifBuilder::Image image;
    image.width = 3;
    image.height = 2;
    image.indices = {0, 1, 0, 1, 1, 0};
    image.min_code_size = 2;
    gif.Add(image);
    image.local_table = {1, 2, 3, 4};
    image.interlaced = true;
    gif.Add(image);
    return gif.Trailer();
}

// One of each kind of chunk.
Bytes FliOfAllChunks() {
    FliBuilder fli(4, 2);
    fli.Record(0xF100).Chunk(1, {1, 2});
    fli.Record().Color256({{1, {1, 2}}}).Color64({{0, {3}}}).BrunOf({1, 1, 1, 2, 3, 4, 5, 6});
    fli.Record().Copy({8, 7, 6, 5, 4, 3, 2, 1}).Black().Mini({1, 2, 3});
    fli.Record().Lc(1, {{{1, 2, {9, 8}}, {0, -1, {7}}}});
    fli.Record().Delta({{{-1}, {{1, 1, {2, 3}}}}, {{}, {{0, -2, {4, 5}}}}});
    fli.Record().Chunk(77, {1, 2, 3});
    fli.Record();
    fli.Record(FliBuilder::kSkipped);
    return fli;
}

// By the defined rules, and as browsers do.
void AddBoth(const std::string& name, uint8 first, const Bytes& gif, SeedFolder& seeds) {
    seeds.Add(name, WithFirst(first & (255 - kFaithfulGif), gif));
    seeds.Add(name + "-faithful", WithFirst(first | kFaithfulGif, gif));
}

int AddGifs(const std::filesystem::path& folder) {
    SeedFolder seeds(folder / "gif_load");
    for (uint32 i = 0; i < kSound; ++i) {
        const Bytes gif = kirto::test::RandomGif(i);
        const auto first = static_cast<uint8>(i);
        AddBoth("sound-" + std::to_string(i), first, gif, seeds);
        AddBoth("damaged-" + std::to_string(i), first, Damaged(gif, i), seeds);
    }
    AddCut(WithFirst(0, GifOfAllBlocks()), 1, "cut-at-", seeds);
    AddCut(WithFirst(kFaithfulGif, GifOfAllBlocks()), 1, "faithful-cut-at-", seeds);
    int count = 0;
    kirto::test::ForEachHostileGif(true, [&](const kirto::test::HostileFile& file) {
        AddBoth(file.name, static_cast<uint8>(count++ % 2), file.bytes, seeds);
    });
    return seeds.Count();
}

// By the defined rules, and as players do.
void AddBothFlis(const std::string& name, Bytes fli, SeedFolder& seeds) {
    seeds.Add(name, fli);
    if (fli.size() <= kLastOfFliHeader) return;
    fli[kLastOfFliHeader] ^= kFaithfulFli;
    seeds.Add(name + "-otherwise", fli);
}

int AddFlis(const std::filesystem::path& folder) {
    SeedFolder seeds(folder / "fli_load");
    for (uint32 i = 0; i < kSound; ++i) {
        Bytes fli = kirto::test::RandomFli(i);
        fli[kLastOfFliHeader] = static_cast<uint8>(i % kWaysOfFlis);
        AddBothFlis("sound-" + std::to_string(i), fli, seeds);
        AddBothFlis("damaged-" + std::to_string(i), Damaged(fli, i), seeds);
    }
    Bytes all = FliOfAllChunks();
    all[kLastOfFliHeader] = kTwiceFli;
    AddCut(all, kLastOfFliHeader, "cut-at-", seeds);
    for (const size_t at : kWrongAt) {
        Bytes wrong = all;
        wrong[at] ^= 1;
        AddBothFlis("wrong-at-" + std::to_string(at), wrong, seeds);
    }
    all[kLastOfFliHeader] = kTwiceFli | kFaithfulFli;
    AddCut(all, kLastOfFliHeader + 1, "faithful-cut-at-", seeds);
    kirto::test::ForEachHostileFli(true, [&](const kirto::test::HostileFile& file) {
        Bytes fli = file.bytes;
        if (fli.size() > kLastOfFliHeader) fli[kLastOfFliHeader] = kTwiceFli;
        AddBothFlis(file.name, fli, seeds);
    });
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
