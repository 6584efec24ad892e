#pragma once

#include <memory>
#include <string>

#include "animation/save_comparison.h"
#include "document/animation_document.h"
#include "settings/prefs.h"

namespace kirto {

// Reads a GIF file that was just saved, as browsers do, and compares it with what was saved. What
// it reads is no document of the user's: nobody is told of it, and no alert or debug line comes of
// it.
class SaveVerification {
  public:
    enum class Result { kEqual, kDifferent, kUnreadable, kNoMemory, kStopped };

    // memory_limit: bytes that the frames that are read may take.
    explicit SaveVerification(uint64 memory_limit);

    // To be called once, on any one thread.
    Result Run(const std::string& path, const Animation& saved,
               const SaveComparison::Options& options);
    // Ends Run early. Safe on any thread and in a signal handler.
    void RequestStop() { document_.RequestStop(); }

    // After Run: what differs, and what was read.
    const SaveDifferences& Differences() const { return differences_; }
    std::shared_ptr<const Animation> Read() const { return document_.Current(); }

    // What the comparison has to know of the settings that the animation is shown and saved with.
    static SaveComparison::Options OptionsOf(const Prefs& prefs);

  private:
    Result ReadFile(const std::string& path);

    Prefs prefs_;
    AnimationDocument document_;
    SaveDifferences differences_;
};

}  // namespace kirto
