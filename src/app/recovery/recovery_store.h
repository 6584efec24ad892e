#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/recovery/recovery_writer.h"
#include "base/file_lock.h"
#include "base/pixel_budget.h"
#include "base/types.h"
#include "formats/recovery/recovery_file.h"

namespace kirto {

// The folder in which running editors keep their open documents, so that these outlive a crash.
// Each has a file there, named by its process and its start, and holds the lock beside it for as
// long as it lives; a file whose lock is free was left by an editor that did not come to its end.
//
// Write and Remove may be called by one thread while another calls the rest.
class RecoveryStore : public RecoveryTarget {
  public:
    // Makes the folder and this editor's lock. start: microseconds since 1970.
    explicit RecoveryStore(std::string folder = DefaultFolder(), int64 start = Now());
    // Gives the locks back. What is written stays there; a clean end calls Remove before.
    ~RecoveryStore() override;

    // "kirto/recovery" in the folder for state.
    static std::string DefaultFolder();

    // B_OK, or B_NOT_ALLOWED where no lock can be had. Nothing is written then.
    status_t InitCheck() const { return lock_ ? B_OK : B_NOT_ALLOWED; }
    // This editor's file, which is there once something has been written.
    const std::string& OwnPath() const { return path_; }

    // Writes the document into this editor's file in place of what was there; on failure that
    // stays.
    status_t Write(const DocumentState& state) override;
    // Removes this editor's file.
    void Remove() override;

    // A document that an editor has left.
    struct Left {
        std::string path;
        RecoveryHead head;
    };
    // What there is, the newest first. It belongs to this editor then, until that ends: no other
    // one is told of it. Files that were not changed for 30 days are removed, damaged ones set
    // aside. now: seconds since 1970.
    std::vector<Left> List(int64 now);

    struct Outcome {
        std::optional<RecoveryDocument> document;
        status_t status = B_OK;  // without a document: as RecoveryFileReader::Status
        std::string reason;      // in words
    };
    // Reads a listed document. The file stays until it is discarded, for the document is not safe
    // before it has been written again; a damaged one is set aside.
    Outcome Read(const std::string& path, std::shared_ptr<PixelBudget> budget);
    // Removes a listed file.
    void Discard(const std::string& path);

  private:
    static int64 Now();

    bool Claim(const std::string& path);
    void Release(const std::string& path);
    void SetAside(const std::string& path, const char* reason);
    void Sweep(const std::string& path, bool old);
    std::optional<RecoveryHead> Look(const std::string& path);

    const std::string folder_;
    std::unique_ptr<FileLock> lock_;  // this editor's
    std::string path_;
    std::map<std::string, std::unique_ptr<FileLock>> claims_;  // by the path of the file
};

}  // namespace kirto
