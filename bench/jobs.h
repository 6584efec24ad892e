// The jobs that the benchmarks time in a process of their own: those of the engine and, for
// comparison, those of its peers.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "document/animation_document.h"
#include "kit/file.h"
#include "measurement.h"
#include "settings/prefs.h"

namespace kirto::bench {

using Arguments = std::vector<std::string>;

struct Job {
    const char* name;
    const char* arguments;  // what they stand for, separated by spaces
    // False when it fails.
    bool (*run)(const Arguments& arguments, Measurement& measurement);
};

std::span<const Job> ReadingJobs();
std::span<const Job> WritingJobs();
std::span<const Job> EditingJobs();

// An empty document with the built-in settings.
struct OwnDocument {
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document{prefs};
};

// The bytes of a file; none where it can't be read.
std::vector<uint8> ReadFile(const std::string& path);
// False when it can't be written.
bool WriteFile(const std::string& path, const std::vector<uint8>& bytes);

// The same as a file that is read in memory.
std::unique_ptr<BFile> FileInMemory(const std::string& path);
// Reads a whole animation into the document, from the position on: FLC by its path, else GIF. The
// file may have been read before.
bool LoadAnimation(const std::string& path, BFile& file, int32 position,
                   AnimationDocument& document);

}  // namespace kirto::bench
