#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/file_descriptor.h"
#include "base/types.h"

enum open_mode : int32 {
    B_READ_ONLY,
};

enum seek_mode : int32 {
    SEEK_FROM_START,
    SEEK_FROM_CURRENT,
    SEEK_FROM_END,
};

// A file of bytes with one position and a buffer of its own; the file is never mapped, so a file
// that shrinks while it is read gives short reads, not signals. Used by one thread at a time.
//
// Four kinds: a file opened for reading; a file written beside its target, which takes the target's
// place only when Commit() succeeds; bytes in memory; and a file that only counts them.
class BFile {
  public:
    // Opens an existing file for reading. Folders and other entries that are not regular files are
    // refused with B_NOT_ALLOWED.
    BFile(const std::string& path, open_mode mode);
    // Flushes nothing and commits nothing: a written file that was not committed leaves no trace.
    ~BFile();
    BFile(const BFile&) = delete;
    BFile& operator=(const BFile&) = delete;

    // A new file that will replace path on Commit(). Symbolic links in path are resolved; a target
    // that exists and is read-only or no regular file is refused with B_NOT_ALLOWED. The
    // permissions, access list and extended attributes of an existing target are kept, a new file
    // gets the process's default ones. InitCheck() tells why it failed.
    static std::unique_ptr<BFile> CreateReplacing(const std::string& path);
    // As CreateReplacing, but only its owner may read the new file, and a symbolic link at path is
    // replaced itself, never followed.
    static std::unique_ptr<BFile> CreatePrivate(const std::string& path);
    // A file over the given bytes, for reading and writing, up to 2 GiB.
    static std::unique_ptr<BFile> OnMemory(std::vector<uint8> bytes = {});

    // A file for reading, over what the descriptor refers to.
    static std::unique_ptr<BFile> OnDescriptor(kirto::FileDescriptor descriptor);

    // A file that keeps nothing of what is written but its size.
    static std::unique_ptr<BFile> ThatCounts();

    // B_OK, or why the file can't be used.
    status_t InitCheck() const { return status_; }
    // Whole size in bytes, unwritten buffer included.
    int64 Size() const;

    // Reads at most size bytes at the position and moves it. Returns the bytes read (fewer at the
    // end of the file or before an error), or a negative status.
    int64 Read(void* buffer, size_t size);
    // Whether memory has been too short for a read.
    bool RanOutOfMemory() const { return ran_out_of_memory_; }
    // True when exactly size bytes were read.
    bool ReadExactly(void* buffer, size_t size);
    // Writes at the position and moves it; a gap before the position is filled with zeros. Returns
    // size, or a negative status; the first failure is remembered and makes every later write and
    // the Commit() fail.
    int64 Write(const void* buffer, size_t size);

    // Moves the position; past the end is allowed. Returns the new position, or B_BAD_VALUE for one
    // before the start (the position stays).
    int64 Seek(int64 offset, seek_mode mode);
    int64 Position() const { return position_; }

    // The first write error, or B_OK.
    status_t WriteStatus() const { return write_status_; }
    // Writes what is buffered, syncs, takes the target's place and syncs its directory where the
    // file system can. On failure the old file is untouched and the new one is removed. Once only;
    // memory and read files: B_NOT_ALLOWED.
    status_t Commit();

    // Removes the hidden files beside a written file's target that killed programs of this user
    // have left there.
    void RemoveLeftovers();

    // Sets the file's MIME type as an extended attribute; where the file system refuses it, nothing
    // happens.
    void SetMimeType(const std::string& type);

    // A descriptor for another process that is to read the file, from anywhere in it; none where
    // the system gives none. Not for files that are being written.
    kirto::FileDescriptor ForOtherProcess() const;

    // The bytes of a memory file.
    const std::vector<uint8>& Memory() const { return buffer_; }

  private:
    BFile() = default;

    void CheckOpened();
    static std::unique_ptr<BFile> Create(const std::string& path, bool for_owner_only);

    status_t OpenTemporary(bool for_owner_only);
    status_t FillBuffer();
    // Gives the buffer its full size; false when memory is short.
    bool MakeReadBuffer();
    status_t PrepareWrite(size_t size);
    status_t FlushBuffer();
    status_t TakeTargetsPlace();
    void DiscardTemporary();

    std::string path_;
    int directory_ = -1;        // the directory of a written file's target
    std::string target_;        // name there that Commit() replaces
    std::string temporary_;     // name there of the file being written, while it has one
    bool uncommitted_ = false;  // a file is being written and has not taken the target's place
    status_t status_ = B_NO_INIT;
    status_t write_status_ = B_OK;
    int descriptor_ = -1;  // -1 for memory
    int64 size_ = 0;       // size of the file behind the descriptor, or of what is counted
    bool counts_only_ = false;
    int64 position_ = 0;
    std::vector<uint8> buffer_;  // memory: the bytes; else a window of the file
    int64 buffer_start_ = 0;     // file offset of the window's first byte
    bool ran_out_of_memory_ = false;
    bool buffer_dirty_ = false;  // the window holds bytes not yet written
};
