#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/recovery/recovery_store.h"
#include "app/recovery/recovery_writer.h"
#include "base/types.h"
#include "document/animation_document.h"

namespace kirto {

// An editor's part in crash recovery: it keeps a copy of the document that it watches, and hands
// out the documents that other editors have left. Made before the application's loop runs; after
// that, used on the application's thread where nothing else is said.
class CrashRecovery {
  public:
    // folder, delay: as RecoveryStore and RecoveryWriter have them.
    explicit CrashRecovery(std::string folder = RecoveryStore::DefaultFolder(),
                           RecoverySchedule::Delay delay = RecoveryWriter::kDelay);

    // Keeps a copy of each state of the document from now on, until its observer is another one.
    void Watch(AnimationDocument& document);

    // Asks for each document that was left what is to become of it, the newest first, until one is
    // to be recovered; returns that one's path. The others stay where they are.
    std::optional<std::string> Offer();
    // Reads an offered document. A damaged file is set aside.
    RecoveryStore::Outcome Read(const std::string& path, std::shared_ptr<PixelBudget> budget) {
        return store_.Read(path, std::move(budget));
    }
    // The document that was read is the watched one now: writes its own copy, and then removes the
    // file that it came from.
    void Finish(const std::string& path);

    // Writes the copy that is due later. Thread-safe.
    status_t WriteNow() { return writer_->WriteNow(); }
    // Removes the copy, for there is nothing to lose. The last call, after the application's loop
    // has ended and the document has another observer.
    void Remove();

  private:
    RecoveryStore store_;
    std::optional<RecoveryWriter> writer_;  // until Remove()
};

}  // namespace kirto
