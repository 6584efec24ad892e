#include "app/recovery/recovery_store.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "base/debug_line.h"
#include "base/directories.h"
#include "base/temporary_files.h"
#include "base/text.h"
#include "formats/recovery/recovery_file_reader.h"
#include "formats/recovery/recovery_file_writer.h"

namespace kirto {

namespace {

constexpr const char* kFileEnding = ".recovery";
constexpr const char* kLockEnding = ".lock";
constexpr const char* kDamagedEnding = ".damaged";
constexpr int kMaxNameAttempts = 10;
constexpr int64 kDaysKept = 30;
constexpr int64 kSecondsADay = int64{24} * 60 * 60;

// The lock beside a recovery file.
std::string LockPathOf(const std::string& path) {
    return path + kLockEnding;
}

// True for a regular file; *changed becomes when it was changed last.
bool IsFile(const std::string& path, int64* changed) {
    struct stat info;
    if (lstat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
    *changed = info.st_mtim.tv_sec;
    return true;
}

std::vector<std::string> PathsIn(const std::string& folder) {
    std::vector<std::string> paths;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        paths.push_back(entry->path().string());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

}  // namespace

RecoveryStore::RecoveryStore(std::string folder, int64 start) : folder_(std::move(folder)) {
    MakeFolders(folder_);
    // Another editor that lists the folder may take a lock for one that is left, in the moment
    // between its making and its locking.
    for (int attempt = 0; !lock_ && attempt < kMaxNameAttempts; ++attempt) {
        path_ = Format("%s/%d-%lld%s", folder_.c_str(), getpid(),
                       static_cast<long long>(start + attempt), kFileEnding);
        lock_ = FileLock::TryTake(LockPathOf(path_));
    }
}

RecoveryStore::~RecoveryStore() {
    int64 changed = 0;
    if (lock_ && !IsFile(path_, &changed)) lock_->RemoveFile();
}

std::string RecoveryStore::DefaultFolder() {
    return StateDirectory() + "/kirto/recovery";
}

int64 RecoveryStore::Now() {
    const auto since_1970 = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(since_1970).count();
}

status_t RecoveryStore::Write(const DocumentState& state) {
    if (InitCheck() != B_OK) return InitCheck();
    const std::unique_ptr<BFile> file = BFile::CreatePrivate(path_);
    if (file->InitCheck() != B_OK) return file->InitCheck();
    const RecoveryFileWriter writer(*file, state, Now() / 1000000);
    return writer.Status() == B_OK ? file->Commit() : writer.Status();
}

void RecoveryStore::Remove() {
    unlink(path_.c_str());
}

std::vector<RecoveryStore::Left> RecoveryStore::List(int64 now) {
    std::vector<Left> found;
    for (const std::string& path : PathsIn(folder_)) {
        int64 changed = 0;
        if (!IsFile(path, &changed)) continue;
        const bool old = changed < now - kDaysKept * kSecondsADay;
        if (!path.ends_with(kFileEnding)) {
            Sweep(path, old);
        } else if (path != path_ && Claim(path)) {
            if (old) {
                Discard(path);
            } else if (auto head = Look(path)) {
                found.push_back({path, std::move(*head)});
            }
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Left& a, const Left& b) { return a.head.written > b.head.written; });
    return found;
}

// Removes what nobody needs among the other files of the folder: old damaged ones, old temporaries
// of editors that were killed, and locks without a holder and a file.
void RecoveryStore::Sweep(const std::string& path, bool old) {
    const std::string name = std::filesystem::path(path).filename();
    const bool temporary = name.starts_with(kTemporaryPrefix);
    if (old && (temporary || path.ends_with(kDamagedEnding))) unlink(path.c_str());
    if (!path.ends_with(kLockEnding)) return;
    int64 changed = 0;
    if (IsFile(path.substr(0, path.size() - std::string_view(kLockEnding).size()), &changed))
        return;
    if (const auto lock = FileLock::TryTake(path)) lock->RemoveFile();
}

// Makes a file that an editor has left this editor's. False while another one holds it.
bool RecoveryStore::Claim(const std::string& path) {
    if (claims_.contains(path)) return true;
    std::unique_ptr<FileLock> lock = FileLock::TryTake(LockPathOf(path));
    if (!lock) return false;
    int64 changed = 0;
    if (!IsFile(path, &changed)) {  // whoever had it has just removed it
        lock->RemoveFile();
        return false;
    }
    claims_.emplace(path, std::move(lock));
    return true;
}

void RecoveryStore::Release(const std::string& path) {
    const auto claim = claims_.find(path);
    if (claim == claims_.end()) return;
    claim->second->RemoveFile();
    claims_.erase(claim);
}

std::optional<RecoveryHead> RecoveryStore::Look(const std::string& path) {
    BFile file(path, B_READ_ONLY);
    RecoveryFileReader reader(file);
    auto head = reader.ReadHead();
    if (!head && reader.Status() == B_BAD_DATA) SetAside(path, reader.Reason());
    return head;
}

RecoveryStore::Outcome RecoveryStore::Read(const std::string& path,
                                           std::shared_ptr<PixelBudget> budget) {
    if (!claims_.contains(path)) return {std::nullopt, B_NOT_ALLOWED, "the file is not listed"};
    BFile file(path, B_READ_ONLY);
    RecoveryFileReader reader(file);
    Outcome outcome;
    outcome.document = reader.ReadDocument(std::move(budget));
    outcome.status = reader.Status();
    outcome.reason = reader.Reason();
    if (reader.Status() == B_BAD_DATA) SetAside(path, reader.Reason());
    return outcome;
}

void RecoveryStore::SetAside(const std::string& path, const char* reason) {
    DebugLine("RecoveryStore::SetAside() - %s is damaged (%s)\n", path.c_str(), reason);
    std::error_code ignored;
    std::filesystem::rename(path, path + kDamagedEnding, ignored);
    Release(path);
}

void RecoveryStore::Discard(const std::string& path) {
    if (!claims_.contains(path)) return;
    unlink(path.c_str());
    Release(path);
}

}  // namespace kirto
